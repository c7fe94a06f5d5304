#include "app/services/ZtFFullScreen.h"
#include "platform/controls/menu_bar.h"
#include "platform/controls/screens.h"
#include "tests/support/test_program.h"

#include <QTest>

using platform::Flag;

namespace {

/** A real window that records the calls. */
class RecordingWindow : public app::WindowBackend
{
public:
    QRectF frame() const override { return m_frame; }
    void setFrame(const QRectF &frame, app::WindowExtent extent) override
    {
        m_frame = frame;
        extents.append(extent == app::WindowExtent::WholeScreen ? QStringLiteral("screen") : QStringLiteral("own"));
    }
    QStringList extents;

private:
    QRectF m_frame = QRectF(5, 6, 700, 500);
};

const QRectF screen(0, 0, 1280, 720);
const QRectF start(10, 20, 300, 200);

} // namespace

/** The two states of the window that fills the screen. */
class TestFullScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startsInTheNormalState();
    void comesBackFromEachStateAndEvent_data();
    void comesBackFromEachStateAndEvent();
    void returnsToTheFrameOfBeforeAfterTwoToggles();
    void keepsTheOlderFrameWhenEnabledTwice();
    void goesBackToItsFirstFrameWhenItNeverFilledTheScreen();
    void savesTheFrameAgainWhenOneSideDiffers();
    void takesOnlyExactlyOneForYes_data();
    void takesOnlyExactlyOneForYes();
    void showsTheMenuBarWhenItCloses();
    void becomesAZeroRectangleWithoutAScreen();
    void movesTheRealWindow();

private:
    QRectF m_screen;
};

void TestFullScreen::init()
{
    m_screen = screen;
    platform::setScreenProvider([this] { return m_screen; });
    platform::setMenuBarVisible(true);
}

void TestFullScreen::cleanup()
{
    platform::setScreenProvider({});
}

static int stateOf(const ZtFFullScreen &window)
{
    return window.property("fullscreenState").toInt();
}

static QRectF originalOf(const ZtFFullScreen &window)
{
    return window.property("originalRect").toRectF();
}

void TestFullScreen::startsInTheNormalState()
{
    ZtFFullScreen window;
    QCOMPARE(originalOf(window), QRectF(0, 0, 0, 0));
    window.setProperty("fullscreenState", 1);
    QCOMPARE(window.initWithContentRect(start, 15, 2, Flag{false}), &window);
    QCOMPARE(stateOf(window), 0);
    QCOMPARE(originalOf(window), start);
    QCOMPARE(window.frame(), start);
    QVERIFY(window.canBecomeKeyWindow());
    QVERIFY(platform::isMenuBarVisible());
}

void TestFullScreen::comesBackFromEachStateAndEvent_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<QString>("event");
    QTest::addColumn<bool>("becomesFull");
    QTest::newRow("normal, toggle") << false << QStringLiteral("toggle") << true;
    QTest::newRow("full, toggle") << true << QStringLiteral("toggle") << false;
    QTest::newRow("normal, enable") << false << QStringLiteral("enable") << true;
    QTest::newRow("full, enable") << true << QStringLiteral("enable") << true;
    QTest::newRow("normal, disable") << false << QStringLiteral("disable") << false;
    QTest::newRow("full, disable") << true << QStringLiteral("disable") << false;
}

void TestFullScreen::comesBackFromEachStateAndEvent()
{
    QFETCH(bool, isFull);
    QFETCH(QString, event);
    QFETCH(bool, becomesFull);
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    const QRectF moved = start.translated(7, 0);
    window.setFrame(moved);
    if (isFull)
        window.toggleFullscreen();
    if (event == QStringLiteral("toggle"))
        window.toggleFullscreen();
    else
        window.setFullscreenEnabled(Flag{event == QStringLiteral("enable")});
    QCOMPARE(stateOf(window), becomesFull ? 1 : 0);
    QCOMPARE(platform::isMenuBarVisible(), !becomesFull);
    const bool snapsToItsFirstFrame = !isFull && !becomesFull;
    const QRectF expected = becomesFull ? screen : snapsToItsFirstFrame ? start : moved;
    QCOMPARE(window.frame(), expected);
    QCOMPARE(originalOf(window), snapsToItsFirstFrame ? start : moved);
}

void TestFullScreen::returnsToTheFrameOfBeforeAfterTwoToggles()
{
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{true});
    const QRectF odd(-3.5, 17.25, 123.5, 77);
    window.setFrame(odd);
    window.toggleFullscreen();
    QCOMPARE(window.frame(), screen);
    window.toggleFullscreen();
    QCOMPARE(window.frame(), odd);
}

void TestFullScreen::keepsTheOlderFrameWhenEnabledTwice()
{
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    window.setFullscreenEnabled(Flag{true});
    window.setFullscreenEnabled(Flag{true});
    QCOMPARE(originalOf(window), start);
    window.setFullscreenEnabled(Flag{false});
    QCOMPARE(window.frame(), start);
    QCOMPARE(stateOf(window), 0);
}

void TestFullScreen::goesBackToItsFirstFrameWhenItNeverFilledTheScreen()
{
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    window.setFrame(QRectF(1, 1, 50, 50));
    platform::setMenuBarVisible(false);
    window.setFullscreenEnabled(Flag{false});
    QCOMPARE(window.frame(), start);
    QVERIFY(platform::isMenuBarVisible());
}

void TestFullScreen::savesTheFrameAgainWhenOneSideDiffers()
{
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    window.setFrame(QRectF(40, 50, 1280, 719)); // of the screen's width only
    window.setFullscreenEnabled(Flag{true});
    QCOMPARE(originalOf(window), QRectF(40, 50, 1280, 719));
    window.setFrame(QRectF(40, 50, 1280, 720)); // of the screen's size, elsewhere
    window.setFullscreenEnabled(Flag{true});
    QCOMPARE(originalOf(window), QRectF(40, 50, 1280, 719));
    QCOMPARE(window.frame(), screen);
}

void TestFullScreen::takesOnlyExactlyOneForYes_data()
{
    QTest::addColumn<int>("state");
    for (const int state : {1, 2, -1})
        QTest::addRow("%d", state) << state;
}

void TestFullScreen::takesOnlyExactlyOneForYes()
{
    // Any state but 0 counts as set, as a flag of 32 bits does.
    QFETCH(int, state);
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    window.setFrame(QRectF(1, 1, 50, 50));
    window.setProperty("fullscreenState", state);
    window.toggleFullscreen();
    QCOMPARE(stateOf(window), 0);
    QCOMPARE(window.frame(), start);
}

void TestFullScreen::showsTheMenuBarWhenItCloses()
{
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    window.toggleFullscreen();
    QVERIFY(!platform::isMenuBarVisible());
    window.windowWillClose({});
    QVERIFY(platform::isMenuBarVisible());
    QCOMPARE(stateOf(window), 1);
    QCOMPARE(window.frame(), screen);
}

void TestFullScreen::becomesAZeroRectangleWithoutAScreen()
{
    m_screen = QRectF();
    ZtFFullScreen window;
    window.initWithContentRect(start, 15, 2, Flag{false});
    window.setFullscreenEnabled(Flag{true});
    QCOMPARE(window.frame(), QRectF(0, 0, 0, 0));
    QCOMPARE(originalOf(window), start);
    window.toggleFullscreen();
    QCOMPARE(window.frame(), start);
}

void TestFullScreen::movesTheRealWindow()
{
    RecordingWindow real;
    QList<bool> shown;
    platform::setMenuBarPresenter([&shown](bool visible) { shown.append(visible); });
    ZtFFullScreen window;
    window.attach(&real);
    QCOMPARE(window.frame(), QRectF(5, 6, 700, 500));
    window.toggleFullscreen();
    QCOMPARE(real.frame(), screen);
    window.toggleFullscreen();
    QCOMPARE(real.frame(), QRectF(5, 6, 700, 500));
    QCOMPARE(real.extents, (QStringList{QStringLiteral("screen"), QStringLiteral("own")}));
    QCOMPARE(shown, (QList<bool>{true, false, true}));
    platform::setMenuBarPresenter({});
}

QUORLIN_TEST(TestFullScreen)
#include "tst_full_screen.moc"
