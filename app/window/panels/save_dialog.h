#pragma once

#include "platform/controls/panels.h"

#include <QFileDialog>

class QGridLayout;
class QLineEdit;

namespace window {

/**
 * A save panel with a view of the caller's in it, whose types can change while it is open, and a field for tags.
 *
 * From the top: the files, the name, the tags, the view, the buttons. It is large enough to look around in and opens as large
 * as it was when it closed last; one with a view and one without remember that apart.
 */
class SaveDialog : public QFileDialog
{
    Q_OBJECT

public:
    SaveDialog(const platform::PanelRequest &request, QWidget *parent);
    /** Gives the caller's view back. */
    ~SaveDialog() override;

    /** The chosen path, with the extension that it must have. */
    QString chosenPath() const;
    QStringList tags() const;

    void done(int result) override;

protected:
    void accept() override;

private:
    void allow(const QStringList &types);
    void arrange(const platform::PanelRequest &request);
    void addView(QGridLayout *grid, QWidget *view);
    void addTagField(QGridLayout *grid);
    void showNames();
    void takeSize();
    bool mayReplace(const QString &path);

    QStringList m_types;
    bool m_allowsOthers;
    QPointer<QWidget> m_view;
    QLineEdit *m_tags = nullptr;
};

/** The path with the extension of the first type behind it, unless it has one that means any of the types. */
QString withAllowedExtension(const QString &path, const QStringList &types);

/**
 * A file name with @p extension in the place of one that means the type @p before; any other stays part of the name. Without
 * @p before, a name that has an extension of the type already keeps it.
 */
QString renamedTo(const QString &name, const QString &extension, const QString &before);

} // namespace window
