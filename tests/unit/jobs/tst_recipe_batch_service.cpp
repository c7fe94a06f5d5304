#include "jobs/services/recipe_batch.h"
#include "platform/disk/item_identity.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

/** One value of each output. */
QStringList valuesOf(const QVariantList &outputs, const char *name)
{
    QStringList values;
    for (const QVariant &output : outputs)
        values.append(output.toMap().value(key(name)).toString());
    return values;
}

/** What a worker makes of a picture; nothing for one that cannot be handed over. */
QVariantList made(jobs::RecipeBatch &batch, int index)
{
    batch.give(index);
    if (batch.inWork() == 0)
        return {};
    QSignalSpy arrived(&batch, &jobs::RecipeBatch::arrived);
    if (!arrived.wait(20000))
        return {};
    const QVariantMap result = batch.take();
    return result.value(key("number")).toInt() == index ? batch.place(index) : QVariantList();
}

/** The trial worker in place of the real one, for one test. */
class TrialWorkers
{
public:
    TrialWorkers() { jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER)); }
    ~TrialWorkers() { jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKERS "/quorlin-worker")); }
    TrialWorkers(const TrialWorkers &) = delete;
    TrialWorkers &operator=(const TrialWorkers &) = delete;
};

} // namespace

/** A recipe over the pictures of a list, as scripts carry it out. */
class TestRecipeBatchService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKERS "/quorlin-worker")); }
    void init();
    void cleanup();

    void saysWhatIsWrong();
    void plansEveryOutputAndWritesNothing();
    void makesAllOutputsOfAPicture();
    void numbersEqualNames();
    void keepsWhatIsThereOrReplacesIt();
    void replacesTheOriginalOnlyWhereItSaysSo();
    void leavesItsOwnOriginalToTheLast();
    void givesAPictureBackThatHasNoRoom();
    void saysWhichDiskIsFull();
    void keepsWhatNothingTakesThePlaceOf();
    void neverReplacesAnotherPictureOfTheList();
    void leavesOutWhatIsSkipped();
    void failsForWhatCannotBeRead();
    void doesNotReplaceWhatAppearsMeanwhile();
    void takesAnotherBaseFolder();
    void buildsTheTreesOfFoldersAgainBelowTheBase();
    void makesEachPictureOnce();
    void saysWhatIsWholeBeforeItIsPlaced();
    void plansAgainWhatIsMissing();
    void takesPicturesThatJoin();

private:
    QString at(const char *name) const { return m_folder->filePath(key(name)); }
    void save(const char *name, QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(QDir().mkpath(QFileInfo(at(name)).path()) && image.save(at(name)));
    }
    void write(const char *name) const
    {
        QFile file(at(name));
        QVERIFY(QDir().mkpath(QFileInfo(at(name)).path()));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    }
    bool isOld(const char *name) const
    {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) && file.readAll() == "old";
    }
    std::unique_ptr<jobs::RecipeBatch> batch(const QString &recipe, const QStringList &names) const
    {
        auto made = std::make_unique<jobs::RecipeBatch>();
        made->setRecipe(recipe);
        made->setFolder(m_folder->path());
        QStringList paths;
        for (const QString &name : names)
            paths.append(m_folder->filePath(name));
        made->setPaths(paths);
        return made;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_two = key(R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 20}],
        "outputs": [{"type": "jpeg", "folder": "Out"},
                    {"type": "png", "folder": "Out", "name": "{name}-{width}", "operations": [{"do": "resize", "longest": 10}]}]})");
    QString m_one = key(R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 20}],
        "outputs": [{"type": "png", "ifTaken": "%1"}]})");
};

void TestRecipeBatchService::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    save("a.png", {40, 20});
}

/** Nothing unfinished stays. */
void TestRecipeBatchService::cleanup()
{
    const QStringList hidden = QDir(m_folder->path())
                                   .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                                   .filter(QRegularExpression(key("^\\.")));
    QCOMPARE(hidden, QStringList());
}

void TestRecipeBatchService::saysWhatIsWrong()
{
    const auto wrong = batch(key(R"({"quorlin": 1, "outputs": []})"), {key("a.png")});
    QVERIFY(wrong->problem().startsWith(key("outputs: ")));
    QVERIFY(wrong->plan(0, {}).isEmpty() && made(*wrong, 0).isEmpty());
    const auto right = batch(m_two, {key("a.png")});
    QCOMPARE(right->problem(), QString());
    QVERIFY(right->plan(1, {}).isEmpty() && right->plan(-1, {}).isEmpty());
}

void TestRecipeBatchService::plansEveryOutputAndWritesNothing()
{
    const auto one = batch(m_two, {key("a.png")});
    const QVariantList plan = one->plan(0, {});
    QCOMPARE(valuesOf(plan, "status"), (QStringList{key("ready"), key("ready")}));
    QCOMPARE(valuesOf(plan, "path"), (QStringList{at("Out/a.jpg"), at("Out/a-10.png")}));
    QCOMPARE(valuesOf(plan, "type"), (QStringList{key("jpeg"), key("png")}));
    QCOMPARE(valuesOf(plan, "width"), (QStringList{key("20"), key("10")}));
    QVERIFY(!QFile::exists(at("Out")));
}

void TestRecipeBatchService::makesAllOutputsOfAPicture()
{
    const auto one = batch(m_two, {key("a.png")});
    one->plan(0, {});
    const QVariantList results = made(*one, 0);
    QCOMPARE(valuesOf(results, "status"), (QStringList{key("OK"), key("OK")}));
    QCOMPARE(QImage(at("Out/a.jpg")).size(), QSize(20, 10));
    QCOMPARE(QImage(at("Out/a-10.png")).size(), QSize(10, 5));
    QCOMPARE(valuesOf(results, "bytes"), (QStringList{QString::number(QFileInfo(at("Out/a.jpg")).size()),
                                                      QString::number(QFileInfo(at("Out/a-10.png")).size())}));
    QCOMPARE(QImage(at("a.png")).size(), QSize(40, 20));
}

void TestRecipeBatchService::numbersEqualNames()
{
    save("b/a.png", {10, 40});
    const QString recipe = key(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "folder": "%1"}]})").arg(at("All"));
    const auto one = batch(recipe, {key("a.png"), key("b/a.png")});
    QCOMPARE(valuesOf(one->plan(0, {}), "path"), QStringList{at("All/a.jpg")});
    QCOMPARE(valuesOf(one->plan(1, {}), "path"), QStringList{at("All/a (2).jpg")});
    // In whatever order they are made.
    QCOMPARE(valuesOf(made(*one, 1), "status"), QStringList{key("OK")});
    QCOMPARE(valuesOf(made(*one, 0), "status"), QStringList{key("OK")});
    QCOMPARE(QImage(at("All/a (2).jpg")).size(), QSize(10, 40));
}

void TestRecipeBatchService::keepsWhatIsThereOrReplacesIt()
{
    write("Out/a.jpg");
    const auto numbers = batch(m_two, {key("a.png")});
    QCOMPARE(valuesOf(numbers->plan(0, {}), "path").first(), at("Out/a (2).jpg"));
    const QString replacing =
        key(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "folder": "Out", "ifTaken": "replace"}]})");
    const auto replaces = batch(replacing, {key("a.png")});
    const QVariantList plan = replaces->plan(0, {});
    QCOMPARE(valuesOf(plan, "path"), QStringList{at("Out/a.jpg")});
    QCOMPARE(valuesOf(plan, "replaces"), QStringList{key("true")});
    QCOMPARE(valuesOf(plan, "replacesOriginal"), QStringList{key("false")});
    QVERIFY(isOld("Out/a.jpg"));
    // It waits for somebody who can put aside what is there.
    const QVariantMap waiting = made(*replaces, 0).value(0).toMap();
    QCOMPARE(waiting[key("status")].toString(), key("waiting"));
    QCOMPARE(waiting[key("path")].toString(), at("Out/a.jpg"));
    QCOMPARE(waiting[key("replaced")].toString(), platform::itemIdentity(at("Out/a.jpg")));
    QCOMPARE(QImage(waiting[key("file")].toString()).size(), QSize(40, 20));
    QVERIFY(isOld("Out/a.jpg"));
    replaces->settle(0);
    QVERIFY(!QFile::exists(waiting[key("file")].toString()));
}

void TestRecipeBatchService::leavesItsOwnOriginalToTheLast()
{
    write("a-10.png");
    const QString recipe = key(R"({"quorlin": 1, "outputs": [{"type": "png", "ifTaken": "replace"},
        {"type": "jpeg"}, {"type": "png", "name": "{name}-10", "ifTaken": "replace"}]})");
    const auto one = batch(recipe, {key("a.png")});
    one->plan(0, {});
    const QVariantList results = made(*one, 0);
    QCOMPARE(valuesOf(results, "status"), (QStringList{key("OK"), key("waiting"), key("waiting")}));
    QCOMPARE(valuesOf(results, "path"), (QStringList{at("a.jpg"), at("a-10.png"), at("a.png")}));
}

void TestRecipeBatchService::givesAPictureBackThatHasNoRoom()
{
    const TrialWorkers workers;
    save("full-a.png", {40, 20});
    const auto one = batch(m_two, {key("full-a.png")});
    one->plan(0, {});
    QVERIFY(made(*one, 0).isEmpty());
    QVERIFY(!QFile::exists(at("Out/full-a.jpg")) && !QFile::exists(at("Out/full-a-10.png")));
    // Another folder, in which a name is taken.
    write("Other/Out/full-a.jpg");
    one->moveTo(0, at("Other"));
    QVariantList results;
    for (int tries = 0; tries < 64 && results.isEmpty(); ++tries) // each worker is without room once
        results = made(*one, 0);
    QCOMPARE(valuesOf(results, "status"), (QStringList{key("OK"), key("OK")}));
    QCOMPARE(valuesOf(results, "path"), (QStringList{at("Other/Out/full-a (2).jpg"), at("Other/Out/full-a-10.png")}));
    QVERIFY(isOld("Other/Out/full-a.jpg"));
}

void TestRecipeBatchService::saysWhichDiskIsFull()
{
    const TrialWorkers workers;
    save("full-a.png", {40, 20});
    const auto one = batch(m_two, {key("full-a.png")});
    one->plan(0, {});
    one->give(0);
    QSignalSpy arrived(one.get(), &jobs::RecipeBatch::arrived);
    QVERIFY(arrived.wait(20000));
    const QVariantMap full = one->take();
    QCOMPARE(full[key("folder")].toString(), at("Out"));
    QVERIFY2(full[key("full")].toString().contains(at("Out/full-a.jpg")), qPrintable(full[key("full")].toString()));
}

void TestRecipeBatchService::replacesTheOriginalOnlyWhereItSaysSo()
{
    const auto numbers = batch(m_one.arg(key("number")), {key("a.png")});
    QCOMPARE(valuesOf(numbers->plan(0, {}), "path"), QStringList{at("a (2).png")});
    const auto replaces = batch(m_one.arg(key("replace")), {key("a.png")});
    QCOMPARE(valuesOf(replaces->plan(0, {}), "replacesOriginal"), QStringList{key("true")});
    QCOMPARE(valuesOf(made(*replaces, 0), "status"), QStringList{key("waiting")});
    QCOMPARE(QImage(at("a.png")).size(), QSize(40, 20));
}

void TestRecipeBatchService::keepsWhatNothingTakesThePlaceOf()
{
    write("Out/a.jpg");
    const QString replacing =
        key(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "folder": "Out", "maxBytes": 1, "ifTaken": "replace"}]})");
    const auto one = batch(replacing, {key("a.png")});
    QCOMPARE(valuesOf(one->plan(0, {}), "replaces"), QStringList{key("true")});
    QCOMPARE(valuesOf(made(*one, 0), "status"), QStringList{key("Failed")});
    QVERIFY(isOld("Out/a.jpg"));
}

void TestRecipeBatchService::neverReplacesAnotherPictureOfTheList()
{
    save("b.jpg", {30, 30});
    save("b.png", {8, 8});
    const QString recipe = key(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "ifTaken": "replace"}]})");
    const auto one = batch(recipe, {key("b.png"), key("b.jpg")});
    const QString wanted = valuesOf(one->plan(0, {}), "path").first();
    QVERIFY2(wanted != at("b.jpg"), qPrintable(wanted));
}

void TestRecipeBatchService::leavesOutWhatIsSkipped()
{
    const auto one = batch(m_one.arg(key("skip")), {key("a.png")});
    const QVariantList plan = one->plan(0, {});
    QCOMPARE(valuesOf(plan, "status"), QStringList{key("Skipped")});
    QVERIFY(!valuesOf(plan, "reason").first().isEmpty());
    QCOMPARE(valuesOf(made(*one, 0), "status"), QStringList{key("Skipped")});
    QCOMPARE(QImage(at("a.png")).size(), QSize(40, 20));
}

void TestRecipeBatchService::failsForWhatCannotBeRead()
{
    write("broken.png");
    const auto one = batch(m_two, {key("broken.png"), key("none.png"), key("a.png")});
    for (int i = 0; i < 2; ++i) {
        const QVariantList plan = one->plan(i, {});
        QCOMPARE(valuesOf(plan, "status"), (QStringList{key("Failed"), key("Failed")}));
        QVERIFY(!valuesOf(plan, "reason").contains(QString()));
    }
    // One that goes between plan and run.
    one->plan(2, {});
    QVERIFY(QFile::remove(at("a.png")));
    const QVariantList results = made(*one, 2);
    QCOMPARE(valuesOf(results, "status"), (QStringList{key("Failed"), key("Failed")}));
    QVERIFY(!valuesOf(results, "reason").contains(QString()));
    QVERIFY(!QFile::exists(at("Out/a.jpg")));
}

void TestRecipeBatchService::doesNotReplaceWhatAppearsMeanwhile()
{
    const auto one = batch(m_two, {key("a.png")});
    one->plan(0, {});
    write("Out/a.jpg");
    const QVariantList results = made(*one, 0);
    QCOMPARE(valuesOf(results, "path"), (QStringList{at("Out/a (2).jpg"), at("Out/a-10.png")}));
    QVERIFY(isOld("Out/a.jpg"));
}

void TestRecipeBatchService::takesAnotherBaseFolder()
{
    const auto one = batch(m_two, {key("a.png")});
    one->setBase(at("Base"));
    QCOMPARE(valuesOf(one->plan(0, {}), "path"), (QStringList{at("Base/Out/a.jpg"), at("Base/Out/a-10.png")}));
}

void TestRecipeBatchService::buildsTheTreesOfFoldersAgainBelowTheBase()
{
    save("in/lake/b.png", {40, 20});
    const auto firstOf = [this](bool keeps, const QString &base, const QString &root) {
        const auto one = batch(m_two, {key("in/lake/b.png")});
        one->setBase(base);
        one->setKeepsTree(keeps);
        return valuesOf(one->plan(0, root), "path").first();
    };
    QCOMPARE(firstOf(true, at("Base"), at("in")), at("Base/lake/Out/b.jpg"));
    QCOMPARE(firstOf(true, at("Base"), at("in/lake")), at("Base/Out/b.jpg"));
    QCOMPARE(firstOf(true, at("Base"), {}), at("Base/Out/b.jpg")); // added itself
    QCOMPARE(firstOf(false, at("Base"), at("in")), at("Base/Out/b.jpg"));
    QCOMPARE(firstOf(true, {}, at("in")), at("in/lake/Out/b.jpg"));
}

void TestRecipeBatchService::makesEachPictureOnce()
{
    const auto one = batch(m_two, {key("a.png")});
    QVERIFY(made(*one, 0).isEmpty());
    one->plan(0, {});
    QCOMPARE(made(*one, 0).size(), 2);
    QVERIFY(made(*one, 0).isEmpty());
    QCOMPARE(QDir(at("Out")).entryList(QDir::Files).size(), 2);
}

void TestRecipeBatchService::saysWhatIsWholeBeforeItIsPlaced()
{
    const auto one = batch(m_two, {key("a.png")});
    one->plan(0, {});
    QSignalSpy arrived(one.get(), &jobs::RecipeBatch::arrived);
    one->give(0);
    QVERIFY(arrived.wait(20000));
    const QVariantMap come = one->take();
    const QVariantList whole = come.value(key("whole")).toList();
    QCOMPARE(valuesOf(whole, "output"), (QStringList{key("0"), key("1")}));
    QCOMPARE(valuesOf(whole, "path"), (QStringList{at("Out/a.jpg"), at("Out/a-10.png")}));
    const QString waiting = platform::itemIdentity(valuesOf(whole, "file").constFirst());
    QVERIFY(!waiting.isEmpty() && !QFile::exists(at("Out/a.jpg")));
    QCOMPARE(valuesOf(one->place(0), "status"), (QStringList{key("OK"), key("OK")}));
    QCOMPARE(platform::itemIdentity(at("Out/a.jpg")), waiting);
    QVERIFY(one->place(0).isEmpty());
}

/** What is there keeps its name, what is missing gets the one that was planned, and what came since is not replaced. */
void TestRecipeBatchService::plansAgainWhatIsMissing()
{
    save("b.png", {40, 20});
    save("Out/a.jpg", {4, 4});
    write("Out/b-10.png");
    const auto earlier = [this](const QStringList &planned, const QStringList &done) {
        return QVariantMap{{key("root"), QString()},
                           {key("width"), 40},
                           {key("height"), 20},
                           {key("planned"), planned},
                           {key("done"), done}};
    };
    const auto rest = batch(m_two, {key("a.png"), key("b.png")});
    const QVariantList first =
        rest->planAgain(0, earlier({QString(), at("Out/a-10.png")}, {at("Out/a.jpg"), QString()}));
    QCOMPARE(valuesOf(first, "output"), QStringList{key("1")});
    QCOMPARE(valuesOf(first, "path"), QStringList{at("Out/a-10.png")});
    const QVariantList second =
        rest->planAgain(1, earlier({at("Out/b (2).jpg"), at("Out/b-10.png")}, {QString(), QString()}));
    QCOMPARE(valuesOf(second, "path"), (QStringList{at("Out/b (2).jpg"), at("Out/b-10 (2).png")}));
    QCOMPARE(valuesOf(made(*rest, 0), "path"), QStringList{at("Out/a-10.png")});
    QCOMPARE(valuesOf(made(*rest, 1), "path"), (QStringList{at("Out/b (2).jpg"), at("Out/b-10 (2).png")}));
    QVERIFY(isOld("Out/b-10.png"));
    QCOMPARE(QImage(at("Out/a.jpg")).size(), QSize(4, 4));
    // Where all is there, nothing is made.
    QVERIFY(rest->planAgain(5, {}).isEmpty());
}

void TestRecipeBatchService::takesPicturesThatJoin()
{
    save("b.png", {40, 20});
    save("Out/a.jpg", {8, 8});
    const QString recipe = key(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "folder": "Out", "ifTaken": "replace",
        "name": "{name}"}]})");
    const auto one = batch(recipe, {key("a.png"), key("b.png")});
    QCOMPARE(one->plan(0, {}).constFirst().toMap().value(key("replaces")).toBool(), true);
    one->plan(1, {});
    QCOMPARE(one->join({at("Out/a.jpg")}), 2);
    QCOMPARE(one->paths().size(), 3);
    // It is a picture of the batch now.
    QCOMPARE(valuesOf(made(*one, 0), "path"), QStringList{at("Out/a (2).jpg")});
    QCOMPARE(valuesOf(one->plan(2, {}), "path"), QStringList{at("Out/Out/a.jpg")});
    QCOMPARE(QImage(at("Out/a.jpg")).size(), QSize(8, 8));
}

QUORLIN_TEST(TestRecipeBatchService)

#include "tst_recipe_batch_service.moc"
