#include "meta/mMeta.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <sys/wait.h>

namespace {

const QString comments[] = {QStringLiteral("the first"),
                            QStringLiteral("another one, Ωμέγα 日本語 😀, that is longer than the first")};

QByteArray noisyPicture()
{
    QImage image(900, 700, QImage::Format_RGB888);
    QRandomGenerator random(3);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate());
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "jpg", 95);
    return bytes;
}

/** Writes one comment after the other until it is killed. */
[[noreturn]] void writeForEver(const QString &path)
{
    mMeta meta;
    for (int i = 1;; ++i)
        if (meta.hSetExifData(path, comments[i % 2]) != QLatin1String("OK"))
            ::_exit(1);
}

} // namespace

/** A program that ends in the middle of writing a comment, at any moment. */
class TestKilledCommentWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesTheOldFileOrTheNewOne();
};

void TestKilledCommentWriter::leavesTheOldFileOrTheNewOne()
{
    const ScratchFolder folder;
    const QString path = folder.path("a.jpg");
    QVERIFY(folder.write("a.jpg", noisyPicture()));
    mMeta meta;
    QByteArray whole[2];
    for (const int turn : {0, 1, 0}) { // the file that each comment leads to, from the other one
        QCOMPARE(meta.hSetExifData(path, comments[turn]), QStringLiteral("OK"));
        whole[turn] = folder.read("a.jpg");
    }
    QCOMPARE(meta.hSetExifData(path, comments[1]), QStringLiteral("OK"));
    whole[1] = folder.read("a.jpg");
    const int kills = tests::repetitions(40, 520);
    QRandomGenerator random(7);
    int old = 0;
    for (int i = 0; i < kills; ++i) {
        const pid_t child = ::fork();
        if (child == 0)
            writeForEver(path);
        ::usleep(useconds_t(random.bounded(9'000)));
        ::kill(child, SIGKILL);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status)); // it was still writing
        const QByteArray found = folder.read("a.jpg");
        QVERIFY2(found == whole[0] || found == whole[1],
                 qPrintable(QStringLiteral("neither of both after kill %1").arg(i)));
        old += found == whole[1];
    }
    const qsizetype litter = folder.names().size() - 1;
    qInfo("%d kills: %d left the one file, %d the other; %d temporary files are left", kills, old, kills - old,
          int(litter));
    QVERIFY(old > 0 && old < kills);
    QVERIFY(litter <= kills / 10); // it has a name for an instant only, unless the process is stopped just then
}

QUORLIN_TEST(TestKilledCommentWriter)
#include "tst_killed_comment_writer.moc"
