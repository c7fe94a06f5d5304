#include "app/window/save_choice.h"

#include "files/items/saving.h"
#include "platform/desktop/tags.h"

#include <QFileInfo>

namespace window {

QVariant SaveChoice::choose(Form *view, const QString &name, const QString &folder, const QString &extension,
                            bool wantsTags)
{
    platform::PanelRequest request = files::saveRequest(extension, name);
    request.folder = QFileInfo(folder).isDir() ? folder : files::startFolder();
    request.showsTagField = wantsTags;
    request.accessory = view ? view->root() : nullptr;
    platform::SavePanel panel;
    m_panel = &panel;
    const platform::PanelAnswer answer = panel.run(request);
    const QString path = files::chosenPath(answer);
    if (path.isNull())
        return QVariant::fromValue(nullptr);
    return QVariantMap{{QStringLiteral("path"), path}, {QStringLiteral("tags"), answer.tags}};
}

void SaveChoice::setExtension(const QString &extension)
{
    if (m_panel)
        m_panel->setAllowedTypes({extension});
}

void SaveChoice::tag(const QString &path, const QStringList &tags) const
{
    (void)platform::setTags(path, tags);
}

} // namespace window
