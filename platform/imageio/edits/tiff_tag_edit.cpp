#include "platform/imageio/edits/tiff_tag_edit.h"

#include "platform/imageio/tiff/tiff_extents.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>

namespace platform {
namespace {

using Directory = TagChange::Directory;
using What = TagChange::What;

constexpr quint16 asciiType = 2;

bool leadsToDirectory(quint16 tag)
{
    return tag == tiffTag::gpsDirectory || tag == tiffTag::exifDirectory || tag == tiffTag::interoperabilityDirectory;
}

const TagChange *changeOf(const QList<TagChange> &changes, Directory directory, quint16 tag)
{
    const auto found = std::find_if(changes.begin(), changes.end(), [&](const TagChange &change) {
        return change.directory == directory && change.tag == tag;
    });
    return found == changes.end() ? nullptr : &*found;
}

class TagEditor
{
public:
    TagEditor(const QByteArray &bytes, const QList<TagChange> &changes)
        : m_bytes(bytes), m_reader(bytes), m_changes(changes),
          m_used(m_reader.isValid() ? tiffExtents(m_reader, TiffPages::All) : TiffExtents())
    {
    }

    bool isSound() const;
    void edit();
    void dropThumbnail();
    std::optional<QList<Splice>> splices();

private:
    struct Entries
    {
        QByteArray bytes;
        qsizetype count = 0;
        bool isChanged = false;
    };

    const TiffForm &form() const { return m_reader.form(); }
    quint64 append(const QByteArray &bytes) { return appendEven(m_appended, bytes, m_bytes.size()); }
    void overwrite(const TiffRange &range, const QByteArray &bytes)
    {
        m_overwritten.append({range.start, range.size, bytes});
    }
    void zero(const TiffRange &range) { overwrite(range, QByteArray(range.size, '\0')); }
    void retire(const TiffEntry &entry);
    void zeroDirectory(const TiffDirectory &directory);
    bool isAlone(const TiffRange &range) const;
    QByteArray valueOf(const TagChange &change) const;
    QByteArray entryFor(const TagChange &change, const TiffEntry *old);
    Entries changed(const TiffDirectory &old, Directory which);
    void insertNew(Entries &entries, const TiffDirectory &old, Directory which);
    std::optional<quint64> place(const TiffDirectory &old, const Entries &entries);
    bool changesPixels() const;

    const QByteArray &m_bytes;
    TiffReader m_reader;
    QList<TagChange> m_changes;
    TiffExtents m_used;
    QByteArray m_appended;
    QList<Splice> m_overwritten;
    TiffRange m_unlinked; ///< the offset of the thumbnail's directory
};

bool TagEditor::isSound() const
{
    if (!m_reader.isValid())
        return false;
    const quint64 first = m_reader.firstOffset();
    return first == 0 || m_reader.directory(first).valid;
}

/** True if no other known data uses any of these bytes. */
bool TagEditor::isAlone(const TiffRange &range) const
{
    const auto users = std::count_if(m_used.ranges.begin(), m_used.ranges.end(),
                                     [&](const TiffRange &used) { return range.overlaps(used); });
    return range.start >= form().headerSize() && range.end() <= m_bytes.size() && users <= 1;
}

/** Zeros over the values of a directory that are outside of it, and over the directory. */
void TagEditor::zeroDirectory(const TiffDirectory &directory)
{
    if (!directory.valid || !isAlone(directory.range))
        return;
    for (const TiffEntry &entry : directory.entries)
        if (entry.isSound() && !entry.isInline && isAlone(entry.value))
            zero(entry.value);
    zero(directory.range);
}

/** The old text must not remain in the file. */
void TagEditor::retire(const TiffEntry &entry)
{
    if (leadsToDirectory(entry.tag))
        zeroDirectory(m_reader.directory(m_reader.integer(entry)));
    if (entry.isSound() && !entry.isInline && isAlone(entry.value))
        zero(entry.value);
}

QByteArray TagEditor::valueOf(const TagChange &change) const
{
    if (change.type != tiffType::shortType || !form().little)
        return change.value;
    QByteArray turned = change.value;
    for (qsizetype at = 0; at + 1 < turned.size(); at += 2)
        std::swap(turned[at], turned[at + 1]);
    return turned;
}

QByteArray TagEditor::entryFor(const TagChange &change, const TiffEntry *old)
{
    const QByteArray value = valueOf(change);
    const quint64 count = quint64(value.size()) / quint64(std::max(1, tiffElementSize(change.type)));
    if (change.type == tiffType::longType) // a pointer, which is an offset already
        return form().entry(change.tag, form().big ? tiffType::bigDirectoryType : tiffType::longType, 1, value);
    const bool hasPlace = old && old->isSound() && !old->isInline && isAlone(old->value);
    if (hasPlace && value.size() > form().offsetSize() && old->value.size >= value.size()) {
        // A text keeps its room, so that it may get longer again.
        const bool isText = change.type == asciiType && old->type == asciiType;
        overwrite(old->value, value.leftJustified(old->value.size, '\0'));
        return form().entry(change.tag, change.type, isText ? old->count : count,
                            form().offset(quint64(old->value.start)));
    }
    if (old)
        retire(*old);
    const bool fits = value.size() <= form().offsetSize();
    return form().entry(change.tag, change.type, count, fits ? value : form().offset(append(value)));
}

/** New entries, each inserted in the order of tags. */
void TagEditor::insertNew(Entries &entries, const TiffDirectory &old, Directory which)
{
    QList<TagChange> added;
    for (const TagChange &change : std::as_const(m_changes))
        if (change.directory == which && change.what == What::Set && !old.find(change.tag))
            added.append(change);
    std::sort(added.begin(), added.end(), [](const TagChange &a, const TagChange &b) { return a.tag < b.tag; });
    for (const TagChange &change : std::as_const(added)) {
        qsizetype at = 0;
        while (at < entries.bytes.size() && form().number(entries.bytes.constData() + at, 2) < change.tag)
            at += form().entrySize();
        entries.bytes.insert(at, entryFor(change, nullptr));
        ++entries.count;
        entries.isChanged = true;
    }
}

TagEditor::Entries TagEditor::changed(const TiffDirectory &old, Directory which)
{
    Entries entries;
    for (const TiffEntry &entry : old.entries) {
        const QByteArray bytes = m_bytes.mid(entry.at, form().entrySize());
        const TagChange *change = changeOf(m_changes, which, entry.tag);
        if (change && change->what == What::Remove) {
            retire(entry);
            entries.isChanged = true;
            continue;
        }
        const QByteArray now = change ? entryFor(*change, &entry) : bytes;
        entries.isChanged = entries.isChanged || now != bytes;
        entries.bytes += now;
        ++entries.count;
    }
    insertNew(entries, old, which);
    return entries;
}

/** The new position of the directory; none if it stays in place. */
std::optional<quint64> TagEditor::place(const TiffDirectory &old, const Entries &entries)
{
    if (!entries.isChanged)
        return std::nullopt;
    const quint64 next = m_unlinked.size > 0 && m_unlinked.start == old.nextAt ? 0 : old.next;
    const QByteArray directory = form().directory(entries.bytes, next);
    if (m_unlinked.start == old.nextAt)
        m_unlinked = {};
    if (old.valid && directory.size() <= old.range.size) {
        overwrite(old.range, directory.leftJustified(old.range.size, '\0'));
        return std::nullopt;
    }
    return append(directory);
}

void TagEditor::dropThumbnail()
{
    const TiffDirectory first = m_reader.first();
    if (!first.valid || first.next == 0)
        return;
    const TiffDirectory second = m_reader.directory(first.next);
    const auto start = qint64(m_reader.integer(second, tiffTag::jpegOffset));
    const TiffRange picture{start, qint64(m_reader.integer(second, tiffTag::jpegSize))};
    if (start > 0 && picture.size > 0 && isAlone(picture)) {
        zero(picture);
        m_used.pixels.removeIf([&](const TiffRange &range) { return range.overlaps(picture); });
    }
    zeroDirectory(second);
    m_unlinked = {first.nextAt, form().offsetSize()};
}

void TagEditor::edit()
{
    const TiffDirectory first = m_reader.first();
    const TiffEntry *pointer = first.find(tiffTag::exifDirectory);
    const TiffDirectory exif = pointer ? m_reader.directory(m_reader.integer(*pointer)) : TiffDirectory();
    const Entries inExif = changed(exif, Directory::Exif);
    if (const auto moved = place(exif, inExif)) {
        TagChange change{Directory::First, tiffTag::exifDirectory, What::Set, tiffType::longType,
                         form().offset(*moved)};
        if (pointer) // the old directory stays as it is, since something else may lead to it
            overwrite({pointer->at, form().entrySize()},
                      form().entry(change.tag, form().big ? tiffType::bigDirectoryType : tiffType::longType, 1,
                                   change.value));
        else
            m_changes.append(change);
    }
    Entries inFirst = changed(first, Directory::First);
    if (pointer && inFirst.isChanged && !m_overwritten.isEmpty()) {
        // The directory is written as a whole, with the new pointer in it.
        const auto own = std::find_if(m_overwritten.begin(), m_overwritten.end(),
                                      [&](const Splice &splice) { return splice.at == pointer->at; });
        for (qsizetype at = 0; own != m_overwritten.end() && at < inFirst.bytes.size(); at += form().entrySize())
            if (form().number(inFirst.bytes.constData() + at, 2) == tiffTag::exifDirectory)
                inFirst.bytes.replace(at, form().entrySize(), own->inserted);
        if (own != m_overwritten.end())
            m_overwritten.erase(own);
    }
    if (const auto moved = place(first, inFirst))
        overwrite({form().firstAt(), form().offsetSize()}, form().offset(*moved));
    if (m_unlinked.size > 0)
        zero(m_unlinked);
}

/** In a damaged file pixels may overlap with directories. */
bool TagEditor::changesPixels() const
{
    return std::any_of(m_overwritten.begin(), m_overwritten.end(), [this](const Splice &splice) {
        const TiffRange changed{splice.at, splice.removed};
        return std::any_of(m_used.pixels.begin(), m_used.pixels.end(),
                           [&changed](const TiffRange &each) { return each.overlaps(changed); });
    });
}

std::optional<QList<Splice>> TagEditor::splices()
{
    constexpr qint64 largestClassic = 0xffffffff;
    if ((!form().big && m_bytes.size() + m_appended.size() > largestClassic) || changesPixels())
        return std::nullopt;
    QList<Splice> all = m_overwritten;
    std::stable_sort(all.begin(), all.end(), [](const Splice &a, const Splice &b) { return a.at < b.at; });
    for (qsizetype i = 1; i < all.size(); ++i)
        if (all[i].at < all[i - 1].at + all[i - 1].removed)
            return std::nullopt; // overlapping directories
    if (!all.isEmpty() && all.last().at + all.last().removed > m_bytes.size())
        return std::nullopt;
    if (!m_appended.isEmpty())
        all.append({m_bytes.size(), 0, m_appended});
    return all;
}

} // namespace

std::optional<QList<Splice>> tagSplices(const QByteArray &bytes, const QList<TagChange> &changes, bool dropsThumbnail)
{
    TagEditor editor(bytes, changes);
    if (!editor.isSound())
        return std::nullopt;
    if (dropsThumbnail)
        editor.dropThumbnail();
    editor.edit();
    return editor.splices();
}

std::optional<QByteArray> exifBlockWith(const QByteArray &block, const QList<TagChange> &changes, bool dropsThumbnail)
{
    const TiffReader reader(block);
    if (reader.isClassic() && (reader.firstOffset() == 0 || reader.first().valid)) {
        const auto splices = tagSplices(block, changes, dropsThumbnail);
        return splices ? std::optional(spliced(block, *splices)) : std::nullopt;
    }
    const bool sets = std::any_of(changes.begin(), changes.end(),
                                  [](const TagChange &change) { return change.what == TagChange::What::Set; });
    if (!sets)
        return block;
    const QByteArray empty("II*\0\0\0\0\0", 8);
    const auto splices = tagSplices(empty, changes, false);
    return splices ? std::optional(spliced(empty, *splices) + block) : std::nullopt;
}

std::optional<QByteArray> tagValue(const QByteArray &block, TagChange::Directory directory, quint16 tag, qint64 longest)
{
    const TiffReader reader(block);
    TiffDirectory where = reader.first();
    if (directory == Directory::Exif)
        where = reader.directory(reader.integer(where, tiffTag::exifDirectory));
    const TiffEntry *entry = where.findSound(tag);
    if (!entry || entry->value.size > longest)
        return std::nullopt;
    return reader.value(*entry, longest);
}

QString tagText(const QByteArray &block, TagChange::Directory directory, quint16 tag)
{
    constexpr qint64 longestText = 1 << 20;
    QByteArray bytes = tagValue(block, directory, tag, longestText).value_or(QByteArray());
    if (const qsizetype end = bytes.indexOf('\0'); end >= 0)
        bytes.truncate(end);
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : text;
}

} // namespace platform
