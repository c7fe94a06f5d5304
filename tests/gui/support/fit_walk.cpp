#include "tests/gui/support/fit_walk.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/folders/side_bar.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEnterEvent>
#include <QFileDialog>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>

namespace {

QString plain(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("&(?=[^&])")));
    return text;
}

int advance(const QWidget &widget, const QString &text)
{
    int widest = 0;
    for (const QString &line : text.split(u'\n'))
        widest = qMax(widest, widget.fontMetrics().horizontalAdvance(line));
    return widest;
}

/** Says the lack in a line; nothing where the room is enough or the tooltip has the text. */
QString lack(const QWidget &widget, const QString &text, int needed, int room)
{
    if (needed <= room || widget.toolTip().contains(text))
        return {};
    return QStringLiteral("needs %1, has %2: %3").arg(needed).arg(room).arg(text);
}

QString labelLack(const QLabel &label)
{
    if (label.text().isEmpty() || !label.pixmap(Qt::ReturnByValue).isNull())
        return {};
    if (!label.wordWrap())
        return lack(label, label.text(), label.sizeHint().width(), label.width()) +
               lack(label, label.text(), label.sizeHint().height(), label.height());
    QString longest;
    const int around = 2 * label.margin() + label.width() - label.contentsRect().width();
    if (label.textFormat() != Qt::RichText)
        for (const QString &word : label.text().split(QRegularExpression(QStringLiteral("[\\s/-]"))))
            if (advance(label, word) > advance(label, longest))
                longest = word;
    return lack(label, longest, advance(label, longest) + around, label.width()) +
           lack(label, label.text(), label.heightForWidth(label.width()), label.height());
}

QString buttonLack(const QAbstractButton &button)
{
    if (button.text().isEmpty())
        return {};
    QStyleOptionButton option;
    option.initFrom(&button);
    const bool isPush = qobject_cast<const QPushButton *>(&button) != nullptr;
    const bool isCheck = qobject_cast<const QCheckBox *>(&button) != nullptr;
    if (const auto *push = qobject_cast<const QPushButton *>(&button); push && push->menu())
        option.features |= QStyleOptionButton::HasMenu;
    const QStyle::SubElement part = isPush    ? QStyle::SE_PushButtonContents
                                    : isCheck ? QStyle::SE_CheckBoxContents
                                              : QStyle::SE_RadioButtonContents;
    int room = button.style()->subElementRect(part, &option, &button).width();
    if (!button.icon().isNull())
        room -= button.iconSize().width() + 4;
    return lack(button, plain(button.text()), advance(button, plain(button.text())), room);
}

int roomOf(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
}

// A chosen entry that is cut off must be the tooltip once the pointer is there.
QString comboLack(const QComboBox &box)
{
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(const_cast<QComboBox *>(&box), &enter);
    // A preset that was changed has a mark before its name.
    QString text = box.currentText();
    text.remove(QStringLiteral("• "));
    return lack(box, text, advance(box, box.currentText()), roomOf(box));
}

// What the box is for should be seen without the pointer, so only names that others give may be cut off; the last of them holds
// paths, which may be longer than any window. What is chosen there is held by comboLack(): all of it or a tooltip.
bool isNamedByOthers(const QComboBox &box)
{
    static const QStringList names = {QStringLiteral("preset"),     QStringLiteral("destination"),
                                      QStringLiteral("pattern"),    QStringLiteral("sortDestination"),
                                      QStringLiteral("markFont"),   QStringLiteral("markPicture"),
                                      QStringLiteral("lookInCombo")};
    return names.contains(box.objectName());
}

QString fixedComboLack(const QComboBox &box)
{
    for (int i = 0; i < box.count() && !isNamedByOthers(box); ++i)
        if (advance(box, box.itemText(i)) > roomOf(box))
            return QStringLiteral("needs %1, has %2: %3")
                .arg(advance(box, box.itemText(i)))
                .arg(roomOf(box))
                .arg(box.itemText(i));
    return {};
}

QString spinLack(const QAbstractSpinBox &spin)
{
    const auto *field = spin.findChild<QLineEdit *>();
    return field ? lack(spin, spin.text(), advance(spin, spin.text()), field->contentsRect().width()) : QString();
}

QString headerLack(const QHeaderView &header)
{
    for (int i = 0; header.orientation() == Qt::Horizontal && i < header.count(); ++i) {
        const QString text = header.model()->headerData(i, Qt::Horizontal).toString();
        const QString tip = header.model()->headerData(i, Qt::Horizontal, Qt::ToolTipRole).toString();
        if (!header.isSectionHidden(i) && !text.isEmpty() && !tip.contains(text) &&
            header.sectionSizeHint(i) > header.sectionSize(i))
            return QStringLiteral("needs %1, has %2: %3")
                .arg(header.sectionSizeHint(i))
                .arg(header.sectionSize(i))
                .arg(text);
    }
    return {};
}

QString menuBarLack(const QMenuBar &bar)
{
    for (const QAction *action : bar.actions()) {
        const QRect place = bar.actionGeometry(const_cast<QAction *>(action));
        if (action->isVisible() && (place.isEmpty() || !bar.rect().contains(place)))
            return QStringLiteral("no room for %1").arg(action->text());
    }
    return {};
}

QString sideBarLack(const window::SideBar &bar)
{
    constexpr int besidePx = 44;
    for (int i = 0; i < bar.count(); ++i) {
        const QListWidgetItem *item = bar.item(i);
        const int needed = advance(bar, item->text()) + besidePx;
        const int room = bar.visualItemRect(item).width();
        if (item->flags() & Qt::ItemIsEnabled && needed > room)
            return QStringLiteral("needs %1, has %2: %3").arg(needed).arg(room).arg(item->text());
    }
    return {};
}

QString tabLack(const QTabBar &bar)
{
    for (int i = 0; i < bar.count(); ++i)
        if (!bar.rect().contains(bar.tabRect(i)) || advance(bar, plain(bar.tabText(i))) > bar.tabRect(i).width())
            return QStringLiteral("no room for %1").arg(bar.tabText(i));
    return {};
}

QString fieldLack(const QLineEdit &field)
{
    constexpr int aroundPx = 6;
    if (!field.text().isEmpty() || field.placeholderText().isEmpty())
        return {};
    return lack(field, field.placeholderText(), advance(field, field.placeholderText()) + aroundPx,
                field.contentsRect().width());
}

QString textLack(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return labelLack(*label);
    if (qobject_cast<const QPushButton *>(&widget) || qobject_cast<const QCheckBox *>(&widget) ||
        qobject_cast<const QRadioButton *>(&widget))
        return buttonLack(static_cast<const QAbstractButton &>(widget));
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return comboLack(*box) + fixedComboLack(*box);
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
        return headerLack(*header);
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget))
        return menuBarLack(*bar);
    if (const auto *bar = qobject_cast<const window::SideBar *>(&widget))
        return sideBarLack(*bar);
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget))
        return tabLack(*bar);
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return fieldLack(*field);
    if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(&widget))
        return spinLack(*spin);
    if (qobject_cast<const window::SegmentedControl *>(&widget))
        return lack(widget, QStringLiteral("segments"), widget.minimumSizeHint().width(), widget.width());
    return {};
}

/** Whether the layouts of this program arrange the children, not the toolkit itself. */
bool isContainer(const QWidget &widget)
{
    return widget.layout() != nullptr && !qobject_cast<const QStackedWidget *>(&widget) &&
           !qobject_cast<const QComboBox *>(&widget);
}

/** Where a widget sticks out of one of those around it; what is below the end of a scrolled area is not cut off. */
QString sticksOut(const QWidget &widget, const QWidget &window)
{
    bool scrolled = false;
    for (const QWidget *around = widget.parentWidget(); around && &widget != &window; around = around->parentWidget()) {
        const QRect place(widget.mapTo(around, QPoint(0, 0)), widget.size());
        const auto *area = qobject_cast<const QScrollArea *>(around->parentWidget());
        scrolled = scrolled || (area && area->viewport() == around);
        const bool inside =
            scrolled ? place.left() >= 0 && place.right() <= around->rect().right() : around->rect().contains(place);
        if (!inside)
            return QStringLiteral("sticks out of %1 by %2")
                .arg(around->objectName())
                .arg(scrolled ? place.right() - around->rect().right()
                              : qMax(place.right() - around->rect().right(), place.bottom() - around->rect().bottom()));
        if (around == &window)
            break;
    }
    return {};
}

QStringList overlaps(const QWidget &parent)
{
    QStringList found;
    QWidgetList children;
    for (int i = 0; i < parent.layout()->count(); ++i) {
        QWidget *child = parent.layout()->itemAt(i)->widget();
        if (child && child->isVisible() && !child->size().isEmpty())
            children.append(child);
    }
    for (int i = 0; i < children.size(); ++i)
        for (int j = i + 1; j < children.size(); ++j)
            if (children.at(i)->geometry().intersects(children.at(j)->geometry()))
                found.append(children.at(i)->objectName() + QStringLiteral(" lies on ") + children.at(j)->objectName());
    return found;
}

QString nameOf(const QWidget &widget)
{
    const QWidget *named = &widget;
    while (named->objectName().isEmpty() && named->parentWidget())
        named = named->parentWidget();
    return named->objectName() + QStringLiteral(" (") + QString::fromLatin1(widget.metaObject()->className()) +
           QStringLiteral(") ");
}

/** Parts that the toolkit positions itself, including those of its file panel. */
bool isInner(const QWidget &widget)
{
    const auto *panel = qobject_cast<const QFileDialog *>(widget.window());
    const auto *parts = panel ? panel->findChild<QSplitter *>(QStringLiteral("splitter")) : nullptr;
    return (parts && parts->isAncestorOf(&widget)) || widget.objectName().startsWith(QStringLiteral("qt_")) ||
           qobject_cast<const QScrollBar *>(&widget) || qobject_cast<const QSplitterHandle *>(&widget) ||
           (qobject_cast<const QAbstractScrollArea *>(widget.parentWidget()) &&
            !qobject_cast<const QHeaderView *>(&widget));
}

} // namespace

QStringList misfits(const QWidget &window)
{
    QStringList found;
    QWidgetList all = window.findChildren<QWidget *>();
    all.prepend(const_cast<QWidget *>(&window));
    for (const QWidget *widget : all) {
        if (!widget->isVisible() || widget->window() != &window || isInner(*widget))
            continue;
        for (const QString &each : {textLack(*widget), sticksOut(*widget, window)})
            if (!each.isEmpty())
                found.append(nameOf(*widget) + each);
        if (isContainer(*widget))
            found += overlaps(*widget);
        const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
        if (area && area->horizontalScrollBar()->maximum() > 0)
            found.append(nameOf(*area) + QStringLiteral("must be scrolled sideways"));
    }
    return found;
}
