#include "jobs/services/comment_work.h"

#include "jobs/reading/comment_errand.h"
#include "jobs/reading/read_errand.h"

#include <algorithm>
#include <utility>

namespace jobs {

CommentWork::CommentWork(QObject *parent) : QObject(parent) {}

CommentWork::~CommentWork()
{
    if (m_asked != 0)
        WorkerDesk::ofProcess().drop(m_asked);
}

void CommentWork::ask(const std::shared_ptr<Errand> &errand)
{
    m_answer.reset();
    m_asked = WorkerDesk::ofProcess().add(errand, Urgency::Soon);
}

void CommentWork::look(const QString &path)
{
    ask(std::make_shared<ReadErrand>(ReadRequest{Reading::Comment, path, {}}, [this](const ReadResult &result) {
        const QString comment = result.value("comment").toString();
        keep({{QStringLiteral("comment"), result.isGood() && !comment.isNull() ? comment : QStringLiteral("")},
              {QStringLiteral("pagesLost"), std::max(0, result.value("pagesLost").toInt())},
              {QStringLiteral("problem"), result.isGood() ? QStringLiteral("") : result.problem}});
    }));
}

void CommentWork::write(const QString &path, const QString &comment)
{
    ask(std::make_shared<CommentErrand>(path, comment, [this](const QString &problem) {
        keep({{QStringLiteral("problem"), problem.isEmpty() ? QStringLiteral("") : problem}});
    }));
}

void CommentWork::keep(const QVariantMap &answer)
{
    m_asked = 0;
    m_answer = answer;
    Q_EMIT arrived();
}

QVariantMap CommentWork::take()
{
    return std::exchange(m_answer, std::nullopt).value_or(QVariantMap());
}

void CommentWork::close()
{
    if (const WorkerDesk::Number asked = std::exchange(m_asked, 0); asked != 0)
        WorkerDesk::ofProcess().drop(asked);
    m_answer.reset();
    deleteLater();
}

} // namespace jobs
