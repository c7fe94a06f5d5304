#include "tests/support/test_program.h"
#include "text/ranges.h"

#include "tests/support/corpus_names.h"

#include <QTest>

#include <limits>

using text::Side;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

/** What tests compare: the text, or that there is none. */
QString shown(const std::optional<QString> &text)
{
    return text ? *text : QStringLiteral("(outside)");
}

} // namespace

class TestRanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strips_data();
    void strips();
    void takesSections_data();
    void takesSections();
    void inserts_data();
    void inserts();
    void putsNamesTogetherAgain();
};

void TestRanges::strips_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("fromRight");
    QTest::addColumn<QString>("fromLeft");
    const QString photo = QStringLiteral("Photo01");
    const QString outside = shown(std::nullopt);
    QTest::newRow("none") << photo << 0 << photo << photo;
    QTest::newRow("two") << photo << 2 << QStringLiteral("Photo") << QStringLiteral("oto01");
    QTest::newRow("five") << photo << 5 << QStringLiteral("Ph") << QStringLiteral("01");
    QTest::newRow("all") << photo << 7 << QString() << QString();
    QTest::newRow("one too many") << photo << 8 << outside << outside;
    QTest::newRow("negative") << photo << -1 << outside << outside;
    QTest::newRow("least") << photo << least << outside << outside;
    QTest::newRow("most") << photo << most << outside << outside;
    QTest::newRow("empty") << QString() << 3 << QString() << QString();
    QTest::newRow("empty, negative") << QString() << -3 << QString() << QString();
    const QString smile = QStringLiteral("a\U0001F600");
    QTest::newRow("half a pair") << smile << 1 << smile.left(2) << smile.mid(1);
    QTest::newRow("a pair") << smile << 2 << QStringLiteral("a") << smile.mid(2);
}

void TestRanges::strips()
{
    QFETCH(QString, given);
    QFETCH(int, count);
    QTEST(shown(text::stripped(given, Side::Right, count)), "fromRight");
    QTEST(shown(text::stripped(given, Side::Left, count)), "fromLeft");
}

void TestRanges::takesSections_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("expected");
    const QString outside = shown(std::nullopt);
    const auto row = [](int start, int length, const QString &expected) {
        QTest::addRow("%d, %d", start, length) << start << length << expected;
    };
    row(4, 4, QStringLiteral("1234"));
    row(0, 8, QStringLiteral("IMG_1234"));
    row(0, 0, QString());
    row(8, 0, QString());
    row(6, 4, outside);
    row(0, 9, outside);
    row(9, 0, outside);
    row(8, 1, outside);
    row(-1, 1, outside);
    row(-1, 2, outside);
    row(1, -1, outside);
    row(4, most, outside);
    row(most, most, outside);
    row(least, least, outside);
}

void TestRanges::takesSections()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QTEST(shown(text::section(QStringLiteral("IMG_1234"), start, length)), "expected");
}

void TestRanges::inserts_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("expected");
    const QString outside = shown(std::nullopt);
    const QString name = QStringLiteral("name");
    QTest::newRow("before") << name << 0 << QStringLiteral("-+name");
    QTest::newRow("inside") << name << 2 << QStringLiteral("na-+me");
    QTest::newRow("behind") << name << 4 << QStringLiteral("name-+");
    QTest::newRow("beyond") << name << 5 << outside;
    QTest::newRow("negative") << name << -1 << outside;
    QTest::newRow("most") << name << most << outside;
    QTest::newRow("into empty text") << QString() << 0 << QStringLiteral("-+");
    QTest::newRow("beyond empty text") << QString() << 1 << outside;
}

void TestRanges::inserts()
{
    QFETCH(QString, target);
    QFETCH(int, position);
    QTEST(shown(text::inserted(target, QStringLiteral("-+"), position)), "expected");
}

void TestRanges::putsNamesTogetherAgain()
{
    const QList<CorpusName> names = corpusNames();
    QVERIFY(!names.isEmpty());
    for (const CorpusName &name : names) {
        const int length = int(name.name.size());
        for (int i = 0; i <= length; ++i) {
            const QString left = shown(text::stripped(name.name, Side::Right, length - i));
            const QString right = shown(text::stripped(name.name, Side::Left, i));
            QCOMPARE(left + right, name.name);
            QCOMPARE(shown(text::section(name.name, i, length - i)), right);
            QCOMPARE(shown(text::inserted(right, left, 0)), name.name);
        }
        QVERIFY(!text::section(name.name, length, 1));
    }
}

QUORLIN_TEST(TestRanges)
#include "tst_ranges.moc"
