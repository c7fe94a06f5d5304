#pragma once

#include <QMetaType>

namespace platform {

/**
 * The argument of an operation that takes a yes or a no as a number: on for exactly 1 and true, off for every other
 * number and false. Scripts pass a boolean or a number.
 */
struct Flag
{
    bool on = false;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::Flag)
