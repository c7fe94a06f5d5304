// moves FOLDER COUNT: plans and carries out a run that turns COUNT new files of FOLDER over, takes it back, and prints how long it
// took in milliseconds. FOLDER must be empty.

#include "files/moving/move_run.h"
#include "files/moving/move_undo.h"
#include "files/planning/move_plan.h"

#include "platform/disk/disk_file_system.h"

#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace files;

template<typename Work> auto timed(const char *what, Work work)
{
    QElapsedTimer timer;
    timer.start();
    auto result = work();
    std::printf("%-28s %7.1f ms\n", what, double(timer.nsecsElapsed()) / 1e6);
    return result;
}

/** Every file gets the name of the next one, the last one that of the first: one circle, and the worst case. */
std::vector<MoveWish> circle(const QString &folder, int count)
{
    const auto path = [&](int i) {
        return QStringLiteral("%1/IMG_%2.jpg").arg(folder).arg(i % count, 6, 10, QLatin1Char('0'));
    };
    std::vector<MoveWish> wishes;
    for (int i = 0; i < count; ++i) {
        QFile file(path(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::number(i)) < 1)
            std::exit(1);
        wishes.push_back({MoveKind::Move, path(i), path(i + 1), false, -1});
    }
    return wishes;
}

std::vector<MoveWish> newNames(std::vector<MoveWish> wishes)
{
    for (MoveWish &wish : wishes)
        wish.to = wish.from + QStringLiteral("-new.jpg");
    return wishes;
}

std::vector<MoveItem> itemsOf(const std::vector<MoveWish> &wishes)
{
    std::vector<MoveItem> items;
    for (const MoveWish &wish : wishes)
        items.push_back({Operation::Move, wish.from, wish.to});
    return items;
}

QString carryOut(platform::FileSystem &disk, JournalShelf &shelf, const char *what, const MoveOrderForm &form)
{
    std::printf("%s\n", what);
    const auto run =
        timed("  begin, journal on the disk", [&] { return std::move(*MoveRun::begin(disk, shelf, form)); });
    const int done = timed("  all items", [&] {
        int count = 0;
        while (const auto result = run->next())
            count += result->stand == Stand::Done;
        return count;
    });
    timed("  end, folders on the disk", [&] { return run->end(); });
    if (done != int(form.items.size()))
        std::exit(1);
    return run->id();
}

} // namespace

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    const QString folder = QFile::decodeName(arguments[1]);
    const QString files = folder + QStringLiteral("/files");
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(folder + QStringLiteral("/journals"));
    if (disk.makeFolder(files))
        return 1;
    const std::vector<MoveWish> wishes = circle(files, std::atoi(arguments[2]));
    timed("plan, new names", [&] { return planMoves(newNames(wishes), disk); });
    timed("plan, one circle", [&] { return planMoves(wishes, disk); });
    const QString run = carryOut(disk, shelf, "one circle", {QStringLiteral("circle"), itemsOf(wishes), {}, {}});
    const UndoPlan undo = timed("plan of the undoing", [&] { return planUndo(disk, shelf, run); });
    carryOut(disk, shelf, "the circle taken back", undo.form);
    carryOut(disk, shelf, "new names", {QStringLiteral("new names"), itemsOf(newNames(wishes)), {}, {}});
    timed("list of the runs", [&] { return listRuns(shelf); });
    return 0;
}
