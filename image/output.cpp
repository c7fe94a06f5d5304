#include "image/output.h"

#include "platform/file/atomic_file.h"
#include "platform/foundation/log.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/formats/formats.h"

namespace image {
namespace {

QString answerFor(const QString &path, const platform::Result<void> &written)
{
    if (written)
        return statusOk();
    platform::logLine(QStringLiteral("Failed to write image to ") + platform::locationText(path));
    return statusFailed();
}

} // namespace

QString statusOk()
{
    return QStringLiteral("OK");
}

QString statusFailed()
{
    return QStringLiteral("Failed");
}

QString statusNotSupported()
{
    return QStringLiteral("Not Supported");
}

bool keepsSourceType(const QVariant &requestedType)
{
    return requestedType.toString() == QLatin1String("original file type");
}

bool isNeverWritten(const QString &typeIdentifier)
{
    return typeIdentifier == QLatin1String("com.adobe.photoshop-image") ||
           typeIdentifier == QLatin1String("com.adobe.pdf");
}

platform::Forms formsFor(const QString &typeIdentifier)
{
    const bool isTiff = typeIdentifier == QLatin1String("public.tiff");
    return isTiff ? platform::Forms::AsTiffHolds : platform::Forms::Plain;
}

QString extensionForType(const QString &typeIdentifier)
{
    const platform::Format *format = platform::formatNamed(typeIdentifier);
    return platform::fileFormatForType(typeIdentifier) ? u'.' + QString(format->extensions).section(u' ', 0, 0)
                                                       : QString();
}

QString outputBase(const QString &prefix, const QString &sourcePath)
{
    return prefix + platform::baseName(sourcePath);
}

platform::Result<platform::EncodeOptions> optionsCarrying(const platform::ImageSource &source)
{
    return source.metadata().map([](const platform::Metadata &metadata) {
        platform::EncodeOptions options;
        options.metadata = metadata;
        options.resolution = platform::WriteResolution::Yes;
        return options;
    });
}

QString writeAnswering(const QString &path, const QString &type, const platform::Bitmap &bitmap,
                       const platform::Result<platform::EncodeOptions> &options)
{
    if (isNeverWritten(type))
        return statusNotSupported();
    const std::optional<platform::FileFormat> format = platform::fileFormatForType(type);
    if (!format)
        return statusFailed();
    return answerFor(path, options.and_then([&](const platform::EncodeOptions &known) {
        return platform::writeImageFile(path, bitmap, *format, known);
    }));
}

QString writeAnswering(const QString &path, const QByteArray &encoded)
{
    return answerFor(path, platform::replaceFile(path, encoded));
}

} // namespace image
