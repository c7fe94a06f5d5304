#pragma once

#include "files/moving/journal_shelf.h"
#include "files/moving/move_beginning.h"
#include "files/moving/undoable_runs.h"
#include "files/planning/move_plan.h"

#include "platform/disk/file_system.h"

#include <QObject>
#include <QVariant>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>

namespace files {

/**
 * What the scripts of a job use to rename, move, copy, link and trash files so that none is ever lost: plans, runs with
 * a journal, undo, and recovery of interrupted runs.
 *
 * Paths are absolute. Nothing here needs a window. Failures are sentences beside a code; an empty text means success. The journals
 * are in the folder "moves" of the program's data folder; the last 200 runs can be listed and undone.
 */
class MoveService : public QObject
{
    Q_OBJECT

public:
    explicit MoveService(QObject *parent = nullptr);
    /** On another disk, with journals elsewhere. */
    MoveService(std::unique_ptr<platform::FileSystem> disk, std::unique_ptr<JournalShelf> shelf,
                QObject *parent = nullptr);
    ~MoveService() override;

    /**
     * Says what would happen to each request; changes nothing.
     *
     * @param wishes  [{kind: "move" (default), "copy" or "link", from, to, number: false, leader: -1}]; another word, and a value of
     *                another type, is a TypeError here as in all operations
     * @return [{status: "ready", "same" or "refused", code, other, to}], see planMoves()
     */
    Q_INVOKABLE QVariantList plan(const QVariantList &wishes) const;

    /**
     * The same in slices, for a window that must stay responsive: beginPlan() names a new plan, addWishes() adds
     * requests (leaders count from the first of all), workOut() works for about so long and returns true when the plan
     * is complete, planned() answers the requests from @p from to before @p to, with null for each that is ready,
     * without code, and gets the requested path. dropPlan() discards it, complete or not.
     */
    Q_INVOKABLE QString beginPlan();
    Q_INVOKABLE void addWishes(const QString &plan, const QVariantList &wishes);
    Q_INVOKABLE bool workOut(const QString &plan, int milliseconds);
    Q_INVOKABLE QVariantList planned(const QString &plan, int from, int to) const;
    Q_INVOKABLE void dropPlan(const QString &plan);

    /** @param run  {title, items: [{kind, from, to, leader: -1}]}; answers {run: id} or {problem} */
    Q_INVOKABLE QVariantMap begin(const QVariantMap &run);
    /**
     * The same in slices: beginOrder() names a new order, addItems() adds items (leaders count from the first of all),
     * prepare() works for about so long and returns true when everything is ready, carryOut() starts the run: {run: id}
     * or {problem}. dropOrder() discards it.
     */
    Q_INVOKABLE QString beginOrder(const QString &title);
    Q_INVOKABLE void addItems(const QString &order, const QVariantList &items);
    Q_INVOKABLE bool prepare(const QString &order, int milliseconds);
    Q_INVOKABLE QVariantMap carryOut(const QString &order);
    Q_INVOKABLE void dropOrder(const QString &order);
    /** {index, status: "OK", "Failed" or "Skipped", code, message, path}; null after the last item and for an unknown run. */
    Q_INVOKABLE QVariant next(const QString &run);
    /** After an item that failed with the code "full": next() tries it again. False if that is not possible. */
    Q_INVOKABLE bool again(const QString &run);
    /** Ends a run, even before its last item. */
    Q_INVOKABLE QString end(const QString &run);

    /** Starts a run whose items are added one by one; {run: id} or {problem}. */
    Q_INVOKABLE QVariantMap open(const QString &title);
    /**
     * Reopens such a run that has ended, by itself or by recover(), and was not undone: {run: id, done: [{kind, from,
     * to, path}]}, done being the items in effect, or {problem}.
     */
    Q_INVOKABLE QVariantMap reopen(const QString &run);
    /** @param item  {kind: "move", "copy", "link" or "trash", from, to, number: false}; answers {status, code, message, path} */
    Q_INVOKABLE QVariantMap add(const QString &run, const QVariantMap &item);

    /**
     * Undoes the last item of an open run that is in effect: {status, code, message, kind, from, to}; null if there is
     * none.
     */
    Q_INVOKABLE QVariant takeBack(const QString &run);

    /** {can, count, reason} */
    Q_INVOKABLE QVariantMap undoable(const QString &run) const;
    /**
     * Starts the run that undoes another; next() and end() drive it like any other. {run, items: [{kind, from, to}],
     * problems: [{path, code, reason}]}, or {problem, problems}
     */
    Q_INVOKABLE QVariantMap undo(const QString &run);
    /**
     * The same in slices: beginUndo() names the order, prepare(), carryOut() and dropOrder() work as for any order, and
     * carryOut() answers {run, count, problems}, or {problem, problems}; itemsOf() then answers the items from @p from
     * to before @p to.
     */
    Q_INVOKABLE QString beginUndo(const QString &run);
    Q_INVOKABLE QVariantList itemsOf(const QString &run, int from, int to) const;
    /** [{id, title, date, count, done, files, state, undoes}], the newest first; see listRuns(). */
    Q_INVOKABLE QVariantList runs() const;
    /** Recovers interrupted runs: [{id, title, done, finished, takenBack, left, problems}]. Once, at start. */
    Q_INVOKABLE QVariantList recover();
    /** What is left to do of a run that recover() ended: {items: [{kind, from, to, leader}], places}, see restOf(). */
    Q_INVOKABLE QVariantMap rest(const QString &run) const;

    /**
     * Tests have disks as full as they like: what services that are made from now on see a disk through, until it is set to
     * nothing.
     */
    static void setDiskSource(std::function<std::unique_ptr<platform::FileSystem>()> source);

private:
    /** A plan being made; it is started when the last request is known. */
    struct Draft
    {
        std::vector<MoveWish> wishes;
        std::unique_ptr<MovePlanning> planning;
    };

    /** A run to be started; it is prepared when its last item is known. */
    struct Order
    {
        MoveOrderForm form;
        std::unique_ptr<MoveBeginning> beginning;
        std::unique_ptr<UndoPlanning> planning; ///< for one that undoes a run, until its items are known
        std::optional<UndoPlan> undo;           ///< for such a one, from then on; without items
    };

    bool plan(Order &order, std::chrono::steady_clock::time_point end);

    QVariantMap started(platform::Result<std::unique_ptr<MoveRun>> run);
    MoveRun *found(const QString &run) const;

    std::unique_ptr<platform::FileSystem> m_disk;
    std::unique_ptr<JournalShelf> m_shelf;
    mutable UndoableRuns m_undoable{*m_shelf};
    std::map<QString, Draft> m_plans;
    int m_lastPlan = 0;
    std::map<QString, Order> m_orders;
    std::map<QString, std::unique_ptr<MoveRun>> m_runs;
    std::set<std::pair<QString, int>> m_givenUp; ///< items that could not be undone
};

} // namespace files
