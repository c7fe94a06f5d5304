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
};

QUORLIN_TEST(Paths)
#include "tst_paths.moc"
