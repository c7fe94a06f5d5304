#include "jobs/reading/field_errand.h"

#include "jobs/desk/worker_desk.h"
#include "jobs/reading/reading_messages.h"
#include "jobs/reading/undo_text.h"
#include "meta/metadata_file.h"
#include "platform/file/atomic_file.h"

#include <QCoreApplication>
#include <QFile>

#include <utility>

namespace jobs {
namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

QString changedSince(const QString &path)
{
    return QCoreApplication::translate("jobs", "%1 has been changed since.").arg(path);
}

} // namespace

FieldErrand::FieldErrand(const QString &path, const QVariantMap &work, Placing placing, Take take)
    : m_path(path), m_work(work), m_placing(placing), m_take(std::move(take))
{
}

std::vector<platform::Message> FieldErrand::begin(Hand &)
{
    m_file.reset(); // of a worker that crashed
    if (const QString undo = m_work.value(key("revert")).toString(); !undo.isEmpty() && revertSidecar(undo))
        return {};
    const meta::Sidecar sidecar = meta::sidecarOf(m_path);
    const auto packet = meta::packetOf(sidecar);
    auto file = platform::EditedFile::of(m_path);
    if (!packet || !file) {
        fail(packet ? file.error().message : packet.error().message);
        return {};
    }
    m_sidecar = sidecar.path;
    m_packet = *packet;
    m_file = std::move(*file);
    std::vector<platform::Message> messages;
    messages.push_back(toMessage(ReadMessage{
        Reading::FieldsCopy, {{key("work"), m_work}, {key("packet"), m_packet}}, {m_path, m_path, m_path}}));
    messages.back().files.push_back(m_file->lendFile());
    messages.back().files.push_back(m_file->lendCopy());
    messages.back().files.push_back(m_file->lendCopyToRead());
    return messages;
}

/** A sidecar holds no picture, so that it is reverted here; false where the undo is of a picture. */
bool FieldErrand::revertSidecar(const QString &undo)
{
    const auto old = sidecarUndo(undo);
    if (!old)
        return false;
    const bool isThere = QFile::exists(old->path);
    const auto now = meta::packetOf({old->path, isThere});
    const bool isOld = now && *now == old->before && isThere != old->before.isEmpty(); // the edit was never placed
    if (!isOld && (!now || *now != old->now)) {
        fail(changedSince(old->path));
        return true;
    }
    const auto restored = [&] {
        return old->before.isEmpty() ? QFile::remove(old->path) : bool(platform::replaceFile(old->path, old->before));
    };
    if (!isOld && !restored()) {
        fail(QCoreApplication::translate("jobs", "%1 cannot be written.").arg(old->path));
        return true;
    }
    answer({{key("problem"), QStringLiteral("")}, {key("changed"), !isOld}, {key("file"), old->path}});
    return true;
}

Errand::Turn FieldErrand::take(platform::Message &message)
{
    const auto said = fromMessage<AnswerMessage>(message);
    if (!said || !message.files.empty() || !m_file)
        return Turn::Nonsense;
    const bool changes = said->problem.isEmpty() && said->values.value(key("changes")).toBool();
    m_newPacket = said->values.value(key("packet")).toByteArray();
    QVariantMap result = said->values;
    result.remove(key("packet"));
    result.remove(key("changes"));
    result.insert(key("problem"), said->problem.isEmpty() ? QStringLiteral("") : said->problem);
    result.insert(key("changed"), false);
    result.insert(key("file"), changes && isSidecar() ? m_sidecar : m_path);
    if (changes && isSidecar())
        result.insert(key("undo"), undoText(SidecarUndo{m_sidecar, m_packet, m_newPacket}));
    if (changes && m_placing == Placing::AtOnce)
        result.insert(place());
    else if (changes)
        result.insert(key("isReady"), true);
    answer(result);
    return Turn::Over;
}

QVariantMap FieldErrand::place()
{
    const QString problem = !m_file ? changedSince(m_path) : isSidecar() ? placeSidecar() : placeFile();
    m_file.reset();
    return {{key("problem"), problem.isEmpty() ? QStringLiteral("") : problem},
            {key("changed"), problem.isEmpty()},
            {key("file"), isSidecar() ? m_sidecar : m_path}};
}

QString FieldErrand::placeFile()
{
    const auto placed = m_file->takePlace();
    return placed ? QString() : placed.error().message;
}

QString FieldErrand::placeSidecar()
{
    const meta::Sidecar sidecar = meta::sidecarOf(m_path);
    const auto now = meta::packetOf(sidecar);
    if (!now || *now != m_packet || sidecar.path != m_sidecar) // somebody wrote to it meanwhile
        return changedSince(m_sidecar);
    const auto written = platform::replaceFile(m_sidecar, m_newPacket);
    return written ? QString() : written.error().message;
}

void FieldErrand::fail(const QString &reason)
{
    answer({{key("problem"), reason}, {key("changed"), false}, {key("file"), m_path}});
}

void FieldErrand::answer(QVariantMap answer)
{
    if (!answer.value(key("isReady")).toBool())
        m_file.reset();
    if (const Take take = std::exchange(m_take, {}))
        take(answer);
}

QVariantMap writeFieldsNow(const QString &path, const QVariantMap &work)
{
    QVariantMap answer;
    WorkerDesk &desk = WorkerDesk::forWaiting();
    desk.finish(desk.add(std::make_shared<FieldErrand>(path, work, FieldErrand::Placing::AtOnce,
                                                       [&answer](const QVariantMap &said) { answer = said; }),
                         Urgency::Now));
    return answer;
}

QVariantMap askingFields(const QString &path)
{
    return {{key("packet"), meta::packetBeside(path)}};
}

QVariantMap fieldsAnswer(const QString &path, const QString &problem, const QVariantMap &values)
{
    QVariantMap answer = values;
    answer.insert(key("problem"), problem.isEmpty() ? QStringLiteral("") : problem);
    const bool isBeside = problem.isEmpty() && !values.value(key("inPlace")).toBool();
    answer.insert(key("sidecar"), isBeside ? meta::sidecarOf(path).path : QStringLiteral(""));
    return answer;
}

} // namespace jobs
