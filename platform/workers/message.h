#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace platform {

/** What one process says to another: a kind, values one behind the other, open files. The two agree on what each kind holds. */
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
    /** Any sequence of UTF-16 units, also one that is no text. */
    void text(const QString &value);
    void texts(const QStringList &values);
    void bytes(const QByteArray &value);

    const QByteArray &body() const { return m_body; }

private:
    QByteArray m_body;
};

/**
 * Takes values out of a body that may hold anything, in the order in which they were put in. From the first one that is not there or makes
 * no sense on every value is nothing.
 */
class MessageReader
{
public:
    explicit MessageReader(const QByteArray &body) : m_body(body) {}

    qint64 number();
    /** One that is not from @p least to @p most makes no sense. */
    qint64 number(qint64 least, qint64 most);
    int integer();
    double real();
    bool flag() { return number(0, 1) == 1; }
    QString text();
    QStringList texts();
    QByteArray bytes();
    /** Whether all values so far made sense. */
    bool isGood() const { return m_isGood; }
    /** What stands behind them; 0 where one made no sense. */
    qint64 bytesLeft() const { return m_isGood ? m_body.size() - m_place : 0; }
    /** The value that was read last makes no sense to whoever asked for it. */
    void refuse() { m_isGood = false; }
    /** Whether all values made sense and nothing stands behind them. */
    bool isAll() const { return m_isGood && m_place == m_body.size(); }

private:
    const char *take(qint64 count);

    QByteArray m_body;
    qint64 m_place = 0;
    bool m_isGood = true;
};

} // namespace platform
