#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/angle_dial.h"
#include "app/window/controls/color_well.h"
#include "app/window/controls/position_pad.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/folders/side_bar.h"
#include "app/window/preview/compare_preview.h"

#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture.h"

#include "tests/support/corpus.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QImage>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using window::PictureModel;

namespace {

const QList<const char *> allActions = {"resize", "crop", "turn", "round", "background", "watermark"};

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

bool isNear(QRgb pixel, QColor color)
{
    return qAbs(qRed(pixel) - color.red()) < 24 && qAbs(qGreen(pixel) - color.green()) < 24 &&
           qAbs(qBlue(pixel) - color.blue()) < 24;
}

QSize uprightSize(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    return source ? source->uprightSize() : QSize();
}

/** Sets a colour in the next chooser and closes it. */
void answerColorChooser(const QColor &color, QDialog::DialogCode answer)
{
    QTimer::singleShot(20, [color, answer] {
        auto *chooser = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (!chooser)
            return answerColorChooser(color, answer);
        chooser->setCurrentColor(color);
        answer == QDialog::Accepted ? chooser->accept() : chooser->reject();
    });
}

} // namespace

class PictureActions : public QObject
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

    void noResultIsShownTurned_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("fileType");
        QTest::addColumn<QString>("written");
        QTest::newRow("rounded JPEG") << "round"
                                      << "original file type"
                                      << "Rounded/landscape_6.jpg";
        QTest::newRow("rounded TIFF") << "round"
                                      << "public.tiff"
                                      << "Rounded/landscape_6.tiff";
        QTest::newRow("resized TIFF") << "resize"
                                      << "public.tiff"
                                      << "Resized/landscape_6.tiff";
        QTest::newRow("cropped TIFF") << "crop"
                                      << "public.tiff"
                                      << "Cropped/landscape_6.tiff";
    }

    void noResultIsShownTurned()
    {
        QFETCH(QString, action);
        QFETCH(QString, fileType);
        QFETCH(QString, written);
        const QString path = m_pictures + QStringLiteral("/landscape_6.jpg");
        QVERIFY(QFile::copy(picturePath("own/orientation/landscape_6.jpg"), path));
        m_driver->drop({m_pictures});
        m_driver->show(qPrintable(action));
        m_driver->choose("fileType", fileType);
        run(QStringLiteral("1 picture done"));
        const auto result = platform::ImageSource::open(m_pictures + QLatin1Char('/') + written);
        QVERIFY(result.has_value());
        QCOMPARE(result->orientation(), 1);
        QVERIFY(result->uprightSize().width() > result->uprightSize().height());
    }

    void turnsPicturesWithTheirTag_data()
    {
        QTest::addColumn<int>("orientation");
        for (int orientation = 1; orientation <= 8; ++orientation)
            QTest::addRow("orientation %d", orientation) << orientation;
    }

    void turnsPicturesWithTheirTag()
    {
        QFETCH(int, orientation);
        const QString name = QStringLiteral("landscape_%1.jpg").arg(orientation);
        const QString path = m_pictures + QLatin1Char('/') + name;
        QVERIFY(QFile::copy(picturePath(QStringLiteral("own/orientation/") + name), path));
        const platform::Picture before = platform::Picture::fromFile(path);
        m_driver->drop({m_pictures});
        m_driver->show("turn");
        m_driver->click("turnReset");
        m_driver->click("turnRight");
        m_driver->click("flipHorizontal");
        run(QStringLiteral("1 picture done"));
        const platform::Picture after = platform::Picture::fromFile(m_pictures + QStringLiteral("/Rotated/") + name);
        const int w = before.bitmap().width();
        const int h = before.bitmap().height();
        QCOMPARE(QSize(after.bitmap().width(), after.bitmap().height()), QSize(h, w));
        // Mirrored, then turned to the right: what was at (x, y) is at (h - 1 - y, w - 1 - x).
        for (const QPoint point : {QPoint(w / 7, h / 5), QPoint(w / 2, h / 9), QPoint(w - 9, h - 7)}) {
            const auto was = before.bitmap().pixel(point.x(), point.y());
            const auto is = after.bitmap().pixel(h - 1 - point.y(), w - 1 - point.x());
            for (size_t i = 0; i < 3; ++i)
                QVERIFY2(qAbs(int(was.at(i)) - int(is.at(i))) < 28, qPrintable(name));
        }
    }

    void nothingIsTurnedBeforeAnAngleIsChosen()
    {
        save("a.png", quarters({100, 100}));
        m_driver->drop({m_pictures});
        m_driver->show("turn");
        QCOMPARE(m_driver->control<QDoubleSpinBox>("angle")->value(), 0.0);
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
        m_driver->click("turnHalf");
        QCOMPARE(m_driver->control<QDoubleSpinBox>("angle")->value(), 180.0);
    }

    void aTickIsSeenWhileTheBoxIsDisabled()
    {
        save("a.png", quarters({100, 100}));
        m_driver->drop({m_pictures});
        for (const char *appearance : {"lightAppearanceAction", "darkAppearanceAction"}) {
            m_driver->trigger(appearance);
            auto *box = m_driver->control<QCheckBox>("neverEnlarge");
            box->setEnabled(false);
            box->setChecked(true);
            const QImage ticked = box->grab().toImage();
            box->setChecked(false);
            const QImage empty = box->grab().toImage();
            int differing = 0;
            for (int y = 0; y < ticked.height(); ++y)
                for (int x = 0; x < ticked.width(); ++x)
                    differing += qAbs(qGray(ticked.pixel(x, y)) - qGray(empty.pixel(x, y))) > 60;
            QVERIFY2(differing > 10, appearance);
            box->setEnabled(true);
        }
    }

    void dialAndFieldFollowEachOther()
    {
        save("a.png", quarters({100, 100}));
        m_driver->drop({m_pictures});
        m_driver->show("turn");
        auto *dial = m_driver->control<window::AngleDial>("angleDial");
        auto *field = m_driver->control<QDoubleSpinBox>("angle");
        field->setValue(45);
        QCOMPARE(dial->value(), 45.0);
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("100×100 → 141×141"));
        QTest::keyClick(dial, Qt::Key_Right);
        QCOMPARE(field->value(), 44.0);
        QTest::keyClick(dial, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(field->value(), 44.1);
        QTest::keyClick(dial, Qt::Key_PageUp);
        QCOMPARE(field->value(), 59.1);
        m_driver->click("turnHalf");
        QCOMPARE(field->value(), -120.9);
        m_driver->click("turnReset");
        QCOMPARE(dial->value(), 0.0);
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
    }

    void roundsCornersIntoPng()
    {
        save("a.jpg", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("round");
        m_driver->control<QDoubleSpinBox>("radius")->setValue(60);
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Rounded/a.png"));
        QCOMPARE(result.size(), QSize(400, 300));
        QCOMPARE(qAlpha(result.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(result.pixel(200, 0)), 255);
        QVERIFY(isNear(result.pixel(100, 75), Qt::red));
    }

    void aCircleIsCutFromTheSquareInTheMiddle()
    {
        save("a.png", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("round");
        QTest::keyClick(m_driver->control<window::SegmentedControl>("shape"), Qt::Key_Right);
        m_driver->control<QAbstractButton>("roundBackground")->setChecked(true);
        m_driver->control<window::ColorWell>("roundColor")->setColor(QStringLiteral("#ff00ff"));
        Q_EMIT m_driver->control<window::ColorWell>("roundColor")->chosen(QStringLiteral("#ff00ff"));
        QVERIFY(m_driver->text("planNote").contains(QLatin1String("middle")));
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Rounded/a.png"));
        QCOMPARE(result.size(), QSize(300, 300));
        QVERIFY(isNear(result.pixel(0, 0), QColor(255, 0, 255)));
        // The colours meet in the middle of the result as in that of the picture.
        QVERIFY(isNear(result.pixel(140, 20), Qt::red));
        QVERIFY(isNear(result.pixel(160, 20), Qt::green));
    }

    void aColourIsChosenInTheChooserAndCancelBringsTheOldOneBack()
    {
        m_driver->show("background");
        auto *well = m_driver->control<window::ColorWell>("underColor");
        QSignalSpy chosen(well, &window::ColorWell::chosen);
        const QString before = well->color();
        answerColorChooser(QColor(10, 200, 30), QDialog::Rejected);
        m_driver->click("underColor");
        QCOMPARE(chosen.size(), 2);
        QCOMPARE(well->color(), before);
        answerColorChooser(QColor(10, 200, 30), QDialog::Accepted);
        m_driver->click("underColor");
        QCOMPARE(well->color(), QStringLiteral("#0ac81e"));
        well->setColor(QStringLiteral("no colour"));
        QCOMPARE(well->color(), QStringLiteral("#0ac81e"));
        m_driver->startAgain();
        QCOMPARE(m_driver->control<window::ColorWell>("underColor")->color(), QStringLiteral("#0ac81e"));
    }

    void anAngleIsBroughtIntoItsRange_data()
    {
        QTest::addColumn<double>("given");
        QTest::addColumn<double>("shown");
        QTest::newRow("inside") << 12.34 << 12.3;
        QTest::newRow("half a turn") << 180.0 << 180.0;
        QTest::newRow("half a turn to the right") << -180.0 << -180.0;
        QTest::newRow("beyond") << 190.0 << -170.0;
        QTest::newRow("far beyond") << -725.5 << -5.5;
    }

    void anAngleIsBroughtIntoItsRange()
    {
        QFETCH(double, given);
        QFETCH(double, shown);
        window::AngleDial dial;
        dial.setValue(given);
        QCOMPARE(dial.value(), shown);
    }

    void laysATransparentPictureOnAColour()
    {
        save("a.png", clear());
        m_driver->drop({m_pictures});
        m_driver->show("background");
        Q_EMIT m_driver->control<window::ColorWell>("underColor")->chosen(QStringLiteral("#204060"));
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Framed/a.png"));
        QVERIFY(isNear(result.pixel(5, 5), QColor(0x20, 0x40, 0x60)));
        QVERIFY(isNear(result.pixel(100, 50), Qt::red));
        QCOMPARE(qAlpha(result.pixel(5, 5)), 255);
    }

    void laysATransparentPictureOnAPattern()
    {
        save("a.png", clear());
        const QString tile = m_driver->folder() + QStringLiteral("/tile.png");
        QVERIFY(quarters({4, 4}).save(tile));
        m_driver->drop({m_pictures});
        m_driver->show("background");
        QTest::keyClick(m_driver->control<window::SegmentedControl>("under"), Qt::Key_Right);
        auto *pattern = m_driver->control<QComboBox>("pattern");
        QVERIFY(QFile::exists(pattern->itemData(0).toString()));
        pattern->setItemData(0, tile);
        m_driver->choose("pattern", tile);
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Framed/a.png"));
        QCOMPARE(result.pixel(0, 0), QColor(Qt::red).rgb());
        QCOMPARE(result.pixel(6, 4), QColor(Qt::green).rgb());
        QCOMPARE(result.pixel(4, 7), QColor(Qt::blue).rgb());
    }

    void putsAWhiteFrameRound()
    {
        QImage image = quarters({200, 100});
        image.setDotsPerMeterX(11811);
        image.setDotsPerMeterY(11811);
        save("a.png", image);
        m_driver->drop({m_pictures});
        m_driver->show("background");
        m_driver->choose("frame", QStringLiteral("white"));
        run(QStringLiteral("1 picture done"));
        const QImage result(at("Framed/a.png"));
        QCOMPARE(result.size(), QSize(220, 120));
        QVERIFY(isNear(result.pixel(3, 3), Qt::white));
        QVERIFY(isNear(result.pixel(12, 12), Qt::red));
        QVERIFY(isNear(result.pixel(207, 12), Qt::green));
    }

    void measuresInTheResolutionOfEachPicture()
    {
        QImage fine = quarters({1200, 900});
        fine.setDotsPerMeterX(11811);
        fine.setDotsPerMeterY(11811);
        save("fine.png", fine);
        QImage coarse = quarters({1200, 900});
        coarse.setDotsPerMeterX(3937);
        coarse.setDotsPerMeterY(3937);
        save("coarse.png", coarse);
        m_driver->drop({at("fine.png"), at("coarse.png")});
        m_driver->choose("unit", QStringLiteral("cm"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(2.5);
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("1200×900 → 295×221 at 300 dpi"));
        run(QStringLiteral("2 pictures done"));
        QCOMPARE(uprightSize(at("Resized/fine.png")).width(), 295);
        QCOMPARE(uprightSize(at("Resized/coarse.png")).width(), 98);
    }

    void eachActionKeepsItsSettingsAndTheShownOneIsRemembered()
    {
        m_driver->show("crop");
        m_driver->choose("fileType", QStringLiteral("public.png"));
        m_driver->show("turn");
        QCOMPARE(m_driver->control<QComboBox>("fileType")->currentData().toString(),
                 QStringLiteral("original file type"));
        m_driver->show("resize");
        QCOMPARE(m_driver->control<QComboBox>("fileType")->currentData().toString(),
                 QStringLiteral("original file type"));
        m_driver->show("crop");
        m_driver->startAgain();
        QCOMPARE(m_driver->control<window::SideBar>("sideBar")->currentAction(), QStringLiteral("crop"));
        QCOMPARE(m_driver->control<QComboBox>("fileType")->currentData().toString(), QStringLiteral("public.png"));
        QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Crop"));
    }

    void anotherActionKeepsTheListAndPlansAnew()
    {
        save("a.png", quarters({400, 300}));
        m_driver->drop({m_pictures});
        m_driver->show("turn");
        m_driver->click("turnLeft");
        QCOMPARE(m_driver->pictures().count(), 1);
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->cell(0, PictureModel::NewSize) == QStringLiteral("300×400"); }));
        QCOMPARE(m_driver->control<QAbstractButton>("startButton")->text(), QStringLiteral("Rotate 1 Picture"));
        m_driver->show("round");
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->cell(0, PictureModel::NewSize) == QStringLiteral("400×300"); }));
        QCOMPARE(m_driver->control<QAbstractButton>("startButton")->text(),
                 QStringLiteral("Round the Corners of 1 Picture"));
    }

    void theSidebarIsLockedWhileARunIsUnderWay()
    {
        for (int i = 0; i < 12; ++i)
            save(qPrintable(QStringLiteral("p%1.png").arg(i)), quarters({1600, 1200}));
        m_driver->drop({m_pictures});
        m_driver->show("crop");
        m_driver->click("startButton");
        auto *bar = m_driver->control<window::SideBar>("sideBar");
        QVERIFY(!isEnabled(*bar, QStringLiteral("Resize")));
        QVERIFY(isEnabled(*bar, QStringLiteral("Crop")));
        QVERIFY(isEnabled(*bar, QStringLiteral("Log")));
        m_driver->trigger("cancelAction");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QVERIFY(isEnabled(*bar, QStringLiteral("Resize")));
    }

    void everyControlOfEveryPaneHasANameAndIsReachedByTab_data()
    {
        QTest::addColumn<QString>("action");
        for (const char *name : allActions)
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void everyControlOfEveryPaneHasANameAndIsReachedByTab()
    {
        QFETCH(QString, action);
        m_driver->show(qPrintable(action));
        save("a.png", quarters({40, 30}));
        m_driver->drop({m_pictures});
        // Notes of the plan may move what is below them.
        QVERIFY2(m_driver->waitFor([this] {
            return !m_driver->cell(0, PictureModel::NewName).isEmpty() ||
                   !m_driver->control<QWidget>("startButton")->isEnabled();
        }),
                 "no plan");
        auto *settings = m_driver->control<QWidget>("settings");
        auto *scroll = m_driver->control<QScrollArea>("settingsScroll");
        QSet<QWidget *> wanted;
        for (QWidget *widget : settings->findChildren<QWidget *>()) {
            const bool isStop = widget->focusPolicy() & Qt::TabFocus && widget->isVisible() && widget->isEnabled();
            if (!isStop || widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_")))
                continue;
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            QVERIFY2(!widget->accessibleName().isEmpty() || (button && !button->text().isEmpty()),
                     qPrintable(widget->objectName()));
            wanted.insert(widget);
        }
        QVERIFY(wanted.size() > 4);
        m_driver->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
        auto *sideBar = m_driver->control<QWidget>("sideBar");
        sideBar->setFocus();
        QStringList visited;
        int lastRow = -1;
        for (int i = 0; i < 60 && !wanted.isEmpty(); ++i) {
            // To the control itself: its surroundings scroll to the next one.
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget *now = QApplication::focusWidget();
            visited.append(now ? now->objectName() : QString());
            if (!now || !wanted.remove(now))
                continue;
            QVERIFY2(now->visibleRegion().boundingRect() == now->rect(), qPrintable(now->objectName()));
            const int row =
                now->mapTo(settings, QPoint(0, now->height() / 2)).y() + scroll->verticalScrollBar()->value();
            QVERIFY2(row >= lastRow - 40, qPrintable(now->objectName()));
            lastRow = row;
        }
        QVERIFY2(wanted.isEmpty(), qPrintable(visited.join(QLatin1Char(' '))));
    }

    void nothingIsCutOffInTheSmallestWindow_data() { everyControlOfEveryPaneHasANameAndIsReachedByTab_data(); }

    void nothingIsCutOffInTheSmallestWindow()
    {
        QFETCH(QString, action);
        m_driver->window().resize(1280, 720);
        m_driver->show(qPrintable(action));
        QCoreApplication::processEvents();
        auto *scroll = m_driver->control<QScrollArea>("settingsScroll");
        QVERIFY(scroll->widget()->width() <= scroll->viewport()->width());
        for (QWidget *widget : scroll->widget()->findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->objectName().isEmpty() ||
                widget->objectName().startsWith(QLatin1String("qt_")))
                continue;
            const bool isText = qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget);
            if (isText && !widget->property("wordWrap").toBool())
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(widget->objectName()));
        }
    }

private:
    QString at(const char *name) const { return m_pictures + QLatin1Char('/') + QLatin1String(name); }

    void save(const char *name, const QImage &image) { QVERIFY(image.save(at(name))); }

    /** A red square in the middle of nothing. */
    static QImage clear()
    {
        QImage image(200, 100, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.fillRect(80, 30, 40, 40, Qt::red);
        return image;
    }

    void run(const QString &summary)
    {
        m_driver->click("startButton");
        const QString text = m_driver->waitForSummary();
        QVERIFY2(text.startsWith(summary),
                 qPrintable(text + QLatin1Char(' ') + m_driver->cell(0, PictureModel::Status)));
    }

    static bool isEnabled(const window::SideBar &bar, const QString &title)
    {
        const QList<QListWidgetItem *> found = bar.findItems(title, Qt::MatchExactly);
        return found.size() == 1 && found.constFirst()->flags() & Qt::ItemIsEnabled;
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

QUORLIN_GUI_TEST(PictureActions)

#include "tst_picture_actions.moc"
