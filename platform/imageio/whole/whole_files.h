#pragma once

// Inside platform/ only: whether the simpler kinds of files are complete; see whole_picture.h.

class QIODevice;

namespace platform {

/** The end mark somewhere after the header of the first scan. */
bool isWholeJpeg(QIODevice &file);
/** All chunks up to the last. */
bool isWholePng(QIODevice &file);
/** All frames, and the byte that says that there are no more. */
bool isWholeGif(QIODevice &file);
/** As many bytes as the container says. */
bool isWholeWebp(QIODevice &file);
/** All rows, or all runs if there are some, and the profile. */
bool isWholeBmp(QIODevice &file);

} // namespace platform
