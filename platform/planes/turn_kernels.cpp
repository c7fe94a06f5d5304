#include "platform/planes/turn_kernels.h"

#include "platform/planes/cubic.h"

#include <algorithm>

#if defined(__x86_64__) && defined(__GNUC__)
#define QUORLIN_HAS_AVX2
#include <immintrin.h>
#endif

namespace platform {
namespace {

constexpr int rowShift = turnWeightBits - turnSumBits;
constexpr int sumShift = turnWeightBits + turnSumBits;
static_assert(CubicWeights::wholeUnit == 1 << turnWeightBits);

const TurnWeights &weightsAt(const TurnedRow &row, qint64 position)
{
    constexpr qint64 last = (1 << turnStepBits) - 1;
    return row.weights[(position >> (TurnPosition::bits - turnStepBits)) & last];
}

const uchar *windowAt(const TurnedRow &row, qint64 x, qint64 y)
{
    return row.samples + ((y >> TurnPosition::bits) - 1) * row.rowBytes + ((x >> TurnPosition::bits) - 1);
}

void turnPlainly(const TurnedRow &row, int count, uchar *out)
{
    qint64 x = row.x;
    qint64 y = row.y;
    for (int i = 0; i < count; ++i) {
        out[i] = turnedSample(windowAt(row, x, y), row.rowBytes, weightsAt(row, x), weightsAt(row, y));
        x += row.stepX;
        y += row.stepY;
    }
}

#ifdef QUORLIN_HAS_AVX2

#define QUORLIN_AVX2 __attribute__((target("avx2")))

inline int fourBytes(const uchar *from)
{
    int bytes = 0;
    __builtin_memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

QUORLIN_AVX2 inline __m128i weightsOf(const TurnedRow &row, qint64 position)
{
    return _mm_loadl_epi64(reinterpret_cast<const __m128i *>(weightsAt(row, position).data()));
}

/** Two sums for each row of a window, whose sums are those of the rows: two rows in each half. */
QUORLIN_AVX2 inline __m256i rowSums(const TurnedRow &row, qint64 x, qint64 y)
{
    const uchar *window = windowAt(row, x, y);
    const __m128i bytes = _mm_set_epi32(fourBytes(window + 3 * row.rowBytes), fourBytes(window + 2 * row.rowBytes),
                                        fourBytes(window + row.rowBytes), fourBytes(window));
    return _mm256_madd_epi16(_mm256_cvtepu8_epi16(bytes), _mm256_broadcastq_epi64(weightsOf(row, x)));
}

QUORLIN_AVX2 inline __m256i rounded(__m256i sums)
{
    return _mm256_srai_epi32(_mm256_add_epi32(sums, _mm256_set1_epi32(1 << (rowShift - 1))), rowShift);
}

/** Four samples at a time. */
QUORLIN_AVX2 int fourTurned(const TurnedRow &row, qint64 x, qint64 y)
{
    const qint64 x1 = x + row.stepX;
    const qint64 y1 = y + row.stepY;
    const qint64 x2 = x1 + row.stepX;
    const qint64 y2 = y1 + row.stepY;
    const qint64 x3 = x2 + row.stepX;
    const qint64 y3 = y2 + row.stepY;
    const __m256i first = _mm256_hadd_epi32(rowSums(row, x, y), rowSums(row, x1, y1));
    const __m256i last = _mm256_hadd_epi32(rowSums(row, x2, y2), rowSums(row, x3, y3));
    const __m256i sums = _mm256_packs_epi32(rounded(first), rounded(last));
    // The first two weights of each sample in the lower half, the last two in the upper one, as the rows are.
    const __m128i a = _mm_unpacklo_epi32(weightsOf(row, y), weightsOf(row, y1));
    const __m128i b = _mm_unpacklo_epi32(weightsOf(row, y2), weightsOf(row, y3));
    const __m256i down = _mm256_set_m128i(_mm_unpackhi_epi64(a, b), _mm_unpacklo_epi64(a, b));
    const __m256i parts = _mm256_madd_epi16(sums, down);
    const __m128i total = _mm_add_epi32(_mm256_castsi256_si128(parts), _mm256_extracti128_si256(parts, 1));
    const __m128i whole = _mm_srai_epi32(_mm_add_epi32(total, _mm_set1_epi32(1 << (sumShift - 1))), sumShift);
    const __m128i shorts = _mm_packs_epi32(whole, whole);
    return _mm_cvtsi128_si32(_mm_packus_epi16(shorts, shorts));
}

QUORLIN_AVX2 void turnInVectors(const TurnedRow &row, int count, uchar *out)
{
    constexpr int atOnce = 4;
    TurnedRow rest = row;
    for (; count >= atOnce; count -= atOnce, out += atOnce) {
        const int bytes = fourTurned(row, rest.x, rest.y);
        __builtin_memcpy(out, &bytes, sizeof bytes);
        rest.x += atOnce * row.stepX;
        rest.y += atOnce * row.stepY;
    }
    turnPlainly(rest, count, out);
}

#endif

} // namespace

const std::array<TurnWeights, 1 << turnStepBits> &turnWeights()
{
    static const auto table = [] {
        std::array<TurnWeights, 1 << turnStepBits> made = {};
        for (size_t step = 0; step < made.size(); ++step)
            made[step] = CubicWeights(double(step) / double(made.size())).whole;
        return made;
    }();
    return table;
}

uchar turnedSample(const uchar *window, qptrdiff rowBytes, const TurnWeights &across, const TurnWeights &down)
{
    int sum = 1 << (sumShift - 1);
    for (size_t y = 0; y < down.size(); ++y, window += rowBytes) {
        int row = 1 << (rowShift - 1);
        for (size_t x = 0; x < across.size(); ++x)
            row += across[x] * window[x];
        sum += down[y] * (row >> rowShift);
    }
    return uchar(std::clamp(sum >> sumShift, 0, 255));
}

TurnKernel plainTurnKernel()
{
    return turnPlainly;
}

TurnKernel turnKernel()
{
#ifdef QUORLIN_HAS_AVX2
    static const bool hasVectors = __builtin_cpu_supports("avx2");
    return hasVectors ? turnInVectors : turnPlainly;
#else
    return turnPlainly;
#endif
}

} // namespace platform
