#include "app/window/pictures/picture_table.h"

#include "app/window/look/key_header.h"
#include "app/window/pictures/picture_delegate.h"

#include "platform/foundation/raised.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <utility>

namespace window {

namespace {

constexpr int sliceMs = 2;
/** The event loop is left alone this long between slices, so that reading ahead uses only part of one processor. */
constexpr int pauseMs = 1;
/** So many are requested at a time: enough for all workers, and few enough that what the user scrolls to comes soon. */
constexpr int mostHeaders = 32;
constexpr int mostThumbnails = 4;

StatusKind kindOf(const QString &word)
{
    static const QHash<QString, StatusKind> kinds = {
        {QStringLiteral("none"), StatusKind::None},       {QStringLiteral("waiting"), StatusKind::Waiting},
        {QStringLiteral("planned"), StatusKind::Planned}, {QStringLiteral("busy"), StatusKind::Busy},
        {QStringLiteral("good"), StatusKind::Good},       {QStringLiteral("bad"), StatusKind::Bad},
        {QStringLiteral("caution"), StatusKind::Caution}};
    if (!kinds.contains(word))
        throw platform::Raised::typeError(
            QStringLiteral("Expected a kind of status for kind but received \"%1\"").arg(word));
    return kinds.value(word);
}

} // namespace

PictureTable::PictureTable(QWidget *parent) : QTableView(parent), m_order(m_model, this)
{
    setModel(&m_order);
    setHorizontalHeader(new KeyHeader(this));
    setItemDelegate(new PictureDelegate(m_model, m_order, *horizontalHeader(), this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setMouseTracking(false);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    prepareHeader();
    m_loader.setSingleShot(true);
    connect(&m_loader, &QTimer::timeout, this, &PictureTable::loadSlice);
    connect(&m_model, &PictureModel::headerArrived, this, &PictureTable::wakeLoader);
    connect(&m_model, &PictureModel::thumbnailArrived, this, &PictureTable::wakeLoader);
    connect(&m_model, &PictureModel::propertiesArrived, this, &PictureTable::wakeLoader);
}

bool PictureTable::isStatusCut(int id) const
{
    const auto *delegate = qobject_cast<const PictureDelegate *>(itemDelegate());
    return delegate->isStatusCut(m_model.row(m_model.indexOfId(id)), font());
}

void PictureTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    // The lines of a status fit.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        if (const auto *delegate = qobject_cast<PictureDelegate *>(itemDelegate()))
            verticalHeader()->setDefaultSectionSize(delegate->rowHeight(fontMetrics()));
}

int PictureTable::count() const
{
    return m_taken;
}

int PictureTable::currentId() const
{
    const QModelIndex index = currentIndex();
    return index.isValid() ? m_model.row(m_order.mapToSource(index).row()).id : 0;
}

void PictureTable::setProblemsOnly(bool on)
{
    m_order.setProblemsOnly(on);
    chooseSomeRow();
    wakeLoader();
}

void PictureTable::setBusy(bool busy)
{
    m_busy = busy;
    wakeLoader();
}

int PictureTable::addPaths(const QStringList &paths, const QStringList &roots)
{
    const int added = m_model.add(paths, roots);
    if (added == 0)
        return 0;
    QList<int> ids;
    for (int row = m_model.rowCount() - added; row < m_model.rowCount(); ++row)
        ids.append(m_model.row(row).id);
    m_edits.added(std::move(ids));
    countTaken();
    noteSorting(horizontalHeader()->sortIndicatorSection());
    chooseSomeRow();
    Q_EMIT countChanged(count());
    wakeLoader();
    return added;
}

int PictureTable::removeSelected()
{
    QList<int> gone;
    int top = m_order.rowCount();
    const QModelIndexList rows = selectionModel()->selectedRows();
    for (const QModelIndex &index : rows) {
        gone.append(m_model.row(m_order.mapToSource(index).row()).id);
        top = qMin(top, index.row());
    }
    if (gone.isEmpty())
        return 0;
    m_edits.removed(m_model.takeIds(gone));
    if (m_order.rowCount() > 0)
        choose(m_order.index(qMin(top, m_order.rowCount() - 1), PictureModel::Name));
    rowsChanged();
    return int(gone.size());
}

int PictureTable::removeAll()
{
    const int gone = m_model.rowCount();
    if (gone > 0)
        m_edits.removed(m_model.takeAll());
    m_order.setProblemsOnly(false);
    rowsChanged();
    return gone;
}

void PictureTable::undoEdit()
{
    if (m_edits.undo(m_model)) {
        rowsChanged();
        Q_EMIT orderChanged();
    }
}

void PictureTable::redoEdit()
{
    if (m_edits.redo(m_model)) {
        rowsChanged();
        Q_EMIT orderChanged();
    }
}

QVariantList PictureTable::selectedIds() const
{
    QList<int> rows;
    const QModelIndexList chosen = selectionModel()->selectedRows();
    for (const QModelIndex &index : chosen)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    QVariantList found;
    for (int row : std::as_const(rows))
        found.append(m_model.row(m_order.mapToSource(m_order.index(row, 0)).row()).id);
    return found;
}

// Not setCurrentIndex(), which extends the selection while Ctrl is held, as it is for Ctrl+Right.
void PictureTable::choose(const QModelIndex &index)
{
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void PictureTable::step(int rows)
{
    const int last = m_order.rowCount() - 1;
    if (last < 0)
        return;
    const int now = currentIndex().isValid() ? currentIndex().row() : 0;
    choose(m_order.index(int(qBound(qint64(0), qint64(now) + rows, qint64(last))), PictureModel::Name));
}

void PictureTable::selectId(int id)
{
    const QModelIndex index = shownIndex(id);
    if (index.isValid())
        choose(index);
}

QVariant PictureTable::photo(int id)
{
    const int index = m_model.indexOfId(id);
    if (index < 0)
        return QVariant::fromValue(nullptr);
    const PictureRow &row = m_model.withHeader(index);
    return QVariantMap{{QStringLiteral("id"), row.id},
                       {QStringLiteral("path"), row.path},
                       {QStringLiteral("name"), row.name},
                       {QStringLiteral("type"), row.type},
                       {QStringLiteral("bytes"), double(row.bytes)},
                       {QStringLiteral("width"), qMax(0, row.pixels.width())},
                       {QStringLiteral("height"), qMax(0, row.pixels.height())},
                       {QStringLiteral("orientation"), row.orientation},
                       {QStringLiteral("problem"), row.isReaderGone ? row.problem : QStringLiteral("")}};
}

void PictureTable::setPlan(int id, const QString &newName, const QString &newSize)
{
    const int index = m_model.indexOfId(id);
    if (index >= 0)
        m_model.setPlan(index, newName, newSize);
}

void PictureTable::setNewNames(const QVariantList &ids, const QStringList &newNames)
{
    if (ids.size() != newNames.size())
        throw platform::Raised::rangeError(
            QStringLiteral("Expected %1 names but received %2").arg(ids.size()).arg(newNames.size()));
    for (qsizetype i = 0; i < ids.size(); ++i)
        setPlan(ids[i].toInt(), newNames[i], QString());
}

void PictureTable::setStatus(int id, const QString &kind, const QString &text, const QString &detail)
{
    setStatuses({id}, kind, text, detail);
}

void PictureTable::setStatuses(const QVariantList &ids, const QString &kind, const QString &text, const QString &detail)
{
    const StatusKind status = kindOf(kind);
    auto *delegate = qobject_cast<PictureDelegate *>(itemDelegate());
    bool needsRoom = false;
    for (const QVariant &id : ids) {
        const int index = m_model.indexOfId(id.toInt());
        if (index < 0)
            continue;
        m_model.setStatus(index, status, text, detail);
        needsRoom = needsRoom || delegate->needsRoom(m_model.row(index), font());
    }
    if (needsRoom)
        arrangeColumns();
}

QVariant PictureTable::shown(int id) const
{
    const int index = m_model.indexOfId(id);
    if (index < 0)
        return QVariant::fromValue(nullptr);
    const PictureRow &row = m_model.row(index);
    QStringList properties;
    for (const QString &name : m_propertyColumns)
        properties.append(row.properties.value(name).words);
    return QVariantMap{{QStringLiteral("rating"), row.rating},
                       {QStringLiteral("properties"), properties},
                       {QStringLiteral("newName"), row.newName},
                       {QStringLiteral("newSize"), row.newSize},
                       {QStringLiteral("status"), row.status}};
}

void PictureTable::forget(int id)
{
    const int index = m_model.indexOfId(id);
    if (index < 0)
        return;
    m_model.forget(index);
    m_headersUpTo = qMin(m_headersUpTo, index);
    m_propertiesUpTo = qMin(m_propertiesUpTo, index);
    noteSorting(horizontalHeader()->sortIndicatorSection());
    wakeLoader();
}

void PictureTable::reveal(int id)
{
    const QModelIndex index = shownIndex(id);
    if (index.isValid() && !hasFocus())
        scrollTo(index, EnsureVisible);
}

QModelIndex PictureTable::shownIndex(int id) const
{
    const int index = m_model.indexOfId(id);
    return index < 0 ? QModelIndex() : m_order.mapFromSource(m_model.index(index, PictureModel::Name));
}

// Left and right move through the list as up and down do: the columns of a row cannot be current by themselves.
QModelIndex PictureTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveLeft)
        action = MoveUp;
    else if (action == MoveRight)
        action = MoveDown;
    return QTableView::moveCursor(action, modifiers);
}

void PictureTable::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)))
        Q_EMIT largePreviewRequested();
    else if (m_keysRate && event->key() >= Qt::Key_0 && event->key() <= Qt::Key_5 &&
             !(event->modifiers() & ~Qt::KeypadModifier))
        rate(event->key() - Qt::Key_0);
    else if (event->matches(QKeySequence::Copy))
        Q_EMIT copied(copyFiles());
    else
        QTableView::keyPressEvent(event);
}

void PictureTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    showColumns();
    wakeLoader();
}

void PictureTable::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    wakeLoader();
}

void PictureTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row() || previous.model() == nullptr)
        Q_EMIT currentPictureChanged(currentId());
}

void PictureTable::wakeLoader()
{
    if (!m_loader.isActive())
        m_loader.start(0);
}

void PictureTable::loadSlice()
{
    loadVisible();
    if (!m_busy) {
        loadHeaders();
        loadProperties();
    }
    if (isReadFor(horizontalHeader()->sortIndicatorSection()) && std::exchange(m_resortPending, false)) {
        m_order.sort(horizontalHeader()->sortIndicatorSection(), horizontalHeader()->sortIndicatorOrder());
        Q_EMIT orderChanged();
    }
}

/** Visible rows come first; requests for rows that are no longer visible are dropped. */
void PictureTable::loadVisible()
{
    if (!isVisible() || m_order.rowCount() == 0)
        return;
    const int first = qMax(0, rowAt(0));
    const int bottom = rowAt(viewport()->height() - 1);
    const int last = bottom < 0 ? m_order.rowCount() - 1 : bottom;
    const QSize thumbnail = PictureDelegate::thumbnailSize() * devicePixelRatioF();
    QSet<int> ids;
    for (int i = first; i <= last; ++i)
        ids.insert(m_model.row(m_order.mapToSource(m_order.index(i, 0)).row()).id);
    m_model.dropThumbnailsBut(ids);
    for (int i = first; i <= last; ++i) {
        const int row = m_order.mapToSource(m_order.index(i, 0)).row();
        m_model.wantHeader(row, jobs::Urgency::Now);
        m_model.wantProperties(row, jobs::Urgency::Now);
        const bool isKnown = m_model.row(row).headerRead && !m_model.row(row).pixels.isEmpty();
        if (isKnown && !m_model.hasThumbnail(row) && m_model.thumbnailsInWork() < mostThumbnails)
            m_model.wantThumbnail(row, thumbnail);
    }
}

void PictureTable::loadHeaders()
{
    QElapsedTimer clock;
    clock.start();
    for (; m_headersUpTo < m_model.rowCount() && m_model.headersInWork() < mostHeaders; ++m_headersUpTo) {
        if (clock.elapsed() >= sliceMs) {
            m_loader.start(pauseMs);
            return;
        }
        m_model.wantHeader(m_headersUpTo, jobs::Urgency::Later);
    }
}

} // namespace window
