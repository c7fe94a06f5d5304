#include "app/services/cSheetControl.h"
#include "app/setup/support_folder.h"
#include "platform/controls/controls.h"
#include "platform/controls/panels.h"
#include "platform/controls/stand_ins.h"
#include "platform/desktop/user_defaults.h"
#include "presets/Ztbookmarks.h"
#include "tests/support/own_settings.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QQueue>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace platform;

namespace {

class QueuedPanels : public PanelProvider
{
public:
    PanelAnswer run(const PanelRequest &request) override
    {
        shown.append(request);
        return answers.isEmpty() ? PanelAnswer() : answers.dequeue();
    }

    QList<PanelRequest> shown;
    QQueue<PanelAnswer> answers;
};

const QString rootKey = QStringLiteral("SupportFilesDestination");
const QString patternsKey = QStringLiteral("PatternsDestination");
const QString watermarksKey = QStringLiteral("WatermarksDestination");
const QString goneText = QStringLiteral("Oeps! Your previous defined folder has gone!?\rSelect a new location please.");

enum class Flow { Choose, Set };

void setOutlet(QObject &service, const char *name, QObject *control)
{
    QVERIFY(service.setProperty(name, QVariant::fromValue(control)));
}

} // namespace

Q_DECLARE_METATYPE(Flow)

/** How the folder for patterns and watermarks is chosen, set up, remembered and missed. */
class TestSupportFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { setPanelProvider({}); }
    void asksForOneFolder_data() { flows(); }
    void asksForOneFolder();
    void writesNothingWhenCancelled_data() { flows(); }
    void writesNothingWhenCancelled();
    void setsUpAndRemembersTheFolder_data() { flows(); }
    void setsUpAndRemembersTheFolder();
    void replacesOldPatternsOnlyWhenChosen_data() { flows(); }
    void replacesOldPatternsOnlyWhenChosen();
    void putsReplacedPatternsOfTheUserIntoTheTrash();
    void keepsOldPatternsWithoutAnyToCopy_data() { flows(); }
    void keepsOldPatternsWithoutAnyToCopy();
    void takesTheLastOfSeveralPaths();
    void putsTextDirectlyBehindThePath();
    void remembersPathsThatCouldNotBeMade_data() { flows(); }
    void remembersPathsThatCouldNotBeMade();
    void keepsWatermarksThatAreThere();
    void worksWithoutAField();
    void showsTheRememberedFolder();
    void leavesTheFieldAloneWithoutAFolder();
    void saysThatTheFolderHasGone_data();
    void saysThatTheFolderHasGone();
    void opensTheSheetWithoutControls();

private:
    void flows();
    void run(Flow flow);
    void answer(const QStringList &paths) { m_panels->answers.enqueue({true, paths, {}}); }
    QString path(const char *name) const { return m_home->filePath(QString::fromLatin1(name)); }
    void write(const QString &path, const QByteArray &bytes) const;
    QByteArray read(const QString &path) const;
    QString fieldText() const { return textOf(&m_field); }

    std::unique_ptr<QTemporaryDir> m_home;
    QueuedPanels *m_panels = nullptr;
    TextField m_field;
    Window m_main;
    Window m_preferences;
    std::unique_ptr<cSheetControl> m_sheets;
};

void TestSupportFolder::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    keepSettingsIn(path("config"));
    qputenv("XDG_DATA_HOME", QFile::encodeName(path("data")));
    qputenv("QUORLIN_INTERFACE", QFile::encodeName(path("interface")));
    QVERIFY(QDir().mkpath(path("interface/patterns/inner")) && QDir().mkpath(path("picked")));
    write(path("interface/patterns/a.png"), "new a");
    write(path("interface/patterns/inner/b.png"), "new b");
    auto panels = std::make_unique<QueuedPanels>();
    m_panels = panels.get();
    setPanelProvider(std::move(panels));
    setTextOf(&m_field, QStringLiteral("as it was"));
    m_main.setProperty("sheet", QVariant::fromValue<QObject *>(nullptr));
    m_sheets = std::make_unique<cSheetControl>();
    setOutlet(*m_sheets, "wwMainWindow", &m_main);
    setOutlet(*m_sheets, "wwPreferencesWindow", &m_preferences);
    setOutlet(*m_sheets, "tfLibraryFilePath", &m_field);
}

void TestSupportFolder::write(const QString &path, const QByteArray &bytes) const
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray TestSupportFolder::read(const QString &path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

void TestSupportFolder::flows()
{
    QTest::addColumn<Flow>("flow");
    QTest::newRow("chosen on the sheet") << Flow::Choose;
    QTest::newRow("at the first start") << Flow::Set;
}

void TestSupportFolder::run(Flow flow)
{
    if (flow == Flow::Choose)
        m_sheets->chooseLibraryDestination({});
    else
        m_sheets->setLibraryDestination();
}

void TestSupportFolder::asksForOneFolder()
{
    QFETCH(Flow, flow);
    run(flow);
    QCOMPARE(m_panels->shown.size(), 1);
    const PanelRequest asked = m_panels->shown.first();
    QCOMPARE(asked.kind, PanelKind::Open);
    QVERIFY(!asked.choosesFiles && asked.choosesFolders && !asked.choosesSeveral && asked.createsFolders);
    QVERIFY(!asked.types);
    QCOMPARE(asked.message,
             flow == Flow::Choose ? QString() : QStringLiteral("*** FIRST: Choose a root support folder please: ***"));
}

void TestSupportFolder::writesNothingWhenCancelled()
{
    QFETCH(Flow, flow);
    run(flow);
    for (const QString &key : {rootKey, patternsKey, watermarksKey})
        QVERIFY(!userDefault(key).isValid());
    QCOMPARE(fieldText(), QStringLiteral("as it was"));
    QVERIFY(QDir(path("picked")).isEmpty());
}

void TestSupportFolder::setsUpAndRemembersTheFolder()
{
    QFETCH(Flow, flow);
    const QString picked = path("picked");
    answer({picked});
    run(flow);
    QCOMPARE(fieldText(), picked);
    QCOMPARE(userDefault(patternsKey).toString(), picked + QStringLiteral("/Brelmark_SupportFiles/Patterns"));
    QCOMPARE(userDefault(watermarksKey).toString(), picked + QStringLiteral("/Brelmark_SupportFiles/Watermarks"));
    QCOMPARE(userDefault(rootKey).typeId(), int(QMetaType::QByteArray));
    QCOMPARE(Ztbookmarks().urlForBookmark(userDefault(rootKey).toByteArray()), QUrl::fromLocalFile(picked));
    QCOMPARE(read(path("picked/Brelmark_SupportFiles/Patterns/a.png")), QByteArray("new a"));
    QCOMPARE(read(path("picked/Brelmark_SupportFiles/Patterns/inner/b.png")), QByteArray("new b"));
    QVERIFY(QDir(path("picked/Brelmark_SupportFiles/Watermarks")).isEmpty());
    QCOMPARE(
        QDir(path("picked/Brelmark_SupportFiles")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringLiteral("Patterns Watermarks").split(u' '));
    QCOMPARE(read(path("interface/patterns/a.png")), QByteArray("new a"));
}

void TestSupportFolder::replacesOldPatternsOnlyWhenChosen()
{
    QFETCH(Flow, flow);
    answer({path("picked")});
    run(Flow::Set);
    const QString patterns = userDefault(patternsKey).toString();
    write(patterns + QStringLiteral("/a.png"), "old a");
    write(patterns + QStringLiteral("/mine.png"), "mine");
    answer({path("picked")});
    run(flow);
    const bool isReplaced = flow == Flow::Choose;
    QCOMPARE(read(patterns + QStringLiteral("/a.png")), QByteArray(isReplaced ? "new a" : "old a"));
    QCOMPARE(read(patterns + QStringLiteral("/mine.png")), QByteArray(isReplaced ? "none" : "mine"));
}

void TestSupportFolder::putsReplacedPatternsOfTheUserIntoTheTrash()
{
    const auto trashed = [this] {
        return QDir(path("data/Trash/files")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    };
    answer({path("picked")});
    run(Flow::Set);
    answer({path("picked")});
    run(Flow::Choose);
    QVERIFY2(trashed().isEmpty(), "nothing of the user's was there");
    write(userDefault(patternsKey).toString() + QStringLiteral("/mine.png"), "mine");
    answer({path("picked")});
    run(Flow::Choose);
    QCOMPARE(trashed().size(), 1);
    QCOMPARE(read(path("data/Trash/files/") + trashed().first() + QStringLiteral("/mine.png")), QByteArray("mine"));
}

void TestSupportFolder::keepsOldPatternsWithoutAnyToCopy()
{
    QFETCH(Flow, flow);
    answer({path("picked")});
    run(Flow::Set);
    const QString mine = userDefault(patternsKey).toString() + QStringLiteral("/mine.png");
    write(mine, "mine");
    QVERIFY(QDir(path("interface/patterns")).removeRecursively());
    answer({path("picked")});
    run(flow);
    QCOMPARE(read(mine), QByteArray("mine"));
    write(path("interface/patterns"), "a file, no folder");
    answer({path("picked")});
    run(flow);
    QCOMPARE(read(mine), QByteArray("mine"));
}

void TestSupportFolder::takesTheLastOfSeveralPaths()
{
    answer({path("config"), path("picked")});
    run(Flow::Choose);
    QCOMPARE(fieldText(), path("picked"));
    answer({});
    run(Flow::Choose);
    QCOMPARE(fieldText(), path("picked"));
}

void TestSupportFolder::putsTextDirectlyBehindThePath()
{
    answer({path("picked/")});
    run(Flow::Choose);
    QCOMPARE(userDefault(patternsKey).toString(), path("picked/") + QStringLiteral("/Brelmark_SupportFiles/Patterns"));
    QCOMPARE(read(path("picked/Brelmark_SupportFiles/Patterns/a.png")), QByteArray("new a"));
}

void TestSupportFolder::remembersPathsThatCouldNotBeMade()
{
    QFETCH(Flow, flow);
    answer({path("picked")});
    run(Flow::Set);
    write(path("file"), "f");
    answer({path("file")}); // a file: nothing can be made below it
    run(flow);
    QCOMPARE(userDefault(patternsKey).toString(), path("file/Brelmark_SupportFiles/Patterns"));
    QCOMPARE(userDefault(watermarksKey).toString(), path("file/Brelmark_SupportFiles/Watermarks"));
    QVERIFY(userDefault(rootKey).isValid());
    answer({path("no")}); // not there: no bookmark, which takes the old one away
    QVERIFY(QFile::setPermissions(path("file"), QFile::ReadOwner));
    run(flow);
    QCOMPARE(userDefault(patternsKey).toString(), path("no/Brelmark_SupportFiles/Patterns"));
    QVERIFY(!userDefault(rootKey).isValid());
}

void TestSupportFolder::keepsWatermarksThatAreThere()
{
    QVERIFY(QDir().mkpath(path("picked/Brelmark_SupportFiles/Watermarks")));
    const QString mine = path("picked/Brelmark_SupportFiles/Watermarks/mine.png");
    write(mine, "mine");
    answer({path("picked")});
    run(Flow::Choose);
    QCOMPARE(read(mine), QByteArray("mine"));
}

void TestSupportFolder::worksWithoutAField()
{
    setOutlet(*m_sheets, "tfLibraryFilePath", nullptr);
    answer({path("picked")});
    run(Flow::Set);
    QVERIFY(userDefault(rootKey).isValid());
    m_sheets->hCallPreferencesWw({});
    QCOMPARE(m_main.property("sheet").value<QObject *>(), &m_preferences);
}

void TestSupportFolder::showsTheRememberedFolder()
{
    answer({path("picked")});
    run(Flow::Choose);
    setTextOf(&m_field, QString());
    m_sheets->hCallPreferencesWw({});
    QCOMPARE(fieldText(), path("picked"));
    QCOMPARE(m_main.property("sheet").value<QObject *>(), &m_preferences);
}

void TestSupportFolder::leavesTheFieldAloneWithoutAFolder()
{
    m_sheets->hCallPreferencesWw({});
    QCOMPARE(fieldText(), QStringLiteral("as it was"));
    QCOMPARE(m_main.property("sheet").value<QObject *>(), &m_preferences);
}

void TestSupportFolder::saysThatTheFolderHasGone_data()
{
    QTest::addColumn<QString>("fate");
    for (const char *fate : {"removed", "moved", "made again", "no bookmark", "other data"})
        QTest::newRow(fate) << QString::fromLatin1(fate);
}

void TestSupportFolder::saysThatTheFolderHasGone()
{
    QFETCH(QString, fate);
    answer({path("picked")});
    run(Flow::Choose);
    const QString patterns = userDefault(patternsKey).toString();
    if (fate == QStringLiteral("moved"))
        QVERIFY(QDir().rename(path("picked"), path("elsewhere")));
    else if (fate == QStringLiteral("no bookmark"))
        setUserDefault(rootKey, path("picked"));
    else if (fate == QStringLiteral("other data"))
        setUserDefault(rootKey, QByteArray("bookmark"));
    else
        QVERIFY(QDir(path("picked")).removeRecursively());
    if (fate == QStringLiteral("made again"))
        QVERIFY(QDir().mkpath(path("picked")));
    const QVariant bookmark = userDefault(rootKey);
    m_sheets->hCallPreferencesWw({});
    QCOMPARE(fieldText(), goneText);
    QCOMPARE(m_main.property("sheet").value<QObject *>(), &m_preferences);
    QCOMPARE(userDefault(rootKey), bookmark);
    QCOMPARE(userDefault(patternsKey).toString(), patterns);
}

void TestSupportFolder::opensTheSheetWithoutControls()
{
    cSheetControl sheets;
    sheets.hCallPreferencesWw({});
    QObject plain;
    setOutlet(sheets, "wwMainWindow", &plain);
    setOutlet(sheets, "wwPreferencesWindow", &m_preferences);
    sheets.hCallPreferencesWw({});
    QVERIFY(!plain.property("sheet").isValid());
}

QUORLIN_TEST(TestSupportFolder)
#include "tst_support_folder.moc"
