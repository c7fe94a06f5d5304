#include "platform/foundation/natural_order.h"

#include <QLocale>

namespace platform {

QCollator naturalOrder()
{
    QCollator order(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

} // namespace platform
