#include "app/window/controls/combo_box.h"

#include <QAbstractItemView>
#include <QEnterEvent>
#include <QLabel>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include <algorithm>

namespace window {

namespace {
constexpr int besideEntryPx = 34;
constexpr int mostPx = 560;
} // namespace

// Entries may be added after the box was shown.
ComboBox::ComboBox(QWidget *parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToContents);
}

QSize ComboBox::sizeHint() const
{
    QSize size = withBearing(QComboBox::sizeHint());
    const int most = property("mostCharacters").toInt();
    if (most > 0)
        size.setWidth(qMin(size.width(), most * fontMetrics().averageCharWidth() + besideEntryPx));
    return size;
}

// The toolkit does not update this size when the entries change.
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
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, roomForText());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

// To screen readers the toolkit says what is chosen in a box, and leaves it to a label to say what the box is for.
void ComboBox::showEvent(QShowEvent *event)
{
    const QList<QLabel *> labels = parentWidget()
                                       ? parentWidget()->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)
                                       : QList<QLabel *>();
    const bool isNamed = std::any_of(labels.cbegin(), labels.cend(), [this](const QLabel *label) {
        return label != m_label && label->buddy() == this;
    });
    if (!m_label && !isNamed && parentWidget() && !accessibleName().isEmpty()) {
        m_label = new QLabel(parentWidget());
        m_label->setBuddy(this);
        m_label->hide();
    }
    if (m_label)
        m_label->setText(accessibleName());
    QComboBox::showEvent(event);
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
