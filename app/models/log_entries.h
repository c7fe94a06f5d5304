#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace window {

/** Texts that occur many times, each kept once and known by its number. Number 0 is the empty text. */
class TextPool
{
public:
    int number(const QString &text);
    const QString &text(int number) const { return m_texts[number]; }
    int count() const { return int(m_texts.size()); }

private:
    QStringList m_texts = {QString()};
    QHash<QString, int> m_numbers = {{QString(), 0}};
};

/** What a run did with one picture. Words and folders are numbers of a TextPool; a folder ends in "/", or is empty. */
struct LogEntry
{
    qint64 time = 0; ///< milliseconds since 1970; 0 where the date cannot be read
    qint64 bytes = 0;
    int run = 0; ///< place in LogEntries::run()
    int process = 0;
    int action = 0;
    int status = 0;
    int reason = 0;
    int inputFolder = 0;
    int outputFolder = 0;
    int before = 0; ///< the comment that a picture had, where the entry is an edit of one
    int after = 0;
    bool isEdit = false;
    QString input;
    QString output;
};

/** Entries made by one start of an action. */
struct LogRun
{
    QString id;       ///< as the lines carry it; empty where they carry none
    qint64 first = 0; ///< milliseconds since 1970
    qint64 last = 0;
    int process = 0;
    int action = 0;
    int count = 0;
    int problems = 0; ///< entries that are neither done nor skipped
    int edits = 0;    ///< entries that can be reverted
    bool areEdits = false;
    QString undoes; ///< the run that it undid; empty for none
};

/**
 * The lines of a log in memory: compact, in the order of the file, growing at both of its ends: a large file is read
 * from its newest line backwards, and can be followed while it grows.
 *
 * An entry is known by its place: 0 is the first one that was added at the newer end, and -1 the first at the older end.
 * A line is a JSON object with date, process, action, status, reason, input, output, inputPath, outputPath, bytes and run, or
 * with the keys LogDate, LogProcess, LogAction, LogStatus, LogI, LogO, LogIpath and LogOpath; whatever is missing is empty. Where a
 * path is given the name is its last part. A line of a run that undoes another has the key "undoes" with the name of
 * that run; one with before and after is an edit of a comment.
 */
class LogEntries
{
public:
    enum class End { Newer, Older };

    /** Adds the entry of a line; false, with nothing added, if the line is not understood. */
    bool add(const QByteArray &line, End end);
    void clear();

    int count() const { return int(m_newer.size() + m_older.size()); }
    /** The places go from oldest() up to newest(). */
    int oldest() const { return -int(m_older.size()); }
    int newest() const { return int(m_newer.size()) - 1; }
    const LogEntry &at(int place) const { return place >= 0 ? m_newer[size_t(place)] : m_older[size_t(-1 - place)]; }

    const TextPool &texts() const { return m_texts; }
    const LogRun &run(int number) const { return m_runs[size_t(number)]; }
    int runCount() const { return int(m_runs.size()); }
    /** The number of the run of that name; -1 if there is none. */
    int runNamed(const QString &id) const { return id.isEmpty() ? -1 : m_runNumbers.value(id, -1); }
    /** How many entries of the run of that name later runs have undone, and not redone since. */
    int undoneOf(const QString &id) const;
    /** Done, and the comment differs before and after. */
    bool isRevertible(const LogEntry &entry) const;
    /** Numbers of the runs, those of the newer end of the log first. */
    const std::vector<int> &runOrder() const { return m_runOrder; }

    /** The action with its settings, as "Resize, longest 1600". */
    QString actionWords(int process, int action) const;

    /** The path of the file that was read or written; empty where the line has only its name, or none. */
    QString inputPath(const LogEntry &entry) const;
    QString outputPath(const LogEntry &entry) const;

private:
    int runOf(const QString &id, const LogEntry &entry, End end);
    int newRun(const QString &id, End end);
    void countIn(LogRun &run, const LogEntry &entry, const QString &undoes);
    int undoneOf(const QString &id, int depth) const;

    std::vector<LogEntry> m_newer;
    std::vector<LogEntry> m_older;
    TextPool m_texts;
    std::vector<LogRun> m_runs;
    std::vector<int> m_runOrder;
    QHash<QString, int> m_runNumbers;
    QHash<QString, int> m_undone; ///< entries that undid one of the run of that name
};

} // namespace window
