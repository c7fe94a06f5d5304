#pragma once

#include <QString>

namespace image {

/** What is said about recipes: to people at a command line and in reports, so in English wherever the program runs. */
inline QString sentence(const char *english)
{
    return QString::fromUtf8(english);
}

} // namespace image
