#include "platform/desktop/settings_text.h"
#include "platform/desktop/user_defaults.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

/** The user defaults in scripts: each value comes back with its type, from the settings file too. */
class TestSeamDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheTypeOfAValue_data();
    void keepsTheTypeOfAValue();
    void keepsWhatIsNestedDeeply();
    void readsWhatEarlierVersionsNested();
    void holdsWhatCannotBeWritten();
    void isTheStoreThatServicesUse();
    void removesAValue();
    void refusesWhatCannotBeKept_data();
    void refusesWhatCannotBeKept();

private:
    ScriptRun m_run;
};

void TestSeamDefaults::keepsTheTypeOfAValue_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value : {"3", "\"3\"", "0.1", "-2147483649", "1e+300", "true", "false", "\"true\"", "\"\"",
                              "\"@number:3\"", "\"@Invalid()\"", "\"a, b\"", "\"línea\\n\\\"x\\\" % é😀\"", "[]",
                              "[\"one\"]", "[1,\"1\",[true,\"\"],{\"a\":\"@x\"}]", "{\"b\":[1.5],\"c\":{}}"})
        QTest::newRow(value) << QString::fromUtf8(value);
}

void TestSeamDefaults::keepsTheTypeOfAValue()
{
    QFETCH(QString, value);
    QVERIFY2(m_run.run(QStringLiteral("defaults.set('key', ") + value + QStringLiteral(");")), qPrintable(m_run.error));
    QCOMPARE(m_run.valueOf(QStringLiteral("defaults.get('key')")), value);
}

/** Its text grows with the depth, and does not double with each level. */
void TestSeamDefaults::keepsWhatIsNestedDeeply()
{
    QVERIFY2(
        m_run.run(QStringLiteral("let deep = ['\"']; for (let i = 0; i < 60; i += 1) deep = i % 2 ? [deep] : {a: deep};"
                                 "defaults.set('deep', deep);"
                                 "report(JSON.stringify(defaults.get('deep')) === JSON.stringify(deep));")),
        qPrintable(m_run.error));
    QCOMPARE(m_run.reports, QStringList{QStringLiteral("true")});
    const QString kept = platform::settingToText(platform::userDefault(QStringLiteral("deep"))).toString();
    QVERIFY2(kept.size() < 500, qPrintable(QString::number(kept.size())));
}

void TestSeamDefaults::readsWhatEarlierVersionsNested()
{
    const QVariant read =
        platform::settingFromText(QStringLiteral(R"(@list:["@list:[\"@number:1\",\"@text:@x\"]","a"])"));
    QCOMPARE(read, QVariant(QVariantList{QVariantList{1, QStringLiteral("@x")}, QStringLiteral("a")}));
}

/** The settings folder is a file here, so that nothing can be written by any user. */
void TestSeamDefaults::holdsWhatCannotBeWritten()
{
    QTemporaryDir folder;
    QFile(folder.filePath(QStringLiteral("Quorlin"))).open(QIODevice::WriteOnly);
    int said = 0;
    platform::tellOfUnkeptUserDefaults([&said] { ++said; });
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QVERIFY2(m_run.run(QStringLiteral("defaults.set('held', [1, 'a']); report(defaults.get('held'));"
                                      "defaults.set('held', 'b'); report(defaults.get('held'));"
                                      "defaults.remove('held'); report(defaults.get('held'));"
                                      "defaults.set('held', 2);")),
             qPrintable(m_run.error));
    QCOMPARE(m_run.reports,
             QStringList({QStringLiteral("[1,\"a\"]"), QStringLiteral("\"b\""), QStringLiteral("null")}));
    QVERIFY(!platform::areUserDefaultsKept());
    QCOMPARE(said, 1);
    QVERIFY(QFile::remove(folder.filePath(QStringLiteral("Quorlin"))));
    QVERIFY2(m_run.run(QStringLiteral("defaults.set('held', 3);")), qPrintable(m_run.error));
    QVERIFY(platform::areUserDefaultsKept());
    QCOMPARE(m_run.valueOf(QStringLiteral("defaults.get('held')")), QStringLiteral("3"));
    platform::tellOfUnkeptUserDefaults({});
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qEnvironmentVariable("XDG_CONFIG_HOME"));
}

void TestSeamDefaults::isTheStoreThatServicesUse()
{
    platform::setUserDefault(QStringLiteral("bookmark"), QByteArray::fromHex("00ff1020"));
    QCOMPARE(m_run.valueOf(QStringLiteral("Array.from(new Uint8Array(defaults.get('bookmark')))")),
             QStringLiteral("[0,255,16,32]"));
    QVERIFY2(m_run.run(QStringLiteral("defaults.set('empty', new ArrayBuffer(0)); defaults.set('when', new Date(1500));"
                                      "defaults.set('inside', [new Uint8Array([7]).buffer, new Date(2500)]);")),
             qPrintable(m_run.error));
    QCOMPARE(platform::userDefault(QStringLiteral("empty")), QVariant(QByteArray("")));
    QCOMPARE(platform::userDefault(QStringLiteral("when")).toDateTime().toMSecsSinceEpoch(), 1500);
    const QVariantList inside = platform::userDefault(QStringLiteral("inside")).toList();
    QCOMPARE(inside.size(), 2);
    QCOMPARE(inside.at(0).toByteArray(), QByteArray("\x07"));
    QCOMPARE(inside.at(1).toDateTime().toMSecsSinceEpoch(), 2500);
}

void TestSeamDefaults::removesAValue()
{
    QVERIFY2(m_run.run(QStringLiteral("defaults.set('gone', 1); report(defaults.get('gone'));"
                                      "defaults.remove('gone'); defaults.remove('never there');"
                                      "report(defaults.get('gone'));")),
             qPrintable(m_run.error));
    QCOMPARE(m_run.reports, (QStringList{QStringLiteral("1"), QStringLiteral("null")}));
}

void TestSeamDefaults::refusesWhatCannotBeKept_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"defaults.get()", "TypeError: get takes 1 argument but received 0"},
             {"defaults.get(3)", "TypeError: Expected text for key but received 3"},
             {"defaults.get('')", "TypeError: Expected text for key but received \"\""},
             {"defaults.set('a')", "TypeError: set takes 2 arguments but received 1"},
             {"defaults.remove('a', 'b')", "TypeError: remove takes 1 argument but received 2"},
             {"defaults.set('a', null)", "TypeError: Expected text, a number, true or false, a date, data, a list or a "
                                         "dictionary for value but received null"},
             {"defaults.set('a', echo.itself)",
              "TypeError: Expected text, a number, true or false, a date, data, a list, a dictionary or null for value "
              "but received a function"},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

void TestSeamDefaults::refusesWhatCannotBeKept()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    QCOMPARE(m_run.valueOf(expression), outcome);
}

QUORLIN_TEST(TestSeamDefaults)
#include "tst_seam_defaults.moc"
