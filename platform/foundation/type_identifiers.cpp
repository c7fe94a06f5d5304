#include "platform/foundation/type_identifiers.h"

#include "platform/foundation/paths.h"

#include <array>

namespace platform {
namespace {

struct KnownType
{
    QLatin1String extension;
    QLatin1String identifier;
};

constexpr auto latin1(const char *text)
{
    return QLatin1String(text);
}

const std::array<KnownType, 18> knownTypes = {{
    {latin1("jpg"), latin1("public.jpeg")},
    {latin1("jpeg"), latin1("public.jpeg")},
    {latin1("jpe"), latin1("public.jpeg")},
    {latin1("png"), latin1("public.png")},
    {latin1("tif"), latin1("public.tiff")},
    {latin1("tiff"), latin1("public.tiff")},
    {latin1("bmp"), latin1("public.bmp")},
    {latin1("gif"), latin1("com.compuserve.gif")},
    {latin1("jp2"), latin1("public.jp2")},
    {latin1("psd"), latin1("com.adobe.photoshop-image")},
    {latin1("pdf"), latin1("com.adobe.pdf")},
    {latin1("heic"), latin1("public.heic")},
    {latin1("heif"), latin1("public.heif")},
    {latin1("webp"), latin1("org.webmproject.webp")},
    {latin1("avif"), latin1("public.avif")},
    {latin1("svg"), latin1("public.svg-image")},
    {latin1("txt"), latin1("public.plain-text")},
    {latin1("html"), latin1("public.html")},
}};

} // namespace

QString typeIdentifierForExtension(const QString &extension)
{
    const QString lower = extension.toLower();
    for (const KnownType &type : knownTypes)
        if (lower == type.extension)
            return type.identifier;
    return QStringLiteral("dyn.") + lower;
}

QString typeIdentifierForPath(const QString &path)
{
    return typeIdentifierForExtension(pathExtension(path));
}

QStringList extensionsOfSameType(const QString &extension)
{
    const QString lower = extension.toLower();
    const QString identifier = typeIdentifierForExtension(extension);
    QStringList extensions(lower);
    for (const KnownType &type : knownTypes)
        if (type.identifier == identifier && type.extension != lower)
            extensions.append(type.extension);
    return extensions;
}

} // namespace platform
