#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/reading/reading_services.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <csignal>

#include <unistd.h>

/** A worker that no longer answers leaves the window responsive: waiting can be abandoned. */
class HungWorker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_picture = m_driver->folder() + QStringLiteral("/one.jpg");
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QVERIFY(image.save(m_picture));
        QVERIFY(m_files.readComment(m_picture).value(QStringLiteral("problem")).toString().isEmpty());
    }
    void cleanup() { m_driver.reset(); }

    void givesUpWhatIsReadWhenAsked();
    void givesUpWhatIsWrittenWhenAsked();
    void saysNothingWhereTheAnswerComes();

private:
    static QList<pid_t> children()
    {
        QList<pid_t> found;
        QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
        if (children.open(QIODevice::ReadOnly))
            for (const QByteArray &number : children.readAll().simplified().split(' '))
                if (number.toInt() > 0)
                    found.append(number.toInt());
        return found;
    }

    static void tellAll(int signal)
    {
        for (const pid_t child : children())
            ::kill(child, signal);
    }

    static QDialog *note()
    {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->objectName() == QLatin1String("longWaitNote") && window->isVisible())
                return qobject_cast<QDialog *>(window);
        return nullptr;
    }

    /**
     * Does @p does while all workers are stopped; counts the passes of the event loop, and answers once that is high
     * enough.
     */
    template<typename Does> void whileStopped(Does does, const std::function<void()> &answer)
    {
        constexpr int enough = 20;
        tellAll(SIGSTOP);
        m_turns = 0;
        QTimer beats;
        beats.callOnTimeout([&] {
            if (note() && ++m_turns == enough)
                answer();
        });
        beats.start(5);
        does();
        QVERIFY(m_turns >= enough);
        QVERIFY(!note());
        tellAll(SIGCONT);
    }

    std::unique_ptr<WindowDriver> m_driver;
    window::ReadingFiles m_files;
    QString m_picture;
    int m_turns = 0;
};

void HungWorker::givesUpWhatIsReadWhenAsked()
{
    QVariantMap comment;
    whileStopped([&] { comment = m_files.readComment(m_picture); },
                 [] { note()->findChild<QPushButton *>(QStringLiteral("longWaitStop"))->click(); });
    QCOMPARE(comment.value(QStringLiteral("problem")).toString(),
             QStringLiteral("reading was stopped because it took too long"));
    // Another worker answers the next question.
    QCOMPARE(m_files.readComment(m_picture).value(QStringLiteral("problem")).toString(), QString());
}

void HungWorker::givesUpWhatIsWrittenWhenAsked()
{
    QFile file(m_picture);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QString problem;
    whileStopped([&] { problem = m_files.writeComment(m_picture, QStringLiteral("a word")); },
                 [] { QTest::keyClick(note(), Qt::Key_Escape); });
    QCOMPARE(problem, QStringLiteral("writing was stopped because it took too long"));
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), before);
    QCOMPARE(m_files.writeComment(m_picture, QStringLiteral("a word")), QString());
    QCOMPARE(m_files.readComment(m_picture).value(QStringLiteral("comment")).toString(), QStringLiteral("a word"));
}

void HungWorker::saysNothingWhereTheAnswerComes()
{
    QVariantMap comment;
    whileStopped([&] { comment = m_files.readComment(m_picture); }, [] { tellAll(SIGCONT); });
    QCOMPARE(comment.value(QStringLiteral("problem")).toString(), QString());
}

QUORLIN_GUI_TEST(HungWorker)

#include "tst_hung_worker.moc"
