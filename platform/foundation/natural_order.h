#pragma once

#include <QCollator>

namespace platform {

/**
 * The order in which people expect names: letters without regard to case, in the order of the reader's language, and
 * numbers by their value, so that "2" comes before "10". In the C locale, which sorts by code points and ignores
 * numbers, English order is used.
 */
QCollator naturalOrder();

} // namespace platform
