#pragma once

#include <QString>
#include <QUrl>

namespace platform {

/** A location as text: "file:///a/b%20c.jpg". "file://localhost/" is this machine, and the host is left out of the result. */
inline QUrl locationOf(const QString &text)
{
    QUrl location(text);
    if (location.isLocalFile() && location.host() == QStringLiteral("localhost"))
        location.setHost(QString());
    return location;
}

} // namespace platform
