#include "app/window/preview/compare_preview.h"

#include "app/window/look/theme.h"
#include "app/window/preview/preview_host.h"
#include "app/window/preview/preview_paint.h"

#include "jobs/names.h"
#include "jobs/reading/preview_edits.h"
#include "jobs/services/recipe_service.h"
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
constexpr int lateMs = 250;
/** What a setting costs is worked out when nobody changes it. */
constexpr int stillMs = 500;

QString reasonText(const QString &reason)
{
    return reason.isEmpty() ? reason : QStringLiteral(": ") + reason;
}

QString cannotBeShown(const QString &reason)
{
    return ComparePreview::tr("This picture cannot be shown") + reasonText(reason);
}

QString problemWith(const ShownPicture &picture)
{
    if (picture.isReaderGone || picture.lacksMemory)
        return cannotBeShown(picture.problem);
    return picture.full.isEmpty() ? ComparePreview::tr("Not a readable picture") : cannotBeShown({});
}

/** What is left for a picture beside the lines of text. */
QSizeF roomFor(const QRect &area)
{
    const QSizeF room = QSizeF(area.size()) - QSizeF(2 * marginPx, 2 * (badgeMarginPx + 2 * badgeStepPx));
    return room.expandedTo({1, 1});
}

} // namespace

ComparePreview::ComparePreview(QWidget *parent)
    : QWidget(parent), m_ahead(this), m_mainHost(std::make_unique<PreviewHost>(*this)),
      m_cropHost(std::make_unique<PreviewHost>(*this)), m_cropFrame(new CropFrameEditor(this))
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
    for (QTimer *timer : {&m_settled, &m_asked, &m_late, &m_still})
        timer->setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, &ComparePreview::load);
    connect(&m_asked, &QTimer::timeout, this, &ComparePreview::render);
    connect(&m_late, &QTimer::timeout, this, &ComparePreview::clearLate);
    connect(&m_still, &QTimer::timeout, this, &ComparePreview::askForBytes);
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
    m_resultReader.drop();
    m_bytesReader.drop();
    m_late.start(lateMs);
    m_settled.start(m_ahead.has(m_path, room()) ? 0 : nextPictureMs);
}

void ComparePreview::reload()
{
    m_ahead.forget(m_path);
    m_settled.start(nextPictureMs);
}

void ComparePreview::showResult(const QVariantMap &result)
{
    const platform::Fields fields(result, QStringLiteral("result"),
                                  {QStringLiteral("edits"), QStringLiteral("width"), QStringLiteral("height"),
                                   QStringLiteral("type"), QStringLiteral("quality"), QStringLiteral("message"),
                                   QStringLiteral("recipe"), QStringLiteral("bytes")});
    image::RecipeFiles named;
    named.folder = QStringLiteral("/");
    named.areOpened = false;
    const auto edits = jobs::editsFrom(fields.list("edits"), named);
    if (!edits)
        throw platform::Raised::typeError(edits.error().message);
    const QSize size(fields.whole("width", 0), fields.whole("height", 0));
    m_wanted = {fields.list("edits"),
                jobs::filesOf(*edits),
                result.value(QStringLiteral("recipe")).toMap(),
                size,
                fields.text("message"),
                fields.text("type"),
                fields.text("quality")};
    m_estimatedBytes = -1;
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
    const QSizeF least = roomFor(area);
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

ShownRoom ComparePreview::room() const
{
    const QRect area = originalArea();
    return {(m_fill ? QSizeF(area.size()) : roomFor(area)) * devicePixelRatioF(), m_fill};
}

void ComparePreview::load()
{
    if (m_path.isEmpty()) {
        takePicture({});
        return;
    }
    if (m_shownPath == m_path && !m_base.isNull()) { // of another size, until it is there as it should be
        fitViews();
        placeCropFrame();
        update();
    }
    m_ahead.get(m_path, room(), [this](const ShownPicture &picture) { takePicture(picture); });
}

void ComparePreview::takePicture(const ShownPicture &picture)
{
    m_late.stop();
    m_shownPath = m_path;
    m_problem.clear();
    m_full = picture.image.isNull() ? QSize() : picture.full;
    m_base = platform::Bitmap::fromImage(picture.image);
    m_picture = m_base.isNull() ? platform::Picture() : platform::Picture(m_base, QSizeF(m_full));
    if (m_base.isNull() && !m_path.isEmpty())
        m_problem = problemWith(picture);
    fitViews();
    placeCropFrame();
    render();
    if (!m_base.isNull())
        Q_EMIT pictureShown();
}

/** A picture that takes its time leaves an empty place and not another picture's. */
void ComparePreview::clearLate()
{
    if (m_shownPath == m_path)
        return;
    m_full = {};
    m_base = {};
    m_picture = {};
    m_problem.clear();
    m_resultImage = {};
    m_resultProblem.clear();
    fitViews();
    placeCropFrame();
    update();
}

/** Gives the view of the original its place, and the picture after that, so that it is fitted once. */
void ComparePreview::fitViews()
{
    const qreal ratio = devicePixelRatioF();
    const QSizeF place = m_fill ? QSizeF(originalArea().size()) : pictureRect(m_full, originalArea()).size();
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
    m_estimatedBytes = -1;
    m_bytesReader.drop();
    m_still.stop();
    const bool isShown = m_shownPath == m_path && !m_base.isNull() && m_showsResult && !m_wanted.size.isEmpty();
    if (!isShown) {
        m_resultReader.drop();
        m_resultImage = {};
        m_scaledResult = {};
        m_resultProblem = m_wanted.message;
        update();
        return;
    }
    askForResult();
    m_still.start(stillMs);
}

/** What is known of the file without looking into it, for tokens. */
QVariantMap ComparePreview::factValues() const
{
    const text::TokenFacts facts = jobs::factsOfFile(m_path, 0, true);
    return {{QStringLiteral("created"), facts.created},
            {QStringLiteral("changed"), facts.changed},
            {QStringLiteral("bytes"), facts.bytes}};
}

void ComparePreview::askForResult()
{
    m_isResultStale = m_resultReader.inWork() > 0;
    if (m_isResultStale)
        return;
    const ShownRoom shown = room();
    QVariantMap values = factValues();
    values.insert(QStringLiteral("roomWidth"), shown.size.width());
    values.insert(QStringLiteral("roomHeight"), shown.size.height());
    values.insert(QStringLiteral("covers"), shown.isCovered);
    values.insert(QStringLiteral("edits"), m_wanted.edits);
    m_resultReader.ask({jobs::Reading::Result, m_path, values, m_wanted.files}, jobs::Urgency::Now,
                       [this](const jobs::ReadResult &result) { takeResult(result); });
}

void ComparePreview::takeResult(const jobs::ReadResult &result)
{
    m_resultImage = result.image;
    m_resultFull = result.size();
    m_scaledResult = {};
    takeFoundFrame(result);
    m_resultProblem = result.isReaderGone ? cannotBeShown(result.problem) : result.problem;
    if (m_isResultStale) {
        askForResult();
    } else {
        if (!m_resultImage.isNull() && m_cropFrame->isShown())
            showCropped();
        if (!m_resultImage.isNull())
            Q_EMIT resultShown();
    }
    update();
}

void ComparePreview::askForBytes()
{
    QVariantMap values = factValues();
    QStringList files;
    if (!m_wanted.recipe.isEmpty()) {
        values.insert(QStringLiteral("recipe"), m_wanted.recipe);
        files = jobs::filesOf(m_wanted.recipe).value_or(QStringList());
    } else {
        values.insert(QStringLiteral("type"), m_wanted.type);
        values.insert(QStringLiteral("quality"), m_wanted.qualityCode);
    }
    m_bytesReader.ask({jobs::Reading::Bytes, m_path, values, files}, jobs::Urgency::Later,
                      [this](const jobs::ReadResult &result) {
                          const double bytes = result.value("bytes").toDouble();
                          if (!result.isGood() || !(bytes > 0))
                              return;
                          m_estimatedBytes = bytes;
                          Q_EMIT resultEstimated(bytes);
                      });
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
        const QRectF place = m_fill ? QRectF(area) : pictureRect(m_full, area);
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
