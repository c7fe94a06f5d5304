#include "platform/controls/controls.h"
#include "platform/controls/stand_ins.h"
#include "tests/support/test_program.h"

#include <QTest>

/** How services read and write controls. */
class TestControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsLeadingWholeNumbers_data();
    void readsLeadingWholeNumbers();
    void readsNothingFromNoControl();
    void reachesStandInsThroughTheirProperties();
    void reachesOtherControlsThroughTheirsToo();
};

void TestControls::readsLeadingWholeNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    using Row = std::pair<const char *, int>;
    for (const auto &[text, number] : std::initializer_list<Row>{{"", 0},
                                                                 {"abc", 0},
                                                                 {"12px", 12},
                                                                 {"3.9", 3},
                                                                 {"-3", -3},
                                                                 {"+4", 4},
                                                                 {"  25", 25},
                                                                 {"- 3", 0},
                                                                 {"1 000", 1},
                                                                 {"1,000", 1},
                                                                 {"0x10", 0},
                                                                 {"--3", 0},
                                                                 {"2147483647", 2147483647},
                                                                 {"99999999999", 2147483647},
                                                                 {"-99999999999", -2147483647 - 1},
                                                                 {"٣", 0}})
        QTest::newRow(text) << QString::fromUtf8(text) << number;
}

void TestControls::readsLeadingWholeNumbers()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QCOMPARE(platform::leadingInteger(text), number);
    platform::TextField field;
    platform::setTextOf(&field, text);
    QCOMPARE(platform::integerValueOf(&field), number);
}

void TestControls::readsNothingFromNoControl()
{
    QCOMPARE(platform::textOf(nullptr), QString());
    QCOMPARE(platform::integerValueOf(nullptr), 0);
    QCOMPARE(platform::stateOf(nullptr), 0);
    QVERIFY(!platform::colorOf(nullptr).isValid());
    QCOMPARE(platform::selectedSegmentOf(nullptr), 0);
    QCOMPARE(platform::selectedLabelOf(nullptr), QString());
    QCOMPARE(platform::rowsOf(nullptr), QVariantList());
    platform::setTextOf(nullptr, QStringLiteral("x"));
    platform::setEnabledOf(nullptr, false);
    platform::addRowTo(nullptr, {});
    platform::reloadTable(nullptr);
    QObject nothingToRead;
    platform::setTextOf(&nothingToRead, QStringLiteral("x"));
    QCOMPARE(platform::textOf(&nothingToRead), QString());
    QVERIFY(nothingToRead.dynamicPropertyNames().isEmpty());
}

void TestControls::reachesStandInsThroughTheirProperties()
{
    platform::CheckBox box;
    platform::setStateOf(&box, 1);
    QCOMPARE(platform::stateOf(&box), 1);
    platform::setEnabledOf(&box, false);
    QCOMPARE(box.property("enabled").toBool(), false);
    platform::ColorWell well;
    platform::setColorOf(&well, QColor(1, 2, 255));
    QCOMPARE(well.color(), QStringLiteral("#0102ff"));
    QCOMPARE(platform::colorOf(&well), QColor(1, 2, 255));
    platform::ProgressIndicator bar;
    platform::setProgressMaximumOf(&bar, 5);
    platform::setProgressOf(&bar, 1);
    platform::setProgressOf(&bar, 2);
    platform::setVisibleOf(&bar, false);
    QCOMPARE(platform::progressOf(&bar), 2.0);
    QCOMPARE(bar.history(), (QVariantList{1.0, 2.0}));
    QCOMPARE(bar.property("visible").toBool(), false);
    platform::ArrayController rows;
    platform::addRowTo(&rows, {{QStringLiteral("a"), 1}});
    platform::addRowTo(&rows, {{QStringLiteral("b"), 2}});
    QCOMPARE(platform::rowsOf(&rows).size(), 2);
    QCOMPARE(platform::rowsOf(&rows).last().toMap().value(QStringLiteral("b")).toInt(), 2);
    platform::TableView table;
    platform::reloadTable(&table);
    platform::reloadTable(&table);
    QCOMPARE(table.property("reloads").toInt(), 2);
    platform::PopUpButton menu;
    platform::setTitlesOf(&menu, {QStringLiteral("a"), QStringLiteral("b")});
    platform::setSelectedTitleOf(&menu, QStringLiteral("b"));
    QCOMPARE(platform::selectedTitleOf(&menu), QStringLiteral("b"));
    QCOMPARE(platform::titlesOf(&menu).size(), 2);
}

void TestControls::reachesOtherControlsThroughTheirsToo()
{
    QObject widget; // with the names that real fields and boxes have
    widget.setProperty("text", QStringLiteral("7 px"));
    widget.setProperty("checked", true);
    widget.setProperty("color", QColor(Qt::red));
    widget.setProperty("currentIndex", 3);
    QCOMPARE(platform::textOf(&widget), QStringLiteral("7 px"));
    QCOMPARE(platform::integerValueOf(&widget), 7);
    QCOMPARE(platform::stateOf(&widget), 1);
    QCOMPARE(platform::colorOf(&widget), QColor(Qt::red));
    QCOMPARE(platform::selectedSegmentOf(&widget), 3);
    platform::setTextOf(&widget, QStringLiteral("8"));
    QCOMPARE(widget.property("text").toString(), QStringLiteral("8"));
}

QUORLIN_TEST(TestControls)
#include "tst_controls.moc"
