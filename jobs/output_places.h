#pragma once

#include "image/recipe/plan.h"
#include "image/recipe/recipe.h"
#include "jobs/names.h"
#include "jobs/records/result_records.h"
#include "jobs/report.h"

namespace jobs {

/** Where one output of one picture is to go. */
struct OutputPlace
{
    QString path;           ///< absolute; empty if there is none
    bool replaces = false;  ///< the existing file is replaced
    bool isSkipped = false; ///< the existing file stays, and nothing is made
    QString reason;         ///< a sentence if it is skipped
};

/** What results of a recipe are known by: its name, and what is in the pictures, patterns and profiles that it names. */
QString settingsOf(const image::Recipe &recipe, const QString &recipeName);

/** The settings of an output, as a note on its results names them. */
QString settingsName(const QString &settings, int index);

/** What earlier reports say about where results are or are to be. */
struct EarlierReports
{
    QString recipe;                         ///< its name, see recipeName()
    QString settings;                       ///< see settingsOf()
    const EarlierReport *plan = nullptr;    ///< paths in it are kept for their outputs
    const EarlierReport *resumed = nullptr; ///< what it has is a result of the same run
    QList<MadeWith> made = {};              ///< of each output, by which it is known to be up to date
};

/** Plans where the results of a batch go; to be asked for the inputs in their order, each once. */
class OutputPlaces
{
public:
    OutputPlaces(const image::Recipe &recipe, const EarlierReports &reports, const Inputs &inputs,
                 const Destination &destination);

    /**
     * @param facts     what is known of the picture, for its names
     * @param plans     of all outputs; for a picture made by others they may be empty if no name needs them
     * @param done      the paths of outputs that were made before and keep their names; empty for the others
     * @param isOthers  another process makes them: they only keep their names, and no disk is looked at
     */
    QList<OutputPlace> of(const Input &input, const text::TokenFacts &facts, const QList<image::OutputPlan> &plans,
                          const QStringList &done, bool isOthers);
    /** One output of one picture. */
    struct Which
    {
        int index = 0;     ///< of the output
        qint64 number = 0; ///< how many inputs come before the picture
    };
    /** What happens to an output that is to go to @p path. */
    OutputPlace at(const QString &path, const Input &input, const Which &which);
    /**
     * The same for an output that was planned before at @p path, and perhaps made: @p done is then its present path.
     */
    OutputPlace again(const QString &path, const QString &done, const Input &input, const Which &which);
    /** Whether a picture of the batch that is known so far is there, and another one than @p input. */
    bool isOtherInput(const QString &path, const Input &input) const { return m_names.isOtherInput(path, input); }
    /** Another name for what could not have the one that it was given. */
    QString numbered(const QString &path) { return m_names.giveNumbered(path); }

private:
    OutputPlace placeFor(const QString &wanted, const QString &planned, const Input &input, const Which &which);
    QString currentResult(const QString &wanted, const Input &input, const Which &which) const;
    bool isResumed(const QString &path) const;

    const image::Recipe &m_recipe;
    EarlierReports m_reports;
    Destination m_destination;
    ResultNames m_names;
};

/** Whether the names of results, but for their numbers, need more of the pictures than their paths. */
bool namesNeedPictures(const image::Recipe &recipe);

/** Whether a result may replace an existing file, so that all inputs must be known before. */
bool replacesAnything(const image::Recipe &recipe);

} // namespace jobs
