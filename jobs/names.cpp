#include "jobs/names.h"

#include "image/services/format_words.h"
#include "jobs/camera_clocks.h"
#include "jobs/path_hash.h"
#include "jobs/records/picture_ratings.h"
#include "meta/sidecar_metadata.h"
#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/disk/item_facts.h"
#include "platform/disk/item_identity.h"
#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"
#include "text/tokens.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace jobs {
namespace {

using text::TokenPart;

QString dateText(const QDateTime &date)
{
    return date.isValid() ? date.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")) : QString();
}

bool needsFacts(const QString &pattern)
{
    return text::needsFacts(text::tokenParts(pattern));
}

bool needsFacts(const QList<image::RecipeStep> &steps)
{
    return std::any_of(steps.begin(), steps.end(), [](const image::RecipeStep &step) {
        const auto *mark = std::get_if<image::WatermarkOperation>(&step.operation);
        return mark && needsFacts(mark->text);
    });
}

/** The sides of the result in place of those of the picture. */
QList<TokenPart> withSides(QList<TokenPart> parts, QSize size)
{
    for (TokenPart &part : parts) {
        const bool isWidth = part.isToken && part.token == QLatin1String("width");
        const bool isHeight = part.isToken && part.token == QLatin1String("height");
        if ((isWidth || isHeight) && !size.isEmpty())
            part = {QString::number(isWidth ? size.width() : size.height()), {}, {}, false};
    }
    return parts;
}

QString standInFor(const TokenPart &part)
{
    const bool isDate = part.token == QLatin1String("date") || part.token == QLatin1String("taken") ||
                        part.token == QLatin1String("created") || part.token == QLatin1String("changed");
    return isDate ? QStringLiteral("undated") : QStringLiteral("unknown");
}

/** A value as a part of a name. */
QString cleaned(const QString &value)
{
    QString clean = value;
    for (QChar &sign : clean)
        if (sign == u'/' || sign.category() == QChar::Other_Control)
            sign = u'-';
    return clean;
}

QString expanded(const QList<TokenPart> &parts, const text::TokenFacts &facts, QSize size)
{
    return text::expandTokens(withSides(parts, size), facts, text::TokenLanguage::English, standInFor, cleaned).text;
}

quint64 keyOf(const QString &name)
{
    return pathHash(platform::encodedPath(platform::nameKey(name)));
}

bool isStep(const QString &name)
{
    return name == QLatin1String(".") || name == QLatin1String("..");
}

} // namespace

QString baseFolderOf(const Input &input, const Destination &destination)
{
    const QString own = platform::parentFolder(input.path);
    if (destination.folder.isEmpty())
        return own;
    if (!destination.keepsTree || input.root.isEmpty())
        return destination.folder;
    return platform::joinedPath(destination.folder, platform::parentFolder(placeBelowRoot(input)));
}

bool needsFacts(const image::Recipe &recipe)
{
    return needsFacts(recipe.operations) ||
           std::any_of(recipe.outputs.begin(), recipe.outputs.end(), [](const image::RecipeOutput &output) {
               return needsFacts(output.name) || needsFacts(output.folder) || needsFacts(output.operations);
           });
}

text::TokenFacts factsOfFile(const QString &path, int index, bool isNeeded)
{
    text::TokenFacts facts;
    facts.path = path;
    facts.index = index;
    if (!isNeeded)
        return facts;
    const QFileInfo info(path);
    const auto item = platform::itemFacts(info.isSymLink() && info.exists() ? info.canonicalFilePath() : path);
    if (!item)
        return facts;
    facts.rating = PictureRatings::ofProcess().of(path);
    facts.created = dateText(item->created);
    facts.changed = dateText(item->modified);
    facts.bytes = item->sizeInBytes;
    return facts;
}

text::TokenFacts withPictureFacts(const text::TokenFacts &facts, const platform::PictureFacts &stated)
{
    const platform::PictureFacts picture = CameraClocks::ofProcess().corrected(stated);
    text::TokenFacts all = facts;
    all.taken = dateText(picture.taken);
    all.camera = picture.camera;
    all.lens = picture.lens;
    all.type =
        image::typeWord(picture.typeIdentifier.isEmpty() ? image::typeOfName(facts.path) : picture.typeIdentifier);
    all.pixels = picture.pixels.isEmpty() ? QSize(0, 0) : picture.pixels;
    return all;
}

text::TokenFacts factsOfPicture(const QString &path, int index)
{
    return withPictureFacts(factsOfFile(path, index, true), meta::factsWithSidecar(path));
}

QString nameFrom(const QString &pattern, const text::TokenFacts &facts, QSize size)
{
    const QString name = expanded(text::tokenParts(pattern), facts, size);
    return name.trimmed().isEmpty() ? QStringLiteral("unknown") : name;
}

QString folderFrom(const QString &pattern, const QString &base, const text::TokenFacts &facts, QSize size)
{
    QString folder = pattern.startsWith(u'/') ? QStringLiteral("/") : base;
    for (const QList<TokenPart> &level : text::tokenLevels(text::tokenParts(pattern))) {
        const bool hasToken =
            std::any_of(level.begin(), level.end(), [](const TokenPart &part) { return part.isToken; });
        QString name = expanded(level, facts, size);
        if (hasToken && isStep(name.trimmed()))
            name.replace(u'.', u'-');
        if (!name.isEmpty())
            folder = platform::joinedPath(folder, platform::shortened(name, platform::longestNameBytes));
    }
    return QDir::cleanPath(folder);
}

QString watermarkFrom(const QString &pattern, const text::TokenFacts &facts, QSize size)
{
    const QList<TokenPart> parts = withSides(text::tokenParts(pattern), size);
    return text::expandTokens(parts, facts, text::TokenLanguage::English).text;
}

bool namesNeedPictures(const image::RecipeOutput &output)
{
    return output.type == image::OutputType::Original || text::needsFacts(text::tokenParts(output.name)) ||
           text::needsFacts(text::tokenParts(output.folder));
}

/** A folder that was made for a result has another identity now than it had when there was none. */
QString ResultNames::knownIdentityOf(const QString &folder)
{
    const QString identity = platform::folderIdentity(folder);
    constexpr qsizetype most = 256; // those before were not made when their results were
    while (m_missing.size() > most)
        m_missing.removeFirst();
    for (const QString &known : std::as_const(m_missing))
        if (platform::folderIdentity(m_folders[known].path) == identity)
            return known;
    return identity;
}

ResultNames::Folder &ResultNames::folderOf(const QString &path)
{
    const QString folder = platform::parentFolder(path);
    QString &identity = m_identities[folder];
    if (!identity.isEmpty())
        return m_folders[identity];
    identity = knownIdentityOf(folder);
    if (const auto found = m_folders.find(identity); found != m_folders.end())
        return *found;
    Folder &known = m_folders[identity];
    known.path = folder;
    known.isThere = platform::folderExists(folder);
    if (!known.isThere)
        m_missing.append(identity);
    return known;
}

ResultNames::Folder &ResultNames::listedFolderOf(const QString &path)
{
    Folder &folder = folderOf(path);
    if (folder.isListed)
        return folder;
    folder.isListed = true;
    const platform::DiskFileSystem disk;
    const auto entries = disk.list(disk.canonicalFolder(folder.path));
    for (const platform::FolderEntry &entry : entries.value_or(std::vector<platform::FolderEntry>()))
        folder.onDisk.insert(keyOf(entry.name));
    return folder;
}

QString ResultNames::plan(const QString &path)
{
    Folder &folder = folderOf(path);
    const QString name = platform::lastPathComponent(path);
    const Key key = keyOf(name);
    if (!folder.planned.contains(key)) {
        folder.planned.insert(key);
        return path;
    }
    return planNumbered(path);
}

QString ResultNames::planNumbered(const QString &path)
{
    Folder &folder = folderOf(path);
    const QString name = platform::lastPathComponent(path);
    int &next = folder.nextPlanned[keyOf(name)];
    for (next = qMax(next, 2);; ++next) {
        const QString numbered = platform::fittingNumberedName(name, next, platform::NameOf::File);
        if (folder.planned.contains(keyOf(numbered)))
            continue;
        folder.planned.insert(keyOf(numbered));
        return platform::joinedPath(platform::parentFolder(path), numbered);
    }
}

void ResultNames::keep(const QString &path)
{
    folderOf(path).given.insert(keyOf(platform::lastPathComponent(path)));
}

Standing ResultNames::standingAt(const QString &planned, const Input &input)
{
    const Folder &folder = listedFolderOf(planned);
    const Key key = keyOf(platform::lastPathComponent(planned));
    if (folder.given.contains(key))
        return Standing::OtherResult;
    if (!folder.onDisk.contains(key) && !platform::isTaken(planned)) // it may have come since the folder was listed
        return Standing::Nothing;
    if (isOtherInput(planned, input))
        return Standing::OtherInput;
    const auto there = platform::targetFacts(planned);
    return there && m_inputs.contains(there->number) ? Standing::OwnInput : Standing::OnDisk;
}

bool ResultNames::isOtherInput(const QString &path, const Input &input) const
{
    const auto there = platform::targetFacts(path);
    if (!there || !m_inputs.contains(there->number))
        return false;
    const auto own = platform::targetFacts(input.path);
    return !own || own->number != there->number;
}

QString ResultNames::giveNumbered(const QString &path)
{
    Folder &folder = listedFolderOf(path);
    const QString name = platform::lastPathComponent(path);
    int &next = folder.nextGiven[keyOf(name)];
    for (next = qMax(next, 2);; ++next) {
        const QString numbered = platform::fittingNumberedName(name, next, platform::NameOf::File);
        const Key key = keyOf(numbered);
        const bool isTaken = folder.planned.contains(key) || folder.given.contains(key) || folder.onDisk.contains(key);
        const QString free = isTaken ? QString() : platform::joinedPath(platform::parentFolder(path), numbered);
        if (isTaken || m_isReserved(free))
            continue;
        folder.given.insert(key);
        return free;
    }
}

} // namespace jobs
