#include "tests/gui/support/window_tour.h"
#include "tests/support/test_program.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

namespace {

/** The words of a tooltip beyond those of the name, and without the keys at its end. */
bool saysMore(const QString &tip, const QString &name)
{
    return !tip.isEmpty() && !name.contains(tip, Qt::CaseInsensitive);
}

QString shownName(const QAccessibleInterface &control)
{
    QString name = control.text(QAccessible::Name);
    // What labels beside it say belongs to it; the toolkit calls a box by what is chosen in it.
    for (const auto &[label, relation] : control.relations(QAccessible::Label))
        if (label)
            name.prepend(label->text(QAccessible::Name) + u' ');
    return name.simplified();
}

QString whichIs(const QAccessibleInterface &control)
{
    const QObject *object = control.object();
    return QStringLiteral("%1 (%2)").arg(object ? object->objectName() : QString(),
                                         object ? QString::fromLatin1(object->metaObject()->className()) : QString());
}

/** Information about a control that screen readers do not get. */
QStringList lacksOf(const QAccessibleInterface &control)
{
    QStringList lacks;
    if (control.role() == QAccessible::Client || control.role() == QAccessible::NoRole)
        lacks << QStringLiteral("has no role");
    if (shownName(control).isEmpty())
        lacks << QStringLiteral("has no name");
    const auto *widget = qobject_cast<const QWidget *>(control.object());
    const bool needsWords = widget && saysMore(widget->toolTip(), shownName(control));
    if (needsWords && control.text(QAccessible::Description).isEmpty())
        lacks << QStringLiteral("has no description");
    return lacks;
}

/** Visits everything that can take the focus now; a list reports its rows itself. */
class Walk
{
public:
    explicit Walk(QWidget &window) { visit(QAccessible::queryAccessibleInterface(&window)); }

    QStringList lacks;
    int controls = 0;

private:
    void visit(QAccessibleInterface *around)
    {
        QHash<QString, QString> names;
        for (int i = 0; around && i < around->childCount(); ++i) {
            QAccessibleInterface *child = around->child(i);
            if (!child || !child->isValid() || child->state().invisible)
                continue;
            if (child->state().focusable && !child->state().disabled && qobject_cast<QWidget *>(child->object()))
                look(*child, names);
            const bool isList = child->tableInterface() != nullptr || child->role() == QAccessible::List ||
                                child->role() == QAccessible::ComboBox || child->role() == QAccessible::SpinBox;
            if (!isList)
                visit(child);
        }
    }

    void look(const QAccessibleInterface &control, QHash<QString, QString> &names)
    {
        controls += 1;
        for (const QString &lack : lacksOf(control))
            lacks << whichIs(control) + u' ' + lack;
        const QString name = shownName(control);
        if (!name.isEmpty() && names.contains(name))
            lacks << whichIs(control) + QStringLiteral(" is called %1 like ").arg(name) + names.value(name);
        names.insert(name, whichIs(control));
    }
};

} // namespace

/** What the window tells users of screen readers. */
class Accessible : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_driver = WindowDriver::started(); }
    void cleanupTestCase() { m_driver.reset(); }

    void everyControlHasRoleAndName()
    {
        QStringList problems;
        QSet<QString> found;
        int most = 0;
        const auto look = [&](const QString &place, const QWidget &window) {
            const Walk walk(const_cast<QWidget &>(window));
            most = qMax(most, walk.controls);
            for (const QString &each : walk.lacks)
                if (!found.contains(each)) {
                    found.insert(each);
                    problems << place + QStringLiteral(": ") + each;
                }
        };
        WindowTour tour(*m_driver, {1440, 900}, look);
        tour.sheets();
        tour.runs();
        tour.bars();
        tour.actions();
        tour.windows();
        tour.manual();
        tour.panels();
        for (const QString &each : problems)
            qWarning("%s", qPrintable(each));
        QVERIFY2(most > 20, qPrintable(QString::number(most)));
        QCOMPARE(problems.size(), 0);
    }

private:
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Accessible)

#include "tst_accessible.moc"
