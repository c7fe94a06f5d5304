#include "tests/seam/support/ScriptRun.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

/** What scripts get from the operations that flip and turn pictures. */
class TestSeamTurning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void answersWhatItIsAsked_data();
    void answersWhatItIsAsked();

private:
    ScriptRun m_run;
};

void TestSeamTurning::initTestCase()
{
    QImage image(40, 20, QImage::Format_RGB888);
    image.fill(Qt::white);
    QVERIFY(image.save(m_run.pathOf(QStringLiteral("a.png"))));
    m_run.write(QStringLiteral("text.jpg"), QStringLiteral("not a picture"));
    QFile whole(m_run.pathOf(QStringLiteral("a.png")));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QFile cut(m_run.pathOf(QStringLiteral("cut.png")));
    QVERIFY(cut.open(QIODevice::WriteOnly));
    cut.write(whole.read(60));
    QVERIFY(QDir(m_run.pathOf({})).mkdir(QStringLiteral("out")));
}

void TestSeamTurning::answersWhatItIsAsked_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QByteArray>("said");
    const auto row = [](const char *expression, const char *outcome, const char *said = "") {
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome) << QByteArray(said);
    };
    row("s.hFlipHorizontalPicture('FOLDER/a.png', 'FOLDER/out/')", "\"OK\"");
    row("s.hFlipVerticalPicture('FOLDER/a.png', 'FOLDER/out/')", "\"OK\"");
    row("s.hRotatePicture('FOLDER/a.png', 'FOLDER/out/', '90')", "\"OK\"");
    row("(s.hRotatePicture('FOLDER/a.png', 'FOLDER/out/', 7.5), s.degrees)", "7.5");
    row("(s.hRotatePicture('FOLDER/a.png', 'FOLDER/out/', null), s.degrees)", "0");
    row("(s.hRotatePicture('FOLDER/a.png', 'FOLDER/out/', 90), s.hGetPixelSize('FOLDER/out/a.png'))", "\"20x40px\"");
    row("s.hRotatePicture('FOLDER/a.pdf', 'FOLDER/out/', 90)", "\"Not Supported\"");
    row("s.hFlipVerticalPicture('FOLDER/missing.png', 'FOLDER/out/')", "null", "Image source is NULL.");
    row("s.hRotatePicture('FOLDER/text.jpg', 'FOLDER/out/', 90)", "null", "Image source is NULL.");
    row("s.hFlipHorizontalPicture('FOLDER/cut.png', 'FOLDER/out/')", "null", "Image not created from image source.");
    row("s.hFlipHorizontalPicture(null, null)", "null", "Image source is NULL.");
    row("s.hRotatePictureBase(null, 5)", "null");
    row("(s.hRotatePictureBase(null, '5deg'), s.wmAngle)", "5");
    row("s.hRotatePictureBase(Picture.open('FOLDER/a.png'), 90).pixelsHigh", "40");
    row("s.hRotatePictureBase(Picture.open('FOLDER/a.png'), '45').pixel(0, 0)[3]", "0");
    row("s.hRotatePictureBase(Picture.open('FOLDER/a.png'), NaN)", "null");
    row("s.hRotatePicture('FOLDER/a.png', 'FOLDER/out/')",
        "TypeError: hRotatePicture takes 3 arguments but received 2");
}

void TestSeamTurning::answersWhatItIsAsked()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    QFETCH(QByteArray, said);
    expression.replace(QStringLiteral("FOLDER"), m_run.pathOf({}));
    LogCapture log;
    const QString value =
        m_run.valueOf(QStringLiteral("((s) => (%1))(new ZtImageHandling())").replace(QStringLiteral("%1"), expression));
    QCOMPARE(log.text(), said);
    QCOMPARE(value, outcome);
}

QUORLIN_TEST(TestSeamTurning)
#include "tst_seam_turning.moc"
