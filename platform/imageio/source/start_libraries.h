#pragma once

#include <functional>

namespace platform {

/**
 * Prepares this process for pictures. The libraries that read and write them are loaded when one of them is needed, since
 * that takes longer than shrinking a photograph for the web.
 *
 * @param threads  how many an operation on a picture may use
 */
void prepareForPictures(int threads);

/** What to call, once each, before and after the libraries are loaded, so that this does not count as work on a picture. */
void watchLibraries(std::function<void()> begins, std::function<void()> ended);

} // namespace platform
