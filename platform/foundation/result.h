#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace platform {

/** Why an operation of the platform failed. */
enum class ErrorCode {
    NotFound,     ///< no such file, or one that may not be opened
    NotAPicture,  ///< the content is of no known kind
    Unreadable,   ///< a known kind of file that is damaged or truncated
    Unsupported,  ///< a known kind of file that cannot be read or written here
    TooLarge,     ///< more pixels or bytes than the memory budget allows
    InvalidValue, ///< a size, index or option out of range
    WriteFailed,  ///< the target cannot be written; its old content is still there
};

/** An expected failure: its kind, and one sentence that says what, which file and why. */
struct Error
{
    ErrorCode code;
    QString message;
};

template<typename T> using Result = tl::expected<T, Error>;

inline tl::unexpected<Error> failure(ErrorCode code, QString message)
{
    return tl::unexpected<Error>(Error{code, std::move(message)});
}

} // namespace platform
