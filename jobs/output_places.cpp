#include "jobs/output_places.h"

#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "jobs/result_mark.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"

#include <algorithm>

namespace jobs {
namespace {

/** The extension of an output that cannot be made for want of a type is that of its picture. */
QString extensionFor(const image::OutputPlan &plan, const QString &path)
{
    if (plan.type != image::OutputType::Original)
        return image::extensionOf(plan.type);
    const QString suffix = platform::pathExtension(path);
    return suffix.isEmpty() ? QString() : u'.' + suffix;
}

} // namespace

QString settingsOf(const image::Recipe &recipe, const QString &recipeName)
{
    const QStringList files = image::filesOf(recipe);
    if (files.isEmpty())
        return recipeName;
    QByteArray contents;
    for (const QString &path : files)
        contents += jobs::recipeName(platform::readFile(path).value_or(QByteArray())).toLatin1();
    return recipeName + u'-' + jobs::recipeName(contents);
}

QString settingsName(const QString &settings, int index)
{
    return settings + u' ' + QString::number(index);
}

OutputPlaces::OutputPlaces(const image::Recipe &recipe, const EarlierReports &reports, const Inputs &inputs,
                           const Destination &destination)
    : m_recipe(recipe), m_reports(reports), m_destination(destination), m_names(inputs, [reports](const QString &path) {
          return reports.plan && reports.plan->hasOutputAt(reports.recipe, path);
      })
{
}

QList<OutputPlace> OutputPlaces::of(const Input &input, const text::TokenFacts &facts,
                                    const QList<image::OutputPlan> &plans, const QStringList &done, bool isOthers)
{
    QList<OutputPlace> places;
    const QString base = baseFolderOf(input, m_destination);
    for (int index = 0; index < m_recipe.outputs.size(); ++index) {
        const image::RecipeOutput &output = m_recipe.outputs[index];
        image::OutputPlan plan = plans.value(index);
        if (plans.isEmpty())
            plan.type = output.type;
        const QString folder = folderFrom(output.folder, base, facts, plan.size);
        const QString name = nameFrom(output.name, facts, plan.size);
        const QString extension = extensionFor(plan, input.path);
        const qsizetype most = platform::longestNameBytes - extension.toUtf8().size();
        const QString wanted = platform::joinedPath(folder, platform::shortened(name, most) + extension);
        // What replaces leaves the name of another input to that one's own result.
        const bool isLeft = output.ifTaken == image::IfTaken::Replace && m_names.isOtherInput(wanted, input);
        const QString planned = isLeft ? m_names.planNumbered(wanted) : m_names.plan(wanted);
        if (!done.value(index).isEmpty())
            m_names.keep(done[index]);
        if (isOthers || !done.value(index).isEmpty())
            places.append(OutputPlace{isOthers ? planned : done[index], false, false, {}});
        else
            places.append(placeFor(wanted, planned, input, {index, facts.index}));
    }
    return places;
}

OutputPlace OutputPlaces::at(const QString &path, const Input &input, const Which &which)
{
    return placeFor(path, m_names.plan(path), input, which);
}

OutputPlace OutputPlaces::again(const QString &path, const QString &done, const Input &input, const Which &which)
{
    if (!done.isEmpty())
        m_names.keep(done);
    return done.isEmpty() && !path.isEmpty() ? at(path, input, which) : OutputPlace{done, false, false, {}};
}

/**
 * An equal result, under its name or a numbered form of it, which makes the work unnecessary; empty if there is none.
 */
QString OutputPlaces::currentResult(const QString &wanted, const Input &input, const Which &which) const
{
    if (m_recipe.outputs[which.index].ifTaken != image::IfTaken::Current || m_reports.made.size() <= which.index)
        return {};
    const QString made = m_reports.made[which.index].of(input.path, int(which.number));
    return ResultRecords::ofProcess().upToDate(wanted, input.path, made);
}

OutputPlace OutputPlaces::placeFor(const QString &wanted, const QString &planned, const Input &input,
                                   const Which &which)
{
    const image::RecipeOutput &output = m_recipe.outputs[which.index];
    if (const QString current = currentResult(wanted, input, which); !current.isEmpty())
        return {current, false, true, image::sentence(QT_TRANSLATE_NOOP("recipe", "it is up to date"))};
    const Standing standing = m_names.standingAt(planned, input);
    if (standing == Standing::Nothing)
        return {planned, false, false, {}};
    // A killed run may have put a result in its place and not have written its line.
    if (m_reports.resumed && output.ifTaken == image::IfTaken::Number && standing != Standing::OtherResult &&
        isCurrentResult(planned, input.path, settingsName(m_reports.settings, which.index)) && !isResumed(planned))
        return {planned, true, false, {}};
    const bool isOnDisk = standing == Standing::OnDisk || standing == Standing::OwnInput;
    if (output.ifTaken == image::IfTaken::Replace && isOnDisk && !isResumed(planned))
        return {planned, true, false, {}};
    if (output.ifTaken == image::IfTaken::Skip && standing != Standing::OtherResult)
        return {planned, false, true, image::sentence(QT_TRANSLATE_NOOP("recipe", "file already exists"))};
    return {m_names.giveNumbered(wanted), false, false, {}};
}

bool OutputPlaces::isResumed(const QString &path) const
{
    return m_reports.resumed && m_reports.resumed->hasOutputAt(m_reports.recipe, path);
}

bool namesNeedPictures(const image::Recipe &recipe)
{
    return std::any_of(recipe.outputs.begin(), recipe.outputs.end(),
                       [](const image::RecipeOutput &output) { return namesNeedPictures(output); });
}

bool replacesAnything(const image::Recipe &recipe)
{
    return std::any_of(recipe.outputs.begin(), recipe.outputs.end(),
                       [](const image::RecipeOutput &output) { return output.ifTaken == image::IfTaken::Replace; });
}

} // namespace jobs
