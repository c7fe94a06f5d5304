#include "app/network/version_file.h"

#include "platform/foundation/raised.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <limits>

namespace {

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

/** What comes out as one text: the fields between bars, "null", or the name of the error. */
QString outcomeOf(const QString &text, int build)
{
    try {
        const auto fields = app::newerVersion(text, build);
        return fields ? fields->join(u'|') : QStringLiteral("null");
    } catch (const platform::Raised &raised) {
        return raised.name() + (raised.message().isEmpty() ? QStringLiteral(" without words") : QString());
    }
}

} // namespace

/** The one line of the version file. */
class TestVersionFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheFields_data();
    void readsTheFields();
    void saysWhichFieldIsMissing();
    void readsManyFields();
};

void TestVersionFile::readsTheFields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("build");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const char *text, int build, const char *outcome) {
        QTest::newRow(name) << QString::fromUtf8(text) << build << QString::fromUtf8(outcome);
    };
    row("newer", "3.2;121;Notes;More", 120, "3.2|Notes|More");
    row("the same", "3.2;121;Notes;More", 121, "null");
    row("older", "3.2;121;Notes;More", 122, "null");
    row("digits up to a letter", "3.2;0122abc;Notes;More", 121, "3.2|Notes|More");
    row("digits up to a letter, the same", "3.2;0122abc;Notes;More", 122, "null");
    row("blanks before", "3.2; \t\n 122;Notes;More", 121, "3.2|Notes|More");
    row("digits up to a blank", "3.2;12 2;Notes;More", 11, "3.2|Notes|More");
    row("digits up to a blank, no more", "3.2;12 2;Notes;More", 12, "null");
    row("digits up to a point", "3.2;121.9;Notes;More", 121, "null");
    row("no number", "3.2;new;Notes;More", 0, "null");
    row("no number, below 0", "3.2;new;Notes;More", -1, "3.2|Notes|More");
    row("empty number", "3.2;;Notes;More", 0, "null");
    row("a sign", "3.2;+121;Notes;More", 120, "3.2|Notes|More");
    row("negative", "3.2;-5;Notes;More", -6, "3.2|Notes|More");
    row("negative, compared with its sign", "3.2;-5;Notes;More", 4, "null");
    row("digits of other scripts are none", "3.2;١٢١;Notes;More", 0, "null");
    row("as large as can be", "3.2;2147483647;Notes;More", most - 1, "3.2|Notes|More");
    row("larger than can be", "3.2;99999999999999999999;Notes;More", most - 1, "3.2|Notes|More");
    row("larger than can be, bounded", "3.2;99999999999999999999;Notes;More", most, "null");
    row("below the least", "3.2;-99999999999999999999;Notes;More", least, "null");
    row("line break at the end", "3.2;121;Notes;More\n", 120, "3.2|Notes|More\n");
    row("nothing is trimmed", " 3.2 ;121; Notes ;\r\nMore ", 120, " 3.2 | Notes |\r\nMore ");
    row("further fields", "3.2;121;Notes;More;x;y;", 120, "3.2|Notes|More");
    row("empty fields", ";121;;", 120, "||");
    row("letters of other scripts", "Versión 3;121;Größe ≥ 5;“更多”", 120, "Versión 3|Größe ≥ 5|“更多”");
    row("byte-order mark",
        "\xef\xbb\xbf"
        "3.2;121;Notes;More",
        120,
        "\xef\xbb\xbf"
        "3.2|Notes|More");
    row("nothing", "", 120, "RangeError");
    row("one field", "3.2", 120, "RangeError");
    row("a page of words", "<html><body>Not found</body></html>", 120, "RangeError");
    row("two fields, newer", "3.2;121", 120, "RangeError");
    row("three fields, newer", "3.2;121;Notes", 120, "RangeError");
    row("two fields, the same", "3.2;121", 121, "null");
    row("three fields, older", "3.2;121;Notes", 122, "null");
}

void TestVersionFile::readsTheFields()
{
    QFETCH(QString, text);
    QFETCH(int, build);
    QTEST(outcomeOf(text, build), "outcome");
}

void TestVersionFile::saysWhichFieldIsMissing()
{
    try {
        app::newerVersion(QStringLiteral("3.2;121;Notes"), 120);
        QFAIL("not raised");
    } catch (const platform::Raised &raised) {
        QCOMPARE(raised.message(), QStringLiteral("The version file has no field 3: it ends with field 2"));
    }
}

void TestVersionFile::readsManyFields()
{
    QCOMPARE(outcomeOf(QStringLiteral("a;2;b;c") + QString(100000, u';'), 1), QStringLiteral("a|b|c"));
}

QUORLIN_TEST(TestVersionFile)
#include "tst_version_file.moc"
