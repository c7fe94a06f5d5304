#pragma once

#include <QCollator>

namespace platform {

/**
 * The order in which people expect names: letters without regard to case, in the order of the reader's language, and
 * numbers by their value, so that "2" comes before "10". In the C locale, whose own order is that of the codes and knows
 * no numbers, it is the order of English.
 */
QCollator naturalOrder();

} // namespace platform
