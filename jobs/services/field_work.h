#pragma once

#include "jobs/desk/worker_desk.h"

#include <QObject>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace jobs {

class FieldErrand;

/**
 * Fields of metadata that a script has read and written by workers, one file at a time: it asks, and takes the answer when that has
 * come. The next thing is asked after it was taken.
 */
class FieldWork : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit FieldWork(QObject *parent = nullptr);
    ~FieldWork() override;

    /** Asks what the fields of a file are: {fields, inPlace, sidecar, problem}, see fieldsAnswer(). */
    Q_INVOKABLE void look(const QString &path);
    /** Prepares a change of them, see FieldErrand. Its answer has isReady where there is something to place(). */
    Q_INVOKABLE void write(const QString &path, const QVariantMap &work);
    /** The change that was prepared last takes its place; {problem, changed, file}. Another request gives it up. */
    Q_INVOKABLE QVariantMap place();
    /** Restores the old file with the undo data from write(), and at once; fails if it was changed since. */
    Q_INVOKABLE void revert(const QString &path, const QString &undo);
    /** The answer; without any keys before it has come. */
    Q_INVOKABLE QVariantMap take();
    /** Gives up what was asked; a file that was to be written is as it was, or as it was to be. The object is of no use any more. */
    Q_INVOKABLE void close();

Q_SIGNALS:
    /** There is something to take(). Not from within look(), write() and revert(). */
    void arrived();

private:
    void ask(const std::shared_ptr<Errand> &errand);
    void keep(const QVariantMap &answer);

    std::shared_ptr<FieldErrand> m_prepared;
    WorkerDesk::Number m_asked = 0;
    std::optional<QVariantMap> m_answer;
};

} // namespace jobs
