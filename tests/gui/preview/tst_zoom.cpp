#include "app/window/preview/compare_preview.h"
#include "jobs/desk/worker_desk.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

using window::ComparePreview;

namespace {

constexpr QSize photoSize(1500, 1000);
constexpr QSize viewSize(800, 400);

/** Every pixel has a different colour. */
QImage numberedPixels()
{
    QImage image(photoSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x & 255, y & 255, (x >> 8) + 16 * (y >> 8)));
    return image;
}

QVariantMap edit(const QVariantMap &operation)
{
    return {{QStringLiteral("do"), QStringLiteral("recipe")},
            {QStringLiteral("path"), QStringLiteral("/a.png")},
            {QStringLiteral("operations"), QVariantList{operation}}};
}

QVariantMap resultOf(const QVariantMap &operation, QSize size)
{
    return {{QStringLiteral("edits"), QVariantList{edit(operation)}},
            {QStringLiteral("width"), size.width()},
            {QStringLiteral("height"), size.height()},
            {QStringLiteral("type"), QStringLiteral("public.png")}};
}

QVariantMap flipped()
{
    return resultOf(
        {{QStringLiteral("do"), QStringLiteral("flip")}, {QStringLiteral("direction"), QStringLiteral("horizontal")}},
        photoSize);
}

void useWorkers()
{
    jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
}

} // namespace

/** Both pictures looked at closely. */
class TestZoom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void showsThePixelsOfBoth();
    void movesBothTogether();
    void keepsThePointUnderTheMouse();
    void goesBackToTheWholePicture();
    void showsTheSamePlaceOfACrop();
    void showsEachPixelAsASquare();
    void resizedResultsShowTheirOwnPixels();
    void keepsItsPlaceInTheNextPicture();
    void looksByKeys();
    void flipsWhileAKeyIsHeld();
    void showsTheResultInThePlaceOfTheOriginal();

private:
    /** Colours in the middle of both halves, away from any text. */
    QImage seen(bool isResult) const;
    static QImage part(const QImage &image, QPoint middle);
    QRgb middle(bool isResult) const;
    bool show(const char *name = "photo.png");
    bool showResult(const QVariantMap &result);
    bool zoom(double scale);
    void turnWheel(QPointF at, int steps);
    void drag(QPoint from, QPoint by);

    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
    QImage m_photo = numberedPixels();
    std::unique_ptr<ComparePreview> m_preview;
};

void TestZoom::initTestCase()
{
    useWorkers();
    QVERIFY(m_photo.save(path("photo.png")));
    QVERIFY(m_photo.mirrored(false, true).save(path("next.png")));
}

void TestZoom::init()
{
    m_preview = std::make_unique<ComparePreview>();
    m_preview->resize(viewSize);
    m_preview->show();
}

QImage TestZoom::seen(bool isResult) const
{
    const QImage all = m_preview->grab().toImage().convertToFormat(QImage::Format_RGB32);
    return part(all, {viewSize.width() * (isResult ? 3 : 1) / 4, viewSize.height() / 2});
}

QImage TestZoom::part(const QImage &image, QPoint middle)
{
    constexpr QPoint half(80, 60);
    return image.copy(QRect(middle - half, middle + half - QPoint(1, 1)));
}

QRgb TestZoom::middle(bool isResult) const
{
    const QImage image = seen(isResult);
    return image.pixel(image.width() / 2, image.height() / 2);
}

bool TestZoom::show(const char *name)
{
    QSignalSpy shown(m_preview.get(), &ComparePreview::pictureShown);
    m_preview->showPicture(path(name));
    return shown.wait(20000);
}

bool TestZoom::showResult(const QVariantMap &result)
{
    QSignalSpy shown(m_preview.get(), &ComparePreview::resultShown);
    m_preview->showResult(result);
    return shown.wait(20000);
}

bool TestZoom::zoom(double scale)
{
    QSignalSpy part(m_preview.get(), &ComparePreview::partShown);
    m_preview->setZoom(scale);
    return part.wait(20000);
}

void TestZoom::turnWheel(QPointF at, int steps)
{
    constexpr int perStep = 120;
    QWheelEvent event(at, m_preview->mapToGlobal(at), QPoint(), QPoint(0, steps * perStep), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_preview.get(), &event);
}

void TestZoom::drag(QPoint from, QPoint by)
{
    QTest::mousePress(m_preview.get(), Qt::LeftButton, Qt::NoModifier, from);
    const QPointF to = from + by;
    QMouseEvent move(QEvent::MouseMove, to, m_preview->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_preview.get(), &move);
    QTest::mouseRelease(m_preview.get(), Qt::LeftButton, Qt::NoModifier, from + by);
}

void TestZoom::showsThePixelsOfBoth()
{
    QVERIFY(show());
    QVERIFY(showResult(flipped()));
    QVERIFY(seen(false) != part(m_photo, {750, 500}));
    QVERIFY(zoom(1));
    QTRY_COMPARE_WITH_TIMEOUT(seen(false), part(m_photo, {750, 500}), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(seen(true), part(m_photo.mirrored(true, false), {750, 500}), 20000);
    QVERIFY(m_preview->accessibleDescription().contains(QStringLiteral("100%")));
}

void TestZoom::movesBothTogether()
{
    QVERIFY(show());
    QVERIFY(showResult(flipped()));
    QVERIFY(zoom(1));
    drag({100, 200}, {-130, 40});
    QTRY_COMPARE_WITH_TIMEOUT(seen(false), part(m_photo, {880, 460}), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(seen(true), part(m_photo.mirrored(true, false), {880, 460}), 20000);
    // From the other side, and no further than to the corner.
    drag({600, 200}, {3000, 3000});
    QTRY_COMPARE_WITH_TIMEOUT(seen(false), part(m_photo, {200, 200}), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(seen(true), part(m_photo.mirrored(true, false), {200, 200}), 20000);
}

void TestZoom::keepsThePointUnderTheMouse()
{
    QVERIFY(show());
    QVERIFY(zoom(1));
    const QPoint at(260, 250);
    const QRgb before = m_preview->grab().toImage().pixel(at);
    QCOMPARE(before, m_photo.pixel(750 + 60, 500 + 50));
    QSignalSpy shown(m_preview.get(), &ComparePreview::partShown);
    turnWheel(at, 2);
    QCOMPARE(m_preview->zoom(), 2.0);
    QVERIFY(shown.wait(20000));
    // One pixel is two by two now; the mouse is at one of these.
    const QRgb after = m_preview->grab().toImage().pixel(at);
    QVERIFY(qAbs(qRed(after) - qRed(before)) <= 1 && qAbs(qGreen(after) - qGreen(before)) <= 1);
}

void TestZoom::goesBackToTheWholePicture()
{
    QVERIFY(show());
    QVERIFY(showResult(flipped()));
    const QImage whole = seen(true);
    QSignalSpy changed(m_preview.get(), &ComparePreview::zoomChanged);
    turnWheel({200, 200}, 1);
    QCOMPARE(m_preview->zoom(), 0.25);
    turnWheel({200, 200}, -1);
    QCOMPARE(m_preview->zoom(), 0.0);
    QCOMPARE(changed.size(), 2);
    turnWheel({200, 200}, -1);
    QCOMPARE(m_preview->zoom(), 0.0);
    QTRY_COMPARE_WITH_TIMEOUT(seen(true), whole, 20000);
}

void TestZoom::showsTheSamePlaceOfACrop()
{
    QVERIFY(show());
    const QRect frame(400, 300, 900, 600);
    m_preview->setCropFrame({{QStringLiteral("x"), frame.x()},
                             {QStringLiteral("y"), frame.y()},
                             {QStringLiteral("width"), frame.width()},
                             {QStringLiteral("height"), frame.height()}});
    const QVariantMap cut = {{QStringLiteral("do"), QStringLiteral("crop")},
                             {QStringLiteral("width"), frame.width()},
                             {QStringLiteral("height"), frame.height()},
                             {QStringLiteral("position"), QStringLiteral("top left")},
                             {QStringLiteral("offset"), QVariantList{frame.x(), frame.y()}}};
    QVERIFY(showResult(resultOf(cut, frame.size())));
    QVERIFY(zoom(1));
    QTRY_COMPARE_WITH_TIMEOUT(seen(true), part(m_photo, {750, 500}), 20000);
    drag({600, 200}, {-50, -30});
    QTRY_COMPARE_WITH_TIMEOUT(seen(true), part(m_photo, {800, 530}), 20000);
}

void TestZoom::showsEachPixelAsASquare()
{
    QVERIFY(show());
    QVERIFY(zoom(8));
    const QImage image = seen(false);
    const QImage own = m_photo.copy(QRect(745, 495, 10, 10));
    constexpr int side = 8;
    for (int y = 0; y < own.height(); ++y)
        for (int x = 0; x < own.width(); ++x)
            QCOMPARE(image.pixel(80 + (x - 5) * side + side / 2, 60 + (y - 5) * side + side / 2), own.pixel(x, y));
}

void TestZoom::resizedResultsShowTheirOwnPixels()
{
    QVERIFY(show());
    const QVariantMap smaller = {{QStringLiteral("do"), QStringLiteral("resize")}, {QStringLiteral("width"), 750}};
    QVERIFY(showResult(resultOf(smaller, {750, 500})));
    QVERIFY(zoom(1));
    // Half as many pixels: the colours of the middle, and twice as far from one to the next.
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(qRed(middle(true)) - (750 & 255)) <= 2, 20000);
    const QImage image = seen(true);
    QVERIFY(qAbs(qRed(image.pixel(80, 60)) - qRed(image.pixel(70, 60)) - 20) <= 2);
}

void TestZoom::keepsItsPlaceInTheNextPicture()
{
    QVERIFY(show());
    QVERIFY(zoom(1));
    drag({200, 200}, {-100, 0});
    QTRY_COMPARE_WITH_TIMEOUT(seen(false), part(m_photo, {850, 500}), 20000);
    m_preview->prepare({path("next.png")});
    QVERIFY(show("next.png"));
    QTRY_COMPARE_WITH_TIMEOUT(seen(false), part(m_photo.mirrored(false, true), {850, 500}), 20000);
}

void TestZoom::looksByKeys()
{
    QVERIFY(show());
    QTest::keyClick(m_preview.get(), Qt::Key_Plus);
    QVERIFY(m_preview->zoom() > 0);
    QVERIFY(zoom(1));
    QTest::keyClick(m_preview.get(), Qt::Key_Right, Qt::ShiftModifier);
    QTRY_COMPARE_WITH_TIMEOUT(seen(false), part(m_photo, {800, 500}), 20000);
    QSignalSpy stepped(m_preview.get(), &ComparePreview::stepRequested);
    QTest::keyClick(m_preview.get(), Qt::Key_Right);
    QCOMPARE(stepped.size(), 1);
}

void TestZoom::flipsWhileAKeyIsHeld()
{
    QVERIFY(show());
    QVERIFY(showResult(flipped()));
    const QImage result = seen(true);
    QTest::keyPress(m_preview.get(), Qt::Key_F);
    QCOMPARE(seen(true), seen(false));
    QVERIFY(seen(true) != result);
    QTest::keyRelease(m_preview.get(), Qt::Key_F);
    QCOMPARE(seen(true), result);
}

void TestZoom::showsTheResultInThePlaceOfTheOriginal()
{
    m_preview->setSingle(true);
    QVERIFY(show());
    const QImage original = m_preview->grab().toImage();
    QVERIFY(showResult(flipped()));
    const QImage result = m_preview->grab().toImage();
    QVERIFY(result != original);
    QTest::keyPress(m_preview.get(), Qt::Key_F);
    QCOMPARE(m_preview->grab().toImage().copy(200, 100, 400, 200), original.copy(200, 100, 400, 200));
    QTest::keyRelease(m_preview.get(), Qt::Key_F);
    QCOMPARE(m_preview->grab().toImage().copy(200, 100, 400, 200), result.copy(200, 100, 400, 200));
}

QUORLIN_GUI_TEST(TestZoom)
#include "tst_zoom.moc"
