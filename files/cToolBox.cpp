#include "files/cToolBox.h"

#include "files/input_collection.h"

namespace {

QVariant listOrNull(const std::optional<QStringList> &paths)
{
    return paths ? QVariant(*paths) : QVariant::fromValue(nullptr);
}

} // namespace

cToolBox::cToolBox(QObject *parent) : QObject(parent) {}

QVariant cToolBox::hOpenDialogFiles(const QString &actionType)
{
    return listOrNull(files::collectInput(files::ActionFamily::Standard, actionType));
}

QVariant cToolBox::hOpenDialogFilesOC(const QString &actionType)
{
    return listOrNull(files::collectInput(files::ActionFamily::Ordering, actionType));
}
