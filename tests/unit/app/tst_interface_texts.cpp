#include "app/window/look/interface_texts.h"

#include "app/script/ScriptEngine.h"
#include "platform/foundation/human_texts.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

/** Translations as the toolkit asks for them, and as scripts do. */
class TestInterfaceTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translatesByContextAndText_data();
    void translatesByContextAndText();
    void readsNothingFromDamagedFiles_data();
    void readsNothingFromDamagedFiles();
    void translatesScriptsByTheNameOfTheirFile();
    void tellsSizesInTheReadersWords_data();
    void tellsSizesInTheReadersWords();

private:
    QString write(const char *name, const QByteArray &content);
    QTemporaryDir m_folder;
};

QString TestInterfaceTexts::write(const char *name, const QByteArray &content)
{
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

void TestInterfaceTexts::translatesByContextAndText_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("translation");
    QTest::newRow("found") << QByteArray("MainWindow") << QByteArray("Open…") << QStringLiteral("Öffnen …");
    QTest::newRow("another context") << QByteArray("window::Theme") << QByteArray("Open…") << QStringLiteral("Offen …");
    QTest::newRow("not translated yet") << QByteArray("MainWindow") << QByteArray("Close") << QString();
    QTest::newRow("unknown text") << QByteArray("MainWindow") << QByteArray("Quit") << QString();
    QTest::newRow("unknown context") << QByteArray("Main") << QByteArray("WindowOpen…") << QString();
}

void TestInterfaceTexts::translatesByContextAndText()
{
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, text);
    window::InterfaceTexts texts;
    QVERIFY(texts.read(write("de.json", "{\"MainWindow\": {\"Open…\": \"Öffnen …\", \"Close\": null}, "
                                        "\"window::Theme\": {\"Open…\": \"Offen …\"}}")));
    QTEST(texts.translate(context, text, nullptr, -1), "translation");
}

void TestInterfaceTexts::readsNothingFromDamagedFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut short") << QByteArray("{\"MainWindow\": {\"Open…\":");
    QTest::newRow("no contexts") << QByteArray("{\"Open…\": \"Öffnen …\"}");
    QTest::newRow("deep") << QByteArray(50000, '[');
}

void TestInterfaceTexts::readsNothingFromDamagedFiles()
{
    QFETCH(QByteArray, content);
    window::InterfaceTexts texts;
    QVERIFY(!texts.read(write("de.json", content)));
    QVERIFY(!texts.read(m_folder.filePath(QStringLiteral("missing.json"))));
    QVERIFY(texts.isEmpty());
}

void TestInterfaceTexts::translatesScriptsByTheNameOfTheirFile()
{
    window::InterfaceTexts texts;
    QVERIFY(texts.read(write("de.json", "{\"some-pane\": {\"Open %1\": \"%1 öffnen\"}}")));
    QVERIFY(QCoreApplication::installTranslator(&texts));
    script::ScriptEngine scripts;
    const auto module = scripts.importFile(
        write("some-pane.js", "export const translated = qsTr(\"Open %1\"); export const other = qsTr(\"Close\");"));
    QVERIFY(module.has_value());
    QCOMPARE(module->property(QStringLiteral("translated")).toString(), QStringLiteral("%1 öffnen"));
    QCOMPARE(module->property(QStringLiteral("other")).toString(), QStringLiteral("Close"));
    QCoreApplication::removeTranslator(&texts);
}

void TestInterfaceTexts::tellsSizesInTheReadersWords_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << qint64(0) << QStringLiteral("0 octets");
    QTest::newRow("bytes") << qint64(34) << QStringLiteral("34 octets");
    QTest::newRow("millions") << qint64(2400000) << QStringLiteral("2.4 Mo");
    QTest::newRow("not translated") << qint64(3000000000) << QStringLiteral("3 GB");
}

void TestInterfaceTexts::tellsSizesInTheReadersWords()
{
    QFETCH(qint64, bytes);
    window::InterfaceTexts texts;
    QVERIFY(texts.read(write("fr.json", "{\"platform\": {\"%1 bytes\": \"%1 octets\", \"MB\": \"Mo\"}}")));
    QVERIFY(QCoreApplication::installTranslator(&texts));
    QTEST(platform::localByteCountText(bytes), "text");
    QCoreApplication::removeTranslator(&texts);
}

QUORLIN_TEST(TestInterfaceTexts)
#include "tst_interface_texts.moc"
