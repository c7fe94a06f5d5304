#include "tests/support/every_call.h"

#include "meta/metadata_file.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QTest>

#include <sys/wait.h>

namespace {

meta::MetadataWork work()
{
    const QString title = QStringLiteral("Ωμέγα 日本語 😀");
    meta::MetadataWork work;
    work.fields.insert(QStringLiteral("title"), {meta::FieldEdit::What::Set, {title}});
    work.fields.insert(QStringLiteral("caption"), {meta::FieldEdit::What::Set, {title + QStringLiteral(" caption")}});
    return work;
}

/** A picture in a folder of its own, and what it is before and after the work. */
struct Place
{
    explicit Place(const QString &picture, const QString &writtenFile) : written(writtenFile)
    {
        const QString name = written.endsWith(QLatin1String(".xmp")) ? written.chopped(4) : written;
        path = folder.path(name);
        const QByteArray bytes = pictures::bytesOf(picturePath(picture));
        if (!folder.write(name, bytes) || !meta::writeFields(path, work()))
            qFatal("no picture");
        after = folder.read(written);
        QFile::remove(folder.path(written));
        if (!folder.write(name, bytes))
            qFatal("no picture");
        before = name == written ? bytes : QByteArray();
        files = folder.names().size();
    }

    QByteArray now() const { return QFile::exists(folder.path(written)) ? folder.read(written) : QByteArray(); }

    ScratchFolder folder;
    QString written;
    QString path;
    QByteArray before; ///< empty where there is no sidecar yet
    QByteArray after;
    qsizetype files = 0;
};

} // namespace

/** Kills, errors and other programs at every single call that changes the disk while fields are written. */
class TestAttackedFieldWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { EveryCall::before = nullptr; }
    void isWholeAfterAKillAtEachCall_data() { addAll(); }
    void isWholeAfterAKillAtEachCall();
    void isWholeAfterAnErrorAtEachCall_data() { addAll(); }
    void isWholeAfterAnErrorAtEachCall();
    void keepsWhatAnotherProgramSaved_data() { addChanged(); } // sidecars are compared by their contents
    void keepsWhatAnotherProgramSaved();
    void leavesBrokenFilesAsTheyAre();

private:
    static void addChanged()
    {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("written");
        QTest::newRow("jpeg") << "own/formats/photo.jpg"
                              << "a.jpg";
        QTest::newRow("tiff") << "own/formats/pages.tif"
                              << "a.tif";
        QTest::newRow("png") << "own/formats/rgb8.png"
                             << "a.png";
    }
    static void addAll()
    {
        addChanged();
        QTest::newRow("sidecar") << "own/formats/still.gif"
                                 << "a.gif.xmp";
    }
};

void TestAttackedFieldWriter::isWholeAfterAKillAtEachCall()
{
    QFETCH(QString, picture);
    QFETCH(QString, written);
    int call = 0;
    bool isKilled = true;
    bool wasNew = false;
    for (; isKilled; ++call) {
        const Place place(picture, written);
        const pid_t child = ::fork();
        if (child == 0) {
            EveryCall::count = 0;
            EveryCall::before = [call](std::string_view, const char *) {
                if (EveryCall::count > call)
                    ::_exit(9);
                return 0;
            };
            ::_exit(meta::writeFields(place.path, work()) ? 0 : 1);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) != 1);
        isKilled = WEXITSTATUS(status) == 9;
        const QByteArray now = place.now();
        QVERIFY2(now == place.before || now == place.after, qPrintable(QStringLiteral("neither at call %1").arg(call)));
        wasNew = now == place.after;
    }
    QVERIFY(wasNew);
    QVERIFY2(call > 4, qPrintable(QString::number(call)));
}

void TestAttackedFieldWriter::isWholeAfterAnErrorAtEachCall()
{
    QFETCH(QString, picture);
    QFETCH(QString, written);
    for (const int error : {ENOSPC, EIO, EACCES, EROFS}) {
        int failures = 0;
        bool isOver = false;
        for (int call = 1; !isOver; ++call) {
            const Place place(picture, written);
            EveryCall::count = 0;
            EveryCall::before = [call, error](std::string_view, const char *) {
                return EveryCall::count == call ? error : 0;
            };
            const auto done = meta::writeFields(place.path, work());
            EveryCall::before = nullptr;
            isOver = EveryCall::count < call;
            const QString told = QStringLiteral("error %1 at call %2").arg(error).arg(call);
            QVERIFY2(place.now() == (done ? place.after : place.before), qPrintable(told));
            failures += done ? 0 : 1;
            const qsizetype expected = place.files + (done && place.before.isEmpty() ? 1 : 0);
            QVERIFY2(place.folder.names().size() == expected,
                     qPrintable(told + u' ' + place.folder.names().join(u' ')));
        }
        QVERIFY2(failures > 0, qPrintable(QString::number(error)));
    }
}

void TestAttackedFieldWriter::keepsWhatAnotherProgramSaved()
{
    QFETCH(QString, picture);
    QFETCH(QString, written);
    const QByteArray others = pictures::bytesOf(picturePath(picture)) + "saved by another program";
    int met = 0;
    bool isOver = false;
    for (int call = 1; !isOver; ++call) {
        const Place place(picture, written);
        bool isSaved = false;
        bool isLate = false; // the last look has been taken
        EveryCall::count = 0;
        EveryCall::before = [&](std::string_view name, const char *) {
            isLate = isLate || name == "rename";
            if (EveryCall::count != call || isLate)
                return 0;
            const QString beside = place.path + QStringLiteral("~");
            QFile file(beside);
            isSaved = file.open(QIODevice::WriteOnly) && file.write(others) == others.size() && file.flush() &&
                      ::rename(QFile::encodeName(beside).constData(), QFile::encodeName(place.path).constData()) == 0;
            return 0;
        };
        const auto done = meta::writeFields(place.path, work());
        EveryCall::before = nullptr;
        isOver = EveryCall::count < call;
        met += isSaved;
        QVERIFY2(!isSaved || (!done && place.now() == others), qPrintable(QStringLiteral("call %1").arg(call)));
    }
    QVERIFY(met > 0);
}

/** Each byte of the head of a file has another value once; nothing may crash, and a failure leaves the file as it is. */
void TestAttackedFieldWriter::leavesBrokenFilesAsTheyAre()
{
    const int step = tests::isSlowRun() ? 1 : 41;
    int written = 0;
    int refused = 0;
    for (const char *name : {"own/formats/photo.jpg", "own/formats/pages.tif", "own/formats/rgb8.png"}) {
        const QByteArray whole = pictures::bytesOf(picturePath(QString::fromLatin1(name)));
        const ScratchFolder folder;
        const auto tryWith = [&](const QByteArray &bytes) {
            QVERIFY(folder.write("a.pic", bytes));
            const bool isDone = bool(meta::writeFields(folder.path("a.pic"), work()));
            (isDone ? written : refused) += 1;
            if (!isDone)
                QVERIFY2(folder.read("a.pic") == bytes, name);
        };
        constexpr qsizetype head = 4000;
        for (qsizetype at = 0; at < std::min(head, whole.size()); at += step) {
            QByteArray broken = whole;
            broken[at] = char(~broken.at(at));
            tryWith(broken);
            tryWith(whole.left(at));
        }
    }
    qInfo("%d written, %d refused", written, refused);
    QVERIFY(written > 0 && refused > 0);
}

QUORLIN_TEST(TestAttackedFieldWriter)
#include "tst_attacked_field_writer.moc"
