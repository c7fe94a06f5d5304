#pragma once

#include <QString>

namespace window {

/**
 * The folder of the user-interface scripts: what QUORLIN_INTERFACE says, else share/quorlin/interface beside the folder
 * of the program, else, for a program within the folder that it was built in, that of the source tree.
 */
QString interfaceFolder();

/** The same without the variable, for a program in @p programFolder. What is answered need not be there. */
QString interfaceFolderOf(const QString &programFolder);

} // namespace window
