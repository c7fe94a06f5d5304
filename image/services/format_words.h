#pragma once

#include <QSize>
#include <QString>

namespace image {

/** "4032×3024". */
QString pixelText(QSize pixels);

/** The type identifier implied by a file's name; see platform::typeIdentifierForPath(). */
QString typeOfName(const QString &name);

/** A type identifier in the words of a list: "JPEG", "Photoshop"; the extension in capitals if it is unknown. */
QString typeWord(const QString &typeIdentifier);

/** The size of the file in bytes, -1 if there is none. */
qint64 fileBytes(const QString &path);

} // namespace image
