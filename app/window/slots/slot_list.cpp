#include "app/window/slots/slot_list.h"

#include "app/window/look/theme.h"
#include "app/window/slots/slot_delegate.h"

#include "platform/values/fields.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QDragMoveEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QUrl>

namespace window {

namespace {

constexpr int litMs = 260;
constexpr int slotHeightPx = 44;
constexpr int leastShown = 5;
/** If the slots do not fit they are arranged in two columns, provided these are wide enough to be read. */
constexpr int narrowestColumnPx = 136;

QStringList foldersIn(const QMimeData *data)
{
    QStringList folders;
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    for (const QUrl &url : urls)
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir())
            folders.append(QFileInfo(url.toLocalFile()).absoluteFilePath());
    return folders;
}

} // namespace

SlotList::SlotList(QWidget *parent) : QListView(parent)
{
    setModel(&m_rows);
    setItemDelegate(new SlotDelegate(*this));
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(EditKeyPressed);
    setAcceptDrops(true);
    setDragEnabled(true);
    setDropIndicatorShown(false);
    viewport()->setAutoFillBackground(false);
    m_litTimer.setSingleShot(true);
    connect(&m_litTimer, &QTimer::timeout, viewport(), qOverload<>(&QWidget::update));
    connect(&m_rows, &SlotRows::labelEdited, this, &SlotList::labelEdited);
}

void SlotList::setActive(bool active)
{
    m_active = active;
    for (QShortcut *shortcut : std::as_const(m_shortcuts))
        shortcut->setEnabled(active);
}

void SlotList::setSlots(const QVariantList &slots)
{
    std::vector<Slot> shown;
    for (qsizetype i = 0; i < slots.size(); ++i) {
        const platform::Fields slot(slots.at(i), QStringLiteral("slots[%1]").arg(i),
                                    {QStringLiteral("key"), QStringLiteral("label"), QStringLiteral("note"),
                                     QStringLiteral("problem"), QStringLiteral("count")});
        shown.push_back(
            {slot.text("key"), slot.text("label"), slot.text("note"), slot.text("problem"), slot.whole("count", 0)});
    }
    m_rows.setSlots(shown);
    makeShortcuts();
    arrange();
    updateGeometry();
}

QSize SlotList::sizeHint() const
{
    return {300, slotHeightPx * qMax(1, m_rows.count()) + 4};
}

QSize SlotList::minimumSizeHint() const
{
    return {180, slotHeightPx * qBound(1, m_rows.count(), leastShown) + 4};
}

// While it has the focus the list handles Up, Down and F2, even in a window that uses them otherwise. Left and Right
// have no meaning here.
bool SlotList::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const int key = dynamic_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_F2)
            event->accept();
    }
    return QListView::event(event);
}

void SlotList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    Q_EMIT currentSlotChanged(current.row());
}

void SlotList::makeShortcuts()
{
    while (m_shortcuts.size() > m_rows.count())
        delete m_shortcuts.takeLast();
    for (int row = int(m_shortcuts.size()); row < m_rows.count(); ++row) {
        auto *shortcut = new QShortcut(this);
        // Holding down a key sorts one picture, not thirty.
        shortcut->setAutoRepeat(false);
        shortcut->setEnabled(m_active);
        connect(shortcut, &QShortcut::activated, this, [this, row] { Q_EMIT slotChosen(row); });
        m_shortcuts.append(shortcut);
    }
    for (int row = 0; row < m_rows.count(); ++row)
        m_shortcuts[row]->setKey(QKeySequence(m_rows.slot(row).key, QKeySequence::PortableText));
}

void SlotList::setMenu(const QStringList &texts, const QStringList &words)
{
    m_menuTexts = texts;
    m_menuWords = words;
}

void SlotList::editLabel(int row)
{
    setCurrentIndex(m_rows.index(row));
    edit(m_rows.index(row));
}

void SlotList::light(int row)
{
    m_lit = row;
    m_litTimer.start(litMs);
    viewport()->update();
}

void SlotList::reveal(int row)
{
    if (row >= 0 && row < m_rows.count())
        scrollTo(m_rows.index(row));
}

int SlotList::slotWidth() const
{
    return qMax(1, viewport()->width() / m_columns - 1);
}

void SlotList::arrange()
{
    const int fitting = qMax(1, height() / slotHeightPx);
    const bool isWide = viewport()->width() / 2 >= narrowestColumnPx;
    const int columns = m_rows.count() > fitting && isWide ? 2 : 1;
    m_columns = columns;
    setFlow(columns == 1 ? TopToBottom : LeftToRight);
    setWrapping(columns > 1);
    const int needed = (m_rows.count() + columns - 1) / columns * slotHeightPx;
    setVerticalScrollBarPolicy(needed > height() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setGridSize(QSize(slotWidth(), slotHeightPx));
    scheduleDelayedItemsLayout();
}

void SlotList::resizeEvent(QResizeEvent *event)
{
    arrange();
    QListView::resizeEvent(event);
}

void SlotList::keyPressEvent(QKeyEvent *event)
{
    // The label field passes its Return on; that must not choose anything.
    const bool isEnter = (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState;
    if (isEnter && m_active && currentIndex().isValid() && event->modifiers() == Qt::NoModifier)
        Q_EMIT slotChosen(current());
    else
        QListView::keyPressEvent(event);
}

int SlotList::rowAt(QPoint place) const
{
    return indexAt(place).row();
}

void SlotList::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? rowAt(event->pos()) : -1;
    QListView::mousePressEvent(event);
}

void SlotList::mouseReleaseEvent(QMouseEvent *event)
{
    QListView::mouseReleaseEvent(event);
    const int row = std::exchange(m_pressed, -1);
    if (event->button() == Qt::LeftButton && m_active && row >= 0 && row == rowAt(event->pos()))
        Q_EMIT slotChosen(row);
}

void SlotList::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    const int row = isByMouse ? rowAt(event->pos()) : current();
    if (row < 0 || m_menuTexts.isEmpty())
        return;
    QMenu menu(this);
    for (qsizetype i = 0; i < m_menuTexts.size(); ++i) {
        if (m_menuTexts[i] == QLatin1String("-"))
            menu.addSeparator();
        else
            menu.addAction(m_menuTexts[i])->setData(m_menuWords.value(i));
    }
    const QPoint place = isByMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(currentIndex()).center());
    if (const QAction *chosen = menu.exec(place))
        Q_EMIT menuChosen(row, chosen->data().toString());
}

void SlotList::startDrag(Qt::DropActions)
{
    m_dragged = m_pressed;
    m_pressed = -1;
    if (m_dragged < 0)
        return;
    QDrag drag(this);
    auto *carried = new QMimeData;
    carried->setText(m_rows.slot(m_dragged).label);
    drag.setMimeData(carried);
    const QRect place = visualRect(m_rows.index(m_dragged));
    drag.setPixmap(viewport()->grab(place));
    drag.exec(Qt::MoveAction);
    m_dragged = -1;
}

void SlotList::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->source() == this || !foldersIn(event->mimeData()).isEmpty())
        event->acceptProposedAction();
    else
        event->ignore();
}

void SlotList::dragMoveEvent(QDragMoveEvent *event)
{
    m_dropRow = event->source() == this ? rowAt(event->position().toPoint()) : -1;
    viewport()->update();
    event->acceptProposedAction();
}

void SlotList::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropRow = -1;
    viewport()->update();
}

void SlotList::dropEvent(QDropEvent *event)
{
    m_dropRow = -1;
    viewport()->update();
    event->acceptProposedAction();
    const int row = rowAt(event->position().toPoint());
    if (event->source() == this && m_dragged >= 0)
        Q_EMIT slotMoved(m_dragged, row < 0 ? m_rows.count() - 1 : row);
    else if (event->source() != this)
        Q_EMIT foldersDropped(foldersIn(event->mimeData()));
}

void SlotList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (m_dropRow < 0 || m_dropRow == m_dragged)
        return;
    const QRect place = visualRect(m_rows.index(m_dropRow));
    const int y = m_dropRow > m_dragged ? place.bottom() : place.top();
    QPainter painter(viewport());
    painter.fillRect(QRect(place.left() + 4, y - 1, place.width() - 8, 3), Theme::color(QStringLiteral("accent")));
}

} // namespace window
