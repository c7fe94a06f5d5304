#pragma once

#include <QString>

namespace script {

/** The script that makes the facades: a function of the seam that answers {define, wrap, nativeOf, reclassify}. */
QString facadeSource();

/** The file name under which that script is known in stacks; no error is said to have happened there. */
QString facadeFileName();

} // namespace script
