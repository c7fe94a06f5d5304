#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>

/** Turns the location of a file or folder into data that can be kept, and back in a later run. Keeps nothing. */
class Ztbookmarks : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit Ztbookmarks(QObject *parent = nullptr);

    /** Data for a location; null if nothing is there, it may not be read, or it is no file location. */
    Q_INVOKABLE QByteArray bookmarkForURL(const QUrl &url) const;

    /** The location; null for data of another kind, and when what was there is gone, or another took its place. */
    Q_INVOKABLE QUrl urlForBookmark(const QByteArray &bookmark) const;
};
