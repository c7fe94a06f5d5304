#include "app/window/panels/panel_files.h"

#include "platform/foundation/human_texts.h"

#include <QFileDialog>
#include <QFileSystemModel>

namespace window {

namespace {

// Of the toolkit's model.
constexpr int sizeColumn = 1;
constexpr int dateColumn = 3;

} // namespace

QVariant PanelFiles::data(const QModelIndex &index, int role) const
{
    const auto *files = qobject_cast<const QFileSystemModel *>(sourceModel());
    if (files && role == Qt::DisplayRole && index.column() == sizeColumn)
        return files->isDir(mapToSource(index)) ? QString()
                                                : platform::localByteCountText(files->size(mapToSource(index)));
    if (files && role == Qt::DisplayRole && index.column() == dateColumn)
        return platform::localDateText(files->lastModified(mapToSource(index)));
    return QIdentityProxyModel::data(index, role);
}

QVariant PanelFiles::headerData(int section, Qt::Orientation orientation, int role) const
{
    // The toolkit's are drawn at the top of a higher header, and that of sizes is not above them.
    if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
        return QVariant::fromValue(Qt::AlignVCenter | (section == sizeColumn ? Qt::AlignRight : Qt::AlignLeft));
    return QIdentityProxyModel::headerData(section, orientation, role);
}

void showFilesInOwnForm(QFileDialog &dialog)
{
    dialog.setProxyModel(new PanelFiles(&dialog));
}

} // namespace window
