#include "platform/imageio/load/library_versions.h"

#include <QtGlobal>

#include <cairo.h>
#include <exiv2/exiv2.hpp>
#include <libdeflate.h>
#include <openjpeg.h>
#include <vips/vips.h>

namespace platform {
namespace {

QString numbered(int major, int minor, int micro)
{
    return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(micro);
}

} // namespace

// If a library cannot be asked, the version that the program was built with.
QList<Library> librariesInUse()
{
    return {
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion()), QStringLiteral("LGPL 3")},
        {QStringLiteral("libvips"), numbered(vips_version(0), vips_version(1), vips_version(2)),
         QStringLiteral("LGPL 2.1")},
        {QStringLiteral("exiv2"), QString::fromLatin1(Exiv2::version()), QStringLiteral("GPL 2")},
        {QStringLiteral("Cairo"), QString::fromLatin1(cairo_version_string()), QStringLiteral("LGPL 2.1")},
        {QStringLiteral("libjpeg-turbo"), QStringLiteral(QUORLIN_JPEG_VERSION), QStringLiteral("IJG, BSD")},
        {QStringLiteral("libdeflate"), QStringLiteral(LIBDEFLATE_VERSION_STRING), QStringLiteral("MIT")},
        {QStringLiteral("OpenJPEG"), QString::fromLatin1(opj_version()), QStringLiteral("BSD")},
        {QStringLiteral("libplist"), QStringLiteral(QUORLIN_PLIST_VERSION), QStringLiteral("LGPL 2.1")},
    };
}

QString librariesText()
{
    QString text;
    for (const Library &library : librariesInUse())
        text += library.name + u' ' + library.version + u'\n';
    return text;
}

} // namespace platform
