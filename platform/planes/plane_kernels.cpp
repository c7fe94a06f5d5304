#include "platform/planes/plane_kernels.h"

#include <algorithm>

#if defined(__x86_64__) && defined(__GNUC__)
#define QUORLIN_HAS_AVX2
#include <immintrin.h>
#endif

namespace platform {
namespace {

constexpr int columnShift = planeWeightBits + planeSumBits;
// A processor multiplies 16 bits by 16 and keeps the rounded upper half in one step, which yields the fractions of a
// sum.
constexpr int productShift = 15;
static_assert(planeWideBits + planeWeightBits - productShift == planeSumBits);

void widenRowPlainly(const uchar *row, qint16 *wide, int count)
{
    for (int x = 0; x < count; ++x)
        wide[x] = qint16(row[x] << planeWideBits);
}

void sumRowsPlainly(const qint16 *const *rows, const qint16 *weights, int taps, qint16 *out, int count)
{
    for (int x = 0; x < count; ++x) {
        int sum = 0;
        for (int tap = 0; tap < taps; ++tap) {
            const int product = (rows[tap][x] * weights[tap] + (1 << (productShift - 1))) >> productShift;
            sum = std::clamp(sum + product, -32768, 32767);
        }
        out[x] = qint16(sum);
    }
}

void sumColumnsPlainly(const qint16 *sums, const int *starts, const qint16 *weights, int taps, uchar *out, int count)
{
    for (int i = 0; i < count; ++i, weights += taps) {
        const qint16 *window = sums + starts[i];
        int sum = 1 << (columnShift - 1);
        for (int tap = 0; tap < taps; ++tap)
            sum += weights[tap] * window[tap];
        out[i] = uchar(std::clamp(sum >> columnShift, 0, 255));
    }
}

void sumPairsPlainly(const qint16 *sums, const qint16 *weights, int taps, uchar *out, int count)
{
    constexpr int start = 0;
    for (int i = 0; i < count; ++i, sums += 2)
        sumColumnsPlainly(sums, &start, weights, taps, out + i, 1);
}

constexpr PlaneKernels plainKernels = {widenRowPlainly, sumRowsPlainly, sumColumnsPlainly, sumPairsPlainly};

#ifdef QUORLIN_HAS_AVX2

#define QUORLIN_AVX2 __attribute__((target("avx2")))

QUORLIN_AVX2 inline __m256i loaded(const void *from)
{
    return _mm256_loadu_si256(static_cast<const __m256i *>(from));
}

QUORLIN_AVX2 inline void store(qint16 *to, __m256i samples)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), samples);
}

QUORLIN_AVX2 void widenRowInVectors(const uchar *row, qint16 *wide, int count)
{
    constexpr int step = 16;
    for (int x = 0; x < count; x += step) {
        const __m128i narrow = _mm_loadu_si128(reinterpret_cast<const __m128i *>(row + x));
        store(wide + x, _mm256_slli_epi16(_mm256_cvtepu8_epi16(narrow), planeWideBits));
    }
}

QUORLIN_AVX2 inline __m256i withWeighed(__m256i sum, const qint16 *samples, __m256i weight)
{
    return _mm256_adds_epi16(sum, _mm256_mulhrs_epi16(loaded(samples), weight));
}

/** 64 samples at a time. */
QUORLIN_AVX2 void sumRowsInVectors(const qint16 *const *rows, const qint16 *weights, int taps, qint16 *out, int count)
{
    constexpr int step = 16;
    static_assert(planeRowUnit == 4 * step);
    int first = 0;
    while (first < taps && weights[first] == 0)
        ++first;
    while (taps > first && weights[taps - 1] == 0)
        --taps;
    for (int x = 0; x < count; x += planeRowUnit) {
        __m256i a = _mm256_setzero_si256();
        __m256i b = a;
        __m256i c = a;
        __m256i d = a;
        for (int tap = first; tap < taps; ++tap) {
            const __m256i weight = _mm256_set1_epi16(weights[tap]);
            const qint16 *row = rows[tap] + x;
            a = withWeighed(a, row, weight);
            b = withWeighed(b, row + step, weight);
            c = withWeighed(c, row + 2 * step, weight);
            d = withWeighed(d, row + 3 * step, weight);
        }
        store(out + x, a);
        store(out + x + step, b);
        store(out + x + 2 * step, c);
        store(out + x + 3 * step, d);
    }
}

QUORLIN_AVX2 inline __m256i windowSum(const qint16 *window, const qint16 *weights, int taps)
{
    __m256i sum = _mm256_madd_epi16(loaded(window), loaded(weights));
    for (int tap = planeTapUnit; tap < taps; tap += planeTapUnit)
        sum = _mm256_add_epi32(sum, _mm256_madd_epi16(loaded(window + tap), loaded(weights + tap)));
    return sum;
}

/** Four new samples at a time. */
QUORLIN_AVX2 void sumColumnsInVectors(const qint16 *sums, const int *starts, const qint16 *weights, int taps,
                                      uchar *out, int count)
{
    const __m128i half = _mm_set1_epi32(1 << (columnShift - 1));
    for (int i = 0; i < count; i += planeOutputUnit, weights += qptrdiff(planeOutputUnit) * taps) {
        const __m256i a = windowSum(sums + starts[i], weights, taps);
        const __m256i b = windowSum(sums + starts[i + 1], weights + taps, taps);
        const __m256i c = windowSum(sums + starts[i + 2], weights + 2 * qptrdiff(taps), taps);
        const __m256i d = windowSum(sums + starts[i + 3], weights + 3 * qptrdiff(taps), taps);
        const __m256i all = _mm256_hadd_epi32(_mm256_hadd_epi32(a, b), _mm256_hadd_epi32(c, d));
        const __m128i total = _mm_add_epi32(_mm256_castsi256_si128(all), _mm256_extracti128_si256(all, 1));
        const __m128i whole = _mm_srai_epi32(_mm_add_epi32(total, half), columnShift);
        const __m128i shorts = _mm_packs_epi32(whole, whole);
        const int bytes = _mm_cvtsi128_si32(_mm_packus_epi16(shorts, shorts));
        __builtin_memcpy(out + i, &bytes, sizeof bytes);
    }
}

QUORLIN_AVX2 inline __m256i pairOf(const qint16 *weights)
{
    int pair = 0;
    __builtin_memcpy(&pair, weights, sizeof pair);
    return _mm256_set1_epi32(pair);
}

/**
 * Eight new samples at a time: a vector holds the same two sums of each of them, so that nothing is added across. The
 * weights stay in registers, up to those of half the size.
 */
template<int pairs> QUORLIN_AVX2 void sumSoManyPairs(const qint16 *sums, const qint16 *weights, uchar *out, int count)
{
    __m256i each[pairs];
    for (int pair = 0; pair < pairs; ++pair)
        each[pair] = pairOf(weights + 2 * qptrdiff(pair));
    for (int i = 0; i < count; i += planePairUnit, sums += 2 * planePairUnit) {
        __m256i sum = _mm256_set1_epi32(1 << (columnShift - 1));
        for (int pair = 0; pair < pairs; ++pair)
            sum = _mm256_add_epi32(sum, _mm256_madd_epi16(loaded(sums + 2 * qptrdiff(pair)), each[pair]));
        const __m256i whole = _mm256_srai_epi32(sum, columnShift);
        const __m128i shorts = _mm_packs_epi32(_mm256_castsi256_si128(whole), _mm256_extracti128_si256(whole, 1));
        _mm_storel_epi64(reinterpret_cast<__m128i *>(out + i), _mm_packus_epi16(shorts, shorts));
    }
}

QUORLIN_AVX2 void sumPairsInVectors(const qint16 *sums, const qint16 *weights, int taps, uchar *out, int count)
{
    const auto isEmpty = [weights](int tap) { return weights[tap] == 0 && weights[tap + 1] == 0; };
    int first = 0;
    while (first + 2 < taps && isEmpty(first))
        first += 2;
    while (taps > first + 2 && isEmpty(taps - 2))
        taps -= 2;
    switch ((taps - first) / 2) {
    case 4:
        return sumSoManyPairs<4>(sums + first, weights + first, out, count);
    case 5:
        return sumSoManyPairs<5>(sums + first, weights + first, out, count);
    case 6:
        return sumSoManyPairs<6>(sums + first, weights + first, out, count);
    case 7:
        return sumSoManyPairs<7>(sums + first, weights + first, out, count);
    case 8:
        return sumSoManyPairs<8>(sums + first, weights + first, out, count);
    case 9:
        return sumSoManyPairs<9>(sums + first, weights + first, out, count);
    default:
        return sumPairsPlainly(sums + first, weights + first, taps - first, out, count);
    }
}

constexpr PlaneKernels vectorKernels = {widenRowInVectors, sumRowsInVectors, sumColumnsInVectors, sumPairsInVectors};

#endif

} // namespace

const PlaneKernels &plainPlaneKernels()
{
    return plainKernels;
}

const PlaneKernels &planeKernels()
{
#ifdef QUORLIN_HAS_AVX2
    static const bool hasVectors = __builtin_cpu_supports("avx2");
    return hasVectors ? vectorKernels : plainKernels;
#else
    return plainKernels;
#endif
}

} // namespace platform
