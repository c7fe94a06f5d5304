#include "app/network/version_file.h"

#include "app/setup/configuration.h"

#include "platform/controls/controls.h"
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

/** Whether field 1 begins with a number. */
bool namesABuild(const QString &text)
{
    QString field = text.section(u';', 1, 1).trimmed();
    if (field.startsWith(u'-') || field.startsWith(u'+'))
        field.remove(0, 1);
    return !field.isEmpty() && field.front() >= u'0' && field.front() <= u'9';
}

} // namespace

QUrl versionFileAddress()
{
    // The host is put in front of the path unchanged, except for a trailing "/".
    QString host = updateHost().trimmed();
    while (host.endsWith(u'/'))
        host.chop(1);
    return QUrl(host + QStringLiteral("/version/Quorlin.txt"));
}

VersionAnswer versionAnswer(const platform::Result<QString> &text, int runningBuild)
{
    if (!text)
        return {std::nullopt, text.error().message};
    VersionAnswer answer{newerVersion(*text, runningBuild), {}};
    if (!answer.fields && !namesABuild(*text))
        answer.problem = QStringLiteral("What the server sent is no version file");
    return answer;
}

std::optional<QStringList> newerVersion(const QString &text, int runningBuild)
{
    const QStringList fields = text.split(u';');
    if (platform::leadingInteger(fieldOf(fields, 1)) <= runningBuild)
        return std::nullopt;
    return QStringList{fieldOf(fields, 0), fieldOf(fields, 2), fieldOf(fields, 3)};
}

} // namespace app
