#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "platform/file/file_note.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QTest>

/** What runs wrote is not taken in with its folder, whatever the action was. */
class OwnResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }
    void cleanup() { m_driver.reset(); }

    void leavesThemOut_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("adding"); // the action that the folder is added to
        for (const char *action :
             {"resize", "crop", "turn", "round", "background", "watermark", "convert", "recipe", "web"})
            QTest::newRow(action) << QString::fromLatin1(action) << QString::fromLatin1(action);
        QTest::newRow("contact") << QStringLiteral("contact") << QStringLiteral("convert");
    }

    void leavesThemOut()
    {
        QFETCH(QString, action);
        QFETCH(QString, adding);
        for (int i = 0; i < 2; ++i) {
            QImage image(300, 200, QImage::Format_RGB32);
            image.fill(i == 0 ? Qt::darkRed : Qt::darkBlue);
            QVERIFY(image.save(m_driver->inputFolder() + QStringLiteral("/p%1.jpg").arg(i)));
        }
        m_driver->show(action.toLatin1().constData());
        m_driver->drop({m_driver->inputFolder()});
        QCOMPARE(rows(), 2);
        if (action == QLatin1String("turn"))
            m_driver->click("turnLeft");
        auto *start = m_driver->control<QAbstractButton>("startButton");
        QVERIFY(m_driver->waitFor([&] { return start->isEnabled(); }));
        m_driver->click("startButton");
        const QString said = m_driver->waitForSummary();
        const int made = madeFiles();
        QVERIFY2(made > 0, qPrintable(said));
        if (!m_hasNotes)
            QSKIP("the disk has no place for notes");
        m_driver->click("dismissButton");
        m_driver->trigger("clearAction");
        m_driver->show(adding.toLatin1().constData());
        m_driver->drop({m_driver->inputFolder()});
        QCOMPARE(rows(), 2);
        QCOMPARE(m_driver->text("ownNote"), made == 1
                                                ? QStringLiteral("1 result of earlier runs not added")
                                                : QStringLiteral("%1 results of earlier runs not added").arg(made));
        m_driver->click("ownAdd");
        QCOMPARE(rows(), 2 + made);
    }

private:
    int rows() { return m_driver->pictures().model()->rowCount(); }

    /** What can be added of what the run wrote. */
    int madeFiles()
    {
        int made = 0;
        QDirIterator all(m_driver->folder(),
                         {QStringLiteral("*.jpg"), QStringLiteral("*.png"), QStringLiteral("*.pdf")}, QDir::Files,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            if (!path.startsWith(m_driver->inputFolder() + u'/') ||
                all.filePath() == m_driver->inputFolder() + u'/' + all.fileName())
                continue;
            ++made;
            m_hasNotes = m_hasNotes || !platform::attachedNote(path).isEmpty();
        }
        return made;
    }

    std::unique_ptr<WindowDriver> m_driver;
    bool m_hasNotes = false;
};

QUORLIN_GUI_TEST(OwnResults)

#include "tst_own_results.moc"
