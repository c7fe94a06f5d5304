#pragma once

#include <QString>

#include <functional>

namespace platform {

/** Writes one line, exactly @p text and a line end, to standard error, or hands it to the sink. */
void logLine(const QString &text);

/** Writes @p text to standard error without a line end, or hands it to the sink. */
void logText(const QString &text);

/** Receives everything logged from now on instead of standard error, each text without its line end; empty for none. */
void setLogSink(std::function<void(const QString &text)> sink);

/** Sends everything logged from now on to the system log under the program @p name, which is not copied. */
void logToSystem(const char *name);

/** The absolute path as a percent-encoded URL: "file:///a/b%20c.jpg". */
QString locationText(const QString &path);

} // namespace platform
