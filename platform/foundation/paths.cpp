#include "platform/foundation/paths.h"

#include "platform/foundation/utf8.h"

#include <QDir>

#include <filesystem>

namespace platform {
namespace {

constexpr char16_t firstByteSign = 0xdc80; ///< of the bytes from 0x80, which alone can be invalid in UTF-8
constexpr char16_t lastByteSign = 0xdcff;

/** How many bytes the character at @p at takes; 0 if it is invalid. */
qsizetype characterAt(QByteArrayView bytes, qsizetype at)
{
    const auto byte = [&](qsizetype i) { return uchar(bytes[i]); };
    const uchar first = byte(at);
    const qsizetype size = first < 0x80   ? 1
                           : first < 0xc2 ? 0
                           : first < 0xe0 ? 2
                           : first < 0xf0 ? 3
                           : first < 0xf5 ? 4
                                          : 0;
    if (size < 2 || at + size > bytes.size())
        return size < 2 ? size : 0;
    // Overlong forms, surrogates and codes that are too high are recognised by the second byte.
    const uchar least = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
    const uchar most = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
    if (byte(at + 1) < least || byte(at + 1) > most)
        return 0;
    for (qsizetype i = at + 2; i < at + size; ++i)
        if (byte(i) < 0x80 || byte(i) > 0xbf)
            return 0;
    return size;
}

/** The position of an unpaired high surrogate; -1 if there is none. */
qsizetype loneSurrogate(const QString &text, qsizetype from)
{
    for (qsizetype at = from; at < text.size(); ++at) {
        if (!text[at].isSurrogate())
            continue;
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (!isPair)
            return at;
        ++at;
    }
    return -1;
}

bool isByteSign(QChar sign)
{
    return sign >= QChar(firstByteSign) && sign <= QChar(lastByteSign);
}

/** The position of the extension's dot in @p name, or -1. A name that begins with its only dot has no extension. */
qsizetype extensionDot(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? dot : -1;
}

} // namespace

QString decodedPath(QByteArrayView bytes)
{
    if (const auto text = textFromUtf8(bytes.toByteArray()))
        return *text;
    QString path;
    qsizetype valid = 0; // where the valid bytes before begin
    for (qsizetype at = 0; at < bytes.size();) {
        const qsizetype size = characterAt(bytes, at);
        if (size == 0) {
            path += QString::fromUtf8(bytes.sliced(valid, at - valid)) + QChar(char16_t(0xdc00 + uchar(bytes[at])));
            valid = at + 1;
        }
        at += qMax<qsizetype>(size, 1);
    }
    return path + QString::fromUtf8(bytes.sliced(valid));
}

QByteArray encodedPath(const QString &path)
{
    QByteArray bytes;
    qsizetype done = 0;
    for (qsizetype at = loneSurrogate(path, 0); at >= 0; at = loneSurrogate(path, done)) {
        bytes += QStringView(path).sliced(done, at - done).toUtf8();
        if (isByteSign(path[at]))
            bytes += char(path[at].unicode() - 0xdc00);
        else
            bytes += "\xef\xbf\xbd"; // the replacement character
        done = at + 1;
    }
    return done == 0 ? path.toUtf8() : bytes + QStringView(path).sliced(done).toUtf8();
}

QString lastPathComponent(const QString &path)
{
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    if (end == 1 && path[0] == u'/')
        return path.left(1);
    const qsizetype slash = path.lastIndexOf(u'/', end - path.size() - 1);
    return path.mid(slash + 1, end - slash - 1);
}

QString pathExtension(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString baseName(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? name : name.left(dot);
}

QString withoutTrailingSlashes(const QString &path)
{
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    return path.left(end);
}

bool canBeAPath(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return false;
    for (qsizetype at = loneSurrogate(path, 0); at >= 0; at = loneSurrogate(path, at + 1))
        if (!isByteSign(path[at]))
            return false;
    return true;
}

QString absolutePath(const QString &path)
{
    if (path.startsWith(u'/'))
        return QDir::cleanPath(path);
    std::error_code error;
    const QByteArray here = QByteArray::fromStdString(std::filesystem::current_path(error).native());
    return QDir::cleanPath(decodedPath(here) + u'/' + path);
}

QString parentFolder(const QString &path)
{
    const QString item = withoutTrailingSlashes(path);
    const qsizetype slash = item.lastIndexOf(u'/');
    return slash < 0 ? QString() : withoutTrailingSlashes(item.left(slash + 1));
}

QString joinedPath(const QString &folder, const QString &name)
{
    if (folder.isEmpty() || name.isEmpty())
        return folder + name;
    qsizetype start = 0;
    while (start < name.size() && name[start] == u'/')
        ++start;
    const QString front = withoutTrailingSlashes(folder);
    return (front == QStringLiteral("/") ? front : front + u'/') + name.mid(start);
}

QString applicationSupportFolder()
{
    const QString said = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::cleanPath(said.startsWith(u'/') ? said : QDir::homePath() + QStringLiteral("/.local/share"));
}

} // namespace platform
