#include "tests/gui/support/window_driver.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/folders/side_bar.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/properties/property_tree.h"
#include "jobs/desk/worker_desk.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/opening_watch.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

using window::PictureModel;

/** The process of the window opens no picture: whatever a decoder does, it does to somebody else. */
class DecodesNothing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_pictures = m_driver->folder() + QStringLiteral("/in");
        QVERIFY(QDir().mkpath(m_pictures));
        m_opened.clear();
    }

    void cleanup()
    {
        m_driver.reset();
        platform::watchOpening({});
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
    }

    void noPictureInASession();
    void nothingWhereFilesAreMadeAndChanged();
    void countsWhatIsOpened();
    void staysWithBrokenPictures();
    void staysWhenReadersCrash();
    void writesTheOtherCommentsWhenReadersCrash();

private:
    QString add(const QString &name, QSize size = {300, 200})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(40, 90, int(qHash(name) % 256)));
        const QString path = m_pictures + u'/' + name;
        if (!image.save(path))
            qFatal("no picture");
        return path;
    }

    void watch()
    {
        platform::watchOpening([this](const QString &name) { m_opened.append(name); });
    }

    bool isRead(int row)
    {
        return m_driver->waitFor([&] { return !m_driver->cell(row, PictureModel::Pixels).isEmpty(); });
    }

    /** Until nothing is planned or shown any more. */
    void rest() { QTest::qWait(700); }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
    QStringList m_opened;
};

void DecodesNothing::noPictureInASession()
{
    watch();
    for (const char *name : {"a.jpg", "b.png", "c.bmp", "d.tif"})
        add(QString::fromLatin1(name));
    m_driver->drop({m_pictures});
    for (int row = 0; row < 4; ++row)
        QVERIFY(isRead(row));
    for (const char *action : {"resize", "crop", "turn", "round", "background", "watermark", "recipe", "convert",
                               "rename", "sort", "hand", "web", "contact", "metadata", "fields", "log", "resize"}) {
        m_driver->show(action);
        rest();
        QVERIFY2(m_opened.isEmpty(), qPrintable(QLatin1String(action) + m_opened.join(u' ')));
    }
    m_driver->pictures().step(1);
    m_driver->trigger("largeAction");
    rest();
    m_driver->trigger("largeAction");
    m_driver->click("startButton");
    QVERIFY(m_driver->waitForSummary().contains(u'4'));
    rest();
    // What it has written itself it may open.
    for (const QString &name : std::as_const(m_opened))
        QVERIFY2(!name.startsWith(m_pictures + u'/') || name.startsWith(m_pictures + QStringLiteral("/Resized/")) ||
                     name.contains(QStringLiteral("/.")),
                 qPrintable(name));
}

/** Convert, Save As, comments written into one and into many, fields of metadata, and both reverted. */
void DecodesNothing::nothingWhereFilesAreMadeAndChanged()
{
    for (const char *name : {"a.jpg", "b.jpg", "c.png"})
        add(QString::fromLatin1(name));
    watch();
    m_driver->show("convert");
    m_driver->drop({m_pictures});
    for (int row = 0; row < 3; ++row)
        QVERIFY(isRead(row));
    for (const char *type : {"tiff", "pdf", "jpeg"}) {
        m_driver->choose("target", QString::fromLatin1(type));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("3 pictures done")));
    }
    const QString saved = m_driver->folder() + QStringLiteral("/saved.gif");
    WindowDriver::answerPanels({saved});
    m_driver->trigger("saveAsAction");
    QVERIFY(m_driver->waitFor([&] { return m_driver->text("statusText").startsWith(QStringLiteral("Saved")); }));
    QVERIFY(QFileInfo::exists(saved));
    m_driver->show("metadata");
    rest();
    auto *field = m_driver->control<QPlainTextEdit>("metaComment");
    field->setPlainText(QStringLiteral("one"));
    m_driver->click("metaApply");
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("statusText").startsWith(QStringLiteral("1 comment written")); }));
    Q_EMIT m_driver->control<window::SegmentedControl>("metaScope")->chosen(1);
    field->setPlainText(QStringLiteral("all"));
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaApplyAll");
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("statusText").startsWith(QStringLiteral("3 comments written")); }));
    m_driver->click("metaRevert");
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("statusText").startsWith(QStringLiteral("3 comments reverted")); }));
    m_driver->click("metaFields");
    m_driver->control<QLineEdit>("mfTitle")->setText(QStringLiteral("{name}"));
    QVERIFY(m_driver->waitFor([&] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("startButton");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("3 pictures changed")));
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("statusText").startsWith(QStringLiteral("3 pictures reverted")); }));
    QVERIFY2(m_opened.isEmpty(), qPrintable(m_opened.join(u' ')));
}

/** So that the count of the session means something. */
void DecodesNothing::countsWhatIsOpened()
{
    watch();
    (void)platform::ImageSource::open(add(QStringLiteral("a.png")));
    QCOMPARE(m_opened.size(), 1);
}

void DecodesNothing::staysWithBrokenPictures()
{
    if (!corpusIsThere())
        QSKIP("There is no collection of pictures");
    watch();
    int count = 0;
    for (const char *folder : {"/broken", "/found"})
        for (QDirIterator files(corpusFolder() + QLatin1String(folder), QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();) {
            const QString path = files.next();
            if (QFile::copy(path, m_pictures + QStringLiteral("/%1-%2").arg(count).arg(QFileInfo(path).fileName())))
                ++count;
        }
    QVERIFY(count > 0);
    m_driver->drop({m_pictures});
    const int rows = m_driver->pictures().count();
    QVERIFY(rows > 0);
    for (int row = 0; row < rows; ++row)
        QVERIFY2(isRead(row), qPrintable(m_driver->cell(row, PictureModel::Name)));
    const auto isPlanned = [&] {
        for (int row = 0; row < rows; ++row)
            if (m_driver->cell(row, PictureModel::Status).isEmpty())
                return false;
        return true;
    };
    QVERIFY(m_driver->waitFor(isPlanned, 60000));
    for (int row = 0; row < rows; ++row) {
        m_driver->pictures().step(1);
        QTest::qWait(20);
    }
    rest();
    QVERIFY2(m_opened.isEmpty(), qPrintable(m_opened.join(u' ')));
}

void DecodesNothing::staysWhenReadersCrash()
{
    m_driver.reset();
    jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
    m_driver = WindowDriver::started();
    m_pictures = m_driver->folder() + QStringLiteral("/in");
    QVERIFY(QDir().mkpath(m_pictures));
    for (const char *name : {"a.png", "read-crash.png", "z.png"})
        add(QString::fromLatin1(name));
    m_driver->drop({m_pictures});
    for (int row = 0; row < 3; ++row)
        QVERIFY(isRead(row));
    QCOMPARE(m_driver->cell(0, PictureModel::Pixels), QStringLiteral("300×200"));
    QCOMPARE(m_driver->cell(1, PictureModel::Pixels), QStringLiteral("–"));
    QCOMPARE(m_driver->cell(2, PictureModel::Pixels), QStringLiteral("300×200"));
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->cell(1, PictureModel::Status).contains(QStringLiteral("its reader crashed")); }));
    auto &preview = *m_driver->control<window::ComparePreview>("preview");
    m_driver->pictures().step(1);
    QVERIFY(m_driver->waitFor(
        [&] { return preview.shownProblem() == QStringLiteral("This picture cannot be shown: its reader crashed"); }));
    m_driver->pictures().step(1);
    QVERIFY(m_driver->waitFor([&] { return preview.shownProblem().isEmpty(); }));
}

void DecodesNothing::writesTheOtherCommentsWhenReadersCrash()
{
    m_driver.reset();
    jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
    m_driver = WindowDriver::started();
    m_pictures = m_driver->folder() + QStringLiteral("/in");
    QVERIFY(QDir().mkpath(m_pictures));
    QByteArrayList before;
    for (const char *name : {"a.png", "read-crash.png", "z.png"})
        before += pictures::bytesOf(add(QString::fromLatin1(name)));
    m_driver->drop({m_pictures});
    m_driver->show("metadata");
    Q_EMIT m_driver->control<window::SegmentedControl>("metaScope")->chosen(1);
    m_driver->control<QPlainTextEdit>("metaComment")->setPlainText(QStringLiteral("all"));
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaApplyAll");
    const auto said = [&] { return m_driver->text("statusText"); };
    QVERIFY(m_driver->waitFor([&] { return said().contains(QStringLiteral("comments written")); }));
    QCOMPARE(said(), QStringLiteral("2 comments written · 1 problem · its reader crashed"));
    QVERIFY(pictures::bytesOf(m_pictures + QStringLiteral("/z.png")) != before[2]);
    QCOMPARE(pictures::bytesOf(m_pictures + QStringLiteral("/read-crash.png")), before[1]);
    QCOMPARE(QDir(m_pictures).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 3);
}

QUORLIN_GUI_TEST(DecodesNothing)
#include "tst_decodes_nothing.moc"
