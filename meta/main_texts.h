#pragma once

#include <QString>

namespace meta {

/** The text of the main strings table for a key of this room, in the user's language; the key itself where there is none. */
QString mainText(const QString &key);

} // namespace meta
