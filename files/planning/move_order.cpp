#include "files/planning/move_order.h"

#include "files/planning/move_names.h"

#include "platform/foundation/paths.h"

#include <QHash>

#include <utility>

namespace files {
namespace {

enum class Mark { New, Open, Done };

struct Node
{
    std::vector<int> inner; ///< items that are in this folder or go into it
    int blocker = -1;       ///< the item still at the place that this one needs
    size_t nextInner = 0;
    Mark mark = Mark::New;
    bool isAside = false;
    bool isAhead = false;
};

QString keyOf(const QString &path)
{
    return placeKey(platform::parentFolder(path), platform::lastPathComponent(path));
}

} // namespace

/** Follows every item to those that it waits for, and records the steps on the way back. */
class MoveOrdering::Walk
{
public:
    explicit Walk(std::vector<Displacement> items) : m_items(std::move(items)), m_nodes(m_items.size()) {}

    bool step()
    {
        if (m_isLooking)
            lookAtOne();
        else if (!m_stack.empty())
            goOn();
        else if (!m_returning.empty())
            visitReturning();
        else if (m_next < int(m_nodes.size()))
            visit(m_next++);
        else
            return true;
        return false;
    }

    MoveOrder take() { return std::move(m_order); }

private:
    /**
     * All items are visited three times: what leaves a place, what waits for one, and what is in folders that leave.
     */
    void lookAtOne()
    {
        const auto look = m_round == 0 ? &Walk::noteLeaver : m_round == 1 ? &Walk::findBlocker : &Walk::findInner;
        if (m_next < int(m_items.size()))
            return (this->*look)(m_next++);
        m_next = 0;
        m_isLooking = ++m_round < 3;
    }

    void noteLeaver(int i)
    {
        const Displacement &item = m_items[size_t(i)];
        m_isAnyReading = m_isAnyReading || !item.reads.isEmpty();
        if (item.leaves.isEmpty())
            return;
        m_leavers.insert(item.leaves, i);
        m_similar.insert(keyOf(item.leaves), i);
        if (item.isFolder)
            m_folders.insert(item.leaves, i);
    }

    void findBlocker(int i)
    {
        const QString &place = m_items[size_t(i)].takes;
        if (place.isEmpty())
            return;
        const auto found = m_leavers.constFind(place);
        const int blocker = found != m_leavers.constEnd() ? *found : m_similar.value(keyOf(place), -1);
        m_nodes[size_t(i)].blocker = blocker == i ? -1 : blocker;
    }

    void findInner(int i)
    {
        if (m_folders.isEmpty() && !m_isAnyReading)
            return;
        const Displacement &item = m_items[size_t(i)];
        for (const QString &path : {item.leaves, item.takes, item.reads})
            if (!path.isEmpty())
                putInto(m_folders, platform::parentFolder(path), i);
        const int leaver = m_isAnyReading ? m_leavers.value(item.reads, -1) : -1;
        if (leaver >= 0 && leaver != i)
            m_nodes[size_t(leaver)].inner.push_back(i);
    }

    /** Records the item with the nearest folder at or above @p path that leaves its place. */
    void putInto(const QHash<QString, int> &folders, QString path, int item)
    {
        for (; path.size() > 1; path = platform::parentFolder(path)) {
            const int folder = folders.value(path, -1);
            if (folder >= 0 && folder != item) {
                m_nodes[size_t(folder)].inner.push_back(item);
                return;
            }
        }
    }

    Node &node(int item) { return m_nodes[size_t(item)]; }

    void visit(int root)
    {
        if (node(root).mark == Mark::New)
            open(root);
    }

    void visitReturning()
    {
        const int aside = m_returning.back();
        m_returning.pop_back();
        visit(aside);
    }

    /** Including what is on top of the stack. */
    void goOn()
    {
        const int item = m_stack.back();
        Node &at = node(item);
        if (at.nextInner < at.inner.size()) {
            waitFor(at.inner[at.nextInner], true);
        } else if (at.blocker >= 0 && node(at.blocker).mark != Mark::Done && !node(at.blocker).isAside) {
            waitFor(at.blocker, false);
        } else {
            m_order.steps.push_back({item, false, false});
            at.mark = Mark::Done;
            m_stack.pop_back();
        }
    }

    void open(int item)
    {
        node(item).mark = Mark::Open;
        m_stack.push_back(item);
    }

    void waitFor(int item, bool isInner)
    {
        const int waiting = m_stack.back();
        if (node(item).mark == Mark::Done || (isInner && node(item).isAhead && !goesInto(item, waiting)))
            node(waiting).nextInner += isInner;
        else if (node(item).mark == Mark::New)
            open(item);
        else
            breakCircle(item);
    }

    bool waitsForPlace(int item) { return node(item).nextInner == node(item).inner.size(); }

    bool goesInto(int item, int folder) const
    {
        return m_items[size_t(item)].takes.startsWith(m_items[size_t(folder)].leaves + u'/');
    }

    bool mayStep(int item) const { return m_items[size_t(item)].mayStepAside; }

    /** The top of the stack waits for @p item, which waits for it. One that is merely in the way can be moved aside. */
    void breakCircle(int item)
    {
        size_t first = m_stack.size() - 1;
        while (m_stack[first] != item)
            --first;
        const auto waiting = [&](size_t at) { return at == first ? m_stack.back() : m_stack[at - 1]; };
        const auto kept = [&](size_t at) { return at == first ? m_stack.size() : at; };
        for (size_t at = first; at < m_stack.size(); ++at)
            if (mayStep(m_stack[at]) && waitsForPlace(m_stack[at]) && waitsForPlace(waiting(at)))
                return stepAside(m_stack[at], kept(at), false);
        for (size_t at = first; at < m_stack.size(); ++at)
            if (mayStep(m_stack[at]) && waitsForPlace(m_stack[at]) && !node(m_stack[at]).isAside &&
                !goesInto(m_stack[at], waiting(at)))
                return stepAside(m_stack[at], kept(at), true);
        const int impossible = m_stack.back();
        m_order.impossible.push_back(impossible);
        node(impossible).mark = Mark::Done;
        m_stack.pop_back();
    }

    /** Whatever is above @p kept on the stack starts again later. */
    void stepAside(int item, size_t kept, bool isAhead)
    {
        m_order.steps.push_back({item, true, isAhead});
        node(item).isAside = true;
        node(item).isAhead = isAhead;
        m_returning.push_back(item);
        for (; m_stack.size() > kept; m_stack.pop_back()) {
            node(m_stack.back()).mark = Mark::New;
            node(m_stack.back()).nextInner = 0;
        }
    }

    std::vector<Displacement> m_items;
    std::vector<Node> m_nodes;
    QHash<QString, int> m_leavers;
    QHash<QString, int> m_similar; ///< by keyOf()
    QHash<QString, int> m_folders;
    bool m_isAnyReading = false;
    bool m_isLooking = true;
    int m_round = 0;
    int m_next = 0;
    std::vector<int> m_stack;
    std::vector<int> m_returning;
    MoveOrder m_order;
};

MoveOrdering::MoveOrdering(std::vector<Displacement> items) : m_walk(std::make_unique<Walk>(std::move(items))) {}

MoveOrdering::~MoveOrdering() = default;

bool MoveOrdering::step()
{
    return m_walk->step();
}

MoveOrder MoveOrdering::take()
{
    return m_walk->take();
}

MoveOrder orderMoves(const std::vector<Displacement> &items)
{
    MoveOrdering ordering(items);
    while (!ordering.step())
        ;
    return ordering.take();
}

} // namespace files
