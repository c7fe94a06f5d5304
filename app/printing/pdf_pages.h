#pragma once

#include "jobs/pages/page_content.h"
#include "platform/foundation/result.h"

#include <QBuffer>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace app {

/**
 * A PDF of pages with pictures that somebody else encodes. The toolkit lays the pages out, with texts and fonts and a stand-in of one pixel
 * for each picture; the JPEGs take the places of the stand-ins, byte for byte, as they arrive. So this process neither decodes nor
 * encodes a picture, and holds none of them longer than it takes to write it.
 *
 *     begin, addPage ... , endPages, then putPicture for each of pictures() in any order, finish
 *
 * Every step is short. Nothing is left of the file unless finish() was good.
 */
class PdfPages
{
public:
    PdfPages() = default;
    PdfPages(const PdfPages &) = delete;
    PdfPages &operator=(const PdfPages &) = delete;
    ~PdfPages();

    /** @param path  of a new file, in a folder that is there. Fails with WriteFailed */
    platform::Result<void> begin(const QString &path, const jobs::PageSettings &settings);
    /** Adds a page behind the others. A picture that was on a page before is the same one again. */
    void addPage(const jobs::PageContent &page);
    /** No page comes any more. */
    platform::Result<void> endPages();
    /** The numbers of the pictures that are on pages, as PicturePlace has them, in the order in which they were met. */
    const QList<int> &pictures() const { return m_pictures; }
    /** Puts a picture into its places; empty where there is none, which are then grey. @param jpeg  grey or three colours */
    platform::Result<void> putPicture(int picture, const QByteArray &jpeg);
    /** All pictures were put. Answers the bytes of the file, which is on the disk then. */
    platform::Result<qint64> finish();

private:
    platform::Result<void> readSkeleton();
    bool write(const QByteArray &bytes);
    bool writeObject(int number, const QByteArray &bytes);
    int profileObject(const QByteArray &profile, int components);
    platform::Error writeError() const;

    QFile m_file;
    bool m_isWhole = false;
    QBuffer m_skeleton;
    std::unique_ptr<QPdfWriter> m_writer;
    std::unique_ptr<QPainter> m_painter;
    bool m_hasPages = false;
    QList<int> m_pictures;
    QHash<int, QImage> m_standIns;
    QHash<int, int> m_objects; ///< of the pictures
    QList<qint64> m_offsets;   ///< of all objects, by number, in the file; 0 for none
    QHash<QByteArray, int> m_profiles;
    QByteArray m_trailer; ///< without its size
};

} // namespace app
