#include "platform/imageio/exif/tiff_comment.h"

#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/tiff/camera_raw.h"
#include "platform/imageio/tiff/tiff_extents.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <QSet>

#include <algorithm>

namespace platform {
namespace {

class CommentEditor
{
public:
    CommentEditor(const QByteArray &bytes, const QString &comment)
        : m_bytes(bytes), m_reader(bytes), m_kept(bytes.size()),
          m_value(encodeUserComment(comment, m_reader.form().little ? QSysInfo::LittleEndian : QSysInfo::BigEndian))
    {
    }

    /** It has a first directory, or none at all. */
    bool isSound() const;
    void dropOtherPages();
    void setComment();
    std::optional<QList<Splice>> splices() const;

private:
    const TiffForm &form() const { return m_reader.form(); }
    quint64 append(const QByteArray &bytes);
    void overwrite(qint64 at, const QByteArray &bytes);
    void replaceComment(const TiffEntry &tag);
    void replaceMisplaced(const TiffEntry &tag);
    bool hasPlace(const TiffEntry &tag) const;
    QByteArray commentEntry();
    quint64 newDirectory(const TiffDirectory &old, quint16 tag, const QByteArray &entry);
    QByteArray pointerTo(quint64 directory) const;
    bool isShared(const TiffRange &range) const;
    bool changesPixels() const;
    TiffRange roomOf(const TiffRange &range) const;

    const QByteArray &m_bytes;
    TiffReader m_reader;
    qint64 m_kept; ///< of the old bytes; new ones are appended
    QByteArray m_value;
    QByteArray m_appended;
    QList<Splice> m_overwritten;
};

/** After what is kept. */
quint64 CommentEditor::append(const QByteArray &bytes)
{
    return appendEven(m_appended, bytes, m_kept);
}

void CommentEditor::overwrite(qint64 at, const QByteArray &bytes)
{
    m_overwritten.append({at, bytes.size(), bytes});
}

bool CommentEditor::isSound() const
{
    if (!m_reader.isValid())
        return false;
    const quint64 first = m_reader.firstOffset();
    return first == 0 || m_reader.directory(first).valid;
}

void CommentEditor::dropOtherPages()
{
    const TiffDirectory first = m_reader.first();
    if (!first.valid || first.next == 0)
        return;
    overwrite(first.nextAt, QByteArray(form().offsetSize(), '\0'));
    const TiffExtents used = tiffExtents(m_reader, TiffPages::First);
    if (!used.isComplete)
        return;
    m_kept = form().headerSize();
    for (const TiffRange &range : used.ranges)
        m_kept = std::max(m_kept, range.end());
}

QByteArray CommentEditor::pointerTo(quint64 directory) const
{
    return form().entry(tiffTag::exifDirectory, form().big ? tiffType::bigDirectoryType : tiffType::longType, 1,
                        form().offset(directory));
}

QByteArray CommentEditor::commentEntry()
{
    const bool fits = m_value.size() <= form().offsetSize();
    const QByteArray field = fits ? m_value : form().offset(append(m_value));
    return form().entry(tiffTag::userComment, tiffType::undefinedType, quint64(m_value.size()), field);
}

/** The old entries unchanged and a new one among them; the old directory is left in place. */
quint64 CommentEditor::newDirectory(const TiffDirectory &old, quint16 tag, const QByteArray &newEntry)
{
    QByteArray entries;
    bool isIn = false;
    for (const TiffEntry &each : old.entries) {
        if (each.tag == tag || each.tag == tiffTag::userComment) // one in the wrong directory is not moved with it
            continue;
        if (!isIn && each.tag > tag) {
            entries += newEntry;
            isIn = true;
        }
        entries += m_bytes.mid(each.at, form().entrySize());
    }
    if (!isIn)
        entries += newEntry;
    const bool goesOn = old.valid && std::none_of(m_overwritten.begin(), m_overwritten.end(),
                                                  [&](const Splice &splice) { return splice.at == old.nextAt; });
    return append(form().directory(entries, goesOn ? old.next : 0));
}

/** True if any other known data uses some of these bytes: only in a damaged file. */
bool CommentEditor::isShared(const TiffRange &range) const
{
    qsizetype users = range.start < form().headerSize() ? 2 : 0;
    for (const TiffRange &used : tiffExtents(m_reader, TiffPages::All).ranges)
        users += range.overlaps(used);
    return users > 1; // the comment itself is one
}

/** A shorter comment left zeros behind, which are room for a longer one if nothing follows. */
TiffRange CommentEditor::roomOf(const TiffRange &range) const
{
    const TiffRange toTheEnd{range.start, m_kept - range.start};
    const auto first = m_bytes.begin() + range.end();
    const bool isFree = std::all_of(first, m_bytes.begin() + m_kept, [](char byte) { return byte == '\0'; });
    return isFree && !isShared(toTheEnd) ? toTheEnd : range;
}

/** Its value is stored separately, and may be overwritten. */
bool CommentEditor::hasPlace(const TiffEntry &tag) const
{
    return tag.isSound() && !tag.isInline && tag.value.end() <= m_kept && !isShared(tag.value);
}

/** A comment in the first directory, where it does not belong but some readers look: it is kept equal. */
void CommentEditor::replaceMisplaced(const TiffEntry &tag)
{
    if (hasPlace(tag))
        overwrite(tag.value.start, QByteArray(tag.value.size, '\0'));
    overwrite(tag.at, commentEntry());
}

void CommentEditor::replaceComment(const TiffEntry &tag)
{
    const bool isAlone = hasPlace(tag);
    const TiffRange room = isAlone ? roomOf(tag.value) : TiffRange();
    const bool hasRoom = room.size >= m_value.size() && m_value.size() > form().offsetSize();
    if (hasRoom) {
        overwrite(tag.at, form().entry(tiffTag::userComment, tiffType::undefinedType, quint64(m_value.size()),
                                       form().offset(quint64(tag.value.start))));
        overwrite(room.start, m_value.leftJustified(room.size, '\0'));
        return;
    }
    if (isAlone && room.end() == m_kept)
        m_kept = tag.value.start;
    else if (isAlone) // the old text must not remain in the file
        overwrite(tag.value.start, QByteArray(tag.value.size, '\0'));
    overwrite(tag.at, commentEntry());
}

void CommentEditor::setComment()
{
    const TiffDirectory first = m_reader.first();
    const TiffEntry *pointer = first.find(tiffTag::exifDirectory);
    const TiffDirectory exif = pointer ? m_reader.directory(m_reader.integer(*pointer)) : TiffDirectory();
    const TiffEntry *misplaced = first.find(tiffTag::userComment);
    if (const TiffEntry *comment = exif.find(tiffTag::userComment)) {
        replaceComment(*comment);
        if (misplaced)
            replaceMisplaced(*misplaced);
        return;
    }
    const quint64 directory = newDirectory(exif, tiffTag::userComment, commentEntry());
    if (pointer)
        overwrite(pointer->at, pointerTo(directory));
    if (pointer && misplaced)
        replaceMisplaced(*misplaced);
    if (pointer)
        return;
    if (misplaced && hasPlace(*misplaced))
        overwrite(misplaced->value.start, QByteArray(misplaced->value.size, '\0'));
    const quint64 newFirst = newDirectory(first, tiffTag::exifDirectory, pointerTo(directory));
    overwrite(form().firstAt(), form().offset(newFirst));
}

/** In a damaged file pixels may overlap with directories. */
bool CommentEditor::changesPixels() const
{
    const QList<TiffRange> pixels = tiffExtents(m_reader, TiffPages::All).pixels;
    return std::any_of(m_overwritten.begin(), m_overwritten.end(), [&pixels](const Splice &splice) {
        const TiffRange changed{splice.at, splice.removed};
        return std::any_of(pixels.begin(), pixels.end(),
                           [&changed](const TiffRange &each) { return each.overlaps(changed); });
    });
}

std::optional<QList<Splice>> CommentEditor::splices() const
{
    constexpr qint64 largestClassic = 0xffffffff;
    if (!m_reader.isValid() || (!form().big && m_kept + m_appended.size() > largestClassic) || changesPixels())
        return std::nullopt;
    QList<Splice> all = m_overwritten;
    std::stable_sort(all.begin(), all.end(), [](const Splice &a, const Splice &b) { return a.at < b.at; });
    for (qsizetype i = 1; i < all.size(); ++i)
        if (all[i].at < all[i - 1].at + all[i - 1].removed)
            return std::nullopt; // overlapping directories
    if (!all.isEmpty() && all.last().at + all.last().removed > m_kept)
        return std::nullopt;
    if (m_kept < m_bytes.size() || !m_appended.isEmpty())
        all.append({m_kept, m_bytes.size() - m_kept, m_appended});
    return all;
}

/** True if a reader that follows the directories finds this comment. */
bool holdsComment(const QByteArray &block, const QString &comment)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.first();
    const TiffEntry *pointer = first.find(tiffTag::exifDirectory);
    const TiffDirectory exif = pointer ? reader.directory(reader.integer(*pointer)) : TiffDirectory();
    const TiffEntry *tag = exif.find(tiffTag::userComment);
    const auto order = reader.form().little ? QSysInfo::LittleEndian : QSysInfo::BigEndian;
    return tag && tag->isSound() && block.mid(tag->value.start, tag->value.size) == encodeUserComment(comment, order);
}

} // namespace

std::optional<QList<Splice>> userCommentSplices(const QByteArray &bytes, const QString &comment, OtherPages pages)
{
    CommentEditor editor(bytes, comment);
    if (!editor.isSound())
        return std::nullopt;
    if (pages == OtherPages::Drop)
        editor.dropOtherPages();
    editor.setComment();
    return editor.splices();
}

bool tellsWhereItsPixelsAre(const QByteArray &bytes)
{
    const TiffReader reader(bytes);
    const TiffDirectory first = reader.first();
    const auto all = quint64(bytes.size());
    for (const auto &[offsetsTag, sizesTag] :
         {std::pair(tiffTag::stripOffsets, tiffTag::stripSizes), {tiffTag::tileOffsets, tiffTag::tileSizes}}) {
        const TiffEntry *offsets = first.find(offsetsTag);
        const TiffEntry *sizes = first.find(sizesTag);
        if (!offsets && !sizes)
            continue;
        if (!offsets || !sizes || !offsets->isSound() || !sizes->isSound() || offsets->count != sizes->count)
            return false;
        for (quint64 i = 0; i < offsets->count; ++i) {
            const quint64 start = reader.integer(*offsets, i);
            if (start < quint64(reader.form().headerSize()) || start > all || reader.integer(*sizes, i) > all - start)
                return false;
        }
        return offsets->count > 0;
    }
    return isCameraRaw(bytes); // which may have one further down
}

int otherPageCount(const QByteArray &bytes)
{
    constexpr qsizetype mostPages = 65536;
    const TiffReader reader(bytes);
    QSet<quint64> met;
    TiffDirectory page = reader.first();
    while (page.valid && page.next != 0 && !met.contains(page.next) && met.size() < mostPages) {
        met.insert(page.next);
        page = reader.directory(page.next);
    }
    return int(met.size());
}

QByteArray exifBlockWithUserComment(const QByteArray &block, const QString &comment)
{
    const TiffReader reader(block);
    if (reader.isClassic())
        if (const auto splices = userCommentSplices(block, comment, OtherPages::Keep)) {
            const QByteArray edited = spliced(block, *splices);
            return holdsComment(edited, comment) ? edited : QByteArray();
        }
    if (reader.isClassic() && reader.first().valid)
        return {}; // its contents can be read, and would be lost
    const QByteArray empty("II*\0\0\0\0\0", 8);
    const auto splices = userCommentSplices(empty, comment, OtherPages::Keep);
    return splices ? spliced(empty, *splices) + block : QByteArray();
}

} // namespace platform
