#include "jobs/presets/supplied_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace jobs {
namespace {

const QString ending = QStringLiteral(".quorlin");

// Anybody may make the folder of a build on another machine, so only a program within its build looks into its source.
QString suppliedFolder(const QString &installed, const QString &inSource)
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString folder = QDir::cleanPath(program + QStringLiteral("/../share/quorlin/") + installed);
    const QString build = QFileInfo(QStringLiteral(QUORLIN_BUILD_FOLDER)).canonicalFilePath();
    const bool isInBuild = !build.isEmpty() && QFileInfo(program).canonicalFilePath().startsWith(build + u'/');
    return isInBuild && !QFileInfo(folder).isDir() ? QStringLiteral(QUORLIN_SOURCE_FOLDER "/") + inSource : folder;
}

} // namespace

QString suppliedRecipesFolder()
{
    return suppliedFolder(QStringLiteral("recipes"), QStringLiteral("recipes"));
}

QString suppliedPatternsFolder()
{
    const QString interface = qEnvironmentVariable("QUORLIN_INTERFACE");
    if (!interface.isEmpty())
        return QDir(interface).absoluteFilePath(QStringLiteral("patterns"));
    return suppliedFolder(QStringLiteral("interface/patterns"), QStringLiteral("interface/patterns"));
}

QList<SuppliedRecipe> suppliedRecipes()
{
    QList<SuppliedRecipe> recipes;
    const QDir folder(suppliedRecipesFolder());
    for (const QFileInfo &file : folder.entryInfoList({u'*' + ending}, QDir::Files, QDir::Name))
        recipes.append({file.completeBaseName(), file.absoluteFilePath()});
    return recipes;
}

QString suppliedRecipe(const QString &presetName)
{
    for (const SuppliedRecipe &recipe : suppliedRecipes())
        if (QStringLiteral("Recipe/") + recipe.name == presetName)
            return recipe.path;
    return {};
}

} // namespace jobs
