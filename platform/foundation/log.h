#pragma once

#include <QString>

namespace platform {

/** Writes one line, exactly @p text and a line end, to standard error. */
void logLine(const QString &text);

/** Writes @p text to standard error without a line end. */
void logText(const QString &text);

/** The absolute path as a percent-encoded location: "file:///a/b%20c.jpg". */
QString locationText(const QString &path);

} // namespace platform
