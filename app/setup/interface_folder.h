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

/**
 * The compiled translation into @p language, "quorlin_de.qm": among the texts of the interface folder where it is installed,
 * else, for a program within the folder that it was built in, that of the build. It need not be there.
 */
QString translationFile(const QString &language);

} // namespace window
