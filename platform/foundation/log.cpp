#include "platform/foundation/log.h"

#include <QUrl>

#include <cstdio>
#include <utility>

#include <syslog.h>

namespace platform {
namespace {

std::function<void(const QString &)> &sink()
{
    static std::function<void(const QString &)> taken;
    return taken;
}

} // namespace

void logText(const QString &text)
{
    if (sink()) {
        sink()(text.endsWith(u'\n') ? text.chopped(1) : text);
        return;
    }
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fflush(stderr);
}

void logLine(const QString &text)
{
    logText(text + u'\n');
}

void setLogSink(std::function<void(const QString &)> taken)
{
    sink() = std::move(taken);
}

void logToSystem(const char *name)
{
    ::openlog(name, LOG_PID, LOG_USER);
    setLogSink([](const QString &text) { ::syslog(LOG_NOTICE, "%s", text.toUtf8().constData()); });
}

QString locationText(const QString &path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
}

} // namespace platform
