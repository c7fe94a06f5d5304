#include "platform/workers/message.h"

#include <QtEndian>

#include <cstring>
#include <limits>

namespace platform {

void MessageWriter::number(qint64 value)
{
    const qint64 stored = qToLittleEndian(value);
    m_body.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

void MessageWriter::real(double value)
{
    qint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    number(bits);
}

void MessageWriter::text(const QString &value)
{
    bytes(QByteArray::fromRawData(reinterpret_cast<const char *>(value.constData()),
                                  value.size() * qsizetype(sizeof(QChar))));
}

void MessageWriter::texts(const QStringList &values)
{
    number(values.size());
    for (const QString &value : values)
        text(value);
}

void MessageWriter::bytes(const QByteArray &value)
{
    number(value.size());
    m_body.append(value);
}

const char *MessageReader::take(qint64 count)
{
    if (!m_isGood || count < 0 || count > m_body.size() - m_place) {
        m_isGood = false;
        return nullptr;
    }
    const char *taken = m_body.constData() + m_place;
    m_place += count;
    return taken;
}

qint64 MessageReader::number()
{
    const char *taken = take(sizeof(qint64));
    return taken ? qFromLittleEndian<qint64>(taken) : 0;
}

qint64 MessageReader::number(qint64 least, qint64 most)
{
    const qint64 value = number();
    if (m_isGood && value >= least && value <= most)
        return value;
    m_isGood = false;
    return 0;
}

int MessageReader::integer()
{
    return int(number(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

double MessageReader::real()
{
    const qint64 bits = number();
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

QString MessageReader::text()
{
    const QByteArray units = bytes();
    if (units.size() % qsizetype(sizeof(QChar)) != 0) {
        m_isGood = false;
        return {};
    }
    QString value(units.size() / qsizetype(sizeof(QChar)), Qt::Uninitialized);
    if (!value.isEmpty())
        std::memcpy(value.data(), units.constData(), size_t(units.size()));
    return value;
}

QStringList MessageReader::texts()
{
    // Each takes at least the size of its length field, so that no count can exceed the body.
    const qint64 count = number(0, (m_body.size() - m_place) / qint64(sizeof(qint64)));
    QStringList values;
    for (qint64 i = 0; i < count && m_isGood; ++i)
        values.append(text());
    return m_isGood ? values : QStringList();
}

QByteArray MessageReader::bytes()
{
    const qint64 count = number();
    const char *taken = take(count);
    return taken ? QByteArray(taken, count) : QByteArray();
}

} // namespace platform
