// make_page_screenshots SAMPLES FOLDER: pictures of the pages that own the centre of the window, light and dark, in two sizes.

#include "tests/gui/support/screen_tools.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "meta/mMeta.h"
#include "meta/metadata_file.h"

#include "platform/desktop/user_defaults.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace {

struct MadeRun
{
    const char *id;
    const char *process;
    const char *action;
    const char *target;
    int count;
    int failing; ///< every so many entries one fails; 0 for none
    int hoursAgo;
    const char *undoes = "";
};

// Comments of a run, two of which were reverted after it.
void writeEdits(QFile &file, const QDateTime &now)
{
    const auto write = [&](int number, const char *run, const char *undoes, const QString &before, const QString &after,
                           bool fails) {
        const QString name = QStringLiteral("IMG_%1.JPG").arg(2041 + number);
        const QString path = QStringLiteral("/media/pictures/Lake/") + name;
        const bool isBack = *undoes != '\0';
        const QJsonObject line = {
            {QStringLiteral("date"), now.addSecs((isBack ? -600 : -1800) + number).toString(Qt::ISODateWithMs)},
            {QStringLiteral("process"), QStringLiteral("Metadata")},
            {QStringLiteral("action"), isBack ? QStringLiteral("Revert comment") : QStringLiteral("Write comment")},
            {QStringLiteral("status"), fails ? QStringLiteral("Failed") : QStringLiteral("OK")},
            {QStringLiteral("reason"), fails ? QStringLiteral("the file is write-protected") : QString()},
            {QStringLiteral("inputPath"), path},
            {QStringLiteral("outputPath"), path},
            {QStringLiteral("before"), before},
            {QStringLiteral("after"), fails ? before : after},
            {QStringLiteral("undoes"), QString::fromUtf8(undoes)},
            {QStringLiteral("run"), QString::fromUtf8(run)}};
        file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
    };
    const auto old = [](int i) { return i % 3 == 0 ? QStringLiteral("OLYMPUS DIGITAL CAMERA") : QString(); };
    const auto made = [](int i) { return QStringLiteral("Lake at Brelmark, 2026-08-14, picture %1").arg(i + 1); };
    for (int i = 0; i < 64; ++i)
        write(i, "2026-11-20T08:00:00Z", "", old(i), made(i), i == 59);
    for (int i = 62; i < 64; ++i)
        write(i, "2026-11-20T09:00:00Z", "2026-11-20T08:00:00Z", made(i), old(i), false);
}

// A log as somebody has it after some days of work.
void writeLog(const QString &home)
{
    const MadeRun runs[] = {
        {"2026-11-20T01:00:00Z", "Resize", "longest 1600", "Web", 240, 0, 75},
        {"2026-11-20T02:00:00Z", "Crop", "16:9, 1920 × 1080", "Cut", 36, 12, 52},
        {"2026-11-20T03:00:00Z", "Rename", "date taken, counter", "", 318, 0, 30},
        {"2026-11-20T03:30:00Z", "Rename", "Undo", "", 318, 0, 30, "2026-11-20T03:00:00Z"},
        {"2026-11-20T04:00:00Z", "Resize", "longest 256", "Thumbnails", 24, 0, 29},
        {"2026-11-20T05:00:00Z", "Round Corners", "radius 40", "Round", 12, 6, 5},
        {"2026-11-20T06:00:00Z", "Sort by Hand", "Move to Lake", "", 61, 0, 4},
        {"2026-11-20T07:00:00Z", "Resize", "longest 1600", "Web", 48, 16, 1},
    };
    const QString folder = home + QStringLiteral("/.local/share/quorlin");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/log.jsonl"));
    if (!file.open(QIODevice::WriteOnly))
        return;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const MadeRun &run : runs) {
        for (int i = 0; i < run.count; ++i) {
            const bool fails = run.failing > 0 && i % run.failing == run.failing - 1;
            const QString name = QStringLiteral("IMG_%1.JPG").arg(2041 + i);
            const QString result = QStringLiteral("IMG_%1.jpg").arg(2041 + i);
            const QString lake = QStringLiteral("/media/pictures/Lake/");
            const QString target = lake + QString::fromUtf8(run.target) + QLatin1Char('/');
            const QJsonObject line = {
                {QStringLiteral("date"), now.addSecs(-3600 * run.hoursAgo + i).toString(Qt::ISODateWithMs)},
                {QStringLiteral("process"), QString::fromUtf8(run.process)},
                {QStringLiteral("action"), QString::fromUtf8(run.action)},
                {QStringLiteral("status"), fails ? QStringLiteral("Failed") : QStringLiteral("OK")},
                {QStringLiteral("reason"), fails ? QStringLiteral("not a readable picture") : QString()},
                {QStringLiteral("input"), name},
                {QStringLiteral("output"), fails ? QString() : result},
                {QStringLiteral("inputPath"), lake + name},
                {QStringLiteral("outputPath"), fails ? QString() : target + result},
                {QStringLiteral("undoes"), QString::fromUtf8(run.undoes)},
                {QStringLiteral("run"), QString::fromUtf8(run.id)}};
            file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
        }
    }
    writeEdits(file, now);
}

void saveBoth(WindowDriver &driver, const QString &name)
{
    driver.window().resize(1440, 900);
    saveScreen(driver, name + QStringLiteral(".png"));
    driver.window().resize(1280, 720);
    saveScreen(driver, name + QStringLiteral("-small.png"));
}

void showLog(WindowDriver &driver, const QString &name)
{
    driver.show("log");
    saveScreen(driver, name + QStringLiteral("-empty.png"));
    writeLog(driver.folder());
    driver.show("resize");
    driver.show("log");
    settle(driver);
    driver.control<window::LogTable>("logTable")->selectRow(3);
    saveBoth(driver, name + QStringLiteral("-all"));
    driver.control<window::RunList>("logRuns")->choose(QStringLiteral("2026-11-20T07:00:00Z"));
    driver.control<window::LogTable>("logTable")->selectRow(0);
    saveBoth(driver, name);
    driver.control<window::RunList>("logRuns")->choose(QStringLiteral("2026-11-20T08:00:00Z"));
    driver.control<window::LogTable>("logTable")->selectRow(1);
    saveBoth(driver, name + QStringLiteral("-comments"));
    driver.control<window::RunList>("logRuns")->chooseAll();
    driver.choose("logKind", QStringLiteral("comments"));
    saveBoth(driver, name + QStringLiteral("-edits"));
    driver.choose("logKind", QString());
    driver.control<window::RunList>("logRuns")->choose(QStringLiteral("2026-11-20T03:30:00Z"));
    saveBoth(driver, name + QStringLiteral("-undo"));
}

// Folders as somebody has them; the last one is gone.
QByteArray madeSlots(const QString &home, int count)
{
    const QStringList names =
        QStringLiteral("Lake|Mountains|Family|Garden|For print|Web|Panoramas|Night|Details|Portraits|Doubtful|Twice|To "
                       "archive|Contest|Black and white")
            .split(QLatin1Char('|'));
    QJsonArray slots;
    for (int i = 0; i < count; ++i) {
        const QString name = i < names.size() ? names[i] : QStringLiteral("Album %1").arg(i + 1);
        const QString path = home + QStringLiteral("/Sorted/") + name;
        if (name != QLatin1String("Twice"))
            QDir().mkpath(path);
        slots.append(QJsonObject{{QStringLiteral("path"), path}, {QStringLiteral("label"), QString()}});
    }
    return QJsonDocument(
               QJsonObject{{QStringLiteral("mode"), QStringLiteral("move")}, {QStringLiteral("slots"), slots}})
        .toJson(QJsonDocument::Compact);
}

void showHand(WindowDriver &driver, const QString &name, int slots)
{
    platform::setUserDefault(QStringLiteral("Settings-hand"), QString::fromUtf8(madeSlots(driver.folder(), slots)));
    driver.startAgain();
    driver.show("hand");
    driver.window().resize(1440, 900);
    saveScreen(driver, name + QStringLiteral("-empty.png"));
    driver.drop({driver.folder() + QStringLiteral("/Pictures")});
    settle(driver);
    QTest::keyClick(&driver.window(), Qt::Key_2);
    QTest::keyClick(&driver.window(), Qt::Key_1);
    QTest::keyClick(&driver.window(), Qt::Key_1);
    QTest::keyClick(&driver.window(), Qt::Key_Left);
    saveBoth(driver, name);
}

void showMetadata(WindowDriver &driver, const QString &name)
{
    driver.startAgain();
    driver.show("metadata");
    driver.window().resize(1440, 900);
    saveScreen(driver, name + QStringLiteral("-empty.png"));
    const QString picture = driver.folder() + QStringLiteral("/Pictures/Lake in the morning.jpg");
    mMeta().hSetExifData(picture, QStringLiteral("Lake at Brelmark, first light"));
    driver.drop({driver.folder() + QStringLiteral("/Pictures")});
    settle(driver);
    for (int i = 0; i < 6 && driver.text("metaName") != QLatin1String("Lake in the morning.jpg"); ++i)
        driver.trigger("nextAction");
    settle(driver);
    saveBoth(driver, name);
    auto *scope = driver.control<window::SegmentedControl>("metaScope");
    QTest::keyClick(scope, Qt::Key_Right);
    driver.control<QPlainTextEdit>("metaComment")
        ->setPlainText(QStringLiteral("Brelmark, {date:dd MMM yyyy}, picture {counter:001}"));
    saveBoth(driver, name + QStringLiteral("-many"));
    QTest::keyClick(scope, Qt::Key_Left);
}

// What pictures say already, one of them in two ways.
void stateFields(const QString &folder)
{
    const auto write = [&](const char *name, const char *field, const QString &text) {
        const QVariantMap set = {{QStringLiteral("set"), QStringList{text}}};
        const auto work = meta::workFrom({{QStringLiteral("fields"), QVariantMap{{QString::fromLatin1(field), set}}}});
        if (work)
            (void)meta::writeFields(folder + QString::fromUtf8(name), *work);
    };
    for (const QString &name : QDir(folder).entryList(QDir::Files))
        write(qPrintable(name), "city", QStringLiteral("Brelmark"));
    write("Lake in the morning.jpg", "headline", QStringLiteral("First light"));
    write("Lake in the morning.jpg", "title", QStringLiteral("DSC_0412"));
}

void showFields(WindowDriver &driver, const QString &name)
{
    stateFields(driver.folder() + QStringLiteral("/Pictures/"));
    driver.startAgain();
    driver.show("fields");
    driver.window().resize(1440, 900);
    saveScreen(driver, name + QStringLiteral("-empty.png"));
    driver.drop({driver.folder() + QStringLiteral("/Pictures")});
    settle(driver);
    driver.control<QLineEdit>("mfTitle")->setText(QStringLiteral("{name}"));
    driver.control<QLineEdit>("mfKeywords")->setText(QStringLiteral("Brelmark, summer"));
    driver.click("mfRightsHead");
    driver.control<QLineEdit>("mfCreator")->setText(QStringLiteral("Ana Ruiz"));
    driver.control<QLineEdit>("mfCopyright")->setText(QStringLiteral("© {taken:yyyy} Ana Ruiz"));
    driver.waitFor([&driver] { return driver.control<QAbstractButton>("startButton")->isEnabled(); });
    saveBoth(driver, name);
    for (const char *head : {"mfDescriptionHead", "mfRightsHead", "mfDateHead", "mfPrivateHead"})
        driver.click(head);
    saveBoth(driver, name + QStringLiteral("-more"));
}

void showManual(WindowDriver &driver, const QString &name)
{
    driver.show("resize");
    driver.trigger("manualAction");
    settle(driver);
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("manualWindow"))
            window->grab().save(name + QStringLiteral("-manual.png"));
}

} // namespace

int main(int argc, char **argv)
{
    return makeScreenshots(argc, argv, [](WindowDriver &driver, const QString &samples, const PicturePath &path) {
        driver.drop({samplePictures(samples, driver.folder())});
        showManual(driver, path("main"));
        showHand(driver, path("hand") + QStringLiteral("-many"), 59);
        samplePictures(samples, driver.folder());
        showHand(driver, path("hand"), 12);
        samplePictures(samples, driver.folder());
        showMetadata(driver, path("metadata"));
        samplePictures(samples, driver.folder());
        showFields(driver, path("fields"));
        showLog(driver, path("log"));
    });
}
