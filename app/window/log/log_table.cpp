#include "app/window/log/log_table.h"

#include "app/window/look/item_looks.h"
#include "app/window/look/key_header.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <functional>

namespace window {

namespace {

constexpr int rowHeightPx = 30;
constexpr int paddingPx = 20;
/** Shares in percent of the width that the date leaves; the last column takes the rest. */
constexpr int shares[] = {0, 20, 18, 29, 17, 0};
/** The same while comments are shown, which need the most room. */
constexpr int sharesOfComments[] = {0, 15, 15, 10, 0, 15, 22};

/** Before a stored layout whose widths are not those of the user. */
constexpr QLatin1Char unchosen('-');

} // namespace

LogTable::LogTable(QWidget *parent) : QTableView(parent)
{
    setModel(&m_model);
    setItemDelegate(new QuietCellDelegate({LogModel::File, LogModel::Result, LogModel::Folder}, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    setHorizontalHeader(new KeyHeader(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowHeightPx);
    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->setSectionsMovable(true);
    header->setMinimumSectionSize(48);
    header->setSortIndicator(LogModel::Date, Qt::DescendingOrder);
    setSortingEnabled(true);
    showColumns();
    connect(header, &QHeaderView::sectionResized, this, [this] { m_columnsChosen |= !m_arranging && underMouse(); });
    connect(&m_model, &LogModel::grown, this, [this] {
        measureActions();
        Q_EMIT changed();
    });
    connect(this, &QTableView::doubleClicked, this, &LogTable::openRequested);
}

int LogTable::chosenCount() const
{
    return int(selectionModel()->selectedRows().size());
}

QString LogTable::columns() const
{
    const bool areChosen = m_columnsChosen || widths() != m_arranged;
    return (areChosen ? QString() : QString(unchosen)) +
           QString::fromLatin1(horizontalHeader()->saveState().toBase64());
}

void LogTable::setColumns(const QString &kept)
{
    const bool areChosen = !kept.startsWith(unchosen);
    const QByteArray state = QByteArray::fromBase64(kept.mid(areChosen ? 0 : 1).toLatin1());
    m_columnsChosen = !kept.isEmpty() && horizontalHeader()->restoreState(state) && areChosen;
    const QHeaderView *header = horizontalHeader();
    m_model.sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
    showColumns();
}

void LogTable::setShowsComments(bool shows)
{
    if (shows == m_showsComments)
        return;
    m_showsComments = shows;
    m_model.setTellsEdits(!shows);
    showColumns();
    viewport()->update();
}

void LogTable::showColumns()
{
    setColumnHidden(LogModel::Result, m_showsComments);
    setColumnHidden(LogModel::Folder, false);
    setColumnHidden(LogModel::Before, !m_showsComments);
    setColumnHidden(LogModel::After, !m_showsComments);
    arrangeColumns();
}

void LogTable::setTexts(const QStringList &headings, const QVariantMap &shown)
{
    m_model.setHeadings(headings);
    QHash<QString, QString> words;
    for (auto word = shown.cbegin(); word != shown.cend(); ++word)
        words.insert(word.key(), word->toString());
    m_model.setStatusWords(words);
}

void LogTable::follow(const QString &path)
{
    m_model.follow(path);
}

void LogTable::look(const QString &text, const QString &status, bool editsOnly)
{
    m_filter.words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_filter.status = status;
    m_filter.editsOnly = editsOnly;
    filter();
}

void LogTable::showRun(int number)
{
    m_filter.run = number;
    filter();
}

// The chosen entry stays chosen if it is still shown.
void LogTable::filter()
{
    const bool hasCurrent = currentIndex().isValid();
    const int place = hasCurrent ? m_model.place(currentIndex().row()) : 0;
    m_model.setFilter(m_filter);
    const int row = hasCurrent ? m_model.rowOf(place) : -1;
    if (row >= 0)
        setCurrentIndex(m_model.index(row, 0));
    Q_EMIT changed();
}

QVariantMap LogTable::entryMap(int row) const
{
    const LogEntries &all = m_model.entries();
    const LogEntry &entry = all.at(m_model.place(row));
    const TextPool &texts = all.texts();
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(entry.time, Qt::UTC);
    return {{QStringLiteral("date"), entry.time == 0 ? QString() : date.toString(Qt::ISODateWithMs)},
            {QStringLiteral("process"), texts.text(entry.process)},
            {QStringLiteral("action"), texts.text(entry.action)},
            {QStringLiteral("status"), texts.text(entry.status)},
            {QStringLiteral("reason"), texts.text(entry.reason)},
            {QStringLiteral("input"), entry.input},
            {QStringLiteral("output"), entry.output},
            {QStringLiteral("inputPath"), all.inputPath(entry)},
            {QStringLiteral("outputPath"), all.outputPath(entry)},
            {QStringLiteral("bytes"), double(entry.bytes)},
            {QStringLiteral("run"), all.run(entry.run).id},
            {QStringLiteral("before"), texts.text(entry.before)},
            {QStringLiteral("after"), texts.text(entry.after)}};
}

std::vector<int> LogTable::placesOfChosenEdits() const
{
    std::vector<int> places;
    const QModelIndexList chosen = selectionModel()->selectedRows();
    for (const QModelIndex &index : chosen)
        if (const int place = m_model.place(index.row()); m_model.entries().isRevertible(m_model.entries().at(place)))
            places.push_back(place);
    std::sort(places.begin(), places.end(), std::greater<>());
    return places;
}

QVariantList LogTable::editMaps(const std::vector<int> &places) const
{
    const LogEntries &all = m_model.entries();
    QVariantList edits;
    for (const int place : places) {
        const LogEntry &entry = all.at(place);
        edits.append(QVariantMap{{QStringLiteral("path"), all.inputPath(entry)},
                                 {QStringLiteral("before"), all.texts().text(entry.before)},
                                 {QStringLiteral("after"), all.texts().text(entry.after)},
                                 {QStringLiteral("run"), all.run(entry.run).id}});
    }
    return edits;
}

QVariantList LogTable::editsOfRun(int number) const
{
    const LogEntries &all = m_model.entries();
    std::vector<int> places;
    for (int place = all.newest(); place >= all.oldest(); --place)
        if (all.at(place).run == number && all.isRevertible(all.at(place)))
            places.push_back(place);
    return editMaps(places);
}

QVariant LogTable::chosen() const
{
    return currentIndex().isValid() && chosenCount() > 0 ? QVariant(entryMap(currentIndex().row()))
                                                         : QVariant::fromValue(nullptr);
}

QVariantList LogTable::entries(int first, int count) const
{
    QVariantList found;
    const qint64 end = std::min<qint64>(qint64(first) + count, m_model.rowCount());
    for (int row = std::max(0, first); row < end; ++row)
        found.append(entryMap(row));
    return found;
}

int LogTable::copyChosen() const
{
    QList<int> rows;
    const QModelIndexList chosen = selectionModel()->selectedRows();
    for (const QModelIndex &index : chosen)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const int row : std::as_const(rows)) {
        QStringList cells;
        for (int column = 0; column < LogModel::ColumnCount; ++column) {
            const QModelIndex cell = m_model.index(row, horizontalHeader()->logicalIndex(column));
            if (!isColumnHidden(cell.column()))
                cells.append(cell.data().toString().simplified());
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    return int(lines.size());
}

void LogTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT changed();
}

void LogTable::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT changed();
}

void LogTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    arrangeColumns();
}

void LogTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copyChosen();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT openRequested();
    else
        QTableView::keyPressEvent(event);
}

/** The words of the latest runs, also of those that are not shown: the columns stay in place when one is chosen. */
void LogTable::measureActions()
{
    const LogEntries &all = m_model.entries();
    if (all.runCount() == m_runsMeasured)
        return;
    m_runsMeasured = all.runCount();
    constexpr size_t mostRuns = 200;
    int widest = 0;
    for (size_t i = 0; i < qMin(mostRuns, all.runOrder().size()); ++i) {
        const LogRun &run = all.run(all.runOrder()[i]);
        widest = qMax(widest, fontMetrics().horizontalAdvance(all.actionWords(run.process, run.action)));
    }
    m_actionPx = widest == 0 ? 0 : widest + paddingPx;
    arrangeColumns();
}

void LogTable::arrangeColumns()
{
    if (m_columnsChosen)
        return;
    m_arranging = true;
    const int date = dateTimeWidth(fontMetrics()) + paddingPx;
    const int room = viewport()->width() - date;
    setColumnWidth(LogModel::Date, date);
    const auto arrange = [&](const auto &parts, int last) {
        setColumnHidden(last, false); // what is hidden has no size
        const auto share = [&](int column) {
            return parts[column] == 0 ? 0
                                      : qMax(room * parts[column] / 100, horizontalHeader()->sectionSizeHint(column));
        };
        int left = room;
        for (int column = LogModel::Action; column < int(std::size(parts)); ++column)
            left -= share(column);
        const int lacking = qMax(0, m_actionPx - share(LogModel::Action));
        // Folders that are no more than an ellipsis: the tooltip of the result has them.
        const bool hidesFolder = last == LogModel::Folder && left - lacking < horizontalHeader()->sectionSizeHint(last);
        const int rest = hidesFolder ? 0 : horizontalHeader()->sectionSizeHint(last);
        setColumnHidden(last, hidesFolder);
        const int given = qBound(0, left - rest, lacking);
        for (int column = LogModel::Action; column < int(std::size(parts)); ++column)
            if (parts[column] > 0)
                setColumnWidth(column, share(column) + (column == LogModel::Action ? given : 0));
        // The toolkit stretches the last one, but never makes it narrower than it was told.
        const int end = hidesFolder ? LogModel::Result : last;
        setColumnWidth(end, (hidesFolder ? share(end) : 0) + left - given);
    };
    m_showsComments ? arrange(sharesOfComments, LogModel::After) : arrange(shares, LogModel::Folder);
    m_arranging = false;
    m_arranged = widths();
}

/** Of the columns that are not stretched. */
std::vector<int> LogTable::widths() const
{
    return {columnWidth(LogModel::Date), columnWidth(LogModel::Action), columnWidth(LogModel::File),
            columnWidth(LogModel::Status)};
}

} // namespace window
