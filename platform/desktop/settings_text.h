#pragma once

#include <QVariant>

namespace platform {

/**
 * The form in which a value is kept in a settings file, where everything is text: text stays as it is, other types are marked
 * ("@number:3", "@list:[...]"), so that each value is read with the type it had. Whole numbers are read as int if they
 * fit. Types that no script can produce are passed through unchanged.
 */
QVariant settingToText(const QVariant &value);
QVariant settingFromText(const QVariant &stored);

} // namespace platform
