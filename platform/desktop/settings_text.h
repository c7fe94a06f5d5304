#pragma once

#include <QVariant>

namespace platform {

/**
 * The form in which a value is kept in a settings file, where everything is text: text stays as it is, other types are marked
 * ("@number:3", "@list:[...]"), so that each value comes back with the type it had. Whole numbers come back as int
 * where they fit. Types that no script can give are handed through as they are.
 */
QVariant settingToText(const QVariant &value);
QVariant settingFromText(const QVariant &stored);

} // namespace platform
