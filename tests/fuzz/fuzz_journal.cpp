// Journals of moves made of any bytes at all: whatever they say, the next start ends and every picture is still there.
#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/model_shelf.h"

#include <cstdlib>

namespace {

void require(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

void checkPictures(const ModelFileSystem &disk)
{
    const QList<QByteArray> contents = disk.allBytes();
    for (const char *content : {"a", "b", "c", "hidden"})
        require(contents.contains(content));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    ModelFileSystem disk;
    ModelShelf shelf;
    for (const char *name : {"a", "b", "c"})
        disk.addFile(QStringLiteral("/d/") + QLatin1String(name), name);
    const QString run = QStringLiteral("run");
    disk.addFile(QStringLiteral("/d/.quorlin-aside-run-0"), "hidden");
    shelf.journals[run] = QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)files::recoverMoves(disk, shelf);
    checkPictures(disk);
    const files::UndoPlan undo = files::planUndo(disk, shelf, run);
    if (const auto again = files::MoveRun::begin(disk, shelf, undo.form)) {
        while ((*again)->next()) {
        }
        (void)(*again)->end();
    }
    checkPictures(disk);
    return 0;
}
