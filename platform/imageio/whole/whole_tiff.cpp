#include "platform/imageio/whole/whole_tiff.h"

#include "platform/imageio/bytes/block_reader.h"

#include <QList>
#include <QSet>

#include <array>

namespace platform {
namespace {

constexpr quint16 compressionTag = 0x0103;
constexpr quint16 stripOffsetsTag = 0x0111;
constexpr quint16 stripCountsTag = 0x0117;
constexpr quint16 tileOffsetsTag = 0x0144;
constexpr quint16 tileCountsTag = 0x0145;
constexpr quint16 subDirectoriesTag = 0x014a;
constexpr quint16 jpegOffsetTag = 0x0201;
constexpr quint16 jpegLengthTag = 0x0202;
constexpr quint16 exifTag = 0x8769;
constexpr quint16 gpsTag = 0x8825;

/** The size of an element by its type. */
constexpr std::array<int, 19> elementSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 0, 0, 8, 8, 8};
/** The same, but 0 for types that hold no whole number. */
constexpr std::array<int, 19> wholeNumberSizes = {0, 1, 0, 2, 4, 0, 1, 0, 2, 4, 0, 0, 0, 4, 0, 0, 8, 8, 8};

/** A value of whole numbers, wherever it stands. */
struct Numbers
{
    qint64 at = 0;
    qint64 count = 0;
    int size = 0; ///< of one; 0 where there is no such value
};

class Walk
{
public:
    explicit Walk(QIODevice &file) : m_file(file), m_offsets(file), m_lengths(file) {}

    bool isWhole()
    {
        const QByteArray head = m_file.at(0, 4).toByteArray();
        m_isLittle = head.startsWith('I');
        m_isBig = head.size() == 4 && (m_isLittle ? head[2] : head[3]) == '+';
        follow(m_isBig ? m_file.number(8, 8, m_isLittle) : m_file.number(4, 4, m_isLittle), Place::Page);
        while (m_isSound && !m_waiting.isEmpty())
            readDirectory(m_waiting.takeLast());
        return m_isSound && !m_seen.isEmpty();
    }

private:
    /** What a camera notes of a picture may be damaged and is carried along as it is: the picture is whole without it. */
    enum class Place { Page, Below, Notes };

    struct Waiting
    {
        qint64 position = 0;
        Place place = Place::Page;
    };

    struct Directory
    {
        Numbers offsets;
        Numbers lengths;
        Numbers jpegOffset;
        Numbers jpegLength;
        qint64 compression = 0;
    };

    /** A directory that is still to be read; 0 says that there is none. */
    void follow(qint64 position, Place place)
    {
        constexpr qsizetype mostDirectories = 100'000;
        if (position == 0 || m_seen.contains(position))
            return;
        if (position < 0 || position >= m_file.size() || m_seen.size() >= mostDirectories) {
            m_isSound = m_isSound && place == Place::Notes;
            return;
        }
        m_seen.insert(position);
        m_waiting.append({position, place});
    }

    void readDirectory(Waiting waiting)
    {
        const qint64 position = waiting.position;
        const int countSize = m_isBig ? 8 : 2;
        const int entrySize = m_isBig ? 20 : 12;
        const int offsetSize = m_isBig ? 8 : 4;
        constexpr qint64 mostEntries = 65536;
        const qint64 count = m_file.number(position, countSize, m_isLittle);
        const qint64 nextAt = position + countSize + count * entrySize;
        if (count < 0 || count > mostEntries || nextAt > m_file.size()) {
            m_isSound = m_isSound && waiting.place == Place::Notes;
            return;
        }
        Directory directory;
        for (qint64 entry = 0; m_isSound && entry < count; ++entry)
            takeEntry(directory, position + countSize + entry * entrySize, waiting.place);
        // Some directories below a page leave out the place of a next one where they end the file.
        const bool isNextCut = nextAt + offsetSize > m_file.size();
        follow(isNextCut && waiting.place != Place::Page ? 0 : m_file.number(nextAt, offsetSize, m_isLittle),
               waiting.place);
        checkPixels(directory);
    }

    Numbers numbersAt(qint64 entry)
    {
        const auto type = size_t(m_file.number(entry + 2, 2, m_isLittle));
        Numbers numbers;
        numbers.size = type < wholeNumberSizes.size() ? wholeNumberSizes[type] : 0;
        numbers.count = m_file.number(entry + 4, m_isBig ? 8 : 4, m_isLittle);
        const int inlineSize = m_isBig ? 8 : 4;
        const qint64 valueAt = entry + 4 + inlineSize;
        if (numbers.count < 1 || numbers.count > m_file.size())
            return {};
        const bool isInline = numbers.count * numbers.size <= inlineSize;
        numbers.at = isInline ? valueAt : m_file.number(valueAt, inlineSize, m_isLittle);
        return numbers;
    }

    qint64 number(const Numbers &numbers, qint64 index) { return numberFrom(m_file, numbers, index); }
    qint64 numberFrom(BlockReader &file, const Numbers &numbers, qint64 index) const
    {
        return numbers.size == 0 || index >= numbers.count
                   ? 0
                   : file.number(numbers.at + index * numbers.size, numbers.size, m_isLittle);
    }

    /** A value that does not fit into its entry stands elsewhere in the file. */
    void checkValue(qint64 entry)
    {
        const int inlineSize = m_isBig ? 8 : 4;
        const auto type = size_t(m_file.number(entry + 2, 2, m_isLittle));
        const qint64 count = m_file.number(entry + 4, inlineSize, m_isLittle);
        const qint64 size = type < elementSizes.size() ? elementSizes[type] : 0;
        if (size == 0 || (count >= 0 && count <= inlineSize / size))
            return;
        // A value that is longer than all of the file is nonsense in one entry, which writers hand on, and no sign of a cut:
        // the pixels are behind it or before the directory, and are looked for where they should be.
        if (count < 0 || count > m_file.size() / size)
            return;
        const qint64 at = m_file.number(entry + 4 + inlineSize, inlineSize, m_isLittle);
        m_isSound = m_isSound && at >= 0 && at <= m_file.size() && count <= (m_file.size() - at) / size;
    }

    void takeEntry(Directory &directory, qint64 entry, Place place)
    {
        if (place == Place::Notes)
            return;
        checkValue(entry);
        switch (m_file.number(entry, 2, m_isLittle)) {
        case compressionTag:
            directory.compression = number(numbersAt(entry), 0);
            break;
        case stripOffsetsTag:
        case tileOffsetsTag:
            directory.offsets = numbersAt(entry);
            break;
        case stripCountsTag:
        case tileCountsTag:
            directory.lengths = numbersAt(entry);
            break;
        case jpegOffsetTag:
            directory.jpegOffset = numbersAt(entry);
            break;
        case jpegLengthTag:
            directory.jpegLength = numbersAt(entry);
            break;
        case subDirectoriesTag:
            followAll(numbersAt(entry), Place::Below);
            break;
        case exifTag:
        case gpsTag:
            followAll(numbersAt(entry), Place::Notes);
            break;
        default:
            break;
        }
    }

    void followAll(const Numbers &directories, Place place)
    {
        constexpr qint64 mostBelowOne = 1000;
        for (qint64 index = 0; m_isSound && index < std::min(directories.count, mostBelowOne); ++index)
            follow(number(directories, index), place);
    }

    void checkPixels(const Directory &directory)
    {
        constexpr qint64 oldJpeg = 6; // its lengths are known to be wrong in good files
        for (qint64 index = 0; m_isSound && index < directory.offsets.count; ++index)
            checkPart(numberFrom(m_offsets, directory.offsets, index), numberFrom(m_lengths, directory.lengths, index));
        if (directory.compression != oldJpeg)
            checkPart(number(directory.jpegOffset, 0), number(directory.jpegLength, 0));
    }

    void checkPart(qint64 offset, qint64 length)
    {
        constexpr qint64 elsewhere = 0xffffffff; // a maker's own tag says where
        if (offset == elsewhere || (offset == 0 && length == 0))
            return;
        m_isSound =
            m_isSound && offset >= 0 && length >= 0 && offset <= m_file.size() && length <= m_file.size() - offset;
    }

    BlockReader m_file;
    // Two long lists that are read side by side, each in blocks of its own.
    BlockReader m_offsets;
    BlockReader m_lengths;
    bool m_isLittle = true;
    bool m_isBig = false;
    bool m_isSound = true;
    QSet<qint64> m_seen;
    QList<Waiting> m_waiting;
};

} // namespace

bool isWholeTiff(QIODevice &file)
{
    return Walk(file).isWhole();
}

} // namespace platform
