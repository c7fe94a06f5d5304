#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSize>

namespace platform {

/** What the headers of a bitmap file claim. */
struct BmpHeader
{
    QSize size;             ///< empty if the headers are damaged
    qint64 bytesNeeded = 0; ///< length of the whole file, 0 if the rows are compressed
    int horizontalPerMetre = 0;
    int verticalPerMetre = 0;
};

BmpHeader readBmpHeader(QIODevice &file);

/** Where an embedded colour profile ends; 0 if there is none. */
qint64 endOfBmpProfile(QIODevice &file);

/** The colour profile that the newest header version can embed; empty if there is none. */
QByteArray readBmpProfile(QIODevice &file);

} // namespace platform
