#pragma once

#include "platform/imageio/edits/metadata_change.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace meta {

/** Groups of metadata that the user may want to keep private. */
enum class PrivateData { Places, SerialNumbers, Names, Faces, MakerNotes, Thumbnails };

inline size_t qHash(PrivateData data, size_t seed = 0)
{
    return ::qHash(int(data), seed);
}

/** "places", "serialNumbers", "names", "faces", "makerNotes", "thumbnails". */
QStringList privateDataNames();
std::optional<PrivateData> privateDataNamed(const QString &name);

/** Whether a field belongs to the places. */
bool isPlace(const QString &fieldName);

/** Adds to @p change what removes these groups. */
void addRemoval(platform::MetadataChange &change, const QSet<PrivateData> &groups);

} // namespace meta
