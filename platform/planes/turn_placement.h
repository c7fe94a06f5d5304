#pragma once

// Private to the platform.

#include <QPointF>
#include <QSize>
#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace platform {

/** Between two pixels so many steps, a power of two, are told apart. */
constexpr int turnStepBits = 10;

/** A position in whole pixels and 2^-32 of one, so that stepping along a row costs an addition. */
class TurnPosition
{
public:
    static constexpr int bits = 32;

    explicit TurnPosition(double pixels) : m_value(qint64(std::floor(pixels * one))) {}
    void step(TurnPosition by, int times = 1) { m_value += by.m_value * times; }
    int pixel() const { return int(m_value >> bits); }
    qint64 value() const { return m_value; }
    size_t stepInPixel() const { return size_t(m_value >> (bits - turnStepBits)) & ((1 << turnStepBits) - 1); }

private:
    static constexpr double one = 4294967296.0;
    qint64 m_value;
};

/** The position of a picture that is turned on its canvas, from the top left corner of the first pixel. */
class TurnPlacement
{
public:
    /**
     * @param centre  the position of the picture's centre on the canvas, in pixels
     * @param sample  pixels of the canvas, across and down, that one column and one row consist of
     */
    TurnPlacement(QSize picture, double degrees, QPointF centre, QSize sample = {1, 1})
        : m_width(picture.width()), m_height(picture.height()), m_centre(centre), m_sampleWidth(sample.width()),
          m_sampleHeight(sample.height())
    {
        constexpr double radiansPerDegree = 0.017453292519943295;
        m_cosine = std::cos(degrees * radiansPerDegree);
        m_sine = std::sin(degrees * radiansPerDegree);
    }

    /** One column to the right on the canvas is this far horizontally and vertically in the picture. */
    QPointF step() const { return {m_cosine * m_sampleWidth, m_sine * m_sampleWidth}; }

    /** The point of the picture under the centre of a place on the canvas. */
    QPointF inPicture(double column, double row) const
    {
        const double across = (column + 0.5) * m_sampleWidth - m_centre.x();
        const double down = (row + 0.5) * m_sampleHeight - m_centre.y();
        return {across * m_cosine - down * m_sine + m_width / 2, across * m_sine + down * m_cosine + m_height / 2};
    }

    /** How much of a pixel of the canvas the picture covers, 0 to 1; of several pixels in a place the average. */
    float coverage(int column, int row) const
    {
        double sum = 0;
        for (int y = 0; y < int(m_sampleHeight); ++y)
            for (int x = 0; x < int(m_sampleWidth); ++x)
                sum += coverageOf(
                    inPicture(column + ((x + 0.5) / m_sampleWidth - 0.5), row + ((y + 0.5) / m_sampleHeight - 0.5)));
        return float(sum / (m_sampleWidth * m_sampleHeight));
    }

    struct Columns
    {
        int first = 0;
        int end = 0; ///< one past the last
    };

    /** The columns of a row that the picture may cover in part, within @p limits. */
    Columns columnsTouched(int row, Columns limits) const { return columnsWithin(reach(), row, limits); }
    /** Those that it covers completely. */
    Columns columnsCovered(int row, Columns limits) const { return columnsWithin(-reach(), row, limits); }

private:
    static double coverageOf(double place, double side)
    {
        return std::clamp(std::min(place, side - place) + 0.5, 0.0, 1.0);
    }
    double coverageOf(QPointF place) const { return coverageOf(place.x(), m_width) * coverageOf(place.y(), m_height); }

    /** Coverage changes within half a pixel of an edge, at the pixels of a place instead of its centre. */
    double reach() const { return 0.5 + (m_sampleWidth - 1) / 2 + (m_sampleHeight - 1) / 2; }

    /** The columns of a row that are in the picture, enlarged by @p margin pixels on each side. */
    Columns columnsWithin(double margin, int row, Columns limits) const
    {
        const double down = (row + 0.5) * m_sampleHeight - m_centre.y();
        Span span = {limits.first * m_sampleWidth - m_centre.x(), (limits.end + 1) * m_sampleWidth - m_centre.x()};
        span.cut(m_cosine, -down * m_sine, m_width / 2 + margin);
        span.cut(m_sine, down * m_cosine, m_height / 2 + margin);
        if (!(span.from < span.to))
            return {limits.end, limits.end};
        const auto column = [&](double across) {
            return std::clamp(int(std::ceil((across + m_centre.x()) / m_sampleWidth - 0.5)), limits.first, limits.end);
        };
        return {column(span.from), column(span.to)};
    }

    /** The part of a line on which |slope * t + offset| stays below a bound. */
    struct Span
    {
        double from;
        double to;

        void cut(double slope, double offset, double bound)
        {
            if (slope == 0) {
                if (std::abs(offset) >= bound)
                    to = from;
                return;
            }
            const double one = (-bound - offset) / slope;
            const double other = (bound - offset) / slope;
            from = std::max(from, std::min(one, other));
            to = std::min(to, std::max(one, other));
        }
    };

    double m_width;
    double m_height;
    QPointF m_centre;
    double m_sampleWidth;
    double m_sampleHeight;
    double m_cosine = 1;
    double m_sine = 0;
};

} // namespace platform
