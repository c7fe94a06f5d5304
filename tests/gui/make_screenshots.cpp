// make_screenshots SAMPLES FOLDER: pictures of the main window, light and dark, in two sizes.

#include "window_driver.h"

#include "app/window/side_bar.h"
#include "app/window/theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTest>

namespace {

// The sample pictures under the names of a person's own folder, and one file that is no picture.
QString samples(const QString &from, const QString &folder)
{
    const QString made = folder + QStringLiteral("/Pictures");
    QDir().mkpath(made);
    for (const QString &name : QDir(from).entryList(QDir::Files))
        QFile::copy(from + QLatin1Char('/') + name, made + QLatin1Char('/') + name);
    QFile broken(made + QStringLiteral("/Scan 7.jpg"));
    if (broken.open(QIODevice::WriteOnly))
        broken.write("The rest of this picture was lost.");
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
    const QString from = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(folder);
    for (const char *appearance : {"light", "dark"}) {
        qputenv("QUORLIN_APPEARANCE", appearance);
        WindowDriver driver(application);
        const QString name = folder + QStringLiteral("/main-") + QLatin1String(appearance);
        driver.window().resize(1280, 720);
        save(driver, name + QStringLiteral("-empty.png"));
        driver.window().resize(1440, 900);
        driver.drop({samples(from, driver.folder())});
        driver.pictures().step(1);
        save(driver, name + QStringLiteral(".png"));
        driver.click("startButton");
        driver.waitForSummary();
        driver.window().resize(1280, 720);
        save(driver, name + QStringLiteral("-done.png"));
        driver.control<window::SideBar>("sideBar")->setCurrentAction(QStringLiteral("log"));
        save(driver, name + QStringLiteral("-log.png"));
    }
    return 0;
}
