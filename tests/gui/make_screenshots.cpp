// make_screenshots SAMPLES FOLDER: pictures of the main window with each action, light and dark, in two sizes.

#include "window_driver.h"

#include "app/window/color_well.h"
#include "app/window/side_bar.h"
#include "app/window/theme.h"

#include <QApplication>
#include <QDir>
#include <QDoubleSpinBox>
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
    driver.control<QWidget>("central")->setFocus();
    settle(driver);
    driver.window().grab().toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
}

void setNumber(WindowDriver &driver, const char *field, double value)
{
    driver.control<QDoubleSpinBox>(field)->setValue(value);
}

// Settings of an action that show what it does.
void prepare(WindowDriver &driver, const QString &action)
{
    if (action == QLatin1String("crop")) {
        setNumber(driver, "cropPercent", 30);
    } else if (action == QLatin1String("turn")) {
        driver.click("turnReset");
        setNumber(driver, "angle", 12.5);
    } else if (action == QLatin1String("round")) {
        setNumber(driver, "radius", 300);
    } else if (action == QLatin1String("background")) {
        driver.choose("frame", QStringLiteral("band"));
        setNumber(driver, "bandWidth", 60);
        driver.control<window::ColorWell>("bandColor")->setColor(QStringLiteral("#e8e2d4"));
        Q_EMIT driver.control<window::ColorWell>("bandColor")->chosen(QStringLiteral("#e8e2d4"));
    }
}

void showActions(WindowDriver &driver, const QString &folder, const QString &appearance)
{
    for (const char *action : {"crop", "turn", "round", "background"}) {
        driver.show(action);
        prepare(driver, QString::fromLatin1(action));
        const QString name = folder + QLatin1Char('/') + QString::fromLatin1(action) + QLatin1Char('-') + appearance;
        driver.window().resize(1440, 900);
        save(driver, name + QStringLiteral(".png"));
        driver.window().resize(1280, 720);
        save(driver, name + QStringLiteral("-small.png"));
    }
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
        showActions(driver, folder, QString::fromLatin1(appearance));
        driver.show("resize");
        driver.click("startButton");
        driver.waitForSummary();
        driver.window().resize(1280, 720);
        save(driver, name + QStringLiteral("-done.png"));
        driver.control<window::SideBar>("sideBar")->setCurrentAction(QStringLiteral("log"));
        save(driver, name + QStringLiteral("-log.png"));
    }
    return 0;
}
