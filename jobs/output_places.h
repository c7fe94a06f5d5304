#pragma once

#include "image/recipe/plan.h"
#include "image/recipe/recipe.h"
#include "jobs/names.h"

namespace jobs {

/** Where one output of one picture is to go. */
struct OutputPlace
{
    QString path;           ///< absolute; empty where there is none
    bool replaces = false;  ///< what stands there gives way
    bool isSkipped = false; ///< what stands there stays, and nothing is made
    QString reason;         ///< a sentence where it is skipped
};

/** The settings of an output, as a note on its results names them. */
QString settingsName(const QString &recipeName, int index);

/** Plans where the results of a batch go; to be asked for the inputs in their order, each once. */
class OutputPlaces
{
public:
    /** @param recipeName  what results are known by later, see recipeName() */
    OutputPlaces(const image::Recipe &recipe, const QString &recipeName, const QList<Input> &inputs,
                 const Destination &destination);

    /**
     * @param number    how many inputs came before this one
     * @param done      the paths of outputs that were made before and keep their names; empty for the others
     * @param isOthers  another process makes them, and may have: what is there already has its name
     */
    QList<OutputPlace> of(const Input &input, int number, const QList<image::OutputPlan> &plans,
                          const QStringList &done, bool isOthers);
    /** What becomes of an output that is to go to @p path. */
    OutputPlace at(const QString &path, const Input &input, int index);
    /** Another name for what could not have the one that it was given. */
    QString numbered(const QString &path) { return m_names.giveNumbered(path); }

private:
    const image::Recipe &m_recipe;
    QString m_recipeName;
    Destination m_destination;
    ResultNames m_names;
};

} // namespace jobs
