#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/** The description of an ICC profile, "Display P3"; empty where it has none that can be read. */
QString profileName(const QByteArray &iccProfile);

} // namespace platform
