#include "app/version_file.h"

#include "platform/desktop/controls.h"
#include "platform/foundation/raised.h"

namespace app {
namespace {

QString fieldOf(const QStringList &fields, int index)
{
    if (index >= fields.size())
        throw platform::Raised::rangeError(QStringLiteral("The version file has no field %1: it ends with field %2")
                                               .arg(index)
                                               .arg(fields.size() - 1));
    return fields.at(index);
}

} // namespace

std::optional<QStringList> newerVersion(const QString &text, int runningBuild)
{
    const QStringList fields = text.split(u';');
    if (platform::leadingInteger(fieldOf(fields, 1)) <= runningBuild)
        return std::nullopt;
    return QStringList{fieldOf(fields, 0), fieldOf(fields, 2), fieldOf(fields, 3)};
}

} // namespace app
