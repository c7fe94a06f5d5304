#include "jobs/report.h"

#include "jobs/path_hash.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/tiff/camera_raw.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

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

/** A text in the notation of JSON. */
QByteArray quoted(const QString &text)
{
    QByteArray json = "\"";
    const auto escape = [&json](QChar sign) {
        json += "\\u" + QByteArray::number(sign.unicode(), 16).rightJustified(4, '0');
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar sign = text[at];
        const bool isPair = sign.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (sign == u'"' || sign == u'\\')
            (json += '\\') += char(sign.unicode());
        else if (sign < u' ' || (sign.isSurrogate() && !isPair))
            escape(sign);
        else
            json += QStringView(text).sliced(at, isPair ? 2 : 1).toUtf8();
        at += isPair;
    }
    return json + '"';
}

QByteArray textOrNull(const QString &text)
{
    return text.isEmpty() ? QByteArray("null") : quoted(text);
}

QByteArray numberOrNull(int number)
{
    return number > 0 ? QByteArray::number(number) : QByteArray("null");
}

QByteArray listOf(const QStringList &texts)
{
    QByteArrayList quotedTexts;
    for (const QString &text : texts)
        quotedTexts.append(quoted(text));
    return '[' + quotedTexts.join(',') + ']';
}

using Members = QList<std::pair<const char *, QByteArray>>;

QByteArray objectOf(const Members &members)
{
    QByteArrayList written;
    for (const auto &[name, value] : members)
        written.append('"' + QByteArray(name) + "\":" + value);
    return '{' + written.join(',') + '}';
}

quint64 pathKeyOf(const QString &recipe, const QString &path)
{
    return pathHash(platform::encodedPath(recipe + u'\n' + path));
}

bool isPicture(const QString &path)
{
    platform::NamedFile file(path);
    const QByteArray head = platform::openToRead(file) ? file.read(platform::contentHeadBytes) : QByteArray();
    return platform::contentOf(head) != platform::Content::Unknown || platform::isCameraRaw(head);
}

bool isCutOff(int descriptor)
{
    const off_t size = ::lseek(descriptor, 0, SEEK_END);
    char last = '\n';
    return size > 0 && ::pread(descriptor, &last, 1, size - 1) == 1 && last != '\n';
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
    return objectOf({{"input", quoted(line.input)},
                     {"output", textOrNull(line.output)},
                     {"index", QByteArray::number(line.index)},
                     {"status", quoted(wordOf(line.status))},
                     {"reason", textOrNull(line.reason)},
                     {"type", textOrNull(line.type)},
                     {"width", numberOrNull(line.size.width())},
                     {"height", numberOrNull(line.size.height())},
                     {"bytes", QByteArray::number(line.bytes)},
                     {"ms", QByteArray::number(line.milliseconds)},
                     {"lossless", line.isLossless ? "true" : "false"},
                     {"losses", listOf(line.losses)},
                     {"recipe", quoted(recipe)}}) +
           '\n';
}

QByteArray jsonLine(const Summary &summary)
{
    constexpr int decimals = 3;
    const QByteArray numbers = objectOf({{"inputs", QByteArray::number(summary.inputs)},
                                         {"ok", QByteArray::number(summary.ok)},
                                         {"failed", QByteArray::number(summary.failed)},
                                         {"notSupported", QByteArray::number(summary.notSupported)},
                                         {"skipped", QByteArray::number(summary.skipped)},
                                         {"bytes", QByteArray::number(summary.bytes)},
                                         {"seconds", QByteArray::number(summary.seconds, 'f', decimals)},
                                         {"jobs", QByteArray::number(summary.jobs)}});
    return objectOf({{"summary", numbers}}) + '\n';
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
        report.m_recipes.insert(recipe);
        const KnownOutput known = {
            line.value(QLatin1String("output")).toString(), statusNamed(line.value(QLatin1String("status")).toString()),
            line.value(QLatin1String("type")).toString(), line.value(QLatin1String("bytes")).toInteger()};
        if (!known.output.isEmpty())
            report.m_paths.insert(pathKeyOf(recipe, known.output));
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

bool EarlierReport::hasOutputAt(const QString &recipe, const QString &path) const
{
    return m_paths.contains(pathKeyOf(recipe, path));
}

ReportFile::~ReportFile()
{
    if (m_isOwn && m_descriptor >= 0)
        ::close(m_descriptor);
}

QString ReportFile::open(const QString &path, Start start)
{
    if (path.isEmpty())
        return {};
    m_isOwn = path != QLatin1String("-");
    if (m_isOwn && isPicture(path))
        return QStringLiteral("this is a picture, so it cannot be the report");
    const int mode = start == Start::Added ? O_RDWR | O_APPEND : O_WRONLY | O_TRUNC;
    m_descriptor = m_isOwn
                       ? ::open(platform::encodedPath(path).constData(), O_CREAT | O_CLOEXEC | O_NOCTTY | mode, 0666)
                       : STDOUT_FILENO;
    if (m_descriptor < 0 || ::fcntl(m_descriptor, F_GETFD) < 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    if (start == Start::Added && isCutOff(m_descriptor) && !add("\n"))
        return QString::fromLocal8Bit(std::strerror(errno));
    return {};
}

bool ReportFile::add(const QByteArray &line)
{
    for (qsizetype done = 0; m_descriptor >= 0 && done < line.size();) {
        const ssize_t count = ::write(m_descriptor, line.constData() + done, size_t(line.size() - done));
        if (count < 0 && errno != EINTR)
            return false;
        done += qMax<ssize_t>(count, 0);
    }
    return true;
}

} // namespace jobs
