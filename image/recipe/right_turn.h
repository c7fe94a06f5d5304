#pragma once

#include "platform/graphics/turn.h"

#include <QList>

namespace image {

/**
 * One of the eight ways in which a picture can lie: mirrored or not, then turned by right angles. Any number of turns and flips
 * together is one of these, and costs what one costs.
 */
class RightTurn
{
public:
    RightTurn() = default;
    explicit RightTurn(platform::ExactTurn turn);
    /** What turns a picture of an orientation entry of 1 to 8 upright. */
    static RightTurn uprightFrom(int orientation);

    /** First this one, then @p next. */
    RightTurn then(const RightTurn &next) const;
    bool isNothing() const { return m_quarters == 0 && !m_isMirrored; }
    bool swapsSides() const { return m_quarters % 2 != 0; }
    /** The same as at most two steps, in their order. */
    QList<platform::ExactTurn> steps() const;

    bool operator==(const RightTurn &other) const = default;

private:
    RightTurn(int quarters, bool isMirrored) : m_quarters(quarters), m_isMirrored(isMirrored) {}

    int m_quarters = 0;        ///< anticlockwise, 0 to 3, after the mirroring
    bool m_isMirrored = false; ///< left and right in each other's places
};

} // namespace image
