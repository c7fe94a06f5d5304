#pragma once

#include "jobs/desk/worker_desk.h"

#include <QObject>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace jobs {

/**
 * User comments that a script has read and written by workers, one file at a time: it asks, and takes the answer when that has come. The
 * next thing is asked after it was taken.
 */
class CommentWork : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CommentWork(QObject *parent = nullptr);
    ~CommentWork() override;

    /** Asks what the comment of a file is. */
    Q_INVOKABLE void look(const QString &path);
    /** Writes a comment, see platform::writeUserComment(). What is done to a file is done once it can be taken. */
    Q_INVOKABLE void write(const QString &path, const QString &comment);
    /**
     * The answer: {comment, pagesLost, problem} or {problem}; without any keys before it has arrived. problem is a
     * sentence on failure, else empty; pagesLost counts the pages that writing would lose.
     */
    Q_INVOKABLE QVariantMap take();
    /** Gives up what was asked; a file that was to be written is as it was, or as it was to be. The object is of no use any more. */
    Q_INVOKABLE void close();

Q_SIGNALS:
    /** There is something to take(). Not from within look() and write(). */
    void arrived();

private:
    void ask(const std::shared_ptr<Errand> &errand);
    void keep(const QVariantMap &answer);

    WorkerDesk::Number m_asked = 0;
    std::optional<QVariantMap> m_answer;
};

} // namespace jobs
