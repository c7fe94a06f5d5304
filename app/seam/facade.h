#pragma once

#include <QString>

namespace script {

/**
 * The script that makes the facades: it evaluates to a function that takes the seam and answers {define, wrap,
 * nativeOf, reclassify}.
 */
QString facadeSource();

/** The file name of that script in stacks; no error is ever reported there. */
QString facadeFileName();

} // namespace script
