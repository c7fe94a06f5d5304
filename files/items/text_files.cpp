#include "files/items/text_files.h"

#include "platform/file/atomic_file.h"
#include "platform/foundation/utf8.h"

#include <QCoreApplication>

namespace files {
namespace {

bool isNewline(QChar c)
{
    constexpr char16_t nextLine = 0x85;
    return (c >= u'\n' && c <= u'\r') || c == nextLine || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QStringList lines(const QString &text)
{
    QStringList result;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isNewline(text[i]))
            continue;
        result.append(text.sliced(start, i - start));
        start = i + 1;
    }
    result.append(text.sliced(start));
    return result;
}

} // namespace

platform::Result<void> writeText(const QString &path, const QString &text)
{
    return platform::replaceFile(path, text.toUtf8());
}

platform::Result<QStringList> readLines(const QString &path)
{
    const platform::Result<QByteArray> bytes = platform::readFile(path);
    if (!bytes)
        return tl::make_unexpected(bytes.error());
    const std::optional<QString> text = platform::textFromUtf8(*bytes);
    if (!text)
        return platform::failure(
            platform::ErrorCode::Unreadable,
            QCoreApplication::translate("files", "Cannot read %1: it is not UTF-8 text").arg(path));
    return lines(*text);
}

} // namespace files
