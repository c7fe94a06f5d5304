#include "files/items/text_files.h"
#include "platform/file/atomic_file.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestTextFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutsAtEveryNewline_data();
    void cutsAtEveryNewline();
    void refusesWhatIsNoText();
    void writesUtf8OverWhatWasThere();
    void leavesTheOldFileWhereItCannotWrite();

private:
    QString pathOf(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestTextFiles::cutsAtEveryNewline_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &lines) {
        QTest::newRow(name) << bytes << lines.split(u'|');
    };
    row("empty", "", QString());
    row("one line", "a", QStringLiteral("a"));
    row("line feed at the end", "a\n", QStringLiteral("a|"));
    row("carriage return and line feed", "a\r\nb\n", QStringLiteral("a||b|"));
    row("carriage return", "a\rb", QStringLiteral("a|b"));
    row("tabulator and form feed", "a\vb\fc\td", QStringLiteral("a|b|c\td"));
    row("next line",
        "a\xc2\x85"
        "b",
        QStringLiteral("a|b"));
    row("line and paragraph",
        "a\xe2\x80\xa8"
        "b\xe2\x80\xa9",
        QStringLiteral("a|b|"));
    row("only line feeds", "\n\n", QStringLiteral("||"));
    row("letters", "\xc3\xa9\n\xf0\x9f\x98\x80", QStringLiteral("é|\U0001F600"));
    row("other controls",
        "a\x1c"
        "b\x1e",
        QStringLiteral("a\u001Cb\u001E"));
}

void TestTextFiles::cutsAtEveryNewline()
{
    QFETCH(QByteArray, bytes);
    const QString path = pathOf(QStringLiteral("read.txt"));
    QVERIFY(platform::replaceFile(path, bytes));
    const auto lines = files::readLines(path);
    QVERIFY(lines);
    QTEST(*lines, "lines");
    QCOMPARE(platform::readFile(path).value(), bytes);
}

void TestTextFiles::refusesWhatIsNoText()
{
    const QString path = pathOf(QStringLiteral("latin.txt"));
    QVERIFY(platform::replaceFile(path, "caf\xe9\n"));
    QCOMPARE(files::readLines(path).error().code, platform::ErrorCode::Unreadable);
    QCOMPARE(files::readLines(pathOf(QStringLiteral("none.txt"))).error().code, platform::ErrorCode::NotFound);
    QVERIFY(!files::readLines(m_folder.path()));
}

void TestTextFiles::writesUtf8OverWhatWasThere()
{
    const QString path = pathOf(QStringLiteral("page.html"));
    QVERIFY(platform::replaceFile(path, QByteArray(1000, 'x')));
    QVERIFY(files::writeText(path, QStringLiteral("<p>é\r\n\U0001F600")));
    QCOMPARE(platform::readFile(path).value(), QByteArray("<p>\xc3\xa9\r\n\xf0\x9f\x98\x80"));
    QVERIFY(files::writeText(path, QString()));
    QCOMPARE(platform::readFile(path).value(), QByteArray());
}

void TestTextFiles::leavesTheOldFileWhereItCannotWrite()
{
    const QString folder = pathOf(QStringLiteral("folder"));
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/inside")));
    QVERIFY(!files::writeText(folder, QStringLiteral("text")));
    QVERIFY(!files::writeText(pathOf(QStringLiteral("none/a.txt")), QStringLiteral("text")));
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("inside")});
    const QStringList hidden = QDir(m_folder.path()).entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden);
    QCOMPARE(hidden, QStringList());
}

QUORLIN_TEST(TestTextFiles)
#include "tst_text_files.moc"
