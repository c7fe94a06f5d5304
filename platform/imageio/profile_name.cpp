#include "platform/imageio/profile_name.h"

#include "platform/graphics/icc_profile.h"

#include <QStringDecoder>
#include <QtEndian>

namespace platform {
namespace {

/** A number at @p position; 0 outside the bytes. */
quint32 numberAt(const QByteArray &bytes, qsizetype position)
{
    const bool isInside = position >= 0 && position + 4 <= bytes.size();
    return isInside ? qFromBigEndian<quint32>(bytes.constData() + position) : 0;
}

/** The first text of a list of texts in several languages. */
QString localisedText(const QByteArray &tag)
{
    const auto length = qsizetype(numberAt(tag, 20));
    const auto offset = qsizetype(numberAt(tag, 24));
    QStringDecoder decode(QStringDecoder::Utf16BE);
    return decode(tag.mid(offset, length));
}

QString plainText(const QByteArray &tag)
{
    const auto length = qsizetype(numberAt(tag, 8));
    return QString::fromLatin1(tag.mid(12, length));
}

} // namespace

QString profileName(const QByteArray &iccProfile)
{
    const QByteArray tag = iccTag(iccProfile, "desc");
    QString name = tag.startsWith("mluc") ? localisedText(tag) : plainText(tag);
    const qsizetype end = name.indexOf(QChar::Null);
    if (end >= 0)
        name.truncate(end);
    return name.trimmed();
}

} // namespace platform
