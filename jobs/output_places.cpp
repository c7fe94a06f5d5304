#include "jobs/output_places.h"

#include "image/recipe/sentence.h"
#include "jobs/result_mark.h"
#include "platform/foundation/paths.h"

#include <QFileInfo>

namespace jobs {
namespace {

/** The extension of an output that cannot be made for want of a type is that of its picture. */
QString extensionFor(const image::OutputPlan &plan, const QString &path)
{
    if (plan.type != image::OutputType::Original)
        return image::extensionOf(plan.type);
    const QString suffix = QFileInfo(path).suffix();
    return suffix.isEmpty() ? QString() : u'.' + suffix;
}

} // namespace

QString settingsName(const QString &recipeName, int index)
{
    return recipeName + u' ' + QString::number(index);
}

OutputPlaces::OutputPlaces(const image::Recipe &recipe, const QString &recipeName, const QList<Input> &inputs,
                           const Destination &destination)
    : m_recipe(recipe), m_recipeName(recipeName), m_destination(destination), m_names(inputs)
{
}

QList<OutputPlace> OutputPlaces::of(const Input &input, int number, const QList<image::OutputPlan> &plans,
                                    const QStringList &done, bool isOthers)
{
    QList<OutputPlace> places;
    const QString base = baseFolderOf(input, m_destination);
    for (int index = 0; index < m_recipe.outputs.size(); ++index) {
        const image::RecipeOutput &output = m_recipe.outputs[index];
        const QSize size = plans[index].size;
        if (!done[index].isEmpty()) {
            m_names.give(done[index]);
            places.append(OutputPlace{done[index], false, false, {}});
            continue;
        }
        const QString folder = folderFrom(output.folder, base, input.path, number, size);
        const QString name = nameFrom(output.name, input.path, number, size);
        const QString path = platform::joinedPath(folder, name + extensionFor(plans[index], input.path));
        const bool isMade = isOthers && isCurrentResult(path, input.path, settingsName(m_recipeName, index));
        if (isMade)
            m_names.give(path);
        places.append(isMade ? OutputPlace{path, false, false, {}} : at(path, input, index));
    }
    return places;
}

OutputPlace OutputPlaces::at(const QString &path, const Input &input, int index)
{
    const image::RecipeOutput &output = m_recipe.outputs[index];
    const Standing standing = m_names.standingAt(path, input);
    if (standing == Standing::Nothing) {
        m_names.give(path);
        return {path, false, false, {}};
    }
    const bool isOnDisk = standing == Standing::OnDisk || standing == Standing::OwnInput;
    if (output.ifTaken == image::IfTaken::Replace && isOnDisk) {
        m_names.give(path);
        return {path, true, false, {}};
    }
    if (output.ifTaken == image::IfTaken::Skip && standing != Standing::OtherResult)
        return {path, false, true, image::sentence("the name is taken")};
    if (output.ifTaken == image::IfTaken::Current && standing == Standing::OnDisk &&
        isCurrentResult(path, input.path, settingsName(m_recipeName, index))) {
        m_names.give(path);
        return {path, false, true, image::sentence("it is there already")};
    }
    return {m_names.giveNumbered(path), false, false, {}};
}

} // namespace jobs
