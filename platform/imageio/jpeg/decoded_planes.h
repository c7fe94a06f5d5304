#pragma once

// Private to the platform.

#include "platform/planes/plane.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace platform {

/** A JPEG of grey or of brightness and two colour differences, as its planes. */
struct DecodedPlanes
{
    std::vector<Plane> planes; ///< one or three
    QSize sampling = {1, 1};   ///< how many samples of brightness share one of colour
};

/** What is known before anything is decoded. */
struct PlaneFacts
{
    QSize stored;
    int components = 0;         ///< one or three
    bool comesInPasses = false; ///< so that all of its coefficients are in memory at once
    QByteArray profile;         ///< one that matches the colours; empty if there is none
};

/** None for other colours, and for files about which the decoder reports anything, even a mere warning. */
std::optional<PlaneFacts> planeFacts(const QByteArray &jpeg);

/** The same for the pixels, decoded at the size divided by @p shrink: 1, 2, 4 or 8. Throws std::bad_alloc. */
std::optional<DecodedPlanes> decodedPlanes(const QByteArray &jpeg, int shrink);

} // namespace platform
