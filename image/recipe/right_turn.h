#pragma once

#include "platform/graphics/turn.h"

#include <QList>

namespace image {

/**
 * One of the eight orientations of a picture: mirrored or not, then turned by right angles. Any number of turns and
 * flips together is one of these, and costs as much as one.
 */
class RightTurn
{
public:
    RightTurn() = default;
    explicit RightTurn(platform::ExactTurn turn);
    /** Turns a picture with an orientation tag of 1 to 8 upright. */
    static RightTurn uprightFrom(int orientation);

    /** First this one, then @p next. */
    RightTurn then(const RightTurn &next) const;
    bool isNothing() const { return m_quarters == 0 && !m_isMirrored; }
    bool swapsSides() const { return m_quarters % 2 != 0; }
    /** The same as at most two steps, in order. */
    QList<platform::ExactTurn> steps() const;

    bool operator==(const RightTurn &other) const = default;

private:
    RightTurn(int quarters, bool isMirrored) : m_quarters(quarters), m_isMirrored(isMirrored) {}

    int m_quarters = 0;        ///< anticlockwise, 0 to 3, after the mirroring
    bool m_isMirrored = false; ///< left and right swapped
};

} // namespace image
