#include "platform/imageio/jpeg2000/jp2_profile.h"

#include "platform/foundation/byte_order.h"
#include "platform/graphics/icc_profile.h"

#include <QtEndian>

namespace platform {
namespace {

constexpr qsizetype boxHeaderBytes = 8;

struct Box
{
    qsizetype start = -1;
    qsizetype size = 0;

    bool isThere() const { return start >= 0; }
};

/** The first box called @p name between @p begin and @p end. */
Box findBox(const QByteArray &file, const char *name, qsizetype begin, qsizetype end)
{
    qsizetype position = begin;
    while (position + boxHeaderBytes <= end) {
        const auto size = qsizetype(qFromBigEndian<quint32>(file.constData() + position));
        if (size < boxHeaderBytes || position + size > end)
            return {}; // a last box without a length, or one with a long length: never before what is searched for
        if (file.mid(position + 4, 4) == name)
            return {position, size};
        position += size;
    }
    return {};
}

Box colourBox(const QByteArray &file)
{
    const Box header = findBox(file, "jp2h", 0, file.size());
    if (!header.isThere())
        return {};
    return findBox(file, "colr", header.start + boxHeaderBytes, header.start + header.size);
}

bool hasTag(const QByteArray &profile, const char *name)
{
    return !iccTag(profile, name).isEmpty();
}

} // namespace

bool fitsJpeg2000(const QByteArray &iccProfile)
{
    const QByteArray space = iccProfile.mid(16, 4);
    if (space == "GRAY")
        return hasTag(iccProfile, "kTRC");
    return space == "RGB " && hasTag(iccProfile, "rXYZ") && !hasTag(iccProfile, "A2B0");
}

QByteArray jpeg2000Profile(const QByteArray &head)
{
    const Box colour = colourBox(head);
    constexpr qsizetype methodBytes = 3;
    constexpr char byProfile = 2;
    if (!colour.isThere() || colour.size <= boxHeaderBytes + methodBytes ||
        head[colour.start + boxHeaderBytes] != byProfile)
        return {};
    return head.mid(colour.start + boxHeaderBytes + methodBytes, colour.size - boxHeaderBytes - methodBytes);
}

QByteArray withJpeg2000Profile(const QByteArray &file, const QByteArray &iccProfile)
{
    const Box header = findBox(file, "jp2h", 0, file.size());
    const Box colour =
        header.isThere() ? findBox(file, "colr", header.start + boxHeaderBytes, header.start + header.size) : Box();
    if (!colour.isThere())
        return file;
    const QByteArray byProfile("\x02\x00\x00", 3); // method, precedence, approximation
    const qsizetype newSize = boxHeaderBytes + byProfile.size() + iccProfile.size();
    QByteArray result = file.left(header.start) + bigEndian(quint32(header.size - colour.size + newSize));
    result += file.mid(header.start + 4, colour.start - header.start - 4);
    result += bigEndian(quint32(newSize)) + "colr" + byProfile + iccProfile;
    result += file.mid(colour.start + colour.size);
    return result;
}

} // namespace platform
