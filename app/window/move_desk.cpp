#include "app/window/move_desk.h"

#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"

#include "platform/disk/folders.h"
#include "platform/disk/hidden_sweep.h"
#include "platform/foundation/paths.h"

#include <algorithm>

namespace window {

namespace {

using files::Deed;
using files::MoveItem;
using files::MoveKind;
using files::MoveResult;
using files::MoveWish;
using files::PlannedMove;
using files::PlanStatus;
using files::Stand;

const QVariant nothing = QVariant::fromValue(nullptr);

QString journalFolder()
{
    return platform::joinedPath(platform::applicationSupportFolder(), QStringLiteral("quorlin/moves"));
}

QString text(const QVariantMap &map, const char *key)
{
    return map.value(QString::fromLatin1(key)).toString();
}

int number(const QVariantMap &map, const char *key, int otherwise)
{
    const QVariant value = map.value(QString::fromLatin1(key));
    return value.isValid() ? value.toInt() : otherwise;
}

MoveWish wishFrom(const QVariantMap &map)
{
    MoveWish wish;
    const QString kind = text(map, "kind");
    wish.kind = kind == QStringLiteral("copy")   ? MoveKind::Copy
                : kind == QStringLiteral("link") ? MoveKind::Link
                                                 : MoveKind::Move;
    wish.from = text(map, "from");
    wish.to = text(map, "to");
    wish.isNumbered = map.value(QStringLiteral("number")).toBool();
    wish.leader = number(map, "leader", -1);
    return wish;
}

MoveItem itemFrom(const QVariantMap &map)
{
    MoveItem item;
    const QString kind = text(map, "kind");
    item.deed = kind == QStringLiteral("copy")    ? Deed::Copy
                : kind == QStringLiteral("link")  ? Deed::Link
                : kind == QStringLiteral("trash") ? Deed::Trash
                                                  : Deed::Move;
    item.from = text(map, "from");
    item.to = text(map, "to");
    item.leader = number(map, "leader", -1);
    return item;
}

QVariantMap mapOf(const PlannedMove &planned)
{
    const QString status = planned.status == PlanStatus::Ready  ? QStringLiteral("ready")
                           : planned.status == PlanStatus::Same ? QStringLiteral("same")
                                                                : QStringLiteral("refused");
    return {{QStringLiteral("status"), status},
            {QStringLiteral("code"), planned.code},
            {QStringLiteral("other"), planned.other},
            {QStringLiteral("to"), planned.to}};
}

QVariantMap mapOf(const MoveResult &result)
{
    const QString status = result.stand == Stand::Done      ? QStringLiteral("OK")
                           : result.stand == Stand::Skipped ? QStringLiteral("Skipped")
                                                            : QStringLiteral("Failed");
    return {{QStringLiteral("index"), result.index},
            {QStringLiteral("status"), status},
            {QStringLiteral("code"), result.code},
            {QStringLiteral("message"), result.message},
            {QStringLiteral("path"), result.path}};
}

QString kindWord(Deed deed)
{
    switch (deed) {
    case Deed::Move:
    case Deed::Restore:
        return QStringLiteral("move");
    case Deed::Copy:
        return QStringLiteral("copy");
    case Deed::Link:
        return QStringLiteral("link");
    case Deed::Trash:
        return QStringLiteral("trash");
    case Deed::RemoveCopy:
    case Deed::RemoveLink:
        return QStringLiteral("remove");
    }
    Q_UNREACHABLE();
}

QVariantMap mapOf(const files::UndoProblem &problem)
{
    return {{QStringLiteral("path"), problem.path},
            {QStringLiteral("code"), problem.code},
            {QStringLiteral("reason"), problem.reason}};
}

QVariantMap mapOf(const files::RunSummary &summary)
{
    return {{QStringLiteral("id"), summary.run.id},          {QStringLiteral("title"), summary.run.title},
            {QStringLiteral("date"), summary.run.date},      {QStringLiteral("count"), summary.run.count},
            {QStringLiteral("done"), summary.run.doneAtEnd}, {QStringLiteral("state"), summary.state},
            {QStringLiteral("undoes"), summary.run.undoes}};
}

QVariantMap mapOf(const files::RecoveredRun &run)
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

QVariantMap failed(const QString &code, const QString &message, const QString &path)
{
    return mapOf(MoveResult{-1, Stand::Failed, code, message, path});
}

} // namespace

MoveDesk::MoveDesk(QObject *parent) : QObject(parent), m_shelf(journalFolder()) {}

MoveDesk::~MoveDesk() = default;

QVariantList MoveDesk::plan(const QVariantList &wishes) const
{
    std::vector<MoveWish> wanted;
    wanted.reserve(size_t(wishes.size()));
    for (const QVariant &wish : wishes)
        wanted.push_back(wishFrom(wish.toMap()));
    return listOf(files::planMoves(wanted, m_disk));
}

QString MoveDesk::beginPlan()
{
    const QString plan = QStringLiteral("plan %1").arg(++m_lastPlan);
    m_plans[plan] = {};
    return plan;
}

void MoveDesk::addWishes(const QString &plan, const QVariantList &wishes)
{
    const auto found = m_plans.find(plan);
    if (found == m_plans.end() || found->second.planning)
        return;
    for (const QVariant &wish : wishes)
        found->second.wishes.push_back(wishFrom(wish.toMap()));
}

bool MoveDesk::workOut(const QString &plan, int milliseconds)
{
    const auto found = m_plans.find(plan);
    if (found == m_plans.end())
        return true;
    Draft &draft = found->second;
    if (!draft.planning)
        draft.planning = std::make_unique<files::MovePlanning>(std::move(draft.wishes), m_disk);
    return draft.planning->workFor(std::chrono::milliseconds(milliseconds));
}

QVariantList MoveDesk::planned(const QString &plan, int from, int to) const
{
    QVariantList list;
    const auto found = m_plans.find(plan);
    if (found == m_plans.end() || !found->second.planning)
        return list;
    const files::MovePlanning &made = *found->second.planning;
    for (int i = std::max(0, from); i < std::min(to, int(made.plan().size())); ++i) {
        const PlannedMove &planned = made.plan()[size_t(i)];
        const bool isPlain =
            planned.status == PlanStatus::Ready && planned.code.isEmpty() && planned.to == made.wishes()[size_t(i)].to;
        list.append(isPlain ? nothing : QVariant(mapOf(planned)));
    }
    return list;
}

void MoveDesk::dropPlan(const QString &plan)
{
    m_plans.erase(plan);
}

QVariantMap MoveDesk::started(std::unique_ptr<files::MoveRun> run, const QString &problem)
{
    if (!run)
        return {{QStringLiteral("problem"), problem}};
    const QString id = run->id();
    m_runs.insert_or_assign(id, std::move(run));
    return {{QStringLiteral("run"), id}};
}

files::MoveRun *MoveDesk::found(const QString &run) const
{
    const auto at = m_runs.find(run);
    return at == m_runs.end() ? nullptr : at->second.get();
}

QVariantMap MoveDesk::begin(const QVariantMap &run)
{
    files::MoveOrderForm form;
    form.title = text(run, "title");
    for (const QVariant &item : run.value(QStringLiteral("items")).toList())
        form.items.push_back(itemFrom(item.toMap()));
    QString problem;
    return started(files::MoveRun::begin(m_disk, m_shelf, form, &problem), problem);
}

QVariant MoveDesk::next(const QString &run)
{
    files::MoveRun *active = found(run);
    const auto result = active ? active->next() : std::nullopt;
    return result ? QVariant(mapOf(*result)) : nothing;
}

QString MoveDesk::end(const QString &run)
{
    files::MoveRun *active = found(run);
    if (!active)
        return tr("This run is not open");
    const QString problem = active->end();
    m_runs.erase(run);
    return problem;
}

QVariantMap MoveDesk::open(const QString &title)
{
    QString problem;
    return started(files::MoveRun::open(m_disk, m_shelf, title, &problem), problem);
}

QVariantMap MoveDesk::add(const QString &run, const QVariantMap &item)
{
    files::MoveRun *active = found(run);
    MoveItem added = itemFrom(item);
    if (!active)
        return failed(QStringLiteral("other"), tr("This run is not open"), added.from);
    if (added.deed != Deed::Trash) {
        const PlannedMove planned = files::planMoves({wishFrom(item)}, m_disk).front();
        if (planned.status == PlanStatus::Refused)
            return failed(
                planned.code,
                files::MoveDeeds::sentence(planned.code, planned.other.isEmpty() ? added.from : planned.other),
                added.from);
        added.to = planned.to;
    }
    return mapOf(active->add(added));
}

QVariant MoveDesk::takeBack(const QString &run)
{
    files::MoveRun *active = found(run);
    int index = active ? active->lastDone() : -1;
    while (index >= 0 &&
           (m_givenUp.contains({run, index}) || active->record().items[size_t(index)].stand != Stand::Done))
        --index;
    if (index < 0)
        return nothing;
    const files::MoveRecord record = active->record().items[size_t(index)];
    const files::TakeBack back = files::takeBackOf(m_disk, active->record(), index);
    const files::UndoProblem &problem = back.problem;
    const MoveResult result = problem.code.isEmpty()
                                  ? active->takeBack(index, back.deed)
                                  : MoveResult{index, Stand::Failed, problem.code, problem.reason, problem.path};
    if (result.stand != Stand::Done)
        m_givenUp.insert({run, index});
    QVariantMap answer = mapOf(result);
    answer.insert(QStringLiteral("kind"), kindWord(record.item.deed));
    answer.insert(QStringLiteral("from"), record.item.from);
    answer.insert(QStringLiteral("to"), record.path);
    return answer;
}

QVariantMap MoveDesk::undoable(const QString &run) const
{
    const files::Undoable answer = files::undoableItems(m_shelf, run);
    return {{QStringLiteral("can"), answer.reason.isEmpty()},
            {QStringLiteral("count"), answer.count},
            {QStringLiteral("reason"), answer.reason}};
}

QVariantMap MoveDesk::undo(const QString &run)
{
    const files::UndoPlan plan = files::planUndo(m_disk, m_shelf, run);
    QVariantList items;
    for (const MoveItem &item : plan.form.items)
        items.append(QVariantMap{{QStringLiteral("kind"), kindWord(item.deed)},
                                 {QStringLiteral("from"), item.from},
                                 {QStringLiteral("to"), item.to}});
    QString problem = plan.problem;
    QVariantMap answer = problem.isEmpty()
                             ? started(files::MoveRun::begin(m_disk, m_shelf, plan.form, &problem), problem)
                             : started(nullptr, problem);
    answer.insert(QStringLiteral("problems"), listOf(plan.problems));
    if (answer.contains(QStringLiteral("run")))
        answer.insert(QStringLiteral("items"), items);
    return answer;
}

QVariantList MoveDesk::runs() const
{
    return listOf(files::listRuns(m_shelf));
}

QVariantList MoveDesk::recover()
{
    const QStringList named = platform::sweepHiddenItems();
    QVariantList runs = listOf(files::recoverMoves(m_disk, m_shelf));
    if (named.isEmpty())
        return runs;
    files::RecoveredRun swept;
    swept.title = tr("Copying or moving a file");
    for (const QString &path : named)
        swept.problems.append(tr("%1 had been put aside and has a name again").arg(path));
    return runs << mapOf(swept);
}

} // namespace window
