#include "platform/planes/cubic_pairs.h"

#if defined(__x86_64__) && defined(__GNUC__)
#define QUORLIN_HAS_AVX2
#include <immintrin.h>
#endif

namespace platform {

#ifdef QUORLIN_HAS_AVX2

namespace {

#define QUORLIN_AVX2 __attribute__((target("avx2")))

constexpr int positionBits = 32;

QUORLIN_AVX2 inline __m128i loaded(const quint8 *from)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
}

/** Four sums for each of both pixels: of the four rows, two of which are interleaved byte by byte. */
QUORLIN_AVX2 inline __m256 sums(__m256i upperRows, __m256i upper, __m256i lowerRows, __m256i lower)
{
    return _mm256_cvtepi32_ps(
        _mm256_add_epi32(_mm256_madd_epi16(upperRows, upper), _mm256_madd_epi16(lowerRows, lower)));
}

/** One of two pixels: where its window begins and the weights of its neighbours. */
struct Place
{
    const quint8 *window;
    const CubicWeights *across;
    const CubicWeights *down;

    Place(const CubicRow &row, qint64 x, qint64 y)
        : window(row.pixels + ((y >> positionBits) - 1) * row.rowBytes + ((x >> positionBits) - 1) * 3),
          across(weightsAt(row, x)), down(weightsAt(row, y))
    {
    }

    static const CubicWeights *weightsAt(const CubicRow &row, qint64 position)
    {
        return row.weights + ((position >> (positionBits - row.weightBits)) & ((qint64(1) << row.weightBits) - 1));
    }
};

/** Both pixels, the one in the lower half and the other in the upper half of each vector. */
QUORLIN_AVX2 inline __m256i mixedPair(const Place &one, const Place &other, ptrdiff_t rowBytes)
{
    const __m256i top = _mm256_set_m128i(loaded(other.window), loaded(one.window));
    const __m256i second = _mm256_set_m128i(loaded(other.window + rowBytes), loaded(one.window + rowBytes));
    const __m256i third = _mm256_set_m128i(loaded(other.window + 2 * rowBytes), loaded(one.window + 2 * rowBytes));
    const __m256i bottom = _mm256_set_m128i(loaded(other.window + 3 * rowBytes), loaded(one.window + 3 * rowBytes));
    const __m256i whole = _mm256_set_m128i(_mm_loadl_epi64(reinterpret_cast<const __m128i *>(other.down->whole.data())),
                                           _mm_loadl_epi64(reinterpret_cast<const __m128i *>(one.down->whole.data())));
    const __m256i upper = _mm256_shuffle_epi32(whole, _MM_SHUFFLE(0, 0, 0, 0));
    const __m256i lower = _mm256_shuffle_epi32(whole, _MM_SHUFFLE(1, 1, 1, 1));
    const __m256i none = _mm256_setzero_si256();
    const __m256i a = _mm256_unpacklo_epi8(top, second);
    const __m256i b = _mm256_unpacklo_epi8(third, bottom);
    const __m256i c = _mm256_unpackhi_epi8(top, second);
    const __m256i d = _mm256_unpackhi_epi8(third, bottom);
    const __m256 weights =
        _mm256_set_m128(_mm_loadu_ps(other.across->exact.data()), _mm_loadu_ps(one.across->exact.data()));
    // Red, green and blue of the four pixels of the remaining row.
    const __m256 p = _mm256_mul_ps(sums(_mm256_unpacklo_epi8(a, none), upper, _mm256_unpacklo_epi8(b, none), lower),
                                   _mm256_permute_ps(weights, _MM_SHUFFLE(1, 0, 0, 0)));
    const __m256 q = _mm256_mul_ps(sums(_mm256_unpackhi_epi8(a, none), upper, _mm256_unpackhi_epi8(b, none), lower),
                                   _mm256_permute_ps(weights, _MM_SHUFFLE(2, 2, 1, 1)));
    const __m256 r = _mm256_mul_ps(sums(_mm256_unpacklo_epi8(c, none), upper, _mm256_unpacklo_epi8(d, none), lower),
                                   _mm256_permute_ps(weights, _MM_SHUFFLE(3, 3, 3, 2)));
    const __m256 secondPixel =
        _mm256_castsi256_ps(_mm256_alignr_epi8(_mm256_castps_si256(q), _mm256_castps_si256(p), 12));
    const __m256 thirdPixel =
        _mm256_castsi256_ps(_mm256_alignr_epi8(_mm256_castps_si256(r), _mm256_castps_si256(q), 8));
    const __m256 fourthPixel = _mm256_permute_ps(r, _MM_SHUFFLE(3, 3, 2, 1));
    const __m256 sum = _mm256_add_ps(_mm256_add_ps(_mm256_add_ps(p, secondPixel), thirdPixel), fourthPixel);
    const __m256 scaled =
        _mm256_add_ps(_mm256_mul_ps(sum, _mm256_set1_ps(1.0F / CubicWeights::wholeUnit)), _mm256_set1_ps(0.5F));
    const __m256 positive = _mm256_max_ps(scaled, _mm256_setzero_ps());
    return _mm256_cvttps_epi32(_mm256_min_ps(positive, _mm256_set1_ps(255.0F)));
}

/** Three bytes of four. */
QUORLIN_AVX2 inline void store(__m128i pixel, quint8 *out)
{
    const __m128i shorts = _mm_packs_epi32(pixel, pixel);
    const int bytes = _mm_cvtsi128_si32(_mm_packus_epi16(shorts, shorts));
    std::memcpy(out, &bytes, 2);
    out[2] = quint8(bytes >> 16);
}

QUORLIN_AVX2 int mixInVectors(const CubicRow &row, int count, quint8 *out)
{
    qint64 x = row.x;
    qint64 y = row.y;
    const int pairs = count / 2;
    for (int i = 0; i < pairs; ++i, out += 6) {
        const Place one(row, x, y);
        const Place other(row, x + row.stepX, y + row.stepY);
        const __m256i pixels = mixedPair(one, other, row.rowBytes);
        store(_mm256_castsi256_si128(pixels), out);
        store(_mm256_extracti128_si256(pixels, 1), out + 3);
        x += 2 * row.stepX;
        y += 2 * row.stepY;
    }
    return 2 * pairs;
}

} // namespace

bool canMixPairs()
{
    static const bool can = __builtin_cpu_supports("avx2");
    return can;
}

int mixPairs(const CubicRow &row, int count, quint8 *out)
{
    return mixInVectors(row, count, out);
}

#else

bool canMixPairs()
{
    return false;
}

int mixPairs(const CubicRow &, int, quint8 *)
{
    return 0;
}

#endif

} // namespace platform
