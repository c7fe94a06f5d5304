#include "platform/imageio/formats/type_identifiers.h"

#include "platform/foundation/paths.h"
#include "platform/imageio/formats/formats.h"

#include <array>

namespace platform {
namespace {

struct OtherType
{
    QLatin1String extension;
    QLatin1String identifier;
};

/** Types that are no pictures but have a name. */
constexpr std::array<OtherType, 2> otherTypes = {{
    {QLatin1String("txt"), QLatin1String("public.plain-text")},
    {QLatin1String("html"), QLatin1String("public.html")},
}};

/** All extensions of the row with this one; none if no row has it. */
QStringList extensionsBeside(const QString &lower, QLatin1String *identifier = nullptr)
{
    for (const Format &format : formats()) {
        const QStringList extensions = QString(format.extensions).split(u' ');
        if (!extensions.contains(lower))
            continue;
        if (identifier)
            *identifier = format.identifier;
        return extensions;
    }
    return {};
}

} // namespace

QString typeIdentifierForExtension(const QString &extension)
{
    const QString lower = extension.toLower();
    QLatin1String identifier;
    if (!extensionsBeside(lower, &identifier).isEmpty())
        return identifier;
    for (const OtherType &type : otherTypes)
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
    QStringList extensions = extensionsBeside(lower);
    extensions.removeOne(lower);
    return QStringList(lower) + extensions;
}

} // namespace platform
