#pragma once

#include "platform/imageio/xmp/xmp_edit.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

namespace platform {

/** A tag of EXIF in the first directory, or in the EXIF directory. */
struct TagChange
{
    enum class Directory { First, Exif };
    enum class What {
        Set,
        SetIfThere, ///< only if the picture has one already
        Remove,     ///< with its value, which becomes zeros; for a pointer also its directory
    };

    Directory directory = Directory::First;
    quint16 tag = 0;
    What what = What::Set;
    quint16 type = 2;      ///< 1 bytes, 2 text, 3 a number of two bytes, 7 bytes
    QByteArray value = {}; ///< as in the file, a text with its zero; a number big-endian
};

/** A data set of the application record of IPTC. */
struct IptcChange
{
    quint8 dataSet = 0;
    QStringList texts; ///< one for each occurrence to be present; none removes it
};

/** How a property of XMP stores its texts. */
enum class XmpForm {
    Text,
    Alternatives, ///< by language; the default one is used
    Bag,
    Sequence,
    Member, ///< one text of a structure
};

struct XmpChange
{
    XmpName property;
    QString prefix; ///< the usual one for its namespace
    XmpForm form = XmpForm::Text;
    QStringList texts;   ///< none removes it
    QString member = {}; ///< of a structure, in the same namespace
    bool onlyIfThere = false;
};

/** What is to change in the metadata of a picture. Everything else stays. */
struct MetadataChange
{
    QList<TagChange> tags;
    QList<IptcChange> iptc;
    QList<XmpChange> xmp;
    /** Further properties to be removed. */
    std::function<bool(const XmpName &)> dropsXmp = {};
    /** Embedded thumbnails: the second directory of an EXIF block, and those of Photoshop. */
    bool dropsThumbnails = false;

    bool isEmpty() const { return tags.isEmpty() && iptc.isEmpty() && xmp.isEmpty() && !dropsXmp && !dropsThumbnails; }
};

} // namespace platform
