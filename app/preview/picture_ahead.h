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

/** As much of a picture as can be seen, made by a worker. */
struct ShownPicture
{
    QString problem;           ///< in words, where there is none
    QSize full;                ///< pixels of the upright picture
    QImage image;              ///< for the screen
    bool isReaderGone = false; ///< whoever read it crashed, or was ended
    bool lacksMemory = false;
    QRectF part = {0, 0, 1, 1}; ///< what of the picture the image is, from 0 to 1
};

/** How large pictures are shown, in pixels of the screen, and what of them. */
struct ShownRoom
{
    QSizeF size;
    bool isCovered = false;
    double scale = 0;    ///< pixels of the screen for one of the picture; 0: as many as the size allows
    QPointF center = {}; ///< with a scale: what lies in the middle, from 0 to 1
    bool isPart() const { return scale > 0; }
    bool operator==(const ShownRoom &other) const = default;
};

/** The same for whoever makes the picture. */
QVariantMap valuesOf(const ShownRoom &room);

/** The part of a picture that was made, from 0 to 1; nothing where it is all of it. */
std::optional<QRectF> partIn(const jobs::ReadResult &result);

/**
 * Pictures on their way to the screen: the one that is to be shown now, and those that will be shown soon or were a moment ago. Workers
 * make them. A few are kept as long as pictures are asked for, else the last one only. A file that changed meanwhile is read again.
 */
class PictureAhead : public QObject
{
    Q_OBJECT

public:
    explicit PictureAhead(QObject *parent) : QObject(parent) {}

    /** The pictures that will probably be asked for, the most wanted first, each in all these rooms. */
    void want(const QStringList &paths, const QList<ShownRoom> &rooms);
    bool has(const QString &path, const ShownRoom &room) const { return find(path, room) != nullptr; }
    /** Lets go of a picture whose file was written. */
    void forget(const QString &path);
    /** Calls @p take with it: at once where it is there, else out of the event loop. Nobody waits for what was asked here before. */
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
    Wanted m_preparing; ///< with an empty path where none is
    jobs::Reader::Number m_preparingNumber = 0;
    Take m_takePrepared;     ///< it is asked for meanwhile
    std::deque<Kept> m_kept; ///< the one that was used last at the end
    jobs::Reader m_now;
    jobs::Reader m_soon;
};

} // namespace window
