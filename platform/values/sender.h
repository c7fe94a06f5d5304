#pragma once

#include <QMetaType>

namespace platform {

/**
 * The argument that an operation ignores, such as the control that sent an action or a notification. Scripts pass
 * whatever they have, also null.
 */
struct Sender
{
};

} // namespace platform

Q_DECLARE_METATYPE(platform::Sender)
