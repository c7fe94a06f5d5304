// show_window PICTURE SCALE: shows the program's window with a picture on the display that the environment names, and prints one line: the
// platform, how many pixels of the screen a pixel of the window has, and the size of what was drawn; ends with 1 where it was not drawn.

#include "tests/gui/support/window_driver.h"

#include <QApplication>
#include <QGuiApplication>
#include <QImage>
#include <QSet>
#include <QTest>

#include <cstdio>

namespace {

constexpr int opensMs = 60000;
constexpr int fewestColors = 100; // a window with a picture, texts and icons has far more

int colorsOf(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 5)
        for (int x = 0; x < image.width(); x += 5)
            colors.insert(image.pixel(x, y));
    return int(colors.size());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", argv[2]); // what surrounds a test is no part of it: the harness has cleared it
    QApplication application(argc, argv);
    qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
    WindowDriver driver(application);
    driver.window().resize(1280, 720);
    driver.drop({QString::fromLocal8Bit(argv[1])});
    const bool isShown = QTest::qWaitForWindowExposed(&driver.window(), opensMs);
    const bool isThere =
        driver.waitFor([&driver] { return driver.cell(0, window::PictureModel::Status) == QLatin1String("Ready"); });
    const QImage drawn = driver.window().grab().toImage();
    std::printf("%s %.2f %dx%d\n", qPrintable(QGuiApplication::platformName()), driver.window().devicePixelRatioF(),
                drawn.width(), drawn.height());
    return isShown && isThere && colorsOf(drawn) >= fewestColors ? 0 : 1;
}
