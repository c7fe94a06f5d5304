#include "app/models/log_model.h"

#include "app/window/look/theme.h"

#include "platform/file/regular_file.h"
#include "platform/foundation/human_texts.h"
#include "platform/foundation/natural_order.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>

#include <algorithm>
#include <numeric>

namespace window {

namespace {

constexpr int sliceMs = 2;
constexpr int headBytes = 256;

QString dateText(qint64 time)
{
    return time == 0 ? QString() : platform::localDateText(QDateTime::fromMSecsSinceEpoch(time));
}

QString longDateText(qint64 time)
{
    return time == 0 ? QString() : QLocale().toString(QDateTime::fromMSecsSinceEpoch(time), QLocale::LongFormat);
}

/** Sorts places by a key that is computed once for each. */
template<typename Key> void sortBy(std::vector<int> &places, Qt::SortOrder order, const Key &keyOf)
{
    std::vector<std::pair<decltype(keyOf(0)), int>> keyed;
    keyed.reserve(places.size());
    for (const int place : places)
        keyed.emplace_back(keyOf(place), place);
    const bool isRising = order == Qt::AscendingOrder;
    // Equal ones stay in the order of their dates, the newest first.
    std::sort(keyed.begin(), keyed.end(), [isRising](const auto &a, const auto &b) {
        if (a.first < b.first)
            return isRising;
        if (b.first < a.first)
            return !isRising;
        return a.second > b.second;
    });
    std::transform(keyed.cbegin(), keyed.cend(), places.begin(), [](const auto &entry) { return entry.second; });
}

/** Maps each pooled text to its rank in sort order. */
std::vector<int> ranks(const TextPool &pool)
{
    const QCollator collator = platform::naturalOrder();
    std::vector<int> numbers(size_t(pool.count()));
    std::iota(numbers.begin(), numbers.end(), 0);
    std::sort(numbers.begin(), numbers.end(),
              [&](int a, int b) { return collator.compare(pool.text(a), pool.text(b)) < 0; });
    std::vector<int> rank(numbers.size());
    for (size_t i = 0; i < numbers.size(); ++i)
        rank[size_t(numbers[i])] = int(i);
    return rank;
}

} // namespace

LogModel::LogModel(QObject *parent) : QAbstractTableModel(parent)
{
    m_slices.setInterval(0);
    connect(&m_slices, &QTimer::timeout, this, &LogModel::readSlice);
}

void LogModel::follow(const QString &path)
{
    QFile file(path);
    const bool isOpen = platform::openToRead(file).has_value();
    const QByteArray head = isOpen ? file.peek(headBytes) : QByteArray();
    const bool isSame = path == m_path && file.size() >= m_readUpTo && !m_head.isEmpty() && head.startsWith(m_head);
    if (isSame && !isReading()) {
        readNewer();
        return;
    }
    if (isSame)
        return;
    forget();
    m_path = path;
    m_older = isOpen ? file.readAll() : QByteArray();
    // A line without an end is still being written.
    m_older.truncate(m_older.lastIndexOf('\n') + 1);
    m_readUpTo = m_older.size();
    m_head = m_older.left(headBytes);
    m_slices.start();
    readSlice();
}

void LogModel::forget()
{
    beginResetModel();
    m_shown.clear();
    m_entries.clear();
    m_textHasWord.clear();
    m_slices.stop();
    m_older.clear();
    endResetModel();
}

void LogModel::readSlice()
{
    QElapsedTimer clock;
    clock.start();
    std::vector<int> places;
    while (!m_older.isEmpty() && clock.elapsed() < sliceMs) {
        const qsizetype end = m_older.size() - 1;
        const qsizetype start = end == 0 ? 0 : m_older.lastIndexOf('\n', end - 1) + 1;
        const QByteArray line = QByteArray::fromRawData(m_older.constData() + start, end - start);
        if (m_entries.add(line, LogEntries::End::Older) && isShown(m_entries.at(m_entries.oldest())))
            places.push_back(m_entries.oldest());
        m_older.truncate(start);
    }
    addOlder(places);
    if (m_older.isEmpty()) {
        m_slices.stop();
        m_older = QByteArray();
        if (m_sortColumn != Date || m_sortOrder != Qt::DescendingOrder)
            sort(m_sortColumn, m_sortOrder);
    }
    Q_EMIT grown();
}

void LogModel::addOlder(const std::vector<int> &places)
{
    if (places.empty())
        return;
    const int row = int(m_shown.size());
    beginInsertRows({}, row, row + int(places.size()) - 1);
    m_shown.insert(m_shown.end(), places.cbegin(), places.cend());
    endInsertRows();
}

void LogModel::readNewer()
{
    QFile file(m_path);
    if (!platform::openToRead(file) || !file.seek(m_readUpTo))
        return;
    const QByteArray added = file.readAll();
    const int before = m_entries.newest();
    qsizetype start = 0;
    for (qsizetype end = added.indexOf('\n'); end >= 0; end = added.indexOf('\n', start)) {
        m_entries.add(added.mid(start, end - start), LogEntries::End::Newer);
        start = end + 1;
    }
    m_readUpTo += start;
    showNewer(before + 1);
    Q_EMIT grown();
}

void LogModel::showNewer(int from)
{
    std::vector<int> places;
    for (int place = m_entries.newest(); place >= from; --place)
        if (isShown(m_entries.at(place)))
            places.push_back(place);
    if (places.empty())
        return;
    beginInsertRows({}, 0, int(places.size()) - 1);
    m_shown.insert(m_shown.begin(), places.cbegin(), places.cend());
    endInsertRows();
    if (m_sortColumn != Date || m_sortOrder != Qt::DescendingOrder)
        sort(m_sortColumn, m_sortOrder);
}

void LogModel::setHeadings(const QStringList &headings)
{
    m_headings = headings;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

void LogModel::setStatusWords(const QHash<QString, QString> &shown)
{
    m_statusWords = shown;
}

void LogModel::setFilter(const LogFilter &filter)
{
    m_filter = filter;
    m_textHasWord.clear();
    refill();
}

void LogModel::refill()
{
    beginResetModel();
    m_shown.clear();
    for (int place = m_entries.newest(); place >= m_entries.oldest(); --place)
        if (isShown(m_entries.at(place)))
            m_shown.push_back(place);
    if (m_sortColumn != Date || m_sortOrder != Qt::DescendingOrder)
        order();
    endResetModel();
}

bool LogModel::isShown(const LogEntry &entry) const
{
    if (m_filter.run >= 0 && entry.run != m_filter.run)
        return false;
    if (m_filter.editsOnly && !entry.isEdit)
        return false;
    if (!m_filter.status.isEmpty() && m_entries.texts().text(entry.status) != m_filter.status)
        return false;
    for (int word = 0; word < m_filter.words.size(); ++word)
        if (!hasWord(entry, word))
            return false;
    return true;
}

bool LogModel::hasWord(const LogEntry &entry, int word) const
{
    for (const int text : {entry.process, entry.action, entry.status, entry.reason, entry.inputFolder,
                           entry.outputFolder, entry.before, entry.after})
        if (textHasWord(text, word))
            return true;
    const QString &wanted = m_filter.words[word];
    if (wanted.contains(QLatin1Char('/')))
        return m_entries.inputPath(entry).contains(wanted, Qt::CaseInsensitive) ||
               m_entries.outputPath(entry).contains(wanted, Qt::CaseInsensitive);
    return entry.input.contains(wanted, Qt::CaseInsensitive) || entry.output.contains(wanted, Qt::CaseInsensitive);
}

// A hundred thousand entries share a few hundred of these texts: each is searched once.
bool LogModel::textHasWord(int text, int word) const
{
    constexpr char isIn = 1;
    constexpr char isNotIn = 2;
    if (m_textHasWord.size() <= size_t(word))
        m_textHasWord.resize(size_t(word) + 1);
    std::vector<char> &known = m_textHasWord[size_t(word)];
    if (known.size() <= size_t(text))
        known.resize(size_t(m_entries.texts().count()));
    char &found = known[size_t(text)];
    if (found == 0) {
        const QString &own = m_entries.texts().text(text);
        const QString shown = m_statusWords.value(own, own);
        found = shown.contains(m_filter.words[word], Qt::CaseInsensitive) ? isIn : isNotIn;
    }
    return found == isIn;
}

int LogModel::rowOf(int place) const
{
    const auto found = std::find(m_shown.cbegin(), m_shown.cend(), place);
    return found == m_shown.cend() ? -1 : int(found - m_shown.cbegin());
}

void LogModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column < 0 ? Date : column;
    m_sortOrder = column < 0 ? Qt::DescendingOrder : order;
    const QModelIndexList before = persistentIndexList();
    std::vector<int> places;
    for (const QModelIndex &index : before)
        places.push_back(m_shown[size_t(index.row())]);
    Q_EMIT layoutAboutToBeChanged();
    this->order();
    for (qsizetype i = 0; i < before.size(); ++i)
        changePersistentIndex(before[i], index(rowOf(places[size_t(i)]), before[i].column()));
    Q_EMIT layoutChanged();
}

void LogModel::order()
{
    const auto entry = [this](int place) -> const LogEntry & { return m_entries.at(place); };
    const std::vector<int> rank = m_sortColumn == Date ? std::vector<int>() : ranks(m_entries.texts());
    const auto rankOf = [&rank](int text) { return rank[size_t(text)]; };
    const QCollator collator = platform::naturalOrder();
    switch (m_sortColumn) {
    case Action:
        sortBy(m_shown, m_sortOrder,
               [&](int place) { return std::pair(rankOf(entry(place).process), rankOf(entry(place).action)); });
        break;
    case File:
        sortBy(m_shown, m_sortOrder, [&](int place) { return collator.sortKey(entry(place).input); });
        break;
    case Status:
        sortBy(m_shown, m_sortOrder,
               [&](int place) { return std::pair(rankOf(entry(place).status), rankOf(entry(place).reason)); });
        break;
    case Result:
        sortBy(m_shown, m_sortOrder, [&](int place) { return collator.sortKey(entry(place).output); });
        break;
    case Folder:
        sortBy(m_shown, m_sortOrder, [&](int place) { return rankOf(entry(place).outputFolder); });
        break;
    case Before:
        sortBy(m_shown, m_sortOrder, [&](int place) { return rankOf(entry(place).before); });
        break;
    case After:
        sortBy(m_shown, m_sortOrder, [&](int place) { return rankOf(entry(place).after); });
        break;
    default:
        sortBy(m_shown, m_sortOrder, [&](int place) { return entry(place).time; });
    }
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int LogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString LogModel::editWords(const LogEntry &entry) const
{
    const QString &before = m_entries.texts().text(entry.before);
    const QString &after = m_entries.texts().text(entry.after);
    if (before.isEmpty() || after.isEmpty())
        return m_statusWords.value(before.isEmpty() ? QStringLiteral("newEdit") : QStringLiteral("lastEdit"))
            .replace(QLatin1String("%1"), before + after);
    return m_statusWords.value(QStringLiteral("edit")).arg(before, after);
}

QString LogModel::statusOf(const LogEntry &entry) const
{
    const QString &word = m_entries.texts().text(entry.status);
    const QString shown = m_statusWords.value(word, word);
    const bool tells = m_tellsEdits && entry.reason == 0 && m_entries.isRevertible(entry);
    const QString reason = tells ? editWords(entry) : m_entries.texts().text(entry.reason);
    // Languages differ in the space before a colon; the list uses the same words.
    return reason.isEmpty() ? shown : QCoreApplication::translate("wording", "%1: %2").arg(shown, reason);
}

QString LogModel::cell(const LogEntry &entry, int column) const
{
    const TextPool &texts = m_entries.texts();
    switch (column) {
    case Date:
        return dateText(entry.time);
    case Action:
        return m_entries.actionWords(entry.process, entry.action);
    case File:
        return entry.input;
    case Status:
        return statusOf(entry);
    case Result:
        return entry.output;
    case Before:
    case After:
        return texts.text(column == Before ? entry.before : entry.after).simplified();
    default:
        return texts.text(entry.outputFolder).chopped(entry.outputFolder == 0 ? 0 : 1);
    }
}

QString LogModel::toolTip(const LogEntry &entry, int column) const
{
    if (column == Date)
        return longDateText(entry.time);
    if (column == File)
        return m_entries.inputPath(entry);
    if (column == Before || column == After)
        return m_entries.texts().text(column == Before ? entry.before : entry.after);
    return column == Result ? m_entries.outputPath(entry) : cell(entry, column);
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const LogEntry &entry = m_entries.at(m_shown[size_t(index.row())]);
    if (role == Qt::DisplayRole)
        return cell(entry, index.column());
    if (role == Qt::ToolTipRole)
        return toolTip(entry, index.column());
    if (role != Qt::ForegroundRole)
        return {};
    if (index.column() != Status)
        return Theme::color(index.column() == File || index.column() == After ? QStringLiteral("text")
                                                                              : QStringLiteral("muted"));
    const QString &word = m_entries.texts().text(entry.status);
    return Theme::color(word == QLatin1String("OK")        ? QStringLiteral("good")
                        : word == QLatin1String("Skipped") ? QStringLiteral("caution")
                                                           : QStringLiteral("bad"));
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(m_headings.value(section)) : QVariant();
}

} // namespace window
