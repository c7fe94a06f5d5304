#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "platform/desktop/user_defaults.h"
#include "platform/graphics/bitmap.h"

#include <QDir>
#include <QEvent>
#include <QImage>
#include <QLoggingCategory>
#include <QTest>

#include <algorithm>
#include <ctime>

namespace {

qint64 ownNs()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

/**
 * What the collector of the language took: it looks at everything in one go when it sees fit, so that it is in no handler of ours, and
 * cannot be split. It says when it begins and ends.
 */
class Collector
{
public:
    static void listen()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("qt.qml.gc.allocatorStats=true"));
        s_next = qInstallMessageHandler(take);
    }

    static void leave()
    {
        qInstallMessageHandler(s_next);
        QLoggingCategory::setFilterRules({});
    }

    static qint64 ns() { return s_ns; }

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (qstrcmp(context.category, "qt.qml.gc.allocatorStats") != 0)
            return s_next(type, context, message);
        if (message == QLatin1String("========== GC =========="))
            s_began = ownNs();
        if (message == QLatin1String("======== End GC ========"))
            s_ns += ownNs() - s_began;
    }

    static inline QtMessageHandler s_next = nullptr;
    static inline qint64 s_began = 0;
    static inline qint64 s_ns = 0;
};

/** Knows what of the processor each event took on the main thread: that does not depend on what else the machine does. */
class MeasuredApplication : public QApplication
{
public:
    using QApplication::QApplication;

    struct Handled
    {
        qint64 ns = 0;
        QString what;
    };

    static std::vector<Handled> &longest()
    {
        static std::vector<Handled> s_longest;
        return s_longest;
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (m_depth > 0)
            return QApplication::notify(receiver, event);
        const QObject *owner = receiver->parent() ? receiver->parent() : receiver;
        const QString what = QStringLiteral("%1 %2 of %3, event %4")
                                 .arg(QLatin1String(receiver->metaObject()->className()), receiver->objectName(),
                                      QLatin1String(owner->metaObject()->className()))
                                 .arg(int(event->type()));
        ++m_depth;
        const qint64 before = ownNs() - Collector::ns();
        const bool isTaken = QApplication::notify(receiver, event);
        const qint64 ns = ownNs() - Collector::ns() - before;
        --m_depth;
        keep({ns, what});
        return isTaken;
    }

private:
    static void keep(const Handled &handled)
    {
        constexpr size_t most = 8;
        std::vector<Handled> &all = longest();
        all.push_back(handled);
        std::sort(all.begin(), all.end(), [](const Handled &one, const Handled &other) { return one.ns > other.ns; });
        if (all.size() > most)
            all.resize(most);
    }

    int m_depth = 0;
};

} // namespace

/** The window answers while a run is under way: whatever it does for the run, it does a little at a time. */
class ShortSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("everything takes longer under this checker");
#endif
        // The first picture that is shown loads the library of pixels, once in the life of the program; that is in no run.
        QImage image(1, 1, QImage::Format_RGB32);
        image.fill(Qt::white);
        QVERIFY(!platform::Bitmap::fromImage(image).isNull());
    }

    void init()
    {
        Collector::listen();
        m_driver = WindowDriver::started();
    }
    void cleanup()
    {
        m_driver.reset();
        QVERIFY(Collector::ns() > 0); // it was heard
        Collector::leave();
    }

    void makesPictures()
    {
        isShort([this] { makePictures(); });
    }

    void laysOutPages()
    {
        isShort([this] { layOutPages(); });
    }

    void renamesFiles()
    {
        isShort([this] { renameFiles(); });
    }

    void undoesRenaming()
    {
        isShort([this] { undoRenaming(); });
    }

private:
    QString at(int number, const char *extension) const
    {
        return m_driver->inputFolder() +
               QStringLiteral("/p%1.%2").arg(number, 5, 10, QLatin1Char('0')).arg(QLatin1String(extension));
    }

    void addPictures(int count)
    {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QVERIFY(image.save(at(0, "jpg")));
        for (int i = 1; i < count; ++i)
            QVERIFY(QFile::copy(at(0, "jpg"), at(i, "jpg")));
        m_driver->drop({m_driver->inputFolder()});
        QVERIFY(settled());
    }

    void layOutPages()
    {
        m_driver->show("contact");
        addPictures(150);
        if (QTest::currentTestFailed())
            return;
        const QString said = run();
        QVERIFY2(said.startsWith(QStringLiteral("Contact sheet.pdf: 8 pages")), qPrintable(said));
    }

    void makePictures()
    {
        constexpr int count = 150;
        addPictures(count);
        if (QTest::currentTestFailed())
            return;
        const QString said = run();
        QVERIFY2(said.startsWith(QStringLiteral("%1 pictures done").arg(count)), qPrintable(said));
    }

    void renameFiles()
    {
        constexpr int count = 4000; // one step that grew with their number would be seen
        beginRenaming(count);
        const QString said = run();
        QVERIFY2(said.startsWith(QStringLiteral("%L1 files renamed, no problems").arg(count)), qPrintable(said));
    }

    void undoRenaming()
    {
        constexpr int count = 4000;
        beginRenaming(count);
        run();
        MeasuredApplication::longest().clear();
        m_driver->control<QAction>("undoAction")->trigger();
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QStringLiteral("%L1 names restored").arg(count)), qPrintable(said));
    }

    void beginRenaming(int count)
    {
        for (int i = 0; i < count; ++i) {
            QFile file(at(i, "txt"));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        platform::setUserDefault(QStringLiteral("Settings-rename"),
                                 QStringLiteral(R"({"what":"files","steps":[{"kind":"text","on":true,"pattern":)"
                                                R"("new {counter:00001}"}],"sidecars":true,"simulation":false})"));
        m_driver->startAgain();
        m_driver->show("rename");
        m_driver->drop({m_driver->inputFolder()});
        QVERIFY(settled());
    }

    /** The plan of the whole list is made. */
    bool settled()
    {
        return m_driver->waitFor(
            [this] {
                const int last = m_driver->pictures().model()->rowCount() - 1;
                return m_driver->control<QAbstractButton>("startButton")->isEnabled() &&
                       m_driver->cell(last, window::PictureModel::Status) == QStringLiteral("Ready");
            },
            120000);
    }

    QString run()
    {
        MeasuredApplication::longest().clear();
        m_driver->click("startButton");
        return m_driver->waitForSummary();
    }

    /**
     * Another program on the same core makes a step longer, and never shorter, so that one of three runs without a long one will do: a step
     * that is too long by itself is so in each.
     */
    template<typename Does> void isShort(Does does)
    {
        constexpr qint64 mostNs = 10'000'000;
        constexpr int tries = 3;
        QStringList words;
        for (int i = 0; i < tries; ++i) {
            if (i > 0) {
                m_driver.reset();
                m_driver = WindowDriver::started();
            }
            does();
            if (QTest::currentTestFailed())
                return;
            words.clear();
            for (const auto &each : MeasuredApplication::longest())
                words.append(QStringLiteral("%1 ms %2").arg(double(each.ns) / 1e6, 0, 'f', 1).arg(each.what));
            qInfo("%s", qPrintable(words.front()));
            if (MeasuredApplication::longest().front().ns <= mostNs)
                return;
        }
        QFAIL(qPrintable(words.join(u'\n')));
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_REMEMBER_TEST(ShortSteps, &tests::mainWithWindows<ShortSteps, MeasuredApplication>)

#include "tst_short_steps.moc"
