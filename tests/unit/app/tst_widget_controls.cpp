#include "app/window/controls/color_well.h"
#include "app/window/controls/position_pad.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/forms/widget_controls.h"
#include "tests/support/test_program.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>

/** The controls of a window, read and written as services do. */
class TheWidgetControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { platform::setWindowControls(std::make_unique<window::WidgetControls>()); }
    void cleanupTestCase() { platform::setWindowControls(nullptr); }
    void readsFields();
    void readsNumbersWithoutWhatStandsAroundThem();
    void writesNumbers();
    void readsCheckBoxes();
    void readsTabs();
    void readsAndFillsMenus();
    void readsTheHousesOwnControls();
    void enablesAndDisables();
};

void TheWidgetControls::readsFields()
{
    QLineEdit field(QStringLiteral(" 12px"));
    QCOMPARE(platform::integerValueOf(&field), 12);
    platform::setTextOf(&field, QStringLiteral("-7"));
    QCOMPARE(field.text(), QStringLiteral("-7"));
    QCOMPARE(platform::integerValueOf(&field), -7);
    QLabel label(QStringLiteral("3.9"));
    QCOMPARE(platform::integerValueOf(&label), 3);
    QPlainTextEdit text(QStringLiteral("40\n50"));
    QCOMPARE(platform::textOf(&text), QStringLiteral("40\n50"));
}

void TheWidgetControls::readsNumbersWithoutWhatStandsAroundThem()
{
    QSpinBox whole;
    whole.setRange(-100000, 100000);
    whole.setPrefix(QStringLiteral("at 5: "));
    whole.setSuffix(QStringLiteral(" px"));
    whole.setGroupSeparatorShown(true);
    whole.setValue(-12345);
    QCOMPARE(platform::integerValueOf(&whole), -12345);
    QCOMPARE(platform::textOf(&whole), QStringLiteral("-12345"));
    QDoubleSpinBox fraction;
    fraction.setRange(-1e12, 1e12);
    fraction.setLocale(QLocale(QLocale::German));
    for (const auto &[value, expected] : std::initializer_list<std::pair<double, int>>{
             {3.9, 3}, {-3.9, -3}, {0, 0}, {1e11, 2147483647}, {-1e11, -2147483647 - 1}}) {
        fraction.setValue(value);
        QCOMPARE(platform::integerValueOf(&fraction), expected);
    }
    QDial dial;
    dial.setRange(-180, 180);
    dial.setValue(-45);
    QCOMPARE(platform::integerValueOf(&dial), -45);
}

void TheWidgetControls::writesNumbers()
{
    QSpinBox whole;
    whole.setRange(0, 5000);
    platform::setTextOf(&whole, QStringLiteral("4321"));
    QCOMPARE(whole.value(), 4321);
}

void TheWidgetControls::readsCheckBoxes()
{
    QCheckBox box;
    QCOMPARE(platform::stateOf(&box), 0);
    box.setChecked(true);
    QCOMPARE(platform::stateOf(&box), 1);
    box.setTristate(true);
    box.setCheckState(Qt::PartiallyChecked);
    QCOMPARE(platform::stateOf(&box), -1);
    platform::setStateOf(&box, 0);
    QVERIFY(!box.isChecked());
}

void TheWidgetControls::readsTabs()
{
    QTabWidget tabs;
    QCOMPARE(platform::selectedLabelOf(&tabs), QString());
    tabs.addTab(new QWidget(&tabs), QStringLiteral("W x &H"));
    tabs.addTab(new QWidget(&tabs), QStringLiteral("%"));
    tabs.addTab(new QWidget(&tabs), QStringLiteral("A && B"));
    QCOMPARE(platform::selectedLabelOf(&tabs), QStringLiteral("W x H"));
    tabs.setCurrentIndex(1);
    QCOMPARE(platform::selectedLabelOf(&tabs), QStringLiteral("%"));
    QCOMPARE(platform::selectedSegmentOf(&tabs), 1);
    tabs.setCurrentIndex(2);
    QCOMPARE(platform::selectedLabelOf(&tabs), QStringLiteral("A & B"));
}

void TheWidgetControls::readsAndFillsMenus()
{
    QComboBox menu;
    const QStringList titles = {QStringLiteral("PNG"), QStringLiteral("TIFF")};
    platform::setTitlesOf(&menu, titles);
    QCOMPARE(platform::titlesOf(&menu), titles);
    platform::setSelectedTitleOf(&menu, QStringLiteral("TIFF"));
    QCOMPARE(menu.currentIndex(), 1);
    QCOMPARE(platform::selectedTitleOf(&menu), QStringLiteral("TIFF"));
    QCOMPARE(platform::textOf(&menu), QStringLiteral("TIFF"));
    QCOMPARE(platform::selectedLabelOf(&menu), QStringLiteral("TIFF"));
}

void TheWidgetControls::readsTheHousesOwnControls()
{
    window::SegmentedControl kinds;
    kinds.setSegments({QStringLiteral("W x H"), QStringLiteral("%"), QStringLiteral("Pixels")});
    kinds.setSelectedSegment(1);
    QCOMPARE(platform::selectedSegmentOf(&kinds), 1);
    QCOMPARE(platform::selectedLabelOf(&kinds), QStringLiteral("%"));
    window::PositionPad place;
    place.setSelectedSegment(7);
    QCOMPARE(platform::selectedSegmentOf(&place), 7);
    window::ColorWell well;
    platform::setColorOf(&well, QColor(1, 2, 3));
    QCOMPARE(platform::colorOf(&well), QColor(1, 2, 3));
}

void TheWidgetControls::enablesAndDisables()
{
    QLineEdit field;
    platform::setEnabledOf(&field, false);
    QVERIFY(!field.isEnabled());
    platform::setEnabledOf(&field, true);
    QVERIFY(field.isEnabled());
}

QUORLIN_GUI_TEST(TheWidgetControls)
#include "tst_widget_controls.moc"
