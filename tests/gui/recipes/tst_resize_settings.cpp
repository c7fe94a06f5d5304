#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/controls/color_well.h"
#include "app/window/controls/segmented_control.h"
#include "platform/imageio/source/image_source.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QTest>

using window::PictureModel;

namespace {

constexpr int boxMode = 4; ///< the last of the segments

void chooseMode(WindowDriver &driver, int segment)
{
    auto *modes = driver.control<window::SegmentedControl>("mode");
    QTest::keyClick(modes, Qt::Key_Home);
    for (int i = 0; i < segment; ++i)
        QTest::keyClick(modes, Qt::Key_Right);
}

void setNumber(WindowDriver &driver, const char *name, double value)
{
    driver.control<QDoubleSpinBox>(name)->setValue(value);
}

QSize sizeOf(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    return source ? source->uprightSize() : QSize();
}

} // namespace

/** What Resize makes of a box, and of lengths at a resolution, as a person chooses it. */
class ResizeSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::showing("resize");
        m_pictures = m_driver->inputFolder();
    }

    void cleanup() { m_driver.reset(); }

    void fitsTheBox_data()
    {
        QTest::addColumn<QString>("fit");
        QTest::addColumn<QSize>("size");
        QTest::newRow("fit") << "inside" << QSize(100, 75);
        QTest::newRow("fill") << "fill" << QSize(100, 100);
        QTest::newRow("stretch") << "stretch" << QSize(100, 100);
        QTest::newRow("pad") << "pad" << QSize(100, 100);
    }

    void fitsTheBox()
    {
        QFETCH(QString, fit);
        QFETCH(QSize, size);
        useBox(fit);
        QVERIFY(m_driver->waitFor([&] {
            return m_driver->cell(0, PictureModel::NewSize) ==
                   QStringLiteral("%1×%2").arg(size.width()).arg(size.height());
        }));
        run();
        QCOMPARE(sizeOf(m_pictures + QStringLiteral("/Resized/a.png")), size);
        QCOMPARE(m_driver->control<QComboBox>("boxFit")->count(), 4);
    }

    void padsWithTheChosenColour()
    {
        useBox(QStringLiteral("pad"));
        auto *well = m_driver->control<window::ColorWell>("padColor");
        QVERIFY(well->isVisible());
        well->setColor(QStringLiteral("#306090"));
        Q_EMIT well->chosen(well->color());
        run();
        const QImage result(m_pictures + QStringLiteral("/Resized/a.png"));
        QCOMPARE(result.pixelColor(50, 2), QColor(0x30, 0x60, 0x90));
        QCOMPARE(result.pixelColor(50, 97), QColor(0x30, 0x60, 0x90));
        QVERIFY(result.pixelColor(50, 50) != QColor(0x30, 0x60, 0x90));
        m_driver->choose("boxFit", QStringLiteral("fill"));
        QVERIFY(!well->isVisible());
    }

    void takesLengthsAtAResolutionAndWritesIt_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<int>("width");
        QTest::addColumn<double>("dpi");
        QTest::newRow("own") << "own" << 57 << 72.0; // 2 cm
        QTest::newRow("300") << "print" << 236 << 300.0;
        QTest::newRow("typed") << "typed" << 197 << 250.0;
    }

    void takesLengthsAtAResolutionAndWritesIt()
    {
        QFETCH(QString, choice);
        QFETCH(int, width);
        QFETCH(double, dpi);
        addPicture();
        chooseMode(*m_driver, 0);
        auto *resolution = m_driver->control<QComboBox>("resolution");
        QVERIFY(!resolution->isVisible());
        m_driver->choose("unit", QStringLiteral("cm"));
        QVERIFY(resolution->isVisible());
        setNumber(*m_driver, "value", 2);
        m_driver->choose("resolution", choice);
        auto *typed = m_driver->control<QDoubleSpinBox>("dpi");
        QCOMPARE(typed->isVisible(), choice == QLatin1String("typed"));
        if (choice == QLatin1String("typed"))
            typed->setValue(dpi);
        QVERIFY2(m_driver->text("resultText").contains(QStringLiteral("%1 dpi").arg(dpi)),
                 qPrintable(m_driver->text("resultText")));
        run();
        const QImage result(m_pictures + QStringLiteral("/Resized/a.png"));
        QCOMPARE(result.width(), width);
        constexpr double inchesPerMetre = 39.37007874;
        QVERIFY(qAbs(result.dotsPerMeterX() / inchesPerMetre - dpi) < 0.1);
    }

    // 1600 px at 300 dpi are 5.33 inches, which are 1599 px.
    void aTypedSizeComesBackWithItsUnit()
    {
        addPicture();
        m_driver->choose("unit", QStringLiteral("cm"));
        m_driver->choose("resolution", QStringLiteral("print"));
        m_driver->choose("unit", QStringLiteral("pixel"));
        for (const auto &[mode, names] : {std::pair{0, QList<const char *>{"value"}},
                                          std::pair{boxMode, QList<const char *>{"boxWidth", "boxHeight"}}}) {
            chooseMode(*m_driver, mode);
            for (int i = 0; i < names.size(); ++i)
                setNumber(*m_driver, names.at(i), i == 0 ? 1600 : 1200);
            for (const char *unit : {"cm", "inch", "mm", "pica", "punt", "pixel"}) {
                m_driver->choose("unit", QString::fromLatin1(unit));
                QCOMPARE(numberIn(names.constFirst()) == 1600, qstrcmp(unit, "pixel") == 0);
            }
            for (int i = 0; i < names.size(); ++i)
                QCOMPARE(numberIn(names.at(i)), i == 0 ? 1600.0 : 1200.0);
        }
    }

    void presetsRememberBoxAndResolution()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        useBox(QStringLiteral("pad"));
        m_driver->choose("unit", QStringLiteral("cm"));
        m_driver->choose("resolution", QStringLiteral("typed"));
        setNumber(*m_driver, "dpi", 240);
        m_driver->choosePresetEntry("Save");
        m_driver->choose("preset", QStringLiteral("=Mail 1024"));
        QVERIFY(!m_driver->control<QComboBox>("boxFit")->isVisible());
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        QCOMPARE(m_driver->control<QComboBox>("boxFit")->currentData().toString(), QStringLiteral("pad"));
        QCOMPARE(m_driver->control<QComboBox>("resolution")->currentData().toString(), QStringLiteral("typed"));
        QCOMPARE(m_driver->control<QDoubleSpinBox>("dpi")->value(), 240.0);
    }

private:
    double numberIn(const char *name) { return m_driver->control<QDoubleSpinBox>(name)->value(); }

    void addPicture()
    {
        QImage picture = pictures::gradient(400, 300);
        constexpr int dotsPerMetre = 2835; // 72 dots per inch
        picture.setDotsPerMeterX(dotsPerMetre);
        picture.setDotsPerMeterY(dotsPerMetre);
        QVERIFY(picture.save(m_pictures + QStringLiteral("/a.png")));
        m_driver->drop({m_pictures});
    }

    /** One picture of 400 x 300 pixels and a box of 100 x 100. */
    void useBox(const QString &fit)
    {
        addPicture();
        chooseMode(*m_driver, boxMode);
        setNumber(*m_driver, "boxWidth", 100);
        setNumber(*m_driver, "boxHeight", 100);
        m_driver->choose("boxFit", fit);
    }

    void run()
    {
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("1 picture done")), qPrintable(summary));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

QUORLIN_GUI_TEST(ResizeSettings)

#include "tst_resize_settings.moc"
