#include "jobs/desk/batch_errand.h"

#include "meta/metadata_file.h"
#include "platform/file/lent_file.h"

#include <utility>

namespace jobs {

using platform::Message;

BatchErrand::BatchErrand(std::shared_ptr<const SharedRecipe> recipe, Task task, Listener listener)
    : m_recipe(std::move(recipe)), m_task(std::move(task)), m_listener(std::move(listener))
{
}

std::vector<Message> BatchErrand::begin(Hand &hand)
{
    m_problem.clear();
    auto picture = platform::LentFile::open(m_task.facts.path);
    if (!picture) {
        fail(picture.error().message);
        return {};
    }
    std::vector<std::pair<int, platform::Descriptor>> files = m_task.files();
    if (files.empty()) {
        fail({});
        return {};
    }
    std::vector<Message> messages;
    if (std::exchange(hand.recipe, m_recipe->number()) != m_recipe->number())
        messages = m_recipe->messages();
    messages.push_back(
        toMessage(PictureMessage{m_task.facts, m_task.wantsFacts, meta::packetBeside(m_task.facts.path)}));
    messages.back().files.push_back(picture->takeDescriptor());
    for (size_t first = 0; first < files.size(); first += platform::mostFiles) {
        OutputsMessage outputs;
        std::vector<platform::Descriptor> some;
        for (size_t i = first; i < std::min(files.size(), first + platform::mostFiles); ++i) {
            outputs.indices.append(files[i].first);
            some.push_back(std::move(files[i].second));
        }
        messages.push_back(toMessage(outputs));
        messages.back().files = std::move(some);
    }
    messages.push_back(toMessage(MessageKind::Make));
    return messages;
}

Errand::Turn BatchErrand::take(Message &message)
{
    if (const auto ready = fromMessage<ReadyMessage>(message)) {
        m_problem = ready->problem;
        return Turn::GoesOn;
    }
    if (const auto planned = fromMessage<PlannedMessage>(message)) {
        if (m_problem.isEmpty())
            m_problem = planned->problem;
        return Turn::GoesOn;
    }
    if (const auto made = fromMessage<MadeMessage>(message))
        return m_listener.made(*made) ? Turn::GoesOn : Turn::Nonsense;
    if (MessageKind(message.kind) != MessageKind::Done || !message.body.isEmpty())
        return Turn::Nonsense;
    fail(m_problem);
    return Turn::Over;
}

void BatchErrand::fail(const QString &reason)
{
    if (const auto ended = std::exchange(m_listener.ended, {}))
        ended(reason);
}

} // namespace jobs
