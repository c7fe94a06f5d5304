#include "meta/metadata_file.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

#include <array>
#include <csignal>
#include <sys/wait.h>

namespace {

meta::MetadataWork workOf(int turn)
{
    const QString title =
        turn == 0 ? QStringLiteral("the first") : QStringLiteral("another one, Ωμέγα 日本語 😀, longer");
    meta::MetadataWork work;
    work.fields.insert(QStringLiteral("title"), {meta::FieldEdit::What::Set, {title}});
    work.fields.insert(QStringLiteral("caption"), {meta::FieldEdit::What::Set, {title + QStringLiteral(" caption")}});
    return work;
}

/** Writes one title after the other until it is killed. */
[[noreturn]] void writeForEver(const QString &path)
{
    for (int i = 1;; ++i)
        if (!meta::writeFields(path, workOf(i % 2)))
            ::_exit(1);
}

} // namespace

/** A program that ends in the middle of writing fields, at any moment. */
class TestKilledFieldWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesTheOldFileOrTheNewOne_data();
    void leavesTheOldFileOrTheNewOne();
};

void TestKilledFieldWriter::leavesTheOldFileOrTheNewOne_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("written");
    QTest::newRow("jpeg") << "own/formats/photo.jpg"
                          << "a.jpg";
    QTest::newRow("tiff") << "own/formats/pages.tif"
                          << "a.tif";
    QTest::newRow("png") << "own/formats/rgb8.png"
                         << "a.png";
    QTest::newRow("sidecar") << "own/formats/still.gif"
                             << "a.gif.xmp";
}

void TestKilledFieldWriter::leavesTheOldFileOrTheNewOne()
{
    QFETCH(QString, picture);
    QFETCH(QString, written);
    const ScratchFolder folder;
    const QString name = written.endsWith(QLatin1String(".xmp")) ? written.chopped(4) : written;
    QVERIFY(folder.write(name, pictures::bytesOf(picturePath(picture))));
    const QString path = folder.path(name);
    std::array<QByteArray, 2> whole;
    for (int turn : {0, 1, 0, 1, 0, 1}) { // the file that each leads to, from the other one
        const auto done = meta::writeFields(path, workOf(turn));
        QVERIFY2(done, done ? "" : qPrintable(done.error().message));
        whole[size_t(turn)] = folder.read(written);
    }
    QVERIFY(whole[0] != whole[1]);
    const int kills = tests::repetitions(20, 300);
    QRandomGenerator random(7);
    int first = 0;
    for (int i = 0; i < kills; ++i) {
        const pid_t child = ::fork();
        if (child == 0)
            writeForEver(path);
        ::usleep(useconds_t(random.bounded(9'000)));
        ::kill(child, SIGKILL);
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status)); // it was still writing
        const QByteArray found = folder.read(written);
        QVERIFY2(found == whole[0] || found == whole[1], qPrintable(QStringLiteral("neither after kill %1").arg(i)));
        first += found == whole[0];
    }
    const qsizetype litter = folder.names().size() - (name == written ? 1 : 2);
    qInfo("%d kills: %d left the one file, %d the other; %d temporary files are left", kills, first, kills - first,
          int(litter));
    QVERIFY(litter <= kills / 10);
}

QUORLIN_TEST(TestKilledFieldWriter)
#include "tst_killed_field_writer.moc"
