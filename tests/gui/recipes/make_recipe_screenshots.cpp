// make_recipe_screenshots SAMPLES FOLDER: pictures of the Recipe action, light and dark, in two sizes.

#include "tests/gui/support/screen_tools.h"

#include <QFile>
#include <QTest>

namespace {

void saveSmall(WindowDriver &driver, const QString &path)
{
    driver.window().resize(1280, 720);
    saveScreen(driver, path);
    driver.window().resize(1440, 900);
}

/** A recipe of somebody else, which wants to touch more than the pictures. */
QString strangersRecipe(const QString &folder)
{
    const QString path = folder + QStringLiteral("/From the agency.quorlin");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(R"({"quorlin": 1, "name": "From the agency",
  "operations": [{"do": "watermark", "picture": "/usr/share/agency/logo.png"}],
  "outputs": [{"type": "jpeg", "folder": "/srv/agency/{taken:yyyy}"}]})");
    return path;
}

} // namespace

int main(int argc, char **argv)
{
    return makeScreenshots(argc, argv, [](WindowDriver &driver, const QString &samples, const PicturePath &path) {
        const QString name = path("recipe");
        driver.show("recipe");
        driver.drop({samplePictures(samples, driver.folder() + QStringLiteral("/Pictures"))});
        saveScreen(driver, name + QStringLiteral(".png"));
        driver.click("cardTitle");
        saveSmall(driver, name + QStringLiteral("-open.png"));
        driver.click("cardTitle");
        driver.click("addOperation");
        QTest::qWait(200);
        driver.control<QWidget>("operationMenu")->grab().save(name + QStringLiteral("-menu.png"));
        driver.control<QWidget>("operationMenu")->hide();
        driver.drop({strangersRecipe(driver.folder())});
        saveSmall(driver, name + QStringLiteral("-reach.png"));
    });
}
