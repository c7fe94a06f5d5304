#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/color_well.h"
#include "app/window/preview/compare_preview.h"
#include "jobs/desk/worker_desk.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/opening_watch.h"
#include "platform/imageio/source/picture_facts.h"

#include "tests/support/corpus.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QTest>

using jobs::WorkerDesk;

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

    void cleanup()
    {
        m_driver.reset();
        platform::watchOpening({});
        WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
    }

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
        row("webp", "a.webp", "org.webmproject.webp");
        row("avif", "a.avif", "public.avif");
        row("jxl", "a.jxl", "public.jpeg-xl");
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

    void keepsWhatThePictureKnows_data()
    {
        QTest::addColumn<QString>("keyword");
        for (const char *keyword : {"jpeg", "png", "tiff", "webp", "avif", "jxl", "jp2", "gif", "pdf"})
            QTest::newRow(keyword) << QString::fromUtf8(keyword);
    }

    void keepsWhatThePictureKnows()
    {
        QFETCH(QString, keyword);
        QVERIFY(QFile::copy(picturePath("own/metadata/every-group.jpg"), m_folder + QStringLiteral("/a.jpg")));
        m_driver->drop({m_folder});
        m_driver->choose("target", keyword);
        run(QStringLiteral("1 picture done"));
        const QDir results(m_folder + QStringLiteral("/Converted"));
        QFile made(results.filePath(results.entryList(QDir::Files).value(0)));
        QVERIFY(made.open(QIODevice::ReadOnly));
        if (keyword == QLatin1String("gif") || keyword == QLatin1String("pdf"))
            QVERIFY(made.readAll().contains("A small picture")); // the title, in its XMP
        else
            QCOMPARE(platform::pictureFacts(made.fileName()).camera,
                     platform::pictureFacts(m_folder + QStringLiteral("/a.jpg")).camera);
    }

    void laysTransparentPartsOnTheColourThatIsChosen()
    {
        save("a.png", qRgba(0, 0, 0, 0));
        m_driver->drop({m_folder + QStringLiteral("/a.png")});
        m_driver->choose("target", QStringLiteral("bmp"));
        m_driver->click("outputMore");
        auto *well = m_driver->control<window::ColorWell>("matte");
        well->setColor(QStringLiteral("#204080"));
        Q_EMIT well->chosen(well->color());
        run(QStringLiteral("1 picture done"));
        QCOMPARE(QImage(m_folder + QStringLiteral("/Converted/a.bmp")).pixel(5, 5), qRgb(0x20, 0x40, 0x80));
    }

    void namesResultsByThePattern()
    {
        save("a.png");
        QVERIFY(QDir().mkpath(m_folder + QStringLiteral("/sub")));
        save("sub/b.png");
        const QDateTime old(QDate(2020, 5, 4), QTime(3, 2));
        for (const char *name : {"/a.png", "/sub/b.png"}) {
            QFile file(m_folder + QLatin1String(name));
            QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(old, QFileDevice::FileModificationTime));
        }
        m_driver->drop({m_folder});
        m_driver->choose("target", QStringLiteral("tiff"));
        m_driver->click("outputMore");
        m_driver->control<QLineEdit>("namePattern")->setText(QStringLiteral("{name}-{counter:01}"));
        m_driver->control<QCheckBox>("keepDates")->click();
        const QString target = m_driver->folder() + QStringLiteral("/out");
        QVERIFY(QDir().mkpath(target));
        WindowDriver::answerPanels({target});
        m_driver->choose("destination", QStringLiteral("choose"));
        m_driver->control<QCheckBox>("keepSubfolders")->click();
        run(QStringLiteral("2 pictures done"));
        for (const char *name : {"/a-01.tiff", "/sub/b-02.tiff"}) {
            const QFileInfo made(target + QLatin1String(name));
            QVERIFY2(made.exists(), name);
            QCOMPARE(made.lastModified(), old);
        }
    }

    void saysInTheListWhatOfAFileIsTaken()
    {
        QVERIFY(QFile::copy(picturePath("own/formats/drawing.pdf"), m_folder + QStringLiteral("/a.pdf")));
        m_driver->drop({m_folder});
        QVERIFY(m_driver->waitFor([this] {
            return m_driver->cell(0, window::PictureModel::Status) == QStringLiteral("Ready, 1 more picture left out");
        }));
        run(QStringLiteral("1 picture done"));
        QCOMPARE(m_driver->cell(0, window::PictureModel::Status), QStringLiteral("OK, 1 more picture left out"));
    }

    /** The window itself opens none of them. */
    void hasItDoneByWorkers()
    {
        WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
        save("a.png");
        save("try-crash.png");
        QStringList opened;
        platform::watchOpening([&opened](const QString &name) { opened.append(name); });
        m_driver->drop({m_folder});
        run(QStringLiteral("1 picture done · 1 failed"));
        platform::watchOpening({});
        QCOMPARE(m_driver->cell(1, window::PictureModel::Status), QStringLiteral("Failed: its reader crashed"));
        QVERIFY2(opened.isEmpty(), qPrintable(opened.join(u' ')));
    }

    /** The program ends in the middle of a run, and the next one does the rest, as it was to be done. */
    void goesOnWhereItWasInterrupted()
    {
        constexpr int count = 8;
        for (int i = 0; i < count; ++i) // the first take longest
            save(qPrintable(QStringLiteral("p%1.png").arg(i)), qRgba(200, 40, 20, 120), QSize(2400, 1600) / (i + 1));
        m_driver->choose("target", QStringLiteral("webp"));
        m_driver->choose("convertQuality", QStringLiteral("3"));
        m_driver->drop({m_folder});
        WorkerDesk::ofProcess().setSize(1);
        const QDir results(m_folder + QStringLiteral("/Converted"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([&] { return results.entryList(QDir::Files).size() >= 2; }));
        m_driver->click("pauseButton");
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->text("statusDetail").startsWith(QStringLiteral("paused")); }));
        QMap<QString, QDateTime> before;
        for (const QFileInfo &file : results.entryInfoList(QDir::Files))
            before.insert(file.fileName(), file.lastModified());
        QVERIFY(before.size() >= 2 && before.size() < count);
        m_driver->startAgain();
        QCOMPARE(m_driver->text("interruptedNote"),
                 QStringLiteral("Converting was interrupted: %1 of 8 pictures are done.").arg(before.size()));
        m_driver->click("interruptedGo");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QStringLiteral("8 pictures done")), qPrintable(summary));
        QCOMPARE(results.entryList(QDir::Files).size(), count);
        for (const QFileInfo &file : results.entryInfoList(QDir::Files)) {
            QCOMPARE(file.suffix(), QStringLiteral("webp"));
            QVERIFY(platform::ImageSource::canOpen(file.filePath()));
            if (before.contains(file.fileName()))
                QCOMPARE(file.lastModified(), before[file.fileName()]);
        }
    }

    void asksOnceWhereTheDiskIsFull_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("summary");
        QTest::addColumn<int>("made");
        QTest::newRow("room was made") << QStringLiteral("Retry") << QStringLiteral("3 pictures done") << 3;
        QTest::newRow("elsewhere") << QStringLiteral("Choose Folder…") << QStringLiteral("3 pictures done") << 2;
        QTest::newRow("given up") << QStringLiteral("Cancel") << QStringLiteral("Cancelled: 2 pictures done · 1 failed")
                                  << 2;
    }

    void asksOnceWhereTheDiskIsFull()
    {
        QFETCH(QString, answer);
        QFETCH(QString, summary);
        QFETCH(int, made);
        WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
        WorkerDesk::ofProcess().setSize(1);
        save("a.png");
        save("full-b.png"); // finds no room once
        save("full-c.png");
        m_driver->drop({m_folder});
        const QDir results(m_folder + QStringLiteral("/Converted"));
        const QDir others(m_driver->folder() + QStringLiteral("/others"));
        QVERIFY(QDir().mkpath(others.path()));
        WindowDriver::answerPanels({others.path()});
        WindowDriver::answerNextQuestion(answer);
        run(summary);
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QCOMPARE(results.entryList(all).size(), made);
        QCOMPARE(others.entryList(all).size(), answer == QStringLiteral("Choose Folder…") ? 1 : 0);
    }

    void bringsBackWhatItReplaced()
    {
        QFile original(m_folder + QStringLiteral("/a.jpg"));
        QVERIFY(QFile::copy(picturePath("own/metadata/every-group.jpg"), original.fileName()));
        QVERIFY(original.open(QIODevice::ReadOnly));
        const QByteArray before = original.readAll();
        original.close();
        m_driver->drop({original.fileName()});
        m_driver->choose("destination", QStringLiteral("source"));
        m_driver->choose("ifTaken", QStringLiteral("replace"));
        WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
        run(QStringLiteral("1 picture done"));
        const auto content = [&original] {
            QFile file(original.fileName());
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QVERIFY(content() != before);
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitFor([&] { return content() == before; }));
    }

    void offersWhatWasAddedUnderAnActionThatDoesNotTakeIt()
    {
        save("a.png");
        QVERIFY(QFile::copy(picturePath("own/formats/drawing.pdf"), m_folder + QStringLiteral("/b.pdf")));
        m_driver->show("resize");
        m_driver->drop({m_folder});
        QCOMPARE(m_driver->text("statusText"),
                 QStringLiteral("1 picture added · “b.pdf” was not added: it is not a supported picture."));
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
        QVERIFY(m_driver->text("targetNote").contains(QStringLiteral("Transparent parts get a colour")));
        QVERIFY(m_driver->control<QComboBox>("convertQuality")->isVisible());
        m_driver->choose("target", QStringLiteral("bmp"));
        QVERIFY(!m_driver->control<QComboBox>("convertQuality")->isVisible());
        QVERIFY(m_driver->text("targetNote").contains(QStringLiteral("sRGB")));
        auto *preview = m_driver->control<window::ComparePreview>("preview");
        QVERIFY(m_driver->waitFor([preview] { return preview->estimatedBytes() > 0; }));
        QCOMPARE(preview->estimatedBytes(), 64 * 48 * 3 + 54.0);
        QVERIFY(
            m_driver->waitFor([preview] { return preview->accessibleDescription().contains(QStringLiteral("9 KB")); }));
        QVERIFY(preview->accessibleDescription().contains(
            QStringLiteral("BMP has no transparency: transparent parts become white")));
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
    void save(const char *name, QRgb color = qRgba(200, 40, 20, 120), QSize size = {64, 48})
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(QColor::fromRgba(color));
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
