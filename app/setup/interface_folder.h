#pragma once

#include <QString>

namespace window {

/**
 * The folder of the user-interface scripts: what QUORLIN_INTERFACE says, else share/quorlin/interface beside the folder
 * of the program, else, for a program within its build folder, that of the source tree.
 */
QString interfaceFolder();

/** The same without the variable, for a program in @p programFolder. The folder need not exist. */
QString interfaceFolderOf(const QString &programFolder);

/**
 * The compiled translation into @p language, "quorlin_de.qm": among the texts of the interface folder if installed,
 * else, for a program within its build folder, that of the build. The file need not exist.
 */
QString translationFile(const QString &language);

} // namespace window
