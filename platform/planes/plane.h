#pragma once

// Private to the platform.

#include <QSize>
#include <QtGlobal>

#include <memory>

namespace platform {

/** One component of a picture, 8 bits a sample. Its memory is uninitialised at first. */
class Plane
{
public:
    Plane() = default;
    /** At least 1 x 1. Throws std::bad_alloc. */
    explicit Plane(QSize size);

    bool isNull() const { return !m_bytes; }
    QSize size() const { return m_size; }
    int width() const { return m_size.width(); }
    int height() const { return m_size.height(); }
    /** From one row to the next: the width and some padding, which vectors read and nobody uses. */
    int rowBytes() const { return m_rowBytes; }
    uchar *row(int y) { return m_bytes.get() + size_t(m_rowBytes) * size_t(y); }
    const uchar *row(int y) const { return m_bytes.get() + size_t(m_rowBytes) * size_t(y); }

private:
    QSize m_size;
    int m_rowBytes = 0;
    std::unique_ptr<uchar[]> m_bytes;
};

/**
 * Along one side: which part of the old samples becomes how many new ones. Positions count from the edge of the first
 * sample.
 */
struct PlaneSpan
{
    double start = 0; ///< the position of the first new sample among the old ones
    double step = 1;  ///< old samples per new one; at most mostPlaneStep
    int count = 0;    ///< of new samples
    /** So many old samples are averaged first, from the edge of the first one on; 1 if each counts by itself. */
    double block = 1;

    bool operator==(const PlaneSpan &other) const = default;
};

/** Beyond this a weight is too small for the arithmetic. */
constexpr double mostPlaneStep = 64;

} // namespace platform
