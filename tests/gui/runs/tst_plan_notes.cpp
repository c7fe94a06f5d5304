#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "files/items/file_facts.h"

#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QTest>

using window::PictureModel;

/** What the window says of a run before it is started: what will not fit, and which pictures have vanished. */
class PlanNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        files::setDiskSpaceSource({});
        m_driver.reset();
    }

    void saysWhatWillNotFit_data();
    void saysWhatWillNotFit();
    void knowsWhatIsWrittenWithoutLoss();
    void forgetsWhatAnotherActionWouldWrite();
    void saysWhatHasVanished_data();
    void saysWhatHasVanished();

private:
    static void setFreeBytes(qint64 bytes)
    {
        files::setDiskSpaceSource([bytes](const QString &) { return files::DiskSpace{bytes, 1}; });
    }

    QString at(int number) const { return m_driver->inputFolder() + QStringLiteral("/p%1.jpg").arg(number); }

    static QImage noise(int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        quint32 last = 1;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                image.setPixel(x, y, last = last * 1664525 + 1013904223);
        return image;
    }

    /** Each has some hundred thousand bytes. */
    void addPictures(int count)
    {
        for (int i = 0; i < count; ++i)
            QVERIFY(noise(600, 400).save(at(i), "jpg", 90));
        m_driver->drop({m_driver->inputFolder()});
        QVERIFY(m_driver->waitFor([&] { return m_driver->pictures().model()->rowCount() == count; }));
    }

    void openRecipe(const QByteArray &recipe)
    {
        QFile file(m_driver->folder() + QStringLiteral("/r.quorlin"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(recipe) > 0);
        file.close();
        m_driver->drop({file.fileName()});
    }

    void choose(const QString &action)
    {
        m_driver = WindowDriver::showing(qPrintable(action));
        if (action == QLatin1String("recipe"))
            openRecipe(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "quality": 90, "folder": "Out"}]})");
    }

    QString note() { return m_driver->text("startNote"); }
    bool isTooMuch() { return note().startsWith(QStringLiteral("This run needs about ")); }

    std::unique_ptr<WindowDriver> m_driver;
};

void PlanNotes::saysWhatWillNotFit_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : {"resize", "crop", "convert", "watermark", "recipe", "web", "contact"})
        QTest::newRow(action) << QString::fromLatin1(action);
}

void PlanNotes::saysWhatWillNotFit()
{
    QFETCH(QString, action);
    setFreeBytes(1000);
    choose(action);
    addPictures(3);
    QVERIFY2(m_driver->waitFor([this] { return isTooMuch(); }), qPrintable(note()));
    QVERIFY2(note().endsWith(QStringLiteral(" has only 1 KB free.")), qPrintable(note()));
    QVERIFY(m_driver->control<QWidget>("startNote")->isVisible());
    QVERIFY(m_driver->control<QAbstractButton>("startButton")->isEnabled()); // it is an estimate
    setFreeBytes(1'000'000'000);
    QVERIFY(noise(600, 400).save(at(3), "jpg", 90));
    m_driver->drop({at(3)});
    QVERIFY2(m_driver->waitFor([this] { return !isTooMuch(); }), qPrintable(note()));
}

/** Twenty times as large as its picture, which is packed with loss. */
void PlanNotes::knowsWhatIsWrittenWithoutLoss()
{
    setFreeBytes(200'000);
    m_driver = WindowDriver::showing("recipe");
    QVERIFY(pictures::plain(600, 400, Qt::red).save(at(0), "jpg", 50));
    QVERIFY(QFileInfo(at(0)).size() < 20'000);
    openRecipe(R"({"quorlin": 1, "outputs": [{"type": "png", "folder": "Out"}]})");
    m_driver->drop({at(0)});
    QVERIFY2(m_driver->waitFor([this] { return isTooMuch(); }), qPrintable(note()));
    QVERIFY2(note().contains(QStringLiteral("about 288 KB")), qPrintable(note())); // 1.2 bytes for each pixel
    openRecipe(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "folder": "Out"}]})");
    QVERIFY2(m_driver->waitFor([this] { return !isTooMuch(); }), qPrintable(note()));
}

/** The size of all results is measured for the action that is shown. */
void PlanNotes::forgetsWhatAnotherActionWouldWrite()
{
    setFreeBytes(50'000);
    m_driver = WindowDriver::showing("resize");
    m_driver->control<QDoubleSpinBox>("value")->setValue(20);
    addPictures(3);
    QVERIFY2(m_driver->waitFor([this] { return note().contains(QStringLiteral(" in total")); }), qPrintable(note()));
    openRecipe(R"({"quorlin": 1, "outputs": [{"type": "jpeg", "quality": 90, "folder": "Out"}]})");
    QVERIFY2(m_driver->waitFor([this] { return isTooMuch(); }), qPrintable(note()));
}

void PlanNotes::saysWhatHasVanished_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : {"resize", "convert", "recipe", "web"})
        QTest::newRow(action) << QString::fromLatin1(action);
}

/** In the plan, and in the run that is started nevertheless. */
void PlanNotes::saysWhatHasVanished()
{
    QFETCH(QString, action);
    choose(action);
    addPictures(3);
    const auto status = [this](int row) { return m_driver->cell(row, PictureModel::Status); };
    QVERIFY2(m_driver->waitFor([&] { return status(2) == QStringLiteral("Ready"); }), qPrintable(status(2)));
    QVERIFY(QFile::remove(at(1)));
    QVERIFY(noise(60, 40).save(at(3), "jpg"));
    m_driver->drop({at(3)}); // all of them are planned again
    const QString gone = QStringLiteral("Failed: the picture no longer exists");
    QVERIFY2(m_driver->waitFor([&] { return status(1) == gone && status(3) == QStringLiteral("Ready"); }),
             qPrintable(status(1) + u' ' + status(3)));
    m_driver->click("startButton");
    const QString said = m_driver->waitForSummary();
    QVERIFY2(said.contains(QStringLiteral(" failed")), qPrintable(said));
    QCOMPARE(status(1), gone);
    for (const int row : {0, 2, 3})
        QVERIFY2(status(row).startsWith(QStringLiteral("OK")), qPrintable(status(row)));
}

QUORLIN_GUI_TEST(PlanNotes)
#include "tst_plan_notes.moc"
