#include "files/services/move_service.h"

#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "files/services/move_words.h"

#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/disk/hidden_sweep.h"
#include "platform/foundation/paths.h"
#include "platform/values/fields.h"

#include <algorithm>

namespace files {

using platform::Fields;

namespace {

const QVariant nothing = QVariant::fromValue(nullptr);

QString journalFolder()
{
    return platform::joinedPath(platform::applicationSupportFolder(), QStringLiteral("quorlin/moves"));
}

/** The default kind. */
const QString usualKind = QStringLiteral("move");

QString kindOf(const Fields &fields)
{
    const QString kind = fields.text("kind");
    return kind.isNull() ? usualKind : kind;
}

MoveWish wishFrom(const Fields &fields)
{
    const std::optional<MoveKind> kind = moveKind(kindOf(fields));
    if (!kind)
        fields.reject("\"move\", \"copy\" or \"link\"", "kind");
    return {*kind, fields.text("from"), fields.text("to"), fields.truth("number", false), fields.whole("leader", -1)};
}

MoveItem itemFrom(const Fields &fields)
{
    const std::optional<Operation> operation = wantedOperation(kindOf(fields));
    if (!operation)
        fields.reject("\"move\", \"copy\", \"link\" or \"trash\"", "kind");
    MoveItem item;
    item.operation = *operation;
    item.from = fields.text("from");
    item.to = fields.text("to");
    item.leader = fields.whole("leader", -1);
    return item;
}

std::vector<MoveWish> wishesFrom(const QVariantList &list)
{
    std::vector<MoveWish> wishes;
    wishes.reserve(size_t(list.size()));
    for (const QVariant &wish : list)
        wishes.push_back(wishFrom({wish, QStringLiteral("wishes[%1]").arg(wishes.size())}));
    return wishes;
}

QString codeOf(const PlannedMove &planned)
{
    return planned.status == PlanStatus::Refused ? wordOf(planned.why) : wordOf(planned.remark);
}

QVariantMap mapOf(const PlannedMove &planned)
{
    return {{QStringLiteral("status"), wordOf(planned.status)},
            {QStringLiteral("code"), codeOf(planned)},
            {QStringLiteral("other"), planned.other},
            {QStringLiteral("to"), planned.to}};
}

QVariantMap mapOf(const MoveResult &result)
{
    return {{QStringLiteral("index"), result.index},
            {QStringLiteral("status"), statusWord(result.stand)},
            {QStringLiteral("code"), wordOf(result.why)},
            {QStringLiteral("message"), result.message},
            {QStringLiteral("path"), result.path}};
}

QVariantMap mapOf(const UndoProblem &problem)
{
    return {{QStringLiteral("path"), problem.path},
            {QStringLiteral("code"), wordOf(problem.why)},
            {QStringLiteral("reason"), problem.reason}};
}

QVariantMap mapOf(const RunSummary &summary)
{
    return {{QStringLiteral("id"), summary.run.id},          {QStringLiteral("title"), summary.run.title},
            {QStringLiteral("date"), summary.run.date},      {QStringLiteral("count"), summary.run.count},
            {QStringLiteral("done"), summary.run.doneAtEnd}, {QStringLiteral("files"), summary.run.filesAtEnd},
            {QStringLiteral("state"), summary.state},        {QStringLiteral("undoes"), summary.run.undoes}};
}

QVariantMap mapOf(const RecoveredRun &run)
{
    return {{QStringLiteral("id"), run.id},
            {QStringLiteral("title"), run.title},
            {QStringLiteral("done"), run.done},
            {QStringLiteral("finished"), run.finished},
            {QStringLiteral("takenBack"), run.takenBack},
            {QStringLiteral("left"), run.left},
            {QStringLiteral("problems"), run.problems}};
}

template<typename Values> QVariantList listOf(const Values &values)
{
    QVariantList list;
    for (const auto &value : values)
        list.append(mapOf(value));
    return list;
}

std::function<std::unique_ptr<platform::FileSystem>()> diskSource;

QVariantMap failed(MoveProblem why, const QString &message, const QString &path)
{
    return mapOf(MoveResult{-1, Stand::Failed, why, message, path});
}

} // namespace

void MoveService::setDiskSource(std::function<std::unique_ptr<platform::FileSystem>()> source)
{
    diskSource = std::move(source);
}

MoveService::MoveService(QObject *parent)
    : MoveService(diskSource ? diskSource() : std::make_unique<platform::DiskFileSystem>(),
                  std::make_unique<DiskJournalShelf>(journalFolder()), parent)
{
}

MoveService::MoveService(std::unique_ptr<platform::FileSystem> disk, std::unique_ptr<JournalShelf> shelf,
                         QObject *parent)
    : QObject(parent), m_disk(std::move(disk)), m_shelf(std::move(shelf))
{
}

MoveService::~MoveService() = default;

QVariantList MoveService::plan(const QVariantList &wishes) const
{
    return listOf(planMoves(wishesFrom(wishes), *m_disk));
}

QString MoveService::beginPlan()
{
    const QString plan = QStringLiteral("plan %1").arg(++m_lastPlan);
    m_plans[plan] = {};
    return plan;
}

void MoveService::addWishes(const QString &plan, const QVariantList &wishes)
{
    const auto found = m_plans.find(plan);
    if (found == m_plans.end() || found->second.planning)
        return;
    const std::vector<MoveWish> more = wishesFrom(wishes);
    found->second.wishes.insert(found->second.wishes.end(), more.begin(), more.end());
}

bool MoveService::workOut(const QString &plan, int milliseconds)
{
    const auto found = m_plans.find(plan);
    if (found == m_plans.end())
        return true;
    Draft &draft = found->second;
    if (!draft.planning)
        draft.planning = std::make_unique<MovePlanning>(std::move(draft.wishes), *m_disk);
    return draft.planning->workFor(std::chrono::milliseconds(milliseconds));
}

QVariantList MoveService::planned(const QString &plan, int from, int to) const
{
    QVariantList list;
    const auto found = m_plans.find(plan);
    if (found == m_plans.end() || !found->second.planning)
        return list;
    const MovePlanning &made = *found->second.planning;
    for (int i = std::max(0, from); i < std::min(to, int(made.plan().size())); ++i) {
        const PlannedMove &planned = made.plan()[size_t(i)];
        const bool isPlain = planned.status == PlanStatus::Ready && planned.remark == PlanRemark::None &&
                             planned.to == made.wishes()[size_t(i)].to;
        list.append(isPlain ? nothing : QVariant(mapOf(planned)));
    }
    return list;
}

void MoveService::dropPlan(const QString &plan)
{
    m_plans.erase(plan);
}

QVariantMap MoveService::started(platform::Result<std::unique_ptr<MoveRun>> run)
{
    if (!run)
        return {{QStringLiteral("problem"), run.error().message}};
    const QString id = (*run)->id();
    m_runs.insert_or_assign(id, std::move(*run));
    return {{QStringLiteral("run"), id}};
}

MoveRun *MoveService::found(const QString &run) const
{
    const auto at = m_runs.find(run);
    return at == m_runs.end() ? nullptr : at->second.get();
}

QVariantMap MoveService::begin(const QVariantMap &run)
{
    MoveOrderForm form;
    const Fields fields(run, QStringLiteral("run"));
    form.title = fields.text("title");
    for (const QVariant &item : fields.list("items"))
        form.items.push_back(itemFrom({item, QStringLiteral("run.items[%1]").arg(form.items.size())}));
    return started(MoveRun::begin(*m_disk, *m_shelf, form));
}

QString MoveService::beginOrder(const QString &title)
{
    const QString order = QStringLiteral("order %1").arg(++m_lastPlan);
    m_orders[order].form.title = title;
    return order;
}

void MoveService::addItems(const QString &order, const QVariantList &items)
{
    const auto found = m_orders.find(order);
    if (found == m_orders.end() || found->second.beginning)
        return;
    for (const QVariant &item : items)
        found->second.form.items.push_back(
            itemFrom({item, QStringLiteral("items[%1]").arg(found->second.form.items.size())}));
}

bool MoveService::prepare(const QString &order, int milliseconds)
{
    const auto found = m_orders.find(order);
    if (found == m_orders.end())
        return true;
    Order &wanted = found->second;
    if (wanted.planning)
        return plan(wanted, std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds));
    if (wanted.undo && wanted.undo->why != MoveProblem::None)
        return true;
    if (!wanted.beginning)
        wanted.beginning = std::make_unique<MoveBeginning>(*m_disk, *m_shelf, std::move(wanted.form));
    return wanted.beginning->workFor(std::chrono::milliseconds(milliseconds));
}

/** Finds out what undoes a run; true if that is nothing. */
bool MoveService::plan(Order &order, std::chrono::steady_clock::time_point end)
{
    do {
        if (!order.planning->step())
            continue;
        order.undo = order.planning->take();
        order.form = std::move(order.undo->form);
        order.planning.reset();
        return order.undo->why != MoveProblem::None;
    } while (std::chrono::steady_clock::now() < end);
    return false;
}

QVariantMap MoveService::carryOut(const QString &order)
{
    const auto found = m_orders.find(order);
    if (found == m_orders.end())
        return {{QStringLiteral("problem"), tr("This run is not open")}};
    while (!prepare(order, 1000))
        ;
    const std::optional<UndoPlan> undo = std::move(found->second.undo);
    QVariantMap answer = undo && undo->why != MoveProblem::None
                             ? QVariantMap{{QStringLiteral("problem"), sentence(undo->why)}}
                             : started(found->second.beginning->take());
    m_orders.erase(found);
    if (undo)
        answer.insert(QStringLiteral("problems"), listOf(undo->problems));
    if (const MoveRun *run = undo ? this->found(answer.value(QStringLiteral("run")).toString()) : nullptr)
        answer.insert(QStringLiteral("count"), int(run->record().items.size()));
    return answer;
}

void MoveService::dropOrder(const QString &order)
{
    m_orders.erase(order);
}

QVariant MoveService::next(const QString &run)
{
    MoveRun *active = found(run);
    const auto result = active ? active->next() : std::nullopt;
    return result ? QVariant(mapOf(*result)) : nothing;
}

bool MoveService::again(const QString &run)
{
    MoveRun *active = found(run);
    return active && active->again();
}

QString MoveService::end(const QString &run)
{
    MoveRun *active = found(run);
    if (!active)
        return tr("This run is not open");
    const auto ended = active->end();
    if (ended)
        m_undoable.ended(active->record());
    m_runs.erase(run);
    return ended ? QString() : ended.error().message;
}

QVariantMap MoveService::open(const QString &title)
{
    return started(MoveRun::open(*m_disk, *m_shelf, title));
}

QVariantMap MoveService::reopen(const QString &run)
{
    const MoveProblem why = m_undoable.of(run).why;
    if (why != MoveProblem::None && why != MoveProblem::EmptyRun)
        return {{QStringLiteral("problem"), sentence(why)}};
    QVariantMap answer = started(MoveRun::reopen(*m_disk, *m_shelf, run));
    const MoveRun *active = found(run);
    QVariantList done;
    for (const MoveRecord &record : active ? active->record().items : std::vector<MoveRecord>())
        if (record.stand == Stand::Done)
            done.append(QVariantMap{{QStringLiteral("kind"), wordOf(record.item.operation)},
                                    {QStringLiteral("from"), record.item.from},
                                    {QStringLiteral("to"), record.item.to},
                                    {QStringLiteral("path"), record.path}});
    if (active)
        answer.insert(QStringLiteral("done"), done);
    return answer;
}

QVariantMap MoveService::add(const QString &run, const QVariantMap &item)
{
    MoveRun *active = found(run);
    const Fields fields(item, QStringLiteral("item"));
    MoveItem added = itemFrom(fields);
    if (!active)
        return failed(MoveProblem::Other, tr("This run is not open"), added.from);
    if (added.operation != Operation::Trash) {
        const PlannedMove planned = planMoves({wishFrom(fields)}, *m_disk).front();
        if (planned.status == PlanStatus::Refused)
            return failed(planned.why, sentence(planned.why, planned.other.isEmpty() ? added.from : planned.other),
                          added.from);
        added.to = planned.to;
    }
    return mapOf(active->add(added));
}

QVariant MoveService::takeBack(const QString &run)
{
    MoveRun *active = found(run);
    int index = active ? active->lastDone() : -1;
    while (index >= 0 &&
           (m_givenUp.contains({run, index}) || active->record().items[size_t(index)].stand != Stand::Done))
        --index;
    if (index < 0)
        return nothing;
    const MoveRecord record = active->record().items[size_t(index)];
    const TakeBack back = takeBackOf(*m_disk, active->record(), index);
    const UndoProblem &problem = back.problem;
    const MoveResult result = problem.why == MoveProblem::None
                                  ? active->takeBack(index, back.operation)
                                  : MoveResult{index, Stand::Failed, problem.why, problem.reason, problem.path};
    if (result.stand != Stand::Done)
        m_givenUp.insert({run, index});
    QVariantMap answer = mapOf(result);
    answer.insert(QStringLiteral("kind"), wordOf(record.item.operation));
    answer.insert(QStringLiteral("from"), record.item.from);
    answer.insert(QStringLiteral("to"), record.path);
    return answer;
}

QVariantMap MoveService::undoable(const QString &run) const
{
    const Undoable answer = m_undoable.of(run);
    return {{QStringLiteral("can"), answer.why == MoveProblem::None},
            {QStringLiteral("count"), answer.count},
            {QStringLiteral("reason"), sentence(answer.why)}};
}

QVariantMap MoveService::undo(const QString &run)
{
    QVariantMap answer = carryOut(beginUndo(run));
    if (answer.contains(QStringLiteral("run"))) {
        const int count = answer.take(QStringLiteral("count")).toInt();
        answer.insert(QStringLiteral("items"), itemsOf(answer.value(QStringLiteral("run")).toString(), 0, count));
    }
    return answer;
}

QString MoveService::beginUndo(const QString &run)
{
    const QString order = QStringLiteral("order %1").arg(++m_lastPlan);
    m_orders[order].planning = std::make_unique<UndoPlanning>(*m_disk, *m_shelf, run);
    return order;
}

QVariantList MoveService::itemsOf(const QString &run, int from, int to) const
{
    QVariantList items;
    const MoveRun *active = found(run);
    const int count = active ? int(active->record().items.size()) : 0;
    for (int i = std::max(0, from); i < std::min(to, count); ++i) {
        const MoveItem &item = active->record().items[size_t(i)].item;
        items.append(QVariantMap{{QStringLiteral("kind"), wordOf(item.operation)},
                                 {QStringLiteral("from"), item.from},
                                 {QStringLiteral("to"), item.to}});
    }
    return items;
}

QVariantList MoveService::runs() const
{
    return listOf(listRuns(*m_shelf));
}

QVariantList MoveService::recover()
{
    const QStringList named = platform::sweepHiddenItems();
    QVariantList runs = listOf(recoverMoves(*m_disk, *m_shelf));
    if (named.isEmpty())
        return runs;
    RecoveredRun swept;
    swept.title = tr("Copying or moving a file");
    for (const QString &path : named)
        swept.problems.append(tr("%1 had been moved aside and has been restored").arg(path));
    return runs << mapOf(swept);
}

QVariantMap MoveService::rest(const QString &run) const
{
    const RestOfRun rest = restOf(*m_shelf, run);
    QVariantList items;
    for (const MoveItem &item : rest.items)
        items.append(QVariantMap{{QStringLiteral("kind"), wordOf(item.operation)},
                                 {QStringLiteral("from"), item.from},
                                 {QStringLiteral("to"), item.to},
                                 {QStringLiteral("leader"), item.leader}});
    return {{QStringLiteral("items"), items}, {QStringLiteral("places"), rest.places}};
}

} // namespace files
