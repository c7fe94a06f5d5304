#include "app/models/log_entries.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace window {

namespace {

/** Lines that name no run belong to the same one if they are no further apart than this. */
constexpr qint64 sameRunMs = 10 * 60 * 1000;

QString textOf(const QJsonObject &line, const char *key, const char *otherKey)
{
    const QJsonValue value = line.value(QLatin1String(key));
    return value.isString() ? value.toString() : line.value(QLatin1String(otherKey)).toString();
}

qint64 timeOf(const QString &date)
{
    const QDateTime read = QDateTime::fromString(date, Qt::ISODateWithMs);
    return read.isValid() ? read.toMSecsSinceEpoch() : 0;
}

// "/a/b.jpg" is the folder "/a/" and the name "b.jpg".
void takePath(const QString &path, const QString &name, TextPool &pool, int &folder, QString &file)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/')) + 1;
    folder = slash > 0 ? pool.number(path.left(slash)) : 0;
    const QString last = path.mid(slash);
    file = last.isEmpty() ? name : last;
}

} // namespace

int TextPool::number(const QString &text)
{
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.constEnd())
        return *known;
    m_texts.append(text);
    m_numbers.insert(text, int(m_texts.size()) - 1);
    return int(m_texts.size()) - 1;
}

bool LogEntries::add(const QByteArray &line, End end)
{
    const QJsonDocument read = QJsonDocument::fromJson(line);
    if (!read.isObject())
        return false;
    const QJsonObject object = read.object();
    LogEntry entry;
    entry.time = timeOf(textOf(object, "date", "LogDate"));
    entry.bytes = qint64(object.value(QLatin1String("bytes")).toDouble());
    entry.process = m_texts.number(textOf(object, "process", "LogProcess"));
    entry.action = m_texts.number(textOf(object, "action", "LogAction"));
    entry.status = m_texts.number(textOf(object, "status", "LogStatus"));
    entry.reason = m_texts.number(object.value(QLatin1String("reason")).toString());
    if (entry.process == 0 && entry.status == 0)
        return false;
    takePath(textOf(object, "inputPath", "LogIpath"), textOf(object, "input", "LogI"), m_texts, entry.inputFolder,
             entry.input);
    takePath(textOf(object, "outputPath", "LogOpath"), textOf(object, "output", "LogO"), m_texts, entry.outputFolder,
             entry.output);
    // Most results bear the name of their picture.
    if (entry.output == entry.input)
        entry.output = entry.input;
    entry.isEdit = object.contains(QLatin1String("after"));
    entry.before = m_texts.number(object.value(QLatin1String("before")).toString());
    entry.after = m_texts.number(object.value(QLatin1String("after")).toString());
    entry.run = runOf(object.value(QLatin1String("run")).toString(), entry, end);
    countIn(m_runs[size_t(entry.run)], entry, object.value(QLatin1String("undoes")).toString());
    (end == End::Newer ? m_newer : m_older).push_back(entry);
    return true;
}

void LogEntries::clear()
{
    *this = LogEntries();
}

QString LogEntries::actionWords(int process, int action) const
{
    const QString &name = m_texts.text(process);
    return action == 0 ? name : name + QStringLiteral(", ") + m_texts.text(action);
}

QString LogEntries::inputPath(const LogEntry &entry) const
{
    return entry.inputFolder == 0 ? QString() : m_texts.text(entry.inputFolder) + entry.input;
}

QString LogEntries::outputPath(const LogEntry &entry) const
{
    return entry.outputFolder == 0 ? QString() : m_texts.text(entry.outputFolder) + entry.output;
}

int LogEntries::runOf(const QString &id, const LogEntry &entry, End end)
{
    if (!id.isEmpty()) {
        const auto known = m_runNumbers.constFind(id);
        if (known != m_runNumbers.constEnd())
            return *known;
        const int made = newRun(id, end);
        m_runNumbers.insert(id, made);
        return made;
    }
    if (count() > 0) {
        const int beside = at(end == End::Newer ? newest() : oldest()).run;
        const LogRun &run = m_runs[size_t(beside)];
        const qint64 apart = end == End::Newer ? entry.time - run.last : run.first - entry.time;
        if (run.id.isEmpty() && run.process == entry.process && run.action == entry.action && apart <= sameRunMs)
            return beside;
    }
    return newRun({}, end);
}

int LogEntries::newRun(const QString &id, End end)
{
    const int made = int(m_runs.size());
    m_runs.emplace_back();
    m_runs.back().id = id;
    m_runOrder.insert(end == End::Newer ? m_runOrder.begin() : m_runOrder.end(), made);
    return made;
}

bool LogEntries::isRevertible(const LogEntry &entry) const
{
    return entry.isEdit && entry.before != entry.after && entry.inputFolder != 0 &&
           m_texts.text(entry.status) == QLatin1String("OK");
}

int LogEntries::undoneOf(const QString &id) const
{
    return id.isEmpty() ? 0 : undoneOf(id, 0);
}

// Undoing an undo does it again. Forged lines may form a cycle.
int LogEntries::undoneOf(const QString &id, int depth) const
{
    constexpr int deepest = 16;
    int undone = m_undone.value(id);
    if (undone == 0 || depth == deepest)
        return undone;
    for (const LogRun &run : m_runs)
        if (run.undoes == id)
            undone -= undoneOf(run.id, depth + 1);
    return std::max(0, undone);
}

void LogEntries::countIn(LogRun &run, const LogEntry &entry, const QString &undoes)
{
    if (run.count == 0) {
        run.first = run.last = entry.time;
        run.process = entry.process;
        run.action = entry.action;
    }
    run.first = std::min(run.first, entry.time);
    run.last = std::max(run.last, entry.time);
    run.count += 1;
    run.edits += isRevertible(entry);
    run.areEdits = run.areEdits || entry.isEdit;
    if (run.undoes.isEmpty())
        run.undoes = undoes;
    const QString &status = m_texts.text(entry.status);
    if (status == QLatin1String("OK") && !undoes.isEmpty())
        m_undone[undoes] += 1;
    if (status != QLatin1String("OK") && status != QLatin1String("Skipped"))
        run.problems += 1;
}

} // namespace window
