#pragma once

#include "jobs/desk/recipe_errand.h"
#include "jobs/desk/worker_desk.h"

#include <QList>
#include <QObject>
#include <QVariantMap>

#include <deque>
#include <map>

namespace jobs {

/**
 * Pictures that a script has made by workers: it hands over pictures with their recipes and takes what came of them, later and in
 * whatever order they are ready. Made by RecipeService::work().
 */
class RecipeWork : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int room READ room)
    Q_PROPERTY(int inWork READ inWork)

public:
    RecipeWork(WorkerDesk &desk, QObject *parent);

    /** How many pictures more should be handed over now, so that no worker waits; 0 or more. */
    int room() const;
    /** How many were handed over and have no result yet. */
    int inWork() const { return int(m_given.size()); }

    /**
     * Hands over a picture to be made into the new file @p task.target, as RecipeService::make() does. {counter} in a watermark is @p number.
     *
     * @param number  what its result is known by, from 0; not that of another one that has no result yet
     * @param task    {path, target, recipe, width, height, noted}; the sizes are those of the picture, 0 if unknown;
     *                noted (default true) records that the file is a result. No other process may create files in the
     *                target's folder
     */
    Q_INVOKABLE void give(int number, const QVariantMap &task);
    /**
     * A finished result: {number, outcome, cause, reason, width, height, bytes, lossless, losses, ms}; without any keys
     * if there is none. outcome is "OK", "Failed" or "Not Supported"; reason is a sentence unless it is "OK", and cause
     * is "vanished" if the picture no longer exists, "full" if the disk of the target is, else "".
     */
    Q_INVOKABLE QVariantMap take();
    /**
     * The collected result @p number is at @p path now: later it can be recognised as up to date. Called at most once.
     */
    Q_INVOKABLE void placed(int number, const QString &path);
    /** Takes back what no worker has begun; the numbers of those pictures, in order. They may be handed over again. */
    Q_INVOKABLE QVariantList takeBack();
    /** Abandons and removes what is in progress; the object is useless afterwards. */
    Q_INVOKABLE void close();

Q_SIGNALS:
    /** There is something to take(). Not from within give(). */
    void arrived();

private:
    /** What is noted of a result when it has its place. */
    struct Origin
    {
        QString state; ///< of its picture before it was made
        QString made;
    };

    void keep(int number, const RecipeResult &result);
    std::shared_ptr<const SharedRecipe> shared(const QVariantMap &recipe, QString *problem);

    WorkerDesk &m_desk;
    std::map<int, WorkerDesk::Number> m_given;
    std::map<int, Origin> m_origins;
    std::deque<QVariantMap> m_results;
    QVariantMap m_told; ///< the recipe of the last picture
    std::shared_ptr<const SharedRecipe> m_shared;
    QString m_problem; ///< what is wrong with it
};

} // namespace jobs
