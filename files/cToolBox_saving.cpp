#include "files/cToolBox.h"

#include "files/items/saving.h"
#include "files/items/text_files.h"
#include "image/convert.h"

#include "platform/controls/controls.h"
#include "platform/controls/save_panel.h"
#include "platform/desktop/tags.h"
#include "platform/desktop/user_defaults.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"
#include "platform/foundation/utf8.h"

namespace {

/** Whether panels ask for tags. */
bool hasTags()
{
    return platform::userDefault(QStringLiteral("MOS")).toString() == QLatin1String("109+");
}

/** Asks where to save; null if that is cancelled. */
QString askForFile(const QString &type, const QString &name)
{
    platform::SavePanel panel;
    return files::chosenPath(panel.run(files::saveRequest(type, name)));
}

/** Operations that were cancelled, or that failed, answer with no text, which differs from null. */
QString noText()
{
    return QStringLiteral("");
}

} // namespace

void cToolBox::takeType(const QObject *menu)
{
    myFileType = platform::selectedTitleOf(menu);
    extensions = QStringList{myFileType};
}

void cToolBox::showType(const QObject *menu, QObject *qualityMenu)
{
    takeType(menu);
    if (m_panel)
        m_panel->setAllowedTypes({myFileType});
    platform::setEnabledOf(qualityMenu, myFileType == QLatin1String("jpeg"));
}

QVariant cToolBox::hSaveDialogFile(const QString &source)
{
    const bool asksForTags = hasTags();
    takeType(pubFileType);
    platform::PanelRequest request = files::saveRequest(myFileType, platform::baseName(source));
    request.folder = files::startFolder();
    request.showsTagField = asksForTags;
    request.accessory = wwFormats;
    // A script that runs while the panel is open may open another one, which replaces it in the field.
    const auto panel = std::make_shared<platform::SavePanel>();
    m_panel = panel;
    const platform::PanelAnswer answer = panel->run(request);
    const QString path = files::chosenPath(answer);
    if (path.isNull())
        return QVariant::fromValue(nullptr);
    myCompType = platform::selectedTitleOf(pubJPEGcompression);
    if (asksForTags)
        tagNames = answer.tags;
    if (const auto target = image::targetTypeFor(myFileType))
        (void)image::convertFile({source, *target, image::conversionQuality(myCompType), path});
    if (asksForTags)
        (void)platform::setTags(path, answer.tags);
    return QVariantList{QUrl::fromLocalFile(path), myFileType, platform::baseName(source)};
}

void cToolBox::hChooseFileType(const platform::Sender &)
{
    showType(pubFileType, pubJPEGcompression);
}

void cToolBox::hSaveAsChooseFileType(const platform::Sender &)
{
    showType(pubSaveAsFileType, pubSaveAsJPEGcompression);
}

void cToolBox::hChooseCompType(const platform::Sender &)
{
    myCompType = platform::selectedTitleOf(pubJPEGcompression);
}

void cToolBox::hSaveWriteDialogFile(const QString &fileType, const QString &text, const QString &name)
{
    const QString path = askForFile(fileType, name);
    if (!path.isNull())
        (void)files::writeText(path, text);
}

QString cToolBox::hSaveWriteDialogFile2(const QString &text, const QString &name)
{
    const QString path = askForFile(files::actionFileExtension(), name);
    if (path.isNull())
        return noText();
    (void)files::writeText(path, text);
    return path;
}

QString cToolBox::hSaveNSDataWriteDialogFile(const QByteArray &data, const QString &name)
{
    const QString path = askForFile(files::actionFileExtension(), name);
    if (path.isNull() || data.isNull())
        return noText();
    return platform::replaceFile(path, data) ? path : noText();
}

QString cToolBox::hReadNSDataInFile()
{
    const QString path = files::chosenPath(platform::runPanel(files::actionFileRequest()));
    if (path.isNull())
        return noText();
    const auto bytes = platform::readFile(path);
    const std::optional<QString> text = bytes ? platform::textFromUtf8(*bytes) : std::nullopt;
    if (!text)
        return QString();
    return text->isNull() ? noText() : *text;
}
