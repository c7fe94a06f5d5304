#include "platform/imageio/source/plain_jpeg.h"

#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using platform::PlainJpeg;

namespace {

/** What the library says that opens all that is not plain; nothing where it cannot open the file. */
std::optional<PlainJpeg> asLibraryHasIt(const QString &path)
{
    QProcess program;
    program.start(QStringLiteral("vipsheader"), {QStringLiteral("-a"), path});
    if (!program.waitForFinished() || program.exitCode() != 0)
        return std::nullopt;
    PlainJpeg found;
    for (const QByteArray &line : program.readAllStandardOutput().split('\n')) {
        const int number = line.mid(line.indexOf(':') + 1).trimmed().toInt();
        if (line.startsWith("width:"))
            found.size.setWidth(number);
        else if (line.startsWith("height:"))
            found.size.setHeight(number);
        else if (line.startsWith("bands:"))
            found.components = number;
        else if (line.startsWith("orientation:"))
            found.orientation = number >= 1 && number <= 8 ? number : 1;
    }
    return found;
}

std::optional<PlainJpeg> plainOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? platform::plainJpeg(file) : std::nullopt;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** JPEGs that are opened without the library that opens everything else. */
class PlainJpegs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("vipsheader")).isEmpty())
            QSKIP("vipsheader is not installed");
    }

    void areWhatTheLibraryMakesOfThem()
    {
        int plain = 0;
        for (const expected::Row &row : expected::rows()) {
            if (row.format != QLatin1String("JPEG") || !row.isDecodable)
                continue;
            const auto found = plainOf(row.path);
            if (!found)
                continue;
            ++plain;
            const auto other = asLibraryHasIt(row.path);
            QVERIFY2(other, qPrintable(row.name));
            QCOMPARE(found->size, other->size);
            QCOMPARE(found->components, other->components);
            QVERIFY2(found->orientation == other->orientation, qPrintable(row.name));
            QCOMPARE(found->size, row.stored);
        }
        QVERIFY(plain >= 8); // else nothing was compared
    }

    void damagedHeadersAreNotUnderstoodDifferently()
    {
        const QString path = picturePath("own/orientation/landscape_6.jpg");
        const QByteArray sound = contentOf(path);
        QVERIFY(!sound.isEmpty());
        const QTemporaryDir folder;
        QRandomGenerator random(2300);
        int plain = 0;
        for (int i = 0; i < tests::repetitions(40, 1000); ++i) {
            QByteArray damaged = sound;
            for (int count = random.bounded(1, 4); count > 0; --count)
                damaged[random.bounded(2, 400)] = char(random.bounded(256));
            QFile file(folder.filePath(QStringLiteral("%1.jpg").arg(i)));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
            file.close();
            const auto found = plainOf(file.fileName());
            if (!found)
                continue;
            ++plain;
            const auto other = asLibraryHasIt(file.fileName());
            QVERIFY2(other, qPrintable(QString::number(i)));
            QCOMPARE(found->size, other->size);
            QCOMPARE(found->components, other->components);
            QVERIFY2(found->orientation == other->orientation, qPrintable(QString::number(i)));
        }
        QVERIFY(plain > 0);
    }
};

QUORLIN_TEST(PlainJpegs)
#include "tst_plain_jpeg.moc"
