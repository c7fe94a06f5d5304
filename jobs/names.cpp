#include "jobs/names.h"

#include "files/items/file_facts.h"
#include "platform/disk/item_identity.h"
#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"
#include "text/token_values.h"
#include "text/tokens.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QVariantMap>

#include <algorithm>

namespace jobs {
namespace {

using text::TokenPart;

text::TokenFacts factsOf(const QString &path, int index, bool isNeeded)
{
    text::TokenFacts facts;
    facts.path = path;
    facts.index = index;
    if (!isNeeded)
        return facts;
    const QVariantMap known = files::fileFacts(path).toMap();
    const auto value = [&known](const char *name) { return known.value(QLatin1String(name)).toString(); };
    facts.taken = value("taken");
    facts.created = value("created");
    facts.changed = value("changed");
    facts.camera = value("camera");
    facts.lens = value("lens");
    facts.type = value("type");
    facts.bytes = known.contains(QStringLiteral("bytes")) ? known.value(QStringLiteral("bytes")).toLongLong() : -1;
    facts.pixels = QSize(known.value(QStringLiteral("width")).toInt(), known.value(QStringLiteral("height")).toInt());
    return facts;
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

QString expanded(const QList<TokenPart> &parts, const QString &path, int index, QSize size)
{
    const QList<TokenPart> known = withSides(parts, size);
    const text::TokenFacts facts = factsOf(path, index, text::needsFacts(known));
    return text::expandTokens(known, facts, text::TokenLanguage::English, standInFor, cleaned).text;
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
    return QDir::cleanPath(destination.folder + u'/' + QDir(input.root).relativeFilePath(own));
}

QString nameFrom(const QString &pattern, const QString &path, int index, QSize size)
{
    const QString name = expanded(text::tokenParts(pattern), path, index, size);
    return name.trimmed().isEmpty() ? QStringLiteral("unknown") : name;
}

QString folderFrom(const QString &pattern, const QString &base, const QString &path, int index, QSize size)
{
    QString folder = pattern.startsWith(u'/') ? QStringLiteral("/") : base;
    for (const QList<TokenPart> &level : text::tokenLevels(text::tokenParts(pattern))) {
        const bool hasToken =
            std::any_of(level.begin(), level.end(), [](const TokenPart &part) { return part.isToken; });
        QString name = expanded(level, path, index, size);
        if (hasToken && isStep(name.trimmed()))
            name.replace(u'.', u'-');
        if (!name.isEmpty())
            folder = platform::joinedPath(folder, name);
    }
    return QDir::cleanPath(folder);
}

QString watermarkFrom(const QString &pattern, const QString &path, int index, QSize size)
{
    const QList<TokenPart> parts = withSides(text::tokenParts(pattern), size);
    const text::TokenFacts facts = factsOf(path, index, text::needsFacts(parts));
    return text::expandTokens(parts, facts, text::TokenLanguage::English).text;
}

ResultNames::ResultNames(const QList<Input> &inputs)
{
    for (const Input &input : inputs)
        m_inputs.insert(platform::targetIdentity(input.path));
    m_inputs.remove({});
}

QString ResultNames::knownIdentityOf(const QString &folder) const
{
    const QString identity = platform::folderIdentity(folder);
    // A folder that was made for a result has another identity now than it had when there was none.
    for (auto known = m_folders.begin(); known != m_folders.end(); ++known)
        if (!known->isThere && platform::folderIdentity(known->path) == identity)
            return known.key();
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
    known.isThere = QFileInfo::exists(folder);
    QDirIterator items(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (items.hasNext()) {
        items.next();
        known.onDisk.insert(platform::nameKey(items.fileName()));
    }
    return known;
}

Standing ResultNames::standingAt(const QString &path, const Input &input)
{
    const Folder &folder = folderOf(path);
    const QString key = platform::nameKey(QFileInfo(path).fileName());
    if (folder.given.contains(key))
        return Standing::OtherResult;
    if (!folder.onDisk.contains(key))
        return Standing::Nothing;
    const QString identity = platform::targetIdentity(path);
    if (!identity.isEmpty() && identity == platform::targetIdentity(input.path))
        return Standing::OwnInput;
    return m_inputs.contains(identity) ? Standing::OtherInput : Standing::OnDisk;
}

void ResultNames::give(const QString &path)
{
    folderOf(path).given.insert(platform::nameKey(QFileInfo(path).fileName()));
}

bool ResultNames::isFree(const QString &path)
{
    const Folder &folder = folderOf(path);
    const QString key = platform::nameKey(QFileInfo(path).fileName());
    return !folder.given.contains(key) && !folder.onDisk.contains(key);
}

QString ResultNames::giveNumbered(const QString &path)
{
    const QString folder = platform::parentFolder(path);
    const QString name = QFileInfo(path).fileName();
    int &next = folderOf(path).nextNumber[platform::nameKey(name)];
    for (next = qMax(next, 2);; ++next) {
        const QString numbered =
            platform::joinedPath(folder, platform::fittingNumberedName(name, next, platform::NameOf::File));
        if (!isFree(numbered))
            continue;
        give(numbered);
        return numbered;
    }
}

} // namespace jobs
