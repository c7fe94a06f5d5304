#pragma once

#include "platform/imageio/xmp/xmp_edit.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

namespace platform {

/** A tag of EXIF in the first directory, or in the one that belongs to EXIF. */
struct TagChange
{
    enum class Directory { First, Exif };
    enum class What {
        Set,
        SetIfThere, ///< only where the picture states one already
        Remove,     ///< with its value, which becomes zeros; of a pointer also the directory that it leads to
    };

    Directory directory = Directory::First;
    quint16 tag = 0;
    What what = What::Set;
    quint16 type = 2;      ///< 1 bytes, 2 text, 3 a number of two bytes, 7 bytes
    QByteArray value = {}; ///< as the file has it, a text with its zero; a number with its highest byte first
};

/** A data set of the application record of IPTC. */
struct IptcChange
{
    quint8 dataSet = 0;
    QStringList texts; ///< one for each time that it is stated, as long as they are to be there; none takes it out
};

/** How a property of XMP holds its texts. */
enum class XmpForm {
    Text,
    Alternatives, ///< by language; of these the one for everybody
    Bag,
    Sequence,
    Member, ///< one text of a structure
};

struct XmpChange
{
    XmpName property;
    QString prefix; ///< that is usual for its namespace
    XmpForm form = XmpForm::Text;
    QStringList texts;   ///< none takes it out
    QString member = {}; ///< of a structure, in the same namespace
    bool onlyIfThere = false;
};

/** What is to change in the metadata of a picture. Everything else stays. */
struct MetadataChange
{
    QList<TagChange> tags;
    QList<IptcChange> iptc;
    QList<XmpChange> xmp;
    /** Properties that are taken out, beside those above. */
    std::function<bool(const XmpName &)> dropsXmp = {};
    /** Small pictures of the picture: the directory behind the first one of an EXIF block, and those of Photoshop. */
    bool dropsThumbnails = false;

    bool isEmpty() const { return tags.isEmpty() && iptc.isEmpty() && xmp.isEmpty() && !dropsXmp && !dropsThumbnails; }
};

} // namespace platform
