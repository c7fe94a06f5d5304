#pragma once

#include <QMetaType>

namespace platform {

/**
 * The argument of an operation that does not look at it, such as the control that sent an action or a notification. Scripts pass
 * whatever they have, null too.
 */
struct Sender
{
};

} // namespace platform

Q_DECLARE_METATYPE(platform::Sender)
