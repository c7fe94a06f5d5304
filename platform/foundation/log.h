#pragma once

#include <QString>

#include <functional>

namespace platform {

/** Writes one line, exactly @p text and a line end, to standard error, or hands it to the sink. */
void logLine(const QString &text);

/** Writes @p text to standard error without a line end, or hands it to the sink. */
void logText(const QString &text);

/** Takes what is logged from now on in the place of standard error, each text without its line end; empty for none. */
void setLogSink(std::function<void(const QString &text)> sink);

/** Sends what is logged from now on to the log of the system, as that of the program @p name, which is kept as it is. */
void logToSystem(const char *name);

/** The absolute path as a percent-encoded location: "file:///a/b%20c.jpg". */
QString locationText(const QString &path);

} // namespace platform
