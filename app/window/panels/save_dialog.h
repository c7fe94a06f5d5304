#pragma once

#include "platform/controls/panels.h"

#include <QFileDialog>

class QGridLayout;
class QLineEdit;

namespace window {

/**
 * A save panel that contains a view of the caller's, whose types can change while it is open, and that has a field for
 * tags.
 *
 * From the top: files, name, tags, view, buttons. It is large enough to look around in and opens at its last size;
 * panels with and without a view remember that separately.
 */
class SaveDialog : public QFileDialog
{
    Q_OBJECT

public:
    SaveDialog(const platform::PanelRequest &request, QWidget *parent);
    /** Hands back the caller's view. */
    ~SaveDialog() override;

    /** The chosen path, with the required extension. */
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

/** The path with the extension of the first type appended, unless it has one that means any of the types. */
QString withAllowedExtension(const QString &path, const QStringList &types);

/**
 * A file name with @p extension instead of one that means the type @p before; any other extension stays part of the
 * name. Without
 * @p before, a name that has an extension of the type already keeps it.
 */
QString renamedTo(const QString &name, const QString &extension, const QString &before);

} // namespace window
