#include "platform/foundation/paths.h"
#include "tests/support/test_program.h"

#include <QTest>

class Paths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splits_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("base");
        const auto row = [](const char *path, const char *last, const char *extension, const char *base) {
            QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(last) << QString::fromUtf8(extension)
                                << QString::fromUtf8(base);
        };
        row("/a/b.jpg", "b.jpg", "jpg", "b");
        row("/a/b.old.JPG", "b.old.JPG", "JPG", "b.old");
        row("/a/b", "b", "", "b");
        row("/a.b/c", "c", "", "c");
        row("/a/.profile", ".profile", "", ".profile");
        row("/a/b.", "b.", "", "b");
        row("/a/b/", "b", "", "b");
        row("b.png", "b.png", "png", "b");
        row("/", "/", "", "/");
        row("", "", "", "");
        row("/a/Crémieux 11.tiff", "Crémieux 11.tiff", "tiff", "Crémieux 11");
    }

    void splits()
    {
        QFETCH(QString, path);
        QTEST(platform::lastPathComponent(path), "last");
        QTEST(platform::pathExtension(path), "extension");
        QTEST(platform::baseName(path), "base");
    }

    void keepsTheBytesOfNames_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
            QTest::newRow(name) << bytes << text;
        };
        const auto byte = [](int value) { return QChar(char16_t(0xdc00 + value)); };
        row("plain", "/a/b.jpg", QStringLiteral("/a/b.jpg"));
        row("nothing", "", QString());
        row("UTF-8", "/caf\xc3\xa9/\xf0\x9f\x98\x80", QString::fromUtf8("/caf\xc3\xa9/\xf0\x9f\x98\x80"));
        row("Latin 1", "/caf\xe9.jpg", QStringLiteral("/caf") + byte(0xe9) + QStringLiteral(".jpg"));
        row("both", "\xc3\xa9\xe9\xc3\xa9", QString::fromUtf8("\xc3\xa9") + byte(0xe9) + QString::fromUtf8("\xc3\xa9"));
        row("cut short", "a\xf0\x9f\x98", QStringLiteral("a") + byte(0xf0) + byte(0x9f) + byte(0x98));
        row("overlong", "\xc0\xaf", QString(byte(0xc0)) + byte(0xaf));
        row("overlong in three", "\xe0\x9f\xbf", QString(byte(0xe0)) + byte(0x9f) + byte(0xbf));
        row("a surrogate in UTF-8", "\xed\xb2\x80", QString(byte(0xed)) + byte(0xb2) + byte(0x80));
        row("too high", "\xf4\x90\x80\x80", QString(byte(0xf4)) + byte(0x90) + byte(0x80) + byte(0x80));
        row("byte-order mark", "\xef\xbb\xbfx", QString(QChar(char16_t(0xfeff))) + u'x');
    }

    void keepsTheBytesOfNames()
    {
        QFETCH(QByteArray, bytes);
        QTEST(platform::decodedPath(bytes), "text");
        QCOMPARE(platform::encodedPath(platform::decodedPath(bytes)), bytes);
        QCOMPARE(platform::canBeAPath(platform::decodedPath(bytes)), !bytes.isEmpty());
    }

    void keepsAllBytes()
    {
        for (int first = 1; first < 256; ++first)
            for (int second = 1; second < 256; ++second) {
                const QByteArray bytes = QByteArray(1, char(first)) + char(second) + 'a';
                QCOMPARE(platform::encodedPath(platform::decodedPath(bytes)), bytes);
            }
    }

    void refusesWhatIsNoPath()
    {
        QVERIFY(!platform::canBeAPath(QString()));
        QVERIFY(!platform::canBeAPath(QStringLiteral("a") + QChar(u'\0')));
        QVERIFY(!platform::canBeAPath(QStringLiteral("a") + QChar(char16_t(0xd800))));
        QVERIFY(!platform::canBeAPath(QStringLiteral("a") + QChar(char16_t(0xdc7f))));
        QVERIFY(platform::canBeAPath(QStringLiteral("a") + QChar(char16_t(0xdcff))));
    }
};

QUORLIN_TEST(Paths)
#include "tst_paths.moc"
