#include "app/modules/file_modules.h"
#include "platform/imageio/source/image_source.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

/** Recipes as scripts carry them out: one picture, one output, without a window. */
class TestSeamRecipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void plansFromTheHeader_data();
    void plansFromTheHeader();
    void plansWhereACutLies_data();
    void plansWhereACutLies();
    void knowsNoPlaceOfWhatDrawsTheEye();
    void makesWhatItPlans();
    void namesResults_data();
    void namesResults();
    void turnsSettingsIntoRecipes();
    void fillsInTheTokensOfATextInEnglish();
    void saysWhyNothingCameOfIt_data();
    void saysWhyNothingCameOfIt();
    void leavesWhatIsThereWhereItFails();
    void keepsTheDateWhereTheRecipeSaysSo();
    void namesFontsThatAreThere();

private:
    QString answer(QString expression);

    ScriptRun m_run;
    int m_count = 0;
};

void TestSeamRecipes::initTestCase()
{
    script::addFileModules(m_run.engine());
    QVERIFY(pictures::gradient(60, 40).save(m_run.pathOf(QStringLiteral("a.png"))));
    QImage clear(60, 40, QImage::Format_RGBA8888);
    clear.fill(QColor(10, 20, 30, 100));
    QVERIFY(clear.save(m_run.pathOf(QStringLiteral("clear.png"))));
    m_run.write(QStringLiteral("none.png"), QStringLiteral("no picture"));
}

/** DO represents the operations and OUT the output of the recipe R(DO, OUT). */
QString TestSeamRecipes::answer(QString expression)
{
    const QString module =
        QStringLiteral("import { recipes } from 'quorlin/recipes'; import { reportError } from 'test';"
                       "const R = (operations, output) => ({ quorlin: 1, operations: operations, outputs: [output] });"
                       "reportError(() => { const value = %1; return value; });");
    expression.replace(QStringLiteral("FOLDER"), m_run.pathOf({}));
    if (!m_run.runFile(QStringLiteral("r%1.js").arg(++m_count), module.arg(expression)))
        return m_run.error;
    return m_run.reports.join(u'\n');
}

void TestSeamRecipes::plansFromTheHeader_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    const std::pair<const char *, const char *> rows[] = {
        {"R([], {})", "[\"\",\"png\",60,40,\".png\",true,0]"},
        {"R([{ do: 'resize', longest: 30 }], { type: 'jpeg' })", "[\"\",\"jpeg\",30,20,\".jpg\",false,0]"},
        {"R([{ do: 'watermark', text: 'x' }], { type: 'tiff' })", "[\"\",\"tiff\",60,40,\".tiff\",false,0]"},
        {"R([{ do: 'watermark', text: 'x' }], { type: 'gif' })", "[\"\",\"gif\",60,40,\".gif\",false,1]"},
    };
    for (const auto &[expression, expected] : rows)
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(expected);
}

void TestSeamRecipes::plansFromTheHeader()
{
    QFETCH(QString, expression);
    const QString fields = QStringLiteral("((p) => [p.problem, p.type, p.width, p.height, p.extension, p.lossless, "
                                          "p.losses.length])(recipes.planOutput('FOLDER/a.png', %1))");
    QTEST(answer(fields.arg(expression)), "expected");
}

void TestSeamRecipes::plansWhereACutLies_data()
{
    QTest::addColumn<QString>("operations");
    QTest::addColumn<QString>("expected");
    const std::pair<const char *, const char *> rows[] = {
        {"[{ do: 'crop', ratio: '1:1' }]", "[10,0,40,40,10,0,40,40,true]"},
        {"[{ do: 'crop', ratio: '2:3' }]", "[0,0,60,40,0,0,60,40,true]"},
        {"[{ do: 'crop', ratio: '2:3', turn: false }]", "[16,0,27,40,16,0,27,40,true]"},
        {"[{ do: 'crop', width: 100, height: 10, offset: [5, 0] }]", "[-15,15,100,10,0,15,60,10,true]"},
        {"[{ do: 'flip', direction: 'vertical', off: true }, { do: 'crop', percent: 50 }]",
         "[15,10,30,20,15,10,30,20,true]"},
    };
    for (const auto &[operations, expected] : rows)
        QTest::newRow(operations) << QString::fromUtf8(operations) << QString::fromUtf8(expected);
}

void TestSeamRecipes::plansWhereACutLies()
{
    QFETCH(QString, operations);
    const QString fields =
        QStringLiteral("((c) => [c.frame, c.part].reduce((all, r) => all.concat([r.x, r.y, r.width, r.height]), "
                       "[]).concat([c.isPlaced]))(recipes.planOutput('FOLDER/a.png', R(%1, {})).cut)");
    QTEST(answer(fields.arg(operations)), "expected");
}

void TestSeamRecipes::knowsNoPlaceOfWhatDrawsTheEye()
{
    const QString cut = QStringLiteral("recipes.planOutput('FOLDER/a.png', R(%1, {})).cut");
    const QString found = QStringLiteral("[{ do: 'crop', ratio: '1:1', position: 'attention' }]");
    QCOMPARE(answer(QStringLiteral("((c) => [c.part.width, c.isPlaced])(%1)").arg(cut.arg(found))),
             QStringLiteral("[40,false]"));
    // One that comes later says nothing of the picture itself.
    QCOMPARE(answer(cut.arg(QStringLiteral("[{ do: 'resize', width: 30 }, { do: 'crop', ratio: '1:1' }]"))),
             QStringLiteral("{}"));
}

void TestSeamRecipes::namesResults_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("name");
    const std::pair<const char *, const char *> rows[] = {
        {"'{name}-web', 0, 30, 20, '.jpg'", "a-web.jpg"},
        {"'{counter:001} {width}x{height}', 4, 30, 20, '.png'", "005 30x20.png"},
        {"'{type} {taken}', 0, 30, 20, ''", "PNG undated"},
        {"'x'.repeat(300), 0, 30, 20, '.jpg'", "x"},
    };
    for (const auto &[arguments, name] : rows)
        QTest::newRow(arguments) << QString::fromUtf8(arguments) << QString::fromUtf8(name);
}

void TestSeamRecipes::namesResults()
{
    QFETCH(QString, arguments);
    QFETCH(QString, name);
    constexpr int longest = 255;
    const QString expected = name == QLatin1String("x") ? QString(longest - 4, u'x') + QStringLiteral(".jpg") : name;
    QCOMPARE(answer(QStringLiteral("recipes.nameFor('FOLDER/a.png', %1)").arg(arguments)), u'"' + expected + u'"');
}

void TestSeamRecipes::makesWhatItPlans()
{
    const QString made = QStringLiteral("recipes.make('FOLDER/clear.png', R([{ do: 'resize', longest: 30 }, { do: "
                                        "'watermark', text: 'W', size: 80, position: 'center', opacity: 100, "
                                        "color: '#ff0000' }], { type: 'jpeg', quality: 95 }), 'FOLDER/made.jpg')");
    QCOMPARE(answer(QStringLiteral("((m) => [m.outcome, m.reason, m.width, m.height, m.losses.length])(%1)").arg(made)),
             QStringLiteral("[\"OK\",\"\",30,20,1]"));
    QCOMPARE(answer(QStringLiteral("%1.path").arg(made)), u'"' + m_run.pathOf(QStringLiteral("made.jpg")) + u'"');
    const QImage written(m_run.pathOf(QStringLiteral("made.jpg")));
    QCOMPARE(written.size(), QSize(30, 20));
    int red = 0;
    for (int y = 0; y < written.height(); ++y)
        for (int x = 0; x < written.width(); ++x)
            red += written.pixelColor(x, y).red() > written.pixelColor(x, y).blue() + 40 ? 1 : 0;
    QVERIFY2(red > 20, qPrintable(QString::number(red)));
}

void TestSeamRecipes::turnsSettingsIntoRecipes()
{
    const QString resize =
        QStringLiteral("recipes.recipeFor('Resize', { mode: 'longest', longest: 30, neverEnlarge: true, "
                       "unit: 'mm', output: { fileType: 'public.jpeg', quality: '7' } })");
    QCOMPARE(answer(resize + QStringLiteral(".operations")),
             QStringLiteral("[{\"do\":\"resize\",\"longest\":30,\"unit\":\"mm\"}]"));
    QCOMPARE(answer(resize + QStringLiteral(".outputs")), QStringLiteral("[{\"quality\":70,\"type\":\"jpeg\"}]"));
    QCOMPARE(answer(QStringLiteral("((m) => [m.outcome, m.width])(recipes.make('FOLDER/a.png', %1, 'FOLDER/30.jpg'))")
                        .arg(QString(resize).replace(QStringLiteral("'mm'"), QStringLiteral("'pixel'")))),
             QStringLiteral("[\"OK\",30]"));
    QCOMPARE(answer(QStringLiteral("[recipes.recipeFor('Rename', {}), recipes.recipeFor(null, {})]")),
             QStringLiteral("[{},{}]"));
}

void TestSeamRecipes::fillsInTheTokensOfATextInEnglish()
{
    const auto made = [this](const char *text, const char *name) {
        const QString call = QStringLiteral("recipes.make('FOLDER/a.png', R([{ do: 'watermark', text: '%1', size: 30 "
                                            "}], {}), 'FOLDER/%2.png').outcome");
        return answer(call.arg(QLatin1String(text), QLatin1String(name)));
    };
    for (const auto &[text, name] : {std::pair{"{name}-{width}", "token"}, {"a-60", "plain"}, {"b-60", "other"}})
        QCOMPARE(made(text, name), QStringLiteral("\"OK\""));
    const auto image = [this](const char *name) {
        return QImage(m_run.pathOf(QLatin1String(name) + QStringLiteral(".png")));
    };
    QCOMPARE(image("token"), image("plain"));
    QVERIFY(image("token") != image("other"));
}

void TestSeamRecipes::saysWhyNothingCameOfIt_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, expected] : std::initializer_list<Row>{
             {"'FOLDER/a.png', {}", "Failed: quorlin: "},
             {"'FOLDER/a.png', null", "Failed: quorlin: "},
             {"'FOLDER/a.png', R([{ do: 'shrink' }], {})", "Failed: operations[0].do: "},
             {"'FOLDER/a.png', R([{ do: 'resize', longest: 'big' }], {})", "Failed: operations[0].longest: "},
             {"'FOLDER/a.png', R([{ do: 'turn', degrees: NaN }], {})", "Failed: operations[0].degrees: "},
             {"'FOLDER/a.png', R([{ do: 'watermark', text: 'x', font: 'No Such Font' }], {})",
              "Failed: operations[0].font: there is no font \"No Such Font\""},
             {"'FOLDER/a.png', R([{ do: 'watermark', picture: '/no/such.png' }], {})",
              "Failed: operations[0].picture: there is no picture"},
             {"'FOLDER/a.png', { quorlin: 1, outputs: [{}, {}] }", "Failed: outputs: exactly one"},
             {"'FOLDER/a.png', R([{ do: 'crop', width: 9, height: 9, offset: [500, 0] }], {})", "Failed: "},
             {"'FOLDER/none.png', R([], {})", "Failed: "},
             {"'FOLDER/missing.png', R([], {})", "Failed: "},
             {"null, R([], {})", "Failed: "},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(expected);
}

void TestSeamRecipes::saysWhyNothingCameOfIt()
{
    QFETCH(QString, expression);
    QFETCH(QString, expected);
    const QString reported =
        answer(QStringLiteral("((m) => m.outcome + ': ' + m.reason + ' [' + m.path + ']')(recipes.make(%1, "
                              "'FOLDER/never.png'))")
                   .arg(expression));
    const QString quoted = QString(expected).replace(u'"', QStringLiteral("\\\""));
    QVERIFY2(reported.startsWith(u'"' + quoted), qPrintable(reported));
    QVERIFY2(reported.endsWith(QStringLiteral(" []\"")) && reported.size() > expected.size() + 4, qPrintable(reported));
    QVERIFY(!QFile::exists(m_run.pathOf(QStringLiteral("never.png"))));
    const QString planned =
        answer(QStringLiteral("((p) => [p.problem !== '', p.type])(recipes.planOutput(%1))").arg(expression));
    QCOMPARE(planned, QStringLiteral("[true,\"\"]"));
}

void TestSeamRecipes::leavesWhatIsThereWhereItFails()
{
    m_run.write(QStringLiteral("there.png"), QStringLiteral("mine"));
    QCOMPARE(answer(QStringLiteral("recipes.make('FOLDER/a.png', R([], { type: 'jpeg', maxBytes: 10 }), "
                                   "'FOLDER/there.png').outcome")),
             QStringLiteral("\"Failed\""));
    QFile there(m_run.pathOf(QStringLiteral("there.png")));
    QVERIFY(there.open(QIODevice::ReadOnly));
    QCOMPARE(there.readAll(), QByteArray("mine"));
    QCOMPARE(answer(QStringLiteral("recipes.make('FOLDER/a.png', R([], {}), 'FOLDER/no such folder/x.png').outcome")),
             QStringLiteral("\"Failed\""));
    QCOMPARE(answer(QStringLiteral("recipes.make('FOLDER/a.png', R([], {}), null).outcome")),
             QStringLiteral("\"Failed\""));
}

void TestSeamRecipes::keepsTheDateWhereTheRecipeSaysSo()
{
    QFile source(m_run.pathOf(QStringLiteral("a.png")));
    QVERIFY(source.open(QIODevice::ReadWrite));
    const QDateTime old(QDate(2020, 2, 3), QTime(4, 5, 6));
    QVERIFY(source.setFileTime(old, QFileDevice::FileModificationTime));
    source.close();
    QCOMPARE(answer(QStringLiteral("recipes.make('FOLDER/a.png', R([], { type: 'jpeg', dates: 'keep' }), "
                                   "'FOLDER/dated.jpg').outcome")),
             QStringLiteral("\"OK\""));
    QCOMPARE(QFileInfo(m_run.pathOf(QStringLiteral("dated.jpg"))).lastModified(), old);
}

void TestSeamRecipes::namesFontsThatAreThere()
{
    QCOMPARE(answer(QStringLiteral("recipes.fonts().every((font) => recipes.planOutput('FOLDER/a.png', R([{ do: "
                                   "'watermark', text: 'x', font: font }], {})).problem === '')")),
             QStringLiteral("true"));
    QCOMPARE(answer(QStringLiteral("recipes.fonts().length > 0 && new Set(recipes.fonts()).size === "
                                   "recipes.fonts().length")),
             QStringLiteral("true"));
}

QUORLIN_TEST(TestSeamRecipes)
#include "tst_seam_recipes.moc"
