#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace files {

/** Why an item cannot get its new name, or did not get it, or why a run cannot be undone. */
enum class MoveProblem {
    None,
    // of an item
    Empty,     ///< the name is empty
    Illegal,   ///< not a name, or none that the disk supports
    TooLong,   ///< the name or the path is too long
    Gone,      ///< nothing is at the old place
    Twice,     ///< another request has the item, or its new place
    Taken,     ///< something is at the new place
    OtherCase, ///< something there differs only by case or accents
    Inside,    ///< a folder would go into itself
    Locked,    ///< the item or a folder must not be changed
    Leader,    ///< the item that it moves with stays
    Changed,   ///< it was changed or replaced since the start
    Full,      ///< there is no room on the disk
    Original,  ///< what is to be removed is no copy, but the original itself
    Damaged,   ///< the copy differs from the original
    Circle,    ///< others wait for its place, and it cannot leave
    Same,      ///< it has that name already
    Other,     ///< what the system says, in the message beside it
    // of a run
    UnknownRun, ///< no journal mentions it
    OpenRun,    ///< it has not ended
    EmptyRun,   ///< it did nothing
    TakenBack,  ///< all of it was undone before
    Stuck,      ///< everything it did is changed, gone or blocked
};

/** Worth mentioning about an item that can get its new name. */
enum class PlanRemark {
    None,
    Aside,     ///< what is there now leaves in the same plan
    OtherCase, ///< only case or accents change
    Numbered,  ///< it gets a number behind its name
    OtherDisk, ///< it goes to another file system
};

/** The word for it in journals and for scripts: "gone", "taken", "long" ...; empty for none. */
QString wordOf(MoveProblem problem);
/** "aside", "case", "numbered" or "disk"; empty for none. */
QString wordOf(PlanRemark remark);
/** The problem that a word means; nothing for any other word. */
std::optional<MoveProblem> moveProblem(QStringView word);

/** The problem with the item at @p path as a sentence; "could not be copied correctly" for those without one. */
QString sentence(MoveProblem problem, const QString &path);
/** The problem with a run as a sentence; empty for none. */
QString sentence(MoveProblem problem);

} // namespace files
