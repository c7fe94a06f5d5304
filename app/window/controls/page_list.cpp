#include "app/window/controls/page_list.h"

#include <QSignalBlocker>

namespace window {

namespace {
constexpr int nameRole = Qt::UserRole;
constexpr int besidePx = 40;
} // namespace

PageList::PageList(QWidget *parent) : QListWidget(parent)
{
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item)
            Q_EMIT chosen(item->data(nameRole).toString());
    });
}

void PageList::setPages(const QStringList &names, const QStringList &titles)
{
    const QSignalBlocker quiet(this);
    clear();
    for (qsizetype i = 0; i < names.size(); ++i) {
        auto *item = new QListWidgetItem(titles.value(i), this);
        item->setData(nameRole, names.at(i));
    }
    updateGeometry();
}

QString PageList::current() const
{
    return currentItem() ? currentItem()->data(nameRole).toString() : QString();
}

void PageList::setCurrent(const QString &name)
{
    const QSignalBlocker quiet(this);
    setCurrentRow(-1);
    for (int i = 0; i < count(); ++i)
        if (item(i)->data(nameRole).toString() == name)
            setCurrentRow(i);
}

int PageList::neededWidth() const
{
    int widest = 120;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, fontMetrics().horizontalAdvance(item(i)->text()));
    return widest + besidePx;
}

} // namespace window
