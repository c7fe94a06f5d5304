#include "tests/support/test_program.h"
#include "text/date_text.h"

#include <QTest>

class TestDateText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesShortDateAndFullTime_data();
    void writesShortDateAndFullTime();
    void writesNothingForNoDate();
};

void TestDateText::writesShortDateAndFullTime_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("month");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *locale, const char *zone, int month, const char *expected) {
        QTest::addRow("%s %s %d", locale, zone, month)
            << QString::fromLatin1(locale) << QByteArray(zone) << month << QString::fromUtf8(expected);
    };
    row("en_GB", "Europe/London", 1, "21/01/2026, 08:30:05 Greenwich Mean Time");
    row("en_GB", "Europe/London", 7, "21/07/2026, 09:30:05 British Summer Time");
    row("en_US", "America/New_York", 7, "7/21/26, 4:30:05 AM Eastern Daylight Time");
    row("de_DE", "Europe/Berlin", 1, "21.01.26, 09:30:05 Mitteleuropäische Normalzeit");
    row("ja_JP", "Asia/Tokyo", 1, "2026/01/21, 17時30分05秒 日本標準時");
}

void TestDateText::writesShortDateAndFullTime()
{
    QFETCH(QString, locale);
    QFETCH(QByteArray, zone);
    QFETCH(int, month);
    const QTimeZone timeZone(zone);
    if (!timeZone.isValid())
        QSKIP("The system does not know this zone");
    const QDateTime moment(QDate(2026, month, 21), QTime(8, 30, 5), Qt::UTC);
    QTEST(text::dateText(moment, QLocale(locale), timeZone), "expected");
    QTEST(text::dateText(moment.toOffsetFromUtc(7200), QLocale(locale), timeZone), "expected");
}

void TestDateText::writesNothingForNoDate()
{
    QVERIFY(text::dateText(QDateTime(), QLocale(), QTimeZone::utc()).isNull());
}

QUORLIN_TEST(TestDateText)
#include "tst_date_text.moc"
