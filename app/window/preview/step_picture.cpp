#include "app/window/preview/step_picture.h"

#include "app/window/look/screen_look.h"

#include "jobs/reading/preview_edits.h"

#include <QPainter>

namespace window {

namespace {

constexpr int settlesMs = 200;

/** The files that edits name; none if the edits are invalid. */
QStringList filesNamedBy(const QVariantList &edits)
{
    image::RecipeFiles named = {QStringLiteral("/")};
    named.areOpened = false;
    const auto read = jobs::editsFrom(edits, named);
    return read ? jobs::filesOf(*read) : QStringList();
}

} // namespace

StepPicture::StepPicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_settled.setSingleShot(true);
    m_settled.setInterval(settlesMs);
    connect(&m_settled, &QTimer::timeout, this, &StepPicture::ask);
}

void StepPicture::showEdits(const QString &path, const QVariantList &edits)
{
    if (path == m_path && edits == m_edits)
        return;
    m_path = path;
    m_edits = edits;
    m_isOld = true;
    m_reader.drop();
    if (path.isEmpty()) {
        m_settled.stop();
        m_image = QImage();
        update();
    } else if (isVisible()) {
        m_settled.start();
    }
}

/** It is not visible before. */
void StepPicture::showEvent(QShowEvent *event)
{
    if (m_isOld && !m_path.isEmpty())
        m_settled.start();
    QWidget::showEvent(event);
}

void StepPicture::ask()
{
    m_isOld = false;
    jobs::ReadRequest request = {jobs::Reading::Result, m_path, {}, filesNamedBy(m_edits)};
    request.values = {{QStringLiteral("roomWidth"), width() * devicePixelRatioF()},
                      {QStringLiteral("roomHeight"), height() * devicePixelRatioF()},
                      {QStringLiteral("covers"), false},
                      {QStringLiteral("edits"), m_edits}};
    m_reader.ask(request, jobs::Urgency::Later, [this](const jobs::ReadResult &result) {
        m_image = result.isGood() ? result.image : QImage();
        update();
    });
}

void StepPicture::paintEvent(QPaintEvent *)
{
    if (m_image.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF size = QSizeF(m_image.size()).scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
    const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 2);
    painter.drawImage(QRectF(corner, size), ScreenLook::ofProcess().shown(m_image, screen()));
}

} // namespace window
