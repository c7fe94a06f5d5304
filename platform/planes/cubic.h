#pragma once

// Private to the platform: how sixteen pixels become one.

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <type_traits>

namespace platform {

constexpr int taps = 4; ///< pixels that one new pixel is made of, in each direction

/** The weights of a cubic spline through four pixels in a row (Catmull-Rom), for one place between the middle two. */
struct CubicWeights
{
    static constexpr int wholeUnit = 1 << 14;

    std::array<float, taps> exact = {};
    std::array<qint16, taps> whole = {}; ///< the same in units where wholeUnit is 1; their sum is wholeUnit

    CubicWeights() = default;
    /** @p t from 0, the second pixel, to 1, the third. */
    explicit CubicWeights(double t)
        : exact({float(t * (-0.5 + t * (1 - 0.5 * t))), float(1 + t * t * (-2.5 + 1.5 * t)),
                 float(t * (0.5 + t * (2 - 1.5 * t))), float(t * t * (-0.5 + 0.5 * t))})
    {
        for (size_t tap = 0; tap < exact.size(); ++tap)
            whole[tap] = qint16(std::lround(exact[tap] * wholeUnit));
        const int rest = wholeUnit - (whole[0] + whole[1] + whole[2] + whole[3]);
        whole[t < 0.5 ? 1 : 2] = qint16(whole[t < 0.5 ? 1 : 2] + rest);
    }
};

/** The pixels that one new pixel is made of: rows of four, one below the other. */
template<typename Component> struct SourceWindow
{
    const Component *first;
    ptrdiff_t rowLength; ///< in components
};

template<typename Component> Component toComponent(float value)
{
    if constexpr (std::is_integral_v<Component>) {
        constexpr float least = std::numeric_limits<Component>::min();
        constexpr float most = std::numeric_limits<Component>::max();
        return Component(std::lrint(std::clamp(value, least, most)));
    } else {
        return value;
    }
}

/** Pixels without alpha. */
template<typename Component> class OpaqueMixer
{
public:
    static constexpr int readsBeyond = 0; ///< components that are read but not used, after each row of a window

    OpaqueMixer(int bands, float) : m_bands(bands) {}
    void mix(SourceWindow<Component> window, const CubicWeights &across, const CubicWeights &down, Component *out) const
    {
        for (int band = 0; band < m_bands; ++band) {
            float sum = 0;
            for (int y = 0; y < taps; ++y) {
                const Component *row = window.first + y * window.rowLength + band;
                sum += down.exact[size_t(y)] *
                       (across.exact[0] * float(row[0]) + across.exact[1] * float(row[m_bands]) +
                        across.exact[2] * float(row[2 * m_bands]) + across.exact[3] * float(row[3 * m_bands]));
            }
            out[band] = toComponent<Component>(sum);
        }
    }

private:
    int m_bands;
};

/** Pixels with alpha in the last band: colours are weighted by their opacity. */
template<typename Component> class SeenMixer
{
public:
    static constexpr int readsBeyond = 0;

    SeenMixer(int bands, float opaque) : m_colours(bands - 1), m_opaque(opaque) {}
    void mix(SourceWindow<Component> window, const CubicWeights &across, const CubicWeights &down, Component *out) const
    {
        std::array<float, taps *taps> weights = {};
        float seen = 0;
        for (size_t tap = 0; tap < weights.size(); ++tap) {
            weights[tap] = across.exact[tap % taps] * down.exact[tap / taps] * float(at(window, tap, m_colours));
            seen += weights[tap];
        }
        const float unit = seen > 0 ? 1 / seen : 0;
        for (int band = 0; band < m_colours; ++band) {
            float sum = 0;
            for (size_t tap = 0; tap < weights.size(); ++tap)
                sum += weights[tap] * float(at(window, tap, band));
            out[band] = toComponent<Component>(sum * unit);
        }
        out[m_colours] = toComponent<Component>(std::clamp(seen, 0.0F, m_opaque));
    }

private:
    Component at(SourceWindow<Component> window, size_t tap, int band) const
    {
        return window.first[ptrdiff_t(tap / taps) * window.rowLength + ptrdiff_t(tap % taps) * (m_colours + 1) + band];
    }

    int m_colours;
    float m_opaque;
};

#if defined(__SSE2__)

/**
 * 8 bit RGB, as in photographs: the same as OpaqueMixer, but five times faster with the instructions of every x86-64.
 */
class RgbMixer
{
public:
    static constexpr int readsBeyond = 4;

    RgbMixer(int, float) {}
    void mix(SourceWindow<quint8> window, const CubicWeights &across, const CubicWeights &down, quint8 *out) const
    {
        const Bytes top = load(window.first);
        const Bytes second = load(window.first + window.rowLength);
        const Bytes third = load(window.first + 2 * window.rowLength);
        const Bytes bottom = load(window.first + 3 * window.rowLength);
        const Shorts upper = pair(down, 0);
        const Shorts lower = pair(down, 2);
        const Bytes none = {};
        const Bytes a = low(top, second);
        const Bytes b = low(third, bottom);
        const Bytes c = high(top, second);
        const Bytes d = high(third, bottom);
        // Four sums each: red, green and blue of the four pixels of the remaining row.
        const Floats first = sum(low(a, none), upper, low(b, none), lower);
        const Floats middle = sum(high(a, none), upper, high(b, none), lower);
        const Floats last = sum(low(c, none), upper, low(d, none), lower);
        Floats weights;
        std::memcpy(&weights, across.exact.data(), sizeof weights);
        const Floats p = first * __builtin_shufflevector(weights, weights, 0, 0, 0, 1);
        const Floats q = middle * __builtin_shufflevector(weights, weights, 1, 1, 2, 2);
        const Floats r = last * __builtin_shufflevector(weights, weights, 2, 3, 3, 3);
        store(p + __builtin_shufflevector(p, q, 3, 4, 5, 5) + __builtin_shufflevector(q, r, 2, 3, 4, 4) +
                  __builtin_shufflevector(r, r, 1, 2, 3, 3),
              out);
    }

private:
    using Bytes = quint8 __attribute__((vector_size(16)));
    using Shorts = qint16 __attribute__((vector_size(16)));
    using Ints = int __attribute__((vector_size(16)));
    using Floats = float __attribute__((vector_size(16)));

    static Bytes load(const quint8 *row)
    {
        Bytes bytes;
        std::memcpy(&bytes, row, sizeof bytes);
        return bytes;
    }
    static Bytes low(Bytes a, Bytes b)
    {
        return __builtin_shufflevector(a, b, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    }
    static Bytes high(Bytes a, Bytes b)
    {
        return __builtin_shufflevector(a, b, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
    }
    static Shorts pair(const CubicWeights &weights, size_t first)
    {
        const qint16 a = weights.whole[first];
        const qint16 b = weights.whole[first + 1];
        return Shorts{a, b, a, b, a, b, a, b};
    }
    static Floats sum(Bytes upperRows, Shorts upper, Bytes lowerRows, Shorts lower)
    {
        const auto one = __builtin_ia32_pmaddwd128(reinterpret(upperRows), builtin(upper));
        const auto other = __builtin_ia32_pmaddwd128(reinterpret(lowerRows), builtin(lower));
        return __builtin_convertvector(Ints(one) + Ints(other), Floats);
    }
    using BuiltinShorts = short __attribute__((vector_size(16)));
    static BuiltinShorts reinterpret(Bytes bytes) { return BuiltinShorts(bytes); }
    static BuiltinShorts builtin(Shorts shorts) { return BuiltinShorts(shorts); }

    static void store(Floats value, quint8 *out)
    {
        const Floats scaled = value * (1.0F / CubicWeights::wholeUnit) + 0.5F;
        const Floats least = {};
        const Floats most = least + 255.0F;
        const Floats positive = scaled < least ? least : scaled;
        const Ints whole = __builtin_convertvector(positive > most ? most : positive, Ints);
        out[0] = quint8(whole[0]);
        out[1] = quint8(whole[1]);
        out[2] = quint8(whole[2]);
    }
};

#else

using RgbMixer = OpaqueMixer<quint8>;

#endif

} // namespace platform
