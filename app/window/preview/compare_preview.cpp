#include "app/window/preview/compare_preview.h"

#include "app/window/look/theme.h"
#include "app/window/preview/preview_host.h"
#include "app/window/preview/preview_paint.h"

#include "jobs/names.h"
#include "platform/foundation/memory_left.h"
#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

namespace window {

namespace {
constexpr int marginPx = 32;
constexpr int settleMs = 90;
constexpr int nextPictureMs = 15;

QString reasonText(const QString &reason)
{
    return reason.isEmpty() ? reason : QStringLiteral(": ") + reason;
}

} // namespace

ComparePreview::ComparePreview(QWidget *parent)
    : QWidget(parent), m_ahead([this](QSize pixels) { return decodedSize(pixels); }, this),
      m_mainHost(std::make_unique<PreviewHost>(*this)), m_cropHost(std::make_unique<PreviewHost>(*this)),
      m_cropFrame(new CropFrameEditor(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_mainView.attach(m_mainHost.get());
    m_cropView.attach(m_cropHost.get());
    m_mainView.awakeFromNib();
    m_cropView.awakeFromNib();
    connect(m_cropFrame, &CropFrameEditor::edited, this, [this](const QRect &frame) {
        Q_EMIT cropFrameEdited(frame.x(), frame.y(), frame.width(), frame.height());
    });
    connect(&m_estimate, &ResultEstimate::estimated, this, &ComparePreview::resultEstimated);
    m_settled.setSingleShot(true);
    m_asked.setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, &ComparePreview::load);
    connect(&m_asked, &QTimer::timeout, this, &ComparePreview::render);
}

ComparePreview::~ComparePreview() = default;

void ComparePreview::setFill(bool fill)
{
    m_fill = fill;
    m_settled.start(0);
}

void ComparePreview::setShowsResult(bool shows)
{
    m_showsResult = shows;
    m_settled.start(0);
}

void ComparePreview::showPicture(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    m_isStale = true;
    m_settled.start(m_ahead.has(m_path) ? 0 : nextPictureMs);
}

void ComparePreview::reload()
{
    m_ahead.forget(m_path);
    m_isStale = true;
    m_settled.start(nextPictureMs);
}

void ComparePreview::showResult(const QVariantMap &result)
{
    const platform::Fields fields(result, QStringLiteral("result"),
                                  {QStringLiteral("deeds"), QStringLiteral("width"), QStringLiteral("height"),
                                   QStringLiteral("type"), QStringLiteral("quality"), QStringLiteral("message"),
                                   QStringLiteral("bytes")});
    const auto deeds = jobs::deedsFrom(fields.list("deeds"));
    if (!deeds)
        throw platform::Raised::typeError(deeds.error().message);
    const QSize size(fields.whole("width", 0), fields.whole("height", 0));
    m_wanted = {*deeds, size, fields.text("message"), fields.text("type"), fields.text("quality")};
    m_estimate.forget();
    m_asked.start(0);
}

void ComparePreview::setProblem(const QString &problem)
{
    m_givenProblem = problem;
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

void ComparePreview::setNotes(const QString &notes)
{
    m_notes = notes;
    describe();
    update();
}

void ComparePreview::describe()
{
    setAccessibleDescription(m_originalTitle + QStringLiteral(": ") + m_originalCaption + QStringLiteral(". ") +
                             m_resultTitle + QStringLiteral(": ") + m_resultCaption + QStringLiteral(". ") + m_notes);
}

void ComparePreview::coverParent()
{
    parentWidget()->installEventFilter(this);
    setGeometry(parentWidget()->rect());
}

bool ComparePreview::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
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
    const QSizeF room = QSizeF(area.size()) - QSizeF(2 * marginPx, 2 * (badgeMarginPx + 2 * badgeStepPx));
    const QSizeF least = room.expandedTo({1, 1});
    return own.width() <= least.width() && own.height() <= least.height() ? own
                                                                          : own.scaled(least, Qt::KeepAspectRatio);
}

QRectF ComparePreview::pictureRect(QSize pixels, const QRect &area) const
{
    const qreal ratio = devicePixelRatioF();
    const QSizeF shown = QSizeF(wholePixels(shownSize(pixels, area) * ratio)) / ratio;
    const QPointF middle = QRectF(area).center();
    return {QPointF(qRound((middle.x() - shown.width() / 2) * ratio) / ratio,
                    qRound((middle.y() - shown.height() / 2) * ratio) / ratio),
            shown};
}

void ComparePreview::openPicture()
{
    m_isStale = false;
    m_problem.clear();
    const platform::Picture opened = m_path.isEmpty() ? platform::Picture() : m_ahead.picture(m_path);
    m_picture = opened.withSize(QSizeF(opened.pixelSize()));
    if (m_picture.isNull() && !m_path.isEmpty())
        m_problem = tr("Not a readable picture");
}

// What is decoded for the original: no more than can be seen.
QSize ComparePreview::decodedSize(QSize pixels) const
{
    return wholePixels(pictureRect(pixels, originalArea()).size() * devicePixelRatioF()).boundedTo(pixels);
}

void ComparePreview::load()
{
    if (m_isStale)
        openPicture();
    m_base = {};
    if (!m_picture.isNull()) {
        platform::takeMemoryRefusal();
        m_base = m_picture.scaledTo(decodedSize(m_picture.pixelSize())).value_or(platform::Bitmap());
        if (m_base.isNull())
            m_problem = tr("This picture cannot be shown") + reasonText(platform::takeMemoryRefusal());
    }
    m_estimate.setOriginal(m_path, {m_base, m_picture.pixelSize()});
    fitViews();
    placeCropFrame();
    render();
    if (!m_base.isNull())
        Q_EMIT pictureShown();
}

/** Gives the view of the original its place, and the picture after that, so that it is fitted once. */
void ComparePreview::fitViews()
{
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = m_picture.pixelSize();
    const QSizeF place = m_fill ? QSizeF(originalArea().size()) : pictureRect(pixels, originalArea()).size();
    m_mainHost->content = m_base.isNull() ? QSizeF(0, 0) : QSizeF(wholePixels(place * ratio));
    m_mainView.setProperty("pImageOrig", QVariant::fromValue(platform::Picture()));
    m_mainView.setProperty("pImageToFit", !m_fill);
    m_mainView.setFrame(QRectF(QPointF(0, 0), m_mainHost->content));
    m_mainView.setProperty("pImageOrig", QVariant::fromValue(m_base.isNull() ? platform::Picture() : m_picture));
    m_mainView.setImage(m_picture);
}

void ComparePreview::render()
{
    m_asked.stop();
    m_estimate.forget();
    m_result = {};
    m_resultImage = {};
    m_scaledResult = {};
    m_resultProblem = m_wanted.message;
    update();
    if (m_base.isNull() || !m_showsResult || m_wanted.size.isEmpty())
        return;
    const auto made = jobs::done(m_wanted.deeds, {m_base, m_picture.pixelSize()}, jobs::factsOfPicture(m_path, 0));
    if (!made) {
        m_resultProblem = made.error().message;
        return;
    }
    m_result = *made;
    m_resultImage = m_result.bitmap.toScreenImage();
    if (m_cropFrame->isShown())
        showCropped();
    m_estimate.ask({m_result.bitmap, m_wanted.size}, m_wanted.type, m_wanted.qualityCode);
    Q_EMIT resultShown();
}

const QPixmap &ComparePreview::scaledResult(QSize devicePixels) const
{
    if (m_scaledResult.size() != devicePixels) {
        const QImage scaled = m_resultImage.size() == devicePixels
                                  ? m_resultImage
                                  : m_resultImage.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaledResult = QPixmap::fromImage(scaled);
    }
    m_scaledResult.setDevicePixelRatio(devicePixelRatioF());
    return m_scaledResult;
}

void ComparePreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintOriginal(painter);
    if (m_showsResult)
        paintResult(painter);
}

void ComparePreview::paintOriginal(QPainter &painter) const
{
    const QRect area = originalArea();
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, Theme::color(QStringLiteral("surround")));
    if (m_base.isNull()) {
        paintMessage(painter, area, m_givenProblem.isEmpty() ? m_problem : m_givenProblem);
    } else {
        const QRectF place = m_fill ? QRectF(area) : pictureRect(m_picture.pixelSize(), area);
        paintShadow(painter, place);
        if (m_base.hasAlpha())
            paintCheckerboard(painter, place);
        painter.save();
        painter.translate(place.topLeft());
        painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
        m_mainView.draw(painter, views::Medium::Screen);
        painter.restore();
    }
    paintBadge(painter, area, Qt::TopLeftCorner, 0, m_originalTitle,
               hasFocus() ? BadgeLook::Focused : BadgeLook::Plain);
    paintBadge(painter, area, Qt::BottomRightCorner, 0, m_originalCaption);
    painter.restore();
}

void ComparePreview::paintResult(QPainter &painter) const
{
    const QRect area = resultArea();
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, Theme::color(QStringLiteral("surroundResult")));
    if (m_resultImage.isNull()) {
        paintMessage(painter, area, m_problem.isEmpty() ? m_resultProblem : QString());
    } else if (m_cropFrame->isShown()) {
        paintCropped(painter);
    } else {
        const QRectF place = pictureRect(m_wanted.size, area);
        paintShadow(painter, place);
        if (m_resultImage.hasAlphaChannel())
            paintCheckerboard(painter, place);
        painter.drawPixmap(place.topLeft(), scaledResult(wholePixels(place.size() * devicePixelRatioF())));
    }
    paintBadge(painter, area, Qt::TopLeftCorner, 0, m_resultTitle);
    paintBadge(painter, area, Qt::BottomRightCorner, m_notes.isEmpty() ? 0 : 1, m_resultCaption);
    paintBadge(painter, area, Qt::BottomRightCorner, 0, m_notes);
    painter.restore();
}

void ComparePreview::paintMessage(QPainter &painter, const QRect &area, const QString &message) const
{
    painter.setPen(Theme::color(QStringLiteral("badgeText")));
    painter.drawText(area.adjusted(marginPx, 0, -marginPx, 0), Qt::AlignCenter | Qt::TextWordWrap, message);
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
