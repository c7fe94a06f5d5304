#include "app/window/controls/combo_box.h"

#include <QAbstractItemView>
#include <QEnterEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace window {

namespace {
constexpr int besideEntryPx = 34;
constexpr int mostPx = 560;
} // namespace

// Entries may come after the box was shown.
ComboBox::ComboBox(QWidget *parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToContents);
}

// The toolkit keeps this size when the entries change.
QSize ComboBox::minimumSizeHint() const
{
    return sizeAdjustPolicy() == AdjustToContents ? sizeHint() : withBearing(QComboBox::minimumSizeHint());
}

int ComboBox::roomForText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int icon = option.currentIcon.isNull() ? 0 : iconSize().width() + 4;
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() - icon;
}

int ComboBox::widthOf(int entry) const
{
    return fontMetrics().horizontalAdvance(itemText(entry));
}

void ComboBox::showPopup()
{
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, widthOf(i) + (itemIcon(i).isNull() ? 0 : iconSize().width() + 4));
    view()->setMinimumWidth(qMin(widest + besideEntryPx, mostPx));
    QComboBox::showPopup();
}

void ComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, roomForText());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ComboBox::enterEvent(QEnterEvent *event)
{
    if (toolTip().isEmpty() || toolTip() == m_tip) {
        m_tip = currentIndex() >= 0 && widthOf(currentIndex()) > roomForText() ? currentText() : QString();
        setToolTip(m_tip);
    }
    QComboBox::enterEvent(event);
}

} // namespace window
