#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace platform {

/**
 * What one process sends to another: a kind, a sequence of values, open files. Both agree on the contents of each kind.
 */
struct Message
{
    quint16 kind = 0;
    QByteArray body;
    std::vector<Descriptor> files;
};

/** The largest body, and the most files that one message may have. */
inline constexpr qint64 largestBody = 32 << 20;
inline constexpr size_t mostFiles = 64;

/** Puts values into a body. */
class MessageWriter
{
public:
    void number(qint64 value);
    void real(double value);
    void flag(bool value) { number(value ? 1 : 0); }
    /** Any sequence of UTF-16 units, even an invalid one. */
    void text(const QString &value);
    void texts(const QStringList &values);
    void bytes(const QByteArray &value);

    const QByteArray &body() const { return m_body; }

private:
    QByteArray m_body;
};

/**
 * Reads the values of a body that may contain anything, in the order in which they were written. After the first
 * missing or invalid one every value is nothing.
 */
class MessageReader
{
public:
    explicit MessageReader(const QByteArray &body) : m_body(body) {}

    qint64 number();
    /** A value outside @p least to @p most is invalid. */
    qint64 number(qint64 least, qint64 most);
    int integer();
    double real();
    bool flag() { return number(0, 1) == 1; }
    QString text();
    QStringList texts();
    QByteArray bytes();
    /** Whether all values so far were valid. */
    bool isGood() const { return m_isGood; }
    /** The rest of the body in bytes; 0 after an invalid value. */
    qint64 bytesLeft() const { return m_isGood ? m_body.size() - m_place : 0; }
    /** The caller considers the value that was read last invalid. */
    void refuse() { m_isGood = false; }
    /** Whether all values were valid and nothing follows them. */
    bool isAll() const { return m_isGood && m_place == m_body.size(); }

private:
    const char *take(qint64 count);

    QByteArray m_body;
    qint64 m_place = 0;
    bool m_isGood = true;
};

} // namespace platform
