#include "jobs/records/result_records.h"

#include "image/recipe/recipe_reader.h"
#include "platform/descriptors/descriptor.h"
#include "platform/disk/item_identity.h"
#include "platform/effects/lettering.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"
#include "text/tokens.h"

#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <variant>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace jobs {
namespace {

constexpr char separator = '\t';
constexpr int parts = 4;

QString digestOf(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

/** All operations of an output: those of all outputs come first. */
QList<image::RecipeStep> stepsOf(const image::Recipe &recipe, int output)
{
    return recipe.operations + recipe.outputs[output].operations;
}

QList<image::WatermarkOperation> textsOf(const image::Recipe &recipe, int output)
{
    QList<image::WatermarkOperation> texts;
    for (const image::RecipeStep &step : stepsOf(recipe, output))
        if (const auto *mark = std::get_if<image::WatermarkOperation>(&step.operation); mark && !mark->text.isEmpty())
            texts.append(*mark);
    return texts;
}

bool shows(const QList<image::WatermarkOperation> &marks, std::initializer_list<const char *> tokens)
{
    return std::any_of(marks.begin(), marks.end(), [&](const image::WatermarkOperation &mark) {
        const QList<text::TokenPart> all = text::tokenParts(mark.text);
        return std::any_of(all.begin(), all.end(), [&](const text::TokenPart &part) {
            return part.isToken && std::any_of(tokens.begin(), tokens.end(),
                                               [&](const char *token) { return part.token == QLatin1String(token); });
        });
    });
}

/** What it does to pixels and metadata, in one form whatever the spelling of the file. */
QByteArray settingsOf(const QJsonObject &recipe, int output)
{
    QJsonObject own = recipe.value(QStringLiteral("outputs")).toArray().at(output).toObject();
    for (const char *elsewhere : {"name", "folder", "ifTaken"})
        own.remove(QLatin1String(elsewhere));
    return QJsonDocument(QJsonArray{recipe.value(QStringLiteral("operations")), own}).toJson(QJsonDocument::Compact);
}

/** Size and modification time. */
QString stateOf(const platform::TargetFacts &file)
{
    return QStringLiteral("%1-%2").arg(file.bytes).arg(file.modifiedNs);
}

QString resultState(const QString &path)
{
    const auto facts = platform::targetFacts(path);
    return facts && facts->isFile ? stateOf(*facts) : QString();
}

/** "a (2).jpg" is a numbered form of "a.jpg". */
bool isFormOf(const QString &name, const QString &wanted)
{
    if (name == wanted)
        return true;
    const QString suffix = platform::pathExtension(wanted);
    const qsizetype end = suffix.isEmpty() ? wanted.size() : wanted.size() - suffix.size() - 1;
    static const QRegularExpression number(QStringLiteral("^ \\(([2-9]|[1-9][0-9]+)\\)$"));
    return name.size() > wanted.size() && name.startsWith(wanted.left(end)) && name.endsWith(wanted.mid(end)) &&
           number.match(name.mid(end, name.size() - wanted.size())).hasMatch();
}

/** Locks a file of records against other processes; it may have been replaced meanwhile, and is opened once more then. */
platform::Descriptor lockedFile(const QString &path)
{
    constexpr mode_t onlyMine = 0600;
    constexpr int mostTries = 10;
    for (int tries = 0; tries < mostTries; ++tries) {
        platform::Descriptor file(::open(platform::encodedPath(path).constData(),
                                         O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW, onlyMine));
        struct stat opened = {};
        struct stat there = {};
        if (!file.isOpen() || ::flock(file.number(), LOCK_EX) != 0 || ::fstat(file.number(), &opened) != 0)
            return {};
        if (::stat(platform::encodedPath(path).constData(), &there) == 0 && there.st_ino == opened.st_ino)
            return file;
    }
    return {};
}

QByteArray lineFor(const QString &name, const QStringList &values)
{
    return name.toUtf8().toPercentEncoding() + separator + values.join(QLatin1Char(separator)).toLatin1() + '\n';
}

} // namespace

QString MadeWith::of(const QString &source, int number) const
{
    const QString own = (showsNumber ? QString::number(number) : QString()) + u'\n' + (showsPath ? source : QString());
    return own.size() == 1 ? digest : digest + u'-' + digestOf(own.toUtf8());
}

QList<MadeWith> madeWith(const QByteArray &json, const image::Recipe &recipe)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    QByteArray contents;
    for (const QString &path : image::filesOf(recipe))
        contents += digestOf(platform::readFile(path).value_or(QByteArray())).toLatin1();
    QList<MadeWith> all;
    for (int output = 0; output < recipe.outputs.size(); ++output) {
        const QList<image::WatermarkOperation> marks = textsOf(recipe, output);
        QByteArray fonts;
        for (const image::WatermarkOperation &mark : marks)
            fonts += digestOf(platform::readFile(platform::fontFile(mark.font)).value_or(QByteArray())).toLatin1();
        all.append({digestOf(settingsOf(object, output) + '\n' + contents + '\n' + fonts), shows(marks, {"counter"}),
                    shows(marks, {"name", "folder"})});
    }
    return all;
}

QString sourceState(const QString &path)
{
    const auto facts = platform::targetFacts(path);
    return facts && facts->isFile ? stateOf(*facts) + u'-' + QString::number(facts->number.inode) : QString();
}

ResultRecords &ResultRecords::ofProcess()
{
    // A program that is started without a home has no data folder either.
    const bool isThere = !qEnvironmentVariableIsEmpty("HOME") || !qEnvironmentVariableIsEmpty("XDG_DATA_HOME");
    static ResultRecords records(
        isThere ? platform::joinedPath(platform::applicationSupportFolder(), QStringLiteral("quorlin/results"))
                : QString());
    return records;
}

QString ResultRecords::fileFor(const QString &folder) const
{
    constexpr int digits = 32;
    return platform::joinedPath(m_folder, digestOf(folder.toUtf8()).left(digits));
}

ResultRecords::Known ResultRecords::readFrom(const QString &file)
{
    Known known;
    const auto facts = platform::targetFacts(file);
    known.file = facts && facts->isFile ? stateOf(*facts) : QStringLiteral("none");
    const QByteArray text = facts && facts->isFile ? platform::readFile(file).value_or(QByteArray()) : QByteArray();
    known.bytes = text.size();
    for (const QByteArray &line : text.split('\n')) {
        const QByteArrayList values = line.split(separator);
        if (values.size() == parts) // what is no record is passed over, and the last one of a name counts
            known.records.insert(
                QString::fromUtf8(QByteArray::fromPercentEncoding(values[0])),
                {QString::fromLatin1(values[1]), QString::fromLatin1(values[2]), QString::fromLatin1(values[3])});
    }
    return known;
}

ResultRecords::Known &ResultRecords::knownOf(const QString &folder)
{
    Known &known = m_known[folder];
    const QString file = fileFor(folder);
    const auto facts = platform::targetFacts(file);
    if (known.file != (facts && facts->isFile ? stateOf(*facts) : QStringLiteral("none")))
        known = readFrom(file);
    return known;
}

QString ResultRecords::upToDate(const QString &wanted, const QString &source, const QString &made)
{
    if (m_folder.isEmpty())
        return {};
    const QString folder = platform::parentFolder(wanted);
    const QHash<QString, Record> &records = knownOf(folder).records;
    const QString state = records.isEmpty() ? QString() : sourceState(source);
    if (state.isEmpty())
        return {};
    const QString name = platform::lastPathComponent(wanted);
    const auto holds = [&](const QString &each, const Record &record) {
        return record.made == made && record.source == state && isFormOf(each, name) &&
               resultState(platform::joinedPath(folder, each)) == record.result;
    };
    if (const auto own = records.constFind(name); own != records.constEnd() && holds(name, *own))
        return wanted;
    for (auto each = records.constBegin(); each != records.constEnd(); ++each)
        if (holds(each.key(), each.value()))
            return platform::joinedPath(folder, each.key());
    return {};
}

void ResultRecords::note(const QString &result, const QString &state, const QString &made)
{
    const QString now = resultState(result);
    if (m_folder.isEmpty() || state.isEmpty() || made.isEmpty() || now.isEmpty() || !QDir().mkpath(m_folder))
        return;
    const QString folder = platform::parentFolder(result);
    const QString path = fileFor(folder);
    const platform::Descriptor file = lockedFile(path);
    if (!file.isOpen())
        return;
    Known &known = knownOf(folder);
    const QString name = platform::lastPathComponent(result);
    known.records.insert(name, {made, state, now});
    const QByteArray line = lineFor(name, {made, state, now});
    if (::write(file.number(), line.constData(), size_t(line.size())) != line.size())
        return; // half a line is no record
    known.bytes += line.size();
    tidy(folder, known);
    if (const auto facts = platform::targetFacts(path))
        known.file = stateOf(*facts);
}

/** Writes the file again where most of it has been said better since; the caller holds its lock. */
void ResultRecords::tidy(const QString &folder, Known &known)
{
    constexpr qsizetype small = 65536;
    constexpr qsizetype mostOfOne = 1024; // a name of 255 bytes with its three values
    if (known.bytes < small || known.bytes < known.records.size() * mostOfOne)
        return;
    QByteArray text;
    for (auto each = known.records.constBegin(); each != known.records.constEnd(); ++each)
        if (platform::targetFacts(platform::joinedPath(folder, each.key())))
            text += lineFor(each.key(), {each->made, each->source, each->result});
    if (platform::replaceFile(fileFor(folder), text))
        known = readFrom(fileFor(folder));
}

} // namespace jobs
