#include "platform/imageio/tiff/tiff_samples.h"

#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tree.h"

#include <algorithm>

namespace platform {
namespace {

constexpr int photometricTag = 0x0106;
constexpr int bitsTag = 0x0102;
constexpr int othersTag = 0x0152;

class Pages
{
public:
    explicit Pages(QIODevice &file) : m_file(file)
    {
        const QByteArray head = at(0, 16);
        const bool isLittle = head.startsWith("II");
        if (head.size() < 8 || (!isLittle && !head.startsWith("MM")))
            return;
        m_form.little = isLittle;
        constexpr quint64 bigVersion = 43;
        m_form.big = m_form.number(head.constData() + 2, 2) == bigVersion;
        if (head.size() < 16 && m_form.big)
            return;
        const int firstAt = m_form.big ? 8 : 4;
        m_next = m_form.number(head.constData() + firstAt, m_form.offsetSize());
    }

    /** The entries of the next directory; empty behind the last. */
    QByteArray next()
    {
        const auto start = qint64(m_next);
        const QByteArray count = at(start, m_form.countSize());
        if (m_next == 0 || count.isEmpty())
            return {};
        constexpr quint64 mostEntries = 65535;
        const quint64 entries = std::min(m_form.number(count.constData(), m_form.countSize()), mostEntries);
        const qint64 size = qint64(entries) * m_form.entrySize();
        const QByteArray read = at(start + m_form.countSize(), size);
        const QByteArray following = at(start + m_form.countSize() + size, m_form.offsetSize());
        m_next = following.isEmpty() ? 0 : m_form.number(following.constData(), m_form.offsetSize());
        return read;
    }

    /** The numbers of an entry, as many as can be of use. */
    QList<int> numbers(const char *entry)
    {
        constexpr quint64 mostNumbers = 64;
        const int countAt = 4;
        const int valueAt = countAt + m_form.offsetSize();
        const int size = tiffElementSize(quint32(m_form.number(entry + 2, 2)));
        const quint64 count = std::min(m_form.number(entry + countAt, m_form.offsetSize()), mostNumbers);
        if (size < 1 || size > 4)
            return {};
        QByteArray values(entry + valueAt, m_form.offsetSize());
        if (count * quint64(size) > quint64(m_form.offsetSize()))
            values = at(qint64(m_form.number(entry + valueAt, m_form.offsetSize())), qint64(count) * size);
        QList<int> result;
        for (qsizetype place = 0; place + size <= values.size() && quint64(result.size()) < count; place += size)
            result.append(int(m_form.number(values.constData() + place, size)));
        return result;
    }

    int tagOf(const char *entry) const { return int(m_form.number(entry, 2)); }
    int entrySize() const { return m_form.entrySize(); }

private:
    QByteArray at(qint64 position, qint64 count)
    {
        if (position < 0 || position > m_file.size() || !m_file.seek(position))
            return {};
        const QByteArray bytes = m_file.read(count);
        return bytes.size() == count || position == 0 ? bytes : QByteArray();
    }

    QIODevice &m_file;
    TiffForm m_form;
    quint64 m_next = 0;
};

} // namespace

bool TiffSamples::isLogarithmic() const
{
    constexpr int logL = 32844;
    constexpr int logLuv = 32845;
    return photometric == logL || photometric == logLuv;
}

TiffSamples readTiffSamples(QIODevice &file, int page)
{
    Pages pages(file);
    QByteArray entries = pages.next();
    for (int number = 0; number < page && !entries.isEmpty(); ++number)
        entries = pages.next();
    TiffSamples samples;
    samples.isKnown = !entries.isEmpty();
    for (qsizetype at = 0; at + pages.entrySize() <= entries.size(); at += pages.entrySize()) {
        const char *entry = entries.constData() + at;
        const int tag = pages.tagOf(entry);
        if (tag == photometricTag)
            samples.photometric = pages.numbers(entry).value(0, -1);
        else if (tag == bitsTag)
            samples.bits = pages.numbers(entry).value(0, 1);
        else if (tag == othersTag)
            samples.others = pages.numbers(entry);
    }
    return samples;
}

} // namespace platform
