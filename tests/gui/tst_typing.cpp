#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLocale>
#include <QSet>

#include <cmath>

namespace {

const QList<const char *> allActions = {"resize", "crop", "turn", "round", "background", "watermark"};

} // namespace

/** Numbers are typed into every field of every action, key by key. */
class Typing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }

    void cleanup() { m_driver.reset(); }

    void numbersAreTypedKeyByKey_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("action");
        for (const char *language : {"en", "de"})
            for (const char *action : allActions)
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
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString pictures = m_driver->folder() + QStringLiteral("/in");
        QVERIFY(QDir().mkpath(pictures) && image.save(pictures + QStringLiteral("/a.png")));
        m_driver->drop({pictures});
        m_driver->show(qPrintable(action));
        QSet<QString> typed;
        if (action == QLatin1String("background"))
            m_driver->choose("frame", QStringLiteral("band"));
        typeIntoAllFields(typed);
        const auto rows = m_driver->window().findChildren<window::SegmentedControl *>();
        for (window::SegmentedControl *row : rows) {
            for (int i = 0; row->isVisible() && i < row->segments().size(); ++i) {
                row->setFocus();
                QTest::keyClick(row, i == 0 ? Qt::Key_Home : Qt::Key_Right);
                typeIntoAllFields(typed);
            }
        }
        qunsetenv("QUORLIN_LANGUAGE");
        QVERIFY(!typed.isEmpty());
    }

private:
    void typeIntoAllFields(QSet<QString> &typed)
    {
        const auto units = m_driver->window().findChildren<QComboBox *>(QStringLiteral("unit"));
        for (const QComboBox *unit : units)
            if (unit->isVisible())
                m_driver->choose("unit", QStringLiteral("cm"));
        const auto fields = m_driver->window().findChildren<QDoubleSpinBox *>();
        for (QDoubleSpinBox *field : fields) {
            if (!field->isVisible() || !field->isEnabled())
                continue;
            typed.insert(field->objectName());
            const double numbers[] = {12.5, -1.3, 0.7, 1600};
            for (const double number : numbers)
                if (number >= field->minimum() && number <= field->maximum() &&
                    (field->decimals() > 0 || number == std::round(number)))
                    type(*field, number);
        }
    }

    void type(QDoubleSpinBox &field, double number)
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
        const QByteArray what = QStringLiteral("%1 in %2: %3").arg(text, field.objectName(), field.text()).toUtf8();
        QVERIFY2(field.hasFocus(), what);
        QVERIFY2(field.value() == number, what);
        QVERIFY2(field.cleanText() == text, what);
        QTest::keyClick(&field, Qt::Key_Tab);
        QVERIFY2(field.value() == number, what);
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Typing)

#include "tst_typing.moc"
