#include "files/move_order.h"

#include "files/move_names.h"

#include "platform/foundation/paths.h"

#include <QHash>

namespace files {
namespace {

enum class Mark { New, Open, Done };

struct Node
{
    std::vector<int> inner; ///< items that are in this folder or go into it
    int blocker = -1;       ///< the item that is still at the place that this one takes
    size_t nextInner = 0;
    Mark mark = Mark::New;
    bool isAside = false;
};

/** Walks from every item to those that it waits for, and writes the steps down on the way back. */
class Walk
{
public:
    explicit Walk(const std::vector<Displacement> &items) : m_nodes(items.size())
    {
        findBlockers(items);
        findInner(items);
    }

    MoveOrder order()
    {
        for (int item = 0; item < int(m_nodes.size()); ++item) {
            visit(item);
            while (!m_returning.empty()) {
                const int aside = m_returning.back();
                m_returning.pop_back();
                visit(aside);
            }
        }
        return std::move(m_order);
    }

private:
    static QString keyOf(const QString &path)
    {
        return placeKey(platform::parentFolder(path), platform::lastPathComponent(path));
    }

    void findBlockers(const std::vector<Displacement> &items)
    {
        QHash<QString, int> exact;
        QHash<QString, int> similar;
        for (int i = 0; i < int(items.size()); ++i)
            if (const QString &place = items[size_t(i)].leaves; !place.isEmpty()) {
                exact.insert(place, i);
                similar.insert(keyOf(place), i);
            }
        for (int i = 0; i < int(items.size()); ++i) {
            const QString &place = items[size_t(i)].takes;
            if (place.isEmpty())
                continue;
            const auto found = exact.constFind(place);
            const int blocker = found != exact.constEnd() ? *found : similar.value(keyOf(place), -1);
            m_nodes[size_t(i)].blocker = blocker == i ? -1 : blocker;
        }
    }

    void findInner(const std::vector<Displacement> &items)
    {
        QHash<QString, int> folders;
        for (int i = 0; i < int(items.size()); ++i)
            if (items[size_t(i)].isFolder && !items[size_t(i)].leaves.isEmpty())
                folders.insert(items[size_t(i)].leaves, i);
        if (folders.isEmpty())
            return;
        for (int i = 0; i < int(items.size()); ++i) {
            const Displacement &item = items[size_t(i)];
            for (const QString &path : {item.leaves, item.takes})
                if (!path.isEmpty())
                    putInto(folders, platform::parentFolder(path), i);
            if (!item.reads.isEmpty())
                putInto(folders, item.reads, i);
        }
    }

    /** Notes the item with the nearest folder at or above @p path that leaves its place. */
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
        if (node(root).mark != Mark::New)
            return;
        open(root);
        while (!m_stack.empty()) {
            const int item = m_stack.back();
            Node &at = node(item);
            if (at.nextInner < at.inner.size()) {
                waitFor(at.inner[at.nextInner], true);
            } else if (at.blocker >= 0 && node(at.blocker).mark != Mark::Done && !node(at.blocker).isAside) {
                waitFor(at.blocker, false);
            } else {
                m_order.steps.push_back({item, false});
                at.mark = Mark::Done;
                m_stack.pop_back();
            }
        }
    }

    void open(int item)
    {
        node(item).mark = Mark::Open;
        m_stack.push_back(item);
    }

    void waitFor(int item, bool isInner)
    {
        if (node(item).mark == Mark::Done)
            node(m_stack.back()).nextInner += isInner;
        else if (node(item).mark == Mark::New)
            open(item);
        else
            breakCircle(item);
    }

    bool waitsForPlace(int item) { return node(item).nextInner == node(item).inner.size(); }

    /** The top of the stack waits for @p item, which waits for it. One that only stands in the way can step aside. */
    void breakCircle(int item)
    {
        size_t first = m_stack.size() - 1;
        while (m_stack[first] != item)
            --first;
        if (waitsForPlace(item) && waitsForPlace(m_stack.back()))
            return stepAside(item, m_stack.size());
        for (size_t at = first + 1; at < m_stack.size(); ++at)
            if (waitsForPlace(m_stack[at]) && waitsForPlace(m_stack[at - 1]))
                return stepAside(m_stack[at], at);
        const int impossible = m_stack.back();
        m_order.impossible.push_back(impossible);
        node(impossible).mark = Mark::Done;
        m_stack.pop_back();
    }

    /** What lies above @p kept on the stack starts again later. */
    void stepAside(int item, size_t kept)
    {
        m_order.steps.push_back({item, true});
        node(item).isAside = true;
        m_returning.push_back(item);
        for (; m_stack.size() > kept; m_stack.pop_back()) {
            node(m_stack.back()).mark = Mark::New;
            node(m_stack.back()).nextInner = 0;
        }
    }

    std::vector<Node> m_nodes;
    std::vector<int> m_stack;
    std::vector<int> m_returning;
    MoveOrder m_order;
};

} // namespace

MoveOrder orderMoves(const std::vector<Displacement> &items)
{
    return Walk(items).order();
}

} // namespace files
