#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/preview/picture_ahead.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/preview/compare_preview.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

using window::ComparePreview;

namespace {

/** Red on the left, and a fine pattern that only its own pixels show. */
QImage pattern(int seed)
{
    QImage image(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, x < 400 ? qRgb(255, 0, 0) : qRgb((x * 7 + seed) & 255, (y * 5) & 255, (x ^ y) & 255));
    return image;
}

} // namespace

/** Pictures looked at closely and large, from the empty window on. */
class Looking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_pictures = m_driver->inputFolder();
        for (int i = 0; i < 3; ++i)
            QVERIFY(pattern(i * 40).save(m_pictures + QStringLiteral("/p%1.png").arg(i)));
        m_driver->window().resize(1280, 720);
    }

    void cleanup() { m_driver.reset(); }

    void bothPanesShowTheirOwnPixels()
    {
        m_driver->show("turn");
        m_driver->drop({m_pictures});
        m_driver->click("flipHorizontal");
        auto *view = m_driver->control<ComparePreview>("preview");
        QVERIFY(m_driver->waitFor([view] { return view->estimatedBytes() > 0; }));
        m_driver->trigger("actualAction");
        QCOMPARE(m_driver->control<window::SegmentedControl>("fitFill")->selectedSegment(), 2);
        const QImage picture = pattern(0);
        QVERIFY(m_driver->waitFor([&] { return middleOf(*view, 1) == middleOf(picture); }));
        QVERIFY(m_driver->waitFor([&] { return middleOf(*view, 3) == middleOf(picture.mirrored(true, false)); }));
        m_driver->trigger("actualAction");
        QCOMPARE(view->zoom(), 0.0);
        QCOMPARE(m_driver->control<window::SegmentedControl>("fitFill")->selectedSegment(), 0);
    }

    void spaceShowsTheResultLarge()
    {
        m_driver->show("turn");
        m_driver->drop({m_pictures});
        m_driver->click("flipHorizontal");
        auto *large = m_driver->control<ComparePreview>("largePreview");
        QSignalSpy shown(large, &ComparePreview::resultShown);
        QTest::keyClick(m_driver->control<ComparePreview>("preview"), Qt::Key_Space);
        QVERIFY(large->isVisible());
        QCOMPARE(large->size(), large->parentWidget()->size());
        QVERIFY(shown.count() > 0 || shown.wait(20000));
        const QPoint left(large->width() / 4, large->height() / 2);
        QVERIFY(colorAt(*large, left) != QColor(Qt::red));
        QTest::keyPress(large, Qt::Key_F);
        QCOMPARE(colorAt(*large, left), QColor(Qt::red));
        QTest::keyRelease(large, Qt::Key_F);
        QVERIFY(colorAt(*large, left) != QColor(Qt::red));
        // It walks on with the list.
        shown.clear();
        QTest::keyClick(large, Qt::Key_Right);
        QVERIFY(shown.wait(20000));
        QTest::keyClick(large, Qt::Key_Escape);
        QVERIFY(!large->isVisible());
    }

    void pagesShowNoResultLarge()
    {
        m_driver->show("turn");
        m_driver->drop({m_pictures});
        m_driver->click("flipHorizontal");
        m_driver->show("hand");
        auto *large = m_driver->control<ComparePreview>("largePreview");
        QSignalSpy shown(large, &ComparePreview::pictureShown);
        m_driver->trigger("largeAction");
        QVERIFY(shown.count() > 0 || shown.wait(20000));
        QVERIFY(!large->showsResult());
        QCOMPARE(colorAt(*large, {large->width() / 4, large->height() / 2}), QColor(Qt::red));
    }

    void sortingByHandStaysAtOneToOne()
    {
        m_driver->show("hand");
        m_driver->drop({m_pictures});
        auto *view = m_driver->control<ComparePreview>("handView");
        QSignalSpy shown(view, &ComparePreview::pictureShown);
        QVERIFY(shown.count() > 0 || shown.wait(20000));
        m_driver->click("handActualButton");
        QCOMPARE(view->zoom(), 1.0);
        QVERIFY(m_driver->waitFor([&] { return middleOf(*view, 2) == middleOf(pattern(0)); }));
        // The same part of the next picture is there before it is shown.
        const auto *ahead = view->findChild<window::PictureAhead *>();
        const window::ShownRoom part{QSizeF(view->size()) * view->devicePixelRatioF(), false, 1, {0.5, 0.5}};
        QVERIFY(m_driver->waitFor([&] { return ahead->has(m_pictures + QStringLiteral("/p1.png"), part); }));
        m_driver->click("handSkipButton");
        QVERIFY(m_driver->waitFor([&] { return middleOf(*view, 2) == middleOf(pattern(40)); }));
        m_driver->click("handActualButton");
        QCOMPARE(view->zoom(), 0.0);
        QVERIFY(!m_driver->control<QAbstractButton>("handActualButton")->isChecked());
    }

private:
    static QColor colorAt(ComparePreview &view, QPoint point) { return view.grab().toImage().pixelColor(point); }

    /** What is seen around the point that many quarters from the left. */
    static QImage middleOf(ComparePreview &view, int quarters)
    {
        const QImage all = view.grab().toImage().convertToFormat(QImage::Format_RGB32);
        // A half that has an odd width has its middle between two pixels.
        const int half = view.width() / 2;
        const QRect area = quarters == 2   ? all.rect()
                           : quarters == 1 ? QRect(0, 0, half, view.height())
                                           : QRect(half, 0, view.width() - half, view.height());
        const int left = qRound(area.left() + area.width() / 2.0 - 800);
        const int top = qRound(view.height() / 2.0 - 600);
        return all.copy(QRect(QPoint(left + 800 - 60, top + 600 - 30), QSize(120, 60)));
    }
    static QImage middleOf(const QImage &picture) { return picture.copy(QRect(740, 570, 120, 60)); }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

QUORLIN_GUI_TEST(Looking)
#include "tst_looking.moc"
