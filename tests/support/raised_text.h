#pragma once

#include "platform/foundation/raised.h"

/** What @p deed raises as "NAME: MESSAGE"; "nothing" if it raises nothing. */
template<typename Deed> QString raisedBy(Deed deed)
{
    try {
        deed();
    } catch (const platform::Raised &raised) {
        return raised.name() + QStringLiteral(": ") + raised.message();
    }
    return QStringLiteral("nothing");
}
