#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QList>
#include <QString>

/** The files that come with the program and that presets and recipes need. */
namespace jobs {

/** Absolute; beside the installed program, or in its source if it runs from its build. */
QString suppliedRecipesFolder();

/** Of the patterns that are put under pictures. QUORLIN_INTERFACE is respected here too. */
QString suppliedPatternsFolder();

/** A recipe that comes with the program. */
struct SuppliedRecipe
{
    QString name; ///< "Web gallery", which is also the name of its file
    QString path;
};

/** In the order of their names. */
QList<SuppliedRecipe> suppliedRecipes();

/** The file of "Recipe/Web gallery"; empty if no recipe of that name comes with the program. */
QString suppliedRecipe(const QString &presetName);

} // namespace jobs
