#include "tests/gui/support/fit_walk.h"
#include "tests/gui/support/window_tour.h"
#include "tests/support/test_program.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTest>

namespace {

constexpr QSize desk(1440, 900);
constexpr double larger = 1.5;

} // namespace

/** Every window with letters half as large again: nothing but names of files is cut off. */
class LargeFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSizeF(usual.pointSizeF() * larger);
        QVERIFY(QFontMetrics(large).height() > 1.3 * QFontMetrics(usual).height());
        QApplication::setFont(large);
        m_driver = WindowDriver::started();
    }

    void cleanupTestCase() { m_driver.reset(); }

    void everythingFits()
    {
        QSet<QString> found;
        QStringList problems;
        const auto look = [&](const QString &place, const QWidget &window) {
            if (window.width() > desk.width() || window.height() > desk.height())
                problems.append(place +
                                QStringLiteral(": the window is %1 x %2").arg(window.width()).arg(window.height()));
            for (const QString &each : misfits(window))
                if (!found.contains(each)) {
                    found.insert(each);
                    problems.append(place + QStringLiteral(": ") + each);
                }
        };
        WindowTour tour(*m_driver, desk, look);
        tour.sheets();
        tour.runs();
        tour.bars();
        tour.actions();
        tour.windows();
        tour.manual();
        tour.panels();
        for (const QString &each : problems)
            qWarning("%s", qPrintable(each));
        QCOMPARE(problems.size(), 0);
    }

private:
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(LargeFont)

#include "tst_large_font.moc"
