#include "platform/imageio/facts/profile_name.h"

#include "platform/foundation/byte_order.h"
#include "platform/graphics/icc_profile.h"

#include <QStringDecoder>

#include <algorithm>

namespace platform {
namespace {

/** A number at @p position; 0 outside the bytes. */
/** One text of a profile's name, and its language. */
struct NamedText
{
    QByteArray language; ///< "de"
    QByteArray country;  ///< "CH"
    qsizetype at = 0;
    qsizetype size = 0;
};

QList<NamedText> textsOf(const QByteArray &tag)
{
    constexpr qsizetype mostTexts = 256;
    constexpr qsizetype recordsAt = 16;
    const auto count = std::min(qsizetype(bigEndian32At(tag, 8)), mostTexts);
    const auto recordSize = qsizetype(bigEndian32At(tag, 12));
    QList<NamedText> texts;
    for (qsizetype at = recordsAt; recordSize >= 12 && texts.size() < count && at + 12 <= tag.size(); at += recordSize)
        texts.append({tag.mid(at, 2).toLower(), tag.mid(at + 2, 2).toUpper(), qsizetype(bigEndian32At(tag, at + 8)),
                      qsizetype(bigEndian32At(tag, at + 4))});
    return texts;
}

/**
 * The best text for a reader: in one of the preferred languages, with its country if possible; else English, else the
 * first.
 */
NamedText textFor(const QList<NamedText> &texts, const QStringList &languages)
{
    const auto search = [&texts](const QByteArray &language, const QByteArray &country) {
        return std::find_if(texts.begin(), texts.end(), [&](const NamedText &text) {
            return text.language == language && (country.isEmpty() || text.country == country);
        });
    };
    for (const QString &wanted : languages) {
        const QList<QByteArray> parts = wanted.toLatin1().replace('_', '-').split('-');
        const QByteArray language = parts.first().toLower();
        for (const QByteArray &country : {parts.last().toUpper(), QByteArray()})
            if (const auto found = search(language, country); found != texts.end())
                return *found;
    }
    const auto english = search("en", {});
    return english != texts.end() ? *english : texts.value(0);
}

QString localisedText(const QByteArray &tag, const QStringList &languages)
{
    const NamedText text = textFor(textsOf(tag), languages);
    QStringDecoder decode(QStringDecoder::Utf16BE);
    return decode(tag.mid(text.at, text.size));
}

QString plainText(const QByteArray &tag)
{
    const auto length = qsizetype(bigEndian32At(tag, 8));
    return QString::fromLatin1(tag.mid(12, length));
}

} // namespace

QString profileName(const QByteArray &iccProfile, const QStringList &languages)
{
    const QByteArray tag = iccTag(iccProfile, "desc");
    QString name = tag.startsWith("mluc") ? localisedText(tag, languages) : plainText(tag);
    const qsizetype end = name.indexOf(QChar::Null);
    if (end >= 0)
        name.truncate(end);
    return name.trimmed();
}

} // namespace platform
