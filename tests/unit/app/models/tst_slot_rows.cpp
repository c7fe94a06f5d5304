#include "app/models/slot_rows.h"
#include "tests/support/test_program.h"

#include <QSignalSpy>
#include <QTest>

using window::Slot;
using window::SlotRows;

namespace {

Slot slotOf(const char *key, const char *label, int count = 0, const char *problem = "")
{
    return {QString::fromUtf8(key), QString::fromUtf8(label), QStringLiteral("/photos/") + QString::fromUtf8(label),
            QString::fromUtf8(problem), count};
}

} // namespace

class TestSlotRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAShiftedKeyAsItsCap_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("cap");
        QTest::newRow("digit") << QStringLiteral("1") << QStringLiteral("1");
        QTest::newRow("letter") << QStringLiteral("A") << QStringLiteral("A");
        QTest::newRow("shifted") << QStringLiteral("Shift+A") << QStringLiteral("⇧A");
        QTest::newRow("none") << QString() << QString();
    }

    void writesAShiftedKeyAsItsCap()
    {
        QFETCH(QString, key);
        QTEST(SlotRows::keyCap(key), "cap");
    }

    void showsLabelAndFolder()
    {
        SlotRows rows;
        rows.setSlots({slotOf("1", "Lake"), slotOf("2", "Hills")});
        QCOMPARE(rows.rowCount(), 2);
        QCOMPARE(rows.rowCount(rows.index(0)), 0);
        QCOMPARE(rows.data(rows.index(1), Qt::DisplayRole).toString(), QStringLiteral("Hills"));
        QCOMPARE(rows.data(rows.index(1), Qt::EditRole).toString(), QStringLiteral("Hills"));
        QCOMPARE(rows.data(rows.index(0), Qt::ToolTipRole).toString(), QStringLiteral("/photos/Lake"));
        QVERIFY(!rows.data(rows.index(0), Qt::DecorationRole).isValid());
        QVERIFY(!rows.data({}, Qt::DisplayRole).isValid());
    }

    void saysWhyNothingCanGoThere()
    {
        SlotRows rows;
        rows.setSlots({slotOf("1", "Lake", 0, "The folder is gone.")});
        QCOMPARE(rows.data(rows.index(0), Qt::ToolTipRole).toString(),
                 QStringLiteral("The folder is gone.\n/photos/Lake"));
        QCOMPARE(rows.data(rows.index(0), Qt::AccessibleTextRole).toString(),
                 QStringLiteral("1: Lake, The folder is gone."));
    }

    void speaksKeyLabelAndCount()
    {
        SlotRows rows;
        rows.setSlots({slotOf("Shift+A", "Lake", 12)});
        const QString spoken = rows.data(rows.index(0), Qt::AccessibleTextRole).toString();
        QVERIFY2(spoken.contains(QLatin1String("Shift+A")) && spoken.contains(QLatin1String("Lake")) &&
                     spoken.contains(QLatin1String("12")),
                 qPrintable(spoken));
    }

    void keepsTheSelectionWhileOnlyCountsChange()
    {
        SlotRows rows;
        rows.setSlots({slotOf("1", "Lake"), slotOf("2", "Hills")});
        QSignalSpy reset(&rows, &SlotRows::modelReset);
        QSignalSpy changed(&rows, &SlotRows::dataChanged);
        rows.setSlots({slotOf("1", "Lake", 1), slotOf("2", "Hills")});
        QCOMPARE(reset.count(), 0);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(rows.slot(0).count, 1);
        rows.setSlots({slotOf("1", "Lake", 1)});
        QCOMPARE(reset.count(), 1);
        rows.setSlots({});
        rows.setSlots({});
        QCOMPARE(rows.count(), 0);
        QCOMPARE(changed.count(), 1);
    }

    void tellsALabelThatIsTypedAndChangesNothingItself()
    {
        SlotRows rows;
        rows.setSlots({slotOf("1", "Lake")});
        QSignalSpy edited(&rows, &SlotRows::labelEdited);
        QVERIFY(rows.setData(rows.index(0), QStringLiteral("Sea"), Qt::EditRole));
        QVERIFY(!rows.setData(rows.index(0), QStringLiteral("Sea"), Qt::CheckStateRole));
        QVERIFY(!rows.setData({}, QStringLiteral("Sea"), Qt::EditRole));
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited.first().at(0).toInt(), 0);
        QCOMPARE(edited.first().at(1).toString(), QStringLiteral("Sea"));
        QCOMPARE(rows.slot(0).label, QStringLiteral("Lake"));
    }

    void takesDropsBetweenSlotsOnly()
    {
        SlotRows rows;
        rows.setSlots({slotOf("1", "Lake")});
        QVERIFY(!rows.flags(rows.index(0)).testFlag(Qt::ItemIsDropEnabled));
        QVERIFY(rows.flags(rows.index(0)).testFlag(Qt::ItemIsDragEnabled));
        QVERIFY(rows.flags({}).testFlag(Qt::ItemIsDropEnabled));
    }
};

QUORLIN_TEST(TestSlotRows)
#include "tst_slot_rows.moc"
