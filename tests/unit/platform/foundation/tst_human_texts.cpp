#include "platform/foundation/human_texts.h"
#include "tests/support/test_program.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace platform;

/** Counts of bytes and dates as people read them. */
class TestHumanTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsBytes_data();
    void countsBytes();
    void countsBytesWithTheReadersDecimalSign();
    void writesDatesTheBritishWay_data();
    void writesDatesTheBritishWay();
};

void TestHumanTexts::countsBytes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](qint64 bytes, const char *text) {
        QTest::addRow("%lld", bytes) << bytes << QString::fromUtf8(text);
    };
    row(-1, "0 bytes");
    row(0, "0 bytes");
    row(1, "1 byte");
    row(2, "2 bytes");
    row(999, "999 bytes");
    row(1000, "1 KB");
    row(1499, "1 KB");
    row(1500, "2 KB");
    row(12000, "12 KB");
    row(12345, "12 KB");
    row(999499, "999 KB");
    row(999500, "1 MB");
    row(999999, "1 MB");
    row(1000000, "1 MB");
    row(1049999, "1 MB");
    row(1050000, "1.1 MB");
    row(2400000, "2.4 MB");
    row(10000000, "10 MB");
    row(123400000, "123.4 MB");
    row(999949999, "999.9 MB");
    row(999950000, "1 GB");
    row(1005000000, "1.01 GB");
    row(1250000000, "1.25 GB");
    row(1200000000, "1.2 GB");
    row(20000000000, "20 GB");
    row(999995000000, "1 TB");
    row(1234567890123, "1.23 TB");
    row(5000000000000000, "5 PB");
    row(std::numeric_limits<qint64>::max(), "9.22 EB");
}

void TestHumanTexts::countsBytes()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QCOMPARE(byteCountText(bytes), text);
    // Counts of bytes have their forms in the tables of texts; see tst_translations.
    if (bytes >= 1000)
        QCOMPARE(localByteCountText(bytes), text);
}

void TestHumanTexts::countsBytesWithTheReadersDecimalSign()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(localByteCountText(123400000), QStringLiteral("123,4 MB"));
    QCOMPARE(localByteCountText(1250000000), QStringLiteral("1,25 GB"));
    QCOMPARE(localByteCountText(1000), QStringLiteral("1 KB"));
    QCOMPARE(byteCountText(123400000), QStringLiteral("123.4 MB"));
    QLocale::setDefault(before);
}

void TestHumanTexts::writesDatesTheBritishWay_data()
{
    QTest::addColumn<QDateTime>("date");
    QTest::addColumn<QString>("text");
    QTest::newRow("autumn") << QDateTime(QDate(2026, 11, 16), QTime(3, 52, 9)) << "16 Nov 2026, 03:52:09";
    QTest::newRow("one figure") << QDateTime(QDate(2008, 2, 1), QTime(23, 0, 0)) << "1 Feb 2008, 23:00:00";
    QTest::newRow("fractions") << QDateTime(QDate(1999, 12, 31), QTime(0, 0, 0, 999)) << "31 Dec 1999, 00:00:00";
    QTest::newRow("another zone") << QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)).toUTC() << "2 Jan 2026, 03:04:05";
    QTest::newRow("none") << QDateTime() << QString();
}

void TestHumanTexts::writesDatesTheBritishWay()
{
    QFETCH(QDateTime, date);
    QFETCH(QString, text);
    QCOMPARE(mediumDateText(date), text);
}

QUORLIN_TEST(TestHumanTexts)
#include "tst_human_texts.moc"
