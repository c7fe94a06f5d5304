#include "meta/edit_log.h"

#include <QDateTime>
#include <QFileInfo>

namespace meta {

QVariantMap editLogRow(const QString &path, const QString &status)
{
    const QString name = QFileInfo(path).fileName();
    return {{QStringLiteral("LogDate"), QDateTime::currentDateTime()},
            {QStringLiteral("LogProcess"), QStringLiteral("File Editing")},
            {QStringLiteral("LogAction"), QStringLiteral("Edit meta data")},
            {QStringLiteral("LogStatus"), status},
            {QStringLiteral("LogI"), name},
            {QStringLiteral("LogO"), name},
            {QStringLiteral("LogIpath"), path},
            {QStringLiteral("LogOpath"), path}};
}

} // namespace meta
