#include "app/window/controls/chip_label.h"

#include "app/window/look/theme.h"

#include "platform/values/fields.h"

#include <QPainter>

namespace window {

namespace {
constexpr int paddingPx = 7;
constexpr int gapPx = 3;
constexpr int leadingPx = 5;
// Text widths are not whole pixels.
constexpr int roundingPx = 2;
} // namespace

ChipLabel::ChipLabel(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void ChipLabel::setParts(const QStringList &texts, const QVariantList &chips)
{
    const QList<bool> framed = platform::truths(chips, QStringLiteral("chips"));
    m_parts.clear();
    for (int i = 0; i < texts.size(); ++i)
        m_parts.append({texts.at(i), framed.value(i), {}});
    setAccessibleName(texts.join(QString()));
    updateGeometry();
    update();
}

int ChipLabel::lineHeight() const
{
    return fontMetrics().height() + leadingPx;
}

QList<ChipLabel::Part> ChipLabel::laidOut(int width) const
{
    QList<Part> placed;
    int x = 0;
    int y = 0;
    for (Part part : m_parts) {
        const int padding = part.isChip ? 2 * paddingPx : 0;
        const int wanted = fontMetrics().horizontalAdvance(part.text) + padding + roundingPx;
        if (x > 0 && x + wanted > width) {
            x = 0;
            y += lineHeight();
        }
        part.place = QRect(x, y, qMin(wanted, width), lineHeight());
        x += part.place.width() + gapPx;
        placed.append(part);
    }
    return placed;
}

int ChipLabel::heightForWidth(int width) const
{
    const QList<Part> placed = laidOut(width);
    return placed.isEmpty() ? lineHeight() : placed.constLast().place.bottom() + 1;
}

QSize ChipLabel::sizeHint() const
{
    return {180, heightForWidth(qMax(width(), 180))};
}

void ChipLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Part &part : laidOut(width())) {
        const int padding = part.isChip ? paddingPx : 0;
        if (part.isChip) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Theme::color(QStringLiteral("accentSoft")));
            painter.drawRoundedRect(QRectF(part.place).adjusted(0, 1, 0, -1), lineHeight() / 2.0 - 1,
                                    lineHeight() / 2.0 - 1);
        }
        const QString color = !isEnabled()  ? QStringLiteral("faint")
                              : part.isChip ? QStringLiteral("accentText")
                                            : QStringLiteral("muted");
        painter.setPen(Theme::color(color));
        const QRect place = part.place.adjusted(padding, 0, -padding, 0);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(part.text, Qt::ElideRight, place.width()));
    }
}

} // namespace window
