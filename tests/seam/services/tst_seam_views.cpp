#include "tests/seam/support/ScriptRun.h"

#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

/** The preview views as scripts work them, without a window. */
class TestSeamViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_run.valueOf(QStringLiteral("defaults.remove('myBounds')")); }
    void answersWhatItIsAsked_data();
    void answersWhatItIsAsked();

private:
    ScriptRun m_run;
};

void TestSeamViews::initTestCase()
{
    QVERIFY(pictures::plain(400, 300, QColor(250, 0, 0)).save(m_run.pathOf(QStringLiteral("a.png"))));
    QVERIFY(pictures::plain(300, 400, QColor(0, 0, 250)).save(m_run.pathOf(QStringLiteral("b.png"))));
}

void TestSeamViews::answersWhatItIsAsked_data()
{
    QTest::addColumn<QString>("statements");
    QTest::addColumn<QString>("outcome");
    using Row = std::array<const char *, 3>;
    for (const auto &[name, statements, outcome] : std::initializer_list<Row>{
             {"fields at first",
              "return [m.pImageLoaded, m.pImageToFit, m.pImage, m.tfActivePicture, m.pScale, m.frame];",
              "[false,true,null,null,0,{\"x\":0,\"y\":0,\"width\":0,\"height\":0}]"},
             {"fits",
              "m.frame = { x: 0, y: 0, width: 80, height: 80 }; m.setImageWithPath2(a); const p = m.pImage;"
              "return [p.width, p.height, p.pixelsWide, p.pixel(40, 5), p.pixel(40, 40)];",
              "[80,80,80,[0,0,0,0],[250,0,0,255]]"},
             {"fills",
              "m.frame = { x: 0, y: 0, width: 80, height: 80 }; m.setImageWithPath(a); m.setImageToFullSize();"
              "return [m.pImageToFit, m.pImage.pixel(40, 5)];",
              "[false,[250,0,0,255]]"},
             {"publishes and follows",
              "m.awakeFromNib(); m.setImageWithPath(a); m.frame = { x: 1, y: 2, width: 60.5, height: 40 };"
              "return [defaults.get('myBounds'), m.pImage.width, m.pImage.pixelsWide, m.frame.x];",
              "[\"{60.5, 40}\",60.5,61,1]"},
             {"takes any notification",
              "m.boundsDidChangeNotification(null); m.boundsDidChangeNotification({ name: 1 });"
              "m.boundsDidChangeNotification(m); m.setImageCropPreview(a, 'x'); c.cropBoundsDidChangeNotification(7);"
              "return m.pImageLoaded;",
              "true"},
             {"keeps what it does not use",
              "const field = new TextField({ stringValue: 'n' }); m.tfActivePicture = field; m.pImageSize = { width: "
              "3, "
              "height: 4 }; m.tNewFrameW = 2.5; m.pImageCrop = Picture.open(b); c.simulationMode = field;"
              "return [m.tfActivePicture === field, m.pImageSize, m.tNewFrameW, m.pImageCrop.pixelsHigh, "
              "c.simulationMode.stringValue];",
              "[true,{\"width\":3,\"height\":4},2.5,400,\"n\"]"},
             {"the second view takes the size of the first",
              "m.frame = { x: 0, y: 0, width: 64, height: 48 }; m.setImageWithPath(a); c.setImageWithPath(b);"
              "return [c.pImageMain.width, c.pImageMain.height, c.pImageMain.pixel(32, 24), c.pScale];",
              "[64,48,[0,0,250,255],1]"},
             {"the second view without that size",
              "c.setImageWithPath(b); return [c.pImageMain.width, c.pImageMain.pixelsWide];", "[0,0]"},
             {"scale",
              "m.frame = { x: 0, y: 0, width: 80, height: 60 }; m.pMaxFrameSize = { width: 160, height: 60 };"
              "m.adjustFrameToFit(); return [m.pDrawScaleX, m.pDrawScaleY, m.frame.width];",
              "[0.5,0.5,80]"},
             {"resizes for display",
              "const p = m.resizeImageAspectRatioFit(Picture.open(a), { width: 20, height: 30 });"
              "const q = m.resizeImageAspectRatioFitFullFrame(null, { width: 5, height: 6 });"
              "return [p.pixelsWide, p.pixelsHigh, p.pixel(10, 2)[3], q.pixelsHigh, q.pixel(1, 1)];",
              "[20,30,0,6,[0,0,0,0]]"},
             {"remembers the angle",
              "m.rotateByDegrees(90); m.viewWillDraw(); m.drawRect({ x: 0, y: 0, width: 1, height: 1 });"
              "return m.pAngle;",
              "90"},
             {"an unreadable file",
              "m.frame = { x: 0, y: 0, width: 8, height: 6 }; m.setImageWithPath('/none.jpg');"
              "return [m.pImageLoaded, m.pImageOrig, m.pImage.pixelsWide];",
              "[true,null,8]"},
         })
        QTest::newRow(name) << QString::fromUtf8(statements) << QString::fromUtf8(outcome);
}

void TestSeamViews::answersWhatItIsAsked()
{
    QFETCH(QString, statements);
    QFETCH(QString, outcome);
    const QString text = QStringLiteral("((m, c, a, b) => { %1 })(new myMainPhotoView(), new my2ndPhotoView(), "
                                        "'FOLDER/a.png', 'FOLDER/b.png')");
    QCOMPARE(m_run.valueOf(QString(text)
                               .replace(QStringLiteral("%1"), statements)
                               .replace(QStringLiteral("FOLDER"), m_run.pathOf({}))),
             outcome);
}

QUORLIN_TEST(TestSeamViews)
#include "tst_seam_views.moc"
