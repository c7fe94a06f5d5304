#include "app/setup/translations.h"

#include "app/script/ScriptEngine.h"
#include "platform/foundation/human_texts.h"
#include "tests/support/test_program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Three forms, of which 22 has the second and 12 the third; and a text that English has no translation of.
const char polish[] = R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>some-pane</name>
    <message numerus="yes">
        <source>%n files in %1</source>
        <translation>
            <numerusform>%n plik w %1</numerusform>
            <numerusform>%n pliki w %1</numerusform>
            <numerusform>%n plików w %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otwórz %1</translation>
    </message>
</context>
</TS>
)";

const char pane[] = R"(
export const open = qsTr("Open %1");
export const close = qsTr("Close");
export function files(number) { return qsTr("%n files in %1", "", number); }
)";

QString words(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

} // namespace

/** Translations as the toolkit, classes and scripts ask for them. */
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { qunsetenv("QUORLIN_INTERFACE"); }

    void findsTheFormForACount_data();
    void findsTheFormForACount();
    void countsHaveTheReadersSeparators();
    void translatesScriptsByTheNameOfTheirFile();
    void countsInEveryLanguage_data();
    void countsInEveryLanguage();
    void takesTheToolkitsWordsFromTheToolkit();
    void staysEnglishWithoutAGoodTable_data();
    void staysEnglishWithoutAGoodTable();
    void endsWithItsObject();

private:
    QString write(const QString &name, const QByteArray &content) const;
    QTemporaryDir m_folder;
};

QString TestTranslations::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

void TestTranslations::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("texts")));
    const QString source = write(QStringLiteral("pl.ts"), polish);
    QCOMPARE(QProcess::execute(QLibraryInfo::path(QLibraryInfo::BinariesPath) + QStringLiteral("/lrelease"),
                               {QStringLiteral("-silent"), source, QStringLiteral("-qm"),
                                m_folder.filePath(QStringLiteral("texts/quorlin_pl.qm"))}),
             0);
    QVERIFY(!write(QStringLiteral("some-pane.js"), pane).isEmpty());
}

void TestTranslations::findsTheFormForACount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    const auto row = [](int count, const char *text) {
        QTest::addRow("%d", count) << count << QString::fromUtf8(text);
    };
    row(0, "0 plików w %1");
    row(1, "1 plik w %1");
    row(2, "2 pliki w %1");
    row(4, "4 pliki w %1");
    row(5, "5 plików w %1");
    row(12, "12 plików w %1");
    row(22, "22 pliki w %1");
    row(112, "112 plików w %1");
}

void TestTranslations::findsTheFormForACount()
{
    QFETCH(int, count);
    qputenv("QUORLIN_INTERFACE", m_folder.path().toLocal8Bit());
    const app::Translations translations(QStringLiteral("pl"));
    QTEST(QCoreApplication::translate("some-pane", "%n files in %1", nullptr, count), "text");
    script::ScriptEngine scripts;
    const auto module = scripts.importFile(m_folder.filePath(QStringLiteral("some-pane.js")));
    QVERIFY2(module.has_value(), module ? "" : qPrintable(module.error().message));
    const auto said = scripts.call(module->property(QStringLiteral("files")), {QJSValue(count)});
    QVERIFY(said.has_value());
    QTEST(said->toString(), "text");
}

void TestTranslations::countsHaveTheReadersSeparators()
{
    qputenv("QUORLIN_INTERFACE", m_folder.path().toLocal8Bit());
    const app::Translations translations(QStringLiteral("pl"));
    const auto usual = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    for (const auto &[language, text] : {std::pair{QLocale::English, "1,234,567 plików w %1"},
                                         {QLocale::German, "1.234.567 plików w %1"},
                                         {QLocale::Dutch, "1.234.567 plików w %1"},
                                         {QLocale::French, "1\u202F234\u202F567 plików w %1"}}) {
        QLocale::setDefault(language);
        QCOMPARE(QCoreApplication::translate("some-pane", "%n files in %1", nullptr, 1234567), QString::fromUtf8(text));
    }
}

void TestTranslations::translatesScriptsByTheNameOfTheirFile()
{
    qputenv("QUORLIN_INTERFACE", m_folder.path().toLocal8Bit());
    const app::Translations translations(QStringLiteral("pl"));
    script::ScriptEngine scripts;
    const auto module = scripts.importFile(m_folder.filePath(QStringLiteral("some-pane.js")));
    QVERIFY(module.has_value());
    QCOMPARE(module->property(QStringLiteral("open")).toString(), QStringLiteral("Otwórz %1"));
    QCOMPARE(module->property(QStringLiteral("close")).toString(), QStringLiteral("Close"));
    QCOMPARE(words("other-pane", "Open %1"), QStringLiteral("Open %1"));
    // What Polish lacks has its English forms.
    QCOMPARE(platform::localByteCountText(1), QStringLiteral("1 byte"));
    QCOMPARE(platform::localByteCountText(2), QStringLiteral("2 bytes"));
}

void TestTranslations::countsInEveryLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *language, qint64 bytes, const char *text) {
        QTest::addRow("%s %lld", language, bytes) << QString::fromLatin1(language) << bytes << QString::fromUtf8(text);
    };
    row("en", 0, "0 bytes");
    row("en", 1, "1 byte");
    row("en", 999, "999 bytes");
    row("de", 0, "0 Byte");
    row("de", 1, "1 Byte");
    row("de", 34, "34 Byte");
    row("fr", 0, "0 octet"); // French counts nothing like one
    row("fr", 1, "1 octet");
    row("fr", 2, "2 octets");
    row("fr", 2400000, "2.4 Mo"); // the sign is that of the locale
    row("nl", 1, "1 byte");
    row("nl", 12000, "12 kB");
}

void TestTranslations::countsInEveryLanguage()
{
    QFETCH(QString, language);
    QFETCH(qint64, bytes);
    const app::Translations translations(language);
    QTEST(platform::localByteCountText(bytes), "text");
}

void TestTranslations::takesTheToolkitsWordsFromTheToolkit()
{
    {
        const app::Translations german(QStringLiteral("de"));
        QCOMPARE(words("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
        QCOMPARE(words("QShortcut", "Ctrl"), QStringLiteral("Strg"));
    }
    const app::Translations dutch(QStringLiteral("nl"));
    QCOMPARE(words("QPlatformTheme", "Cancel"), QStringLiteral("Annuleren"));
    // What the toolkit lacks, or says otherwise than our windows do.
    QCOMPARE(words("QPrintSettingsOutput", "Double Sided Printing"), QStringLiteral("Dubbelzijdig"));
    QCOMPARE(words("QPlatformTheme", "Save"), QStringLiteral("Bewaren"));
}

void TestTranslations::staysEnglishWithoutAGoodTable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no table") << QByteArray("{\"MainWindow\": {}}");
    QFile good(m_folder.filePath(QStringLiteral("texts/quorlin_pl.qm")));
    QVERIFY(good.open(QIODevice::ReadOnly));
    QTest::newRow("cut short") << good.read(good.size() / 2);
}

void TestTranslations::staysEnglishWithoutAGoodTable()
{
    QFETCH(QByteArray, content);
    QVERIFY(!write(QStringLiteral("texts/quorlin_xx.qm"), content).isEmpty());
    qputenv("QUORLIN_INTERFACE", m_folder.path().toLocal8Bit());
    for (const char *language : {"xx", "yy", ""}) {
        const app::Translations translations(QString::fromLatin1(language));
        QCOMPARE(words("some-pane", "Open %1"), QStringLiteral("Open %1"));
        QCOMPARE(platform::localByteCountText(1), QStringLiteral("1 byte"));
    }
}

void TestTranslations::endsWithItsObject()
{
    {
        const app::Translations french(QStringLiteral("fr"));
        QCOMPARE(words("platform", "MB"), QStringLiteral("Mo"));
    }
    QCOMPARE(words("platform", "MB"), QStringLiteral("MB"));
}

QUORLIN_TEST(TestTranslations)
#include "tst_translations.moc"
