#pragma once

// Private to the platform.

#include <QByteArray>
#include <QList>
#include <QSizeF>

namespace platform {

/** A PDF file with one page that is filled by one image, built object by object. */
class PdfFile
{
public:
    /** The entries of the image's dictionary besides its kind, and its bytes. */
    struct Stream
    {
        QByteArray entries; ///< such as "/Width 3 /Height 2"
        QByteArray bytes;
    };

    /** Adds a stream and answers its reference: "5 0 R". */
    QByteArray add(const Stream &stream);

    /** The whole file: a page of @p points with the image that was added last. */
    QByteArray finished(QSizeF points);

private:
    void beginObject();

    QByteArray m_file = "%PDF-1.5\n%\xe2\xe3\xcf\xd3\n";
    QList<qsizetype> m_offsets; ///< of object 1 onwards
};

} // namespace platform
