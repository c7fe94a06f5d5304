#pragma once

#include "platform/foundation/result.h"

namespace platform {

/**
 * How many bytes this process can still get: the minimum of what the machine has available, what the limits of its
 * control groups leave, and what its limit of address space leaves.
 *
 * @param root       where the system's own files "proc" and "sys" are found
 * @param addresses  bytes of address space that will be reserved and hardly used, such as by threads; they count as
 * used
 */
qint64 memoryLeft(const QString &root = QStringLiteral("/"), qint64 addresses = 0);

/** The sentence about something that needs more than is free. */
QString memorySentence(const QString &name, qint64 need, qint64 left);

/**
 * What was last refused for lack of memory, in words without its name: "needs about 3.6 GB of memory, 1.2 GB is free".
 * Empty if nothing was since the last call. For callers who only learn that an operation failed.
 */
QString takeMemoryRefusal();

/**
 * Fails with TooLarge, a sentence and a line in the log if @p need bytes, and a little for the overhead of every
 * operation, are not available.
 *
 * @param name       what needs the memory, usually a file, for the sentence
 * @param addresses  see memoryLeft()
 */
Result<void> memoryIsLeftFor(qint64 need, const QString &name, qint64 addresses = 0);

/**
 * Prepares the heap for pictures: the memory of one is kept for the next, and if addresses are limited all threads share
 * one heap. Cheap after the first call, which comes before the first picture.
 */
void prepareHeapForPictures();

} // namespace platform
