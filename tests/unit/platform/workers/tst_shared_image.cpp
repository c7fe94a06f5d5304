#include "platform/descriptors/shared_image.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <array>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace platform;

/** Pixels that come from another process, which may hand over anything. */
class TestSharedImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesThrough_data();
    void comesThrough();
    void cannotBeChangedAfterwards();
    void believesNothing_data();
    void believesNothing();
    void sharesNothingThatIsTooLarge();
};

namespace {

QImage pattern(QSize size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(Qt::transparent);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 7 % 256, y * 11 % 256, (x + y) % 256, 255 - (x * y) % 200));
    return image;
}

Descriptor memory(qint64 bytes, int sealed)
{
    Descriptor file(::memfd_create("test", MFD_ALLOW_SEALING));
    if (::ftruncate(file.number(), bytes) != 0 || ::fcntl(file.number(), F_ADD_SEALS, sealed) != 0)
        qFatal("no memory");
    return file;
}

constexpr int allSeals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

SharedImage said(QSize size, Descriptor pixels)
{
    SharedImage shared;
    shared.size = size;
    shared.pixels = std::move(pixels);
    return shared;
}

} // namespace

void TestSharedImage::comesThrough_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QImage::Format>("expected");
    QTest::newRow("plain") << QSize(17, 5) << QImage::Format_RGB888 << QImage::Format_RGB32;
    QTest::newRow("transparent") << QSize(3, 30) << QImage::Format_RGBA8888 << QImage::Format_ARGB32;
    QTest::newRow("premultiplied") << QSize(9, 9) << QImage::Format_ARGB32_Premultiplied << QImage::Format_ARGB32;
    QTest::newRow("grey") << QSize(1, 1) << QImage::Format_Grayscale8 << QImage::Format_RGB32;
    QTest::newRow("wide") << QSize(32768, 1) << QImage::Format_RGB32 << QImage::Format_RGB32;
}

void TestSharedImage::comesThrough()
{
    QFETCH(QSize, size);
    QFETCH(QImage::Format, format);
    QFETCH(QImage::Format, expected);
    const QImage image = pattern(size, format);
    const auto shared = sharedImage(image);
    QVERIFY(shared);
    QCOMPARE(imageFrom(*shared), image.convertToFormat(expected));
}

void TestSharedImage::cannotBeChangedAfterwards()
{
    const auto shared = sharedImage(pattern({4, 4}, QImage::Format_RGB32));
    QVERIFY(::ftruncate(shared->pixels.number(), 0) != 0);
    QVERIFY(::pwrite(shared->pixels.number(), "x", 1, 0) < 0);
}

void TestSharedImage::believesNothing_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"nothing", "a file", "a pipe", "a socket", "not sealed", "sealed in part", "too short",
                             "too long", "a huge size", "a size that overflows", "no size", "a negative size"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void TestSharedImage::believesNothing()
{
    QFETCH(QString, what);
    ScratchFolder folder;
    const auto is = [&what](const char *name) { return what == QLatin1String(name); };
    std::array<int, 2> ends = {-1, -1};
    SharedImage shared = said({4, 4}, memory(64, allSeals));
    QVERIFY(!imageFrom(shared).isNull()); // so that it is what is wrong that is refused
    if (is("nothing"))
        shared.pixels = Descriptor();
    if (is("a file")) {
        shared.pixels = Descriptor(::open(qPrintable(folder.path("a")), O_RDWR | O_CREAT, 0600));
        QCOMPARE(::ftruncate(shared.pixels.number(), 64), 0);
    }
    if (is("a pipe") && ::pipe(ends.data()) == 0)
        shared.pixels = Descriptor(ends[0]);
    if (is("a socket") && ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) == 0)
        shared.pixels = Descriptor(ends[0]);
    if (is("not sealed"))
        shared.pixels = memory(64, 0);
    if (is("sealed in part"))
        shared.pixels = memory(64, F_SEAL_GROW | F_SEAL_WRITE);
    if (is("too short"))
        shared.pixels = memory(63, allSeals);
    if (is("too long"))
        shared.pixels = memory(65, allSeals);
    if (is("a huge size"))
        shared.size = {32768, 32768};
    if (is("a size that overflows"))
        shared.size = {1 << 30, 1 << 30};
    if (is("no size"))
        shared.size = {0, 4};
    if (is("a negative size"))
        shared.size = {-4, -4};
    QVERIFY(imageFrom(shared).isNull());
    if (ends[1] >= 0)
        ::close(ends[1]);
}

void TestSharedImage::sharesNothingThatIsTooLarge()
{
    QVERIFY(!sharedImage(QImage()));
    QVERIFY(!sharedImage(QImage(mostSharedSide + 1, 1, QImage::Format_RGB32)));
}

QUORLIN_TEST(TestSharedImage)
#include "tst_shared_image.moc"
