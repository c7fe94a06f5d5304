#pragma once

#include <QSize>
#include <QString>

namespace window {

/** "4032×3024". */
QString pixelText(QSize pixels);

/** Decimal units in the reader's words, never more than three figures: "Zero KB", "1 byte", "999 bytes", "12 KB", "2.4 MB", "1.25 GB". */
QString byteText(qint64 bytes);

/** The type identifier that a file's name promises; see platform::typeIdentifierForPath(). */
QString typeOfName(const QString &name);

/** A type identifier in the words of a list: "JPEG", "Photoshop"; the extension in capitals where it is unknown. */
QString typeWord(const QString &typeIdentifier);

/** The size of the file in bytes, -1 where there is none. */
qint64 fileBytes(const QString &path);

} // namespace window
