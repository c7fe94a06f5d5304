#include "app/window/preview/compare_preview.h"

#include "app/window/look/screen_look.h"
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

/** The height left for a picture beside the lines of text. */
QSizeF roomFor(const QRect &area)
{
    const QSizeF room = QSizeF(area.size()) - QSizeF(2 * marginPx, 2 * (badgeMarginPx + 2 * badgeStepPx));
    return room.expandedTo({1, 1});
}

} // namespace

QString ComparePreview::cannotBeShown(const QString &reason)
{
    const QString why = reason.isEmpty() ? reason : QStringLiteral(": ") + reason;
    return tr("This picture cannot be shown") + why;
}

QString ComparePreview::problemWith(const ShownPicture &picture)
{
    if (picture.isReaderGone || picture.lacksMemory)
        return cannotBeShown(picture.problem);
    return picture.full.isEmpty() ? tr("Not a readable picture") : cannotBeShown({});
}

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
    for (QTimer *timer : {&m_settled, &m_moved, &m_asked, &m_late, &m_still})
        timer->setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, &ComparePreview::load);
    connect(&m_moved, &QTimer::timeout, this, &ComparePreview::askForParts);
    ScreenLook::ofProcess().lookAgain();
    connect(&ScreenLook::ofProcess(), &ScreenLook::changed, &m_settled, [this] { m_settled.start(0); });
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

void ComparePreview::setSingle(bool isSingle)
{
    m_isSingle = isSingle;
    m_settled.start(0);
}

void ComparePreview::prepare(const QStringList &paths)
{
    m_ahead.want(paths, m_zoom.isOn() ? QList<ShownRoom>{room(), partRoom()} : QList<ShownRoom>{room()});
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
    setAccessibleDescription(titled(m_originalTitle, m_zoom.scale()) + QStringLiteral(": ") + m_originalCaption +
                             QStringLiteral(". ") + m_resultTitle + QStringLiteral(": ") + m_resultCaption +
                             QStringLiteral(". ") + m_notes);
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
    return m_showsResult && !m_isSingle ? QRect(0, 0, width() / 2, height()) : rect();
}

QRect ComparePreview::resultArea() const
{
    return m_isSingle ? rect() : QRect(width() / 2, 0, width() - width() / 2, height());
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
    if (m_shownPath == m_path && !m_base.isNull()) { // of another size, until the right one arrives
        fitViews();
        placeCropFrame();
        update();
    }
    m_ahead.get(m_path, room(), [this](const ShownPicture &picture) { takePicture(picture); });
}

void ComparePreview::takePicture(const ShownPicture &picture)
{
    m_late.stop();
    if (m_shownPath != m_path)
        m_part = {};
    m_partProblem.clear();
    m_shownPath = m_path;
    m_baseImage = ScreenLook::ofProcess().shown(picture.image, screen());
    m_problem.clear();
    m_full = picture.image.isNull() ? QSize() : picture.full;
    m_base = platform::Bitmap::fromImage(m_baseImage);
    m_screen = screen();
    m_picture = m_base.isNull() ? platform::Picture() : platform::Picture(m_base, QSizeF(m_full));
    if (m_base.isNull() && !m_path.isEmpty())
        m_problem = problemWith(picture);
    fitViews();
    placeCropFrame();
    render();
    if (!m_base.isNull()) {
        Q_EMIT pictureShown();
        askForPart();
    }
}

/** A picture that takes long leaves an empty area rather than another picture. */
void ComparePreview::clearLate()
{
    if (m_shownPath == m_path)
        return;
    m_full = {};
    m_base = {};
    m_picture = {};
    m_part = {};
    m_problem.clear();
    m_resultImage = {};
    m_resultPart = {};
    m_resultProblem.clear();
    fitViews();
    placeCropFrame();
    update();
}

/** Sets the geometry before the picture, so that the view scales it only once. */
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

void ComparePreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_settled.start(settleMs);
}

void ComparePreview::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ComparePreview::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    flip(false);
    update();
}

} // namespace window
