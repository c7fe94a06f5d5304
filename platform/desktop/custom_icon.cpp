#include "platform/desktop/custom_icon.h"

#include "platform/disk/folders.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/encode/image_destination.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <gio/gio.h>

#include <memory>
#include <sys/xattr.h>

namespace platform {
namespace {

constexpr const char *folderIcon = ".folder-icon.png";
constexpr const char *attribute = "metadata::custom-icon";

Result<QByteArray> smallPng(const Picture &icon)
{
    constexpr int longestSide = 256;
    QSize size = icon.pixelSize();
    if (size.isEmpty())
        return failure(ErrorCode::InvalidValue, QStringLiteral("An icon needs a picture"));
    if (size.width() > longestSide || size.height() > longestSide)
        size = size.scaled(longestSide, longestSide, Qt::KeepAspectRatio).expandedTo({1, 1});
    const auto pixels = icon.scaledTo(size);
    if (!pixels)
        return tl::unexpected(pixels.error());
    return encodeImage(*pixels, FileFormat::Png);
}

/** The text of a ".directory" file with another icon; the rest is unchanged. */
QByteArray withIcon(const QByteArray &text, const QByteArray &icon)
{
    const QByteArray line = "Icon=" + icon;
    QByteArrayList lines = text.split('\n');
    qsizetype group = -1;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QByteArray words = lines[i].trimmed();
        const bool isHeader = words.startsWith('[');
        if (isHeader && group >= 0)
            break;
        if (words == "[Desktop Entry]")
            group = i;
        if (group < 0 || words.left(words.indexOf('=')).trimmed() != "Icon")
            continue;
        lines[i] = line;
        return lines.join('\n');
    }
    if (group < 0)
        return text + (text.isEmpty() || text.endsWith('\n') ? "" : "\n") + "[Desktop Entry]\n" + line + '\n';
    lines.insert(group + 1, line);
    return lines.join('\n');
}

Result<void> setIconOfFolder(const QString &folder, const QByteArray &png)
{
    const QString settings = joinedPath(folder, QStringLiteral(".directory"));
    QByteArray text;
    if (itemExists(settings)) {
        const auto there = readFile(settings);
        if (!there)
            return tl::unexpected(there.error());
        text = *there;
    }
    const auto written = replaceFile(joinedPath(folder, QString::fromLatin1(folderIcon)), png);
    return written ? replaceFile(settings, withIcon(text, QByteArray("./") + folderIcon)) : written;
}

/** Tells the desktop, which stores such metadata in its database; without a desktop this has no effect. */
bool tellDesktop(const QByteArray &path, const QByteArray &location)
{
    const std::unique_ptr<GFile, decltype(&g_object_unref)> file(g_file_new_for_path(path.constData()), g_object_unref);
    return g_file_set_attribute_string(file.get(), attribute, location.constData(), G_FILE_QUERY_INFO_NONE, nullptr,
                                       nullptr) != 0;
}

Result<void> setIconOfFile(const QString &file, const QByteArray &png)
{
    const QString store = joinedPath(applicationSupportFolder(), QStringLiteral("custom-icons"));
    const QByteArray name = QCryptographicHash::hash(png, QCryptographicHash::Sha1).toHex() + ".png";
    const QString copy = joinedPath(store, QString::fromLatin1(name));
    if (const auto made = makeFolder(store); !made)
        return made;
    if (const auto written = replaceFile(copy, png); !written)
        return written;
    const QByteArray path = QFile::encodeName(QFileInfo(file).absoluteFilePath());
    const QByteArray location = QUrl::fromLocalFile(copy).toEncoded();
    const QByteArray ownName = QByteArray("user.") + attribute;
    const bool isKept =
        ::setxattr(path.constData(), ownName.constData(), location.constData(), size_t(location.size()), 0) == 0;
    if (!tellDesktop(path, location) && !isKept)
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot keep an icon with %1").arg(file));
    return {};
}

} // namespace

Result<void> setCustomIcon(const QString &path, const Picture &icon)
{
    if (!itemExists(path))
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot find %1").arg(path));
    const auto png = smallPng(icon);
    if (!png)
        return tl::unexpected(png.error());
    return folderExists(path) ? setIconOfFolder(path, *png) : setIconOfFile(path, *png);
}

} // namespace platform
