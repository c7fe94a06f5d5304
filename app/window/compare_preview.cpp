#include "app/window/compare_preview.h"

#include "app/window/theme.h"

#include "platform/imageio/image_source.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace window {

namespace {
constexpr int marginPx = 32;
constexpr int badgeMarginPx = 12;
constexpr int badgeHeightPx = 22;
constexpr int settleMs = 90;
constexpr int nextPictureMs = 15;

// A few widening, fainter frames: a soft shadow that costs nothing.
void paintShadow(QPainter &painter, const QRectF &picture)
{
    for (int ring = 1; ring <= 7; ++ring) {
        painter.setPen(QPen(QColor(0, 0, 0, 46 - 6 * ring), 1));
        painter.drawRoundedRect(picture.adjusted(-ring + 0.5, -ring + 2.5, ring - 0.5, ring + 1.5), ring, ring);
    }
}
} // namespace

ComparePreview::ComparePreview(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_settled.setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, &ComparePreview::load);
}

void ComparePreview::setFill(bool fill)
{
    m_fill = fill;
    m_settled.start(0);
    update();
}

void ComparePreview::setShowsResult(bool shows)
{
    m_showsResult = shows;
    update();
}

void ComparePreview::showPicture(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    reload();
}

void ComparePreview::reload()
{
    m_pixels = {};
    m_settled.start(nextPictureMs);
}

void ComparePreview::showResult(double left, double top, double width, double height, int pixelsWide, int pixelsHigh,
                                const QString &message)
{
    m_part = QRectF(left, top, width, height);
    m_resultPixels = QSize(pixelsWide, pixelsHigh);
    m_resultMessage = message;
    m_scaledResult = {};
    update();
}

void ComparePreview::setTitles(const QString &original, const QString &result)
{
    m_originalTitle = original;
    m_resultTitle = result;
    update();
}

void ComparePreview::setCaptions(const QString &original, const QString &result)
{
    m_originalCaption = original;
    m_resultCaption = result;
    describe();
    update();
}

void ComparePreview::describe()
{
    setAccessibleDescription(m_originalTitle + QStringLiteral(": ") + m_originalCaption + QStringLiteral(". ") +
                             m_resultTitle + QStringLiteral(": ") + m_resultCaption);
}

QRect ComparePreview::originalArea() const
{
    return m_showsResult ? QRect(0, 0, width() / 2, height()) : rect();
}

QRect ComparePreview::resultArea() const
{
    return QRect(width() / 2, 0, width() - width() / 2, height());
}

// In logical pixels; one pixel of the picture is at most one pixel of the screen with "fit".
QSizeF ComparePreview::shownSize(QSize pixels, const QRect &area) const
{
    const QSizeF own = QSizeF(pixels) / devicePixelRatioF();
    if (own.isEmpty())
        return {};
    if (m_fill)
        return own.scaled(area.size(), Qt::KeepAspectRatioByExpanding);
    const QSizeF room = QSizeF(area.size()) - QSizeF(2 * marginPx, 2 * marginPx + badgeHeightPx);
    return own.width() <= room.width() && own.height() <= room.height() ? own : own.scaled(room, Qt::KeepAspectRatio);
}

void ComparePreview::load()
{
    m_problem.clear();
    if (m_path.isEmpty()) {
        m_image = {};
        m_pixels = {};
        return update();
    }
    const auto source = platform::ImageSource::open(m_path);
    if (!source) {
        m_image = {};
        m_pixels = {};
        m_problem = tr("Not a readable picture");
        return update();
    }
    m_pixels = source->uprightSize();
    const QSizeF shown = shownSize(m_pixels, originalArea()) * devicePixelRatioF();
    const QSize wanted = QSize(qCeil(shown.width()), qCeil(shown.height())).boundedTo(m_pixels).expandedTo({1, 1});
    const auto bitmap = source->decodeScaled(wanted);
    m_image = bitmap ? bitmap->toScreenImage() : QImage();
    if (m_image.isNull())
        m_problem = tr("This picture cannot be shown");
    m_scaledOriginal = {};
    m_scaledResult = {};
    update();
    Q_EMIT pictureShown();
}

QPixmap ComparePreview::scaledPart(const QRectF &part, QSize devicePixels) const
{
    if (m_image.isNull() || devicePixels.isEmpty())
        return {};
    const QRectF inImage(part.x() * m_image.width(), part.y() * m_image.height(), part.width() * m_image.width(),
                         part.height() * m_image.height());
    const QImage piece = inImage.toAlignedRect() == m_image.rect() ? m_image : m_image.copy(inImage.toAlignedRect());
    if (piece.size() == devicePixels)
        return QPixmap::fromImage(piece);
    return QPixmap::fromImage(piece.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void ComparePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Half original{originalArea(), m_pixels, {0, 0, 1, 1}, m_originalTitle, m_originalCaption, m_problem};
    paintHalf(painter, original, Theme::color(QStringLiteral("surround")), m_scaledOriginal);
    if (!m_showsResult)
        return;
    const Half result{resultArea(),    m_problem.isEmpty() ? m_resultPixels : QSize(),
                      m_part,          m_resultTitle,
                      m_resultCaption, m_resultMessage};
    paintHalf(painter, result, Theme::color(QStringLiteral("surroundResult")), m_scaledResult);
}

void ComparePreview::paintHalf(QPainter &painter, const Half &half, const QColor &surround, QPixmap &scaled) const
{
    painter.save();
    painter.setClipRect(half.area);
    painter.fillRect(half.area, surround);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSizeF shown = shownSize(half.pixels, half.area);
    if (!shown.isEmpty() && !m_image.isNull()) {
        const qreal ratio = devicePixelRatioF();
        const QSize device = (shown * ratio).toSize().expandedTo({1, 1});
        if (scaled.size() != device)
            scaled = scaledPart(half.part, device);
        scaled.setDevicePixelRatio(ratio);
        const QPointF middle = QRectF(half.area).center();
        const QPointF corner(qRound((middle.x() - shown.width() / 2) * ratio) / ratio,
                             qRound((middle.y() - shown.height() / 2) * ratio) / ratio);
        paintShadow(painter, QRectF(corner, shown));
        painter.drawPixmap(corner, scaled);
    } else if (!half.message.isEmpty()) {
        painter.setPen(Theme::color(QStringLiteral("badgeText")));
        painter.drawText(half.area.adjusted(marginPx, 0, -marginPx, 0), Qt::AlignCenter | Qt::TextWordWrap,
                         half.message);
    }
    paintBadge(painter, half.area, Qt::AlignLeft | Qt::AlignTop, half.title);
    paintBadge(painter, half.area, Qt::AlignRight | Qt::AlignBottom, half.caption);
    painter.restore();
}

void ComparePreview::paintBadge(QPainter &painter, const QRect &area, Qt::Alignment place, const QString &text) const
{
    if (text.isEmpty())
        return;
    QFont small = font();
    small.setPixelSize(11);
    const QFontMetrics metrics(small);
    const int room = area.width() - 2 * badgeMarginPx - 20;
    const QString fitting = metrics.elidedText(text, Qt::ElideRight, room);
    QRect badge(0, 0, metrics.horizontalAdvance(fitting) + 20, badgeHeightPx);
    if (place & Qt::AlignTop)
        badge.moveTopLeft(area.topLeft() + QPoint(badgeMarginPx, badgeMarginPx));
    else
        badge.moveBottomRight(area.bottomRight() - QPoint(badgeMarginPx, badgeMarginPx - 1));
    QColor ground = Theme::color(QStringLiteral("badge"));
    ground.setAlpha(210);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(badge, badgeHeightPx / 2.0, badgeHeightPx / 2.0);
    if (hasFocus() && place & Qt::AlignTop) {
        painter.setPen(QPen(Theme::color(QStringLiteral("accent")), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(badge, badgeHeightPx / 2.0, badgeHeightPx / 2.0);
    }
    painter.setPen(Theme::color(QStringLiteral("badgeText")));
    painter.setFont(small);
    painter.drawText(badge, Qt::AlignCenter, fitting);
}

void ComparePreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_settled.start(settleMs);
}

void ComparePreview::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        Q_EMIT stepRequested(-1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        Q_EMIT stepRequested(1);
        break;
    case Qt::Key_Space:
        Q_EMIT largePreviewRequested();
        break;
    case Qt::Key_Escape:
        Q_EMIT closeRequested();
        event->ignore();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ComparePreview::mousePressEvent(QMouseEvent *event)
{
    setFocus(Qt::MouseFocusReason);
    QWidget::mousePressEvent(event);
}

void ComparePreview::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT largePreviewRequested();
}

void ComparePreview::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ComparePreview::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace window
