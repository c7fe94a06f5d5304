#include "tests/gui/clicks/click_jobs.h"

#include "tests/gui/clicks/hand.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/test_pictures.h"

#include "app/window/folders/side_bar.h"
#include "meta/mMeta.h"

#include <QDir>
#include <QDirIterator>
#include <QImageReader>
#include <QPlainTextEdit>

#include <functional>

namespace clicks {

namespace {

/** One job: a program that was just installed, its hand and its files. */
class Work
{
public:
    Work() : m_driver(WindowDriver::started()), m_folder(m_driver->folder() + QStringLiteral("/day"))
    {
        m_driver->window().resize(1440, 900);
        QDir().mkpath(m_folder);
    }

    Hand hand;

    WindowDriver &driver() { return *m_driver; }
    template<typename T> T &control(const char *name) { return *m_driver->control<T>(name); }
    QString path(const QString &name) const { return m_folder + u'/' + name; }

    void picture(const QString &name, QSize size)
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        pictures::plain(size.width(), size.height(), Qt::darkCyan, QImage::Format_RGB32).save(path(name));
    }

    /** The folder with all pictures, from which on is counted. */
    bool drop(int pictures)
    {
        m_driver->drop({m_folder});
        return m_driver->waitFor([&] { return m_driver->pictures().count() == pictures; });
    }

    void chooseAction(const QString &title)
    {
        auto &bar = control<window::SideBar>("sideBar");
        const QList<QListWidgetItem *> found = bar.findItems(title, Qt::MatchExactly);
        if (found.isEmpty())
            qFatal("no action %s", qPrintable(title));
        hand.click(*bar.viewport(), bar.visualItemRect(found.first()).center());
    }

    /** Ctrl+Return, once it can be pressed; what is wrong, or nothing. */
    QString startAndWait()
    {
        auto &start = control<QAbstractButton>("startButton");
        if (!m_driver->waitFor([&] { return start.isEnabled(); }))
            return QStringLiteral("the run cannot be started");
        hand.press(QStringLiteral("Ctrl+Return"));
        return m_driver->waitForSummary().isEmpty() ? QStringLiteral("no summary came") : QString();
    }

    /** All files below the folder, by relative path. */
    QStringList files() const
    {
        QStringList found;
        QDirIterator all(m_folder, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext())
            found.append(QDir(m_folder).relativeFilePath(all.next()));
        found.sort();
        return found;
    }

private:
    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
};

QString lacks(const QStringList &found, const QStringList &wanted)
{
    return found == wanted ? QString() : QStringLiteral("the files are ") + found.join(QStringLiteral(", "));
}

// Copies of 1600 pixels, each in a folder Web beside its picture.
QString webCopies(Work &work, Program)
{
    work.picture(QStringLiteral("a.jpg"), {2400, 1600});
    work.picture(QStringLiteral("church/b.png"), {1500, 2400});
    work.picture(QStringLiteral("party/night/c.jpg"), {2000, 2000});
    if (!work.drop(3))
        return QStringLiteral("not all pictures were added");
    work.hand.choose(work.control<QComboBox>("preset"), QStringLiteral("Web 1600"));
    if (const QString problem = work.startAndWait(); !problem.isEmpty())
        return problem;
    const QSize size = QImageReader(work.path(QStringLiteral("church/Web/b.jpg"))).size();
    if (size != QSize(1000, 1600))
        return QStringLiteral("the copy has %1 x %2 pixels").arg(size.width()).arg(size.height());
    return lacks(work.files(), {QStringLiteral("Web/a.jpg"), QStringLiteral("a.jpg"),
                                QStringLiteral("church/Web/b.jpg"), QStringLiteral("church/b.png"),
                                QStringLiteral("party/night/Web/c.jpg"), QStringLiteral("party/night/c.jpg")});
}

// The names are the date and a counter, separated by a space only.
QString renameByDate(Work &work, Program)
{
    for (int i = 1; i <= 3; ++i) {
        QFile file(work.path(QStringLiteral("img_%1.jpg").arg(i)));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(pictures::datedJpeg(QStringLiteral("2026:08:1%1 10:00:00").arg(i))) < 0)
            return file.errorString();
    }
    if (!work.drop(3))
        return QStringLiteral("not all pictures were added");
    work.hand.press(QStringLiteral("F2"));
    work.hand.choose(work.control<QComboBox>("preset"), QStringLiteral("Date and place"));
    work.hand.click(work.control<QWidget>("cardTitle"));
    work.hand.press(QStringLiteral("Ctrl+A"));
    work.hand.type(QStringLiteral("{taken} {counter:001}"));
    if (const QString problem = work.startAndWait(); !problem.isEmpty())
        return problem;
    return lacks(work.files(), {QStringLiteral("2026-08-11 001.jpg"), QStringLiteral("2026-08-12 002.jpg"),
                                QStringLiteral("2026-08-13 003.jpg")});
}

// A square of each, whatever its format and type.
QString squares(Work &work, Program)
{
    work.picture(QStringLiteral("a.jpg"), {2000, 1500});
    work.picture(QStringLiteral("b.png"), {1400, 2100});
    work.picture(QStringLiteral("c.tiff"), {3000, 1200});
    if (!work.drop(3))
        return QStringLiteral("not all pictures were added");
    work.chooseAction(QStringLiteral("Crop"));
    work.hand.choose(work.control<QComboBox>("preset"), QStringLiteral("Centre square 1080"));
    if (const QString problem = work.startAndWait(); !problem.isEmpty())
        return problem;
    int made = 0;
    for (const QString &name : work.files().filter(QStringLiteral("/"))) {
        const QSize size = QImageReader(work.path(name)).size();
        if (size != QSize(1080, 1080))
            return QStringLiteral("%1 has %2 x %3 pixels").arg(name).arg(size.width()).arg(size.height());
        ++made;
    }
    return made == 3 ? QString() : QStringLiteral("%1 pictures were made").arg(made);
}

constexpr int captioned = 30;

QString captionOf(int picture)
{
    return QStringLiteral("caption of picture %1").arg(picture);
}

QString pictureName(int picture)
{
    return QStringLiteral("%1.jpg").arg(picture, 2, 10, QChar(u'0'));
}

/** Writes what was typed, and goes on to the next picture with the cursor in the field again. */
bool applyAndGoOn(Work &work, Program program, int picture)
{
    const QString path = work.path(pictureName(picture));
    const auto isWritten = [&path, picture] { return mMeta().hGetExifUc(path) == captionOf(picture); };
    if (program == Program::Present) {
        work.hand.press(QStringLiteral("Ctrl+Return"));
        return work.driver().waitFor(isWritten);
    }
    work.hand.click(work.control<QWidget>("metaApply"));
    if (!work.driver().waitFor(isWritten))
        return false;
    if (picture < captioned) {
        work.hand.press(QStringLiteral("Ctrl+Right"));
        work.hand.click(work.control<QPlainTextEdit>("metaComment"));
    }
    return true;
}

// Another one in each picture, written into its file.
QString captions(Work &work, Program program)
{
    for (int i = 1; i <= captioned; ++i)
        work.picture(pictureName(i), {300, 200});
    if (!work.drop(captioned))
        return QStringLiteral("not all pictures were added");
    work.chooseAction(QStringLiteral("Metadata"));
    work.hand.click(work.control<QPlainTextEdit>("metaComment"));
    for (int i = 1; i <= captioned; ++i) {
        auto &field = work.control<QPlainTextEdit>("metaComment");
        const QString shown = QStringLiteral("%1 of %2").arg(i).arg(captioned);
        if (!work.driver().waitFor(
                [&] { return work.driver().text("metaPlace") == shown && field.hasFocus() && !field.isReadOnly(); }))
            return QStringLiteral("picture %1 is not shown with the cursor in its field").arg(i);
        work.hand.type(captionOf(i));
        if (!applyAndGoOn(work, program, i))
            return QStringLiteral("the comment of picture %1 was not written").arg(i);
    }
    const auto isSaid = [&work] {
        return work.driver().text("statusText").startsWith(QLatin1String("1 comment written"));
    };
    return work.driver().waitFor(isSaid) ? QString() : work.driver().text("statusText");
}

} // namespace

QList<Job> doAll(Program program)
{
    const QList<std::pair<QString, std::function<QString(Work &, Program)>>> all = {
        {QStringLiteral("web copies of a folder tree"), webCopies},
        {QStringLiteral("rename by date and counter"), renameByDate},
        {QStringLiteral("square crops of a mixed list"), squares},
        {QStringLiteral("captions for 30 pictures"), captions},
    };
    QList<Job> done;
    for (const auto &[name, way] : all) {
        Work work;
        const QString problem = way(work, program);
        done.append({name, work.hand.count(), problem});
    }
    return done;
}

} // namespace clicks
