#include "jobs/report.h"

#include "platform/file/regular_file.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cstdio>

namespace jobs {
namespace {

struct StatusWord
{
    LineStatus status;
    const char *word;
};

constexpr std::array<StatusWord, 5> statusWords = {{{LineStatus::Ok, "OK"},
                                                    {LineStatus::Failed, "Failed"},
                                                    {LineStatus::NotSupported, "Not Supported"},
                                                    {LineStatus::Skipped, "Skipped"},
                                                    {LineStatus::Planned, "Planned"}}};

QString wordOf(LineStatus status)
{
    for (const StatusWord &each : statusWords)
        if (each.status == status)
            return QLatin1String(each.word);
    return {};
}

LineStatus statusNamed(const QString &word)
{
    for (const StatusWord &each : statusWords)
        if (word == QLatin1String(each.word))
            return each.status;
    return LineStatus::Failed;
}

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QByteArray written(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QString keyOf(const QString &recipe, const QString &input, int index)
{
    return recipe + u'\n' + QString::number(index) + u'\n' + input;
}

} // namespace

void Summary::count(const ReportLine &line)
{
    switch (line.status) {
    case LineStatus::Ok:
    case LineStatus::Planned:
        ++ok;
        break;
    case LineStatus::Failed:
        ++failed;
        break;
    case LineStatus::NotSupported:
        ++notSupported;
        break;
    case LineStatus::Skipped:
        ++skipped;
        break;
    }
    bytes += line.bytes;
}

QByteArray jsonLine(const ReportLine &line, const QString &recipe)
{
    return written({{QStringLiteral("input"), line.input},
                    {QStringLiteral("output"), textOrNull(line.output)},
                    {QStringLiteral("index"), line.index},
                    {QStringLiteral("status"), wordOf(line.status)},
                    {QStringLiteral("reason"), textOrNull(line.reason)},
                    {QStringLiteral("type"), textOrNull(line.type)},
                    {QStringLiteral("width"), line.size.isEmpty() ? QJsonValue() : line.size.width()},
                    {QStringLiteral("height"), line.size.isEmpty() ? QJsonValue() : line.size.height()},
                    {QStringLiteral("bytes"), line.bytes},
                    {QStringLiteral("ms"), line.milliseconds},
                    {QStringLiteral("lossless"), line.isLossless},
                    {QStringLiteral("losses"), QJsonArray::fromStringList(line.losses)},
                    {QStringLiteral("recipe"), recipe}});
}

QByteArray jsonLine(const Summary &summary)
{
    const QJsonObject numbers = {
        {QStringLiteral("inputs"), summary.inputs},   {QStringLiteral("ok"), summary.ok},
        {QStringLiteral("failed"), summary.failed},   {QStringLiteral("notSupported"), summary.notSupported},
        {QStringLiteral("skipped"), summary.skipped}, {QStringLiteral("bytes"), summary.bytes},
        {QStringLiteral("seconds"), summary.seconds}, {QStringLiteral("jobs"), summary.jobs}};
    return written({{QStringLiteral("summary"), numbers}});
}

QString recipeName(const QByteArray &file)
{
    constexpr int digits = 12;
    return QString::fromLatin1(QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex().left(digits));
}

std::optional<EarlierReport> EarlierReport::read(const QString &path)
{
    platform::NamedFile file(path);
    if (!platform::openToRead(file))
        return std::nullopt;
    EarlierReport report;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        const QString recipe = line.value(QLatin1String("recipe")).toString();
        const QString input = line.value(QLatin1String("input")).toString();
        if (recipe.isEmpty() || input.isEmpty())
            continue;
        if (report.m_firstRecipe.isEmpty())
            report.m_firstRecipe = recipe;
        const KnownOutput known = {
            line.value(QLatin1String("output")).toString(), statusNamed(line.value(QLatin1String("status")).toString()),
            line.value(QLatin1String("type")).toString(), line.value(QLatin1String("bytes")).toInteger()};
        report.m_outputs.insert(keyOf(recipe, input, line.value(QLatin1String("index")).toInt()), known);
    }
    if (!file.readProblem().isEmpty())
        return std::nullopt;
    return report;
}

std::optional<KnownOutput> EarlierReport::of(const QString &recipe, const QString &input, int index) const
{
    const auto found = m_outputs.find(keyOf(recipe, input, index));
    return found == m_outputs.end() ? std::nullopt : std::optional(*found);
}

QString ReportFile::open(const QString &path, Start start)
{
    if (path.isEmpty())
        return {};
    m_file = std::make_unique<QFile>();
    bool isOpen = false;
    if (path == QLatin1String("-")) {
        isOpen = m_file->open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered);
    } else {
        m_file->setFileName(path);
        const QIODevice::OpenMode mode = start == Start::Added ? QIODevice::Append : QIODevice::Truncate;
        isOpen = m_file->open(QIODevice::WriteOnly | QIODevice::Unbuffered | mode);
    }
    return isOpen ? QString() : m_file->errorString();
}

bool ReportFile::add(const QByteArray &line)
{
    return !m_file || m_file->write(line) == line.size();
}

} // namespace jobs
