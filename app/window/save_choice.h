#pragma once

#include "app/window/forms/ui_form.h"
#include "platform/controls/save_panel.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

namespace window {

/** A save panel for scripts, with a form of theirs under the list of files. Made by Shell::saveChoice(). */
class SaveChoice : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Shows the panel and waits until it closes. What is typed gets the extension unless it ends in one of the same type, as "a.jpg" does
     * where the extension is "jpeg".
     *
     * @param view       lies in the panel and is given back
     * @param name       that is offered, without extension
     * @param folder     where the panel begins; the desktop where it is not there
     * @param wantsTags  with a field for tags
     * @return {path, tags}, or null where it was cancelled; a file that is at the path may be replaced, which was asked
     */
    Q_INVOKABLE QVariant choose(window::Form *view, const QString &name, const QString &folder,
                                const QString &extension, bool wantsTags);
    /** Another type, while the panel is up: the name that stands in it gets this extension. */
    Q_INVOKABLE void setExtension(const QString &extension);
    /** Gives a file tags, where its disk has them. */
    Q_INVOKABLE void tag(const QString &path, const QStringList &tags) const;

private:
    QPointer<platform::SavePanel> m_panel;
};

} // namespace window
