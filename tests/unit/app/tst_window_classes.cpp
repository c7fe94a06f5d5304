#include "app/services/MyObjectControler.h"
#include "app/services/ZtFFullScreen.h"
#include "app/services/mainViewController.h"
#include "app/services/mainWindowClass.h"
#include "tests/support/test_program.h"

#include <QTest>

/** The small classes round the main window. */
class TestWindowClasses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesTheTitleBarTransparentAndTheWindowOpaque();
    void doesNothingWithoutAWindow();
    void leavesTheLoadedWindowAsItIs();
    void holdsANumberAndItsModel();
};

void TestWindowClasses::makesTheTitleBarTransparentAndTheWindowOpaque()
{
    ZtFFullScreen window;
    window.setProperty("alphaValue", 0.5);
    mainViewController controller;
    controller.setWindow(&window);
    controller.viewWillAppear();
    QCOMPARE(window.property("titlebarAppearsTransparent").toBool(), true);
    QCOMPARE(window.property("alphaValue").toDouble(), 1.0);
}

void TestWindowClasses::doesNothingWithoutAWindow()
{
    mainViewController controller;
    controller.viewWillAppear();
    {
        ZtFFullScreen window;
        controller.setWindow(&window);
    }
    QCOMPARE(controller.window(), nullptr);
    controller.viewWillAppear();
}

void TestWindowClasses::leavesTheLoadedWindowAsItIs()
{
    mainWindowClass controller;
    controller.windowDidLoad();
    QVERIFY(controller.dynamicPropertyNames().isEmpty());
}

void TestWindowClasses::holdsANumberAndItsModel()
{
    MyObjectControler controller;
    QCOMPARE(controller.myModelObj(), nullptr);
    MyModel model;
    QCOMPARE(model.floatValue(), 0.0);
    model.setFloatValue(2.5);
    controller.setMyModelObj(&model);
    QCOMPARE(controller.myModelObj()->floatValue(), 2.5);
}

QUORLIN_TEST(TestWindowClasses)
#include "tst_window_classes.moc"
