// The columns of the picture list: which are shown, their titles, and their widths.

#include "app/window/pictures/picture_table.h"

#include "app/window/look/item_looks.h"
#include "app/window/pictures/column_widths.h"
#include "app/window/pictures/picture_delegate.h"
#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <array>
#include <functional>
#include <vector>

namespace window {

namespace {

constexpr int leastNamePx = 140;   ///< beside columns that the user added
constexpr int leastStatusPx = 160; ///< beside them
constexpr int mostSizesPx = 160;   ///< for several new sizes
constexpr int mostWidthPx = 4000;  ///< limit of a stored width
/** What texts get in addition, where dates and cameras are shown by default. */
constexpr int comfortPx = 260;

struct ColumnKind
{
    const char *name;
    int widthPx;       ///< 0: shares what the others leave
    int share;         ///< of it
    int stressedShare; ///< when the list is about new names
    int leastPx;       ///< of a text, before less important columns are hidden for it
};

// Also shown beside the picture; least important first.
constexpr std::array<PictureModel::Column, 5> dispensable = {
    PictureModel::Camera, PictureModel::Taken, PictureModel::Type, PictureModel::Bytes, PictureModel::Pixels};

constexpr std::array<ColumnKind, PictureModel::ColumnCount> kinds = {
    {{"thumbnail", 82, 0, 0, 0},  {"name", 0, 4, 3, 130},      {"folder", 0, 2, 2, 90},     {"taken", 128, 0, 0, 0},
     {"camera", 118, 0, 0, 0},    {"rating", 76, 0, 0, 0},     {"pixels", 92, 0, 0, 0},     {"size", 76, 0, 0, 0},
     {"type", 86, 0, 0, 0},       {"property1", 116, 0, 0, 0}, {"property2", 116, 0, 0, 0}, {"property3", 116, 0, 0, 0},
     {"property4", 116, 0, 0, 0}, {"property5", 116, 0, 0, 0}, {"property6", 116, 0, 0, 0}, {"property7", 116, 0, 0, 0},
     {"property8", 116, 0, 0, 0}, {"newName", 0, 2, 4, 110},   {"newSize", 92, 0, 0, 0},    {"status", 0, 5, 4, 120}}};

// The texts of a stored layout.
const QLatin1String orderKey("order");
const QLatin1String widthsKey("widths");
const QLatin1String shownKey("shown");

int columnNamed(const QString &name)
{
    for (size_t i = 0; i < kinds.size(); ++i)
        if (name == QLatin1String(kinds[i].name))
            return int(i);
    return -1;
}

/** What a column needs to show its content whole, from some of its rows; 0 if that does not change its width. */
int contentWidth(const QAbstractItemView &list, int column)
{
    const bool counts = kinds[size_t(column)].widthPx == 0 || column == PictureModel::NewSize;
    if (!counts || column == PictureModel::Status)
        return 0;
    constexpr int mostRows = 200;
    const int rows = list.model()->rowCount();
    QStyleOptionViewItem option;
    option.font = list.font();
    int widest = 0;
    for (int row = 0; row < rows; row += 1 + rows / mostRows)
        widest = qMax(widest, list.itemDelegate()->sizeHint(option, list.model()->index(row, column)).width());
    return column == PictureModel::NewSize ? qMin(widest, mostSizesPx) : widest;
}

/** Calls @p work a moment after pictures, or names of their results, arrived: many come at a time. */
void whenContentCame(const PictureModel &model, QObject *owner, const std::function<void()> &work)
{
    constexpr int momentMs = 100;
    auto *soon = new QTimer(owner);
    soon->setSingleShot(true);
    soon->setInterval(momentMs);
    const auto wake = [soon] {
        if (!soon->isActive())
            soon->start();
    };
    QObject::connect(soon, &QTimer::timeout, owner, work);
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, soon, wake);
    QObject::connect(
        &model, &QAbstractItemModel::dataChanged, soon, [wake](const QModelIndex &first, const QModelIndex &last) {
            const bool hasName = first.column() <= PictureModel::Name && last.column() >= PictureModel::Name;
            if (hasName || last.column() == PictureModel::NewSize)
                wake();
        });
}

bool isProperty(int column)
{
    return column >= PictureModel::FirstProperty && column <= PictureModel::LastProperty;
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
    // Sorting by thumbnail is meaningless; it restores the order of adding.
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this, header](int column) {
        if (column == PictureModel::Thumbnail)
            header->setSortIndicator(-1, Qt::AscendingOrder);
        noteSorting(column);
        Q_EMIT orderChanged();
        Q_EMIT layoutChanged();
    });
    whenContentCame(m_model, this, [this] { showColumns(); });
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint &place) {
        QMenu menu(this);
        addColumnEntries(menu);
        menu.exec(header->mapToGlobal(place));
    });
}

/** Whether everything that the list is sorted by is known for each row. */
bool PictureTable::isReadFor(int column) const
{
    if (!m_model.propertyOf(column).isEmpty() && !arePropertiesRead())
        return false;
    const bool isRead =
        column == PictureModel::Pixels || column == PictureModel::Taken || column == PictureModel::Camera;
    return !isRead || (m_headersUpTo >= m_model.rowCount() && m_model.headersInWork() == 0);
}

void PictureTable::noteSorting(int column)
{
    m_resortPending = !isReadFor(column);
    if (m_resortPending || m_isReadingProperties) // which may end now
        wakeLoader();
}

void PictureTable::columnsChanged()
{
    m_columnsChosen = true;
    Q_EMIT layoutChanged();
}

void PictureTable::showColumnMenu()
{
    QMenu menu(this);
    addColumnEntries(menu);
    menu.setActiveAction(menu.actions().constFirst());
    menu.exec(horizontalHeader()->mapToGlobal(QPoint(0, horizontalHeader()->height())));
}

/** All possible columns, except those that identify a row. */
void PictureTable::addColumnEntries(QMenu &menu)
{
    for (size_t column = 0; column < kinds.size(); ++column) {
        if (!m_columnShown[column] || isProperty(int(column)) || column == PictureModel::Thumbnail ||
            column == PictureModel::Name || column == PictureModel::Status)
            continue;
        QAction *entry = menu.addAction(m_model.headerData(int(column), Qt::Horizontal, Qt::DisplayRole).toString());
        entry->setCheckable(true);
        entry->setChecked(isShown(column));
        connect(entry, &QAction::triggered, this, [this, column](bool on) { chooseColumn(column, on); });
    }
    addPropertyEntries(menu);
    menu.addSeparator();
    addRatingEntries(menu);
    menu.addAction(tr("Reset Columns"), this, [this] {
        layOutAsFirst();
        m_wanted.clear();
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        showColumns();
        Q_EMIT layoutChanged();
    });
}

void PictureTable::chooseColumn(size_t column, bool on)
{
    m_wanted.insert(int(column), on);
    m_columnsChosen = false; // the widths belong to other columns
    showColumns();
    Q_EMIT layoutChanged();
}

/** The columns in the order of their declaration. */
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
    if (!m_columnsChosen && m_wanted.isEmpty())
        return {};
    const QHeaderView *header = horizontalHeader();
    QJsonArray order;
    QJsonObject widths;
    for (int place = 0; place < PictureModel::ColumnCount; ++place) {
        const int column = header->logicalIndex(place);
        const QLatin1String name(kinds[size_t(column)].name);
        order.append(name);
        if (m_columnsChosen && !header->isSectionHidden(column))
            widths.insert(name, header->sectionSize(column));
    }
    QJsonObject shown;
    for (auto wish = m_wanted.cbegin(); wish != m_wanted.cend(); ++wish)
        shown.insert(QLatin1String(kinds[size_t(wish.key())].name), wish.value());
    const QJsonObject layout = {{orderKey, order}, {widthsKey, widths}, {shownKey, shown}};
    return QString::fromUtf8(QJsonDocument(layout).toJson(QJsonDocument::Compact));
}

// A stored column that no longer exists is ignored, and so is an invalid width.
void PictureTable::setColumnLayout(const QString &text)
{
    const QJsonObject layout = QJsonDocument::fromJson(text.toUtf8()).object();
    QHeaderView *header = horizontalHeader();
    layOutAsFirst();
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    int place = 1; // after the thumbnail
    const QJsonArray order = layout.value(orderKey).toArray();
    for (const QJsonValue &name : order)
        if (const int column = columnNamed(name.toString()); column > 0 && header->visualIndex(column) >= place)
            header->moveSection(header->visualIndex(column), place++);
    const QJsonObject widths = layout.value(widthsKey).toObject();
    const QJsonObject shown = layout.value(shownKey).toObject();
    m_wanted.clear();
    for (auto wish = shown.begin(); wish != shown.end(); ++wish)
        if (const int column = columnNamed(wish.key()); column > PictureModel::Name && column != PictureModel::Status)
            m_wanted.insert(column, wish->toBool());
    m_columnsChosen = !widths.isEmpty();
    m_leftOut.clear();
    for (const auto column : dispensable)
        if (!widths.contains(QLatin1String(kinds[column].name)))
            m_leftOut.append(column);
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
        m_columnShown[column] = isProperty(int(column)) || columns.contains(QLatin1String(kinds[column].name));
    m_columnsChosen = false;
    m_wanted.clear();
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
    if (isProperty(int(column)))
        return !m_model.propertyOf(int(column)).isEmpty();
    if (!m_columnShown[column] || m_wanted.contains(int(column)))
        return m_columnShown[column] && m_wanted.value(int(column));
    return (column != PictureModel::Folder || m_hasFolders) && (column != PictureModel::Rating || m_hasRatings) &&
           !m_leftOut.contains(int(column));
}

/** What a column of numbers needs for its content; 0 for a text. */
int PictureTable::numbersWidth(size_t column) const
{
    constexpr int paddingsPx = 16;
    const bool isDate = column == PictureModel::Taken;
    return qMax(kinds[column].widthPx, isDate ? dateTimeWidth(fontMetrics()) + paddingsPx : 0);
}

/** The same with its heading. */
int PictureTable::fixedWidth(size_t column) const
{
    return qMax(numbersWidth(column), horizontalHeader()->sectionSizeHint(int(column)));
}

/** What a column gets at least before a less important one is hidden for it; short folders need less than long ones. */
int PictureTable::leastWidth(size_t column) const
{
    if (kinds[column].widthPx > 0)
        return fixedWidth(column);
    const int least = kinds[column].leastPx;
    const int content = column == PictureModel::Folder ? contentWidth(*this, PictureModel::Folder) : 0;
    return content > 0 ? qMin(least, qMax(content, horizontalHeader()->sectionSizeHint(int(column)))) : least;
}

/** Hides columns if texts would have too little room, unless the user has arranged them. */
void PictureTable::chooseDispensable()
{
    if (m_columnsChosen)
        return;
    m_leftOut.clear();
    const auto lacking = [this](int comfort) {
        int needed = comfort;
        for (size_t i = 0; i < kinds.size(); ++i)
            needed += isShown(i) ? leastWidth(i) : 0;
        if (isShown(PictureModel::NewSize))
            needed += qMax(0, contentWidth(*this, PictureModel::NewSize) - fixedWidth(PictureModel::NewSize));
        return needed > viewport()->width();
    };
    for (size_t i = 0; i < dispensable.size(); ++i) {
        const bool isExtra = dispensable[i] == PictureModel::Camera || dispensable[i] == PictureModel::Taken;
        const bool givesToFolder = dispensable[i] == PictureModel::Pixels; // which tells pictures apart
        if (!lacking(isExtra ? comfortPx : 0) || (givesToFolder && !isShown(PictureModel::Folder)))
            break;
        m_leftOut.append(dispensable[i]);
    }
}

/** Sets the widths, unless the user has chosen them, and the height of the rows for the statuses in these. */
void PictureTable::arrangeColumns()
{
    auto *delegate = qobject_cast<PictureDelegate *>(itemDelegate());
    delegate->measureStatuses(font());
    const QScopedValueRollback<bool> arranging(m_arranging, true);
    std::vector<ColumnNeed> needs;
    QList<int> shown;
    for (int i = 0; i < PictureModel::ColumnCount && !m_columnsChosen; ++i) {
        if (!isShown(size_t(i)))
            continue;
        const ColumnKind &kind = kinds[size_t(i)];
        const bool isName = i == PictureModel::Name || i == PictureModel::NewName;
        const int least = isName ? leastNamePx : i == PictureModel::Status ? leastStatusPx : kind.leastPx;
        const int share = m_model.stressesNewNames() ? kind.stressedShare : kind.share;
        const int content = i == PictureModel::Status ? delegate->statusPx() : contentWidth(*this, i);
        needs.push_back({numbersWidth(size_t(i)), horizontalHeader()->sectionSizeHint(i), share, least, content, isName,
                         isProperty(i) || m_wanted.value(i)});
        shown.append(i);
    }
    const int room = viewport()->width();
    const std::vector<int> sideways = sidewaysWidths(needs, room);
    const std::vector<int> widths = sideways.empty() ? fittingWidths(needs, room) : sideways;
    // It lays out all columns, also where it is what it was.
    if (!m_columnsChosen && horizontalHeader()->stretchLastSection() != sideways.empty())
        horizontalHeader()->setStretchLastSection(sideways.empty());
    // Never more together than there is room for, else the list scrolls sideways.
    for (const bool narrower : {true, false})
        for (size_t i = 0; i < widths.size(); ++i)
            if ((widths[i] < horizontalHeader()->sectionSize(shown[int(i)])) == narrower)
                horizontalHeader()->resizeSection(shown[int(i)], widths[i]);
    if (delegate->fitStatuses(font()))
        verticalHeader()->setDefaultSectionSize(delegate->rowHeight(fontMetrics()));
}

} // namespace window
