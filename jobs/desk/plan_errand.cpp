#include "jobs/desk/plan_errand.h"

#include "image/recipe/sentence.h"
#include "meta/metadata_file.h"
#include "platform/file/lent_file.h"

#include <utility>

namespace jobs {

using platform::Message;

namespace {

PlannedMessage problemOnly(const QString &problem)
{
    PlannedMessage planned;
    planned.problem = problem;
    return planned;
}

} // namespace

PlanErrand::PlanErrand(std::shared_ptr<const SharedRecipe> recipe, PictureMessage picture, Take take)
    : m_recipe(std::move(recipe)), m_picture(std::move(picture)), m_take(std::move(take))
{
}

std::vector<Message> PlanErrand::begin(Hand &hand)
{
    std::vector<Message> messages;
    const bool isForRecipe = m_picture.facts.path.isEmpty();
    if (std::exchange(hand.recipe, m_recipe->number()) != m_recipe->number() || isForRecipe)
        messages = m_recipe->messages();
    if (isForRecipe)
        return messages;
    auto picture = platform::LentFile::open(m_picture.facts.path);
    if (!picture) {
        hand.recipe = 0; // it was not sent
        answer(problemOnly(picture.error().message));
        return {};
    }
    m_picture.packet = meta::packetBeside(m_picture.facts.path);
    messages.push_back(toMessage(m_picture));
    messages.back().files.push_back(picture->takeDescriptor());
    return messages;
}

Errand::Turn PlanErrand::take(Message &message)
{
    if (const auto ready = fromMessage<ReadyMessage>(message)) {
        if (!m_picture.facts.path.isEmpty())
            return Turn::GoesOn; // a worker plans nothing with a recipe that cannot be carried out
        answer(problemOnly(ready->problem));
        return Turn::Over;
    }
    const auto planned = fromMessage<PlannedMessage>(message);
    if (!planned)
        return Turn::Nonsense;
    const bool isWhole = planned->plans.size() == m_recipe->recipe().outputs.size();
    if (planned->problem.isEmpty() && !isWhole)
        answer(problemOnly(image::sentence(QT_TRANSLATE_NOOP("recipe", "the recipe cannot be run"))));
    else
        answer(*planned);
    return Turn::Over;
}

void PlanErrand::fail(const QString &reason)
{
    answer(problemOnly(reason));
}

void PlanErrand::answer(const PlannedMessage &planned)
{
    if (const Take take = std::exchange(m_take, {}))
        take(planned);
}

PlannedMessage planNow(const std::shared_ptr<const SharedRecipe> &recipe, const PictureMessage &picture)
{
    PlannedMessage answer;
    WorkerDesk &desk = WorkerDesk::forWaiting();
    const auto errand =
        std::make_shared<PlanErrand>(recipe, picture, [&answer](const PlannedMessage &planned) { answer = planned; });
    if (!desk.finish(desk.add(errand, Urgency::Now)))
        return problemOnly(
            image::sentence(QT_TRANSLATE_NOOP("recipe", "reading was stopped because it took too long")));
    return answer;
}

QString recipeProblemNow(const QByteArray &json, const QString &folder)
{
    const auto recipe = SharedRecipe::whole(json, folder);
    return recipe ? planNow(*recipe, {}).problem : recipe.error().message;
}

} // namespace jobs
