#pragma once

#include "platform/controls/panels.h"

#include <QObject>

namespace platform {

/** A save panel whose allowed types can change while it is open. Main thread only. */
class SavePanel : public QObject
{
    Q_OBJECT
    /** Extensions without the dot; the first is the one that a name without extension gets. */
    Q_PROPERTY(QStringList allowedTypes READ allowedTypes WRITE setAllowedTypes NOTIFY allowedTypesChanged)

public:
    using QObject::QObject;

    QStringList allowedTypes() const { return m_request.types.value_or(QStringList()); }
    void setAllowedTypes(const QStringList &types);

    /** Shows the panel and returns when it closes; the kind of panel in @p request is ignored. Modal. */
    PanelAnswer run(const PanelRequest &request);

Q_SIGNALS:
    void allowedTypesChanged(const QStringList &types);

private:
    PanelRequest m_request;
};

} // namespace platform
