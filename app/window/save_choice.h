#pragma once

#include "app/window/forms/ui_form.h"
#include "platform/controls/save_panel.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

namespace window {

/** A save panel for scripts that contains a form of theirs under the list of files. Made by Shell::saveChoice(). */
class SaveChoice : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Shows the panel and waits until it closes. The extension is appended to the typed name unless that ends in one of
     * the same type, as "a.jpg" does for the extension "jpeg".
     *
     * @param view       embedded in the panel and handed back afterwards
     * @param name       the suggested name, without extension
     * @param folder     where the panel opens; the desktop if it does not exist
     * @param wantsTags  with a field for tags
     * @return {path, tags}, or null if it was cancelled; a file at the path may be replaced, since the panel has asked
     */
    Q_INVOKABLE QVariant choose(window::Form *view, const QString &name, const QString &folder,
                                const QString &extension, bool wantsTags);
    /** Changes the type while the panel is open: the name in it gets this extension. */
    Q_INVOKABLE void setExtension(const QString &extension);
    /** Adds tags to a file, if its file system supports them. */
    Q_INVOKABLE void tag(const QString &path, const QStringList &tags) const;

private:
    QPointer<platform::SavePanel> m_panel;
};

} // namespace window
