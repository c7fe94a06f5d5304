#include "platform/graphics/resample.h"
#include "platform/imageio/convert/resized_jpeg.h"
#include "platform/imageio/source/screen_pixels.h"
#include "tests/support/corpus.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using platform::ImageSource;

namespace {

/** Whether this process has loaded a library whose file begins with that name. */
bool isLoaded(const char *name)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(QByteArray("/") + name);
}

bool isMadeOnDemand()
{
#ifdef QUORLIN_ON_DEMAND
    return true;
#else
    return false;
#endif
}

} // namespace

/** Libraries that are loaded when a picture needs them. */
class OnDemand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aJpegIsMadeSmallerWithoutThem()
    {
        if (!isMadeOnDemand())
            QSKIP("this build links its libraries");
        const auto source = ImageSource::open(picturePath("own/formats/photo.jpg"));
        QVERIFY(source);
        const QSize half = source->uprightSize() / 2;
        platform::EncodeOptions options;
        options.quality = 80;
        QVERIFY(platform::resizedJpeg(*source, {half, QRect(QPoint(0, 0), half), 1}, options));
        QVERIFY(!isLoaded("libvips.so"));
        QVERIFY(!isLoaded("libheif.so"));
    }

    void aJpegIsShownWithoutThem()
    {
        if (!isMadeOnDemand())
            QSKIP("this build links its libraries");
        const auto source = ImageSource::open(picturePath("own/formats/photo.jpg"));
        QVERIFY(source);
        const auto shown = platform::screenPixelsOf(*source, source->uprightSize() / 3);
        QVERIFY(shown);
        const auto page = platform::placed(*shown, {5, 7}, shown->size() + QSize(10, 14));
        QVERIFY(page && page->hasAlpha());
        QVERIFY(!page->toScreenImage().isNull());
        QCOMPARE(page->pixel(0, 0)[3], 0);
        QCOMPARE(page->pixel(5, 7), shown->pixel(0, 0));
        QVERIFY(!isLoaded("libvips.so"));
    }

    void anotherPictureLoadsThem()
    {
        const auto source = ImageSource::open(picturePath("own/formats/rgb8.png"));
        QVERIFY(source);
        QVERIFY(source->decode());
        QVERIFY(isLoaded("libvips.so"));
    }

    /** Functions with more arguments than registers, numbers with fractions and objects go through the stubs as well. */
    void argumentsArriveAsTheyWere()
    {
        const auto source = ImageSource::open(picturePath("own/formats/rgb8.png"));
        QVERIFY(source);
        const QSize size(37, 23);
        const auto small = source->decodeScaled(size);
        QVERIFY(small);
        QCOMPARE(small->size(), size);
        const auto whole = source->decode();
        QVERIFY(whole);
        const auto corner = source->decodePart(QRect(1, 2, 3, 4));
        QVERIFY(corner);
        QCOMPARE(corner->pixel(0, 0), whole->pixel(1, 2));
        QCOMPARE(corner->pixel(2, 3), whole->pixel(3, 5));
    }
};

QUORLIN_TEST(OnDemand)
#include "tst_on_demand.moc"
