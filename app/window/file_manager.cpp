#include "app/window/file_manager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace window {

namespace {

constexpr int answerMs = 3000;

void openFolderOf(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

} // namespace

void showInFolder(const QString &path)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!QFileInfo::exists(path) || !bus.isConnected()) {
        openFolderOf(path);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call.setArguments({QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}, QString()});
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call, answerMs));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, path] {
        const QDBusPendingReply<> reply = *answer;
        if (reply.isError())
            openFolderOf(path);
        answer->deleteLater();
    });
}

} // namespace window
