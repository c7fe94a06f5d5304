#include "platform/imageio/source/plain_jpeg.h"

#include "platform/imageio/source/image_source.h"

#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"
#include "tests/unit/platform/imageio/jpeg/jpeg_difference.h"

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

    /** Grey and colours, with and without a profile, whole ones and one of which a part is missing. */
    void haveTheProfileThatTheLibraryFinds()
    {
        int profiles = 0;
        for (const expected::Row &row : expected::rows()) {
            if (row.format != QLatin1String("JPEG") || !row.isDecodable)
                continue;
            const auto source = platform::ImageSource::open(row.path);
            if (!source || !plainOf(row.path))
                continue;
            const auto facts = source->pixelFacts();
            QVERIFY2(facts, qPrintable(row.name));
            QVERIFY2(facts->iccProfile == source->iccProfile(), qPrintable(row.name));
            QCOMPARE(facts->model, source->decode().value().colorModel());
            QVERIFY(!facts->hasAlpha && facts->bits == 8 && !facts->areUnknown);
            profiles += facts->iccProfile.isEmpty() ? 0 : 1;
        }
        QVERIFY(profiles > 0 || !corpusIsThere());

        QImage wide(64, 48, QImage::Format_RGB888);
        wide.fill(Qt::red);
        const QByteArray jpeg = tests::profiledJpegOf(wide, QColorSpace::AdobeRgb);
        const qsizetype number = jpeg.indexOf("ICC_PROFILE") + 12;
        QVERIFY(number > 12);
        const auto isTheSame = [](const QByteArray &bytes) {
            const auto source = platform::ImageSource::fromData(bytes);
            return source && source->pixelFacts() && source->pixelFacts()->iccProfile == source->iccProfile();
        };
        QVERIFY(isTheSame(jpeg));
        QVERIFY(!platform::ImageSource::fromData(jpeg)->pixelFacts()->iccProfile.isEmpty());
        for (const int place : {0, 1}) { // the number of the part, and of all parts
            for (const int value : {0, 2, 255}) {
                QByteArray broken = jpeg;
                broken[number + place] = char(value);
                QVERIFY2(isTheSame(broken), qPrintable(QStringLiteral("%1 %2").arg(place).arg(value)));
            }
        }
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
