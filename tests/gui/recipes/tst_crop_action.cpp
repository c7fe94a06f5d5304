#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/position_pad.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/preview/crop_frame_editor.h"

#include "platform/imageio/source/image_source.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using window::PictureModel;

namespace {

/** Four colours: red and green above, blue and white below. */
QImage quarters(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    QPainter painter(&image);
    const int w = size.width() / 2;
    const int h = size.height() / 2;
    painter.fillRect(0, 0, w, h, Qt::red);
    painter.fillRect(w, 0, w, h, Qt::green);
    painter.fillRect(0, h, w, h, Qt::blue);
    painter.fillRect(w, h, w, h, Qt::white);
    return image;
}

QSize uprightSize(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    return source ? source->uprightSize() : QSize();
}

} // namespace

/** Crop, from the empty window to the files. */
class CropAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_pictures = m_driver->folder() + QStringLiteral("/in");
        QVERIFY(QDir().mkpath(m_pictures));
    }

    void cleanup() { m_driver.reset(); }

    void cropsTheChosenQuarter()
    {
        save("a.png", quarters({400, 300}));
        save("b.png", quarters({200, 100}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        m_driver->control<QDoubleSpinBox>("cropPercent")->setValue(50);
        QTest::keyClick(m_driver->control<window::PositionPad>("position"), Qt::Key_Home);
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("200 × 150 px at 0, 0"));
        run(QStringLiteral("2 pictures done"));
        const QImage result(at("Cropped/a.png"));
        QCOMPARE(result.size(), QSize(200, 150));
        QCOMPARE(result.pixel(199, 149), QColor(Qt::red).rgb());
        QCOMPARE(uprightSize(at("Cropped/b.png")), QSize(100, 50));
    }

    void aRatioIsKeptForEveryPicture()
    {
        save("a.png", quarters({400, 300}));
        save("b.png", quarters({200, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        chooseMode("cropMode", 0);
        m_driver->choose("ratio", QStringLiteral("4:5"));
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("375 × 300 px at 12, 0"));
        run(QStringLiteral("2 pictures done"));
        QCOMPARE(uprightSize(at("Cropped/a.png")), QSize(375, 300));
        QCOMPARE(uprightSize(at("Cropped/b.png")), QSize(200, 250));
        m_driver->control<QCheckBox>("turnsRatio")->setChecked(false);
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("240 × 300 px at 80, 0"));
        m_driver->choose("ratio", QStringLiteral("custom"));
        m_driver->control<QDoubleSpinBox>("ratioWidth")->setValue(2.5);
        m_driver->control<QDoubleSpinBox>("ratioHeight")->setValue(1);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("ratioHeight")->text(), QStringLiteral("1"));
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("400 × 160 px at 0, 70"));
    }

    void widthAndHeightAreHeldToARatio()
    {
        save("a.png", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        chooseMode("cropMode", 1);
        m_driver->choose("ratio", QStringLiteral("16:9"));
        m_driver->control<QDoubleSpinBox>("cropWidth")->setValue(320);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("cropHeight")->value(), 180.0);
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("320 × 180 px at 40, 60"));
    }

    void aRowSaysThatItsResultIsNotWhatWasAskedFor()
    {
        save("a.png", quarters({400, 300}));
        save("b.png", quarters({200, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        chooseMode("cropMode", 1);
        m_driver->control<QDoubleSpinBox>("cropWidth")->setValue(250);
        m_driver->control<QDoubleSpinBox>("cropHeight")->setValue(250);
        QVERIFY(m_driver->waitFor([this] { return m_driver->cell(1, PictureModel::NewSize) == u"200×250"; }));
        QCOMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("Ready"));
        QCOMPARE(m_driver->cell(1, PictureModel::Status), QStringLiteral("Ready, smaller than asked for"));
        run(QStringLiteral("2 pictures done"));
        QCOMPARE(m_driver->cell(1, PictureModel::Status), QStringLiteral("OK, smaller than asked for"));
    }

    void theEyeIsDrawnToTheDotWhereverItIs()
    {
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::gray);
        QPainter(&image).fillRect(QRect(340, 130, 40, 40), Qt::red);
        save("a.png", image);
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        chooseMode("cropMode", 0);
        m_driver->choose("ratio", QStringLiteral("1:1"));
        QSignalSpy shown(m_driver->control<window::ComparePreview>("preview"), &window::ComparePreview::resultShown);
        m_driver->control<QCheckBox>("attention")->click();
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("300 × 300 px"));
        QCOMPARE(m_driver->control<window::PositionPad>("position")->selectedSegment(), -1);
        const auto *frame = m_driver->control<window::CropFrameEditor>("cropFrame");
        QVERIFY(m_driver->waitFor([frame] { return frame->frame() == QRect(100, 0, 300, 300); }));
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Cropped/a.png"));
        QCOMPARE(result.size(), QSize(300, 300));
        QCOMPARE(result.pixelColor(260, 150), QColor(Qt::red));
        QTest::keyClick(m_driver->control<window::PositionPad>("position"), Qt::Key_Left);
        QVERIFY(!m_driver->control<QCheckBox>("attention")->isChecked());
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("300 × 300 px at 0, 0"));
    }

    void millimetresAreTakenAtAResolutionThatIsTyped()
    {
        save("a.png", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        chooseMode("cropMode", 1);
        m_driver->choose("unit", QStringLiteral("mm"));
        m_driver->control<QDoubleSpinBox>("cropWidth")->setValue(25.4);
        m_driver->control<QDoubleSpinBox>("cropHeight")->setValue(12.7);
        m_driver->choose("resolution", QStringLiteral("print"));
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("300 × 150 px at 50, 75 at 300 dpi"));
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Cropped/a.png"));
        QCOMPARE(result.size(), QSize(300, 150));
        QCOMPARE(qRound(result.dotsPerMeterX() * 0.0254), 300);
    }

    void aFrameThatIsOnlyMovedStaysWhatItIs()
    {
        save("a.png", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        chooseMode("cropMode", 0);
        m_driver->choose("ratio", QStringLiteral("1:1"));
        Q_EMIT m_driver->control<window::ComparePreview>("preview")->cropFrameEdited(70, 0, 300, 300);
        QCOMPARE(m_driver->control<window::SegmentedControl>("cropMode")->selectedSegment(), 0);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("offsetX")->value(), 20.0);
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("300 × 300 px at 70, 0"));
    }

    void aFrameThatIsDraggedFillsTheFieldsFromItsPosition()
    {
        save("a.png", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        Q_EMIT m_driver->control<window::ComparePreview>("preview")->cropFrameEdited(110, 60, 200, 150);
        QCOMPARE(m_driver->control<window::SegmentedControl>("cropMode")->selectedSegment(), 1);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("cropWidth")->value(), 200.0);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("cropHeight")->value(), 150.0);
        // Centred, it would be at 100, 75.
        QCOMPARE(m_driver->control<window::PositionPad>("position")->selectedSegment(), 4);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("offsetX")->value(), 10.0);
        QCOMPARE(m_driver->control<QDoubleSpinBox>("offsetY")->value(), -15.0);
        run(QStringLiteral("1 picture done"));
        QCOMPARE(QImage(at("Cropped/a.png")),
                 QImage(at("a.png")).copy(110, 60, 200, 150).convertToFormat(QImage(at("Cropped/a.png")).format()));
    }

private:
    QString at(const char *name) const { return m_pictures + QLatin1Char('/') + QString::fromLatin1(name); }
    void save(const char *name, const QImage &image) { QVERIFY(image.save(at(name))); }

    /** Presses the segment, as a person does. */
    void chooseMode(const char *name, int segment)
    {
        auto *mode = m_driver->control<window::SegmentedControl>(name);
        mode->setFocus();
        QTest::keyClick(mode, Qt::Key_Home);
        for (int i = 0; i < segment; ++i)
            QTest::keyClick(mode, Qt::Key_Right);
        QCOMPARE(mode->selectedSegment(), segment);
    }

    void run(const QString &summary)
    {
        m_driver->click("startButton");
        const QString text = m_driver->waitForSummary();
        QVERIFY2(text.startsWith(summary),
                 qPrintable(text + QLatin1Char(' ') + m_driver->cell(0, PictureModel::Status)));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

QUORLIN_GUI_TEST(CropAction)
#include "tst_crop_action.moc"
