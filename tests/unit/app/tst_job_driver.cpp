#include "app/jobs/job_driver.h"
#include "app/seam/values.h"
#include "tests/support/test_program.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QRegularExpression>
#include <QTest>

using window::JobDriver;

/** Jobs are generators of scripts that the event loop carries out. */
class TestJobDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<QJSEngine>();
        m_values = std::make_unique<script::Values>(*m_engine);
        m_driver = std::make_unique<JobDriver>(nullptr);
        m_engine->evaluate(QStringLiteral("var said = []; function onStep(value) { said.push(value); }"
                                          "function onEnd(how, value) { said.push(how + ' ' + value); }"));
    }

    void cleanup()
    {
        m_driver.reset();
        m_values.reset();
        m_engine.reset();
    }

    void carriesOutEveryStepAndTellsTheEnd()
    {
        start("function* () { yield 1; yield 2; return 3; }");
        QVERIFY2(said().isEmpty(), "nothing happens before the event loop has its turn");
        QVERIFY(m_driver->isRunning());
        QTRY_VERIFY(!m_driver->isRunning());
        QCOMPARE(said(), QStringLiteral("1,2,done 3"));
    }

    void letsTheEventLoopHaveItsTurnBetweenSlices()
    {
        start("function* () { for (;;) yield 'x'; }");
        QElapsedTimer clock;
        clock.start();
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        QVERIFY(m_driver->isRunning());
        QVERIFY2(clock.elapsed() < 5000, "an endless job leaves room for the window");
        m_driver->cancel();
        QVERIFY(said().endsWith(QStringLiteral("cancelled undefined")));
    }

    void pausesAndGoesOn()
    {
        start("function* () { yield 1; yield 2; }");
        m_driver->pause();
        QVERIFY(m_driver->isPaused());
        QTest::qWait(30);
        QCOMPARE(said(), QString());
        m_driver->resume();
        QTRY_VERIFY(!m_driver->isRunning());
        QCOMPARE(said(), QStringLiteral("1,2,done undefined"));
        m_driver->resume();
        QVERIFY(!m_driver->isRunning());
    }

    void waitsUntilItIsWoken()
    {
        start("function* () { yield 1; yield null; yield 2; yield null; }");
        QTRY_COMPARE(said(), QStringLiteral("1"));
        QTest::qWait(30);
        QCOMPARE(said(), QStringLiteral("1"));
        m_driver->pause();
        m_driver->wake();
        QTest::qWait(30);
        QCOMPARE(said(), QStringLiteral("1"));
        m_driver->resume();
        QTRY_COMPARE(said(), QStringLiteral("1,2"));
        m_driver->pause();
        m_driver->resume();
        QTest::qWait(30);
        QVERIFY(m_driver->isRunning());
        m_driver->wake();
        QTRY_COMPARE(said(), QStringLiteral("1,2,done undefined"));
    }

    /** What it waits for may come while it is about to wait. */
    void isNotLostWhenItIsWokenTooEarly()
    {
        m_engine->globalObject().setProperty(QStringLiteral("driver"), m_engine->newQObject(m_driver.get()));
        QJSEngine::setObjectOwnership(m_driver.get(), QJSEngine::CppOwnership);
        start("function* () { driver.wake(); yield null; yield 1; }");
        QTRY_COMPARE(said(), QStringLiteral("1,done undefined"));
    }

    void runsFinallyBlocksWhenItIsCancelled()
    {
        start("function* () { try { for (;;) yield 'x'; } finally { said = ['tidied']; } }");
        QTRY_VERIFY(!said().isEmpty());
        m_driver->cancel();
        QCOMPARE(said(), QStringLiteral("tidied,cancelled undefined"));
        m_driver->cancel();
        QCOMPARE(said(), QStringLiteral("tidied,cancelled undefined"));
    }

    void tellsWhatAStepThrew()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Error: broken")));
        start("function* () { yield 1; throw new Error('broken'); }");
        QTRY_VERIFY(!m_driver->isRunning());
        QCOMPARE(said(), QStringLiteral("1,failed Error: broken"));
    }

    void endsAJobWhoseStepsAreNone_data()
    {
        QTest::addColumn<QString>("generator");
        QTest::newRow("a number") << QStringLiteral("({ next: () => 7, return: () => ({}) })");
        QTest::newRow("nothing") << QStringLiteral("({ next: () => undefined, return: () => ({}) })");
        QTest::newRow("no next") << QStringLiteral("({ return: () => ({}) })");
    }

    void endsAJobWhoseStepsAreNone()
    {
        QFETCH(QString, generator);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("A step of a job is an object")));
        m_driver->start({run(generator.toUtf8()), m_engine.get()}, function("onStep"), function("onEnd"));
        QTRY_VERIFY(!m_driver->isRunning());
        QCOMPARE(said(), QStringLiteral("failed TypeError: A step of a job is an object"));
    }

    void cancelsTheOneThatRunsWhenAnotherStarts()
    {
        start("function* () { for (;;) yield 'old'; }");
        start("function* () { yield 'new'; }");
        QTRY_VERIFY(!m_driver->isRunning());
        QCOMPARE(said(), QStringLiteral("cancelled undefined,new,done undefined"));
    }

    void callsATimerOnceAndPutsItOff()
    {
        window::ScriptTimer timer({run("() => said.push('called')"), *m_values}, nullptr);
        timer.start(60000);
        timer.start(1);
        QTRY_COMPARE(said(), QStringLiteral("called"));
        timer.start(1);
        timer.stop();
        QTest::qWait(20);
        QCOMPARE(said(), QStringLiteral("called"));
    }

private:
    QJSValue run(const QByteArray &script)
    {
        return m_engine->evaluate(QString::fromUtf8("(%1)").arg(QString::fromUtf8(script)));
    }
    QString said() { return m_engine->evaluate(QStringLiteral("said.join()")).toString(); }

    script::Function function(const char *name) { return {m_engine->evaluate(QString::fromLatin1(name)), *m_values}; }

    void start(const char *generator)
    {
        m_driver->start({run(generator).call(), m_engine.get()}, function("onStep"), function("onEnd"));
    }

    std::unique_ptr<QJSEngine> m_engine;
    std::unique_ptr<script::Values> m_values;
    std::unique_ptr<JobDriver> m_driver;
};

QUORLIN_TEST(TestJobDriver)
#include "tst_job_driver.moc"
