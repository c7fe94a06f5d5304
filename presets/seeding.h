#pragma once

#include "platform/descriptors/descriptor.h"

#include <QString>

namespace presets {

/**
 * While this lives no other process creates the database of @p folder: of several that start at the same moment, one
 * writes the tables and the others find them complete. A process that hangs keeps others waiting for a moment only, and
 * where the disk has no locks nobody waits.
 */
class Seeding
{
public:
    explicit Seeding(const QString &folder);

private:
    platform::Descriptor m_folder; ///< whose lock ends with it
};

} // namespace presets
