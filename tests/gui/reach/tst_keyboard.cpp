#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/look/key_header.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>
#include <QSpinBox>
#include <QTest>

using window::PictureModel;

namespace {

const QList<const char *> allActions = {"resize",  "crop",    "turn",     "round", "background", "watermark",
                                        "recipe",  "convert", "rename",   "sort",  "hand",       "web",
                                        "contact", "fields",  "metadata", "log"};

/** Text is edited in it: its keys are its own. */
bool isText(const QWidget &control)
{
    const auto *box = qobject_cast<const QComboBox *>(&control);
    return qobject_cast<const QLineEdit *>(&control) || qobject_cast<const QPlainTextEdit *>(&control) ||
           qobject_cast<const QAbstractSpinBox *>(&control) || (box && box->isEditable());
}

/** Somebody would work it with a mouse; parts of another control, such as the field of a number, do not count. */
bool isControl(const QWidget &widget)
{
    for (const QWidget *around = widget.parentWidget(); around; around = around->parentWidget())
        if (qobject_cast<const QAbstractSpinBox *>(around) || qobject_cast<const QComboBox *>(around) ||
            qobject_cast<const QLineEdit *>(around) || qobject_cast<const QAbstractItemView *>(around))
            return false;
    return isText(widget) || qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QAbstractItemView *>(&widget) ||
           (widget.focusPolicy() != Qt::NoFocus && !qobject_cast<const QScrollArea *>(&widget));
}

/** Of a group of buttons of which one is checked, the Tab key reaches that one, and the arrow keys reach the others. */
bool isOfReachedGroup(const QWidget &widget, const QSet<QWidget *> &reached)
{
    if (!qobject_cast<const QRadioButton *>(&widget))
        return false;
    const auto group = widget.parentWidget()->findChildren<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(group.cbegin(), group.cend(), [&](QRadioButton *each) { return reached.contains(each); });
}

QString nameOf(const QWidget &widget)
{
    return QStringLiteral("%1 (%2)").arg(widget.objectName(), QString::fromLatin1(widget.metaObject()->className()));
}

} // namespace

/** The window without a mouse. */
class Keyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void theTabKeyReachesTheHeadings();
    void theTabKeyReachesEveryControl_data();
    void theTabKeyReachesEveryControl();
    void columnsAreSortedByKeyboard();
    void theRowOfTheKeyboardIsSeen();
    void theNextPictureIsAKeyAway();
    void inATextTheKeysAreThoseOfTheText();
    void escapeClosesWhatOpenedLast_data();
    void escapeClosesWhatOpenedLast();

private:
    window::KeyHeader &header() { return *m_driver->pictures().findChild<window::KeyHeader *>(); }
    int place() { return m_driver->pictures().currentPlace(); }
    QString listed();
    QList<QWidget *> reached();
    bool changesPicture(QWidget &control);

    std::unique_ptr<WindowDriver> m_driver;
};

void Keyboard::init()
{
    m_driver = WindowDriver::showing("resize");
    int width = 30;
    for (const char *name : {"b", "c", "a"}) {
        QImage image(width += 10, 30, QImage::Format_RGB32);
        image.fill(Qt::darkYellow);
        QVERIFY(image.save(m_driver->inputFolder() + u'/' + QString::fromLatin1(name) + QStringLiteral(".png")));
    }
    for (const char *name : {"b", "c", "a"})
        m_driver->drop({m_driver->inputFolder() + u'/' + QString::fromLatin1(name) + QStringLiteral(".png")});
    m_driver->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
}

QString Keyboard::listed()
{
    QString names;
    for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
        names += m_driver->cell(row, PictureModel::Name).left(1);
    return names;
}

void Keyboard::theTabKeyReachesTheHeadings()
{
    m_driver->pictures().setFocus();
    QSet<QWidget *> visited;
    while (!visited.contains(QApplication::focusWidget())) {
        visited.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(visited.contains(&header()));
    QVERIFY(visited.contains(m_driver->control<QWidget>("startButton")));
    QVERIFY(visited.contains(m_driver->control<QWidget>("preview")));
    QVERIFY(visited.contains(m_driver->control<QWidget>("addPicturesButton")));
}

/** What the Tab key reaches until it comes back to where it was. */
QList<QWidget *> Keyboard::reached()
{
    QList<QWidget *> found;
    while (QApplication::focusWidget() && !found.contains(QApplication::focusWidget())) {
        found.append(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    return found;
}

/** By the keys for the next and the previous picture. */
bool Keyboard::changesPicture(QWidget &control)
{
    const bool isEdited = isText(control);
    const auto press = [&](int key, int keyInText) {
        control.setFocus();
        QTest::keyClick(&control, Qt::Key(isEdited ? keyInText : key),
                        isEdited ? Qt::AltModifier : Qt::ControlModifier);
        QCoreApplication::processEvents();
    };
    const int before = place();
    press(Qt::Key_Right, Qt::Key_PageDown);
    const bool isNext = place() == before + 1;
    press(Qt::Key_Left, Qt::Key_PageUp);
    return isNext && place() == before;
}

void Keyboard::theTabKeyReachesEveryControl_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : allActions)
        QTest::addRow("%s", action) << QString::fromLatin1(action);
}

void Keyboard::theTabKeyReachesEveryControl()
{
    QFETCH(QString, action);
    m_driver->show(qPrintable(action));
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    m_driver->control<QWidget>("sideBar")->setFocus();
    const QList<QWidget *> all = reached();
    const QSet<QWidget *> known(all.cbegin(), all.cend());
    QStringList problems;
    const QList<QWidget *> widgets = m_driver->window().findChildren<QWidget *>();
    for (const QWidget *each : widgets)
        if (each->isVisible() && each->isEnabled() && each->window() == &m_driver->window() && isControl(*each) &&
            !known.contains(const_cast<QWidget *>(each)) && !isOfReachedGroup(*each, known))
            problems.append(nameOf(*each) + QStringLiteral(" is not reached"));
    QVERIFY2(all.size() > 5, qPrintable(QString::number(all.size())));
    const bool hasPictures = m_driver->control<QAction>("nextAction")->isEnabled();
    QCOMPARE(hasPictures, action != QLatin1String("log"));
    for (QWidget *each : all)
        if (hasPictures && each->isVisible() && !changesPicture(*each))
            problems.append(nameOf(*each) + QStringLiteral(" keeps the keys for the next picture"));
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void Keyboard::columnsAreSortedByKeyboard()
{
    QCOMPARE(listed(), QStringLiteral("bca"));
    header().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&header(), Qt::Key_Right); // from the thumbnails to the names
    QCOMPARE(header().accessibleName(), QStringLiteral("Name"));
    QTest::keyClick(&header(), Qt::Key_Space);
    QCOMPARE(listed(), QStringLiteral("abc"));
    QTest::keyClick(&header(), Qt::Key_Space);
    QCOMPARE(listed(), QStringLiteral("cba"));
    QTest::keyClick(&header(), Qt::Key_Return);
    QCOMPARE(listed(), QStringLiteral("bca"));
    QTest::keyClick(&header(), Qt::Key_Left);
    QTest::keyClick(&header(), Qt::Key_Left); // stays at the end
    QTest::keyClick(&header(), Qt::Key_Right);
    QCOMPARE(header().accessibleName(), QStringLiteral("Name"));
}

void Keyboard::theRowOfTheKeyboardIsSeen()
{
    window::PictureTable &list = m_driver->pictures();
    list.setFocus();
    const QImage with = list.viewport()->grab().toImage();
    m_driver->control<QWidget>("startButton")->setFocus();
    const QImage without = list.viewport()->grab().toImage();
    const QRect row = list.visualRect(list.currentIndex());
    const QPoint edge(row.center().x(), row.top());
    QCOMPARE(with.pixelColor(edge), window::Theme::color(QStringLiteral("focus")));
    QVERIFY(without.pixelColor(edge) != with.pixelColor(edge));
}

void Keyboard::theNextPictureIsAKeyAway()
{
    QCOMPARE(place(), 1);
    for (const char *name : {"startButton", "preview", "sideBar", "preset", "fitFill", "ifTaken"}) {
        auto *control = m_driver->control<QWidget>(name);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Right, Qt::ControlModifier);
        QVERIFY2(place() == 2, name);
        QVERIFY2(m_driver->pictures().selectedIds().size() == 1, name); // Ctrl adds nothing to what is chosen
        QTest::keyClick(control, Qt::Key_Left, Qt::ControlModifier);
        QVERIFY2(place() == 1, name);
    }
}

void Keyboard::inATextTheKeysAreThoseOfTheText()
{
    auto *field = m_driver->control<QDoubleSpinBox>("value")->findChild<QLineEdit *>();
    field->setFocus();
    field->setCursorPosition(0);
    QTest::keyClick(field, Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(place(), 1);
    QVERIFY(field->cursorPosition() > 0);
    QTest::keyClick(field, Qt::Key_PageDown, Qt::AltModifier);
    QCOMPARE(place(), 2);
    QTest::keyClick(field, Qt::Key_PageUp, Qt::AltModifier);
    QCOMPARE(place(), 1);
}

void Keyboard::escapeClosesWhatOpenedLast_data()
{
    QTest::addColumn<QStringList>("order");
    for (const char *order : {"filter full large", "large full filter", "full large filter", "large filter full"})
        QTest::addRow("%s", order) << QString::fromLatin1(order).split(u' ');
}

void Keyboard::escapeClosesWhatOpenedLast()
{
    QFETCH(QStringList, order);
    window::PictureTable &list = m_driver->pictures();
    list.selectAll();
    list.rate(3); // a filter without pictures would have none to show large
    auto *large = m_driver->window().findChild<QWidget *>(QStringLiteral("largePreview"));
    const auto isOpen = [&](const QString &part) {
        return part == QLatin1String("full")    ? m_driver->startUp().shell().isFullScreen()
               : part == QLatin1String("large") ? large->isVisible()
                                                : list.leastRating() > 0;
    };
    QVERIFY(!m_driver->control<QAction>("cancelAction")->isEnabled());
    for (const QString &part : order) {
        if (part == QLatin1String("filter"))
            list.setLeastRating(2);
        else
            m_driver->trigger(part == QLatin1String("full") ? "fullScreenAction" : "largeAction");
        QVERIFY2(m_driver->waitFor([&] { return isOpen(part); }), qPrintable(part));
    }
    for (auto part = order.crbegin(); part != order.crend(); ++part) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        for (const QString &each : order)
            QVERIFY2(isOpen(each) == (order.indexOf(each) < order.indexOf(*part)), qPrintable(*part + u' ' + each));
    }
    QVERIFY(!m_driver->control<QAction>("cancelAction")->isEnabled());
}

QUORLIN_GUI_TEST(Keyboard)

#include "tst_keyboard.moc"
