#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QImage>
#include <QTest>

/** Picture, and handles on the road from one operation to the next. */
class TestSeamPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void answersWhatItIsAsked_data();
    void answersWhatItIsAsked();
    void writesWhatItRead();
    void notesTheTypeOfTheSource();
    void handsBitmapsOn();
    void keepsMemoryBounded();

private:
    QString withFile(QString text) const;

    ScriptRun m_run;
};

void TestSeamPictures::initTestCase()
{
    QImage image(3, 2, QImage::Format_RGBA8888);
    image.fill(QColor(10, 20, 30, 255));
    image.setPixelColor(2, 1, QColor(200, 100, 50, 128));
    image.setDotsPerMeterX(qRound(144 / 0.0254));
    image.setDotsPerMeterY(qRound(144 / 0.0254));
    QVERIFY(image.save(m_run.pathOf(QStringLiteral("a.png"))));
}

QString TestSeamPictures::withFile(QString text) const
{
    return text.replace(QStringLiteral("FOLDER"), m_run.pathOf({}));
}

void TestSeamPictures::answersWhatItIsAsked_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"[p.pixelsWide, p.pixelsHigh]", "[3,2]"},
             {"[Math.round(p.width * 100), Math.round(p.height * 100)]", "[150,100]"},
             {"p.pixel(0, 0)", "[10,20,30,255]"},
             {"p.pixel(2, 1)", "[200,100,50,128]"},
             {"p.pixel(3, 0)", "[0,0,0,0]"},
             {"p.pixel(-1, 0)", "[0,0,0,0]"},
             {"p.pixel(0.5, 0)", "TypeError: Expected a whole number for x but received 0.5"},
             {"p instanceof Picture", "true"},
             {"Number(echo.takePicture(p)).toFixed(2)", "\"1.50\""},
             {"typeof p.bitmap()", "\"object\""},
             {"(() => { p.release(); return [p.pixelsWide, p.width, p.bitmap(), p.pixel(0, 0)]; })()",
              "[0,0,null,[0,0,0,0]]"},
             {"(() => { p.release(); return p.save('FOLDER/never.png'); })()", "false"},
             {"p.save('FOLDER/no such folder/b.png')", "false"},
             {"p.save(null)", "false"},
             {"p.width = 3", "TypeError: width of Picture is read only"},
             {"Picture.open('FOLDER/missing.png')", "null"},
             {"Picture.open(null)", "null"},
             {"Picture.open()", "TypeError: open takes 1 argument but received 0"},
             {"new Picture()", "TypeError: Picture is not made with new"},
             {"p.open('FOLDER/a.png')", "TypeError: Picture has no operation or field open"},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

void TestSeamPictures::answersWhatItIsAsked()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    const QString opened =
        QStringLiteral("((p) => (%1))(Picture.open('FOLDER/a.png'))").replace(QStringLiteral("%1"), expression);
    const QString value = m_run.valueOf(withFile(opened));
    // If the name is called at once, the engine adds words to our message.
    if (value.endsWith(QStringLiteral(" is not a function")))
        QVERIFY2(value.contains(outcome), qPrintable(value));
    else
        QCOMPARE(value, outcome);
}

void TestSeamPictures::writesWhatItRead()
{
    QCOMPARE(m_run.valueOf(withFile(QStringLiteral("Picture.open('FOLDER/a.png').save('FOLDER/b.png')"))),
             QStringLiteral("true"));
    const QImage written(m_run.pathOf(QStringLiteral("b.png")));
    QCOMPARE(written.size(), QSize(3, 2));
    QCOMPARE(written.pixelColor(2, 1), QColor(200, 100, 50, 128));
    QCOMPARE(written.pixelColor(0, 0), QColor(10, 20, 30));
}

void TestSeamPictures::notesTheTypeOfTheSource()
{
    for (const char *type : {"original file type", "public.jpeg"}) {
        QVERIFY2(m_run.run(withFile(QStringLiteral("const image = new ZtImageHandling(); report(image.fileUTI); "
                                                   "image.resizeImage('FOLDER/a.png', 2, 0, '/nowhere/', '%1', '5'); "
                                                   "report(image.fileUTI);")
                                        .arg(QLatin1String(type)))),
                 qPrintable(m_run.error));
        QCOMPARE(m_run.reports, (QStringList{QStringLiteral("null"), QStringLiteral("\"public.png\"")}));
    }
}

void TestSeamPictures::handsBitmapsOn()
{
    const QString text =
        QStringLiteral("(() => { const i = new ZtImageHandling(); const h = i.hStringToCGImageRef('FOLDER/a.png');"
                       "const p = i.imageFromCGImageRef(h);"
                       "return [i.hSaveToNewImageFile('FOLDER/c.png', 'public.png', h, null), p.width,"
                       " p.height, echo.takeHandle(h), echo.takeHandle(p.bitmap())]; })()");
    QCOMPARE(m_run.valueOf(withFile(text)), QStringLiteral("[\"OK\",3,2,\"3\",\"3\"]"));
    QCOMPARE(QImage(m_run.pathOf(QStringLiteral("c.png"))).pixelColor(2, 1), QColor(200, 100, 50, 128));
}

/** The kilobytes of memory that this process uses now. */
static qint64 residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    return 0;
}

void TestSeamPictures::keepsMemoryBounded()
{
    if (qEnvironmentVariableIsSet("QUORLIN_SANITIZED"))
        QSKIP("The sanitizer holds back what was freed, so that memory says nothing here.");
    // 40 pictures of 16 MB each, opened and forgotten: all of them together would be 640 MB.
    QImage large(2000, 2000, QImage::Format_RGBA8888);
    large.fill(QColor(1, 2, 3, 4));
    QVERIFY(large.save(m_run.pathOf(QStringLiteral("large.png"))));
    large = QImage();
    const qint64 before = residentKilobytes();
    QVERIFY(before > 0);
    const QString value = m_run.valueOf(withFile(QStringLiteral(
        "(() => { let sum = 0; for (let i = 0; i < 40; ++i) sum += Picture.open('FOLDER/large.png').pixel(5, 5)[0];"
        "return sum; })()")));
    QCOMPARE(value, QStringLiteral("40"));
    const qint64 grown = residentKilobytes() - before;
    qInfo("grown by %lld kB", grown);
    QVERIFY2(grown < 250'000, qPrintable(QString::number(grown)));
}

QUORLIN_TEST(TestSeamPictures)
#include "tst_seam_pictures.moc"
