#include "jobs/services/recipe_work.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace jobs {
namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

QString wordOf(RecipeResult::Outcome outcome)
{
    switch (outcome) {
    case RecipeResult::Outcome::Ok:
        return key("OK");
    case RecipeResult::Outcome::NotSupported:
        return key("Not Supported");
    case RecipeResult::Outcome::Failed:
        break;
    }
    return key("Failed");
}

QString wordOf(RecipeResult::Cause cause)
{
    switch (cause) {
    case RecipeResult::Cause::Vanished:
        return key("vanished");
    case RecipeResult::Cause::Full:
        return key("full");
    case RecipeResult::Cause::Other:
        break;
    }
    return {};
}

} // namespace

RecipeWork::RecipeWork(WorkerDesk &desk, QObject *parent) : QObject(parent), m_desk(desk) {}

int RecipeWork::room() const
{
    constexpr int ahead = 2; // so that a worker continues while this process is still handling its last result
    return std::max(0, m_desk.size() + ahead - inWork());
}

/** Most pictures of a run have the recipe of the one before. */
std::shared_ptr<const SharedRecipe> RecipeWork::shared(const QVariantMap &recipe, QString *problem)
{
    if (m_told.isEmpty() || recipe != m_told) {
        m_told = recipe;
        const auto made = SharedRecipe::from(QJsonDocument(QJsonObject::fromVariantMap(recipe)).toJson());
        m_shared = made ? *made : nullptr;
        m_problem = made ? QString() : made.error().message;
    }
    *problem = m_problem;
    return m_shared;
}

void RecipeWork::give(int number, const QVariantMap &task)
{
    const auto text = [&task](const char *name) { return task.value(key(name)).toString(); };
    const QSize pixels(task.value(key("width")).toInt(), task.value(key("height")).toInt());
    QString problem;
    const auto recipe = shared(task.value(key("recipe")).toMap(), &problem);
    if (!recipe) {
        RecipeResult result;
        result.reason = problem;
        m_given[number] = 0;
        QTimer::singleShot(0, this, [this, number, result] { keep(number, result); });
        return;
    }
    const RecipeErrand::Task own = {text("path"), text("target"), number, task.value(key("noted"), true).toBool(),
                                    pixels};
    m_origins[number] = {sourceState(own.path), recipe->made().first().of(own.path, number)};
    m_given[number] = m_desk.add(std::make_shared<RecipeErrand>(
                                     recipe, own, [this, number](const RecipeResult &result) { keep(number, result); }),
                                 Urgency::Soon);
}

void RecipeWork::keep(int number, const RecipeResult &result)
{
    if (m_given.erase(number) == 0)
        return;
    m_results.push_back({{key("number"), number},
                         {key("outcome"), wordOf(result.outcome)},
                         {key("cause"), wordOf(result.cause)},
                         {key("reason"), result.reason},
                         {key("width"), result.size.width()},
                         {key("height"), result.size.height()},
                         {key("bytes"), double(result.bytes)},
                         {key("lossless"), result.isLossless},
                         {key("losses"), result.losses},
                         {key("ms"), double(result.milliseconds)}});
    Q_EMIT arrived();
}

QVariantMap RecipeWork::take()
{
    if (m_results.empty())
        return {};
    QVariantMap result = std::move(m_results.front());
    m_results.pop_front();
    return result;
}

void RecipeWork::placed(int number, const QString &path)
{
    if (const auto origin = m_origins.extract(number))
        ResultRecords::ofProcess().note(path, origin.mapped().state, origin.mapped().made);
}

QVariantList RecipeWork::takeBack()
{
    QVariantList numbers;
    for (auto given = m_given.begin(); given != m_given.end();) {
        if (given->second != 0 && m_desk.takeBack(given->second)) {
            numbers.append(given->first);
            given = m_given.erase(given);
        } else {
            ++given;
        }
    }
    return numbers;
}

void RecipeWork::close()
{
    for (const auto &[number, errand] : std::exchange(m_given, {}))
        m_desk.drop(errand);
    m_results.clear();
    m_origins.clear();
    deleteLater();
}

} // namespace jobs
