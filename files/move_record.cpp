#include "files/move_record.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <string_view>

namespace files {
namespace {

using platform::ItemKind;
using platform::ItemState;

constexpr std::array deedWords = {"move", "copy", "link", "trash", "remove copy", "remove link", "restore"};
constexpr std::array kindWords = {"file", "folder", "link", "other"};

template<typename Words> int positionIn(const Words &words, const QJsonValue &word)
{
    for (size_t i = 0; i < words.size(); ++i)
        if (word.toString() == QLatin1String(words[i]))
            return int(i);
    return 0;
}

QString key(const char *text)
{
    return QString::fromLatin1(text);
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
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
    state.kind = ItemKind(positionIn(kindWords, value[key("kind")]));
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

/** Takes the lines of a journal, one after the other. */
class Reader
{
public:
    RunRecord run;

    void take(const QJsonObject &line)
    {
        if (line.contains(key("run")))
            takeHead(line);
        else if (line.contains(key("steps")))
            takeSteps(line[key("steps")].toArray());
        else if (line.contains(key("making")))
            run.made.append(line[key("making")].toString());
        else if (line.contains(key("end")))
            takeEnd(line);
        else
            takeItemLine(line);
    }

private:
    void takeHead(const QJsonObject &line)
    {
        run.id = line[key("run")].toString();
        run.title = line[key("title")].toString();
        run.date = line[key("date")].toString();
        run.undoes = line[key("undoes")].toString();
        run.isByHand = line[key("byHand")].toBool();
        run.count = line[key("count")].toInt();
    }

    void takeSteps(const QJsonArray &steps)
    {
        for (const QJsonValue step : steps) {
            const int item = step.toInt();
            run.steps.push_back(item < 0 ? MoveStep{-1 - item, true, false} : MoveStep{item, false, false});
        }
    }

    void takeEnd(const QJsonObject &line)
    {
        run.end = line[key("end")].toString();
        run.count = line[key("count")].toInt();
        run.doneAtEnd = line[key("done")].toInt();
    }

    void takeItemLine(const QJsonObject &line)
    {
        if (line.contains(key("item"))) {
            if (line[key("item")].toInt() == int(run.items.size()))
                addItem(line);
        } else {
            for (const char *word : {"done", "failed", "copied", "takenBack"})
                if (MoveRecord *record = recordAt(line[key(word)]))
                    takeNews(*record, word, line);
        }
    }

    static void takeNews(MoveRecord &record, std::string_view word, const QJsonObject &line)
    {
        if (word == "done") {
            record.stand = Stand::Done;
            record.path = line[key("path")].toString();
            record.is = stateFrom(line[key("is")]);
            record.is = record.is ? record.is : record.item.was;
        } else if (word == "failed") {
            record.stand = line[key("skipped")].toBool() ? Stand::Skipped : Stand::Failed;
            record.code = line[key("code")].toString();
            record.message = line[key("message")].toString();
            record.path = line[key("path")].toString();
        } else if (word == "copied") {
            record.copied = stateFrom(line[key("is")]);
        } else {
            record.stand = Stand::TakenBack;
        }
    }

    MoveRecord *recordAt(const QJsonValue &index)
    {
        const int at = index.toInt(-1);
        return at >= 0 && at < int(run.items.size()) ? &run.items[size_t(at)] : nullptr;
    }

    void addItem(const QJsonObject &line)
    {
        MoveItem item;
        item.deed = Deed(positionIn(deedWords, line[key("deed")]));
        item.from = line[key("from")].toString();
        item.to = line[key("to")].toString();
        item.of = line[key("of")].toInt(-1);
        item.isAhead = line[key("ahead")].toBool();
        item.leader = line[key("leader")].toInt(-1);
        item.was = stateFrom(line[key("was")]);
        MoveRecord record;
        record.item = item;
        run.items.push_back(record);
    }
};

} // namespace

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

QByteArray headLines(const RunRecord &run)
{
    QJsonObject head = {{key("run"), run.id},
                        {key("title"), run.title},
                        {key("date"), run.date},
                        {key("count"), run.count},
                        {key("byHand"), run.isByHand}};
    if (!run.undoes.isEmpty())
        head.insert(key("undoes"), run.undoes);
    QByteArray lines = lineOf(head);
    for (int i = 0; i < int(run.items.size()); ++i)
        lines += itemLine(i, run.items[size_t(i)].item);
    QJsonArray steps;
    for (const MoveStep &step : run.steps)
        steps.append(step.isAside ? -1 - step.item : step.item);
    return run.isByHand ? lines : lines + lineOf({{key("steps"), steps}});
}

QByteArray itemLine(int index, const MoveItem &item)
{
    QJsonObject line = {{key("item"), index},
                        {key("deed"), key(deedWords[size_t(item.deed)])},
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
    QJsonObject line = {{key("failed"), index}, {key("code"), record.code}, {key("message"), record.message}};
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

QByteArray copiedLine(int index, const ItemState &state)
{
    return lineOf({{key("copied"), index}, {key("is"), stateObject(state)}});
}

QByteArray makingLine(const QString &folder)
{
    return lineOf({{key("making"), folder}});
}

QByteArray endLine(const QString &end, int count, int done)
{
    return lineOf({{key("end"), end}, {key("count"), count}, {key("done"), done}});
}

RunRecord readRecord(const QByteArray &journal)
{
    Reader reader;
    for (qsizetype at = 0; at < journal.size();) {
        const qsizetype end = journal.indexOf('\n', at);
        reader.run.isWhole = end >= 0;
        if (end < 0)
            break;
        const QJsonDocument line = QJsonDocument::fromJson(QByteArray::fromRawData(journal.constData() + at, end - at));
        if (line.isObject())
            reader.take(line.object());
        at = end + 1;
    }
    return std::move(reader.run);
}

RunRecord summaryOf(const std::pair<QByteArray, QByteArray> &ends)
{
    Reader reader;
    reader.take(QJsonDocument::fromJson(ends.first).object());
    const QJsonObject last = QJsonDocument::fromJson(ends.second).object();
    if (last.contains(key("end")))
        reader.take(last);
    return std::move(reader.run);
}

} // namespace files
