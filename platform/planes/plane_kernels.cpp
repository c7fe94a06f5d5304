#include "platform/planes/plane_kernels.h"

#include <algorithm>

#if defined(__x86_64__) && defined(__GNUC__)
#define QUORLIN_HAS_AVX2
#include <immintrin.h>
#endif

namespace platform {
namespace {

constexpr int rowShift = planeWeightBits - planeSumBits;
constexpr int columnShift = planeWeightBits + planeSumBits;

qint16 boundedSum(int value)
{
    return qint16(std::clamp(value, -32768, 32767));
}

void sumRowsPlainly(const uchar *const *rows, const qint16 *weights, int taps, qint16 *out, int count)
{
    for (int x = 0; x < count; ++x) {
        int sum = 1 << (rowShift - 1);
        for (int tap = 0; tap < taps; ++tap)
            sum += weights[tap] * rows[tap][x];
        out[x] = boundedSum(sum >> rowShift);
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

constexpr PlaneKernels plainKernels = {sumRowsPlainly, sumColumnsPlainly};

#ifdef QUORLIN_HAS_AVX2

#define QUORLIN_AVX2 __attribute__((target("avx2")))

QUORLIN_AVX2 inline __m256i loaded(const void *from)
{
    return _mm256_loadu_si256(static_cast<const __m256i *>(from));
}

QUORLIN_AVX2 inline __m256i withWeighed(__m256i sum, __m256i samples, __m256i weights)
{
    return _mm256_add_epi32(sum, _mm256_madd_epi16(samples, weights));
}

/** 32 samples at a time, two rows at a time. */
QUORLIN_AVX2 void sumRowsInVectors(const uchar *const *rows, const qint16 *weights, int taps, qint16 *out, int count)
{
    while (taps > 2 && weights[taps - 1] == 0 && weights[taps - 2] == 0)
        taps -= 2; // what only fills the unit up
    const __m256i none = _mm256_setzero_si256();
    for (int x = 0; x < count; x += 32) {
        const __m256i half = _mm256_set1_epi32(1 << (rowShift - 1));
        __m256i sums[4] = {half, half, half, half};
        for (int tap = 0; tap < taps; tap += 2) {
            const __m256i one = loaded(rows[tap] + x);
            const __m256i other = loaded(rows[tap + 1] + x);
            const __m256i pair =
                _mm256_set1_epi32(int(quint16(weights[tap]) | quint32(quint16(weights[tap + 1])) << 16));
            const __m256i low = _mm256_unpacklo_epi8(one, other);
            const __m256i high = _mm256_unpackhi_epi8(one, other);
            sums[0] = withWeighed(sums[0], _mm256_unpacklo_epi8(low, none), pair);
            sums[1] = withWeighed(sums[1], _mm256_unpackhi_epi8(low, none), pair);
            sums[2] = withWeighed(sums[2], _mm256_unpacklo_epi8(high, none), pair);
            sums[3] = withWeighed(sums[3], _mm256_unpackhi_epi8(high, none), pair);
        }
        for (__m256i &sum : sums)
            sum = _mm256_srai_epi32(sum, rowShift);
        // Vectors work in halves: the first halves of both are the first sixteen samples.
        const __m256i first = _mm256_packs_epi32(sums[0], sums[1]);
        const __m256i second = _mm256_packs_epi32(sums[2], sums[3]);
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(out + x), _mm256_permute2x128_si256(first, second, 0x20));
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(out + x + 16), _mm256_permute2x128_si256(first, second, 0x31));
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

constexpr PlaneKernels vectorKernels = {sumRowsInVectors, sumColumnsInVectors};

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
