#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace platform {

/**
 * An error that a service raises intentionally, for the few operations that are documented to raise one.
 *
 * Only the seam between services and scripts catches it: the script gets an error of that name and exactly that
 * message. Everything else that can fail is a returned value (see result.h).
 */
class Raised : public std::exception
{
public:
    /** An assertion of the service failed; the operation has cleaned up before. */
    static Raised internalInconsistency(const QString &message)
    {
        return Raised(QStringLiteral("InternalInconsistency"), message);
    }
    /** An index, range or size outside what the operation allows. */
    static Raised rangeError(const QString &message) { return Raised(QStringLiteral("RangeError"), message); }
    /** An unknown name. */
    static Raised referenceError(const QString &message) { return Raised(QStringLiteral("ReferenceError"), message); }
    /** Anything else that should stop a script. */
    static Raised error(const QString &message) { return Raised(QStringLiteral("Error"), message); }
    /** An argument of the wrong type, or a list of the wrong length. */
    static Raised typeError(const QString &message) { return Raised(QStringLiteral("TypeError"), message); }

    QString name() const { return m_name; }
    QString message() const { return m_message; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    Raised(const QString &name, const QString &message)
        : m_name(name), m_message(message), m_what((name + QStringLiteral(": ") + message).toUtf8())
    {
    }

    QString m_name;
    QString m_message;
    QByteArray m_what;
};

} // namespace platform
