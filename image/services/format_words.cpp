#include "image/services/format_words.h"

#include "image/types/output_types.h"
#include "platform/imageio/formats/type_identifiers.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>

#include <sys/stat.h>

namespace image {

QString pixelText(QSize pixels)
{
    return QStringLiteral("%1×%2").arg(pixels.width()).arg(pixels.height());
}

QString typeOfName(const QString &name)
{
    return platform::typeIdentifierForPath(name);
}

QString typeWord(const QString &typeIdentifier)
{
    for (const WrittenType &type : writtenTypes())
        if (typeIdentifier == type.identifier)
            return type.word;
    // Those that are only read.
    static const QHash<QString, QString> words = {
        {QStringLiteral("com.adobe.photoshop-image"), QStringLiteral("Photoshop")},
        {QStringLiteral("public.heic"), QStringLiteral("HEIC")},
        {QStringLiteral("public.heif"), QStringLiteral("HEIF")},
        {QStringLiteral("public.svg-image"), QStringLiteral("SVG")},
        {QStringLiteral("public.camera-raw-image"), QStringLiteral("RAW")},
        {QStringLiteral("public.plain-text"), QString::fromLatin1(QT_TRANSLATE_NOOP("window", "Text"))},
        {QStringLiteral("public.html"), QStringLiteral("HTML")},
        {QStringLiteral("public.folder"), QString::fromLatin1(QT_TRANSLATE_NOOP("window", "Folder"))},
    };
    const QString word = words.value(typeIdentifier);
    return word.isEmpty() ? typeIdentifier.section(QLatin1Char('.'), 1).toUpper()
                          : QCoreApplication::translate("window", word.toUtf8().constData());
}

qint64 fileBytes(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? qint64(status.st_size) : -1;
}

} // namespace image
