#include "image/recipe/right_turn.h"

#include <array>

namespace image {
namespace {

using platform::ExactTurn;

constexpr int allQuarters = 4;

} // namespace

RightTurn::RightTurn(ExactTurn turn)
{
    switch (turn) {
    case ExactTurn::None:
        break;
    case ExactTurn::Quarter:
        m_quarters = 1;
        break;
    case ExactTurn::Half:
        m_quarters = 2;
        break;
    case ExactTurn::ThreeQuarters:
        m_quarters = 3;
        break;
    case ExactTurn::MirrorAcross:
        m_isMirrored = true;
        break;
    case ExactTurn::MirrorDown:
        m_isMirrored = true;
        m_quarters = 2;
        break;
    }
}

RightTurn RightTurn::uprightFrom(int orientation)
{
    // Exif 2.32, tag 274: where the first row and the first column of the stored picture are when it is upright.
    static const std::array<RightTurn, 9> turns = {
        {{0, false}, {0, false}, {0, true}, {2, false}, {2, true}, {1, true}, {3, false}, {3, true}, {1, false}}};
    return orientation >= 1 && orientation < int(turns.size()) ? turns[size_t(orientation)] : RightTurn();
}

RightTurn RightTurn::then(const RightTurn &next) const
{
    // A mirroring after a turn equals one before it with the turn reversed.
    const int own = next.m_isMirrored ? allQuarters - m_quarters : m_quarters;
    return {(own + next.m_quarters) % allQuarters, m_isMirrored != next.m_isMirrored};
}

QList<ExactTurn> RightTurn::steps() const
{
    static constexpr std::array<ExactTurn, allQuarters> turns = {ExactTurn::None, ExactTurn::Quarter, ExactTurn::Half,
                                                                 ExactTurn::ThreeQuarters};
    if (isNothing())
        return {};
    if (!m_isMirrored)
        return {turns[size_t(m_quarters)]};
    if (m_quarters == 0)
        return {ExactTurn::MirrorAcross};
    if (m_quarters == 2)
        return {ExactTurn::MirrorDown};
    return {ExactTurn::MirrorAcross, turns[size_t(m_quarters)]};
}

} // namespace image
