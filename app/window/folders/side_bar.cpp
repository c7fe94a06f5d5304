#include "app/window/folders/side_bar.h"

#include "app/window/look/icons.h"
#include "app/window/look/theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyledItemDelegate>

namespace window {

namespace {

constexpr int nameRole = Qt::UserRole;
constexpr int iconRole = Qt::UserRole + 1;
constexpr int facesRole = Qt::UserRole + 2;
constexpr int entryHeightPx = 30;
constexpr int headingHeightPx = 34;
constexpr int iconPx = 18;
constexpr int marginPx = 8;
constexpr int beforeTextPx = 38;
constexpr int afterTextPx = 6;
constexpr int leastWidthPx = 188;

class SideBarDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const override
    {
        return {100, index.data(nameRole).isNull() ? headingHeightPx : entryHeightPx};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (index.data(nameRole).isNull())
            paintHeading(*painter, option, index.data().toString());
        else
            paintEntry(*painter, option, index);
        painter->restore();
    }

private:
    static void paintHeading(QPainter &painter, const QStyleOptionViewItem &option, const QString &text)
    {
        QFont small = option.font;
        small.setPixelSize(Theme::scaled(11));
        small.setWeight(QFont::DemiBold);
        small.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
        painter.setFont(small);
        painter.setPen(Theme::color(QStringLiteral("muted")));
        painter.drawText(option.rect.adjusted(10, 0, -6, -6), Qt::AlignLeft | Qt::AlignBottom, text.toUpper());
    }

    static void paintEntry(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const bool selected = option.state & QStyle::State_Selected;
        const bool enabled = index.flags() & Qt::ItemIsEnabled;
        const QRectF place = QRectF(option.rect).adjusted(0, 1, 0, -1);
        QPainterPath shape;
        shape.addRoundedRect(place, 6, 6);
        if (selected)
            painter.fillPath(shape, Theme::color(QStringLiteral("accent")));
        else if (enabled && option.state & QStyle::State_MouseOver)
            painter.fillPath(shape, Theme::color(QStringLiteral("sidebarHover")));
        if (selected && option.state & QStyle::State_HasFocus) {
            QPainterPath inner;
            inner.addRoundedRect(place.adjusted(2, 2, -2, -2), 4, 4);
            painter.setPen(Theme::color(QStringLiteral("onAccent")));
            painter.drawPath(inner);
        }
        const QRect iconPlace(option.rect.left() + 10, option.rect.center().y() - iconPx / 2 + 1, iconPx, iconPx);
        const QIcon::Mode mode = !enabled ? QIcon::Disabled : selected ? QIcon::Selected : QIcon::Normal;
        icon(index.data(iconRole).toString()).paint(&painter, iconPlace, Qt::AlignCenter, mode);
        const char *color = !enabled ? "faint" : selected ? "onAccent" : "text";
        painter.setPen(Theme::color(QString::fromLatin1(color)));
        const QRect textPlace = option.rect.adjusted(beforeTextPx, 0, -afterTextPx, 0);
        painter.drawText(textPlace, Qt::AlignLeft | Qt::AlignVCenter,
                         option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, textPlace.width()));
    }
};

} // namespace

SideBar::SideBar(QWidget *parent) : QListWidget(parent)
{
    setItemDelegate(new SideBarDelegate(this));
    setMouseTracking(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(marginPx, 4, marginPx, 8);
    viewport()->setAutoFillBackground(false);
    connect(this, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        if (item && !item->data(nameRole).isNull())
            Q_EMIT actionChosen(currentAction());
    });
}

void SideBar::addGroup(const QString &title)
{
    auto *item = new QListWidgetItem(title, this);
    item->setFlags(Qt::NoItemFlags);
}

void SideBar::addEntry(const QString &name, const QString &title, const QString &iconName)
{
    auto *item = new QListWidgetItem(title, this);
    item->setData(nameRole, name);
    item->setData(iconRole, iconName);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item->setToolTip(title);
    updateGeometry();
}

void SideBar::addFace(const QString &name, const QString &entryName)
{
    if (QListWidgetItem *found = entry(entryName))
        found->setData(facesRole, found->data(facesRole).toStringList() + QStringList{entryName, name});
}

QString SideBar::currentAction() const
{
    return currentItem() ? currentItem()->data(nameRole).toString() : QString();
}

void SideBar::setCurrentAction(const QString &name)
{
    QListWidgetItem *found = entry(name);
    if (!found)
        return;
    const bool isOtherFace = found->data(nameRole).toString() != name;
    found->setData(nameRole, name);
    if (found == currentItem() && isOtherFace)
        Q_EMIT actionChosen(name);
    setCurrentItem(found);
}

void SideBar::setEntryEnabled(const QString &name, bool enabled)
{
    if (QListWidgetItem *found = entry(name))
        found->setFlags(enabled ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags);
}

int SideBar::neededWidth() const
{
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, fontMetrics().horizontalAdvance(item(i)->text()));
    return qMax(leastWidthPx, widest + beforeTextPx + afterTextPx + 2 * marginPx + 1);
}

QListWidgetItem *SideBar::entry(const QString &name) const
{
    for (int i = 0; i < count(); ++i)
        if (!name.isEmpty() &&
            (item(i)->data(nameRole).toString() == name || item(i)->data(facesRole).toStringList().contains(name)))
            return item(i);
    return nullptr;
}

} // namespace window
