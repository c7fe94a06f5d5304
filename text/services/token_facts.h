#pragma once

#include "text/token_values.h"

#include <QVariantMap>

namespace text {

/**
 * Facts from FileService::facts(), for tokens; raises a TypeError for a value of another type. Empty: only the path is
 * known.
 */
TokenFacts tokenFactsFrom(const QVariantMap &map, const QString &path);

} // namespace text
