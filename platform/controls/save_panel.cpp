#include "platform/controls/save_panel.h"

namespace platform {

void SavePanel::setAllowedTypes(const QStringList &types)
{
    if (m_request.types == types)
        return;
    m_request.types = types;
    Q_EMIT allowedTypesChanged(types);
}

PanelAnswer SavePanel::run(const PanelRequest &request)
{
    m_request = request;
    m_request.kind = PanelKind::Save;
    m_request.panel = this;
    return runPanel(m_request);
}

} // namespace platform
