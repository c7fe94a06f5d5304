#pragma once

#include "jobs/name_stream.h"
#include "jobs/path_hash.h"
#include "jobs/picture_watch.h"
#include "platform/disk/item_identity.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <deque>

/** Recipes over many pictures: which they are, how results are named, what comes of them. Needs no window. */
namespace jobs {

/** One picture of a batch. */
struct Input
{
    QString path;    ///< absolute
    QString root;    ///< the folder that was named and that it was found in; empty for a picture that was named itself
    QString problem; ///< a sentence if nothing readable is there
    bool isNews = false; ///< it came into a watched folder: what a report says of it is said of an earlier one
};

/** The path of an input relative to its root, or its own name. */
QString placeBelowRoot(const Input &input);

/**
 * The pictures of a batch, one after the other: of files and folders in the order given, then of names that arrive
 * later. A folder yields everything below it except links, like files::collectFiles(), when it is reached; those named
 * from the start are walked before anything is written. A picture that is named twice, under whatever path, counts at
 * its first position.
 *
 * What was taken is not kept; some 50 bytes a picture are, in few blocks, so that the millionth costs what the first did.
 */
class Inputs
{
public:
    explicit Inputs(const QStringList &named, std::optional<NameStream> more = std::nullopt);
    /** Pictures that come into folders; they end when no folder is left. */
    explicit Inputs(PictureWatch watch) : m_watch(std::move(watch)) {}

    using State = NameStream::State;
    /** Whether there is a picture now; waits so many milliseconds for a name, or until a signal comes. */
    State look(int waitMs = 0);
    /** The next picture. To be called where look() says that it is ready. */
    Input take();
    /** Appends one to those that were named from the start. */
    void addNamed(const QString &name);
    /** How many were taken. */
    int taken() const { return m_taken; }
    /** How many are known, those that were taken among them. */
    int known() const { return m_taken + int(m_waiting.size()); }

    /** Reads all names that are still to come, so that contains() is true of every input. False where @p isStopped said so. */
    template<typename IsStopped> bool readToTheEnd(const IsStopped &isStopped)
    {
        constexpr int waitMs = 100;
        while (m_more && !isStopped())
            if (m_more->look(waitMs) == State::Ready)
                addNamed(m_more->take());
            else
                letGoAtEnd();
        return !m_more;
    }
    /** Whether the item is one of the inputs that are known so far. */
    bool contains(const platform::ItemNumber &item) const { return m_items.contains(item); }

    /** Leaves out @p path, a result, if it is named later: a list that is still being made may contain it. */
    void leaveOut(const QString &path);

    /**
     * What look() waits for; -1 if all names are known. If folders are watched, look() must also be called several
     * times a second.
     */
    int descriptor() const { return m_more ? m_more->descriptor() : m_watch ? m_watch->descriptor() : -1; }
    /** Whether more may come. */
    bool areOpen() const { return m_more || m_watch; }
    /** A sentence for the user that was not reported yet; empty if there is none. */
    QString news() { return m_watch ? m_watch->news() : QString(); }
    /** Why the names ended early; empty if they did not. */
    const QString &problem() const { return m_problem; }

private:
    void add(const Input &input);
    bool isNew(const QString &path);
    void letGoAtEnd();

    std::optional<NameStream> m_more;
    std::optional<PictureWatch> m_watch;
    std::deque<Input> m_waiting;
    int m_taken = 0;
    QSet<platform::ItemNumber> m_items;
    QSet<PathKey> m_names; ///< of missing files, and of files with second names, which count separately
    QString m_problem;
};

/** All pictures of files and folders. */
QList<Input> inputsFrom(const QStringList &named);

/** The extensions of files that are taken from folders: every picture that can be opened but drawings and pages. */
QStringList pictureExtensions();

} // namespace jobs
