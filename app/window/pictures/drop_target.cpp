#include "app/window/pictures/drop_target.h"

#include "app/window/look/icons.h"
#include "app/window/look/theme.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace window {

namespace {

QStringList localPaths(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls)
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

} // namespace

DropTarget::DropTarget(QWidget *window) : QWidget(window)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropTarget::setMessage(const QString &message)
{
    m_message = message;
    update();
}

bool DropTarget::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter: {
        auto *drag = static_cast<QDragEnterEvent *>(event);
        // What is dragged out of the list is in it already.
        if (drag->source() != nullptr || !m_open || localPaths(*drag->mimeData()).isEmpty())
            return false;
        setGeometry(parentWidget()->rect());
        raise();
        show();
        drag->setDropAction(Qt::CopyAction);
        drag->accept();
        return true;
    }
    case QEvent::DragMove:
        if (isVisible())
            static_cast<QDragMoveEvent *>(event)->accept();
        return isVisible();
    case QEvent::DragLeave:
        hide();
        return false;
    case QEvent::Drop: {
        auto *drop = static_cast<QDropEvent *>(event);
        hide();
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        Q_EMIT dropped(localPaths(*drop->mimeData()));
        return true;
    }
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void DropTarget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor veil = Theme::color(QStringLiteral("window"));
    veil.setAlpha(225);
    painter.fillRect(rect(), veil);
    const QColor accent = Theme::color(QStringLiteral("accent"));
    painter.setPen(QPen(accent, 2, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(18, 18, -18, -18), 14, 14);
    const QRect iconPlace(width() / 2 - 24, height() / 2 - 60, 48, 48);
    icon(QStringLiteral("add-pictures")).paint(&painter, iconPlace);
    QFont large = font();
    large.setPixelSize(Theme::scaled(19));
    large.setWeight(QFont::DemiBold);
    painter.setFont(large);
    painter.setPen(Theme::color(QStringLiteral("accentText")));
    painter.drawText(QRect(0, height() / 2, width(), 30), Qt::AlignCenter, m_message);
}

} // namespace window
