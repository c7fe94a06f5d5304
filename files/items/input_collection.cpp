#include "files/items/input_collection.h"

#include "platform/disk/folder_walk.h"

#include <QFile>
#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

namespace files {
namespace {

using Extensions = std::span<const std::string_view>;

constexpr std::array<std::string_view, 8> standardTypes = {"png", "jpg", "jpeg", "gif", "tif", "tiff", "bmp", "jp2"};
constexpr std::array<std::string_view, 7> orderingTypes = {"pdf", "png", "jpg", "jpeg", "gif", "tif", "tiff"};
constexpr std::array<std::string_view, 8> resizeTypes = {"jpg", "jpeg", "tif", "tiff", "png", "jp2", "gif", "bmp"};
constexpr std::array<std::string_view, 4> metadataTypes = {"jpg", "jpeg", "tif", "tiff"};

constexpr std::array<std::string_view, 14> sortingSpellings = {"jpg", "jpeg", "tif", "tiff", "pdf", "png", "gif",
                                                               "JPG", "JPEG", "TIF", "TIFF", "PDF", "PNG", "GIF"};
constexpr std::array<std::string_view, 10> watermarkSpellings = {"jpg", "jpeg", "tif", "tiff", "png",
                                                                 "JPG", "JPEG", "TIF", "TIFF", "PNG"};
constexpr std::array<std::string_view, 8> metadataSpellings = {"jpg", "jpeg", "tif", "tiff",
                                                               "JPG", "JPEG", "TIF", "TIFF"};

enum class Types { Any, Base, Resize, Metadata, Watermark };

struct Keyword
{
    std::string_view actionType;
    InputKind kind;
    Types types;
    FolderFilter filter = FolderFilter::Any;
    bool entersPackages = false;
};

constexpr std::array<Keyword, 10> standardKeywords = {{
    {"EMM", InputKind::Files, Types::Metadata},
    {"batchSort", InputKind::Files, Types::Base},
    {"resize", InputKind::Files, Types::Resize},
    {"sort", InputKind::Files, Types::Base},
    {"rescale", InputKind::Files, Types::Base},
    {"rename", InputKind::Files, Types::Any},
    {"renameDir", InputKind::Folder, Types::Any, FolderFilter::Any, true},
    {"sortDir", InputKind::Folder, Types::Base, FolderFilter::Sorting},
    {"WatermarkDir", InputKind::Folder, Types::Base, FolderFilter::Watermark},
    {"WatermarkFiles", InputKind::Files, Types::Watermark},
}};

constexpr std::array<Keyword, 8> orderingKeywords = {{
    {"EMM", InputKind::Files, Types::Metadata},
    {"EMMDir", InputKind::Folder, Types::Base, FolderFilter::Metadata},
    {"sort", InputKind::Files, Types::Base},
    {"rescale", InputKind::Files, Types::Base},
    {"rename", InputKind::Files, Types::Any},
    {"renameDir", InputKind::Folder, Types::Any, FolderFilter::Any, true},
    {"batchSortImages", InputKind::Folder, Types::Base, FolderFilter::Sorting},
    {"sortDir", InputKind::Folder, Types::Base, FolderFilter::Sorting},
}};

QString text(std::string_view ascii)
{
    return QString::fromLatin1(ascii.data(), qsizetype(ascii.size()));
}

QStringList list(Extensions extensions)
{
    QStringList result;
    for (const std::string_view extension : extensions)
        result << text(extension);
    return result;
}

std::optional<QStringList> panelTypes(ActionFamily family, Types types)
{
    switch (types) {
    case Types::Any:
        return std::nullopt;
    case Types::Base:
        return family == ActionFamily::Standard ? list(standardTypes) : list(orderingTypes);
    case Types::Resize:
        return list(resizeTypes);
    case Types::Metadata:
        return list(metadataTypes);
    case Types::Watermark:
        return list(watermarkSpellings);
    }
    return std::nullopt;
}

/** What follows the last dot of a name; empty if there is none. */
std::string_view extensionOf(std::string_view name)
{
    const size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

/** True for the name of the file browser's settings file; a folder of that name is not entered. */
bool isBrowserSettingsName(std::string_view name)
{
    return text(name).compare(QLatin1String(".DS_Store"), Qt::CaseInsensitive) == 0;
}

/** Both families count the chosen files with this one number; it means nothing outside that loop. */
qint32 runningIndex = 0;

QStringList chosenFiles(const platform::PanelAnswer &answer)
{
    QStringList paths;
    for (runningIndex = 0; runningIndex < answer.paths.size(); ++runningIndex)
        paths << answer.paths.at(runningIndex);
    return paths;
}

QString decoded(std::string_view bytes)
{
    return QFile::decodeName(QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size())));
}

bool isAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return uchar(byte) < 0x80; });
}

/** Paths as text. Files of one folder come in sequence, so its part of the path is decoded once. */
class PathTexts
{
public:
    QString of(const platform::FolderItem &item)
    {
        const std::string_view folder = item.path.substr(0, item.path.size() - item.name.size());
        if (folder != m_folder) {
            m_folder = folder;
            m_folderText = decoded(folder);
        }
        if (isAscii(item.name)) // nearly all are, and then one allocation suffices
            return m_folderText % QLatin1String(item.name.data(), qsizetype(item.name.size()));
        return m_folderText + decoded(item.name);
    }

private:
    std::string m_folder;
    QString m_folderText;
};

} // namespace

std::optional<InputRule> inputRule(ActionFamily family, const QString &actionType)
{
    const std::span<const Keyword> keywords =
        family == ActionFamily::Standard ? std::span<const Keyword>(standardKeywords) : orderingKeywords;
    const auto found = std::find_if(keywords.begin(), keywords.end(),
                                    [&](const Keyword &keyword) { return text(keyword.actionType) == actionType; });
    if (found == keywords.end())
        return std::nullopt;
    return InputRule{found->kind, panelTypes(family, found->types), found->filter, found->entersPackages};
}

platform::PanelRequest panelRequest(const InputRule &rule)
{
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Open;
    request.choosesFiles = rule.kind == InputKind::Files;
    request.choosesSeveral = rule.kind == InputKind::Files;
    request.choosesFolders = rule.kind == InputKind::Folder;
    request.types = rule.panelTypes;
    return request;
}

bool takesExtension(FolderFilter filter, std::string_view extension)
{
    const auto among = [extension](Extensions spellings) {
        return std::find(spellings.begin(), spellings.end(), extension) != spellings.end();
    };
    switch (filter) {
    case FolderFilter::Any:
        return true;
    case FolderFilter::Sorting:
        return among(sortingSpellings);
    case FolderFilter::Watermark:
        return among(watermarkSpellings);
    case FolderFilter::Metadata:
        return among(metadataSpellings);
    }
    return false;
}

QStringList filesBelow(const QString &folder, const InputRule &rule)
{
    using namespace platform;
    FolderWalkOptions options;
    options.packageContents = rule.entersPackages ? PackageContents::Visit : PackageContents::Skip;
    QStringList paths;
    PathTexts texts;
    walkFolder(folder, options, [&](const FolderItem &item) {
        if (item.isFolder)
            return isBrowserSettingsName(item.name) ? Descend::No : Descend::Yes;
        if (takesExtension(rule.filter, extensionOf(item.name)))
            paths << texts.of(item);
        return Descend::No;
    });
    return paths;
}

std::optional<QStringList> collectInput(ActionFamily family, const QString &actionType)
{
    const std::optional<InputRule> rule = inputRule(family, actionType);
    if (!rule)
        return std::nullopt;
    const platform::PanelAnswer answer = platform::runPanel(panelRequest(*rule));
    if (!answer.accepted || answer.paths.isEmpty())
        return QStringList();
    return rule->kind == InputKind::Files ? chosenFiles(answer) : filesBelow(answer.paths.first(), *rule);
}

} // namespace files
