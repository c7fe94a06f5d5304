#pragma once

namespace platform {

/**
 * Starts the libraries that pictures are read and written with, with all that they load, and no thread.
 *
 * @param threads  how many an operation on a picture may use
 *
 * False where they cannot be started.
 */
bool startPictureLibraries(int threads);

} // namespace platform
