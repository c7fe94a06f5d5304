#include "files/cToolBox.h"
#include "files/items/staging.h"
#include "platform/controls/panels.h"
#include "platform/desktop/user_defaults.h"
#include "platform/desktop/workspace.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QGuiApplication>
#include <QTest>

namespace {

/** Answers one panel and keeps what was asked. */
class OneAnswer : public platform::PanelProvider
{
public:
    OneAnswer(platform::PanelAnswer answer, platform::PanelRequest &asked) : m_answer(std::move(answer)), m_asked(asked)
    {
    }
    platform::PanelAnswer run(const platform::PanelRequest &request) override
    {
        m_asked = request;
        return m_answer;
    }

private:
    platform::PanelAnswer m_answer;
    platform::PanelRequest &m_asked;
};

} // namespace

/** Copies that are made around an action, listing folders, locations and the version word. */
class TestStaging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void storesBeside();
    void storesBesideUnderATakenName();
    void storesAtAFreePath();
    void storesInTheStagingFolder();
    void choosesAFolder();
    void listsAFolder();
    void makesOneSegment_data();
    void makesOneSegment();
    void tellsTheGeneration_data();
    void tellsTheGeneration();
    void opensLocations();
    void runsATool();

private:
    QString at(const char *name) const { return m_home->path(name); }
    bool makeProgram(const char *name) const
    {
        return m_home->write(name, "#!/bin/sh\nprintf '%s|' \"$@\" > \"$0.tmp\" && mv \"$0.tmp\" \"$0.said\"\n") &&
               m_home->allow(name, 0755);
    }

    std::unique_ptr<ScratchFolder> m_home;
    cToolBox m_box;
};

void TestStaging::init()
{
    m_home = std::make_unique<ScratchFolder>();
    qputenv("HOME", QFile::encodeName(m_home->path()));
    QVERIFY(m_home->write("in/a.jpg", "a"));
}

void TestStaging::storesBeside()
{
    QCOMPARE(m_box.hStoreFiles(at("in/a.jpg"), QStringLiteral("b.jpg")), QStringLiteral("successfull"));
    QCOMPARE(m_home->read("in/a.jpg") + m_home->read("in/b.jpg"), QByteArray("aa"));
    QCOMPARE(m_box.hStoreFiles(at("in/missing"), QStringLiteral("c.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_box.hStoreFiles(at("in/a.jpg"), QStringLiteral("no/c.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_home->names("in"), QStringLiteral("a.jpg b.jpg").split(u' '));
}

void TestStaging::storesBesideUnderATakenName()
{
    QVERIFY(m_home->write("in/b.jpg", "b"));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(m_box.hStoreFiles(at("in/a.jpg"), QStringLiteral("b.jpg")), QStringLiteral("Failed"));
        QCOMPARE(m_home->read("in/b.jpg") + m_home->read("in/b.jpg-temp"), QByteArray("ba"));
        QCOMPARE(m_home->names("in"), QStringLiteral("a.jpg b.jpg b.jpg-temp").split(u' '));
    }
    QCOMPARE(m_box.hStoreFiles(at("in/a.jpg"), QStringLiteral("a.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_home->read("in/a.jpg") + m_home->read("in/a.jpg-temp"), QByteArray("aa"));
}

void TestStaging::storesAtAFreePath()
{
    QCOMPARE(m_box.hStoreFiles2(at("in/a.jpg"), at("b.jpg")), QStringLiteral("successfull"));
    QVERIFY(m_home->write("c.jpg", "c"));
    QCOMPARE(m_box.hStoreFiles2(at("in/a.jpg"), at("c.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_box.hStoreFiles2(at("in/a.jpg"), at("no/c.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_home->read("b.jpg") + m_home->read("c.jpg"), QByteArray("ac"));
    QCOMPARE(m_home->names(), QStringLiteral("b.jpg c.jpg in").split(u' '));
}

void TestStaging::storesInTheStagingFolder()
{
    QCOMPARE(m_box.hGetHomeDir(), m_home->path());
    QCOMPARE(m_box.hGetTempDir(), at("Temp"));
    for (const char *name : {"b.jpg", ""})
        QCOMPARE(m_box.hStoreTempFile(at("in/a.jpg"), QString::fromUtf8(name)), QStringLiteral("Failed"));
    QVERIFY(!m_home->isThere("Temp") && QDir().mkdir(at("Temp")));
    QCOMPARE(m_box.hStoreTempFile(at("in/a.jpg"), QStringLiteral("b.jpg")), QStringLiteral("successfull"));
    QCOMPARE(m_box.hStoreTempFile(at("in/a.jpg"), QStringLiteral("b.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_home->read("Temp/b.jpg"), QByteArray("a"));
}

void TestStaging::choosesAFolder()
{
    platform::PanelRequest asked;
    asked.choosesSeveral = true;
    platform::setPanelProvider(std::make_unique<OneAnswer>(
        platform::PanelAnswer{true, {QStringLiteral("/a"), QStringLiteral("/b")}, {}}, asked));
    QCOMPARE(m_box.hChooseDirectory(), QStringLiteral("/b"));
    QCOMPARE(asked.kind, platform::PanelKind::Open);
    QVERIFY(!asked.choosesFiles && asked.choosesFolders && asked.createsFolders && !asked.choosesSeveral);
    platform::setPanelProvider(
        std::make_unique<OneAnswer>(platform::PanelAnswer{false, {QStringLiteral("/a")}, {}}, asked));
    QVERIFY(m_box.hChooseDirectory().isNull());
    platform::setPanelProvider(nullptr);
}

void TestStaging::listsAFolder()
{
    QVERIFY(m_home->write("in/b c.jpg", "") && m_home->write("in/.hidden", "") && m_home->write("in/sub/d.jpg", ""));
    QVERIFY(m_home->link("nowhere", "in/link") && QDir().mkdir(at("empty")));
    QVariantList found = m_box.hGetFilesInDir(at("in")).toList();
    QStringList texts;
    for (const QVariant &one : found)
        texts.append(QString::fromLatin1(one.toUrl().toEncoded()));
    texts.sort();
    const QString front = QStringLiteral("file://") + at("in/");
    QCOMPARE(texts, QStringList({front + QStringLiteral("a.jpg"), front + QStringLiteral("b%20c.jpg"),
                                 front + QStringLiteral("link"), front + QStringLiteral("sub")}));
    QCOMPARE(files::locationsIn(at("empty"))->size(), 0);
    for (const QString &folder : {at("missing"), at("in/a.jpg"), QString()})
        QVERIFY(m_box.hGetFilesInDir(folder).isNull());
}

void TestStaging::makesOneSegment_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("location");
    const auto row = [](const char *text, const char *location) {
        QTest::newRow(text) << QString::fromUtf8(text) << QByteArray(location);
    };
    row("a.jpg", "a.jpg");
    row("/a/b c.jpg", "%2Fa%2Fb%20c.jpg");
    row("caf\303\251", "caf%C3%A9");
    row("50%", "50%25");
    row("a?b#c", "a%3Fb%23c");
    row("http://host/a", "http:%2F%2Fhost%2Fa");
    row("!$&'()*+,-.;=_~", "!$&'()*+,-.;=_~");
    row("a@b\\c|d^e`f\"g<h>i{j}", "a%40b%5Cc%7Cd%5Ee%60f%22g%3Ch%3Ei%7Bj%7D");
    row("", "");
}

void TestStaging::makesOneSegment()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, location);
    QCOMPARE(m_box.hNSStrToUrl(text).toEncoded(), location);
}

void TestStaging::tellsTheGeneration_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QString>("word");
    for (const char *version : {"855", "855.11", "855.99", "0", "-1", "1e2"})
        QTest::newRow(version) << QByteArray(version) << "108";
    for (const char *version : {"856", "856.0", "1151.16", "1e9", "", "later"})
        QTest::newRow(version) << QByteArray(version) << "109+";
}

void TestStaging::tellsTheGeneration()
{
    QFETCH(QByteArray, version);
    QFETCH(QString, word);
    const QString key = QStringLiteral("FrameworkVersion");
    platform::removeUserDefault(key);
    qputenv("QUORLIN_FRAMEWORK_VERSION", version);
    QCOMPARE(m_box.hGetMacOSVersion(), word);
    qunsetenv("QUORLIN_FRAMEWORK_VERSION");
    platform::setUserDefault(key, QString::fromLatin1(version));
    QCOMPARE(m_box.hGetMacOSVersion(), word);
    platform::setUserDefault(key, 800);
    qputenv("QUORLIN_FRAMEWORK_VERSION", "900");
    QCOMPARE(m_box.hGetMacOSVersion(), QStringLiteral("109+"));
    qunsetenv("QUORLIN_FRAMEWORK_VERSION");
    QCOMPARE(m_box.hGetMacOSVersion(), QStringLiteral("108"));
    platform::removeUserDefault(key);
}

void TestStaging::opensLocations()
{
    QVERIFY(makeProgram("bin/xdg-open"));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(at("bin")) + ':' + before);
    for (const char *text : {"", "/a/b", "http://ho st/", "not a location"})
        m_box.hShowURL(QString::fromUtf8(text));
    m_box.hShowURL(QStringLiteral("https://host/a%20b?c=d"));
    qputenv("PATH", before);
    QTRY_VERIFY(m_home->isThere("bin/xdg-open.said"));
    QCOMPARE(m_home->read("bin/xdg-open.said"), QByteArray("https://host/a%20b?c=d|"));
}

void TestStaging::runsATool()
{
    QVERIFY(makeProgram("tool"));
    platform::runTool(at("tool"), {QStringLiteral("a b"), QStringLiteral("--out")});
    QCOMPARE(m_home->read("tool.said"), QByteArray("a b|--out|"));
    platform::runTool(at("missing"), {});
    if (QFileInfo::exists(QStringLiteral("/usr/bin/sips")))
        QSKIP("the image tool is here");
    m_box.hCallShellScript(at("in/a.jpg"), at("a.pdf"));
    QVERIFY(!m_home->isThere("a.pdf"));
}

QUORLIN_GUI_TEST(TestStaging)
#include "tst_staging.moc"
