#include "tests/gui/support/screen_tools.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTest>

QString samplePictures(const QString &from, const QString &folder)
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
    // A busy machine takes longer: until thumbnails are there and the window has looked the same for a while, in which
    // a worker starts and makes a preview.
    driver.waitFor([&driver] { return driver.pictures().isSettled(); });
    constexpr int stepMs = 300;
    constexpr int stepsOfRest = 8;
    constexpr int mostSteps = 100;
    QImage before;
    for (int step = 0, rest = 0; step < mostSteps && rest < stepsOfRest; ++step) {
        QTest::qWait(stepMs);
        const QImage now = driver.window().grab().toImage();
        rest = now == before ? rest + 1 : 0;
        before = now;
    }
    driver.waitFor([] { return true; });
}

void saveScreen(WindowDriver &driver, const QString &path)
{
    driver.control<QWidget>("central")->setFocus();
    settle(driver);
    driver.window().grab().toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
}

void choosePreset(WindowDriver &driver, const char *name)
{
    // Each action translates its own.
    QString shown = QString::fromUtf8(name);
    for (const char *context : {"resize-presets", "crop-presets", "round-presets", "background-presets",
                                "rename-presets", "sort-presets", "contact-presets", "web-presets"})
        if (const QString found = QCoreApplication::translate(context, name); found != QString::fromUtf8(name))
            shown = found;
    driver.choose("preset", QLatin1Char('=') + shown);
}

int makeScreenshots(int argc, char **argv,
                    const std::function<void(WindowDriver &, const QString &samples, const PicturePath &)> &work)
{
    if (argc > 3)
        qputenv("QT_SCALE_FACTOR", argv[3]); // the harness has cleared that of the surroundings
    QApplication application(argc, argv);
    const QString samples = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(folder);
    for (const char *appearance : {"light", "dark"}) {
        qputenv("QUORLIN_APPEARANCE", appearance);
        WindowDriver driver(application);
        driver.window().resize(1440, 900);
        work(driver, samples, [&](const char *name) {
            return folder + QLatin1Char('/') + QLatin1String(name) + QLatin1Char('-') + QLatin1String(appearance);
        });
    }
    return 0;
}
