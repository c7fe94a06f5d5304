#include "platform/file/lent_file.h"
#include "platform/file/replacement_file.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/made_tiff.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/xattr.h>

using platform::EditedFile;
using platform::ErrorCode;
using platform::ImageSource;
using platform::LentFile;
using platform::pagesLostToUserComment;
using platform::writeUserComment;

namespace {

QByteArray encoded(const char *format, int width = 24, int height = 16)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    pictures::gradient(width, height).save(&buffer, format);
    return bytes;
}

QByteArray fileNamed(const char *name)
{
    return pictures::bytesOf(picturePath(name));
}

QString commentOf(const QString &path)
{
    const auto source = ImageSource::open(path);
    return source ? source->metadata()->userComment() : QStringLiteral("cannot be opened");
}

/** From the header of the first scan to the end of the file. */
QByteArray scanOf(const QByteArray &jpeg)
{
    return jpeg.mid(jpeg.indexOf(QByteArray("\xff\xda\0\x0c", 4)));
}

template<class T> ErrorCode codeOf(const platform::Result<T> &result)
{
    return result ? ErrorCode(-1) : result.error().code;
}

/** What the other side does with a file that is to be edited. */
platform::Result<bool> copyOf(const EditedFile &edited, const QString &path, const QString &comment)
{
    const platform::Descriptor copy = edited.lendCopy();
    return writeUserComment(std::make_shared<const LentFile>(edited.lendFile(), path), copy.number(),
                            std::make_shared<const LentFile>(edited.lendCopyToRead(), path), comment);
}

/** As two processes do it: one edits, the other puts it into its place. */
platform::Result<bool> writeLent(const QString &path, const QString &comment)
{
    const auto edited = EditedFile::of(path);
    if (!edited)
        return tl::unexpected<platform::Error>(edited.error());
    const auto changes = copyOf(**edited, path, comment);
    if (!changes || !*changes)
        return changes;
    return (*edited)->takePlace().map([] { return true; });
}

} // namespace

/** The comment written into files: what changes, what does not, and what is left when it cannot be done. */
class TestUserCommentWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheTextInEveryTypeThatHoldsOne_data();
    void keepsTheTextInEveryTypeThatHoldsOne();
    void leavesTypesWithoutAPlaceForItAsTheyAre_data();
    void leavesTypesWithoutAPlaceForItAsTheyAre();
    void leavesAFileAloneThatSomebodyWroteTo();
    void copiesTheScanAndWhatFollowsIt();
    void doesNotGrowWithEachEdit();
    void leavesNothingOfTheOldComment();
    void changesNothingWhereItSaysThatAlready();
    void keepsTheFirstPageOfATiffFile();
    void keepsTheRawPictureOfARawFile();
    void keepsModeAndAttributes();
    void replacesALinkAndNotWhatItLeadsTo();
    void refusesACommentThatDoesNotFit();
    void refusesAWriteProtectedFile();
    void refusesAFolderThatCannotBeWritten();
    void leavesTheFileWhenTheDiskIsFull();
    void failsForWhatIsNotThere();
    void tellsAnUnreadableCommentFromNone();
};

void TestUserCommentWriter::keepsTheTextInEveryTypeThatHoldsOne_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("jpeg") << encoded("jpg");
    QTest::newRow("png") << encoded("png");
    QTest::newRow("tiff") << encoded("tiff");
    for (const char *name : {"every-group.webp", "every-group.jp2", "every-group.png", "every-group.jpg",
                             "every-group.tif", "maker-note-canon.jpg", "maker-note-olympus.jpg", "big-endian.jpg"})
        QTest::newRow(name) << fileNamed(qPrintable(QStringLiteral("own/metadata/") + QString::fromUtf8(name)));
    for (const char *name : {"lossy.webp", "animated.webp", "rgb.jp2", "big.tif", "tiled.tif", "palette8.png"})
        QTest::newRow(name) << fileNamed(qPrintable(QStringLiteral("own/formats/") + QString::fromUtf8(name)));
    if (!corpusIsThere())
        return;
    QTest::newRow("webp without EXIF") << fileNamed("formats/iss634.webp");
    QTest::newRow("webp with EXIF") << fileNamed("orientation/hopper_orientation_6.webp");
    QTest::newRow("jpeg 2000") << fileNamed("formats/Reagan.jp2");
    QTest::newRow("big TIFF") << fileNamed("formats/hopper_bigtiff.tif");
    QTest::newRow("png with EXIF behind its pixels") << fileNamed("formats/exif.png");
    QTest::newRow("png with EXIF as a text") << fileNamed("orientation/exif_imagemagick_orientation.png");
    QTest::newRow("big-endian maker notes") << fileNamed("exif-real/DSCN0010.jpg");
    QTest::newRow("little-endian maker notes") << fileNamed("exif-real/Canon_40D.jpg");
    QTest::newRow("damaged EXIF") << fileNamed("broken/invalid-exif.jpg");
    QTest::newRow("bytes between the segments") << fileNamed("broken/junk_jpeg_header.jpg");
}

void TestUserCommentWriter::keepsTheTextInEveryTypeThatHoldsOne()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    const ScratchFolder folder;
    QVERIFY(folder.write("a", bytes));
    const auto before = ImageSource::open(folder.path("a"));
    const QStringList comments = {QStringLiteral("short"),    QStringLiteral("Grüße Ωμέγα 日本語 😀"),
                                  QString(3000, QChar(u'Ж')), QStringLiteral(""),
                                  QStringLiteral("☀☀☀"),      QStringLiteral("   "),
                                  QStringLiteral("again")};
    QVERIFY(folder.write("b", bytes));
    for (const QString &comment : comments) {
        const auto written = writeUserComment(folder.path("a"), comment);
        QVERIFY2(written, written ? "" : qPrintable(written.error().message));
        QCOMPARE(commentOf(folder.path("a")), comment);
        QVERIFY(writeLent(folder.path("b"), comment));
        QCOMPARE(folder.read("b"), folder.read("a"));
    }
    QVERIFY(QFile::remove(folder.path("b")));
    QVariantMap was = before->properties().value();
    QVariantMap is = ImageSource::open(folder.path("a"))->properties().value();
    for (QVariantMap *properties : {&was, &is}) {
        QVariantMap exif = properties->value(QStringLiteral("{Exif}")).toMap();
        exif.remove(QStringLiteral("UserComment"));
        properties->insert(QStringLiteral("{Exif}"), exif);
    }
    QCOMPARE(is, was);
    QCOMPARE(folder.names(), QStringList{QStringLiteral("a")});
}

void TestUserCommentWriter::leavesTypesWithoutAPlaceForItAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::newRow("bmp") << encoded("bmp") << int(ErrorCode::Unsupported);
    QTest::newRow("gif") << QByteArray("GIF89a\1\0\1\0\0\0\0;", 14) << int(ErrorCode::Unsupported);
    QTest::newRow("text") << QByteArray("no picture") << int(ErrorCode::NotAPicture);
    QTest::newRow("nothing") << QByteArray() << int(ErrorCode::NotAPicture);
    QTest::newRow("jpeg that ends in its header") << encoded("jpg").left(40) << int(ErrorCode::Unreadable);
    QTest::newRow("png without a header") << encoded("png").left(8) << int(ErrorCode::Unreadable);
    QTest::newRow("webp without parts") << QByteArray("RIFF\4\0\0\0WEBP", 12) << int(ErrorCode::Unreadable);
    QTest::newRow("bare JPEG 2000") << QByteArray("\xff\x4f\xff\x51\0\0\0\0", 8) << int(ErrorCode::Unsupported);
}

void TestUserCommentWriter::leavesTypesWithoutAPlaceForItAsTheyAre()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    const ScratchFolder folder;
    QVERIFY(folder.write("a", bytes));
    const auto written = writeUserComment(folder.path("a"), QStringLiteral("x"));
    QCOMPARE(int(codeOf(written)), code);
    QVERIFY(written.error().message.contains(folder.path("a")));
    QCOMPARE(folder.read("a"), bytes);
    QCOMPARE(folder.names(), QStringList{QStringLiteral("a")});
    QCOMPARE(int(codeOf(writeLent(folder.path("a"), QStringLiteral("x")))), code);
    QCOMPARE(folder.read("a"), bytes);
    QCOMPARE(folder.names(), QStringList{QStringLiteral("a")});
}

void TestUserCommentWriter::leavesAFileAloneThatSomebodyWroteTo()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a.jpg", encoded("jpg")));
    auto edited = EditedFile::of(folder.path("a.jpg"));
    QVERIFY(edited);
    QVERIFY(copyOf(**edited, folder.path("a.jpg"), QStringLiteral("x")).value());
    QVERIFY(folder.write("a.jpg", "somebody's own")); // while it was at work
    QCOMPARE(int(codeOf((*edited)->takePlace())), int(ErrorCode::WriteFailed));
    edited->reset();
    QCOMPARE(folder.read("a.jpg"), QByteArray("somebody's own"));
    QCOMPARE(folder.names(), QStringList{QStringLiteral("a.jpg")});
}

void TestUserCommentWriter::copiesTheScanAndWhatFollowsIt()
{
    const ScratchFolder folder;
    const QByteArray jpeg = encoded("jpg") + "trailing data\0\xff\xd8 that is no picture";
    QVERIFY(folder.write("a.jpg", jpeg));
    QVERIFY(writeUserComment(folder.path("a.jpg"), QStringLiteral("x")));
    const QByteArray after = folder.read("a.jpg");
    QCOMPARE(scanOf(after), scanOf(jpeg));
    const qsizetype segment = after.indexOf("\xff\xe1");
    const qsizetype size = uchar(after.at(segment + 2)) * 256 + uchar(after.at(segment + 3)) + 2;
    QCOMPARE(QByteArray(after).remove(segment, size), jpeg);
}

void TestUserCommentWriter::doesNotGrowWithEachEdit()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a.jpg", encoded("jpg")));
    QVERIFY(writeUserComment(folder.path("a.jpg"), QStringLiteral("short")));
    const qsizetype small = folder.read("a.jpg").size();
    for (int i = 0; i < 50; ++i) {
        QVERIFY(writeUserComment(folder.path("a.jpg"), QString(200 + i, QChar(u'a' + i % 26))));
        QVERIFY(writeUserComment(folder.path("a.jpg"), QStringLiteral("short")));
    }
    QVERIFY(folder.read("a.jpg").size() <= small + 260);
}

void TestUserCommentWriter::leavesNothingOfTheOldComment()
{
    const ScratchFolder folder;
    for (const QByteArray &picture : {encoded("jpg"), encoded("tiff"), fileNamed("own/metadata/comment-ascii.jpg")}) {
        QVERIFY(folder.write("a", picture));
        for (const char *text : {"a secret that somebody told", "x", "something much longer than the secret was",
                                 "another secret", "something even much longer than the secret was"})
            QVERIFY(writeUserComment(folder.path("a"), QString::fromLatin1(text)));
        QVERIFY(!folder.read("a").contains("secret that"));
        QVERIFY(!folder.read("a").contains("another"));
    }
}

void TestUserCommentWriter::changesNothingWhereItSaysThatAlready()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a.jpg", encoded("jpg")));
    QVERIFY(writeUserComment(folder.path("a.jpg"), QStringLiteral("the same")));
    struct stat before = {};
    struct stat after = {};
    ::stat(QFile::encodeName(folder.path("a.jpg")).constData(), &before);
    QVERIFY(writeUserComment(folder.path("a.jpg"), QStringLiteral("the same")));
    ::stat(QFile::encodeName(folder.path("a.jpg")).constData(), &after);
    QCOMPARE(after.st_ino, before.st_ino);
    const auto changes = writeLent(folder.path("a.jpg"), QStringLiteral("the same"));
    QVERIFY(changes && !*changes);
}

void TestUserCommentWriter::keepsTheFirstPageOfATiffFile()
{
    const ScratchFolder folder;
    for (const QByteArray &pages :
         {pictures::madeTiff({3}), fileNamed("own/formats/pages.tif"), fileNamed("formats/g4-multi.tiff")}) {
        for (const char *name : {"a.tiff", "a.CR2", "a.jpg", "a"}) { // the content counts
            if (pages.isEmpty())
                continue;
            QVERIFY(folder.write(name, pages));
            const auto before = ImageSource::open(folder.path(name));
            QVERIFY(before->imageCount() > 1);
            QCOMPARE(pagesLostToUserComment(folder.path(name)), before->imageCount() - 1);
            const QImage first = before->decode()->toRawImage();
            QVERIFY(writeUserComment(folder.path(name), QStringLiteral("x")));
            const auto after = ImageSource::open(folder.path(name));
            QCOMPARE(after->imageCount(), 1);
            QCOMPARE(after->decode()->toRawImage(), first);
            QCOMPARE(after->metadata()->userComment(), QStringLiteral("x"));
            QVERIFY(folder.read(name).size() < pages.size()); // the other pages' pixels went with them
            QCOMPARE(pagesLostToUserComment(folder.path(name)), 0);
        }
    }
}

void TestUserCommentWriter::keepsTheRawPictureOfARawFile()
{
    const QByteArray pages = pictures::madeTiff({3, true});
    const ScratchFolder folder;
    for (const char *name : {"a.dng", "a.tif"}) {
        QVERIFY(folder.write(name, pages));
        QCOMPARE(pagesLostToUserComment(folder.path(name)), 0);
        QVERIFY(writeUserComment(folder.path(name), QStringLiteral("x")));
        const QByteArray written = folder.read(name);
        QCOMPARE(ImageSource::open(folder.path(name))->imageCount(), 3);
        QCOMPARE(platform::readUserComment(folder.path(name)).value(), QStringLiteral("x"));
        // Beyond the header, which says where the first directory is, what was there is there still.
        constexpr int header = 8;
        QCOMPARE(written.mid(header, pages.size() - header), pages.mid(header));
    }
}

void TestUserCommentWriter::keepsModeAndAttributes()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a.jpg", encoded("jpg")));
    const QByteArray path = QFile::encodeName(folder.path("a.jpg"));
    QVERIFY(folder.allow("a.jpg", 0640));
    const bool isRoot = ::geteuid() == 0;
    if (isRoot)
        QCOMPARE(::chown(path.constData(), 1234, 4321), 0);
    const bool hasAttributes = ::setxattr(path.constData(), "user.xdg.tags", "red,blue", 8, 0) == 0;
    QVERIFY(writeUserComment(folder.path("a.jpg"), QStringLiteral("x")));
    struct stat after = {};
    QCOMPARE(::stat(path.constData(), &after), 0);
    QCOMPARE(after.st_mode & 07777, mode_t(0640));
    if (isRoot)
        QCOMPARE(qMakePair(after.st_uid, after.st_gid), qMakePair(uid_t(1234), gid_t(4321)));
    if (!hasAttributes)
        QSKIP("no extended attributes here");
    QByteArray tags(16, '\0');
    QCOMPARE(::getxattr(path.constData(), "user.xdg.tags", tags.data(), size_t(tags.size())), ssize_t(8));
    QCOMPARE(tags.left(8), QByteArray("red,blue"));
}

void TestUserCommentWriter::replacesALinkAndNotWhatItLeadsTo()
{
    const ScratchFolder folder;
    const QByteArray jpeg = encoded("jpg");
    QVERIFY(folder.write("archive/a.jpg", jpeg));
    QVERIFY(folder.allow("archive/a.jpg", 0600));
    QVERIFY(folder.link("archive/a.jpg", "link.jpg"));
    QVERIFY(writeUserComment(folder.path("link.jpg"), QStringLiteral("x")));
    QCOMPARE(folder.read("archive/a.jpg"), jpeg);
    QVERIFY(!QFileInfo(folder.path("link.jpg")).isSymLink());
    QCOMPARE(commentOf(folder.path("link.jpg")), QStringLiteral("x"));
    QCOMPARE(QFile::permissions(folder.path("link.jpg")) & QFile::ReadOther, QFile::Permissions());
}

void TestUserCommentWriter::refusesACommentThatDoesNotFit()
{
    const ScratchFolder folder;
    for (const auto &[picture, fits] :
         {std::pair(encoded("jpg"), false), {encoded("png"), true}, {encoded("tiff"), true}}) {
        QVERIFY(folder.write("a", picture));
        const auto written = writeUserComment(folder.path("a"), QString(70'000, QChar(u'x')));
        QCOMPARE(int(codeOf(written)), int(fits ? ErrorCode(-1) : ErrorCode::TooLarge));
        QCOMPARE(folder.read("a") == picture, !fits);
    }
}

void TestUserCommentWriter::refusesAWriteProtectedFile()
{
    const ScratchFolder folder;
    const QByteArray jpeg = encoded("jpg");
    QVERIFY(folder.write("a.jpg", jpeg));
    QVERIFY(folder.allow("a.jpg", 0444) && folder.allow("", 0777));
    const Nobody nobody;
    if (!nobody.ready())
        QSKIP("cannot become somebody else");
    if (::geteuid() == 0)
        QSKIP("nothing is forbidden to this user");
    QVERIFY(!writeUserComment(folder.path("a.jpg"), QStringLiteral("x")));
    QCOMPARE(folder.read("a.jpg"), jpeg);
    QCOMPARE(folder.names(), QStringList{QStringLiteral("a.jpg")});
}

void TestUserCommentWriter::refusesAFolderThatCannotBeWritten()
{
    const ScratchFolder folder;
    const QByteArray jpeg = encoded("jpg");
    QVERIFY(folder.write("in/a.jpg", jpeg));
    QVERIFY(folder.allow("in/a.jpg", 0666) && folder.allow("in", 0555) && folder.allow("", 0755));
    {
        const Nobody nobody;
        if (!nobody.ready())
            QSKIP("cannot become somebody else");
        QCOMPARE(int(codeOf(writeUserComment(folder.path("in/a.jpg"), QStringLiteral("x")))),
                 int(ErrorCode::WriteFailed));
    }
    QCOMPARE(folder.read("in/a.jpg"), jpeg);
    QCOMPARE(folder.names("in"), QStringList{QStringLiteral("a.jpg")});
    QVERIFY(folder.allow("in", 0755));
}

void TestUserCommentWriter::leavesTheFileWhenTheDiskIsFull()
{
    const ScratchFolder folder;
    const QByteArray jpeg = encoded("jpg", 300, 300);
    QVERIFY(folder.write("a.jpg", jpeg));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    for (const rlim_t size : {rlim_t(0), rlim_t(1), rlim_t(100), rlim_t(jpeg.size())}) {
        rlimit small = before;
        small.rlim_cur = size;
        ::setrlimit(RLIMIT_FSIZE, &small);
        const auto written = writeUserComment(folder.path("a.jpg"), QStringLiteral("x"));
        ::setrlimit(RLIMIT_FSIZE, &before);
        QCOMPARE(int(codeOf(written)), int(ErrorCode::WriteFailed));
        QCOMPARE(folder.read("a.jpg"), jpeg);
        QCOMPARE(folder.names(), QStringList{QStringLiteral("a.jpg")});
    }
}

void TestUserCommentWriter::failsForWhatIsNotThere()
{
    const ScratchFolder folder;
    QCOMPARE(int(codeOf(writeUserComment(folder.path("none.jpg"), QStringLiteral("x")))), int(ErrorCode::NotFound));
    QCOMPARE(int(codeOf(writeUserComment(folder.path(), QStringLiteral("x")))), int(ErrorCode::NotFound));
    QCOMPARE(int(codeOf(writeUserComment(QString(), QStringLiteral("x")))), int(ErrorCode::NotFound));
    QCOMPARE(int(codeOf(writeUserComment(folder.path("none.jpg"), QString(QChar::Null)))),
             int(ErrorCode::InvalidValue));
    QCOMPARE(folder.names(), QStringList());
}

void TestUserCommentWriter::tellsAnUnreadableCommentFromNone()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a.jpg", encoded("jpg")));
    QCOMPARE(platform::readUserComment(folder.path("a.jpg")).value(), QString());
    QCOMPARE(int(platform::readUserComment(folder.path("none.jpg")).error().code), int(ErrorCode::NotFound));
    QVERIFY(folder.allow("a.jpg", 0000) && folder.allow("", 0755));
    const Nobody nobody;
    if (!nobody.ready())
        QSKIP("cannot become somebody else");
    if (::geteuid() != 0)
        QVERIFY(!platform::readUserComment(folder.path("a.jpg")));
}

QUORLIN_TEST(TestUserCommentWriter)
#include "tst_user_comment_writer.moc"
