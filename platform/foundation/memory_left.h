#pragma once

#include "platform/foundation/result.h"

namespace platform {

/**
 * How many bytes this process can still get: what the machine has to give without taking it from others, the limits of
 * the control groups it is in less what these use, and its limit of address space less what it has, whichever is least.
 *
 * @param root       where the system's own files "proc" and "sys" are found
 * @param addresses  bytes of address space that will be taken and hardly used, such as by threads; they count as gone
 */
qint64 memoryLeft(const QString &root = QStringLiteral("/"), qint64 addresses = 0);

/** The sentence about something that needs more than is free. */
QString memorySentence(const QString &name, qint64 need, qint64 left);

/**
 * What was refused last for want of memory, in words without its name: "needs about 3.6 GB of memory, 1.2 GB is free". Empty where
 * nothing was since this was asked before. For those who learn no more from an operation than that it failed.
 */
QString takeMemoryRefusal();

/**
 * Fails with TooLarge, a sentence and a line in the log where @p need bytes, and a little for what every operation takes
 * beside, are not to be had.
 *
 * @param name       what the sentence calls the thing that needs them, a file most of the time
 * @param addresses  see memoryLeft()
 */
Result<void> memoryIsLeftFor(qint64 need, const QString &name, qint64 addresses = 0);

} // namespace platform
