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
 * A PDF of pages whose pictures are encoded elsewhere. The toolkit lays out the pages, with texts, fonts and a stand-in
 * of one pixel for each picture; the JPEGs replace the stand-ins, byte for byte, as they arrive. So this process
 * neither decodes nor encodes a picture, and holds none of them longer than it takes to write it.
 *
 *     begin, addPage ... , endPages, then putPicture for each of pictures() in any order, finish
 *
 * Every step is short. Unless finish() succeeds, the file is removed.
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
    /** Appends a page. A picture that is already on a page is shared. */
    void addPage(const jobs::PageContent &page);
    /** No further pages follow. */
    platform::Result<void> endPages();
    /** The numbers of the pictures that are on pages, as PicturePlace has them, in the order in which they were met. */
    const QList<int> &pictures() const { return m_pictures; }
    /**
     * Puts a picture into its places; empty if there is none, which leaves them grey. @param jpeg  grey or three
     * colours
     */
    platform::Result<void> putPicture(int picture, const QByteArray &jpeg);
    /** All pictures have been put. Answers the size of the file in bytes, which is on the disk then. */
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
