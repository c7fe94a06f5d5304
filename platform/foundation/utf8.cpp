#include "platform/foundation/utf8.h"

#include <QStringDecoder>

namespace platform {

std::optional<QString> textFromUtf8(const QByteArray &bytes)
{
    // Without Stateless an incomplete character at the end would be kept for the next call.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace platform
