#include "tests/gui/support/window_driver.h"
#include "tests/support/corpus.h"
#include "tests/support/made_tiff.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "platform/imageio/source/image_source.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTest>

using window::PictureModel;

namespace {

QString typeOf(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    return source ? source->typeIdentifier() : QStringLiteral("no picture");
}

} // namespace

/** Every action that writes pictures takes every picture that can be read. */
class EveryType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesEveryPicture_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("folder");
        QTest::newRow("resize") << "resize"
                                << "Resized";
        QTest::newRow("turn") << "turn"
                              << "Rotated";
        QTest::newRow("round") << "round"
                               << "Rounded";
        QTest::newRow("background") << "background"
                                    << "Framed";
        QTest::newRow("watermark") << "watermark"
                                   << "Watermarked";
        QTest::newRow("crop") << "crop"
                              << "Cropped";
    }

    void takesEveryPicture()
    {
        QFETCH(QString, action);
        QFETCH(QString, folder);
        auto driver = WindowDriver::showing(qPrintable(action));
        const QStringList names = {QStringLiteral("profile.heic"), QStringLiteral("lossy.webp"),
                                   QStringLiteral("rgb.avif"),     QStringLiteral("rgb16.psd"),
                                   QStringLiteral("plain.dng"),    QStringLiteral("pages.tif")};
        for (const QString &name : names)
            add(*driver, name);
        add(*driver, QStringLiteral("drawing.pdf"));
        driver->drop({driver->inputFolder()});
        QCOMPARE(driver->pictures().count(), 6); // a page is not among them
        if (action == QLatin1String("turn"))
            driver->click("turnLeft");
        driver->choose("fileType", QStringLiteral("public.jpeg"));
        run(*driver, QStringLiteral("6 pictures done"));
        const QString results = driver->inputFolder() + u'/' + folder;
        for (const QString &name : names)
            QCOMPARE(typeOf(results + u'/' + QFileInfo(name).completeBaseName() + QStringLiteral(".jpg")),
                     QStringLiteral("public.jpeg"));
    }

    void saysWhatOfTheFileIsTaken()
    {
        auto driver = WindowDriver::showing("resize");
        add(*driver, QStringLiteral("animated.gif"));
        QFile raw(driver->inputFolder() + QStringLiteral("/camera.dng"));
        const QByteArray preview = pictures::bytesOf(picturePath("own/formats/rgb.jpg")); // 60 x 40, stored sideways
        QVERIFY(raw.open(QIODevice::WriteOnly) && raw.write(pictures::rawFileWith(preview, 6)) > 0);
        raw.close();
        driver->drop({driver->inputFolder()});
        driver->choose("fileType", QStringLiteral("public.png"));
        const auto status = [&](int row) { return driver->cell(row, PictureModel::Status); };
        QVERIFY(driver->waitFor([&] { return status(0) == QStringLiteral("Ready, 2 more pictures left out"); }));
        QVERIFY2(driver->waitFor([&] { return status(1) == QStringLiteral("Ready, preview of 40×60"); }, 5000),
                 qPrintable(status(1) + driver->cell(1, PictureModel::Type)));
        QCOMPARE(driver->cell(1, PictureModel::Pixels), QStringLiteral("40×60"));
        run(*driver, QStringLiteral("2 pictures done"));
        QCOMPARE(status(0), QStringLiteral("OK, 2 more pictures left out"));
        QCOMPARE(status(1), QStringLiteral("OK, preview of 40×60"));
    }

    void offersATypeWhereTheOwnOneIsNotWritten()
    {
        auto driver = WindowDriver::showing("resize");
        add(*driver, QStringLiteral("profile.heic"));
        add(*driver, QStringLiteral("rgb.jpg"));
        driver->drop({driver->inputFolder()});
        auto *offer = driver->control<QPushButton>("typeOffer");
        QVERIFY(driver->waitFor([&] { return offer->isVisible(); }));
        QCOMPARE(driver->text("typeNote"), QStringLiteral("1 picture has a type that cannot be written."));
        driver->click("typeOffer");
        QVERIFY(!offer->isVisible());
        run(*driver, QStringLiteral("2 pictures done"));
        QCOMPARE(typeOf(driver->inputFolder() + QStringLiteral("/Resized/profile.jpg")), QStringLiteral("public.jpeg"));
    }

    void keepsATypeThatOnlyRecipesWrite()
    {
        auto driver = WindowDriver::showing("resize");
        add(*driver, QStringLiteral("lossy.webp"));
        driver->drop({driver->inputFolder()});
        run(*driver, QStringLiteral("1 picture done"));
        QCOMPARE(typeOf(driver->inputFolder() + QStringLiteral("/Resized/lossy.webp")),
                 QStringLiteral("org.webmproject.webp"));
    }

private:
    static void add(WindowDriver &driver, const QString &name)
    {
        QVERIFY(QFile::copy(picturePath(qPrintable(QStringLiteral("own/formats/") + name)),
                            driver.inputFolder() + u'/' + name));
    }

    static void run(WindowDriver &driver, const QString &start)
    {
        driver.click("startButton");
        const QString summary = driver.waitForSummary();
        QVERIFY2(summary.startsWith(start), qPrintable(summary));
    }
};

QUORLIN_GUI_TEST(EveryType)

#include "tst_every_type.moc"
