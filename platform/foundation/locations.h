#pragma once

#include <QString>
#include <QUrl>

namespace platform {

/**
 * A URL as a path: "file:///a/b%20c.jpg". "file://localhost/" is this machine, and the host is dropped from the result.
 */
inline QUrl locationOf(const QString &text)
{
    QUrl location(text);
    if (location.isLocalFile() && location.host() == QStringLiteral("localhost"))
        location.setHost(QString());
    return location;
}

} // namespace platform
