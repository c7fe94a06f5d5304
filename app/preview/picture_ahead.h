#pragma once

#include "platform/imageio/source/picture.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

namespace window {

/**
 * Pictures that will be shown soon, or were a moment ago, decoded for their size on the screen: from the event loop, one at a
 * time, while nothing else is to be done. A few are kept as long as pictures are asked for, else the last one only. A file that
 * changed meanwhile is read anew.
 */
class PictureAhead : public QObject
{
    Q_OBJECT

public:
    /** @param shownSize  says which size in pixels a picture of so many pixels will have on the screen */
    PictureAhead(std::function<QSize(QSize)> shownSize, QObject *parent);

    /** The pictures to decode, the most wanted first. */
    void want(const QStringList &paths);
    bool has(const QString &path) const;
    /** Lets go of a picture whose file was written. */
    void forget(const QString &path);
    /** The picture at @p path, its decoded pixels with it where they are there; a null picture if it cannot be opened. */
    platform::Picture picture(const QString &path);

private:
    struct Kept
    {
        QString path;
        QDateTime changed;
        qint64 bytes = 0;
        platform::Picture picture;
    };

    void decodeNext();
    const Kept *find(const QString &path) const;
    const platform::Picture &keep(const QString &path);

    std::function<QSize(QSize)> m_shownSize;
    size_t m_mostKept = 1;
    QStringList m_wanted;
    std::deque<Kept> m_kept; ///< the one that was used last at the end
    QTimer m_idle;
};

} // namespace window
