#include "files/items/saving.h"

#include "files/items/rename_by_location.h"

#include <QStandardPaths>

namespace files {

QString actionFileExtension()
{
    return QStringLiteral("c-action");
}

platform::PanelRequest saveRequest(const QString &type, const QString &name)
{
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Save;
    request.types = QStringList{type};
    request.name = name;
    return request;
}

platform::PanelRequest actionFileRequest()
{
    platform::PanelRequest request;
    request.types = QStringList{actionFileExtension()};
    return request;
}

QString chosenPath(const platform::PanelAnswer &answer)
{
    return answer.accepted ? answer.paths.value(0) : QString();
}

QString startFolder()
{
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    return locationFromText(desktop) ? desktop : QString();
}

} // namespace files
