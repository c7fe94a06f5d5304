#pragma once

#include "platform/foundation/raised.h"

/** What @p call raises as "NAME: MESSAGE"; "nothing" if it raises nothing. */
template<typename Call> QString raisedBy(Call call)
{
    try {
        call();
    } catch (const platform::Raised &raised) {
        return raised.name() + QStringLiteral(": ") + raised.message();
    }
    return QStringLiteral("nothing");
}
