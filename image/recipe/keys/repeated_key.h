#pragma once

// Inside image/recipe.

#include <QByteArray>
#include <QString>

namespace image {

/**
 * The place of the first key that an object has twice; empty if there is none. A parser keeps one of the two values
 * without a word.
 *
 * @param json  valid
 */
QString repeatedKey(const QByteArray &json);

} // namespace image
