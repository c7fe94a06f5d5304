// make_rename_screenshots SAMPLES FOLDER: pictures of the main window with the Rename action, light and dark, in two sizes.

#include "tests/gui/support/screen_tools.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>

namespace {

struct Sample
{
    const char *name;
    const char *from;
    const char *taken; ///< the date that the camera wrote; empty for none
};

constexpr Sample samples[] = {
    {"IMG_2041.JPG", "Evening ridge.jpg", "2026:08:14"},
    {"IMG_2042.JPG", "Lake in the morning.jpg", "2026:08:14"},
    {"IMG_2043 (1).JPG", "Evening ridge.jpg", "2026:08:14"},
    {"Été au lac.tif", "Dunes.tif", "2026:08:15"},
    {"DSC00012.ARW", "Lake in the morning.jpg", "2026:08:15"},
    {"DSC00012.xmp", "", ""},
    {"scan.png", "Night.png", ""},
    {"b.jpg", "Standing phone picture.jpg", "2026:08:15"},
    {"2026-08-15 lake 007.jpg", "Evening ridge.jpg", "2026:08:16"},
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The samples under the names of a camera; the last one stays outside of the list.
QStringList prepared(const QString &from, const QString &folder)
{
    QDir().mkpath(folder);
    QStringList paths;
    for (const Sample &sample : samples) {
        QByteArray content = contentOf(from + QLatin1Char('/') + QString::fromUtf8(sample.from));
        if (*sample.taken)
            content.replace("2026:11:21", sample.taken);
        QFile file(folder + QLatin1Char('/') + QString::fromUtf8(sample.name));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        if (*sample.from)
            paths.append(file.fileName());
    }
    paths.removeLast();
    return paths;
}

void save(WindowDriver &driver, const QString &path)
{
    settle(driver);
    driver.window().grab().toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
}

void saveSmall(WindowDriver &driver, const QString &path)
{
    driver.window().resize(1280, 720);
    save(driver, path);
    driver.window().resize(1440, 900);
}

} // namespace

int main(int argc, char **argv)
{
    return makeScreenshots(argc, argv, [](WindowDriver &driver, const QString &samples, const PicturePath &path) {
        const QString name = path("rename");
        driver.show("rename");
        saveSmall(driver, name + QStringLiteral("-empty.png"));
        driver.drop(prepared(samples, driver.folder() + QStringLiteral("/Pictures")));
        choosePreset(driver, "Date and place");
        driver.click("cardTitle");
        driver.control<QLineEdit>("firstText")->setText(QStringLiteral("{taken} lake {counter:001}"));
        driver.control<QWidget>("central")->setFocus();
        saveSmall(driver, name + QStringLiteral("-open.png"));
        driver.click("cardTitle");
        driver.control<QWidget>("central")->setFocus();
        save(driver, name + QStringLiteral(".png"));
        driver.click("addStep");
        driver.waitFor([&driver] { return driver.control<QWidget>("addMenu")->isVisible(); });
        driver.control<QWidget>("addMenu")->grab().save(name + QStringLiteral("-menu.png"));
        driver.control<QWidget>("addMenu")->hide();
        driver.click("startButton");
        driver.waitForSummary();
        saveSmall(driver, name + QStringLiteral("-done.png"));
    });
}
