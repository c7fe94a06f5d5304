#pragma once

#include "files/planning/move_problem.h"

#include "platform/disk/file_system.h"

#include <QString>

#include <chrono>
#include <memory>
#include <vector>

namespace files {

enum class MoveKind { Move, Copy, Link };

/** The request to do something with one item. Paths are absolute, and as they are before the run. */
struct MoveWish
{
    MoveKind kind = MoveKind::Move;
    QString from;
    QString to;
    bool isNumbered = false; ///< if @p to is taken, it gets a number instead of being refused
    int leader = -1;         ///< the request that this one moves with: refused if that is, numbered as that is
};

enum class PlanStatus { Ready, Same, Refused };

/** What will happen to a request. */
struct PlannedMove
{
    PlanStatus status = PlanStatus::Ready;
    MoveProblem why = MoveProblem::None;  ///< it is refused
    PlanRemark remark = PlanRemark::None; ///< for one that is ready
    QString other;                        ///< the path that is in the way, or was
    QString to;                           ///< the path that the item will have
};

/**
 * Says for every request what will happen to it; changes nothing. As many answers as requests, in order.
 *
 * Of two requests for one place the first gets it. A place that is vacated in the same plan is free; names that differ
 * only by case or by the encoding of an accent are one name. Missing folders will be created. When a request is
 * refused, so are those that wanted its place. Lists every folder once; ten thousand requests take some hundredths of a
 * second.
 */
std::vector<PlannedMove> planMoves(const std::vector<MoveWish> &wishes, const platform::FileSystem &disk);

class MovePlanner;

/** The plan of planMoves() made in slices, so that a window stays responsive. The disk must outlive it. */
class MovePlanning
{
public:
    MovePlanning(std::vector<MoveWish> wishes, const platform::FileSystem &disk);
    ~MovePlanning();

    /**
     * Works for about this long, and always makes progress; true when the plan is complete. The names in a folder are
     * read from the disk in one go.
     */
    bool workFor(std::chrono::milliseconds time);
    const std::vector<MoveWish> &wishes() const { return m_wishes; }
    /** Valid after workFor() returned true. */
    const std::vector<PlannedMove> &plan() const;

private:
    std::vector<MoveWish> m_wishes;
    std::unique_ptr<MovePlanner> m_planner;
};

} // namespace files
