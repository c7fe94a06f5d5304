#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/position_pad.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/look/icons.h"
#include "app/window/preview/compare_preview.h"
#include "platform/desktop/user_defaults.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

using window::PictureModel;

namespace {

/** Where the pixels of an image differ from one colour; empty if none does. */
QRect inkOf(const QImage &image, QColor ground)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (qAbs(color.red() - ground.red()) + qAbs(color.blue() - ground.blue()) > 60)
                ink |= QRect(x, y, 1, 1);
        }
    return ink;
}

} // namespace

/** The Watermark action, as a person works it. */
class WatermarkPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::showing("watermark");
        m_folder = m_driver->inputFolder();
    }

    void cleanup() { m_driver.reset(); }

    void marksWhatIsTyped()
    {
        QVERIFY(!window::icon(QStringLiteral("watermark")).pixmap(16, 16).isNull());
        save("a.png", plain());
        save("b.png", plain(QSize(200, 300)));
        m_driver->drop({m_folder});
        auto *text = m_driver->control<QPlainTextEdit>("markText");
        QCOMPARE(text->toPlainText(), QStringLiteral("© {date:yyyy}"));
        text->setFocus();
        text->selectAll();
        QTest::keyClicks(text, QStringLiteral("Jane Doe, {name}"));
        // Text being typed is left alone, and so is the cursor.
        QCOMPARE(text->toPlainText(), QStringLiteral("Jane Doe, {name}"));
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 400×200"));
        QVERIFY2(m_driver->waitFor([this] { return !m_driver->cell(1, PictureModel::NewSize).isEmpty(); }), "no plan");
        QCOMPARE(m_driver->cell(0, PictureModel::NewName), QStringLiteral("a.png"));
        QCOMPARE(m_driver->cell(0, PictureModel::NewSize), QStringLiteral("400×200"));
        QCOMPARE(m_driver->cell(1, PictureModel::NewSize), QStringLiteral("200×300"));
        run(QStringLiteral("2 pictures done"));
        const QRect ink = inkOf(QImage(at("Watermarked/a.png")), Qt::darkBlue);
        QVERIFY2(ink.left() > 200 && ink.top() > 150 && ink.right() < 398 && ink.bottom() < 198,
                 qPrintable(QStringLiteral("%1,%2").arg(ink.left()).arg(ink.top())));
        QCOMPARE(QImage(at("Watermarked/b.png")).size(), QSize(200, 300));
        // The originals are as they were.
        QVERIFY(inkOf(QImage(at("a.png")), Qt::darkBlue).isEmpty());
    }

    void putsTheMarkWhereThePadSays_data()
    {
        QTest::addColumn<int>("right");
        QTest::addColumn<int>("down");
        QTest::addColumn<QPoint>("expected");
        QTest::newRow("top left") << 0 << 0 << QPoint(0, 0);
        QTest::newRow("centre") << 1 << 1 << QPoint(1, 1);
        QTest::newRow("right") << 2 << 1 << QPoint(2, 1);
    }

    void putsTheMarkWhereThePadSays()
    {
        QFETCH(int, right);
        QFETCH(int, down);
        QFETCH(QPoint, expected);
        save("a.png", plain());
        m_driver->drop({m_folder});
        auto *pad = m_driver->control<window::PositionPad>("markPosition");
        QTest::keyClick(pad, Qt::Key_Home);
        for (int i = 0; i < right; ++i)
            QTest::keyClick(pad, Qt::Key_Right);
        for (int i = 0; i < down; ++i)
            QTest::keyClick(pad, Qt::Key_Down);
        run(QStringLiteral("1 picture done"));
        const QPoint center = inkOf(QImage(at("Watermarked/a.png")), Qt::darkBlue).center();
        QCOMPARE(QPoint(center.x() * 3 / 400, center.y() * 3 / 200), expected);
    }

    void showsWhatItMakes()
    {
        save("a.png", plain());
        m_driver->drop({m_folder});
        auto *preview = m_driver->control<window::ComparePreview>("preview");
        QSignalSpy shown(preview, &window::ComparePreview::resultShown);
        type("Lake");
        QVERIFY(shown.wait(5000));
        const QImage before = preview->grab().toImage();
        m_driver->control<QCheckBox>("markTile")->click();
        QVERIFY(shown.wait(5000));
        QVERIFY(preview->grab().toImage() != before);
    }

    void refusesInClearWords()
    {
        save("a.png", plain());
        m_driver->drop({m_folder});
        const auto problem = [this] { return m_driver->text("problemText"); };
        auto *start = m_driver->control<QAbstractButton>("startButton");
        type("");
        QCOMPARE(problem(), QStringLiteral("Enter a text."));
        QVERIFY(!start->isEnabled());
        type("{counter}");
        QCOMPARE(problem(), QStringLiteral("A watermark cannot contain {counter}."));
        type("Jane");
        QCOMPARE(problem(), QString());
        QVERIFY(start->isEnabled());
        QTest::keyClick(m_driver->control<window::SegmentedControl>("mark"), Qt::Key_Right);
        QCOMPARE(problem(), QStringLiteral("Choose a picture."));
        QVERIFY(m_driver->control<QComboBox>("markPicture")->isVisible());
        QVERIFY(!m_driver->control<QPlainTextEdit>("markText")->isVisible());
    }

    void takesAPictureFromTheFolderOfWatermarks()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/Watermarks");
        QVERIFY(QDir().mkpath(folder));
        QImage logo(100, 50, QImage::Format_ARGB32);
        logo.fill(Qt::red);
        QVERIFY(logo.save(folder + QStringLiteral("/logo.png")));
        platform::setUserDefault(QStringLiteral("WatermarksDestination"), folder);
        m_driver->startAgain();
        m_driver->show("watermark");
        save("a.png", plain());
        m_driver->drop({m_folder});
        QTest::keyClick(m_driver->control<window::SegmentedControl>("mark"), Qt::Key_Right);
        QCOMPARE(m_driver->control<QComboBox>("markPicture")->currentData().toString(),
                 folder + QStringLiteral("/logo.png"));
        m_driver->control<QDoubleSpinBox>("markPictureSize")->setValue(50);
        m_driver->control<QDoubleSpinBox>("markOpacity")->setValue(100);
        m_driver->control<QDoubleSpinBox>("markMargin")->setValue(0);
        run(QStringLiteral("1 picture done"));
        const QRect ink = inkOf(QImage(at("Watermarked/a.png")), Qt::darkBlue);
        QCOMPARE(ink, QRect(200, 100, 200, 100));
        // A selected picture is in the menu, and one that disappears is reported.
        m_driver->answerPanels({at("a.png")});
        m_driver->choose("markPicture", QStringLiteral("choose"));
        QCOMPARE(m_driver->control<QComboBox>("markPicture")->currentData().toString(), at("a.png"));
        m_driver->choose("markPicture", folder + QStringLiteral("/logo.png"));
        QVERIFY(QFile::remove(folder + QStringLiteral("/logo.png")));
        m_driver->control<QDoubleSpinBox>("markOpacity")->setValue(90);
        QCOMPARE(m_driver->text("problemText"), QStringLiteral("The picture “logo.png” no longer exists."));
        platform::removeUserDefault(QStringLiteral("WatermarksDestination"));
    }

    void keepsItsSettingsInAPreset()
    {
        auto *presets = m_driver->control<QComboBox>("preset");
        QVERIFY(presets->findText(QStringLiteral("Copyright, bottom right")) >= 0);
        m_driver->choose("preset", QStringLiteral("=Tiled draft"));
        QCOMPARE(m_driver->control<QPlainTextEdit>("markText")->toPlainText(), QStringLiteral("DRAFT"));
        QVERIFY(m_driver->control<QCheckBox>("markTile")->isChecked());
        QCOMPARE(m_driver->control<QDoubleSpinBox>("markAngle")->value(), 30.0);
        QCOMPARE(m_driver->control<window::PositionPad>("markPosition")->selectedSegment(), 4);
        m_driver->choose("preset", QStringLiteral("=Copyright, dark"));
        QVERIFY(!m_driver->control<QCheckBox>("markTile")->isChecked());
        QCOMPARE(m_driver->control<QDoubleSpinBox>("markOpacity")->value(), 60.0);
        // A text of two lines, not all of it in Latin letters, is there again in another session.
        type("Ünicode ’ 写真\nsecond");
        m_driver->startAgain();
        m_driver->show("watermark");
        QCOMPARE(m_driver->control<QPlainTextEdit>("markText")->toPlainText(),
                 QStringLiteral("Ünicode ’ 写真\nsecond"));
    }

    void insertsAValueOfThePicture()
    {
        type("by ");
        auto *text = m_driver->control<QPlainTextEdit>("markText");
        text->moveCursor(QTextCursor::End);
        m_driver->click("markTokens");
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTest::keyClicks(menu->focusWidget() ? menu->focusWidget() : menu, QStringLiteral("camera"));
        QTest::keyClick(menu->focusWidget() ? menu->focusWidget() : menu, Qt::Key_Return);
        QCOMPARE(text->toPlainText(), QStringLiteral("by {camera}"));
    }

    void laysTransparentPartsOnWhiteInAJpeg()
    {
        QImage clear(400, 200, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        save("a.png", clear);
        m_driver->drop({m_folder});
        m_driver->choose("fileType", QStringLiteral("public.jpeg"));
        run(QStringLiteral("1 picture done"));
        QCOMPARE(QImage(at("Watermarked/a.jpg")).pixelColor(5, 5), QColor(Qt::white));
    }

    void saysWhatFailed()
    {
        save("a.png", plain());
        QFile damaged(at("b.png"));
        QVERIFY(QFile::copy(at("a.png"), at("b.png")) && damaged.open(QIODevice::ReadWrite));
        QVERIFY(damaged.resize(damaged.size() / 2));
        damaged.close();
        m_driver->drop({m_folder});
        run(QStringLiteral("1 picture done · 1 failed"));
        QVERIFY(!QFile::exists(at("Watermarked/b.png")));
        QCOMPARE(QDir(at("Watermarked")).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("a.png")});
    }

private:
    static QImage plain(QSize size = QSize(400, 200))
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkBlue);
        return image;
    }

    QString at(const char *name) const { return m_folder + QLatin1Char('/') + QLatin1String(name); }

    void save(const char *name, const QImage &image) const { QVERIFY(image.save(at(name))); }

    void type(const char *text)
    {
        auto *field = m_driver->control<QPlainTextEdit>("markText");
        field->setPlainText(QString::fromUtf8(text));
    }

    void run(const QString &summary)
    {
        m_driver->click("startButton");
        const QString text = m_driver->waitForSummary();
        QVERIFY2(text.startsWith(summary),
                 qPrintable(text + QLatin1Char(' ') + m_driver->cell(0, PictureModel::Status)));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
};

QUORLIN_GUI_TEST(WatermarkPane)

#include "tst_watermark.moc"
