#include "app/window/look/icons.h"

#include "app/window/look/theme.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace window {

namespace {

QString &interfaceOfIcons()
{
    static QString folder;
    return folder;
}

/** Draws a vector file whose one colour is written as #000000. */
class LineIconEngine : public QIconEngine
{
public:
    explicit LineIconEngine(QByteArray content) : m_content(std::move(content)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const char *name = "icon";
        if (mode == QIcon::Disabled)
            name = "faint";
        else if (mode == QIcon::Selected)
            name = "onAccent";
        QByteArray tinted = m_content;
        tinted.replace("#000000", Theme::color(QString::fromLatin1(name)).name().toLatin1());
        QSvgRenderer(tinted).render(painter, rect);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new LineIconEngine(m_content); }
    QString key() const override { return QStringLiteral("QuorlinLineIcon"); }

private:
    QByteArray m_content;
};

} // namespace

void setIconsOf(const QString &interfaceFolder)
{
    interfaceOfIcons() = interfaceFolder;
}

QIcon icon(const QString &name)
{
    for (const QString &place : {QStringLiteral("/icons/%1.svg"), QStringLiteral("/actions/%1/%1.svg")}) {
        QFile file(interfaceOfIcons() + place.arg(name));
        if (file.open(QIODevice::ReadOnly))
            return QIcon(new LineIconEngine(file.readAll()));
    }
    return {};
}

} // namespace window
