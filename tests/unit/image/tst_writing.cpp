#include "image/ZtImageHandling.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::BitmapHandle;
using platform::Picture;

class Writing : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString at(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static BitmapHandle sample() { return BitmapHandle(Bitmap::fromImage(pictures::gradient(64, 48))); }

private Q_SLOTS:
    void init()
    {
        m_folder = QTemporaryDir();
        QVERIFY(m_folder.isValid());
    }

    void writesEachType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<bool>("isExact");
        const auto row = [](const char *type, const char *extension, bool isExact) {
            QTest::newRow(type) << QString::fromLatin1(type) << QString::fromLatin1(extension) << isExact;
        };
        row("public.png", "png", true);
        row("public.tiff", "tiff", true);
        row("public.bmp", "bmp", true);
        row("com.compuserve.gif", "gif", false);
        row("public.jpeg", "jpg", false);
        row("public.jp2", "jp2", false);
    }

    void writesEachType()
    {
        QFETCH(QString, type);
        QFETCH(QString, extension);
        QFETCH(bool, isExact);
        ZtImageHandling service;
        QCOMPARE(service.hSaveToNewImageFileMPR(at("picture"), type, sample(), {}, QStringLiteral("9"), {}),
                 QStringLiteral("OK"));
        QCOMPARE(files(), QStringList{QStringLiteral("picture.") + extension});
        const Picture written = Picture::fromFile(at("picture.") + extension);
        QCOMPARE(written.bitmap().size(), QSize(64, 48));
        const std::array<int, 4> wanted = {20, 30, 50, 255};
        const std::array<int, 4> pixel = written.bitmap().pixel(20, 30);
        for (size_t part = 0; part < wanted.size(); ++part)
            QVERIFY2(std::abs(pixel[part] - wanted[part]) <= (isExact ? 0 : 24),
                     qPrintable(QString::number(pixel[part])));
        const platform::Result<platform::ImageSource> source = platform::ImageSource::open(at("picture.") + extension);
        QVERIFY(source.has_value());
        QCOMPARE(source->typeIdentifier(), type);
    }

    void writesToTheWholePathItIsGiven()
    {
        ZtImageHandling service;
        QCOMPARE(service.hSaveToNewImageFile(at("odd.name"), QStringLiteral("public.png"), sample(), {}),
                 QStringLiteral("OK"));
        QCOMPARE(files(), QStringList{QStringLiteral("odd.name")});
    }

    void answersWithoutWriting_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("answer");
        QTest::newRow("Photoshop") << QStringLiteral("com.adobe.photoshop-image") << QStringLiteral("Not Supported");
        QTest::newRow("PDF") << QStringLiteral("com.adobe.pdf") << QStringLiteral("Not Supported");
        QTest::newRow("unknown") << QStringLiteral("public.heic") << QStringLiteral("Failed");
        QTest::newRow("other letters") << QStringLiteral("Public.png") << QStringLiteral("Failed");
        QTest::newRow("none") << QString() << QStringLiteral("Failed");
    }

    void answersWithoutWriting()
    {
        QFETCH(QString, type);
        QFETCH(QString, answer);
        ZtImageHandling service;
        LogCapture log;
        QCOMPARE(service.hSaveToNewImageFile(at("a"), type, sample(), {}), answer);
        QCOMPARE(service.hSaveToNewImageFileMPR(at("a"), type, sample(), {}, {}, {}), answer);
        QCOMPARE(log.text(), QByteArray());
        QCOMPARE(files(), QStringList());
    }

    void logsALocationThatCannotBeWritten()
    {
        ZtImageHandling service;
        LogCapture log;
        const QString path = at("no such folder/a b");
        QCOMPARE(service.hSaveToNewImageFileMPR(path, QStringLiteral("public.png"), sample(), {}, {}, {}),
                 QStringLiteral("Failed"));
        const QByteArray location = QUrl::fromLocalFile(path + QStringLiteral(".png")).toEncoded();
        QCOMPARE(log.text(), "Failed to write image to " + location + '\n');
        QVERIFY(location.contains("a%20b"));
    }

    void failsWithoutABitmap()
    {
        ZtImageHandling service;
        LogCapture log;
        QCOMPARE(service.hSaveToNewImageFile(at("a.png"), QStringLiteral("public.png"), BitmapHandle(), {}),
                 QStringLiteral("Failed"));
        QVERIFY(log.text().startsWith("Failed to write image to file:///"));
        QCOMPARE(files(), QStringList());
    }

    void replacesAFileThatIsThere()
    {
        ZtImageHandling service;
        QFile old(at("a.png"));
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        QCOMPARE(service.hSaveToNewImageFile(at("a.png"), QStringLiteral("public.png"), sample(), {}),
                 QStringLiteral("OK"));
        QVERIFY(!Picture::fromFile(at("a.png")).isNull());
        QCOMPARE(files().size(), 1);
    }

    void replacesALinkInsteadOfWritingThroughIt()
    {
        ZtImageHandling service;
        QFile original(at("original.png"));
        QVERIFY(original.open(QIODevice::WriteOnly) && original.write("precious") == 8);
        original.close();
        QVERIFY(QFile::link(at("original.png"), at("link.png")));
        QCOMPARE(service.hSaveToNewImageFile(at("link.png"), QStringLiteral("public.png"), sample(), {}),
                 QStringLiteral("OK"));
        QCOMPARE(pictures::bytesOf(at("original.png")), QByteArray("precious"));
        QVERIFY(!QFileInfo(at("link.png")).isSymLink());
    }

    void keepsTheQualityOfTheLastJpeg()
    {
        ZtImageHandling service;
        QVERIFY(!service.property("properties").isValid());
        service.hSaveToNewImageFileMPR(at("a"), QStringLiteral("public.jpeg"), sample(), {}, QStringLiteral("5"), {});
        const QString key = QStringLiteral("kCGImageDestinationLossyCompressionQuality");
        const QVariantMap half = {{key, 0.5}};
        QCOMPARE(service.property("properties").toMap(), half);
        service.hSaveToNewImageFileMPR(at("a"), QStringLiteral("public.png"), sample(), {}, QStringLiteral("7"), {});
        QCOMPARE(service.property("properties").toMap(), half);
        service.hSaveToNewImageFileMPR(at("a"), QStringLiteral("public.jpeg"), sample(), {}, QStringLiteral("10"), {});
        QCOMPARE(service.property("properties").toMap().value(key).toDouble(), 1.0);
    }

    void writesSmallerFilesAtLowerQuality()
    {
        ZtImageHandling service;
        const BitmapHandle picture(Bitmap::fromImage(pictures::gradient(400, 300)));
        qint64 last = 0;
        for (int code = 1; code <= 10; ++code) {
            const QString base = at("q") + QString::number(code);
            service.hSaveToNewImageFileMPR(base, QStringLiteral("public.jpeg"), picture, {}, QString::number(code), {});
            const qint64 size = QFileInfo(base + QStringLiteral(".jpg")).size();
            QVERIFY2(size > last, qPrintable(QString::number(code)));
            last = size;
        }
    }

    void laysTransparencyOnBlackWhereTheTypeHasNone()
    {
        ZtImageHandling service;
        const BitmapHandle clear(Bitmap::fromImage(pictures::plain(16, 16, QColor(255, 0, 0, 128))));
        for (const char *type : {"public.bmp", "public.jpeg"}) {
            service.hSaveToNewImageFileMPR(at("a"), QString::fromLatin1(type), clear, {}, {}, {});
            const QString name = QString::fromLatin1(type).endsWith(u'g') ? at("a.jpg") : at("a.bmp");
            const std::array<int, 4> pixel = Picture::fromFile(name).bitmap().pixel(8, 8);
            QVERIFY2(std::abs(pixel[0] - 128) <= 2 && pixel[1] <= 2 && pixel[3] == 255, type);
        }
        service.hSaveToNewImageFileMPR(at("a"), QStringLiteral("public.png"), clear, {}, {}, {});
        QCOMPARE(Picture::fromFile(at("a.png")).bitmap().pixel(8, 8), (std::array<int, 4>{255, 0, 0, 128}));
    }
};

QUORLIN_TEST(Writing)
#include "tst_writing.moc"
