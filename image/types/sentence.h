#pragma once

#include <QCoreApplication>
#include <QString>

namespace image {

/**
 * Messages about recipes: in English at a command line and in reports, which have no other language, and in the
 * language of the window there, if the text is marked by QT_TRANSLATE_NOOP("recipe", ...).
 */
inline QString sentence(const char *english)
{
    return QCoreApplication::translate("recipe", english);
}

} // namespace image
