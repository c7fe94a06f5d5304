#include "app/window/preview/pages_view.h"

#include "app/printing/page_painter.h"
#include "app/reading/known_pictures.h"
#include "app/window/look/screen_look.h"

#include "jobs/names.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace window {

namespace {

constexpr double around = 18; // around the pages, and between two
/** Stands for a picture that has not been read yet. */
constexpr QSize unknownPixels(300, 200);
constexpr QRgb edgeColor = qRgb(136, 136, 140);
constexpr double edge = 0.5;
constexpr QRgb waitingColor = qRgb(222, 222, 222);

void drawShadow(QPainter &painter, const QRectF &page)
{
    constexpr int depth = 4;
    constexpr int darkest = 22;
    painter.setPen(Qt::NoPen);
    for (int i = depth; i > 0; --i) {
        painter.setBrush(QColor(0, 0, 0, darkest));
        painter.drawRoundedRect(page.adjusted(-i, -i + 1, i, i + 1), i, i);
    }
}

} // namespace

PagesView::PagesView(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

int PagesView::pages() const
{
    return jobs::pageCount(m_settings, int(m_paths.size()));
}

double PagesView::scale() const
{
    const double across = (width() - 2 * around) / m_settings.paper.width();
    const double down = (height() - 2 * around) / m_settings.paper.height();
    constexpr double least = 0.02;
    return std::max(least, std::min(across, down));
}

int PagesView::side() const
{
    const double page = m_settings.paper.width() * scale() + around;
    return std::clamp(int((width() - around) / page), 1, std::max(1, pages()));
}

void PagesView::setFirst(int page)
{
    const int wanted = std::clamp(page, 0, std::max(0, pages() - side()));
    if (wanted == m_first)
        return;
    m_first = wanted;
    m_isStale = true;
    update();
    Q_EMIT turned();
}

void PagesView::turnBy(int pages)
{
    setFirst(m_first + pages);
}

void PagesView::showPages(const QVariantMap &settings, const QStringList &paths)
{
    if (const auto read = jobs::pageSettingsFrom(settings))
        m_settings = *read;
    m_paths = paths;
    m_first = std::clamp(m_first, 0, std::max(0, pages() - side()));
    m_isStale = true;
    update();
    Q_EMIT turned();
}

jobs::PagePicture PagesView::pictureAt(int number) const
{
    const QString &path = m_paths[number];
    const auto known = m_known.constFind(path);
    jobs::PagePicture picture = known == m_known.constEnd() ? jobs::PagePicture() : *known;
    if (known == m_known.constEnd()) {
        picture.pixels = unknownPixels;
        picture.points = unknownPixels;
        picture.facts.path = path;
    }
    picture.facts.index = number;
    return picture;
}

jobs::PageJob PagesView::job() const
{
    return {m_settings, int(m_paths.size()), [this](int number) { return pictureAt(number); }};
}

/** Requests what is visible and not known yet. */
void PagesView::look()
{
    m_isStale = false;
    m_reader.drop();
    m_asked.clear();
    QHash<QString, Shown> kept;
    const int end = std::min(pages(), m_first + side());
    for (int page = m_first; page < end; ++page)
        for (const jobs::PicturePlace &place : jobs::contentOf(job(), page).pictures) {
            const QString &path = m_paths[place.picture];
            if (m_shown.contains(path))
                kept.insert(path, m_shown.value(path));
            askFor(place.picture, place.placed.place.size() * scale() * devicePixelRatioF());
        }
    m_shown = kept;
}

void PagesView::askFor(int number, QSizeF room)
{
    const QString path = m_paths[number];
    if (m_asked.contains(path))
        return;
    if (!m_known.contains(path)) {
        m_asked.insert(path);
        KnownPictures::ofProcess().ask(m_reader, path, jobs::Urgency::Now, [this, path](const KnownPicture &known) {
            jobs::PagePicture picture;
            picture.facts = jobs::withPictureFacts(jobs::factsOfFile(path, 0, true), known.facts);
            if (known.problem.isEmpty()) {
                picture.pixels = known.pixels;
                picture.points = known.points;
            }
            m_known.insert(path, picture);
            m_asked.remove(path);
            m_isStale = true;
            update();
        });
        return;
    }
    constexpr double enough = 0.8;
    const Shown &shown = m_shown[path];
    const double longest = std::max(room.width(), room.height());
    if (std::max(shown.room.width(), shown.room.height()) >= enough * longest)
        return;
    m_asked.insert(path);
    const QVariantMap values = {{QStringLiteral("roomWidth"), longest}, {QStringLiteral("roomHeight"), longest}};
    m_reader.ask({jobs::Reading::Rendition, path, values}, jobs::Urgency::Later,
                 [this, path, room](const jobs::ReadResult &result) {
                     m_shown.insert(path, {result.image, room});
                     m_asked.remove(path);
                     update();
                 });
}

void PagesView::drawPicture(QPainter &painter, const jobs::PicturePlace &place) const
{
    const QRectF &area = place.placed.place;
    const QImage own = m_shown.value(m_paths[place.picture]).image;
    if (own.isNull()) {
        painter.fillRect(area, QColor(waitingColor));
        return;
    }
    constexpr double toTheLeft = -90;
    const QImage image = place.placed.isTurned ? own.transformed(QTransform().rotate(toTheLeft)) : own;
    const QRectF &part = place.placed.part;
    const QRectF seen(part.x() * image.width(), part.y() * image.height(), part.width() * image.width(),
                      part.height() * image.height());
    painter.drawImage(area, ScreenLook::ofProcess().shown(image, screen()), seen);
}

void PagesView::paintEvent(QPaintEvent *)
{
    if (m_isStale)
        look();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QSizeF size = (m_settings.paper * scale()).toSize();
    const int shown = std::min(side(), pages() - m_first);
    double left = std::round((width() - shown * size.width() - (shown - 1) * around) / 2);
    const double top = std::round((height() - size.height()) / 2);
    for (int page = m_first; page < m_first + shown; ++page, left += std::round(size.width() + around)) {
        const QRectF area(QPointF(left, top), size);
        drawShadow(painter, area);
        painter.fillRect(area, m_settings.paperColor);
        painter.save();
        painter.setClipRect(area);
        painter.translate(area.topLeft());
        painter.scale(scale(), scale());
        app::drawPage(painter, jobs::contentOf(job(), page),
                      [this](QPainter &own, const jobs::PicturePlace &place) { drawPicture(own, place); });
        painter.restore();
        // Dark pages stand out from a dark window too.
        painter.setPen(QPen(QColor(edgeColor), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(area.adjusted(-edge, -edge, edge, edge));
    }
}

void PagesView::resizeEvent(QResizeEvent *event)
{
    m_first = std::clamp(m_first, 0, std::max(0, pages() - side()));
    m_isStale = true;
    QWidget::resizeEvent(event);
    Q_EMIT turned();
}

void PagesView::wheelEvent(QWheelEvent *event)
{
    constexpr int notch = 120;
    m_angle += event->angleDelta().y();
    turnBy(-m_angle / notch);
    m_angle %= notch;
    event->accept();
}

void PagesView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Down:
        turnBy(side());
        break;
    case Qt::Key_PageUp:
    case Qt::Key_Up:
        turnBy(-side());
        break;
    case Qt::Key_Home:
        setFirst(0);
        break;
    case Qt::Key_End:
        setFirst(pages());
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace window
