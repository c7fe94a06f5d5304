// Pictures that need more memory than is left are refused before anything is decoded.

#include "platform/foundation/log.h"
#include "platform/foundation/memory_left.h"
#include "platform/imageio/convert/jpeg_straight.h"
#include "platform/imageio/convert/pdf_page.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using platform::ErrorCode;
using platform::FileFormat;
using platform::ImageSource;

namespace {

constexpr qint64 mega = 1'000'000;

void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

qint64 addressSpace()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(0).toLongLong() * ::sysconf(_SC_PAGESIZE)
                                          : 0;
}

/** From now on this process can get no more than @p bytes. */
bool limitTo(qint64 bytes)
{
    const auto most = rlim_t(addressSpace() + bytes);
    const rlimit limit = {most, most};
    return ::setrlimit(RLIMIT_AS, &limit) == 0;
}

enum class Libraries { Loaded, ToLoad };

/** Those of pictures are loaded by the first picture that needs them. */
void loadLibraries()
{
    (void)platform::Bitmap::fromImage(QImage(1, 1, QImage::Format_RGB888));
}

/**
 * What @p task returns, 0 to 100, in a process that can get @p bytes more of address space; -1 where a signal ended it. Without memory
 * a library may wait for its own threads for ever.
 */
template<typename Task> int resultWithin(qint64 bytes, Task task, Libraries libraries = Libraries::Loaded)
{
    const pid_t child = ::fork();
    constexpr unsigned mostSeconds = 20;
    if (child == 0) {
        if (libraries == Libraries::Loaded)
            loadLibraries();
        ::alarm(mostSeconds);
        ::_exit(limitTo(bytes) ? task() : 100);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/** 0 where all goes well, otherwise 1 and the kind of error. */
template<typename Value> int kindOf(const platform::Result<Value> &result)
{
    return result ? 0 : 1 + int(result.error().code);
}

constexpr int tooLarge = 1 + int(ErrorCode::TooLarge);

} // namespace

class MemoryNeedTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }

private Q_SLOTS:
    void initTestCase()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizer takes address space by the terabyte, and ends the process where it gets none");
#endif
        QVERIFY(m_folder.isValid());
        QImage large(6000, 4000, QImage::Format_RGB888); // 72 MB of pixels
        large.fill(QColor(20, 120, 220));
        QVERIFY(large.save(path("large.png"), "PNG"));
        QVERIFY(large.save(path("large.jpg"), "JPG"));
        QImage small(60, 40, QImage::Format_RGB888);
        small.fill(Qt::red);
        QVERIFY(small.save(path("small.png"), "PNG"));
    }

    void whatIsLeftIsTheLeastOfAll_data()
    {
        QTest::addColumn<QString>("groups");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QList<QByteArray>>("files"); // limit, use, statistics
        QTest::addColumn<qint64>("left");

        const QString unified = QStringLiteral("0::/a/b\n");
        const QString divided = QStringLiteral("5:cpu:/x\n4:memory,other:/a/b\n0::/\n");
        const QList<QByteArray> some = {"800000000\n", "500000000\n",
                                        "anon 1\ninactive_file 100000000\ntotal_inactive_file 200000000\n"};
        QTest::newRow("the machine") << unified << QString() << QList<QByteArray>() << 2'048'000'000LL;
        QTest::newRow("a group") << unified << QStringLiteral("/a/b") << some << 400 * mega;
        QTest::newRow("a group around it") << unified << QStringLiteral("/a") << some << 400 * mega;
        QTest::newRow("the topmost") << unified << QString(QLatin1String("")) << some << 400 * mega;
        QTest::newRow("another's group") << unified << QStringLiteral("/c") << some << 2'048'000'000LL;
        QTest::newRow("a divided group") << divided << QStringLiteral("/memory/a/b") << some << 500 * mega;
        QTest::newRow("a group without a limit")
            << unified << QStringLiteral("/a/b") << QList<QByteArray>({"max\n", "5\n", ""}) << 2'048'000'000LL;
        QTest::newRow("a group that is full")
            << unified << QStringLiteral("/a/b") << QList<QByteArray>({"5\n", "6\n", ""}) << 0LL;
    }
    void whatIsLeftIsTheLeastOfAll()
    {
        QFETCH(QString, groups);
        QFETCH(QString, folder);
        QFETCH(QList<QByteArray>, files);
        QFETCH(qint64, left);
        QTemporaryDir system;
        const QString root = system.path() + u'/';
        write(root + QStringLiteral("proc/meminfo"), "MemTotal: 9000000 kB\nMemAvailable:    2000000 kB\n");
        write(root + QStringLiteral("proc/self/cgroup"), groups.toUtf8());
        const bool isDivided = folder.startsWith(QLatin1String("/memory"));
        const QString place = root + QStringLiteral("sys/fs/cgroup") + folder + u'/';
        const char *const limit = isDivided ? "memory.limit_in_bytes" : "memory.max";
        const char *const used = isDivided ? "memory.usage_in_bytes" : "memory.current";
        for (const auto &[name, index] : {std::pair(limit, 0), std::pair(used, 1), std::pair("memory.stat", 2)})
            if (!files.isEmpty())
                write(place + QString::fromLatin1(name), files[index]);
        QCOMPARE(platform::memoryLeft(root), left);
    }

    void theLimitOfAddressesCounts()
    {
        const int result = resultWithin(300 * mega, [] {
            const qint64 left = platform::memoryLeft();
            return left > 250 * mega && left <= 300 * mega ? 0 : 1;
        });
        QCOMPARE(result, 0);
    }

    void theSameIsToldOnceForManyAttempts()
    {
        const int lines = resultWithin(100 * mega, [] {
            int count = 0;
            platform::setLogSink([&count](const QString &) { ++count; });
            for (const char *name : {"a", "a", "a", "b"})
                if (platform::memoryIsLeftFor(200 * mega, QString::fromLatin1(name)))
                    return 90;
            return count;
        });
        QCOMPARE(lines, 2);
    }

    void whatIsTooMuchIsToldInASentence()
    {
        QCOMPARE(platform::memorySentence(QStringLiteral("/a/b.png"), 3'600'000'000, 1'200'000'000),
                 QStringLiteral("/a/b.png needs about 3.6 GB of memory, 1.2 GB is free"));
    }

    void whatWasRefusedIsAskedForOnce()
    {
        const int result = resultWithin(100 * mega, [] {
            platform::setLogSink([](const QString &) {});
            if (!platform::takeMemoryRefusal().isEmpty())
                return 1;
            if (platform::memoryIsLeftFor(200 * mega, QStringLiteral("/a/b.png")))
                return 2;
            const QString words = platform::takeMemoryRefusal();
            if (!words.startsWith(QLatin1String("needs about 267")) || !words.endsWith(QLatin1String(" is free")))
                return 3;
            return platform::takeMemoryRefusal().isEmpty() ? 0 : 4;
        });
        QCOMPARE(result, 0);
    }

    void aPictureThatCannotFitIsRefusedBeforeItIsDecoded()
    {
        const auto isRefused = [this](const auto &attempt) {
            return resultWithin(130 * mega, [&] {
                QStringList lines;
                platform::setLogSink([&lines](const QString &line) { lines << line; });
                const auto source = ImageSource::open(path("large.png"));
                const qint64 before = addressSpace();
                const int kind = source ? attempt(*source) : 90;
                const bool isTold = lines.size() == 1 && lines[0].contains(QLatin1String("large.png needs about "));
                const bool isUntouched = addressSpace() - before < 30 * mega;
                return kind != tooLarge ? kind : !isTold ? 91 : !isUntouched ? 92 : 0;
            });
        };
        QCOMPARE(isRefused([](const ImageSource &source) { return kindOf(source.decode()); }), 0);
        QCOMPARE(isRefused([](const ImageSource &source) { return kindOf(source.decodeScaled({5000, 3000})); }), 0);
        QCOMPARE(isRefused([](const ImageSource &source) { return kindOf(pdfPageOf(source)); }), 0);
        QCOMPARE(isRefused([](const ImageSource &source) { return kindOf(source.decodePart({0, 0, 5900, 4000})); }), 0);
    }

    void aDrawingNeedsMoreForItsLayers()
    {
        const auto resultOf = [this](int layers) {
            const QByteArray open = QByteArray("<g opacity='.9'>").repeated(layers);
            const QByteArray close = QByteArray("</g>").repeated(layers);
            write(path("drawing.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='3000' height='3000'>" + open +
                                           "<rect width='3000' height='3000'/>" + close + "</svg>");
            return resultWithin(300 * mega, [&] {
                const auto source = ImageSource::open(path("drawing.svg"));
                return source ? kindOf(source->decode()) : 90;
            });
        };
        QCOMPARE(resultOf(0), 0);
        QCOMPARE(resultOf(10), tooLarge);
    }

    void whatFitsIsDone()
    {
        const auto done = [this](const char *name, const auto &attempt) {
            return resultWithin(130 * mega, [&] {
                const auto source = ImageSource::open(path(name));
                return source ? attempt(*source) : 90;
            });
        };
        QCOMPARE(done("small.png", [](const ImageSource &source) { return kindOf(source.decode()); }), 0);
        const auto small = [](const ImageSource &source) { return kindOf(source.decodeScaled({300, 200})); };
        QCOMPARE(done("large.png", small), 0);
        QCOMPARE(done("large.jpg", small), 0);
        const auto part = [](const ImageSource &source) { return kindOf(source.decodePart({0, 0, 6000, 300})); };
        QCOMPARE(done("large.png", part), 0);
        const auto rows = [this](const ImageSource &source) {
            const auto written = writeRowsAsBmp(source, path("rows.bmp"));
            return written ? *written ? 0 : 95 : kindOf(written);
        };
        QCOMPARE(done("large.jpg", rows), 0);
    }

    void librariesThatDoNotFitRefuseThePicture()
    {
#ifndef QUORLIN_ON_DEMAND
        QSKIP("this build links its libraries");
#endif
        const auto sizeOf = [this](const char *name, qint64 bytes) {
            return resultWithin(
                bytes,
                [&] {
                    const auto source = ImageSource::open(path(name));
                    return source && source->uprightSize().isValid() ? 0 : kindOf(source);
                },
                Libraries::ToLoad);
        };
        QCOMPARE(sizeOf("large.jpg", 60 * mega), 0); // needs none
        QCOMPARE(sizeOf("small.png", 60 * mega), 1 + int(ErrorCode::Unreadable));
        QCOMPARE(sizeOf("small.png", 600 * mega), 0);
    }

    void theWritingCountsBeforeTheDecoding()
    {
        const auto resultOf = [this](std::optional<FileFormat> written) {
            return resultWithin(250 * mega, [&] {
                const auto source = ImageSource::open(path("large.jpg"));
                return source ? kindOf(source->decode({.written = written})) : 90;
            });
        };
        QCOMPARE(resultOf(std::nullopt), 0);
        QCOMPARE(resultOf(FileFormat::Gif), tooLarge);
    }

    void aBitmapThatCannotBeEncodedIsRefused()
    {
        const auto resultOf = [this](FileFormat format) {
            return resultWithin(2'000 * mega, [&] {
                const auto bitmap = ImageSource::open(path("large.png"))->decode();
                return bitmap && limitTo(250 * mega) ? kindOf(platform::encodeImage(*bitmap, format)) : 100;
            });
        };
        QCOMPARE(resultOf(FileFormat::Gif), tooLarge);
        QCOMPARE(resultOf(FileFormat::Bmp), 0);
    }
};

QUORLIN_TEST(MemoryNeedTest)
#include "tst_memory_need.moc"
