#pragma once

#include <QString>

namespace window {

/**
 * The folder of the user-interface scripts: what QUORLIN_INTERFACE says, else share/quorlin/interface beside the folder
 * of the program, else that of the source tree which the program was built from.
 */
QString interfaceFolder();

} // namespace window
