#include "jobs/records/result_records.h"

#include "image/recipe/recipe_reader.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

using jobs::MadeWith;
using jobs::ResultRecords;

/** Which results need not be made again. */
class TestResultRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<ScratchFolder>();
        for (const char *name : {"a.jpg", "out.jpg"})
            QVERIFY(m_folder->write(QString::fromLatin1(name), name));
    }

    void knowsWhatIsAsItWas();
    void forgetsWhatHasChanged_data();
    void forgetsWhatHasChanged();
    void knowsNumberedForms_data();
    void knowsNumberedForms();
    void knowsWhatOthersNote();
    void passesOverWhatIsNoRecord();
    void staysSmall();
    void keepsNothingWithoutAFolder();
    void tellsSettingsApart_data();
    void tellsSettingsApart();
    void readsWhatARecipeNames();
    void tellsFontsApart();
    void knowsWhatIsWrittenIntoPictures();

private:
    QString path(const char *name) const { return m_folder->path(QString::fromLatin1(name)); }
    ResultRecords records() const { return ResultRecords(m_folder->path("data/records")); }
    QString found(const char *wanted = "out.jpg", const char *made = "m")
    {
        return records().upToDate(path(wanted), path("a.jpg"), QString::fromLatin1(made));
    }
    void note(const char *name = "out.jpg")
    {
        records().note(path(name), jobs::sourceState(path("a.jpg")), QStringLiteral("m"));
    }
    static MadeWith made(const QByteArray &json, const QString &folder = QStringLiteral("/"))
    {
        const auto recipe = image::readRecipe(json, folder);
        if (!recipe)
            qFatal("%s", qPrintable(recipe.error().message));
        return jobs::madeWith(json, *recipe).first();
    }

    std::unique_ptr<ScratchFolder> m_folder;
};

void TestResultRecords::knowsWhatIsAsItWas()
{
    QCOMPARE(found(), QString());
    note();
    QCOMPARE(found(), path("out.jpg"));
    QCOMPARE(found("out.jpg", "other"), QString());
    QCOMPARE(found("other.jpg"), QString());
}

void TestResultRecords::forgetsWhatHasChanged_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("change");
    for (const char *name : {"a.jpg", "out.jpg"})
        for (const char *change : {"size", "time", "gone"})
            QTest::addRow("%s %s", name, change) << QString::fromLatin1(name) << QString::fromLatin1(change);
    QTest::newRow("another file of the same time") << QStringLiteral("a.jpg") << QStringLiteral("identity");
}

void TestResultRecords::forgetsWhatHasChanged()
{
    QFETCH(QString, name);
    QFETCH(QString, change);
    note();
    const QString file = m_folder->path(name);
    const QDateTime before = QFileInfo(file).lastModified();
    const QByteArray bytes = m_folder->read(name);
    if (change == QLatin1String("gone")) {
        QVERIFY(QFile::remove(file));
    } else if (change == QLatin1String("identity")) {
        QVERIFY(QFile::rename(file, file + u'2'));
        QVERIFY(m_folder->write(name, bytes));
    } else if (change == QLatin1String("size")) {
        QVERIFY(m_folder->write(name, bytes + 'x'));
    }
    QFile changed(file);
    const QDateTime after = before.addSecs(change == QLatin1String("time") ? 1 : 0);
    if (changed.exists())
        QVERIFY(changed.open(QIODevice::ReadWrite) && changed.setFileTime(after, QFile::FileModificationTime));
    changed.close();
    QCOMPARE(found(), QString());
}

void TestResultRecords::knowsNumberedForms_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<bool>("isKnown");
    const auto row = [](const char *name, const char *wanted, bool isKnown) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(wanted) << isKnown;
    };
    row("out (2).jpg", "out.jpg", true);
    row("out (23).jpg", "out.jpg", true);
    row("noextension (3)", "noextension", true);
    row("out (1).jpg", "out.jpg", false);
    row("out (02).jpg", "out.jpg", false);
    row("out (x).jpg", "out.jpg", false);
    row("out (2).png", "out.jpg", false);
    row("out(2).jpg", "out.jpg", false);
    row("out (2) (3).jpg", "out.jpg", false);
    row("out 2.jpg", "out (2).jpg", false);
}

void TestResultRecords::knowsNumberedForms()
{
    QFETCH(QString, name);
    QFETCH(QString, wanted);
    QVERIFY(m_folder->write(name, "result"));
    note(qPrintable(name));
    QFETCH(bool, isKnown);
    QCOMPARE(found(qPrintable(wanted)), isKnown ? m_folder->path(name) : QString());
}

void TestResultRecords::knowsWhatOthersNote()
{
    ResultRecords mine = records();
    QCOMPARE(mine.upToDate(path("out.jpg"), path("a.jpg"), QStringLiteral("m")), QString());
    note(); // another process would do the same
    QCOMPARE(mine.upToDate(path("out.jpg"), path("a.jpg"), QStringLiteral("m")), path("out.jpg"));
}

void TestResultRecords::passesOverWhatIsNoRecord()
{
    note();
    const QString name = QDir(m_folder->path("data/records")).entryList(QDir::Files).first();
    QFile file(m_folder->path("data/records/") + name);
    QVERIFY(file.open(QIODevice::Append) && file.write("half a li") > 0);
    file.close();
    QCOMPARE(found(), path("out.jpg"));
    QVERIFY(m_folder->write("more.jpg", "more"));
    note("more.jpg"); // begins where the half line ends, and is lost with it
    note("more.jpg");
    QCOMPARE(found("more.jpg"), path("more.jpg"));
}

void TestResultRecords::staysSmall()
{
    constexpr int many = 2000;
    for (int time = 0; time < many; ++time)
        note();
    const QDir folder(m_folder->path("data/records"));
    QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden).size(), 1);
    constexpr qint64 most = 70'000;
    QVERIFY(QFileInfo(folder.filePath(folder.entryList(QDir::Files).first())).size() < most);
    QCOMPARE(found(), path("out.jpg"));
}

void TestResultRecords::keepsNothingWithoutAFolder()
{
    ResultRecords none{QString()};
    none.note(path("out.jpg"), jobs::sourceState(path("a.jpg")), QStringLiteral("m"));
    QCOMPARE(none.upToDate(path("out.jpg"), path("a.jpg"), QStringLiteral("m")), QString());
    QVERIFY(m_folder->write("file", "no folder"));
    ResultRecords unwritable(path("file/records"));
    unwritable.note(path("out.jpg"), jobs::sourceState(path("a.jpg")), QStringLiteral("m"));
    QCOMPARE(ResultRecords(path("file/records")).upToDate(path("out.jpg"), path("a.jpg"), QStringLiteral("m")),
             QString());
}

void TestResultRecords::tellsSettingsApart_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isSame");
    const auto row = [](const char *name, const char *json, bool isSame) {
        QTest::newRow(name) << QByteArray(json) << isSame;
    };
    row("spelling", R"({"operations":[{"longest":6.0,"do":"resize"}],  "quorlin":1,"outputs":[{"quality":80}]})", true);
    row("place", R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}],
        "outputs": [{"quality": 80, "name": "b", "folder": "c", "ifTaken": "current"}]})",
        true);
    row("size", R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 7}], "outputs": [{"quality": 80}]})",
        false);
    row("quality", R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}], "outputs": [{"quality": 81}]})",
        false);
    row("dates", R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}],
        "outputs": [{"quality": 80, "dates": "keep"}]})",
        false);
    row("own operation", R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}],
        "outputs": [{"quality": 80, "operations": [{"do": "turn", "degrees": 90}]}]})",
        false);
}

void TestResultRecords::tellsSettingsApart()
{
    QFETCH(QByteArray, json);
    const MadeWith first =
        made(R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}], "outputs": [{"quality": 80}]})");
    QCOMPARE(first.digest.size(), 64);
    QFETCH(bool, isSame);
    QCOMPARE(made(json).digest == first.digest, isSame);
}

void TestResultRecords::readsWhatARecipeNames()
{
    const QByteArray json = R"({"quorlin": 1, "operations": [{"do": "profile", "to": "own.icc"}], "outputs": [{}]})";
    image::RecipeFiles files;
    files.folder = m_folder->path();
    files.areOpened = false;
    const auto recipe = image::readRecipe(json, files);
    if (!recipe)
        QFAIL(qPrintable(recipe.error().message));
    QVERIFY(m_folder->write("own.icc", "one"));
    const QString one = jobs::madeWith(json, *recipe).first().digest;
    QVERIFY(m_folder->write("own.icc", "two"));
    QVERIFY(jobs::madeWith(json, *recipe).first().digest != one);
    QVERIFY(m_folder->write("own.icc", "one"));
    QCOMPARE(jobs::madeWith(json, *recipe).first().digest, one);
}

void TestResultRecords::tellsFontsApart()
{
    const auto with = [](const QByteArray &more) {
        return made(R"({"quorlin": 1, "operations": [{"do": "watermark", "text": "x")" + more +
                    R"(}], "outputs": [{}]})")
            .digest;
    };
    QCOMPARE(with({}), with({}));
    QVERIFY(with({}) != with(R"(, "font": "Serif")"));
}

void TestResultRecords::knowsWhatIsWrittenIntoPictures()
{
    const auto with = [](const QByteArray &text) {
        return made(R"({"quorlin": 1, "operations": [{"do": "watermark", "text": ")" + text +
                    R"("}], "outputs": [{}]})");
    };
    const MadeWith plain = with("© {date:yyyy}");
    QCOMPARE(plain.of(path("a.jpg"), 1), plain.of(path("out.jpg"), 2));
    const MadeWith counted = with("{counter:001}");
    QCOMPARE(counted.of(path("a.jpg"), 1), counted.of(path("out.jpg"), 1));
    QVERIFY(counted.of(path("a.jpg"), 1) != counted.of(path("a.jpg"), 2));
    const MadeWith named = with("{name}");
    QCOMPARE(named.of(path("a.jpg"), 1), named.of(path("a.jpg"), 2));
    QVERIFY(named.of(path("a.jpg"), 1) != named.of(path("out.jpg"), 1));
}

QUORLIN_TEST(TestResultRecords)
#include "tst_result_records.moc"
