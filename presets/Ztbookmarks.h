#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>

/**
 * Turns the location of a file or folder into data that can be stored, and back in a later run. Stores nothing itself.
 */
class Ztbookmarks : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit Ztbookmarks(QObject *parent = nullptr);

    /** Data for a location; null if nothing is there, it may not be read, or it is no file location. */
    Q_INVOKABLE QByteArray bookmarkForURL(const QUrl &url) const;

    /** The location; null for data of another kind, and if the item is gone, or another has taken its place. */
    Q_INVOKABLE QUrl urlForBookmark(const QByteArray &bookmark) const;
};
