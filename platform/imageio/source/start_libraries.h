#pragma once

namespace platform {

/**
 * Initialises the libraries for reading and writing pictures, with everything that they load, and without starting a
 * thread.
 *
 * @param threads  how many an operation on a picture may use
 *
 * False if they cannot be initialised.
 */
bool startPictureLibraries(int threads);

} // namespace platform
