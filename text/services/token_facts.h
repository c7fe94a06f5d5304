#pragma once

#include "text/token_values.h"

#include <QVariantMap>

namespace text {

/** What FileService::facts() says of a file, for tokens; raises a TypeError for a value of another type. Empty: only its path is known. */
TokenFacts tokenFactsFrom(const QVariantMap &map, const QString &path);

} // namespace text
