#pragma once

#include "files/moving/move_run.h"
#include "files/planning/move_plan.h"
#include "tests/support/model_shelf.h"

#include <QRandomGenerator>

#include <algorithm>

inline const QString asideMark = QStringLiteral(".quorlin-");

/** Names that collide as often as possible: twins in case and accents, numbered ones, odd ones. */
inline const QStringList someNames = {QStringLiteral("a.jpg"),      QStringLiteral("A.jpg"),
                                      QStringLiteral("b.jpg"),      QStringLiteral("a (2).jpg"),
                                      QStringLiteral("b (2).jpg"),  QStringLiteral("c"),
                                      QStringLiteral("d"),          QStringLiteral("D"),
                                      QStringLiteral("\u00e9.jpg"), QStringLiteral("e\u0301.jpg"),
                                      QStringLiteral("e"),          QStringLiteral("f g.tiff"),
                                      QStringLiteral(".hidden"),    QStringLiteral("h."),
                                      QStringLiteral("i.tar.gz"),   QStringLiteral("j")};

/** One made-up world with a plan for it. */
class World
{
public:
    explicit World(quint32 seed) : random(seed)
    {
        QStringList folders = {QStringLiteral("/in"), QStringLiteral("/other")};
        disk.addFolder(folders.first());
        const int count = 4 + below(18);
        for (int i = 0; i < count; ++i) {
            const QString path = pick(folders) + u'/' + pick(someNames);
            if (disk.look(path))
                continue;
            if (below(4) == 0 && path.count(u'/') < 5) {
                disk.addFolder(path);
                folders.append(path);
            } else if (below(8) == 0) {
                disk.addLink(path, QStringLiteral("/in/a.jpg"));
            } else {
                disk.addFile(path, "content " + QByteArray::number(++contents));
            }
        }
        for (const auto &entry : disk.everything())
            if (entry.first.count(u'/') > 1)
                items.append(entry.first);
        if (!items.isEmpty())
            wish(folders);
    }

    int below(int limit) { return int(random.bounded(limit)); }
    QString pick(const QStringList &list) { return list[below(int(list.size()))]; }

    /** The ready ones of the plan, as a run takes them. */
    files::MoveOrderForm readyItems() const
    {
        const auto plan = files::planMoves(wishes, disk);
        files::MoveOrderForm form;
        form.title = QStringLiteral("Rename");
        for (size_t i = 0; i < plan.size(); ++i)
            if (plan[i].status == files::PlanStatus::Ready) {
                files::MoveItem item;
                item.operation = wishes[i].kind == files::MoveKind::Copy   ? files::Operation::Copy
                                 : wishes[i].kind == files::MoveKind::Link ? files::Operation::Link
                                                                           : files::Operation::Move;
                item.from = wishes[i].from;
                item.to = plan[i].to;
                form.items.push_back(item);
            }
        return form;
    }

    /** Contents of all files, so that none can be lost, doubled or changed unseen. */
    QList<QByteArray> allContents() const
    {
        QList<QByteArray> all;
        for (const auto &entry : disk.everything())
            if (entry.second.startsWith('0'))
                all.append(entry.second);
        std::sort(all.begin(), all.end());
        return all;
    }

    bool hasTemporaryName() const
    {
        const auto all = disk.everything();
        return std::any_of(all.begin(), all.end(), [](const auto &entry) { return entry.first.contains(asideMark); });
    }

    QRandomGenerator random;
    ModelFileSystem disk;
    ModelShelf shelf;
    std::vector<files::MoveWish> wishes;
    QStringList items;
    int contents = 0;

private:
    static QString folderOf(const QString &path) { return platform::parentFolder(path); }

    void wish(const QStringList &folders)
    {
        const bool onlyMoves = below(3) > 0;
        for (int i = 0, count = 1 + below(10); i < count; ++i) {
            const QString from = pick(items);
            const int kind = onlyMoves ? 0 : below(6);
            QString folder = below(4) ? folderOf(from) : pick(folders);
            if (below(12) == 0)
                folder += QStringLiteral("/new/") + pick(someNames);
            const QString to = folder + u'/' + (below(3) ? pick(someNames) : platform::lastPathComponent(pick(items)));
            wishes.push_back({kind == 1   ? files::MoveKind::Copy
                              : kind == 2 ? files::MoveKind::Link
                                          : files::MoveKind::Move,
                              from, to, below(3) == 0, below(8) == 0 ? below(count) : -1});
        }
        rotate();
    }

    /** The names of some items of one folder go round. */
    void rotate()
    {
        const QString folder = folderOf(pick(items));
        QStringList inIt;
        for (const QString &path : items)
            if (folderOf(path) == folder && below(3))
                inIt.append(path);
        for (qsizetype i = 0; i < inIt.size(); ++i)
            wishes.insert(wishes.begin(), {files::MoveKind::Move, inIt[i], inIt[(i + 1) % inIt.size()], false, -1});
    }
};

/** Carries out a run to its end, or up to @p most results. */
inline std::unique_ptr<files::MoveRun> carriedOut(World &world, const files::MoveOrderForm &form, int most = 1'000'000)
{
    auto run = std::move(*files::MoveRun::begin(world.disk, world.shelf, form));
    std::vector<int> told(form.items.size());
    for (int i = 0; i < most; ++i) {
        const auto result = run->next();
        if (!result)
            break;
        ++told[size_t(result->index)];
    }
    if (std::any_of(told.begin(), told.end(), [](int count) { return count > 1; }))
        qFatal("an item has come to two ends");
    (void)run->end();
    return run;
}
