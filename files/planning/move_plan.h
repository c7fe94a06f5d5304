#pragma once

#include "files/planning/move_problem.h"

#include "platform/disk/file_system.h"

#include <QString>

#include <chrono>
#include <memory>
#include <vector>

namespace files {

enum class MoveKind { Move, Copy, Link };

/** What somebody wants to be done with one item. Paths are absolute, and as they are before the run. */
struct MoveWish
{
    MoveKind kind = MoveKind::Move;
    QString from;
    QString to;
    bool isNumbered = false; ///< where @p to is taken, it gets a number instead of being refused
    int leader = -1;         ///< the wish that this one moves with: refused if that is, numbered as that is
};

enum class PlanStatus { Ready, Same, Refused };

/** What will become of a wish. */
struct PlannedMove
{
    PlanStatus status = PlanStatus::Ready;
    MoveProblem why = MoveProblem::None;  ///< it is refused
    PlanRemark remark = PlanRemark::None; ///< of one that is ready
    QString other;                        ///< the path that stands in the way, or did
    QString to;                           ///< the path that the item will have
};

/**
 * Says for every wish what will become of it; touches nothing. As many answers as wishes, in their order.
 *
 * Of two wishes for one place the first gets it. A place that is left in the same plan is free; names that differ only by case
 * or by how an accent is written are one name. Folders that are missing are to be made. When a wish is refused, so are those
 * that wanted its place. Lists every folder once, ten thousand wishes take some hundredths of a second.
 */
std::vector<PlannedMove> planMoves(const std::vector<MoveWish> &wishes, const platform::FileSystem &disk);

class MovePlanner;

/** The plan of planMoves() made in slices, so that a window answers while it is made. The disk must outlive it. */
class MovePlanning
{
public:
    MovePlanning(std::vector<MoveWish> wishes, const platform::FileSystem &disk);
    ~MovePlanning();

    /**
     * Works for about this long, and always gets somewhere; true when the plan is made. The names in a folder are asked of the disk in
     * one go.
     */
    bool workFor(std::chrono::milliseconds time);
    const std::vector<MoveWish> &wishes() const { return m_wishes; }
    /** Of use when workFor() said true. */
    const std::vector<PlannedMove> &plan() const;

private:
    std::vector<MoveWish> m_wishes;
    std::unique_ptr<MovePlanner> m_planner;
};

} // namespace files
