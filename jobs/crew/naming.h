#pragma once

#include "jobs/batch.h"
#include "jobs/output_places.h"

namespace jobs {

/** One picture on its way through a batch. */
struct PictureWork
{
    Input input;
    int number = 0; ///< how many inputs came before it
    int tries = 0;  ///< workers that ended over it
    bool isPlanned = false;
    bool isNamed = false;
    bool isMade = false; ///< a worker makes it now

    bool isOthers = false; ///< another process makes it, and only its names count here
    QStringList done;      ///< the paths of outputs that were made before; empty for the others
    QList<int> wanted;     ///< the outputs that get a line, in order

    QList<image::OutputPlan> plans; ///< one an output
    text::TokenFacts facts;
    QList<OutputPlace> places;    ///< once it is named
    QHash<int, ReportLine> lines; ///< by the indices of outputs, once it is named
};

/** Says which pictures and outputs are to be made and what they are called; to be asked in the order of the inputs. */
class BatchNaming
{
public:
    BatchNaming(const image::Recipe &recipe, const Inputs &inputs, const BatchOptions &options);

    /** A picture whose processing starts, with the decision about its names. */
    PictureWork workOn(const Input &input, int number) const;
    /** Whether its names, or what is made of it, depend on what the picture is. */
    bool needsPicture(const PictureWork &work) const;
    /** Gives the outputs of a picture that is planned their places and their first lines. */
    void name(PictureWork &work);
    /** Gives them their first lines, once their positions are known. */
    void noteLines(PictureWork &work) const;
    /** Plans for a picture without results. */
    QList<image::OutputPlan> failedPlans(const QString &problem) const;

    OutputPlaces &places() { return m_places; }

private:
    QList<OutputPlace> placesOf(PictureWork &work);
    std::optional<KnownOutput> doneOf(const Input &input, int index) const;
    ReportLine lineBefore(const PictureWork &work, int index) const;

    const image::Recipe &m_recipe;
    const BatchOptions &m_options;
    OutputPlaces m_places;
    bool m_namesNeedPictures;
};

/** Nothing came of an output. */
void fail(ReportLine &line, const QString &reason);

} // namespace jobs
