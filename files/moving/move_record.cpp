#include "files/moving/move_record.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace files {
namespace {

using platform::ItemKind;
using platform::ItemState;

constexpr std::array operationWords = {"move", "copy", "link", "trash", "remove copy", "remove link", "restore"};
constexpr std::array kindWords = {"file", "folder", "link", "other"};

template<typename Words> int positionIn(const Words &words, const QJsonValue &word)
{
    for (size_t i = 0; i < words.size(); ++i)
        if (word.toString() == QLatin1String(words[i]))
            return int(i);
    return -1;
}

QString key(const char *text)
{
    return QString::fromLatin1(text);
}

/** The checksum is the last value of a line, over everything before it. */
const QByteArray sumMark = ",\"~\":\"";
constexpr qsizetype sumDigits = 4;

QByteArray sumOf(QByteArrayView text)
{
    return QByteArray::number(qChecksum(text), 16).rightJustified(sumDigits, '0');
}

QByteArray lineOf(const QJsonObject &object)
{
    QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    text.chop(1);
    return text + sumMark + sumOf(text) + "\"}\n";
}

/** The contents of a line; nothing if it is damaged. Lines of older journals have no checksum. */
QJsonObject objectIn(QByteArrayView line)
{
    const qsizetype textSize = line.size() - sumMark.size() - sumDigits - 2;
    const bool hasSum = textSize > 0 && line.sliced(textSize, sumMark.size()) == QByteArrayView(sumMark);
    if (hasSum && line.sliced(textSize + sumMark.size(), sumDigits) != QByteArrayView(sumOf(line.first(textSize))))
        return {};
    return QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size())).object();
}

DamagedLine remainsOf(QByteArrayView line)
{
    static const QRegularExpression number(QStringLiteral("\"item\":([0-9]{1,9})\\b"));
    static const QRegularExpression source(QStringLiteral("\"from\":\"(/[^\"\\\\]+)\""));
    static const QRegularExpression path(QStringLiteral("\"(/[^\"\\\\]+)\""));
    const QString text = QString::fromUtf8(line);
    DamagedLine remains;
    if (const auto found = number.match(text); found.hasMatch())
        remains.item = found.captured(1).toInt();
    remains.from = source.match(text).captured(1);
    for (auto paths = path.globalMatch(text); paths.hasNext();)
        remains.paths.append(paths.next().captured(1));
    return remains;
}

QJsonObject stateObject(const ItemState &state)
{
    return {{key("kind"), key(kindWords[size_t(state.kind)])},
            {key("device"), qint64(state.device)},
            {key("inode"), qint64(state.inode)},
            {key("bytes"), state.bytes},
            {key("changed"), state.changedNs},
            {key("born"), state.bornNs},
            {key("names"), qint64(state.names)}};
}

std::optional<ItemState> stateFrom(const QJsonValue &value)
{
    if (!value.isObject())
        return std::nullopt;
    ItemState state;
    const int kind = positionIn(kindWords, value[key("kind")]);
    state.kind = kind < 0 ? ItemKind::Other : ItemKind(kind);
    state.device = quint64(value[key("device")].toInteger());
    state.inode = quint64(value[key("inode")].toInteger());
    state.bytes = value[key("bytes")].toInteger();
    state.changedNs = value[key("changed")].toInteger();
    state.bornNs = value[key("born")].toInteger();
    state.names = quint32(value[key("names")].toInteger());
    return state;
}

void insertState(QJsonObject &object, const char *name, const std::optional<ItemState> &state)
{
    if (state)
        object.insert(key(name), stateObject(*state));
}

/** Processes the lines of a journal, one after the other. */
class JournalReader
{
public:
    explicit JournalReader(qsizetype mostItems) : m_mostItems(mostItems) {}

    RunRecord run;

    void take(QByteArrayView line)
    {
        if (line.size() < m_cut.size() && m_cut.startsWith(line))
            return; // the end of a line that was cut short was itself cut short
        const QJsonObject object = objectIn(line);
        if (object.contains(key("cut")) && m_lastWasDamaged) {
            run.damaged.pop_back();
            m_lastWasDamaged = false;
        } else if (!object.contains(key("cut"))) {
            m_lastWasDamaged = object.isEmpty() || !takeObject(object);
            if (m_lastWasDamaged)
                run.damaged.push_back(remainsOf(line));
        }
    }

    /** The last line is incomplete; it may continue an earlier incomplete one. */
    void takeCut(QByteArrayView rest)
    {
        const bool isOfCut = m_lastWasDamaged && rest.size() < m_cut.size() && m_cut.startsWith(rest);
        if (isOfCut)
            run.damaged.pop_back();
        run.isWhole = rest.isEmpty() && !isOfCut;
    }

    RunRecord whole()
    {
        const int count = int(run.items.size());
        const auto isWrong = [&](const MoveStep &step) { return step.item < 0 || step.item >= count; };
        const auto kept = std::remove_if(run.steps.begin(), run.steps.end(), isWrong);
        const bool areAllKnown =
            std::all_of(run.items.begin(), run.items.end(), [](const MoveRecord &record) { return record.isKnown; });
        const bool areAllThere = run.isByHand || (count == run.count && m_hasSteps) || !run.isBegun;
        run.isDamaged = !run.damaged.empty() || kept != run.steps.end() || !areAllKnown || !areAllThere;
        run.steps.erase(kept, run.steps.end());
        return std::move(run);
    }

private:
    /** False if the line says something impossible. */
    bool takeObject(const QJsonObject &line)
    {
        if (line.contains(key("run")))
            return takeHead(line);
        if (line.contains(key("steps")))
            return takeSteps(line[key("steps")].toArray());
        if (line.contains(key("end")))
            return takeEnd(line);
        run.end.clear(); // it was opened again
        if (line.contains(key("making")))
            return takeMaking(line[key("making")].toString());
        if (line.contains(key("item")))
            return addItem(line);
        for (const char *word : {"done", "failed", "copied", "takenBack", "again"})
            if (line.contains(key(word)))
                return takeNews(word, line);
        return true;
    }

    bool takeHead(const QJsonObject &line)
    {
        run.id = line[key("run")].toString();
        run.title = line[key("title")].toString();
        run.date = line[key("date")].toString();
        run.undoes = line[key("undoes")].toString();
        run.by = line[key("by")].toString();
        run.isByHand = line[key("byHand")].toBool();
        run.count = line[key("count")].toInt();
        return true;
    }

    bool takeSteps(const QJsonArray &steps)
    {
        m_hasSteps = true;
        for (const QJsonValue step : steps) {
            const int item = step.toInt(std::numeric_limits<int>::max());
            run.steps.push_back(item < 0 ? MoveStep{-1 - item, true, false} : MoveStep{item, false, false});
        }
        return true;
    }

    bool takeMaking(const QString &folder)
    {
        run.isBegun = true;
        if (folder.startsWith(u'/'))
            run.made.append(folder);
        return folder.startsWith(u'/');
    }

    bool takeEnd(const QJsonObject &line)
    {
        run.end = line[key("end")].toString();
        run.count = line[key("count")].toInt();
        run.doneAtEnd = line[key("done")].toInt();
        run.filesAtEnd = line[key("files")].toInt(run.doneAtEnd);
        return true;
    }

    bool takeNews(std::string_view word, const QJsonObject &line)
    {
        run.isBegun = true;
        MoveRecord *record = recordAt(line[QString::fromLatin1(word.data())]);
        if (!record)
            return false;
        if (word == "done") {
            record->stand = Stand::Done;
            record->path = line[key("path")].toString();
            record->is = stateFrom(line[key("is")]);
            record->is = record->is ? record->is : record->item.was;
        } else if (word == "failed") {
            record->stand = line[key("skipped")].toBool() ? Stand::Skipped : Stand::Failed;
            record->why = moveProblem(line[key("code")].toString()).value_or(MoveProblem::Other);
            record->message = line[key("message")].toString();
            record->path = line[key("path")].toString();
        } else if (word == "copied") {
            record->copied = stateFrom(line[key("is")]);
        } else if (word == "again") {
            const MoveItem item = record->item;
            *record = MoveRecord();
            record->item = item;
        } else {
            record->stand = Stand::TakenBack;
        }
        return true;
    }

    MoveRecord *recordAt(const QJsonValue &index)
    {
        const int at = index.toInt(-1);
        return at >= 0 && at < int(run.items.size()) ? &run.items[size_t(at)] : nullptr;
    }

    bool addItem(const QJsonObject &line)
    {
        const int index = line[key("item")].toInt(-1);
        const int operation = positionIn(operationWords, line[key("operation")]);
        if (index < int(run.items.size()) || index >= m_mostItems || operation < 0)
            return false;
        MoveItem item;
        item.operation = Operation(operation);
        item.from = line[key("from")].toString();
        item.to = line[key("to")].toString();
        item.of = line[key("of")].toInt(-1);
        item.isAhead = line[key("ahead")].toBool();
        item.leader = line[key("leader")].toInt(-1);
        item.was = stateFrom(line[key("was")]);
        if (!hasPlaces(item))
            return false;
        MoveRecord unknown;
        unknown.isKnown = false;
        unknown.stand = Stand::Skipped;
        run.items.resize(size_t(index), unknown);
        run.items.emplace_back().item = item;
        return true;
    }

    /** A link may have any target, and what is trashed has no destination. */
    static bool hasPlaces(const MoveItem &item)
    {
        const bool hasFrom = item.from.startsWith(u'/') || item.operation == Operation::Link;
        const bool hasTo =
            item.to.startsWith(u'/') || item.operation == Operation::Trash || item.operation == Operation::RemoveLink;
        return hasFrom && hasTo;
    }

    const QByteArray m_cut = cutLine().trimmed();
    qsizetype m_mostItems;
    bool m_hasSteps = false;
    bool m_lastWasDamaged = false;
};

} // namespace

bool isOneItem(const ItemState &one, const ItemState &other)
{
    return one.device == other.device && one.inode == other.inode;
}

bool isSameItem(const ItemState &one, const ItemState &other)
{
    return one.kind == other.kind && one.inode == other.inode && one.bornNs == other.bornNs;
}

bool isAlike(const ItemState &one, const ItemState &other)
{
    return one.kind == other.kind &&
           (one.kind == ItemKind::Folder || (one.bytes == other.bytes && one.changedNs == other.changedNs));
}

bool isUnchanged(const ItemState &one, const ItemState &other)
{
    return isSameItem(one, other) && isAlike(one, other);
}

QByteArray runLine(const RunRecord &run)
{
    QJsonObject head = {{key("run"), run.id},
                        {key("title"), run.title},
                        {key("date"), run.date},
                        {key("count"), run.count},
                        {key("byHand"), run.isByHand}};
    if (!run.undoes.isEmpty())
        head.insert(key("undoes"), run.undoes);
    if (!run.by.isEmpty())
        head.insert(key("by"), run.by);
    return lineOf(head);
}

QByteArray stepsLine(const RunRecord &run)
{
    QJsonArray steps;
    for (const MoveStep &step : run.steps)
        steps.append(step.isAside ? -1 - step.item : step.item);
    return lineOf({{key("steps"), steps}});
}

QByteArray itemLine(int index, const MoveItem &item)
{
    QJsonObject line = {{key("item"), index},
                        {key("operation"), key(operationWords[size_t(item.operation)])},
                        {key("from"), item.from},
                        {key("to"), item.to}};
    if (item.of >= 0)
        line.insert(key("of"), item.of);
    if (item.isAhead)
        line.insert(key("ahead"), true);
    if (item.leader >= 0)
        line.insert(key("leader"), item.leader);
    insertState(line, "was", item.was);
    return lineOf(line);
}

QByteArray doneLine(int index, const MoveRecord &record)
{
    QJsonObject line = {{key("done"), index}, {key("path"), record.path}};
    const auto &was = record.item.was;
    if (!was || !record.is || !isUnchanged(*was, *record.is) || was->device != record.is->device)
        insertState(line, "is", record.is);
    return lineOf(line);
}

QByteArray failedLine(int index, const MoveRecord &record)
{
    QJsonObject line = {{key("failed"), index}, {key("code"), wordOf(record.why)}, {key("message"), record.message}};
    if (record.stand == Stand::Skipped)
        line.insert(key("skipped"), true);
    if (!record.path.isEmpty())
        line.insert(key("path"), record.path);
    return lineOf(line);
}

QByteArray takenBackLine(int index)
{
    return lineOf({{key("takenBack"), index}});
}

QByteArray againLine(int index)
{
    return lineOf({{key("again"), index}});
}

QByteArray copiedLine(int index, const ItemState &state)
{
    return lineOf({{key("copied"), index}, {key("is"), stateObject(state)}});
}

QByteArray makingLine(const QString &folder)
{
    return lineOf({{key("making"), folder}});
}

QByteArray cutLine()
{
    return '\n' + lineOf({{key("cut"), true}});
}

QByteArray endLine(const QString &end, int count, int done, int files)
{
    return lineOf({{key("end"), end}, {key("count"), count}, {key("done"), done}, {key("files"), files}});
}

class RecordReading::Reader : public JournalReader
{
public:
    using JournalReader::JournalReader;
};

RecordReading::RecordReading(const QByteArray &journal) : m_journal(journal)
{
    constexpr qsizetype shortestItem = 32;
    m_reader = std::make_unique<Reader>(journal.size() / shortestItem);
}

RecordReading::~RecordReading() = default;

bool RecordReading::step()
{
    const qsizetype end = m_journal.indexOf('\n', m_at);
    if (end < 0)
        return true;
    if (end > m_at)
        m_reader->take(QByteArrayView(m_journal).sliced(m_at, end - m_at));
    m_at = end + 1;
    return false;
}

RunRecord RecordReading::take()
{
    m_reader->takeCut(QByteArrayView(m_journal).sliced(m_at));
    return m_reader->whole();
}

RunRecord readRecord(const QByteArray &journal)
{
    RecordReading reading(journal);
    while (!reading.step())
        ;
    return reading.take();
}

RunRecord summaryOf(const std::pair<QByteArray, QByteArray> &ends)
{
    JournalReader reader(0);
    reader.take(QByteArrayView(ends.first).trimmed());
    if (objectIn(ends.second).contains(key("end")))
        reader.take(ends.second);
    return std::move(reader.run);
}

} // namespace files
