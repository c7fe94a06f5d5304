#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * Makes this process leave a report when it dies of a signal that indicates a bug: SIGSEGV, SIGBUS, SIGFPE, SIGILL or
 * SIGABRT.
 *
 * The report is text: @p head, the number of the signal, the note, and the call addresses of the failing thread, as far
 * as available. It replaces an earlier one. Everything is allocated here, and writing it does not touch the heap, which
 * may be corrupted; the signal then ends the process as usual. Under sanitizers, which report themselves, this does
 * nothing.
 *
 * @param file  absolute path of at most 4095 bytes, in a folder that exists; longer ones do nothing
 * @param head  lines of text, of which at most 2047 bytes are kept
 * @return whether reports will be written
 */
bool keepCrashReports(const QString &file, const QByteArray &head);

/**
 * Notes what the process is doing, for the report, such as "Action: Resize"; replaces the previous note. At most 4095
 * bytes are kept.
 */
void noteForCrashReport(const QString &text);

/** The report of an earlier process, at most 64 KB of it; empty if there is none. */
QString crashReport(const QString &file);

} // namespace platform
