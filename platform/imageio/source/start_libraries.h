#pragma once

namespace platform {

/**
 * Prepares this process for pictures. The libraries that read and write them are loaded when one of them is needed, since
 * that takes longer than shrinking a photograph for the web.
 *
 * @param threads  how many an operation on a picture may use
 */
void prepareForPictures(int threads);

} // namespace platform
