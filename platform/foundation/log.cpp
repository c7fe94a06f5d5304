#include "platform/foundation/log.h"

#include <QUrl>

#include <cstdio>

namespace platform {

void logText(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

void logLine(const QString &text)
{
    logText(text + u'\n');
}

QString locationText(const QString &path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

} // namespace platform
