#include "platform/imageio/bytes/block_reader.h"

#include <algorithm>

namespace platform {

QByteArrayView BlockReader::at(qint64 position, qsizetype count)
{
    const qsizetype wanted = std::min({count, largestPiece, qsizetype(std::max<qint64>(0, m_size - position))});
    if (position < 0 || wanted <= 0)
        return {};
    const qint64 end = m_start + m_block.size();
    if (position < m_start || position + wanted > end) {
        constexpr qint64 large = 65536;
        const bool goesOn = !m_block.isEmpty() && position >= m_start && position <= end + largestPiece;
        m_start = position;
        m_block = m_file.seek(position) ? m_file.read(goesOn ? large : qint64(largestPiece)) : QByteArray();
    }
    const qsizetype there = std::max<qsizetype>(0, m_start + m_block.size() - position);
    return QByteArrayView(m_block).last(there).first(std::min(wanted, there));
}

QByteArray BlockReader::all(qint64 position, qint64 count)
{
    if (position < 0 || count <= 0 || count > m_size || position > m_size - count)
        return {};
    if (position >= m_start && position + count <= m_start + m_block.size())
        return m_block.mid(position - m_start, count);
    const QByteArray bytes = m_file.seek(position) ? m_file.read(count) : QByteArray();
    return bytes.size() == count ? bytes : QByteArray();
}

qint64 BlockReader::number(qint64 position, qsizetype bytes, bool isLittle)
{
    const QByteArrayView piece = at(position, bytes);
    if (piece.size() < bytes)
        return -1;
    quint64 value = 0;
    for (qsizetype index = 0; index < bytes; ++index)
        value = value << 8 | uchar(piece[isLittle ? bytes - 1 - index : index]);
    return value >> 63 ? -1 : qint64(value);
}

} // namespace platform
