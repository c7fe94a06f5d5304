// make_screenshots CORPUS FOLDER: pictures of the main window, light and dark, in two sizes.

#include "window_driver.h"

#include "app/window/theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTest>

namespace {

// Names as a person's own folder would have them; the pictures are those of the test corpus.
const QList<std::pair<const char *, const char *>> pictures = {
    {"orientation/landscape_1.jpg", "IMG_2041.JPG"},    {"orientation/landscape_6.jpg", "IMG_2042.JPG"},
    {"orientation/portrait_1.jpg", "IMG_2043.JPG"},     {"exif-real/Canon_40D.jpg", "harbour.jpg"},
    {"exif-real/Pentax_K10D.jpg", "lake panorama.jpg"}, {"broken/zero-bytes.jpg", "broken.jpg"},
    {"exif-real/iphone_hdr_YES.jpg", "IMG_2050.JPG"},   {"exif-real/DSCN0010.jpg", "street at noon.jpg"},
    {"orientation/g4_orientation_1.tif", "scan.tif"},   {"exif-real/jolla.jpg", "evening.jpg"},
};

QString samples(const QString &corpus, const QString &folder)
{
    const QString made = folder + QStringLiteral("/Pictures");
    QDir().mkpath(made);
    for (const auto &[from, to] : pictures)
        if (!QFile::copy(corpus + QLatin1Char('/') + QLatin1String(from), made + QLatin1Char('/') + QLatin1String(to)))
            QFile(made + QLatin1Char('/') + QLatin1String(to)).open(QIODevice::WriteOnly);
    return made;
}

void settle(WindowDriver &driver)
{
    QTest::qWait(900);
    driver.waitFor([] { return true; });
}

void save(WindowDriver &driver, const QString &path)
{
    settle(driver);
    driver.window().grab().toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QString corpus = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(folder);
    for (const char *appearance : {"light", "dark"}) {
        qputenv("QUORLIN_APPEARANCE", appearance);
        WindowDriver driver(application);
        const QString name = folder + QStringLiteral("/main-") + QLatin1String(appearance);
        driver.window().resize(1280, 720);
        save(driver, name + QStringLiteral("-empty.png"));
        driver.window().resize(1440, 900);
        driver.drop({samples(corpus, driver.folder())});
        save(driver, name + QStringLiteral(".png"));
        driver.click("startButton");
        driver.waitForSummary();
        driver.window().resize(1280, 720);
        save(driver, name + QStringLiteral("-done.png"));
    }
    return 0;
}
