#include "app/window/controls/color_well.h"

#include "app/window/look/theme.h"

#include <QColorDialog>
#include <QPainter>
#include <QRegularExpression>

namespace window {

ColorWell::ColorWell(QWidget *parent) : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setToolTip(color());
    setAccessibleDescription(color());
    connect(this, &QPushButton::clicked, this, &ColorWell::openChooser);
}

void ColorWell::setColor(const QString &color)
{
    static const QRegularExpression form(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    if (form.match(color).hasMatch())
        take(QColor(color));
}

void ColorWell::take(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    setToolTip(color.name());
    setAccessibleDescription(color.name());
    update();
    Q_EMIT colorChanged(color.name());
}

void ColorWell::openChooser()
{
    const QColor before = m_color;
    // The chooser does not block the preview: a chosen colour is visible there at once, and Cancel restores the old
    // one.
    QColorDialog dialog(m_color, window());
    dialog.setObjectName(QStringLiteral("colorChooser"));
    dialog.setWindowTitle(accessibleName());
    connect(&dialog, &QColorDialog::currentColorChanged, this, [this](const QColor &color) {
        take(QColor(color.red(), color.green(), color.blue()));
        Q_EMIT chosen(m_color.name());
    });
    if (dialog.exec() == QDialog::Accepted || m_color == before)
        return;
    take(before);
    Q_EMIT chosen(m_color.name());
}

void ColorWell::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor shown = m_color;
    shown.setAlpha(isEnabled() ? 255 : 70);
    painter.setBrush(shown);
    painter.setPen(Theme::color(QStringLiteral("edge")));
    painter.drawRoundedRect(QRectF(rect()).adjusted(5.5, 5.5, -5.5, -5.5), 3, 3);
}

} // namespace window
