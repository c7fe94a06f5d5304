#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace files {

/** The places that one item of a run affects, as paths without links. A path is empty if the item has no such place. */
struct Displacement
{
    QString leaves; ///< the place that is free afterwards
    QString takes;  ///< the place that must be free before
    QString reads;  ///< the place that must still be as it was
    bool isFolder = false;
    bool mayStepAside = true;
};

/** One step of a run: an item is moved aside in its own folder, or gets its place. */
struct MoveStep
{
    int item = -1;
    bool isAside = false;
    bool isAhead = false; ///< it is moved aside into its destination folder, out of one that must leave first
};

struct MoveOrder
{
    std::vector<MoveStep> steps;
    /** Items that cannot be ordered, such as two folders that are to go into each other. They have no step. */
    std::vector<int> impossible;
};

/**
 * The order in which a run can be carried out so that every place is free when it is needed: an item that is in
 * another's way goes first, and what is in a folder, or goes into it, before the folder itself. Only one item of a
 * cycle must be moved aside, and an item in a folder that must leave to make room for it. Items that wait for nothing
 * keep their order.
 *
 * Places that differ only by case or accents count as one. The steps from moving an item aside until it gets its place
 * belong together.
 */
MoveOrder orderMoves(const std::vector<Displacement> &items);

/** The same a little at a time, for a window that must stay responsive. */
class MoveOrdering
{
public:
    explicit MoveOrdering(std::vector<Displacement> items);
    ~MoveOrdering();

    /** Handles one item; true when the order is complete. */
    bool step();
    /** Once, after step() returned true. */
    MoveOrder take();

private:
    class Walk;
    std::unique_ptr<Walk> m_walk;
};

} // namespace files
