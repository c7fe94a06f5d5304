#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace jobs {

/**
 * Names that arrive through a file or a pipe, one per line or each followed by a NUL, as from platform::decodedPath().
 * Empty ones are skipped, and so is a line's carriage return. No more is read than is needed.
 */
class NameStream
{
public:
    enum class Separator : char { LineFeed = '\n', Nul = '\0' };
    enum class State { Ready, Waiting, Ended };

    /** @param path  "-" is standard input. Fails with NotFound. */
    static platform::Result<NameStream> open(const QString &path, Separator separator);

    NameStream(NameStream &&other) noexcept;
    NameStream &operator=(NameStream &&) = delete;
    ~NameStream();

    /** Whether a name is there now; waits so many milliseconds for one, or until a signal comes. */
    State look(int waitMs);
    /** The next name. To be called where look() says that it is ready. */
    QString take();

    /** What a loop of events can wait for. */
    int descriptor() const { return m_descriptor; }
    /** Why it ended early; empty if it did not. */
    const QString &problem() const { return m_problem; }

private:
    NameStream(int descriptor, bool isOwn, Separator separator)
        : m_descriptor(descriptor), m_isOwn(isOwn), m_separator(char(separator))
    {
    }
    bool readSome();
    bool findName();

    int m_descriptor;
    bool m_isOwn;
    char m_separator;
    QByteArray m_bytes; ///< read and not taken yet
    qsizetype m_at = 0; ///< what of these is taken
    std::optional<QByteArray> m_name;
    bool m_isAtEnd = false;
    QString m_problem;
};

} // namespace jobs
