#include "tests/gui/support/window_driver.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/controls/search_menu.h"
#include "app/window/controls/segmented_control.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSet>
#include <QTimer>

#include <cmath>

namespace {

const QList<const char *> withNumbers = {"resize",    "crop", "turn",    "round",  "background",
                                         "watermark", "web",  "contact", "rename", "recipe"};
const QList<const char *> allActions = {"resize",  "crop",    "turn",     "round", "background", "watermark",
                                        "recipe",  "convert", "rename",   "sort",  "hand",       "web",
                                        "contact", "fields",  "metadata", "log"};

bool isWrittenIn(const QWidget &widget)
{
    const auto *line = qobject_cast<const QLineEdit *>(&widget);
    const auto *lines = qobject_cast<const QPlainTextEdit *>(&widget);
    const auto *number = qobject_cast<const QAbstractSpinBox *>(&widget);
    return (line && !line->isReadOnly() && !line->focusProxy()) || (lines && !lines->isReadOnly()) || number;
}

} // namespace

/** What is typed into the fields of every action, key by key, stays as it was typed. */
class Typing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }

    void cleanup()
    {
        m_driver.reset();
        m_typed.clear();
        qunsetenv("QUORLIN_LANGUAGE");
    }

    void numbersAreTypedKeyByKey_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("action");
        for (const char *language : {"en", "de"})
            for (const char *action : withNumbers)
                QTest::addRow("%s, %s", language, action)
                    << QString::fromLatin1(language) << QString::fromLatin1(action);
    }

    // Each key writes the settings back into the fields, which must not touch what is being typed.
    void numbersAreTypedKeyByKey()
    {
        QFETCH(QString, language);
        QFETCH(QString, action);
        qputenv("QUORLIN_LANGUAGE", language.toLatin1());
        m_driver->startAgain();
        begin(action);
        QSet<QString> typed;
        if (action == QLatin1String("background"))
            m_driver->choose("frame", QStringLiteral("band"));
        const auto typeAll = [&] { typeIntoAllFields(m_driver->window(), typed); };
        typeAll();
        throughSegments(typeAll);
        throughCards(action, typeAll);
        QVERIFY(!typed.isEmpty());
    }

    void numbersOfDialogsAreTypedKeyByKey_data()
    {
        QTest::addColumn<QString>("opens");
        QTest::addColumn<QStringList>("fields");
        const auto row = [](const char *language, const char *opens, const QString &fields) {
            QTest::addRow("%s, %s", language, opens) << QString::fromLatin1(opens) << fields.split(u' ');
        };
        for (const char *language : {"en", "de"}) {
            row(language, "clocksAction", QStringLiteral("clockHours clockMinutes clockSeconds"));
            row(language, "addFolderAction", QStringLiteral("addLeast addMost"));
            row(language, "printAction", QStringLiteral("columns rows gap"));
        }
    }

    void numbersOfDialogsAreTypedKeyByKey()
    {
        QFETCH(QString, opens);
        QFETCH(QStringList, fields);
        qputenv("QUORLIN_LANGUAGE", QByteArray(QTest::currentDataTag()).left(2));
        m_driver->startAgain();
        QFile photo(m_driver->inputFolder() + QStringLiteral("/photo.jpg"));
        QVERIFY(photo.open(QIODevice::WriteOnly));
        QVERIFY(photo.write(pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30"), QStringLiteral("Camera A"))) >
                0);
        photo.close();
        begin(QStringLiteral("resize"));
        const auto isRead = [this] {
            return m_driver->cell(1, window::PictureModel::Camera) == QLatin1String("Camera A");
        };
        QVERIFY(m_driver->waitFor(isRead)); // without a camera there is no clock
        m_driver->trigger("selectAllAction");
        QSet<QString> typed;
        // Panels for files are modal.
        QTimer visit;
        connect(&visit, &QTimer::timeout, this, [&] {
            QWidget *opened = QApplication::activeWindow();
            if (!opened || opened == &m_driver->window())
                return;
            visit.stop();
            if (auto *filter = opened->findChild<QAbstractButton *>(QStringLiteral("addFilter")))
                filter->click();
            typeIntoAllFields(*opened, typed);
            opened->close();
        });
        visit.start(20);
        m_driver->trigger(opens.toLatin1().constData());
        QVERIFY(m_driver->waitFor([&visit] { return !visit.isActive(); }));
        for (const QString &field : fields)
            QVERIFY2(typed.contains(field), qPrintable(field));
    }

    void theUndoKeyBelongsToEveryField_data()
    {
        QTest::addColumn<QString>("action");
        for (const char *action : allActions)
            QTest::addRow("%s", action) << QString::fromLatin1(action);
    }

    // The latest step of the window was the adding of a picture.
    void theUndoKeyBelongsToEveryField()
    {
        QFETCH(QString, action);
        begin(action);
        QVERIFY(m_driver->pictures().count() == 1);
        QSet<QWidget *> seen;
        const auto undoAll = [&] { undoInAllFields(seen); };
        undoAll();
        throughSegments(undoAll);
        throughCards(action, undoAll);
        QCOMPARE(m_driver->pictures().count(), 1);
        if (action != QLatin1String("hand")) // its fields appear with a new folder
            QVERIFY(!seen.isEmpty());
    }

private:
    void begin(const QString &action)
    {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString pictures = m_driver->folder() + QStringLiteral("/in");
        QVERIFY(QDir().mkpath(pictures) && image.save(pictures + QStringLiteral("/a.png")));
        m_driver->drop({pictures});
        m_driver->show(qPrintable(action));
        activate();
    }

    void activate()
    {
        m_driver->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
        QCoreApplication::processEvents();
    }

    void throughSegments(const std::function<void()> &work)
    {
        const auto rows = m_driver->window().findChildren<window::SegmentedControl *>();
        for (window::SegmentedControl *row : rows) {
            for (int i = 0; row->isVisible() && i < row->segments().size(); ++i) {
                row->setFocus();
                QTest::keyClick(row, i == 0 ? Qt::Key_Home : Qt::Key_Right);
                work();
            }
            if (row->isVisible()) // the list is one of files, not of folders
                QTest::keyClick(row, Qt::Key_Home);
        }
    }

    // Every kind of step or operation, open.
    void throughCards(const QString &action, const std::function<void()> &work)
    {
        const bool isRename = action == QLatin1String("rename");
        if (!isRename && action != QLatin1String("recipe"))
            return;
        const char *button = isRename ? "addStep" : "addOperation";
        int kinds = 1;
        for (int kind = 0; kind < kinds; ++kind) {
            m_driver->click(button);
            QWidget *menu = QApplication::activePopupWidget();
            QVERIFY(menu);
            kinds = menu->findChild<QListWidget *>()->count();
            QVERIFY(kinds > 3);
            auto *field = menu->findChild<QLineEdit *>();
            for (int i = 0; i < kind; ++i)
                QTest::keyClick(field, Qt::Key_Down);
            QTest::keyClick(field, Qt::Key_Return);
            activate(); // the windowless platform leaves the focus to the menu
            work();
            if (isRename)
                m_driver->click("cardDelete");
        }
    }

    static QList<double> numbersFor(const QAbstractSpinBox &field)
    {
        const auto takes = [&field](double number) {
            return number >= field.property("minimum").toDouble() && number <= field.property("maximum").toDouble() &&
                   (field.property("decimals").toInt() > 0 || number == std::round(number));
        };
        QList<double> numbers;
        for (const double number : {12.5, -1.3, 0.7, 1600.0})
            if (takes(number))
                numbers.append(number);
        // Whole numbers of a small range.
        for (const double number : {12.0, 2.0})
            if (numbers.isEmpty() && takes(number))
                numbers.append(number);
        return numbers;
    }

    void typeIntoAllFields(QWidget &window, QSet<QString> &typed)
    {
        const auto units = window.findChildren<QComboBox *>(QStringLiteral("unit"));
        for (const QComboBox *unit : units)
            if (unit->isVisible())
                m_driver->choose("unit", QStringLiteral("cm"));
        const auto fields = window.findChildren<QAbstractSpinBox *>();
        for (QAbstractSpinBox *field : fields) {
            if (!field->isVisible() || !field->isEnabled())
                continue;
            // In another state of the pane, one number will do.
            QList<double> numbers = numbersFor(*field);
            if (m_typed.contains(field))
                numbers = numbers.mid(0, 1);
            m_typed.insert(field);
            typed.insert(field->objectName());
            QVERIFY2(!numbers.isEmpty(), qPrintable(field->objectName()));
            for (const double number : qAsConst(numbers))
                type(*field, number);
        }
    }

    void type(QAbstractSpinBox &field, double number)
    {
        const QString text =
            QLocale().toString(number, 'f', number == std::round(number) ? 0 : 1).remove(QLocale().groupSeparator());
        field.setFocus();
        QCoreApplication::processEvents();
        QVERIFY(field.hasFocus());
        field.selectAll();
        for (const QChar key : text) {
            QTest::keyClick(&field, key.toLatin1());
            QCoreApplication::processEvents();
        }
        const auto value = [&field] { return field.property("value").toDouble(); };
        const QByteArray what = QStringLiteral("%1 in %2: %3").arg(text, field.objectName(), field.text()).toUtf8();
        QVERIFY2(field.hasFocus(), what);
        QVERIFY2(value() == number, what);
        QVERIFY2(field.property("cleanText").toString() == text, what);
        QTest::keyClick(&field, Qt::Key_Tab);
        QVERIFY2(value() == number, what);
    }

    void undoInAllFields(QSet<QWidget *> &seen)
    {
        const auto fields = m_driver->window().findChildren<QWidget *>();
        for (QWidget *field : fields) {
            if (seen.contains(field) || !field->isVisible() || !field->isEnabled() || !isWrittenIn(*field))
                continue;
            seen.insert(field);
            field->setFocus();
            QVERIFY2(field->hasFocus(), qPrintable(field->objectName()));
            QTest::keyClicks(field, QStringLiteral("75"));
            for (int i = 0; i < 4; ++i) {
                QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
                QCoreApplication::processEvents();
            }
            QVERIFY2(m_driver->pictures().count() == 1, qPrintable(field->objectName()));
        }
    }

    std::unique_ptr<WindowDriver> m_driver;
    QSet<const QWidget *> m_typed;
};

QUORLIN_GUI_TEST(Typing)

#include "tst_typing.moc"
