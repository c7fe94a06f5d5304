#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/preview/compare_preview.h"
#include "platform/imageio/source/image_source.h"

#include "tests/support/corpus.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

/** The Convert pane, as a person works it. */
class ConvertPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::showing("convert");
        m_folder = m_driver->inputFolder();
    }

    void cleanup() { m_driver.reset(); }

    void writesEachTypeAndLooksAtIt_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        const auto row = [](const char *keyword, const char *name, const char *type) {
            QTest::newRow(keyword) << QString::fromUtf8(keyword) << QString::fromUtf8(name) << QString::fromUtf8(type);
        };
        row("jpeg", "a.jpg", "public.jpeg");
        row("png", "a (2).png", "public.png");
        row("tiff", "a.tiff", "public.tiff");
        row("pdf", "a.pdf", "com.adobe.pdf");
        row("jp2", "a.jp2", "public.jp2");
        row("gif", "a.gif", "com.compuserve.gif");
        row("bmp", "a.bmp", "public.bmp");
    }

    void writesEachTypeAndLooksAtIt()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, name);
        QFETCH(QString, type);
        save("a.png");
        QVERIFY(QDir().mkpath(m_folder + QStringLiteral("/Converted")));
        save("Converted/a.png");
        m_driver->drop({m_folder + QStringLiteral("/a.png")});
        m_driver->choose("target", keyword);
        run(QStringLiteral("1 picture done"));
        const auto made = platform::ImageSource::open(m_folder + QStringLiteral("/Converted/") + name);
        QVERIFY(made);
        QCOMPARE(made->typeIdentifier(), type);
    }

    void takesWhatOtherActionsDoNot()
    {
        const QStringList names = {
            QStringLiteral("own/formats/profile.heic"), QStringLiteral("own/formats/lossy.webp"),
            QStringLiteral("own/formats/rgb16.psd"),    QStringLiteral("own/formats/drawing.pdf"),
            QStringLiteral("own/formats/drawing.svg"),  QStringLiteral("own/formats/rgb.avif")};
        for (const QString &name : names)
            QVERIFY(QFile::copy(picturePath(name), m_folder + u'/' + QFileInfo(name).fileName()));
        m_driver->drop({m_folder});
        QCOMPARE(m_driver->pictures().count(), 6);
        m_driver->choose("target", QStringLiteral("png"));
        run(QStringLiteral("6 pictures done"));
        QCOMPARE(QDir(m_folder + QStringLiteral("/Converted")).entryList(QDir::Files).size(), 6);
    }

    void offersWhatWasAddedUnderAnActionThatDoesNotTakeIt()
    {
        save("a.png");
        QVERIFY(QFile::copy(picturePath("own/formats/drawing.pdf"), m_folder + QStringLiteral("/b.pdf")));
        m_driver->show("resize");
        m_driver->drop({m_folder});
        QCOMPARE(m_driver->text("statusText"),
                 QStringLiteral("1 picture added · “b.pdf” is not a picture that can be taken"));
        QCOMPARE(m_driver->pictures().count(), 1);
        m_driver->show("convert");
        QCOMPARE(m_driver->pictures().count(), 2);
    }

    void tellsWhatFails()
    {
        save("a.png");
        QFile broken(m_folder + QStringLiteral("/b.heic"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("nothing") == 7);
        broken.close();
        m_driver->drop({m_folder});
        m_driver->choose("target", QStringLiteral("tiff"));
        run(QStringLiteral("1 picture done"));
        QVERIFY(m_driver->text("statusText").contains(QStringLiteral("1 failed")));
        QCOMPARE(QDir(m_folder + QStringLiteral("/Converted")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("a.tiff")});
    }

    void saysWhatGetsLostAndHowLargeItWillBe()
    {
        save("a.png");
        m_driver->drop({m_folder});
        QVERIFY(m_driver->text("targetNote").contains(QStringLiteral("transparent parts become black")));
        QVERIFY(m_driver->control<QComboBox>("convertQuality")->isVisible());
        m_driver->choose("target", QStringLiteral("bmp"));
        QVERIFY(!m_driver->control<QComboBox>("convertQuality")->isVisible());
        QVERIFY(m_driver->text("targetNote").contains(QStringLiteral("sRGB")));
        auto *preview = m_driver->control<window::ComparePreview>("preview");
        QVERIFY(m_driver->waitFor([preview] { return preview->estimatedBytes() > 0; }));
        QCOMPARE(preview->estimatedBytes(), 64 * 48 * 3 + 54.0);
        QVERIFY(
            m_driver->waitFor([preview] { return preview->accessibleDescription().contains(QStringLiteral("9 KB")); }));
        QVERIFY(preview->accessibleDescription().contains(QStringLiteral("EXIF")));
    }

    void asksForConfirmationBeforeAnOriginalIsReplaced()
    {
        save("a.png");
        m_driver->drop({m_folder});
        m_driver->choose("target", QStringLiteral("png"));
        m_driver->choose("destination", QStringLiteral("source"));
        m_driver->choose("ifTaken", QStringLiteral("replace"));
        QVERIFY(m_driver->waitFor([this] {
            return m_driver->control<QAbstractButton>("startButton")->text() ==
                   QStringLiteral("Convert 1 Picture, Replace 1 Original");
        }));
    }

    void remembersItsSettingsAndHasPresets()
    {
        save("a.png");
        m_driver->drop({m_folder});
        m_driver->choose("preset", QStringLiteral("=Small JPEG"));
        QCOMPARE(m_driver->control<QComboBox>("convertQuality")->currentData().toString(), QStringLiteral("5"));
        m_driver->choose("target", QStringLiteral("jp2"));
        m_driver->startAgain();
        QCOMPARE(m_driver->control<QComboBox>("target")->currentData().toString(), QStringLiteral("jp2"));
    }

private:
    void save(const char *name)
    {
        QImage image(64, 48, QImage::Format_ARGB32);
        image.fill(QColor(200, 40, 20, 120));
        image.setDotsPerMeterX(2835);
        image.setDotsPerMeterY(2835);
        QVERIFY(image.save(m_folder + u'/' + QString::fromUtf8(name)));
    }

    void run(const QString &summary)
    {
        m_driver->click("startButton");
        const QString text = m_driver->waitForSummary();
        QVERIFY2(text.startsWith(summary), qPrintable(text + u' ' + m_driver->cell(0, window::PictureModel::Status)));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
};

QUORLIN_GUI_TEST(ConvertPane)
#include "tst_convert.moc"
