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

FieldErrand::FieldErrand(const QString &path, const QVariantMap &work, Take take)
    : m_path(path), m_work(work), m_take(std::move(take))
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
    const meta::Sidecar sidecar{old->path, true};
    const auto now = meta::packetOf(sidecar);
    if (!now || *now != old->now) {
        fail(changedSince(old->path));
        return true;
    }
    if (old->before.isEmpty() ? !QFile::remove(old->path) : !platform::replaceFile(old->path, old->before)) {
        fail(QCoreApplication::translate("jobs", "%1 cannot be written.").arg(old->path));
        return true;
    }
    answer({{key("problem"), QStringLiteral("")}, {key("changed"), true}, {key("file"), old->path}});
    return true;
}

Errand::Turn FieldErrand::take(platform::Message &message)
{
    const auto said = fromMessage<AnswerMessage>(message);
    if (!said || !message.files.empty() || !m_file)
        return Turn::Nonsense;
    QString problem = said->problem;
    const bool changes = problem.isEmpty() && said->values.value(key("changes")).toBool();
    if (changes)
        problem = place(said->values);
    QVariantMap result = said->values;
    result.remove(key("packet"));
    result.remove(key("changes"));
    result.insert(key("problem"), problem.isEmpty() ? QStringLiteral("") : problem);
    result.insert(key("changed"), changes && problem.isEmpty());
    result.insert(key("file"), m_written.isEmpty() ? m_path : m_written);
    result.insert(key("undo"), m_undo.isEmpty() ? said->values.value(key("undo")).toString() : m_undo);
    answer(result);
    return Turn::Over;
}

QString FieldErrand::place(const QVariantMap &said)
{
    const QByteArray packet = said.value(key("packet")).toByteArray();
    if (!packet.isEmpty())
        return placeSidecar(packet);
    const auto placed = m_file->takePlace();
    return placed ? QString() : placed.error().message;
}

QString FieldErrand::placeSidecar(const QByteArray &packet)
{
    const meta::Sidecar sidecar = meta::sidecarOf(m_path);
    const auto now = meta::packetOf(sidecar);
    if (!now || *now != m_packet || sidecar.path != m_sidecar) // somebody wrote to it meanwhile
        return changedSince(m_sidecar);
    const auto written = platform::replaceFile(m_sidecar, packet);
    m_written = m_sidecar;
    m_undo = undoText(SidecarUndo{m_sidecar, m_packet, packet});
    return written ? QString() : written.error().message;
}

void FieldErrand::fail(const QString &reason)
{
    answer({{key("problem"), reason}, {key("changed"), false}, {key("file"), m_path}});
}

void FieldErrand::answer(QVariantMap answer)
{
    m_file.reset();
    if (const Take take = std::exchange(m_take, {}))
        take(answer);
}

QVariantMap writeFieldsNow(const QString &path, const QVariantMap &work)
{
    QVariantMap answer;
    WorkerDesk &desk = WorkerDesk::forWaiting();
    desk.finish(
        desk.add(std::make_shared<FieldErrand>(path, work, [&answer](const QVariantMap &said) { answer = said; }),
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
