// make_screenshots SAMPLES FOLDER: pictures of the main window with each action, light and dark, in two sizes.

#include "tests/gui/support/screen_tools.h"

#include "app/window/folders/folder_tree.h"
#include "app/window/folders/side_bar.h"
#include "app/window/look/theme.h"
#include "tests/support/web_server.h"

#include "tests/support/dated_pictures.h"
#include "tests/support/test_pictures.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

void setNumber(WindowDriver &driver, const char *field, double value)
{
    driver.control<QDoubleSpinBox>(field)->setValue(value);
}

// Settings of an action that show what it does.
void prepare(WindowDriver &driver, const QString &action)
{
    if (action == QLatin1String("crop")) {
        choosePreset(driver, "16:9, 1920 × 1080");
    } else if (action == QLatin1String("turn")) {
        driver.click("turnReset");
        setNumber(driver, "angle", 12.5);
    } else if (action == QLatin1String("round")) {
        choosePreset(driver, "Soft corners");
        setNumber(driver, "radius", 300);
    } else if (action == QLatin1String("background")) {
        choosePreset(driver, "Ivory mount");
    }
}

void showActions(WindowDriver &driver, const PicturePath &path)
{
    for (const char *action : {"crop", "turn", "round", "background", "watermark", "convert", "web"}) {
        driver.show(action);
        prepare(driver, QString::fromLatin1(action));
        const QString name = path(action);
        driver.window().resize(1440, 900);
        saveScreen(driver, name + QStringLiteral(".png"));
        driver.window().resize(1280, 720);
        saveScreen(driver, name + QStringLiteral("-small.png"));
    }
}

/** A copy of a sample with another date taken, or none, and another camera. */
void stamped(const QString &from, const QString &to, const QString &date, const QString &model)
{
    QFile target(to);
    if (target.open(QIODevice::WriteOnly))
        target.write(pictures::stamped(pictures::bytesOf(from), date, model));
}

/** Pictures of a few days with two cameras, in a folder that has been sorted into once. */
QString album(const QString &from, const QString &folder)
{
    const QString made = folder + QStringLiteral("/Holiday");
    QDir().mkpath(made + QStringLiteral("/2026/2026-08-14"));
    const QStringList names = {QStringLiteral("Evening ridge.jpg"), QStringLiteral("Lake in the morning.jpg"),
                               QStringLiteral("Standing phone picture.jpg")};
    for (int i = 0; i < 22; ++i) {
        const int day = 14 + i * i / 90;
        const QString date = i == 3 || i == 17 ? QString()
                             : i < 3           ? QStringLiteral("2025:12:31 18:0%1:00").arg(i)
                                               : QStringLiteral("2026:08:%1 10:%2:30").arg(day).arg(10 + i);
        stamped(from + QLatin1Char('/') + names.at(i % 3), made + QStringLiteral("/IMG_%1.JPG").arg(2041 + i), date,
                i % 5 == 0 ? QStringLiteral("Quorlin P2") : QStringLiteral("Quorlin X1"));
    }
    QFile sidecar(made + QStringLiteral("/IMG_2047.xmp"));
    if (sidecar.open(QIODevice::WriteOnly))
        sidecar.write("<x/>");
    return made;
}

void showSorting(WindowDriver &driver, const QString &from, const QString &name)
{
    driver.trigger("clearAction");
    driver.show("sort");
    driver.drop({album(from, driver.folder())});
    driver.window().resize(1440, 900);
    constexpr int allThumbnailsMs = 4000;
    QTest::qWait(allThumbnailsMs);
    saveScreen(driver, name + QStringLiteral(".png"));
    choosePreset(driver, "By camera and day taken");
    settle(driver);
    driver.control<window::FolderTree>("sortTree")->setChosen(driver.folder() + QStringLiteral("/Holiday/Quorlin P2"));
    driver.window().resize(1280, 720);
    saveScreen(driver, name + QStringLiteral("-small.png"));
    driver.trigger("clearAction");
}

// The same pictures on pages.
void showContact(WindowDriver &driver, const QString &name)
{
    driver.show("contact");
    driver.drop({driver.folder() + QStringLiteral("/Holiday")});
    driver.window().resize(1440, 900);
    driver.control<QLineEdit>("header")->setText(QStringLiteral("Holiday"));
    constexpr int allThumbnailsMs = 4000;
    QTest::qWait(allThumbnailsMs);
    saveScreen(driver, name + QStringLiteral(".png"));
    choosePreset(driver, "Contact sheet on black");
    driver.window().resize(1280, 720);
    QTest::qWait(allThumbnailsMs);
    saveScreen(driver, name + QStringLiteral("-small.png"));
    driver.trigger("clearAction");
}

// The panel that saves the current picture, as large as it opens on a screen of 1280 x 720.
void showSaveAs(WindowDriver &driver, const QString &name)
{
    const QString desktop = driver.folder() + QStringLiteral("/Desktop");
    QDir().mkpath(desktop);
    for (const char *picture : {"Harbour.jpg", "Anna and Tom.jpg", "Boat race 2026.jpeg", "Cover.jpg", "Old mill.jpg"})
        QFile::copy(driver.folder() + QStringLiteral("/Pictures/Lake in the morning.jpg"),
                    desktop + QLatin1Char('/') + QLatin1String(picture));
    constexpr int opensMs = 300;
    constexpr int settlesMs = 2500;
    QTimer::singleShot(opensMs, &driver.window(), [] { QApplication::activeModalWidget()->resize(1000, 680); });
    QTimer::singleShot(settlesMs, &driver.window(), [name] {
        QWidget *panel = QApplication::activeModalWidget();
        panel->grab().toImage().convertToFormat(QImage::Format_RGB888).save(name, "PNG", 0);
        panel->close();
    });
    driver.trigger("saveAsAction");
}

// Bars that ask for something inside the window, and the preferences.
void showAsking(WindowDriver &driver, const QString &name)
{
    driver.control<QPushButton>("presetMenu")->menu()->actions().at(1)->trigger();
    driver.control<QLineEdit>("presetName")->setText(QStringLiteral("Anna's"));
    driver.control<QWidget>("supportBar")->show();
    saveScreen(driver, name + QStringLiteral("-asking.png"));
    driver.click("supportLater");
    driver.trigger("presetEscape");
    driver.trigger("preferencesAction");
    settle(driver);
    driver.control<QDialog>("preferencesWindow")->grab().save(name + QStringLiteral("-preferences.png"));
    driver.click("preferencesDone");
}

// The sheets that explain, and the one of a new version.
void showHelp(WindowDriver &driver, const QString &name)
{
    const WebServer server(
        WebServer::page("9.9;999999;Pictures are sharpened after they were made smaller.;Webpages have captions."));
    qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
    const auto save = [&](const char *sheet, const char *close) {
        settle(driver);
        driver.control<QDialog>(sheet)->grab().save(name + QLatin1Char('-') + QLatin1String(sheet) +
                                                    QStringLiteral(".png"));
        driver.click(close);
    };
    driver.trigger("aboutAction");
    save("aboutWindow", "aboutClose");
    driver.click("infoPresets");
    save("infoSheet", "infoClose");
    driver.trigger("updateAction");
    driver.waitFor([] { return QApplication::activeModalWidget() != nullptr; });
    save("newVersionWindow", "newVersionClose");
}

} // namespace

int main(int argc, char **argv)
{
    return makeScreenshots(argc, argv, [](WindowDriver &driver, const QString &samples, const PicturePath &path) {
        const QString name = path("main");
        driver.window().resize(1280, 720);
        saveScreen(driver, name + QStringLiteral("-empty.png"));
        driver.window().resize(1440, 900);
        driver.drop({samplePictures(samples, driver.folder())});
        driver.pictures().step(1);
        choosePreset(driver, "Web 1600");
        saveScreen(driver, name + QStringLiteral(".png"));
        showActions(driver, path);
        showSaveAs(driver, path("save-as") + QStringLiteral(".png"));
        showSorting(driver, samples, path("sort"));
        showContact(driver, path("contact"));
        driver.drop({driver.folder() + QStringLiteral("/Pictures")});
        showAsking(driver, name);
        showHelp(driver, name);
        driver.show("resize");
        driver.click("startButton");
        driver.waitForSummary();
        driver.window().resize(1280, 720);
        saveScreen(driver, name + QStringLiteral("-done.png"));
        driver.control<window::SideBar>("sideBar")->setCurrentAction(QStringLiteral("log"));
        saveScreen(driver, name + QStringLiteral("-log.png"));
    });
}
