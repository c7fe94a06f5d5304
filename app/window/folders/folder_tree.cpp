#include "app/window/folders/folder_tree.h"

#include "app/window/look/icons.h"
#include "app/window/look/theme.h"

#include "platform/foundation/natural_order.h"
#include "platform/values/fields.h"

#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <utility>

namespace window {

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int totalRole = Qt::UserRole + 1;
constexpr int newRole = Qt::UserRole + 2;
constexpr int rowHeightPx = 28;
constexpr int iconPx = 18;
constexpr int indentPx = 16;
constexpr int gapPx = 5;
constexpr int marginPx = 10;
/** With more folders than these only the top levels are open initially. */
constexpr int mostOpened = 300;

QFont smaller(QFont font)
{
    constexpr int smallPx = 11;
    font.setPixelSize(Theme::scaled(smallPx));
    return font;
}

/** Draws the trailing parts of a row from right to left; answers where the rest ends. */
int paintEnd(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString total = QLocale().toString(index.data(totalRole).toInt());
    QRect place = option.rect.adjusted(0, 0, -marginPx, 0);
    painter.setFont(option.font);
    painter.setPen(Theme::color(QStringLiteral("text")));
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, total);
    place.setRight(place.right() - std::max(24, painter.fontMetrics().horizontalAdvance(total)) - gapPx);
    const bool isNew = index.data(newRole).toBool();
    const QString mark = isNew ? FolderTree::tr("new") : FolderTree::tr("exists");
    painter.setFont(smaller(option.font));
    const QSize size = painter.fontMetrics().size(Qt::TextSingleLine, mark) + QSize(10, 4);
    const QRectF pill(place.right() - size.width(), place.center().y() - size.height() / 2, size.width(),
                      size.height());
    if (isNew) {
        QPainterPath shape;
        shape.addRoundedRect(pill, pill.height() / 2, pill.height() / 2);
        painter.fillPath(shape, Theme::color(QStringLiteral("accentSoft")));
    }
    painter.setPen(Theme::color(isNew ? QStringLiteral("accentText") : QStringLiteral("muted")));
    painter.drawText(pill, Qt::AlignCenter, mark);
    return int(pill.left()) - gapPx;
}

class FolderDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return {120, rowHeightPx}; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const int end = paintEnd(*painter, option, index);
        const QRect iconPlace(option.rect.left(), option.rect.center().y() - iconPx / 2 + 1, iconPx, iconPx);
        icon(QStringLiteral("folder")).paint(painter, iconPlace);
        const QRect textPlace(iconPlace.right() + gapPx, option.rect.top(), end - iconPlace.right() - gapPx,
                              rowHeightPx);
        painter->setFont(option.font);
        painter->setPen(Theme::color(QStringLiteral("text")));
        const bool isPath = !index.parent().isValid();
        painter->drawText(textPlace, Qt::AlignLeft | Qt::AlignVCenter,
                          painter->fontMetrics().elidedText(
                              index.data().toString(), isPath ? Qt::ElideMiddle : Qt::ElideRight, textPlace.width()));
        painter->restore();
    }
};

QString spoken(const QVariantMap &folder)
{
    const int total = folder.value(QStringLiteral("total")).toInt();
    const QString files = FolderTree::tr("%Ln files", nullptr, total);
    const bool isNew = folder.value(QStringLiteral("isNew")).toBool();
    const QString sentence = isNew ? FolderTree::tr("%1, new folder, %2") : FolderTree::tr("%1, existing folder, %2");
    return sentence.arg(folder.value(QStringLiteral("name")).toString(), files);
}

void checkFolder(const QVariant &folder, qsizetype index)
{
    static const QStringList keys = {QStringLiteral("path"),  QStringLiteral("above"), QStringLiteral("name"),
                                     QStringLiteral("count"), QStringLiteral("total"), QStringLiteral("isNew")};
    const platform::Fields fields(folder, QStringLiteral("folders[%1]").arg(index), keys);
    for (const char *text : {"path", "above", "name"})
        fields.text(text);
    for (const char *number : {"count", "total"})
        fields.whole(number, 0);
    fields.truth("isNew", false);
}

std::unique_ptr<QTreeWidgetItem> itemFor(const QVariantMap &folder)
{
    const QString path = folder.value(QStringLiteral("path")).toString();
    auto item = std::make_unique<QTreeWidgetItem>();
    item->setText(0, folder.value(QStringLiteral("name")).toString());
    item->setData(0, pathRole, path);
    item->setData(0, totalRole, folder.value(QStringLiteral("total")));
    item->setData(0, newRole, folder.value(QStringLiteral("isNew")));
    item->setData(0, Qt::AccessibleTextRole, spoken(folder));
    item->setToolTip(0, path);
    return item;
}

} // namespace

FolderTree::FolderTree(QWidget *parent) : QTreeWidget(parent), m_order(platform::naturalOrder())
{
    setItemDelegate(new FolderDelegate(this));
    setColumnCount(1);
    setHeaderHidden(true);
    setIndentation(indentPx);
    setUniformRowHeights(true);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setExpandsOnDoubleClick(true);
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) { rememberOpen(item, true); });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem *item) { rememberOpen(item, false); });
    connect(this, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (!m_filling)
            Q_EMIT folderChosen(chosen());
    });
}

QString FolderTree::chosen() const
{
    const QList<QTreeWidgetItem *> items = selectedItems();
    return items.isEmpty() ? QString() : items.first()->data(0, pathRole).toString();
}

void FolderTree::setChosen(const QString &path)
{
    if (QTreeWidgetItem *item = itemAt(path))
        setCurrentItem(item);
    else
        clearSelection();
}

void FolderTree::setFolders(const QVariantList &folders)
{
    beginFolders();
    addFolders(folders);
    showFolders();
}

void FolderTree::beginFolders()
{
    m_waiting.clear();
    m_waitingItems.clear();
}

void FolderTree::addFolders(const QVariantList &folders)
{
    for (qsizetype i = 0; i < folders.size(); ++i) {
        checkFolder(folders.at(i), i);
        const QVariantMap folder = folders.at(i).toMap();
        m_waiting.push_back({m_order.sortKey(folder.value(QStringLiteral("name")).toString()),
                             folder.value(QStringLiteral("above")).toString(), itemFor(folder)});
        m_waitingItems.insert(folder.value(QStringLiteral("path")).toString(), m_waiting.back().item.get());
    }
}

// Puts every waiting folder under its parent; answers those at the top.
QList<QTreeWidgetItem *> FolderTree::joinWaiting()
{
    std::sort(m_waiting.begin(), m_waiting.end(),
              [](const Waiting &left, const Waiting &right) { return left.key < right.key; });
    QHash<QString, QList<QTreeWidgetItem *>> below;
    for (Waiting &each : m_waiting)
        if (each.above.isEmpty() || m_waitingItems.contains(each.above))
            below[each.above].append(each.item.release());
    for (auto it = below.cbegin(); it != below.cend(); ++it)
        if (!it.key().isEmpty())
            m_waitingItems.value(it.key())->addChildren(it.value());
    m_items = std::exchange(m_waitingItems, {});
    m_waiting.clear();
    return below.value(QString());
}

void FolderTree::showFolders()
{
    const QString before = chosen();
    const int scrolled = verticalScrollBar()->value();
    m_filling = true;
    setUpdatesEnabled(false);
    clear();
    addTopLevelItems(joinWaiting());
    openItems();
    if (QTreeWidgetItem *item = itemAt(before)) {
        setCurrentItem(item);
        item->setSelected(true);
    }
    setUpdatesEnabled(true);
    m_filling = false;
    verticalScrollBar()->setValue(scrolled);
    if (chosen() != before)
        Q_EMIT folderChosen(chosen());
}

void FolderTree::openItems()
{
    const bool few = m_items.size() <= mostOpened;
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it)
        if (m_opened.value(it.key(), few || !it.value()->parent()))
            it.value()->setExpanded(true);
}

void FolderTree::rememberOpen(const QTreeWidgetItem *item, bool open)
{
    if (!m_filling)
        m_opened.insert(item->data(0, pathRole).toString(), open);
}

QVariantList FolderTree::folders() const
{
    QVariantList all;
    for (QTreeWidgetItemIterator it(const_cast<FolderTree *>(this)); *it; ++it)
        all.append(QVariantMap{{QStringLiteral("path"), (*it)->data(0, pathRole)},
                               {QStringLiteral("name"), (*it)->text(0)},
                               {QStringLiteral("total"), (*it)->data(0, totalRole)},
                               {QStringLiteral("isNew"), (*it)->data(0, newRole)}});
    return all;
}

void FolderTree::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !chosen().isEmpty())
        clearSelection();
    else
        QTreeWidget::keyPressEvent(event);
}

void FolderTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (selectionModel()->isSelected(index))
        painter->fillRect(option.rect, Theme::color(QStringLiteral("row")));
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(option.rect, Theme::color(QStringLiteral("hover")));
    // The style would paint the area before the branch in its own colour.
    QStyleOptionViewItem quiet = option;
    quiet.palette.setBrush(QPalette::Highlight, Qt::transparent);
    QTreeWidget::drawRow(painter, quiet, index);
    if (hasFocus() && index == currentIndex()) {
        painter->setPen(Theme::color(QStringLiteral("focus")));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
}

void FolderTree::drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    if (!model()->hasChildren(index))
        return;
    constexpr double reach = 3.5;
    const QPointF centre(rect.right() - indentPx / 2.0 + 1, rect.center().y() + 1);
    QPainterPath chevron;
    const QPointF along = isExpanded(index) ? QPointF(reach, 0) : QPointF(0, reach);
    const QPointF ahead = isExpanded(index) ? QPointF(0, reach / 2) : QPointF(reach / 2, 0);
    chevron.moveTo(centre - along - ahead);
    chevron.lineTo(centre + ahead);
    chevron.lineTo(centre + along - ahead);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(Theme::color(QStringLiteral("muted")), 1.4));
    painter->drawPath(chevron);
    painter->restore();
}

} // namespace window
