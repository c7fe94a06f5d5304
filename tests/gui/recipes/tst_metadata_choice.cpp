#include "tests/gui/support/window_driver.h"
#include "tests/support/corpus.h"
#include "tests/support/test_program.h"

#include "platform/imageio/source/image_source.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTest>

using window::PictureModel;

namespace {

/** The actions that let a person choose what results keep of the metadata, and the folder that their results go to at first. */
const QList<std::pair<const char *, const char *>> actions = {
    {"resize", "Resized"},    {"crop", "Cropped"},          {"turn", "Rotated"},     {"round", "Rounded"},
    {"background", "Framed"}, {"watermark", "Watermarked"}, {"convert", "Converted"}};

/** What of camera, author and place a file states, in letters. */
QString statedIn(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    if (!source)
        return QStringLiteral("no picture");
    const QVariantMap properties = source->properties().value_or(QVariantMap());
    const QVariantMap tiff = properties.value(QStringLiteral("{TIFF}")).toMap();
    QString stated;
    stated += tiff.contains(QStringLiteral("Model")) ? QStringLiteral("camera ") : QString();
    stated += tiff.contains(QStringLiteral("Artist")) ? QStringLiteral("author ") : QString();
    stated += properties.contains(QStringLiteral("{GPS}")) ? QStringLiteral("place ") : QString();
    return stated.trimmed();
}

} // namespace

/** What results keep of the metadata, as a person chooses it. */
class MetadataChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsChosen_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<bool>("withoutLocation");
        QTest::addColumn<QString>("expected");
        for (const auto &[action, folder] : actions) {
            const auto row = [&, name = QLatin1String(action),
                              to = QString::fromLatin1(folder)](const char *kept, bool without, const char *expected) {
                QTest::addRow("%s, %s%s", name.data(), kept, without ? ", no place" : "")
                    << QString(name) << to << QString::fromLatin1(kept) << without << QString::fromLatin1(expected);
            };
            row("keep", false, "camera author place");
            row("keep", true, "camera author");
            row("copyright", false, "author");
            row("none", false, "");
        }
    }

    void keepsWhatIsChosen()
    {
        QFETCH(QString, action);
        QFETCH(QString, folder);
        QFETCH(QString, kept);
        QFETCH(bool, withoutLocation);
        auto driver = WindowDriver::showing(qPrintable(action));
        const QString pictures = driver->inputFolder();
        const QString original = pictures + QStringLiteral("/a.jpg");
        QVERIFY(QFile::copy(picturePath("own/metadata/every-group.jpg"), original));
        QCOMPARE(statedIn(original), QStringLiteral("camera author place"));
        driver->drop({pictures});
        auto *location = driver->control<QCheckBox>("removeLocation");
        if (action == QLatin1String("turn"))
            driver->click("turnLeft");
        if (action == QLatin1String("round"))
            driver->choose("fileType", QStringLiteral("original file type"));
        driver->choose("metadata", kept);
        QCOMPARE(location->isVisible(), kept != QLatin1String("none"));
        if (withoutLocation)
            location->click();
        driver->click("startButton");
        const QString summary = driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("1 picture done")), qPrintable(summary));
        QTEST(statedIn(pictures + QLatin1Char('/') + folder + QStringLiteral("/a.jpg")), "expected");
        QCOMPARE(statedIn(original), QStringLiteral("camera author place"));
    }

    void goesIntoOtherTypes_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("note");
        QTest::newRow("PNG") << "public.png"
                             << "a.png"
                             << "Ready";
        QTest::newRow("TIFF") << "public.tiff"
                              << "a.tiff"
                              << "Ready";
        QTest::newRow("BMP") << "public.bmp"
                             << "a.bmp"
                             << "BMP cannot hold metadata";
    }

    void goesIntoOtherTypes()
    {
        QFETCH(QString, type);
        QFETCH(QString, name);
        QFETCH(QString, note);
        auto driver = WindowDriver::showing("resize");
        const QString pictures = driver->inputFolder();
        QVERIFY(QFile::copy(picturePath("own/metadata/every-group.jpg"), pictures + QStringLiteral("/a.jpg")));
        driver->drop({pictures});
        driver->choose("fileType", type);
        QVERIFY(driver->waitFor([&] { return driver->cell(0, PictureModel::NewName) == name; }));
        QCOMPARE(driver->pictures().model()->index(0, PictureModel::Status).data(Qt::ToolTipRole).toString(), note);
        driver->click("startButton");
        QVERIFY(driver->waitForSummary().startsWith(QLatin1String("1 picture done")));
        QCOMPARE(statedIn(pictures + QStringLiteral("/Resized/") + name),
                 note == QLatin1String("Ready") ? QStringLiteral("camera author place") : QString());
    }

    void isRememberedByPresets()
    {
        auto driver = WindowDriver::showing("resize");
        auto *location = driver->control<QCheckBox>("removeLocation");
        const auto kept = [&] { return driver->control<QComboBox>("metadata")->currentData().toString(); };
        driver->choose("preset", QStringLiteral("=Web 1600"));
        QCOMPARE(kept(), QStringLiteral("keep"));
        driver->choose("metadata", QStringLiteral("copyright"));
        location->click();
        driver->startAgain();
        QCOMPARE(kept(), QStringLiteral("copyright"));
        QVERIFY(driver->control<QCheckBox>("removeLocation")->isChecked());
        driver->choose("preset", QStringLiteral("=Mail 1024"));
        QCOMPARE(kept(), QStringLiteral("keep"));
        QVERIFY(!driver->control<QCheckBox>("removeLocation")->isChecked());
    }
};

QUORLIN_GUI_TEST(MetadataChoice)

#include "tst_metadata_choice.moc"
