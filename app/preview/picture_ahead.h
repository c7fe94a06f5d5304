#pragma once

#include "jobs/reading/read_errand.h"

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

namespace window {

/** As much of a picture as is visible, made by a worker. */
struct ShownPicture
{
    QString problem;           ///< in words, if there is none
    QSize full;                ///< pixels of the upright picture
    QImage image;              ///< for the screen
    bool isReaderGone = false; ///< the process that read it crashed, or was stopped
    bool lacksMemory = false;
    QRectF part = {0, 0, 1, 1}; ///< the part of the picture that the image shows, from 0 to 1
};

/** How large pictures are shown, in pixels of the screen, and what of them. */
struct ShownRoom
{
    QSizeF size;
    bool isCovered = false;
    double scale = 0;    ///< screen pixels per picture pixel; 0: as many as the size allows
    QPointF center = {}; ///< with a scale: the point in the middle, from 0 to 1
    bool isPart() const { return scale > 0; }
    bool operator==(const ShownRoom &other) const = default;
};

/** The same for the worker that makes the picture. */
QVariantMap valuesOf(const ShownRoom &room);

/** The part of a picture that was made, from 0 to 1; nothing if it is the whole picture. */
std::optional<QRectF> partIn(const jobs::ReadResult &result);

/**
 * Pictures on their way to the screen: the one that is to be shown now, and those that will be shown soon or were a moment ago. Workers
 * make them. A few are cached while pictures are being requested, otherwise only the last one. A file that has changed
 * is read again.
 */
class PictureAhead : public QObject
{
    Q_OBJECT

public:
    explicit PictureAhead(QObject *parent) : QObject(parent) {}

    /** The pictures that will probably be requested next, most likely first, each in all these view sizes. */
    void want(const QStringList &paths, const QList<ShownRoom> &rooms);
    bool has(const QString &path, const ShownRoom &room) const { return find(path, room) != nullptr; }
    /** Forgets a picture whose file was written. */
    void forget(const QString &path);
    /**
     * Calls @p take with it: at once if it is cached, otherwise from the event loop. Earlier requests made here are
     * dropped.
     */
    void get(const QString &path, const ShownRoom &room, const std::function<void(const ShownPicture &picture)> &take);

private:
    struct Kept
    {
        QString path;
        QDateTime changed;
        qint64 bytes = 0;
        ShownRoom room;
        ShownPicture picture;
    };

    struct Wanted
    {
        QString path;
        ShownRoom room;
        bool operator==(const Wanted &other) const = default;
    };

    void prepareNext();
    void forgetLike(const QString &path, const ShownRoom &room);
    const Kept *find(const QString &path, const ShownRoom &room) const;
    using Take = std::function<void(const ShownPicture &picture)>;
    jobs::Reader::Number ask(jobs::Reader &reader, const QString &path, const ShownRoom &room, jobs::Urgency urgency,
                             const Take &take);
    bool isPreparing(const QString &path, const ShownRoom &room) const;
    void takePrepared(const ShownPicture &picture);

    size_t m_mostKept = 2;
    QList<Wanted> m_wanted;
    Wanted m_preparing; ///< with an empty path for none
    jobs::Reader::Number m_preparingNumber = 0;
    Take m_takePrepared;     ///< it has been requested since
    std::deque<Kept> m_kept; ///< the most recently used last
    jobs::Reader m_now;
    jobs::Reader m_soon;
};

} // namespace window
