#include "platform/desktop/user_defaults.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"
#include "views/bounds_text.h"
#include "views/my2ndPhotoView.h"
#include "views/myMainPhotoView.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::Picture;
using views::Medium;

namespace {

/** A scroll view around the view, and what it was asked for. */
class ScrollView : public views::ViewHost
{
public:
    std::optional<QSizeF> scrollContentSize() const override
    {
        if (grows)
            content += QSizeF(1, 1);
        return content;
    }
    void requestRedisplay() override { ++redisplays; }
    void requestLayout() override { ++layouts; }

    mutable QSizeF content;
    bool grows = false;
    int redisplays = 0;
    int layouts = 0;
};

QVariant field(const QObject &view, const char *name)
{
    return view.property(name);
}

Picture pictureIn(const QObject &view, const char *name)
{
    return view.property(name).value<Picture>();
}

QString published()
{
    return platform::userDefault(QStringLiteral("myBounds")).toString();
}

QImage drawn(const auto &view, QSize size, Medium medium)
{
    QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    view.draw(painter, medium);
    return canvas;
}

const QRectF square(0, 0, 80, 80);

Picture redPicture()
{
    return Picture(Bitmap::fromImage(pictures::plain(40, 30, Qt::red)), QSizeF(40, 30));
}

Picture bluePicture()
{
    return Picture(Bitmap::fromImage(pictures::plain(30, 40, Qt::blue)), QSizeF(30, 40));
}

} // namespace

/** The two preview views: the effects of each operation. */
class TestPhotoViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { platform::removeUserDefault(QStringLiteral("myBounds")); }
    void startsWithoutAPictureInFittedMode();
    void logsThatItAwoke();
    void loadsFittedOrFilling_data();
    void loadsFittedOrFilling();
    void loadsOnceOrTwice();
    void leavesTheModeAloneWithoutAPicture();
    void setImageKeepsTheOriginalOfTheMainView();
    void cropPreviewShowsTheKeptOriginal();
    void showsNothingForAnUnreadableFile_data();
    void showsNothingForAnUnreadableFile();
    void followsItsFrameOnceItIsAwake();
    void publishesItsBounds();
    void takesTheContentSizeOfItsScrollView();
    void comesToRestInAScrollViewThatNeverDoes();
    void clampsTheDrawingScale();
    void remembersTheAngleAndTurnsNothing();
    void drawsInTheMiddleOnTheScreenAndNothingOnPaper();
    void drawsScaledAboutTheMiddle();
    void secondViewUsesThePublishedSize();
    void secondViewFitsInBothModes();
    void secondViewStoresImagesTwice();
    void secondViewTakesUpNewBoundsWithItsNextChange();
    void secondViewCopiesTheScale();
    void decodesNoMoreThanTheViewNeeds();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

void TestPhotoViews::initTestCase()
{
    QVERIFY(pictures::plain(40, 30, Qt::red).save(path("red.png")));
    QVERIFY(pictures::plain(30, 40, Qt::blue).save(path("blue.png")));
    QFile text(path("text.jpg"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
    QVERIFY(pictures::gradient(400, 400).save(path("whole.png")));
    QByteArray damaged = pictures::bytesOf(path("whole.png"));
    for (qsizetype i = damaged.size() / 2; i < damaged.size() / 2 + 40; ++i)
        damaged[i] = char(~damaged[i]);
    QFile broken(path("damaged.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write(damaged) == damaged.size());
}

void TestPhotoViews::startsWithoutAPictureInFittedMode()
{
    const myMainPhotoView main;
    QCOMPARE(field(main, "pImageLoaded").toBool(), false);
    QCOMPARE(field(main, "pImageToFit").toBool(), true);
    QCOMPARE(field(main, "pMaxFrameSize").toSizeF(), QSizeF(0, 0));
    QCOMPARE(field(main, "pImageSize").toSizeF(), QSizeF(0, 0));
    QCOMPARE(field(main, "frame").toRectF(), QRectF(0, 0, 0, 0));
    QVERIFY(pictureIn(main, "pImage").isNull());
    const my2ndPhotoView second;
    QCOMPARE(field(second, "pImageLoadedCrop").toBool(), false);
    QCOMPARE(field(second, "pImageToFitCrop").toBool(), true);
}

void TestPhotoViews::logsThatItAwoke()
{
    LogCapture log;
    myMainPhotoView main;
    my2ndPhotoView second;
    main.awakeFromNib();
    second.awakeFromNib();
    QCOMPARE(log.text(), QByteArray("awakeFromNib\n"));
}

void TestPhotoViews::loadsFittedOrFilling_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<bool>("fits");
    for (const char *operation : {"setImageWithPath", "setImageWithPath2", "setImage", "setImageCropPreview"})
        for (const bool fits : {true, false})
            QTest::addRow("%s, %s", operation, fits ? "fit" : "fill") << QString::fromLatin1(operation) << fits;
}

void TestPhotoViews::loadsFittedOrFilling()
{
    QFETCH(QString, operation);
    QFETCH(bool, fits);
    myMainPhotoView view;
    view.setFrame(square);
    view.setProperty("pImageToFit", fits);
    view.setProperty("pImageOrig", QVariant::fromValue(redPicture()));
    if (operation == QStringLiteral("setImageWithPath"))
        view.setImageWithPath(path("red.png"));
    else if (operation == QStringLiteral("setImageWithPath2"))
        view.setImageWithPath2(path("red.png"));
    else if (operation == QStringLiteral("setImage"))
        view.setImage(redPicture());
    else
        view.setImageCropPreview(path("blue.png"), {});
    QCOMPARE(field(view, "pImageLoaded").toBool(), true);
    QCOMPARE(field(view, "pImageToFit").toBool(), fits);
    const Picture shown = pictureIn(view, "pImage");
    QCOMPARE(shown.size(), square.size());
    QCOMPARE(shown.bitmap().pixel(40, 40), (std::array<int, 4>{255, 0, 0, 255}));
    QCOMPARE(shown.bitmap().pixel(40, 2)[3], fits ? 0 : 255);
    QCOMPARE(pictureIn(view, "pImageOrig").pixelSize(), QSize(40, 30));
    QCOMPARE(published(), operation == QStringLiteral("setImageCropPreview") ? QString() : QStringLiteral("{80, 80}"));
}

void TestPhotoViews::loadsOnceOrTwice()
{
    // Without a place to fit into nothing is made of the original that would hide what was loaded.
    myMainPhotoView view;
    view.setImageWithPath2(path("red.png"));
    const Picture first = pictureIn(view, "pImageOrig");
    view.setImageWithPath2(path("red.png"));
    QVERIFY(!(pictureIn(view, "pImageOrig") == first));
    QCOMPARE(pictureIn(view, "pImage").size(), QSizeF(0, 0));
    QVERIFY(!pictureIn(view, "pImage").isNull());
}

void TestPhotoViews::leavesTheModeAloneWithoutAPicture()
{
    myMainPhotoView main;
    main.setImageToFullSize();
    QCOMPARE(field(main, "pImageToFit").toBool(), true);
    main.setProperty("pImageToFit", false);
    main.setImageToFit();
    QCOMPARE(field(main, "pImageToFit").toBool(), false);
    QVERIFY(pictureIn(main, "pImage").isNull());
    my2ndPhotoView second;
    second.setImageToFullSize();
    QCOMPARE(field(second, "pImageToFitCrop").toBool(), true);
    second.setProperty("pImageToFitCrop", false);
    second.setImageToFit();
    QCOMPARE(field(second, "pImageToFitCrop").toBool(), false);
}

void TestPhotoViews::setImageKeepsTheOriginalOfTheMainView()
{
    myMainPhotoView view;
    view.setFrame(square);
    view.setImageWithPath(path("red.png"));
    const Picture original = pictureIn(view, "pImageOrig");
    view.setImage(bluePicture());
    QVERIFY(pictureIn(view, "pImageOrig") == original);
    QCOMPARE(pictureIn(view, "pImage").bitmap().pixel(40, 40), (std::array<int, 4>{255, 0, 0, 255}));
    view.setImage(Picture());
    QCOMPARE(field(view, "pImageLoaded").toBool(), true);
    QCOMPARE(pictureIn(view, "pImage").bitmap().pixel(40, 40)[0], 255);
}

void TestPhotoViews::cropPreviewShowsTheKeptOriginal()
{
    myMainPhotoView view;
    view.setFrame(square);
    view.setImageWithPath(path("red.png"));
    view.setImageCropPreview(path("blue.png"), {});
    QCOMPARE(pictureIn(view, "pImage").bitmap().pixel(40, 40), (std::array<int, 4>{255, 0, 0, 255}));
    QCOMPARE(pictureIn(view, "pImageOrig").pixelSize(), QSize(40, 30));
}

void TestPhotoViews::showsNothingForAnUnreadableFile_data()
{
    QTest::addColumn<QString>("file");
    for (const char *name : {"missing.png", "text.jpg", "damaged.png"})
        QTest::newRow(name) << path(name);
    QTest::newRow("no path") << QString();
}

void TestPhotoViews::showsNothingForAnUnreadableFile()
{
    QFETCH(QString, file);
    myMainPhotoView main;
    main.setFrame(square);
    main.setImageWithPath2(file);
    QCOMPARE(field(main, "pImageLoaded").toBool(), true);
    QVERIFY(pictureIn(main, "pImageOrig").isNull());
    QCOMPARE(pictureIn(main, "pImage").size(), square.size());
    QCOMPARE(drawn(main, QSize(80, 80), Medium::Screen), drawn(main, QSize(80, 80), Medium::Paper));
    my2ndPhotoView second;
    second.setImageWithPath(file);
    QVERIFY(pictureIn(second, "pImageMainOrig").isNull());
    QCOMPARE(pictureIn(second, "pImageMain").size(), square.size());
}

void TestPhotoViews::followsItsFrameOnceItIsAwake()
{
    myMainPhotoView view;
    view.setFrame(square);
    view.setImageWithPath(path("red.png"));
    view.setFrame(QRectF(0, 0, 20, 10));
    QCOMPARE(pictureIn(view, "pImage").size(), square.size());
    const LogCapture log;
    view.awakeFromNib();
    view.setImageWithPath(path("red.png"));
    QCOMPARE(pictureIn(view, "pImage").size(), QSizeF(20, 10));
    view.setFrame(QRectF(5, 5, 60, 50));
    QCOMPARE(pictureIn(view, "pImage").size(), QSizeF(60, 50));
    view.setImageToFullSize();
    view.setFrame(QRectF(5, 5, 60, 60));
    QCOMPARE(pictureIn(view, "pImage").bitmap().pixel(30, 1)[3], 255);
    QCOMPARE(field(view, "pImageToFit").toBool(), false);
}

void TestPhotoViews::publishesItsBounds()
{
    const LogCapture log;
    myMainPhotoView view;
    view.awakeFromNib();
    QCOMPARE(published(), QString());
    view.setFrame(QRectF(7, 9, 640, 480));
    QCOMPARE(published(), QStringLiteral("{640, 480}"));
    view.setFrame(QRectF(7, 9, 640.5, 480));
    QCOMPARE(published(), QStringLiteral("{640.5, 480}"));
    QCOMPARE(pictureIn(view, "pImage").size(), QSizeF(640.5, 480)); // empty, and of the size of the bounds
}

void TestPhotoViews::takesTheContentSizeOfItsScrollView()
{
    const LogCapture log;
    ScrollView scroll;
    scroll.content = QSizeF(120, 90);
    myMainPhotoView view;
    view.attach(&scroll);
    view.awakeFromNib();
    view.setFrame(QRectF(3, 4, 50, 50));
    view.setImageWithPath2(path("red.png"));
    QCOMPARE(field(view, "frame").toRectF(), QRectF(0, 0, 120, 90));
    QCOMPARE(pictureIn(view, "pImage").size(), QSizeF(120, 90));
    QCOMPARE(published(), QStringLiteral("{120, 90}"));
    QVERIFY(scroll.redisplays > 0);
    QCOMPARE(scroll.layouts, 0);
    view.setImageToFullSize();
    QCOMPARE(scroll.layouts, 1);
}

void TestPhotoViews::comesToRestInAScrollViewThatNeverDoes()
{
    const LogCapture log;
    ScrollView scroll;
    scroll.grows = true;
    myMainPhotoView main;
    main.attach(&scroll);
    main.awakeFromNib();
    main.setImageWithPath(path("red.png"));
    my2ndPhotoView second;
    second.attach(&scroll);
    second.awakeFromNib();
    second.setImageWithPath(path("red.png"));
    QVERIFY(scroll.redisplays < 40);
}

void TestPhotoViews::clampsTheDrawingScale()
{
    myMainPhotoView view;
    view.setFrame(QRectF(0, 0, 80, 60));
    view.adjustFrameToFit();
    QCOMPARE(field(view, "pDrawScaleX").toDouble(), 1.0);
    view.setProperty("pMaxFrameSize", QSizeF(160, 240));
    view.adjustFrameToFit();
    QCOMPARE(field(view, "pDrawScaleX").toDouble(), 0.25);
    QCOMPARE(field(view, "pDrawScaleY").toDouble(), 0.25);
    view.setProperty("pMaxFrameSize", QSizeF(40, 40));
    view.adjustFrameToFit();
    QCOMPARE(field(view, "pDrawScaleY").toDouble(), 1.0);
    QCOMPARE(field(view, "frame").toRectF(), QRectF(0, 0, 80, 60));
}

void TestPhotoViews::remembersTheAngleAndTurnsNothing()
{
    ScrollView scroll;
    scroll.content = square.size();
    myMainPhotoView view;
    view.attach(&scroll);
    view.setImageWithPath(path("red.png"));
    const QImage before = drawn(view, QSize(80, 80), Medium::Screen);
    const int redisplays = scroll.redisplays;
    view.rotateByDegrees(90);
    QCOMPARE(field(view, "pAngle").toDouble(), 90.0);
    QCOMPARE(scroll.redisplays, redisplays + 1);
    QCOMPARE(drawn(view, QSize(80, 80), Medium::Screen), before);
}

void TestPhotoViews::drawsInTheMiddleOnTheScreenAndNothingOnPaper()
{
    myMainPhotoView view;
    view.setFrame(square);
    const QImage white = drawn(view, QSize(80, 80), Medium::Screen);
    QCOMPARE(white.pixelColor(40, 40), QColor(Qt::white));
    view.setImageWithPath(path("red.png"));
    const QImage screen = drawn(view, QSize(80, 80), Medium::Screen);
    QCOMPARE(screen.pixelColor(40, 40), QColor(Qt::red));
    QCOMPARE(screen.pixelColor(40, 2), QColor(Qt::white));
    QCOMPARE(drawn(view, QSize(80, 80), Medium::Paper), white);
    view.setProperty("pImageLoaded", false);
    QCOMPARE(drawn(view, QSize(80, 80), Medium::Screen), white);
}

void TestPhotoViews::drawsScaledAboutTheMiddle()
{
    myMainPhotoView view;
    view.setFrame(square);
    view.setProperty("pMaxFrameSize", QSizeF(160, 160));
    view.setImageToFullSize();
    view.setImageWithPath(path("red.png"));
    view.setImageToFullSize();
    const QImage screen = drawn(view, QSize(80, 80), Medium::Screen);
    QCOMPARE(screen.pixelColor(22, 22), QColor(Qt::red));
    QCOMPARE(screen.pixelColor(57, 57), QColor(Qt::red));
    QCOMPARE(screen.pixelColor(17, 40), QColor(Qt::white));
    QCOMPARE(screen.pixelColor(62, 40), QColor(Qt::white));
}

void TestPhotoViews::secondViewUsesThePublishedSize()
{
    my2ndPhotoView view;
    view.setFrame(QRectF(0, 0, 33, 44));
    view.setImageWithPath(path("red.png"));
    QCOMPARE(pictureIn(view, "pImageMain").size(), QSizeF(0, 0));
    QVERIFY(!pictureIn(view, "pImageMain").isNull());
    QCOMPARE(published(), QString());
    views::publishBounds(QSizeF(640, 480));
    view.setImageWithPath2(path("red.png"));
    QCOMPARE(pictureIn(view, "pImageMain").size(), QSizeF(640, 480));
    QCOMPARE(published(), QStringLiteral("{640, 480}"));
    platform::setUserDefault(QStringLiteral("myBounds"), QStringLiteral("garbage"));
    view.setImageToFit();
    QCOMPARE(pictureIn(view, "pImageMain").size(), QSizeF(0, 0));
}

void TestPhotoViews::secondViewFitsInBothModes()
{
    views::publishBounds(square.size());
    my2ndPhotoView view;
    view.setImageWithPath(path("red.png"));
    const QImage fitted = pictureIn(view, "pImageMain").bitmap().toScreenImage();
    view.setImageToFullSize();
    QCOMPARE(field(view, "pImageToFitCrop").toBool(), false);
    QCOMPARE(pictureIn(view, "pImageMain").bitmap().toScreenImage(), fitted);
    QCOMPARE(fitted.pixelColor(40, 2).alpha(), 0);
}

void TestPhotoViews::secondViewStoresImagesTwice()
{
    views::publishBounds(square.size());
    my2ndPhotoView view;
    view.setImageWithPath(path("red.png"));
    const Picture blue = bluePicture();
    view.setImage(blue);
    QVERIFY(pictureIn(view, "pImageMainOrig") == blue);
    QCOMPARE(pictureIn(view, "pImageMain").bitmap().pixel(40, 40), (std::array<int, 4>{0, 0, 255, 255}));
}

void TestPhotoViews::secondViewTakesUpNewBoundsWithItsNextChange()
{
    ScrollView scroll;
    scroll.content = QSizeF(50, 50);
    views::publishBounds(square.size());
    my2ndPhotoView view;
    view.attach(&scroll);
    view.awakeFromNib();
    view.setImageWithPath(path("red.png"));
    QVERIFY(scroll.layouts >= 1);
    views::publishBounds(QSizeF(60, 60));
    QCOMPARE(pictureIn(view, "pImageMain").size(), square.size());
    view.setImageToFit();
    QCOMPARE(pictureIn(view, "pImageMain").size(), QSizeF(60, 60));
    views::publishBounds(QSizeF(70, 70));
    view.setFrame(QRectF(1, 1, 9, 9));
    QCOMPARE(pictureIn(view, "pImageMain").size(), QSizeF(70, 70));
    QCOMPARE(field(view, "frame").toRectF(), QRectF(0, 0, 50, 50));
}

void TestPhotoViews::secondViewCopiesTheScale()
{
    my2ndPhotoView view;
    view.setFrame(QRectF(0, 0, 80, 60));
    view.setProperty("pMaxFrameSize", QSizeF(160, 60));
    QCOMPARE(field(view, "pScale").toDouble(), 0.0);
    view.adjustFrameToFit();
    QCOMPARE(field(view, "pScale").toDouble(), 0.5);
    QCOMPARE(field(view, "pDrawScaleY").toDouble(), 0.5);
}

/** The most memory that this process has had, in kilobytes. */
static qint64 peakKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    return 0;
}

void TestPhotoViews::decodesNoMoreThanTheViewNeeds()
{
    {
        QImage large(6000, 4000, QImage::Format_RGB888);
        large.fill(QColor(200, 120, 40));
        QVERIFY(large.save(path("large.jpg"), "JPEG", 90));
    }
    // Only the peak of what follows counts.
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    const bool isReset = reset.open(QIODevice::WriteOnly) && reset.write("5") == 1;
    reset.close();
    const qint64 before = peakKilobytes();
    myMainPhotoView view;
    view.setFrame(QRectF(0, 0, 1200, 800));
    view.setImageWithPath2(path("large.jpg"));
    view.setImageToFullSize();
    const Picture original = pictureIn(view, "pImageOrig");
    QVERIFY(!original.isDecoded());
    QCOMPARE(original.pixelSize(), QSize(6000, 4000));
    QCOMPARE(pictureIn(view, "pImage").pixelSize(), QSize(1200, 800));
    const qint64 grown = peakKilobytes() - before;
    qInfo("grown by %lld kB at the peak; all pixels are 70313 kB", grown);
    if (isReset && !qEnvironmentVariableIsSet("QUORLIN_SANITIZED"))
        QVERIFY2(grown < 50'000, qPrintable(QString::number(grown)));
    QCOMPARE(original.bitmap().size(), QSize(6000, 4000));
    QVERIFY(original.isDecoded());
}

QUORLIN_TEST(TestPhotoViews)
#include "tst_photo_views.moc"
