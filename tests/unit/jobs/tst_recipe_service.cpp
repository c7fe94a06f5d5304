#include "jobs/services/recipe_service.h"
#include "tests/support/test_program.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

} // namespace

/** Recipes as scripts ask about them. */
class TestRecipeService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void plansFromTheHeader();
    void refusesMoreThanOneOutput();
    void makesWhatIsPlanned();
    void leavesWhatStandsThereWhereNothingCanBeMade();
    void keepsTheDateOfTheSource();
    void givesTheRecipeOfSettings();
    void saysWhereARecipeIsWrong_data();
    void saysWhereARecipeIsWrong();
    void looksAtFilesWhenAskedTo();
    void tellsWhatLiesOutsideOfItsFolder();
    void followsLinksOutOfItsFolder();
    void tellsWhichFoldersLeadAway_data();
    void tellsWhichFoldersLeadAway();
    void opensNoFileToTellItsReach();
    void knowsTheSuppliedRecipes();
    void takesNoPages();

private:
    QString at(const char *name) const { return m_folder->filePath(key(name)); }
    void write(const char *name, const QByteArray &content) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    jobs::RecipeService m_service;
    QVariantMap m_half = {
        {key("quorlin"), 1},
        {key("operations"), QVariantList{QVariantMap{{key("do"), key("resize")}, {key("percent"), 50}}}},
        {key("outputs"), QVariantList{QVariantMap{{key("type"), key("jpeg")}}}}};
};

void TestRecipeService::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(at("a.png")));
}

void TestRecipeService::plansFromTheHeader()
{
    const QVariantMap plan = m_service.planOutput(at("a.png"), m_half);
    QCOMPARE(plan.value(key("problem")).toString(), QString());
    QCOMPARE(plan.value(key("type")).toString(), key("jpeg"));
    QCOMPARE(plan.value(key("extension")).toString(), key(".jpg"));
    QCOMPARE(QSize(plan.value(key("width")).toInt(), plan.value(key("height")).toInt()), QSize(20, 10));
    QVERIFY(!plan.value(key("lossless")).toBool());
    QVERIFY(!m_service.planOutput(at("none.png"), m_half).value(key("problem")).toString().isEmpty());
}

void TestRecipeService::refusesMoreThanOneOutput()
{
    QVariantMap two = m_half;
    two.insert(key("outputs"), QVariantList{QVariantMap(), QVariantMap()});
    QCOMPARE(m_service.planOutput(at("a.png"), two).value(key("problem")).toString(), key("outputs: exactly one"));
    QCOMPARE(m_service.make(at("a.png"), two, at("b.jpg")).value(key("outcome")).toString(), key("Failed"));
    QVERIFY(!QFile::exists(at("b.jpg")));
}

void TestRecipeService::makesWhatIsPlanned()
{
    const QVariantMap made = m_service.make(at("a.png"), m_half, at("b.jpg"));
    QCOMPARE(made.value(key("outcome")).toString(), key("OK"));
    QCOMPARE(made.value(key("path")).toString(), at("b.jpg"));
    QCOMPARE(QImage(at("b.jpg")).size(), QSize(20, 10));
    QCOMPARE(QImage(at("a.png")).size(), QSize(40, 20));
}

void TestRecipeService::leavesWhatStandsThereWhereNothingCanBeMade()
{
    write("b.jpg", "kept");
    write("broken.png", "no picture");
    const QVariantMap made = m_service.make(at("broken.png"), m_half, at("b.jpg"));
    QCOMPARE(made.value(key("outcome")).toString(), key("Failed"));
    QVERIFY(!made.value(key("reason")).toString().isEmpty());
    QCOMPARE(made.value(key("path")).toString(), QString());
    QFile kept(at("b.jpg"));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), QByteArray("kept"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             (QStringList{key("a.png"), key("b.jpg"), key("broken.png")}));
}

void TestRecipeService::keepsTheDateOfTheSource()
{
    const QDateTime date(QDate(2020, 2, 3), QTime(4, 5, 6));
    QFile source(at("a.png"));
    QVERIFY(source.open(QIODevice::ReadWrite) && source.setFileTime(date, QFileDevice::FileModificationTime));
    source.close();
    QVariantMap dated = m_half;
    dated.insert(key("outputs"), QVariantList{QVariantMap{{key("type"), key("jpeg")}, {key("dates"), key("keep")}}});
    QCOMPARE(m_service.make(at("a.png"), dated, at("b.jpg")).value(key("outcome")).toString(), key("OK"));
    QCOMPARE(QFileInfo(at("b.jpg")).lastModified(), date);
}

void TestRecipeService::givesTheRecipeOfSettings()
{
    const QVariantMap recipe =
        m_service.recipeFor(key("Rotate and Flip"), {{key("angle"), 90}, {key("flipHorizontal"), true}});
    const QVariantList operations = recipe.value(key("operations")).toList();
    QCOMPARE(operations.size(), 2);
    QCOMPARE(operations[0].toMap(), (QVariantMap{{key("do"), key("flip")}, {key("direction"), key("horizontal")}}));
    QCOMPARE(operations[1].toMap().value(key("degrees")).toDouble(), -90.0);
    QVERIFY(m_service.recipeFor(key("Rename"), {}).isEmpty());
}

void TestRecipeService::saysWhereARecipeIsWrong_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("beginning");
    QTest::newRow("right") << R"({"quorlin": 1, "outputs": [{}]})" << QString();
    QTest::newRow("no outputs") << R"({"quorlin": 1})"
                                << "outputs: ";
    QTest::newRow("a key") << R"({"quorlin": 1, "outputs": [{"kwality": 3}]})"
                           << "outputs[0].kwality: ";
    QTest::newRow("a value") << R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 0}], "outputs": [{}]})"
                             << "operations[0].longest: ";
    QTest::newRow("a font")
        << R"({"quorlin": 1, "operations": [{"do": "watermark", "text": "x", "font": "No Such Font"}], "outputs": [{}]})"
        << "operations[0].font: ";
}

void TestRecipeService::saysWhereARecipeIsWrong()
{
    QFETCH(QString, text);
    QFETCH(QString, beginning);
    const QString problem = m_service.problemOf(text, m_folder->path(), true);
    QVERIFY2(beginning.isEmpty() ? problem.isEmpty() : problem.startsWith(beginning), qPrintable(problem));
    QCOMPARE(m_service.problemOf(text, m_folder->path(), false), problem);
}

void TestRecipeService::looksAtFilesWhenAskedTo()
{
    const QString text =
        key(R"({"quorlin": 1, "operations": [{"do": "watermark", "picture": "logo.png"}], "outputs": [{}]})");
    QCOMPARE(m_service.problemOf(text, m_folder->path(), false), QString());
    QVERIFY(m_service.problemOf(text, m_folder->path(), true).startsWith(key("operations[0].picture: ")));
    QVERIFY(QFile::copy(at("a.png"), at("logo.png")));
    QCOMPARE(m_service.problemOf(text, m_folder->path(), true), QString());
}

void TestRecipeService::tellsWhatLiesOutsideOfItsFolder()
{
    const QString text = key(R"({"quorlin": 1, "operations": [
        {"do": "watermark", "picture": "logo.png"}, {"do": "watermark", "picture": "deep/logo.png"},
        {"do": "watermark", "picture": "../logo.png"}, {"do": "background", "pattern": "/p/dots.png"}],
        "outputs": [{"profile": "/p/a.icc", "operations": [{"do": "profile", "to": "b.icc"}]}, {"profile": "sRGB"}]})");
    const QVariantMap reach = m_service.reachOf(text, key("/recipes/mine"));
    QStringList reads = reach.value(key("reads")).toStringList();
    reads.sort();
    QCOMPARE(reads.size(), 3);
    QCOMPARE(QDir::cleanPath(reads.last()), key("/recipes/logo.png"));
    QCOMPARE(reads.mid(0, 2), (QStringList{key("/p/a.icc"), key("/p/dots.png")}));
    QVERIFY(reach.value(key("writes")).toStringList().isEmpty());
}

void TestRecipeService::followsLinksOutOfItsFolder()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QFile::copy(at("a.png"), elsewhere.filePath(key("logo.png"))));
    QVERIFY(QFile::link(elsewhere.filePath(key("logo.png")), at("link.png")));
    const QString text =
        key(R"({"quorlin": 1, "operations": [{"do": "watermark", "picture": "%1"}], "outputs": [{}]})");
    const auto readsOf = [&](const char *name) {
        return m_service.reachOf(text.arg(key(name)), m_folder->path()).value(key("reads")).toStringList();
    };
    QCOMPARE(readsOf("a.png"), QStringList());
    QCOMPARE(readsOf("link.png"), QStringList{at("link.png")});
}

void TestRecipeService::tellsWhichFoldersLeadAway_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("leads");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("below") << "Web/{taken:yyyy}" << false;
    QTest::newRow("dots in a name") << "a..b/..c" << false;
    QTest::newRow("absolute") << "/srv/web" << true;
    QTest::newRow("upwards") << "../Web" << true;
    QTest::newRow("upwards inside") << "Web/../../Up" << true;
}

void TestRecipeService::tellsWhichFoldersLeadAway()
{
    QFETCH(QString, folder);
    QFETCH(bool, leads);
    const QString text = key(R"({"quorlin": 1, "outputs": [{"folder": "%1"}, {"folder": "%1"}]})").arg(folder);
    QCOMPARE(m_service.reachOf(text, m_folder->path()).value(key("writes")).toStringList(),
             leads ? QStringList{folder} : QStringList());
}

void TestRecipeService::opensNoFileToTellItsReach()
{
    const QString text =
        key(R"({"quorlin": 1, "operations": [{"do": "watermark", "picture": "/none/logo.png"}], "outputs": [{}]})");
    QCOMPARE(m_service.reachOf(text, m_folder->path()).value(key("reads")).toStringList(),
             QStringList{key("/none/logo.png")});
    const QVariantMap none = m_service.reachOf(key("{"), m_folder->path());
    QVERIFY(none.value(key("reads")).toStringList().isEmpty() && none.value(key("writes")).toStringList().isEmpty());
}

void TestRecipeService::knowsTheSuppliedRecipes()
{
    const QVariantList all = m_service.supplied();
    QCOMPARE(all.size(), 6);
    for (const QVariant &each : all) {
        const QFileInfo file(each.toMap().value(key("path")).toString());
        QFile open(file.filePath());
        QVERIFY2(open.open(QIODevice::ReadOnly), qPrintable(file.filePath()));
        const QString text = QString::fromUtf8(open.readAll());
        QCOMPARE(m_service.problemOf(text, file.path(), true), QString());
        QVERIFY(m_service.reachOf(text, file.path()).value(key("writes")).toStringList().isEmpty());
    }
}

void TestRecipeService::takesNoPages()
{
    const QStringList taken = m_service.takes();
    for (const char *extension : {"jpg", "heic", "webp", "psd", "dng"})
        QVERIFY2(taken.contains(key(extension)), extension);
    for (const char *extension : {"pdf", "svg", "txt"})
        QVERIFY2(!taken.contains(key(extension)), extension);
}

QUORLIN_TEST(TestRecipeService)

#include "tst_recipe_service.moc"
