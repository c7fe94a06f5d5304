// The columns of the picture list: which are shown, what stands over them, and how wide they are.

#include "app/window/pictures/picture_table.h"

#include "app/window/pictures/picture_delegate.h"

#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QEvent>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <array>
#include <numeric>

namespace window {

namespace {

constexpr int rowHeightPx = 36;
constexpr int narrowestTextPx = 60;
constexpr int mostWidthPx = 4000; ///< of a kept width, whatever it says

struct ColumnKind
{
    const char *name;
    int widthPx;       ///< 0: shares what the others leave
    int share;         ///< of it
    int stressedShare; ///< where the list is about new names
    int leastPx;       ///< of a text, before columns that say less are left out for it
};

// What is told beside the picture too, the least first.
constexpr std::array<PictureModel::Column, 2> dispensable = {PictureModel::Type, PictureModel::Bytes};

constexpr std::array<ColumnKind, PictureModel::ColumnCount> kinds = {{{"thumbnail", 58, 0, 0, 0},
                                                                      {"name", 0, 3, 3, 130},
                                                                      {"folder", 0, 2, 2, 90},
                                                                      {"pixels", 92, 0, 0, 0},
                                                                      {"size", 76, 0, 0, 0},
                                                                      {"type", 86, 0, 0, 0},
                                                                      {"newName", 0, 3, 4, 110},
                                                                      {"newSize", 92, 0, 0, 0},
                                                                      {"status", 0, 5, 4, 120}}};

// The texts of a kept layout.
const QLatin1String orderKey("order");
const QLatin1String widthsKey("widths");

int columnNamed(const QString &name)
{
    for (size_t i = 0; i < kinds.size(); ++i)
        if (name == QLatin1String(kinds[i].name))
            return int(i);
    return -1;
}

QStringList columnNames()
{
    QStringList names;
    for (const auto &kind : kinds)
        names.append(QString::fromLatin1(kind.name));
    return names;
}

} // namespace

void PictureTable::prepareHeader()
{
    m_columnShown.assign(kinds.size(), true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->setSectionsMovable(true);
    header->setFirstSectionMovable(false);
    header->setMinimumSectionSize(48);
    header->setTextElideMode(Qt::ElideRight);
    header->setSectionResizeMode(PictureModel::Thumbnail, QHeaderView::Fixed);
    header->setSortIndicatorClearable(true);
    // -1: in the order in which the pictures were added.
    header->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(header, &QHeaderView::sectionResized, this, [this] {
        if (!m_arranging && isVisible() && underMouse())
            columnsChanged();
    });
    connect(header, &QHeaderView::sectionMoved, this, [this] {
        if (!m_arranging)
            columnsChanged();
    });
    // Sorting by the thumbnail means nothing; it leads back to the order of adding.
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this, header](int column) {
        if (column == PictureModel::Thumbnail)
            header->setSortIndicator(-1, Qt::AscendingOrder);
        m_resortPending =
            column == PictureModel::Pixels && (m_headersUpTo < m_model.rowCount() || m_model.headersInWork() > 0);
        Q_EMIT orderChanged();
        Q_EMIT layoutChanged();
    });
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &PictureTable::showHeaderMenu);
}

void PictureTable::columnsChanged()
{
    m_columnsChosen = true;
    Q_EMIT layoutChanged();
}

void PictureTable::showHeaderMenu(const QPoint &place)
{
    QMenu menu(this);
    menu.addAction(tr("Reset Columns"), this, [this] {
        layOutAsFirst();
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        showColumns();
        Q_EMIT layoutChanged();
    });
    menu.exec(horizontalHeader()->mapToGlobal(place));
}

/** The columns in the order in which they are declared. */
void PictureTable::layOutAsFirst()
{
    QHeaderView *header = horizontalHeader();
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    for (int column = 0; column < PictureModel::ColumnCount; ++column)
        header->moveSection(header->visualIndex(column), column);
    m_columnsChosen = false;
}

QString PictureTable::columnLayout() const
{
    if (!m_columnsChosen)
        return {};
    const QHeaderView *header = horizontalHeader();
    QJsonArray order;
    QJsonObject widths;
    for (int place = 0; place < PictureModel::ColumnCount; ++place) {
        const int column = header->logicalIndex(place);
        const QLatin1String name(kinds[size_t(column)].name);
        order.append(name);
        if (!header->isSectionHidden(column))
            widths.insert(name, header->sectionSize(column));
    }
    return QString::fromUtf8(QJsonDocument({{orderKey, order}, {widthsKey, widths}}).toJson(QJsonDocument::Compact));
}

// A column that was kept and is none any more is passed over, and so is what is no width.
void PictureTable::setColumnLayout(const QString &text)
{
    const QJsonObject layout = QJsonDocument::fromJson(text.toUtf8()).object();
    QHeaderView *header = horizontalHeader();
    layOutAsFirst();
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    int place = 1; // behind the thumbnail
    const QJsonArray order = layout.value(orderKey).toArray();
    for (const QJsonValue &name : order)
        if (const int column = columnNamed(name.toString()); column > 0 && header->visualIndex(column) >= place)
            header->moveSection(header->visualIndex(column), place++);
    const QJsonObject widths = layout.value(widthsKey).toObject();
    m_columnsChosen = !widths.isEmpty();
    for (auto width = widths.begin(); width != widths.end(); ++width)
        if (const int column = columnNamed(width.key()); column > 0)
            header->resizeSection(column, qBound(header->minimumSectionSize(), width->toInt(), mostWidthPx));
    showColumns();
}

QString PictureTable::sorting() const
{
    const int column = horizontalHeader()->sortIndicatorSection();
    const bool descends = horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder;
    return column < 0 ? QString() : QLatin1String(descends ? "-" : "") + QLatin1String(kinds[size_t(column)].name);
}

void PictureTable::setSorting(const QString &sorting)
{
    const bool descends = sorting.startsWith(u'-');
    const int column = columnNamed(sorting.mid(descends ? 1 : 0));
    horizontalHeader()->setSortIndicator(qMax(-1, column), descends ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void PictureTable::setColumns(const QStringList &columns, const QVariantMap &headings, bool stressed)
{
    const QStringList names = columnNames();
    for (const QString &column : columns)
        if (!names.contains(column))
            throw platform::Raised::typeError(
                QStringLiteral("Expected the name of a column for columns but received \"%1\"").arg(column));
    const platform::Fields given(headings, QStringLiteral("headings"), names);
    QHash<int, QString> words;
    for (auto heading = headings.cbegin(); heading != headings.cend(); ++heading)
        words.insert(columnNamed(heading.key()), given.text(heading.key().toLatin1().constData()));
    m_model.setHeadings(words);
    m_model.setStressesNewNames(stressed);
    for (size_t column = 0; column < kinds.size(); ++column)
        m_columnShown[column] = columns.contains(QLatin1String(kinds[column].name));
    m_columnsChosen = false;
    showColumns();
    viewport()->update();
}

void PictureTable::showColumns()
{
    chooseDispensable();
    {
        const QScopedValueRollback<bool> arranging(m_arranging, true);
        for (int column = 0; column < PictureModel::ColumnCount; ++column)
            setColumnHidden(column, !isShown(size_t(column)));
    }
    arrangeColumns();
}

bool PictureTable::isShown(size_t column) const
{
    return m_columnShown[column] && (column != PictureModel::Folder || m_hasFolders) &&
           !m_leftOut.contains(int(column));
}

/** What a column of numbers takes, with its heading. */
int PictureTable::fixedWidth(size_t column) const
{
    return qMax(kinds[column].widthPx, horizontalHeader()->sectionSizeHint(int(column)));
}

/** Leaves columns out where texts would have too little room, unless the user has arranged them. */
void PictureTable::chooseDispensable()
{
    m_leftOut.clear();
    const auto lacking = [this] {
        int needed = 0;
        for (size_t i = 0; i < kinds.size(); ++i)
            needed += isShown(i) ? qMax(kinds[i].leastPx, kinds[i].widthPx > 0 ? fixedWidth(i) : 0) : 0;
        return needed > viewport()->width();
    };
    for (size_t i = 0; i < dispensable.size() && !m_columnsChosen && lacking(); ++i)
        m_leftOut.append(dispensable[i]);
}

bool PictureTable::isStatusCut(int id) const
{
    const auto *delegate = qobject_cast<const PictureDelegate *>(itemDelegate());
    return delegate->isStatusCut(m_model.row(m_model.indexOfId(id)), font());
}

void PictureTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    // Two lines of a status have room.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        verticalHeader()->setDefaultSectionSize(qMax(rowHeightPx, 2 * fontMetrics().height() + 4));
}

void PictureTable::arrangeColumns()
{
    if (m_columnsChosen)
        return;
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    int room = viewport()->width();
    int shares = 0;
    const auto shareOf = [this](size_t i) {
        return m_model.stressesNewNames() ? kinds[i].stressedShare : kinds[i].share;
    };
    QList<size_t> texts;
    for (size_t i = 0; i < kinds.size(); ++i) {
        room -= isShown(i) && kinds[i].widthPx > 0 ? fixedWidth(i) : 0;
        shares += isShown(i) && kinds[i].widthPx == 0 ? shareOf(i) : 0;
        if (isShown(i) && kinds[i].widthPx == 0)
            texts.append(i);
    }
    const int headings = std::accumulate(texts.begin(), texts.end(), 0, [this](int sum, size_t i) {
        return sum + qMax(narrowestTextPx, horizontalHeader()->sectionSizeHint(int(i)));
    });
    const auto leastOf = [&](size_t i) {
        return headings > room ? narrowestTextPx : qMax(narrowestTextPx, horizontalHeader()->sectionSizeHint(int(i)));
    };
    // Where not even narrow texts have room, a long heading is cut off, since the list is not to be moved sideways.
    int lacking = qMax(0, int(texts.size()) * narrowestTextPx - room);
    const auto cutWidth = [&](size_t i) {
        const int given = qMin(lacking, fixedWidth(i) - kinds[i].widthPx);
        lacking -= given;
        return fixedWidth(i) - given;
    };
    const int spare = qMax(0, room - (headings > room ? int(texts.size()) * narrowestTextPx : headings));
    for (size_t i = 0; i < kinds.size(); ++i) {
        if (!isShown(i))
            continue;
        const int text = leastOf(i) + spare * shareOf(i) / qMax(1, shares);
        horizontalHeader()->resizeSection(int(i), kinds[i].widthPx > 0 ? cutWidth(i) : text);
    }
}

} // namespace window
