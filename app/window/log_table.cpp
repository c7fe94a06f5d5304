#include "app/window/log_table.h"

#include <QHeaderView>

#include <algorithm>

namespace window {

namespace {
constexpr int rowHeightPx = 30;
} // namespace

void TextRows::setRows(const QStringList &headings, const QVariantList &rows)
{
    beginResetModel();
    m_headings = headings;
    m_rows.clear();
    for (const QVariant &row : rows)
        m_rows.push_back(row.toStringList());
    endResetModel();
}

int TextRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int TextRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_headings.size());
}

QVariant TextRows::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    return m_rows[size_t(index.row())].value(index.column());
}

QVariant TextRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(m_headings.value(section)) : QVariant();
}

void TextFilter::look(const QString &text, int column, const QString &cell)
{
    m_text = text;
    m_column = column;
    m_cell = cell;
    invalidateFilter();
}

bool TextFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    const auto *rows = qobject_cast<const TextRows *>(sourceModel());
    if (!rows)
        return true;
    const QStringList &cells = rows->row(row);
    if (!m_cell.isEmpty() && cells.value(m_column) != m_cell)
        return false;
    return m_text.isEmpty() || std::any_of(cells.cbegin(), cells.cend(), [this](const QString &cell) {
               return cell.contains(m_text, Qt::CaseInsensitive);
           });
}

LogTable::LogTable(QWidget *parent) : QTableView(parent)
{
    m_filter.setSourceModel(&m_rows);
    setModel(&m_filter);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowHeightPx);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
}

void LogTable::setRows(const QStringList &headings, const QVariantList &rows)
{
    m_rows.setRows(headings, rows);
    arrangeColumns();
}

void LogTable::look(const QString &text, int column, const QString &cell)
{
    m_filter.look(text, column, cell);
    Q_EMIT rowChosen();
}

QVariantList LogTable::shownRows() const
{
    QVariantList rows;
    for (int i = 0; i < m_filter.rowCount(); ++i)
        rows.append(m_filter.mapToSource(m_filter.index(i, 0)).row());
    return rows;
}

int LogTable::chosenRow() const
{
    return currentIndex().isValid() ? m_filter.mapToSource(currentIndex()).row() : -1;
}

void LogTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT rowChosen();
}

void LogTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    arrangeColumns();
}

// Shares of the width in per cent; the last column takes the rest.
void LogTable::arrangeColumns()
{
    const int parts[] = {15, 14, 20, 11, 16};
    for (int column = 0; column < qMin(5, m_rows.columnCount({})); ++column)
        setColumnWidth(column, viewport()->width() * parts[column] / 100);
}

} // namespace window
