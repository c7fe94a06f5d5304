#pragma once

#include <QIdentityProxyModel>

class QFileDialog;

namespace window {

/** The files of the toolkit's panel, with sizes and dates in the form that the rest of the program uses. */
class PanelFiles : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
};

/** Shows them in @p dialog, which owns the model; a panel of the desktop stays as it is. */
void showFilesInOwnForm(QFileDialog &dialog);

} // namespace window
