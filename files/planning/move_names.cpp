#include "files/planning/move_names.h"

#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"

#include <QFile>

#include <climits>

namespace files {
namespace {

MoveProblem faultOfName(QStringView name)
{
    if (name.trimmed().isEmpty())
        return MoveProblem::Empty;
    if (name == QStringLiteral(".") || name == QStringLiteral("..") || name.contains(QChar(u'\0')) ||
        !name.isValidUtf16())
        return MoveProblem::Illegal;
    return name.size() * 3 > platform::longestNameBytes && name.toUtf8().size() > platform::longestNameBytes
               ? MoveProblem::TooLong
               : MoveProblem::None;
}

} // namespace

QString placeKey(const QString &folder, const QString &name)
{
    return platform::joinedPath(folder, platform::nameKey(name));
}

MoveProblem faultOfPath(const QString &path)
{
    if (!path.startsWith(u'/'))
        return path.isEmpty() ? MoveProblem::Empty : MoveProblem::Illegal;
    for (qsizetype at = 1; at <= path.size();) {
        const qsizetype slash = path.indexOf(u'/', at);
        const qsizetype end = slash < 0 ? path.size() : slash;
        if (const MoveProblem fault = faultOfName(QStringView(path).mid(at, end - at)); fault != MoveProblem::None)
            return fault;
        at = end + 1;
    }
    return path.size() * 3 >= PATH_MAX && QFile::encodeName(path).size() >= PATH_MAX ? MoveProblem::TooLong
                                                                                     : MoveProblem::None;
}

} // namespace files
