#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * Lets this process leave a report when a signal ends it that says a fault of its own: SIGSEGV, SIGBUS, SIGFPE, SIGILL or SIGABRT.
 *
 * The report is text: @p head, the number of the signal, what was noted, and the addresses of the calls of the thread that failed, as far as
 * they can be had. It takes the place of an earlier one. Everything it needs is reserved here, and writing it touches no heap, which may be
 * what is broken; the signal then ends the process as if nothing had been there. Under sanitizers, which report themselves, this does
 * nothing.
 *
 * @param file  absolute path of at most 4095 bytes, in a folder that exists; longer ones do nothing
 * @param head  lines of text, of which at most 2047 bytes are kept
 * @return whether reports will be written
 */
bool keepCrashReports(const QString &file, const QByteArray &head);

/** Notes what the process is about for the report, such as "Action: Resize"; the note before is forgotten. At most 4095 bytes are kept. */
void noteForCrashReport(const QString &text);

/** The report of an earlier process, at most 64 KB of it; empty where there is none. */
QString crashReport(const QString &file);

} // namespace platform
