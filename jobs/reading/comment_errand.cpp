#include "jobs/reading/comment_errand.h"

#include "image/recipe/sentence.h"
#include "jobs/desk/worker_desk.h"
#include "jobs/reading/reading_messages.h"

#include <utility>

namespace jobs {

CommentErrand::CommentErrand(const QString &path, const QString &comment, Take take)
    : m_path(path), m_comment(comment), m_take(std::move(take))
{
}

std::vector<platform::Message> CommentErrand::begin(Hand &)
{
    m_file.reset(); // of a worker that crashed
    auto file = platform::EditedFile::of(m_path);
    if (!file) {
        answer(file.error().message);
        return {};
    }
    m_file = std::move(*file);
    std::vector<platform::Message> messages;
    messages.push_back(toMessage(
        ReadMessage{Reading::CommentedCopy, {{QStringLiteral("comment"), m_comment}}, {m_path, m_path, m_path}}));
    messages.back().files.push_back(m_file->lendFile());
    messages.back().files.push_back(m_file->lendCopy());
    messages.back().files.push_back(m_file->lendCopyToRead());
    return messages;
}

Errand::Turn CommentErrand::take(platform::Message &message)
{
    const auto said = fromMessage<AnswerMessage>(message);
    if (!said || !message.files.empty() || !m_file)
        return Turn::Nonsense;
    QString problem = said->problem;
    if (problem.isEmpty() && said->values.value(QStringLiteral("changes")).toBool())
        if (const auto placed = m_file->takePlace(); !placed)
            problem = placed.error().message;
    answer(problem);
    return Turn::Over;
}

void CommentErrand::answer(const QString &problem)
{
    m_file.reset();
    if (const Take take = std::exchange(m_take, {}))
        take(problem);
}

QString writeCommentNow(const QString &path, const QString &comment)
{
    QString answer;
    WorkerDesk &desk = WorkerDesk::forWaiting();
    const auto errand =
        std::make_shared<CommentErrand>(path, comment, [&answer](const QString &problem) { answer = problem; });
    if (!desk.finish(desk.add(errand, Urgency::Now)))
        return image::sentence(QT_TRANSLATE_NOOP("recipe", "writing was stopped because it took too long"));
    return answer;
}

} // namespace jobs
