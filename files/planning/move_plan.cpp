#include "files/planning/move_plan.h"

#include "files/planning/move_names.h"
#include "files/planning/move_order.h"
#include "files/planning/move_places.h"

#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"

#include <optional>

namespace files {
namespace {

using platform::joinedPath;
using platform::lastPathComponent;
using platform::nameKey;
using platform::NameOf;
using platform::numberedName;
using platform::parentFolder;

/** The state of a request while the plan is made. */
struct Draft
{
    FolderView *fromFolder = nullptr;
    FolderView *toFolder = nullptr;
    QString fromName;
    QString toName;    ///< as requested
    QString givenName; ///< as it is claimed, with its number
    bool isFolder = false;
    bool isClaimed = false;
    int number = 1;
    std::vector<int> followers; ///< requests that get the same number as this one
};

/** Why a name is not available, or whose leaving it waits for. */
struct Obstacle
{
    MoveProblem why = MoveProblem::None;
    QString other;
    QString leaving; ///< the path of an item that makes the place free
};

} // namespace

class MovePlanner
{
public:
    MovePlanner(const std::vector<MoveWish> &wishes, const platform::FileSystem &disk)
        : m_wishes(wishes), m_disk(disk), m_places(disk), m_drafts(wishes.size()), m_plan(wishes.size())
    {
    }

    /** Does a small part of the work; false when nothing is left. */
    bool advance()
    {
        if (m_stage >= Stage::Claim && !m_refused.empty()) {
            settleOne();
            return true;
        }
        if (m_at == count()) {
            m_at = 0;
            m_stage = Stage(int(m_stage) + 1);
            return m_stage != Stage::Done;
        }
        if (m_stage != Stage::Read || hasItsFolders(m_at))
            work(m_at++);
        return true;
    }

    const std::vector<PlannedMove> &plan() const { return m_plan; }

private:
    /** Each processes all requests. */
    enum class Stage { Read, FindLeaders, Claim, Folders, Describe, Done };

    void work(int i)
    {
        switch (m_stage) {
        case Stage::Read:
            return read(i);
        case Stage::FindLeaders:
            return findLeader(i);
        case Stage::Claim:
            return isOpen(i) && !draft(i).isClaimed ? claim(groupOf(i)) : void();
        case Stage::Folders:
            return refuseImpossible(i);
        case Stage::Describe:
            return describe(i);
        case Stage::Done:
            return;
        }
    }

    int count() const { return int(m_wishes.size()); }
    const MoveWish &wish(int i) const { return m_wishes[size_t(i)]; }
    Draft &draft(int i) { return m_drafts[size_t(i)]; }
    PlannedMove &planned(int i) { return m_plan[size_t(i)]; }
    bool isFolder(const QString &path) const
    {
        const auto state = m_disk.look(path);
        return state && state->kind == platform::ItemKind::Folder;
    }
    bool isOpen(int i) { return planned(i).status == PlanStatus::Ready; }
    bool leaves(int i) const { return wish(i).kind == MoveKind::Move; }

    /** A folder may contain many names, which are read some at a time. */
    bool hasItsFolders(int i)
    {
        if (faultOfPath(wish(i).to) == MoveProblem::None && wish(i).from != wish(i).to) {
            m_places.begin(parentFolder(wish(i).from));
            m_places.begin(parentFolder(wish(i).to));
        }
        return !m_places.goOn();
    }

    void read(int i)
    {
        planned(i).to = wish(i).to;
        if (const MoveProblem fault = faultOfPath(wish(i).to); fault != MoveProblem::None)
            return refuse(i, fault);
        if (wish(i).from == wish(i).to) {
            planned(i).status = PlanStatus::Same;
            return;
        }
        Draft &d = draft(i);
        d.fromName = lastPathComponent(wish(i).from);
        d.toName = d.givenName = lastPathComponent(wish(i).to);
        d.fromFolder = m_places.existing(parentFolder(wish(i).from));
        if (!d.fromFolder || !readSource(i))
            return refuse(i, MoveProblem::Gone);
        d.toFolder = &m_places.folder(parentFolder(wish(i).to));
        if (d.fromFolder == d.toFolder && d.fromName == d.toName)
            planned(i).status = PlanStatus::Same;
        else
            readPlaces(i);
    }

    bool readSource(int i)
    {
        Draft &d = draft(i);
        if (!wish(i).from.startsWith(u'/') || d.fromName.isEmpty())
            return false;
        Spot::Tenant *tenant = d.fromFolder->tenant(d.fromName);
        // A case-insensitive disk knows the item by another spelling.
        const auto state = tenant ? std::nullopt : m_disk.look(joinedPath(d.fromFolder->path, d.fromName));
        if (!tenant && state)
            if (Spot &spot = d.fromFolder->spot(d.fromName); !spot.tenants.empty()) {
                tenant = &spot.tenants.front();
                d.fromName = tenant->name;
            }
        return tenant;
    }

    void readPlaces(int i)
    {
        Draft &d = draft(i);
        Spot::Tenant *tenant = d.fromFolder->tenant(d.fromName);
        if (d.toFolder->fault != MoveProblem::None)
            return refuse(i, d.toFolder->fault, d.toFolder->faultOther);
        if (!d.toFolder->mayChange || (leaves(i) && !d.fromFolder->mayChange))
            return refuse(i, MoveProblem::Locked, d.toFolder->mayChange ? d.fromFolder->path : d.toFolder->path);
        if (leaves(i) && tenant->leaver >= 0)
            return refuse(i, MoveProblem::Twice, wish(i).from);
        const QString source = joinedPath(d.fromFolder->path, d.fromName);
        const bool isInside = (d.toFolder->path + u'/').startsWith(source + u'/');
        d.isFolder = tenant->mayBeFolder && isFolder(source);
        if (d.isFolder && isInside && wish(i).kind != MoveKind::Link)
            return refuse(i, MoveProblem::Inside);
        if (leaves(i))
            tenant->leaver = i;
    }

    /** The leading request of those that move with others; a cycle of leaders leads nowhere. */
    int headOf(int i)
    {
        int head = i;
        for (int steps = 0; steps < count(); ++steps) {
            const int next = wish(head).leader;
            if (next < 0 || next >= count() || next == head)
                return head;
            head = next;
        }
        return i;
    }

    void findLeader(int i)
    {
        if (const int head = headOf(i); head != i) {
            m_companions.insert(head, i);
            if (wish(i).isNumbered && wish(head).isNumbered && isOpen(i) && isOpen(head))
                draft(head).followers.push_back(i);
        }
    }

    int groupOf(int i)
    {
        const int head = headOf(i);
        return wish(i).isNumbered && wish(head).isNumbered && isOpen(head) ? head : i;
    }

    Obstacle obstacleOf(int i, const QString &name)
    {
        const Draft &d = draft(i);
        const Spot &spot = d.toFolder->spot(name);
        if (spot.claimer >= 0 && spot.claimer != i)
            return {
                spot.claimedName == name ? MoveProblem::Twice : MoveProblem::OtherCase, wish(spot.claimer).from, {}};
        if (!spot.madeFolder.isEmpty())
            return {lastPathComponent(spot.madeFolder) == name ? MoveProblem::Taken : MoveProblem::OtherCase,
                    spot.madeFolder,
                    {}};
        Obstacle none;
        for (const Spot::Tenant &tenant : spot.tenants) {
            const QString path = joinedPath(d.toFolder->path, tenant.name);
            if (tenant.leaver == i)
                continue;
            const bool isOwnSource = d.fromFolder == d.toFolder && tenant.name == d.fromName;
            if (tenant.leaver < 0 || !isOpen(tenant.leaver) || isOwnSource)
                return {tenant.name == name ? MoveProblem::Taken : MoveProblem::OtherCase, path, {}};
            none.leaving = path;
        }
        return none;
    }

    /** Claims the names of a request and of those numbered with it, all with the same number. */
    void claim(int head)
    {
        std::vector<int> group = {head};
        for (const int follower : draft(head).followers)
            if (isOpen(follower))
                group.push_back(follower);
        for (int number = 1; isOpen(head); number = numberAfter(head, number)) {
            const Obstacle obstacle = firstObstacle(group, number);
            if (obstacle.why == MoveProblem::None)
                return take(group, number);
            if (!wish(head).isNumbered || obstacle.why == MoveProblem::TooLong)
                refuse(head, obstacle.why, obstacle.other);
        }
    }

    int numberAfter(int head, int number)
    {
        return std::max(number + 1, draft(head).toFolder->spot(draft(head).toName).nextNumber);
    }

    QString nameOf(int i, int number)
    {
        return number == 1 ? draft(i).toName
                           : numberedName(draft(i).toName, number, draft(i).isFolder ? NameOf::Folder : NameOf::File);
    }

    Obstacle firstObstacle(const std::vector<int> &group, int number)
    {
        for (const int i : group) {
            const QString name = nameOf(i, number);
            if (faultOfPath(u'/' + name) != MoveProblem::None)
                return {MoveProblem::TooLong, {}, {}};
            if (const Obstacle obstacle = obstacleOf(i, name); obstacle.why != MoveProblem::None)
                return obstacle;
        }
        return {};
    }

    void take(const std::vector<int> &group, int number)
    {
        for (const int i : group) {
            Draft &d = draft(i);
            d.givenName = nameOf(i, number);
            d.number = number;
            d.isClaimed = true;
            Spot &spot = d.toFolder->spot(d.givenName);
            spot.claimer = i;
            spot.claimedName = d.givenName;
            if (number > 1)
                d.toFolder->spot(d.toName).nextNumber = number + 1;
        }
    }

    void giveUp(int i)
    {
        if (draft(i).isClaimed)
            draft(i).toFolder->spot(draft(i).givenName).claimer = -1;
        draft(i).isClaimed = false;
    }

    void refuse(int i, MoveProblem why, const QString &other = QString())
    {
        planned(i).status = PlanStatus::Refused;
        planned(i).why = why;
        planned(i).other = other;
        giveUp(i);
        m_refused.push_back(i);
    }

    /** The consequences of a refusal: its item stays, so those that relied on its leaving are checked again. */
    void settleOne()
    {
        const int i = m_refused.back();
        m_refused.pop_back();
        for (const int companion : m_companions.values(i))
            if (isOpen(companion))
                refuse(companion, MoveProblem::Leader, wish(i).from);
        Draft &d = draft(i);
        Spot::Tenant *tenant = leaves(i) && d.fromFolder ? d.fromFolder->tenant(d.fromName) : nullptr;
        if (!tenant || tenant->leaver != i)
            return;
        tenant->leaver = -1;
        if (const int claimer = d.fromFolder->spot(d.fromName).claimer; claimer >= 0)
            claimAnew(groupOf(claimer));
    }

    void claimAnew(int head)
    {
        giveUp(head);
        for (const int follower : draft(head).followers)
            giveUp(follower);
        claim(head);
    }

    /**
     * Folders that are to go into each other, and the like. Only folders can be so entangled: if there are some, all
     * requests are ordered, until an order without impossible ones is found.
     */
    void refuseImpossible(int i)
    {
        if (m_ordering)
            return orderSome();
        if (!m_isOrdering && isOpen(i) && leaves(i) && draft(i).isFolder)
            return orderAll();
        if (m_isOrdering && isOpen(i)) {
            m_ordered.push_back(i);
            m_displacements.push_back(displacement(i));
        }
        if (m_isOrdering && m_at == count()) {
            m_ordering.emplace(std::move(m_displacements));
            --m_at; // continue this stage
        }
    }

    /** Starts with the first request again. */
    void orderAll()
    {
        m_isOrdering = true;
        m_ordered.clear();
        m_displacements.clear();
        m_at = 0;
    }

    void orderSome()
    {
        --m_at;
        if (!m_ordering->step())
            return;
        const std::vector<int> impossible = m_ordering->take().impossible;
        m_ordering.reset();
        for (const int at : impossible)
            refuse(m_ordered[size_t(at)], MoveProblem::Inside);
        if (impossible.empty())
            m_at = count();
        else
            orderAll();
    }

    Displacement displacement(int i)
    {
        const Draft &d = draft(i);
        const QString from = joinedPath(d.fromFolder->path, d.fromName);
        const QString to = joinedPath(d.toFolder->path, d.givenName);
        return {leaves(i) ? from : QString(), to, wish(i).kind == MoveKind::Copy ? from : QString(), d.isFolder,
                leaves(i)};
    }

    void describe(int i)
    {
        if (!isOpen(i))
            return;
        const Draft &d = draft(i);
        PlannedMove &answer = planned(i);
        if (d.fromFolder == d.toFolder && d.fromName == d.givenName)
            answer.status = PlanStatus::Same;
        answer.to = joinedPath(parentFolder(wish(i).to), d.givenName);
        if (answer.status == PlanStatus::Same)
            return;
        const QString leaving = obstacleOf(i, d.givenName).leaving;
        if (d.number > 1) {
            answer.remark = PlanRemark::Numbered;
            answer.other = wish(i).to;
        } else if (leaves(i) && d.fromFolder->device != d.toFolder->device) {
            answer.remark = PlanRemark::OtherDisk;
        } else if (leaves(i) && d.fromFolder == d.toFolder && nameKey(d.fromName) == nameKey(d.givenName)) {
            answer.remark = PlanRemark::OtherCase;
        } else if (!leaving.isEmpty()) {
            answer.remark = PlanRemark::Aside;
            answer.other = leaving;
        }
    }

    const std::vector<MoveWish> &m_wishes;
    const platform::FileSystem &m_disk;
    Places m_places;
    std::vector<Draft> m_drafts;
    std::vector<PlannedMove> m_plan;
    std::vector<int> m_refused;
    QMultiHash<int, int> m_companions;
    std::vector<int> m_ordered;                ///< the requests being ordered
    std::vector<Displacement> m_displacements; ///< theirs
    bool m_isOrdering = false;
    std::optional<MoveOrdering> m_ordering;
    Stage m_stage = Stage::Read;
    int m_at = 0;
};

std::vector<PlannedMove> planMoves(const std::vector<MoveWish> &wishes, const platform::FileSystem &disk)
{
    MovePlanner planner(wishes, disk);
    while (planner.advance())
        continue;
    return planner.plan();
}

MovePlanning::MovePlanning(std::vector<MoveWish> wishes, const platform::FileSystem &disk)
    : m_wishes(std::move(wishes)), m_planner(std::make_unique<MovePlanner>(m_wishes, disk))
{
}

MovePlanning::~MovePlanning() = default;

bool MovePlanning::workFor(std::chrono::milliseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    do {
        if (!m_planner->advance())
            return true;
    } while (std::chrono::steady_clock::now() < end);
    return false;
}

const std::vector<PlannedMove> &MovePlanning::plan() const
{
    return m_planner->plan();
}

} // namespace files
