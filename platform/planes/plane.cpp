#include "platform/planes/plane.h"

#include "platform/planes/plane_kernels.h"

namespace platform {

Plane::Plane(QSize size)
    : m_size(size), m_rowBytes(wholeUnits(size.width(), planeRowUnit)),
      m_bytes(std::make_unique_for_overwrite<uchar[]>(size_t(m_rowBytes) * size_t(size.height())))
{
}

} // namespace platform
