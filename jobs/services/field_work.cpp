#include "jobs/services/field_work.h"

#include "jobs/reading/field_errand.h"
#include "jobs/reading/read_errand.h"

#include <utility>

namespace jobs {

FieldWork::FieldWork(QObject *parent) : QObject(parent) {}

FieldWork::~FieldWork()
{
    if (m_asked != 0)
        WorkerDesk::ofProcess().drop(m_asked);
}

void FieldWork::ask(const std::shared_ptr<Errand> &errand)
{
    m_answer.reset();
    m_prepared.reset();
    m_asked = WorkerDesk::ofProcess().add(errand, Urgency::Soon);
}

void FieldWork::look(const QString &path)
{
    ask(std::make_shared<ReadErrand>(
        ReadRequest{Reading::Fields, path, askingFields(path)},
        [this, path](const ReadResult &result) { keep(fieldsAnswer(path, result.problem, result.values)); }));
}

void FieldWork::write(const QString &path, const QVariantMap &work)
{
    const auto errand = std::make_shared<FieldErrand>(path, work, FieldErrand::Placing::OnRequest,
                                                      [this](const QVariantMap &answer) { keep(answer); });
    ask(errand);
    m_prepared = errand;
}

QVariantMap FieldWork::place()
{
    const auto prepared = std::exchange(m_prepared, nullptr);
    if (!prepared || m_asked != 0)
        return {{QStringLiteral("problem"), QStringLiteral("nothing is ready")},
                {QStringLiteral("changed"), false},
                {QStringLiteral("file"), QStringLiteral("")}};
    return prepared->place();
}

void FieldWork::revert(const QString &path, const QString &undo)
{
    ask(std::make_shared<FieldErrand>(path, QVariantMap{{QStringLiteral("revert"), undo}}, FieldErrand::Placing::AtOnce,
                                      [this](const QVariantMap &answer) { keep(answer); }));
}

void FieldWork::keep(const QVariantMap &answer)
{
    m_asked = 0;
    m_answer = answer;
    Q_EMIT arrived();
}

QVariantMap FieldWork::take()
{
    return std::exchange(m_answer, std::nullopt).value_or(QVariantMap());
}

void FieldWork::close()
{
    if (const WorkerDesk::Number asked = std::exchange(m_asked, 0); asked != 0)
        WorkerDesk::ofProcess().drop(asked);
    m_answer.reset();
    m_prepared.reset();
    deleteLater();
}

} // namespace jobs
