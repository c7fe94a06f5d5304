#include "platform/desktop/strings_tables.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace platform;

/** Texts by key, in tables of several languages. */
class TestStringsTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { setStringsTables({}, {}); }
    void answersTheDefaultWithoutTables();
    void picksTheFirstLanguageThatIsThere_data();
    void picksTheFirstLanguageThatIsThere();
    void looksUpATextOrFallsBack_data();
    void looksUpATextOrFallsBack();
    void leadsToNoOtherPlace();
    void survivesDamagedTables_data();
    void survivesDamagedTables();

private:
    void write(const char *path, const QByteArray &content);
    QString folder() const { return m_folder.path() + QStringLiteral("/texts"); }
    QTemporaryDir m_folder;
};

void TestStringsTables::write(const char *path, const QByteArray &content)
{
    const QString full = m_folder.filePath(QString::fromLatin1(path));
    QVERIFY(QDir().mkpath(QFileInfo(full).path()));
    QFile file(full);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

void TestStringsTables::initTestCase()
{
    write("texts/en/Localizable.json", R"({"isSave": "Saving", "empty": "", "number": 3, "only-en": "English"})");
    write("texts/en/Help.json", R"({"isSave": "Help about saving"})");
    write("texts/nl/Localizable.json", "{\"isSave\": \"Bewaren – één\"}");
    write("secret.json", R"({"isSave": "not to be read"})");
}

void TestStringsTables::answersTheDefaultWithoutTables()
{
    QCOMPARE(localizedText(QStringLiteral("isSave"), QStringLiteral("default")), QStringLiteral("default"));
    QCOMPARE(languageOfTexts(), QStringLiteral("en"));
    setStringsTables(folder() + QStringLiteral("/none"), {QStringLiteral("nl")});
    QCOMPARE(localizedText(QStringLiteral("isSave"), QString()), QStringLiteral("isSave"));
    QCOMPARE(languageOfTexts(), QStringLiteral("en"));
}

void TestStringsTables::picksTheFirstLanguageThatIsThere_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("language");
    QTest::newRow("none") << QStringList() << "en";
    QTest::newRow("plain") << QStringList{QStringLiteral("nl")} << "nl";
    QTest::newRow("with a country") << QStringList{QStringLiteral("nl-BE")} << "nl";
    QTest::newRow("with a script") << QStringList{QStringLiteral("NL_Latn_NL")} << "nl";
    QTest::newRow("the second") << QStringList{QStringLiteral("es-ES"), QStringLiteral("nl")} << "nl";
    QTest::newRow("the first of two") << QStringList{QStringLiteral("en-GB"), QStringLiteral("nl")} << "en";
    QTest::newRow("not there") << QStringList{QStringLiteral("es")} << "en";
    QTest::newRow("empty") << QStringList{QString()} << "en";
    QTest::newRow("a path") << QStringList{QStringLiteral("../texts/nl")} << "en";
}

void TestStringsTables::picksTheFirstLanguageThatIsThere()
{
    QFETCH(QStringList, wanted);
    setStringsTables(folder(), wanted);
    QTEST(languageOfTexts(), "language");
}

void TestStringsTables::looksUpATextOrFallsBack_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("fallback");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("text");
    QTest::newRow("found") << "en"
                           << "isSave"
                           << "default" << QString() << "Saving";
    QTest::newRow("in another language") << "nl"
                                         << "isSave"
                                         << "default" << QString() << QStringLiteral("Bewaren – één");
    QTest::newRow("empty name of a table") << "en"
                                           << "isSave"
                                           << "default"
                                           << ""
                                           << "Saving";
    QTest::newRow("main table by name") << "en"
                                        << "isSave"
                                        << "default"
                                        << "Localizable"
                                        << "Saving";
    QTest::newRow("named table") << "en"
                                 << "isSave"
                                 << "default"
                                 << "Help"
                                 << "Help about saving";
    QTest::newRow("an empty text is a text") << "en"
                                             << "empty"
                                             << "default" << QString() << "";
    QTest::newRow("missing key") << "en"
                                 << "missing"
                                 << "default" << QString() << "default";
    QTest::newRow("missing key, no default") << "en"
                                             << "missing" << QString() << QString() << "missing";
    QTest::newRow("missing key, empty default") << "en"
                                                << "missing"
                                                << "" << QString() << "missing";
    QTest::newRow("keys are exact") << "en"
                                    << "IsSave"
                                    << "default" << QString() << "default";
    QTest::newRow("no text") << "en"
                             << "number"
                             << "default" << QString() << "default";
    QTest::newRow("no help from other languages") << "nl"
                                                  << "only-en"
                                                  << "default" << QString() << "default";
    QTest::newRow("missing table") << "en"
                                   << "isSave"
                                   << "default"
                                   << "Nowhere"
                                   << "default";
    QTest::newRow("missing table of a language") << "nl"
                                                 << "isSave"
                                                 << "default"
                                                 << "Help"
                                                 << "default";
    QTest::newRow("null key") << "en" << QString() << "default" << QString() << "default";
}

void TestStringsTables::looksUpATextOrFallsBack()
{
    QFETCH(QString, language);
    QFETCH(QString, key);
    QFETCH(QString, fallback);
    QFETCH(QString, table);
    setStringsTables(folder(), {language});
    QTEST(localizedText(key, fallback, table), "text");
    QTEST(localizedText(key, fallback, table), "text");
}

void TestStringsTables::leadsToNoOtherPlace()
{
    setStringsTables(folder(), {});
    for (const char *table : {"../../secret", "../nl/Localizable", "Help.json", "/etc/hosts", "a b"})
        QCOMPARE(localizedText(QStringLiteral("isSave"), QStringLiteral("default"), QString::fromLatin1(table)),
                 QStringLiteral("default"));
}

void TestStringsTables::survivesDamagedTables_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut short") << QByteArray("{\"isSave\": \"Sav");
    QTest::newRow("a list") << QByteArray("[\"isSave\"]");
    QTest::newRow("no text at all") << QByteArray("\0\1\2\xff\xfe", 5);
    QTest::newRow("deep") << QByteArray(100000, '[');
}

void TestStringsTables::survivesDamagedTables()
{
    QFETCH(QByteArray, content);
    write("texts/en/Damaged.json", content);
    setStringsTables(folder(), {});
    QCOMPARE(localizedText(QStringLiteral("isSave"), QStringLiteral("default"), QStringLiteral("Damaged")),
             QStringLiteral("default"));
}

QUORLIN_TEST(TestStringsTables)
#include "tst_strings_tables.moc"
