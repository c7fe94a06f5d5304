#pragma once

#include <QString>

#include <memory>
#include <vector>

namespace files {

/** What one item of a run does to places, as paths without links. A path is empty where the item has no such place. */
struct Displacement
{
    QString leaves; ///< the place that is free afterwards
    QString takes;  ///< the place that must be free before
    QString reads;  ///< the place that must still be as it was
    bool isFolder = false;
    bool mayStepAside = true;
};

/** One step of a run: an item steps aside in its own folder, or gets its place. */
struct MoveStep
{
    int item = -1;
    bool isAside = false;
    bool isAhead = false; ///< it steps aside in the folder that it goes to, out of one that has to leave first
};

struct MoveOrder
{
    std::vector<MoveStep> steps;
    /** Items that no order allows, such as two folders that are each to go into the other. They have no step. */
    std::vector<int> impossible;
};

/**
 * The order in which a run can be carried out so that every place is free when it is needed: who stands in another's way
 * goes first, and what is in a folder, or goes into it, before the folder itself. Only one item of a circle has to step
 * aside, and an item in a folder that is to leave for the item's sake. Items that wait for nobody keep their order.
 *
 * Places that differ only by case or accents count as one. The steps between the one that goes aside and the one that brings it
 * back belong together.
 */
MoveOrder orderMoves(const std::vector<Displacement> &items);

/** The same a little at a time, for a window that is to answer meanwhile. */
class MoveOrdering
{
public:
    explicit MoveOrdering(std::vector<Displacement> items);
    ~MoveOrdering();

    /** Does what one item needs; true when the order is found. */
    bool step();
    /** Once, when step() said true. */
    MoveOrder take();

private:
    class Walk;
    std::unique_ptr<Walk> m_walk;
};

} // namespace files
