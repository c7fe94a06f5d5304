#include "app/printing/pdf_pages.h"

#include "app/printing/page_painter.h"

#include "platform/foundation/paths.h"
#include "platform/imageio/jpeg/jpeg_segments.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <unistd.h>

namespace app {
namespace {

using platform::Error;
using platform::ErrorCode;
using platform::Result;

constexpr double pointsPerInch = 72;
constexpr int resolution = 1200;

Result<void> failure(const Error &error)
{
    return tl::unexpected<Error>(error);
}

/** The output of the toolkit is not what it was when this was written. */
Result<void> strangeSkeleton()
{
    return failure({ErrorCode::WriteFailed, QCoreApplication::translate("pages", "The pages could not be created.")});
}

/** The colour profile that a JPEG carries, joined from its pieces; empty for none. */
QByteArray profileIn(const QByteArray &jpeg)
{
    constexpr int marker = 0xe2;
    constexpr qsizetype headLength = 14; // "ICC_PROFILE", 0, number and count
    QByteArray profile;
    for (qsizetype at = 2; at + 4 <= jpeg.size() && quint8(jpeg[at]) == 0xff && quint8(jpeg[at + 1]) != 0xda;) {
        const qsizetype length = quint8(jpeg[at + 2]) << 8 | quint8(jpeg[at + 3]);
        const QByteArray body = jpeg.mid(at + 4, length - 2);
        if (quint8(jpeg[at + 1]) == marker && body.startsWith("ICC_PROFILE"))
            profile += body.mid(headLength);
        at += 2 + length;
    }
    return profile;
}

QByteArray stream(const QByteArray &dictionary, const QByteArray &bytes)
{
    return "<<\n" + dictionary + "/Length " + QByteArray::number(bytes.size()) + "\n>>\nstream\n" + bytes +
           "\nendstream\n";
}

QByteArray imageDictionary(QSize size, const QByteArray &colors, const QByteArray &filter)
{
    return "/Type /XObject\n/Subtype /Image\n/Width " + QByteArray::number(size.width()) + "\n/Height " +
           QByteArray::number(size.height()) + "\n/BitsPerComponent 8\n/ColorSpace " + colors + "\n" + filter;
}

/** The offset of each object of a document, by its number, from its table; empty if there is no such table. */
QList<qint64> objectsIn(const QByteArray &document, qint64 *tableAt)
{
    const qsizetype said = document.lastIndexOf("startxref");
    *tableAt = document.mid(said + 9).trimmed().split('\n').constFirst().trimmed().toLongLong();
    const QList<QByteArray> head = document.mid(*tableAt, 64).split('\n');
    if (said < 0 || *tableAt <= 0 || head.size() < 2 || head[0].trimmed() != "xref" || !head[1].startsWith("0 "))
        return {};
    constexpr qsizetype rowLength = 20;
    const int count = head[1].mid(2).trimmed().toInt();
    const qsizetype first = *tableAt + head[0].size() + head[1].size() + 2;
    QList<qint64> objects;
    for (int number = 0; number < count && first + (number + 1) * rowLength <= document.size(); ++number) {
        const QByteArray row = document.mid(first + number * rowLength, rowLength);
        objects.append(row.at(17) == 'n' ? row.left(10).toLongLong() : 0);
    }
    return objects.size() == count ? objects : QList<qint64>();
}

} // namespace

PdfPages::~PdfPages()
{
    m_painter.reset();
    m_writer.reset();
    if (m_file.isOpen() && !m_isWhole)
        m_file.remove();
}

Error PdfPages::writeError() const
{
    return {ErrorCode::WriteFailed,
            QCoreApplication::translate("pages", "The PDF cannot be written: %1").arg(m_file.errorString())};
}

Result<void> PdfPages::begin(const QString &path, const jobs::PageSettings &settings)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return failure(writeError());
    m_skeleton.open(QIODevice::WriteOnly);
    m_writer = std::make_unique<QPdfWriter>(&m_skeleton);
    m_writer->setCreator(QStringLiteral("Quorlin"));
    m_writer->setResolution(resolution);
    const QPageSize paper(settings.paper, QPageSize::Point, QString(), QPageSize::ExactMatch);
    m_writer->setPageLayout(QPageLayout(paper, QPageLayout::Portrait, {}, QPageLayout::Point));
    m_painter = std::make_unique<QPainter>();
    if (!m_painter->begin(m_writer.get()))
        return strangeSkeleton();
    m_painter->scale(resolution / pointsPerInch, resolution / pointsPerInch);
    m_painter->setRenderHint(QPainter::LosslessImageRendering);
    return {};
}

void PdfPages::addPage(const jobs::PageContent &page)
{
    if (m_hasPages)
        m_writer->newPage();
    m_hasPages = true;
    drawPage(*m_painter, page, [this](QPainter &painter, const jobs::PicturePlace &place) {
        if (!m_standIns.contains(place.picture)) {
            QImage standIn(1, 1, QImage::Format_RGB32);
            standIn.fill(Qt::gray);
            m_standIns.insert(place.picture, standIn);
            m_pictures.append(place.picture);
        }
        painter.drawImage(place.placed.place, m_standIns.value(place.picture));
    });
}

Result<void> PdfPages::endPages()
{
    m_painter->end();
    m_painter.reset();
    m_writer.reset();
    m_standIns.clear();
    const Result<void> read = readSkeleton();
    m_skeleton.close();
    m_skeleton.setData({});
    return read;
}

/**
 * Writes all objects except the stand-ins, whose numbers are kept for the pictures; these follow in the order in which
 * they were drawn.
 */
Result<void> PdfPages::readSkeleton()
{
    const QByteArray &document = m_skeleton.data();
    qint64 tableAt = 0;
    const QList<qint64> starts = objectsIn(document, &tableAt);
    const qsizetype trailer = document.indexOf("trailer", tableAt);
    if (starts.size() < 2 || trailer < 0)
        return strangeSkeleton();
    QList<std::pair<qint64, int>> inOrder;
    for (int number = 1; number < starts.size(); ++number)
        if (starts[number] > 0)
            inOrder.append({starts[number], number});
    std::sort(inOrder.begin(), inOrder.end());
    m_offsets.fill(0, starts.size());
    write(document.left(inOrder.constFirst().first));
    QList<int> standIns;
    for (qsizetype i = 0; i < inOrder.size(); ++i) {
        const auto [start, number] = inOrder[i];
        const qint64 end = i + 1 < inOrder.size() ? inOrder[i + 1].first : tableAt;
        const QByteArray object = document.mid(start, end - start);
        if (object.left(200).contains("/Subtype /Image")) {
            standIns.append(number);
            continue;
        }
        m_offsets[number] = m_file.pos();
        if (!write(object))
            return failure(writeError());
    }
    std::sort(standIns.begin(), standIns.end());
    if (standIns.size() != m_pictures.size())
        return strangeSkeleton();
    for (qsizetype i = 0; i < standIns.size(); ++i)
        m_objects.insert(m_pictures[i], standIns[i]);
    static const QRegularExpression size(QStringLiteral("/Size \\d+\\s*"));
    const QString words = QString::fromLatin1(document.mid(trailer, document.lastIndexOf("startxref") - trailer));
    m_trailer = QString(words).remove(size).toLatin1();
    return {};
}

bool PdfPages::write(const QByteArray &bytes)
{
    return m_file.write(bytes) == bytes.size();
}

bool PdfPages::writeObject(int number, const QByteArray &bytes)
{
    m_offsets[number] = m_file.pos();
    return write(QByteArray::number(number) + " 0 obj\n" + bytes + "endobj\n");
}

/** The object of a profile; the pictures of one job share one. */
int PdfPages::profileObject(const QByteArray &profile, int components)
{
    const auto known = m_profiles.constFind(profile);
    if (known != m_profiles.constEnd())
        return *known;
    m_offsets.append(0);
    const int number = int(m_offsets.size()) - 1;
    writeObject(number, stream("/N " + QByteArray::number(components) + "\n", profile));
    m_profiles.insert(profile, number);
    return number;
}

Result<void> PdfPages::putPicture(int picture, const QByteArray &jpeg)
{
    const int number = m_objects.value(picture);
    const platform::JpegSegments header = platform::findJpegSegments(jpeg);
    const int components = header.frame.componentCount;
    bool isWritten = false;
    if (!header.valid || header.size.isEmpty() || (components != 1 && components != 3)) {
        isWritten = writeObject(number, stream(imageDictionary({1, 1}, "/DeviceGray", {}), QByteArray(1, '\x80')));
    } else {
        QByteArray colors = components == 1 ? "/DeviceGray" : "/DeviceRGB";
        if (const QByteArray profile = profileIn(jpeg); !profile.isEmpty())
            colors = "[/ICCBased " + QByteArray::number(profileObject(profile, components)) + " 0 R]";
        isWritten = writeObject(number, stream(imageDictionary(header.size, colors, "/Filter /DCTDecode\n"), jpeg));
    }
    return isWritten ? Result<void>() : failure(writeError());
}

Result<qint64> PdfPages::finish()
{
    const qint64 at = m_file.pos();
    QByteArray table = "xref\n0 " + QByteArray::number(m_offsets.size()) + "\n0000000000 65535 f \n";
    for (qsizetype number = 1; number < m_offsets.size(); ++number)
        table += m_offsets[number] > 0 ? QByteArray::number(m_offsets[number]).rightJustified(10, '0') + " 00000 n \n"
                                       : QByteArray("0000000000 65535 f \n");
    const qsizetype begin = m_trailer.indexOf("<<") + 2;
    const QByteArray trailer =
        m_trailer.left(begin) + "\n/Size " + QByteArray::number(m_offsets.size()) + m_trailer.mid(begin);
    const bool isWritten = write(table) &&
                           write(trailer.trimmed() + "\nstartxref\n" + QByteArray::number(at) + "\n%%EOF\n") &&
                           m_file.flush() && ::fsync(m_file.handle()) == 0;
    if (!isWritten)
        return tl::unexpected<Error>(writeError());
    m_isWhole = true;
    const qint64 bytes = m_file.size();
    m_file.close();
    return bytes;
}

} // namespace app
