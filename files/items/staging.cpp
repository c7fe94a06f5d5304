#include "files/items/staging.h"

#include "platform/desktop/user_defaults.h"
#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"

#include <QDir>
#include <QFile>
#include <QVariant>

#include <cmath>
#include <filesystem>

namespace files {

QString stagingFolder()
{
    return platform::joinedPath(QDir::homePath(), QStringLiteral("Temp"));
}

bool storeBeside(const QString &source, const QString &name)
{
    const QString folder = platform::parentFolder(source);
    const QString target = platform::joinedPath(folder, name);
    if (!platform::itemExists(target))
        return storeAt(source, target);
    const QString beside = platform::joinedPath(folder, name + QStringLiteral("-temp"));
    (void)platform::copyItem(source, beside);
    return platform::moveItem(beside, target).has_value();
}

bool storeAt(const QString &source, const QString &destination)
{
    return platform::copyItem(source, destination).has_value();
}

bool storeInStaging(const QString &source, const QString &name)
{
    return platform::folderExists(stagingFolder()) && storeAt(source, platform::joinedPath(stagingFolder(), name));
}

std::optional<QList<QUrl>> locationsIn(const QString &folder)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const QString absolute = QDir(folder).absolutePath();
    auto entry =
        fs::directory_iterator(folder.isEmpty() ? std::string() : QFile::encodeName(absolute).toStdString(), error);
    QList<QUrl> locations;
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const QString name = QFile::decodeName(entry->path().filename().c_str());
        if (!name.startsWith(u'.'))
            locations.append(QUrl::fromLocalFile(platform::joinedPath(absolute, name)));
    }
    return error ? std::nullopt : std::optional(locations);
}

QUrl locationOfOneSegment(const QString &text)
{
    const QByteArray segment = QUrl::toPercentEncoding(text, "!$&'()*+,:;=[]");
    const QUrl location = QUrl::fromEncoded(segment, QUrl::StrictMode);
    return location.isValid() ? location : QUrl();
}

bool isLaterGeneration(double frameworkVersion)
{
    constexpr double lastOfGeneration8 = 855.11;
    return std::floor(frameworkVersion) > lastOfGeneration8;
}

double frameworkVersion()
{
    constexpr double usual = 1151.16;
    bool isNumber = false;
    const double said = qEnvironmentVariable("QUORLIN_FRAMEWORK_VERSION").toDouble(&isNumber);
    if (isNumber)
        return said;
    const double chosen = platform::userDefault(QStringLiteral("FrameworkVersion")).toDouble(&isNumber);
    return isNumber ? chosen : usual;
}

} // namespace files
