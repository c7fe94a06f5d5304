#include "platform/desktop/sheets.h"

#include <QObject>
#include <QVariant>

namespace platform {

void beginSheet(QObject *window, QObject *sheet)
{
    if (window && window->metaObject()->indexOfProperty("sheet") >= 0)
        window->setProperty("sheet", QVariant::fromValue(sheet));
}

} // namespace platform
