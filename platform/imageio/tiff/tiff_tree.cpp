#include "platform/imageio/tiff/tiff_tree.h"

#include <QSet>

#include <algorithm>

namespace platform {
namespace {

constexpr quint16 subDirectoriesTag = 0x014a;
constexpr quint16 exifDirectoryTag = 0x8769;
constexpr quint16 gpsDirectoryTag = 0x8825;
constexpr quint16 interoperabilityTag = 0xa005;
constexpr quint16 makerNoteTag = 0x927c;
constexpr quint16 firstRawTag = 0xc612;

int elementSize(quint16 type)
{
    constexpr int sizes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 0, 0, 8, 8, 8};
    return type < std::size(sizes) ? sizes[type] : 0;
}

bool isDirectoryTag(quint16 tag)
{
    return tag == exifDirectoryTag || tag == gpsDirectoryTag || tag == interoperabilityTag || tag == subDirectoriesTag;
}

/** Tags whose contents count offsets of their own. */
bool hidesOffsets(quint16 tag)
{
    constexpr quint16 firstOldJpegTable = 0x0207;
    constexpr quint16 lastOldJpegTable = 0x0209;
    return tag == makerNoteTag || tag >= firstRawTag || (tag >= firstOldJpegTable && tag <= lastOldJpegTable);
}

} // namespace

quint64 TiffForm::number(const char *at, int size) const
{
    quint64 result = 0;
    for (int i = 0; i < size; ++i)
        result = result << 8 | uchar(at[little ? size - 1 - i : i]);
    return result;
}

QByteArray TiffForm::bytes(quint64 number, int size) const
{
    QByteArray result(size, '\0');
    for (int i = 0; i < size; ++i, number >>= 8)
        result[little ? i : size - 1 - i] = char(uchar(number & 0xff));
    return result;
}

const TiffTag *TiffTags::find(quint16 tag) const
{
    const auto found = std::find_if(tags.begin(), tags.end(), [tag](const TiffTag &each) { return each.tag == tag; });
    return found == tags.end() ? nullptr : &*found;
}

TiffTree::TiffTree(const QByteArray &bytes) : m_bytes(bytes)
{
    m_form.little = bytes.startsWith("II");
    if (bytes.size() < 8 || !(m_form.little || bytes.startsWith("MM")))
        return;
    constexpr quint64 classic = 42;
    constexpr quint64 big = 43;
    const quint64 version = m_form.number(bytes.constData() + 2, 2);
    m_form.big = version == big;
    m_isValid = version == classic || (version == big && bytes.size() >= 16 &&
                                       m_form.number(bytes.constData() + 4, 2) == quint64(m_form.offsetSize()));
}

TiffTag TiffTree::tagAt(qint64 at) const
{
    const char *entry = m_bytes.constData() + at;
    TiffTag tag;
    tag.at = at;
    tag.tag = quint16(m_form.number(entry, 2));
    tag.type = quint16(m_form.number(entry + 2, 2));
    tag.count = m_form.number(entry + 4, m_form.offsetSize());
    const auto element = quint64(elementSize(tag.type));
    const auto all = quint64(m_bytes.size());
    if (element == 0 || tag.count > all / element)
        return tag;
    const quint64 size = tag.count * element;
    tag.isInline = size <= quint64(m_form.offsetSize());
    const qint64 field = at + 4 + m_form.offsetSize();
    const quint64 start =
        tag.isInline ? quint64(field) : m_form.number(m_bytes.constData() + field, m_form.offsetSize());
    tag.isSound = start <= all && size <= all - start;
    if (tag.isSound)
        tag.value = {qint64(start), qint64(size)};
    return tag;
}

TiffTags TiffTree::directory(quint64 offset) const
{
    TiffTags directory;
    const auto all = quint64(m_bytes.size());
    const auto fixed = quint64(m_form.countSize() + m_form.offsetSize());
    if (!m_isValid || offset < quint64(headerSize()) || offset > all || all - offset < fixed)
        return directory;
    const quint64 count = m_form.number(m_bytes.constData() + offset, m_form.countSize());
    constexpr quint64 mostEntries = 0xffff;
    if (count > mostEntries || count > (all - offset - fixed) / quint64(m_form.entrySize()))
        return directory;
    directory.valid = true;
    directory.nextAt = qint64(offset) + m_form.countSize() + qint64(count) * m_form.entrySize();
    directory.range = {qint64(offset), directory.nextAt + m_form.offsetSize() - qint64(offset)};
    directory.next = m_form.number(m_bytes.constData() + directory.nextAt, m_form.offsetSize());
    for (qint64 at = qint64(offset) + m_form.countSize(); at < directory.nextAt; at += m_form.entrySize())
        directory.tags.append(tagAt(at));
    return directory;
}

TiffTags TiffTree::first() const
{
    return m_isValid ? directory(m_form.number(m_bytes.constData() + firstAt(), m_form.offsetSize())) : TiffTags();
}

quint64 TiffTree::integer(const TiffTag &tag, quint64 index) const
{
    const int size = elementSize(tag.type);
    const bool isWhole = tag.type == 3 || tag.type == 4 || tag.type == 13 || tag.type == 16 || tag.type == 18;
    if (!tag.isSound || !isWhole || index >= tag.count)
        return 0;
    return m_form.number(m_bytes.constData() + tag.value.start + qint64(index) * size, size);
}

/** One pass over everything; directories that lead back to themselves are entered once. */
class TiffTree::Walk
{
public:
    explicit Walk(const TiffTree &tree) : m_tree(tree) {}

    void enter(quint64 offset, Pages pages)
    {
        while (offset != 0) {
            constexpr int mostDirectories = 256;
            if (m_entered.contains(offset) || m_entered.size() >= mostDirectories) {
                m_extents.isComplete = false;
                return;
            }
            m_entered.insert(offset);
            const TiffTags directory = m_tree.directory(offset);
            if (!directory.valid) {
                m_extents.isComplete = false;
                return;
            }
            take(directory);
            offset = pages == Pages::All ? directory.next : 0;
        }
    }
    TiffExtents extents() const { return m_extents; }

private:
    void take(const TiffTags &directory)
    {
        add(directory.range);
        for (const TiffTag &tag : directory.tags) {
            m_extents.isComplete = m_extents.isComplete && tag.isSound && !hidesOffsets(tag.tag);
            if (tag.isSound && !tag.isInline)
                add(tag.value);
            if (isDirectoryTag(tag.tag))
                for (quint64 i = 0; i < std::min<quint64>(tag.count, 64); ++i)
                    enter(m_tree.integer(tag, i), Pages::First);
        }
        takePixels(directory, 0x0111, 0x0117); // strips
        takePixels(directory, 0x0144, 0x0145); // tiles
        takePixels(directory, 0x0201, 0x0202); // a small picture
    }

    void add(const TiffRange &range)
    {
        if (m_extents.ranges.size() < mostRanges)
            m_extents.ranges.append(range);
        else
            m_extents.isComplete = false;
    }

    void takePixels(const TiffTags &directory, quint16 offsetsTag, quint16 sizesTag)
    {
        const TiffTag *offsets = directory.find(offsetsTag);
        if (!offsets)
            return;
        const TiffTag *sizes = directory.find(sizesTag);
        if (!sizes || !sizes->isSound || !offsets->isSound || sizes->count != offsets->count) {
            m_extents.isComplete = false;
            return;
        }
        for (quint64 i = 0; i < offsets->count && m_extents.ranges.size() < mostRanges; ++i) {
            const auto all = quint64(m_tree.m_bytes.size());
            const quint64 start = m_tree.integer(*offsets, i);
            const quint64 size = m_tree.integer(*sizes, i);
            if (start > all || size > all - start) {
                m_extents.isComplete = false;
                continue;
            }
            add({qint64(start), qint64(size)});
            if (size > 0)
                m_extents.pixels.append({qint64(start), qint64(size)});
        }
    }

    /** More of them only a file has that wants to fill the memory. */
    static constexpr qsizetype mostRanges = 1 << 20;

    const TiffTree &m_tree;
    TiffExtents m_extents;
    QSet<quint64> m_entered;
};

TiffExtents TiffTree::extents(Pages pages) const
{
    Walk walk(*this);
    const quint64 offset = m_isValid ? m_form.number(m_bytes.constData() + firstAt(), m_form.offsetSize()) : 0;
    walk.enter(offset, pages);
    return walk.extents();
}

} // namespace platform
