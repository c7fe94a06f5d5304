#include "platform/imageio/convert/pdf_file.h"

namespace platform {
namespace {

/** A length in PDF's number format: no exponent, no more digits than are significant. */
QByteArray number(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 4);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text;
}

QByteArray reference(qsizetype object)
{
    return QByteArray::number(object) + " 0 R";
}

} // namespace

void PdfFile::beginObject()
{
    m_offsets.append(m_file.size());
    m_file += QByteArray::number(m_offsets.size()) + " 0 obj\n";
}

QByteArray PdfFile::add(const Stream &stream)
{
    m_file.reserve(m_file.size() + stream.bytes.size() + 4096);
    beginObject();
    m_file += "<< " + stream.entries + " /Length " + QByteArray::number(stream.bytes.size()) + " >>\nstream\n";
    m_file += stream.bytes;
    m_file += "\nendstream\nendobj\n";
    return reference(m_offsets.size());
}

QByteArray PdfFile::finished(QSizeF points)
{
    const QByteArray image = reference(m_offsets.size());
    const QByteArray width = number(points.width());
    const QByteArray height = number(points.height());
    const QByteArray contents = add({{}, "q " + width + " 0 0 " + height + " 0 0 cm /Im0 Do Q"});
    const qsizetype page = m_offsets.size() + 1;
    beginObject();
    m_file += "<< /Type /Page /Parent " + reference(page + 1) + " /MediaBox [0 0 " + width + ' ' + height +
              "] /Contents " + contents + " /Resources << /XObject << /Im0 " + image + " >> >> >>\nendobj\n";
    beginObject();
    m_file += "<< /Type /Pages /Kids [" + reference(page) + "] /Count 1 >>\nendobj\n";
    beginObject();
    m_file += "<< /Type /Catalog /Pages " + reference(page + 1) + " >>\nendobj\n";
    const qsizetype table = m_file.size();
    const QByteArray count = QByteArray::number(m_offsets.size() + 1);
    m_file += "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const qsizetype offset : std::as_const(m_offsets))
        m_file += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    m_file += "trailer\n<< /Size " + count + " /Root " + reference(page + 2) + " >>\nstartxref\n" +
              QByteArray::number(table) + "\n%%EOF\n";
    return m_file;
}

} // namespace platform
