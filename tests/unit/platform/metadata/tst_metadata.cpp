#include "platform/file/atomic_file.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/metadata/metadata.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_program.h"

#include "tests/support/corpus.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using platform::Metadata;

namespace {

QString pictureNamed(const QString &name)
{
    return picturePath(name);
}

QByteArray contentOf(const QString &path)
{
    return platform::readFile(path).value_or(QByteArray());
}

/** One row of the table of what independent readers say about the pictures, by column name. */
using Row = QHash<QString, QString>;

QString unescaped(const QString &field)
{
    QString text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field.at(i) != u'\\' || i + 1 == field.size()) {
            text += field.at(i);
            continue;
        }
        const QChar code = field.at(++i);
        text += code == u't' ? u'\t' : code == u'n' ? u'\n' : code == u'r' ? u'\r' : code == u'0' ? QChar(0) : code;
    }
    return text;
}

QList<Row> expectations()
{
    QList<Row> rows;
    for (const QString &folder : picturesThere({"own/", ""})) {
        const QString table = QString::fromUtf8(contentOf(pictureNamed(folder + QStringLiteral("EXPECT.tsv"))));
        const QStringList lines = table.split(u'\n');
        const QStringList names = lines.first().split(u'\t');
        for (const QString &line : lines.mid(1)) {
            const QStringList fields = line.split(u'\t');
            if (fields.size() != names.size())
                continue;
            Row row;
            for (qsizetype i = 0; i < names.size(); ++i)
                row.insert(names.at(i), unescaped(fields.at(i)));
            row[QStringLiteral("path")].prepend(folder);
            rows.append(row);
        }
    }
    return rows;
}

using Tags = QMap<QString, QString>; ///< "group:tag" and its plain value

/** What the independent reader finds in each file of @p paths, by path. One run of it costs as much as a hundred files. */
QHash<QString, Tags> independentlyRead(const QStringList &paths)
{
    QProcess reader;
    reader.start(QStringLiteral("exiftool"),
                 QStringList{QStringLiteral("-j"), QStringLiteral("-n"), QStringLiteral("-G1"), QStringLiteral("-q")} +
                     paths);
    reader.waitForFinished(120000);
    QHash<QString, Tags> files;
    for (const QJsonValue &file : QJsonDocument::fromJson(reader.readAllStandardOutput()).array()) {
        const QVariantMap values = file.toObject().toVariantMap();
        Tags &tags = files[values.value(QStringLiteral("SourceFile")).toString()];
        for (auto value = values.begin(); value != values.end(); ++value)
            tags.insert(value.key(), value->toStringList().join(u'|'));
    }
    return files;
}

bool haveIndependentReader()
{
    return !QStandardPaths::findExecutable(QStringLiteral("exiftool")).isEmpty();
}

/** A picture of slopes, so that no two of its lines are alike. */
QImage smallPicture(QImage::Format format)
{
    QImage image(64, 48, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 4, y * 5, 90));
    return image.convertToFormat(format);
}

QByteArray smallFile(platform::FileFormat format, QImage::Format pixels = QImage::Format_RGB888)
{
    return platform::encodeImage(platform::Bitmap::fromImage(smallPicture(pixels)), format).value_or(QByteArray());
}

QImage storedPixels(const QByteArray &file)
{
    const auto source = platform::ImageSource::fromData(file);
    return source ? source->decode({0, platform::Orientation::AsStored}).value_or(platform::Bitmap()).toRawImage()
                  : QImage();
}

/** As passed on by the decoder; from the bytes if it cannot open the picture. */
Metadata metadataOfPicture(const QString &path)
{
    const auto source = platform::ImageSource::open(pictureNamed(path));
    return source ? source->metadata().value() : Metadata::fromFileBytes(contentOf(pictureNamed(path)));
}

/** Everything from the first table on: what says how the pixels are coded, and the pixels. */
QByteArray pixelsOf(const QByteArray &jpeg)
{
    return jpeg.mid(jpeg.indexOf("\xff\xdb"));
}

/** Tags that describe how a file stores its pixels, or that are the old file's own. */
bool belongsToTheOldFile(const QString &tag)
{
    static const QRegularExpression structure(QStringLiteral(
        "^IFD0:(Image(Width|Height)|BitsPerSample|Compression|FillOrder|PageNumber|PhotometricInterpretation|Planar.*|"
        "Predictor|RowsPerStrip|SamplesPerPixel|Strip.*|Tile.*|SampleFormat|ExtraSamples|SubfileType|T[46]Options|"
        "JPEGTables|ColorMap|ReferenceBlackWhite|InkSet|OtherImageStart|PreviewImage.*|YCbCr.*|ProfileName|Profile.*|"
        "DNG.*|AsShot.*|Baseline.*|"
        "CalibrationIll.*|ColorMatrix.*|NoiseRed.*|UniqueCameraModel)$|^ExifIFD:ExifImage(Width|Height)$"));
    return structure.match(tag).hasMatch();
}

} // namespace

class TheMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsCommentAndOrientation_data();
    void readsCommentAndOrientation();
    void survivesInAJpeg_data();
    void survivesInAJpeg();
    void survivesInATiff_data();
    void survivesInATiff();
    void survivesInATiffOf16Bits_data();
    void survivesInATiffOf16Bits();

    void survivesInALargeTiffOfManyStrips();
    void leavesTheStructureOfATiffAlone();
    void setsTheSizeInPixelsAnew_data();
    void setsTheSizeInPixelsAnew();
    void leavesTheThumbnailBehind();
    void keepsTheCommentInTheFilesByteOrder_data();
    void keepsTheCommentInTheFilesByteOrder();
    void takesBlocksFromAnotherDecoder();
    void changesTheOrientationWhereOneIsStated();
    void refusesOtherFiles_data();
    void refusesOtherFiles();
    void carriesWhatASegmentCannotHoldInPart();
    void survivesBrokenFiles_data();
    void survivesBrokenFiles();
    void keepsTheOthersWhereOneBlockIsBroken_data();
    void keepsTheOthersWhereOneBlockIsBroken();

private:
    QStringList soundPictures() const;
    void addCarriedRows(const QByteArray &plain, const QString &extension);
    void checkCarried(const QByteArray &plain);
    QString lostTags(const QString &path, const Tags &after) const;

    QList<Row> m_rows;
    QHash<QString, Tags> m_tags; ///< what the independent reader says of the shared pictures
    QTemporaryDir m_folder;
};

void TheMetadata::initTestCase()
{
    m_rows = expectations();
    QVERIFY(m_rows.size() > 100);
    if (!haveIndependentReader())
        return;
    QStringList paths;
    for (const QString &path : soundPictures())
        paths << pictureNamed(path);
    m_tags = independentlyRead(paths);
}

QStringList TheMetadata::soundPictures() const
{
    QStringList paths;
    for (const Row &row : m_rows)
        if (const QString path = row.value(QStringLiteral("path"));
            !path.contains(QLatin1String("broken/")) && !path.endsWith(QLatin1String(".svg")))
            paths << path;
    return paths;
}

void TheMetadata::readsCommentAndOrientation_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("comment");
    QTest::addColumn<int>("orientation");
    for (const Row &row : std::as_const(m_rows)) {
        const QString path = row.value(QStringLiteral("path"));
        const QString comment = row.value(QStringLiteral("exif_user_comment"));
        const bool none = comment == u'-' || comment == QLatin1String("(blank)");
        const int orientation = row.value(QStringLiteral("orientation")).toInt();
        QTest::newRow(qPrintable(path)) << path << (none ? QString() : comment) << (orientation > 8 ? 0 : orientation);
    }
}

void TheMetadata::readsCommentAndOrientation()
{
    QFETCH(QString, path);
    QFETCH(QString, comment);
    QFETCH(int, orientation);
    const Metadata metadata = Metadata::fromFileBytes(contentOf(pictureNamed(path)));
    QCOMPARE(metadata.userComment(), comment);
    QCOMPARE(metadata.orientation(), orientation);
}

/** What happened to a picture's tags in another file, one line for each that has changed. */
QString TheMetadata::lostTags(const QString &path, const Tags &after) const
{
    static const QRegularExpression carried(
        QStringLiteral("^(IFD0|ExifIFD|GPS|InteropIFD|IPTC|XMP-.*|Canon|CanonCustom|Nikon|NikonPreview|Apple|Sony|"
                       "Pentax|Olympus|Panasonic|"
                       "FujiFilm|Samsung|Casio|Kodak|Ricoh|Reconyx|Sanyo|Sigma|Minolta|Leica|PrintIM):"));
    const Tags before = m_tags.value(pictureNamed(path));
    QStringList lost;
    for (auto tag = before.begin(); tag != before.end(); ++tag) {
        const bool wasObeyed = path.contains(QLatin1String("irot")) && tag.key() == QLatin1String("IFD0:Orientation");
        const bool ofAnotherImage = path.endsWith(QLatin1String(".dng")) && tag.key().startsWith(QLatin1String("XMP"));
        if (!wasObeyed && !ofAnotherImage && carried.match(tag.key()).hasMatch() && !belongsToTheOldFile(tag.key()) &&
            after.value(tag.key()) != tag.value())
            lost << tag.key() + u'=' + tag.value().left(60) + QStringLiteral(" -> ") + after.value(tag.key()).left(60);
    }
    return lost.join(u'\n');
}

/** Carries the metadata of every picture into @p plain and reads it back with the other reader. */
void TheMetadata::addCarriedRows(const QByteArray &plain, const QString &extension)
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<Tags>("after");
    QTest::addColumn<QByteArray>("written");
    QVERIFY(!plain.isEmpty());
    QHash<QString, QString> targets;
    QHash<QString, QByteArray> files;
    for (const QString &path : soundPictures()) {
        const auto written = metadataOfPicture(path).writtenInto(plain);
        QVERIFY2(written, qPrintable(path));
        files.insert(path, *written);
        targets.insert(path, m_folder.filePath(QString(path).replace(u'/', u'_') + extension));
        QVERIFY(platform::replaceFile(targets.value(path), *written));
    }
    const auto after = independentlyRead(targets.values());
    for (const QString &path : soundPictures())
        QTest::newRow(qPrintable(path)) << path << after.value(targets.value(path)) << files.value(path);
}

void TheMetadata::checkCarried(const QByteArray &plain)
{
    QFETCH(QString, path);
    QFETCH(Tags, after);
    QFETCH(QByteArray, written);
    const QImage expected = storedPixels(plain);
    QVERIFY(!expected.isNull());
    QCOMPARE(storedPixels(written), expected);
    if (m_tags.isEmpty())
        QSKIP("exiftool is not installed");
    QVERIFY(!after.isEmpty());
    QCOMPARE(lostTags(path, after), QString());
    const QString warning = QStringLiteral("ExifTool:Warning"); // some sources earn one themselves
    QVERIFY2(after.value(warning).isEmpty() || after.value(warning) == m_tags.value(pictureNamed(path)).value(warning),
             qPrintable(after.value(warning)));
}

void TheMetadata::survivesInAJpeg_data()
{
    addCarriedRows(smallFile(platform::FileFormat::Jpeg), QStringLiteral(".jpg"));
}

void TheMetadata::survivesInAJpeg()
{
    const QByteArray plain = smallFile(platform::FileFormat::Jpeg);
    checkCarried(plain);
    QFETCH(QByteArray, written);
    QVERIFY(written.endsWith(pixelsOf(plain)));
}

void TheMetadata::survivesInATiff_data()
{
    addCarriedRows(smallFile(platform::FileFormat::Tiff), QStringLiteral(".tif"));
}

void TheMetadata::survivesInATiff()
{
    checkCarried(smallFile(platform::FileFormat::Tiff));
}

void TheMetadata::survivesInATiffOf16Bits_data()
{
    addCarriedRows(smallFile(platform::FileFormat::Tiff, QImage::Format_RGBX64), QStringLiteral("-16.tif"));
}

void TheMetadata::survivesInATiffOf16Bits()
{
    checkCarried(smallFile(platform::FileFormat::Tiff, QImage::Format_RGBX64));
}

void TheMetadata::survivesInALargeTiffOfManyStrips()
{
    QImage image(3000, 2000, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * y % 251, (x + y) % 241, (x ^ y) % 239));
    const auto plain = platform::encodeImage(platform::Bitmap::fromImage(image), platform::FileFormat::Tiff);
    QVERIFY(plain);
    const Metadata metadata = metadataOfPicture(QStringLiteral("own/metadata/every-group.jpg"));
    const auto written = metadata.writtenInto(*plain);
    QVERIFY(written);
    QVERIFY(written->size() > plain->size());
    QCOMPARE(storedPixels(*written), storedPixels(*plain));
    const QVariantMap properties = Metadata::fromFileBytes(*written).toProperties();
    QCOMPARE(properties.value(QStringLiteral("DPIWidth")).toDouble(), 240.0);
    QCOMPARE(properties.value(QStringLiteral("{GPS}")), metadata.toProperties().value(QStringLiteral("{GPS}")));
}

/** Of a turned, compressed, tiled TIFF with a profile in the metadata's source nothing but the turn may come along. */
void TheMetadata::leavesTheStructureOfATiffAlone()
{
    const QByteArray plain = smallFile(platform::FileFormat::Tiff);
    const auto sourceOf = [](const QByteArray &file) { return platform::ImageSource::fromData(file).value(); };
    for (const char *name : {"own/orientation/turned_6.tif", "own/formats/cmyk8.tif", "own/formats/lab8.tif",
                             "own/formats/plain.dng", "own/formats/pages.tif", "own/formats/tiled.tif"}) {
        const Metadata metadata = Metadata::fromFileBytes(contentOf(pictureNamed(QString::fromLatin1(name))));
        const auto written = metadata.writtenInto(plain);
        QVERIFY2(written, name);
        QCOMPARE(storedPixels(*written), storedPixels(plain));
        QCOMPARE(sourceOf(*written).storedSize(), sourceOf(plain).storedSize());
        QCOMPARE(sourceOf(*written).imageCount(), 1);
        QCOMPARE(sourceOf(*written).orientation(), std::max(1, metadata.orientation()));
        QCOMPARE(sourceOf(*written).decode().value().iccProfile(), sourceOf(plain).decode().value().iccProfile());
    }
}

void TheMetadata::setsTheSizeInPixelsAnew_data()
{
    QTest::addColumn<QByteArray>("plain");
    QTest::addColumn<QString>("path");
    for (const char *path : {"own/metadata/every-group.jpg", "own/metadata/tall.jpg", "own/metadata/every-group.tif"}) {
        QTest::addRow("JPEG %s", path) << smallFile(platform::FileFormat::Jpeg) << QString::fromLatin1(path);
        QTest::addRow("TIFF %s", path) << smallFile(platform::FileFormat::Tiff) << QString::fromLatin1(path);
    }
}

void TheMetadata::setsTheSizeInPixelsAnew()
{
    QFETCH(QByteArray, plain);
    QFETCH(QString, path);
    const auto written = metadataOfPicture(path).writtenInto(plain);
    QVERIFY(written);
    const QVariantMap properties = Metadata::fromFileBytes(*written).toProperties();
    const QVariantMap exif = properties.value(QStringLiteral("{Exif}")).toMap();
    QCOMPARE(exif.value(QStringLiteral("PixelXDimension")).toInt(), 64);
    QCOMPARE(exif.value(QStringLiteral("PixelYDimension")).toInt(), 48);
}

void TheMetadata::leavesTheThumbnailBehind()
{
    const QString path = QStringLiteral("own/metadata/every-group.jpg");
    const QByteArray original = contentOf(pictureNamed(path));
    QVERIFY(original.indexOf("\xff\xd8\xff", 2) > 0); // there is one
    const auto written = metadataOfPicture(path).writtenInto(smallFile(platform::FileFormat::Jpeg));
    QVERIFY(written);
    QCOMPARE(written->indexOf("\xff\xd8\xff", 2), -1);
}

void TheMetadata::keepsTheCommentInTheFilesByteOrder_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path :
         {"own/metadata/comment-ascii.jpg", "own/metadata/comment-unicode.jpg", "own/metadata/comment-undefined.jpg",
          "own/metadata/big-endian.jpg", "own/metadata/every-group.heic"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void TheMetadata::keepsTheCommentInTheFilesByteOrder()
{
    QFETCH(QString, path);
    const Metadata metadata = metadataOfPicture(path);
    QVERIFY(!metadata.userComment().isEmpty());
    for (const QByteArray &plain : {smallFile(platform::FileFormat::Jpeg), smallFile(platform::FileFormat::Tiff),
                                    smallFile(platform::FileFormat::Tiff, QImage::Format_RGBX64)}) {
        const auto written = metadata.writtenInto(plain);
        QVERIFY(written);
        QCOMPARE(Metadata::fromFileBytes(*written).userComment(), metadata.userComment());
    }
}

void TheMetadata::takesBlocksFromAnotherDecoder()
{
    const QByteArray jpeg = contentOf(pictureNamed(QStringLiteral("own/metadata/comment-unicode.jpg")));
    const qsizetype start = jpeg.indexOf(QByteArray("Exif\0\0", 6));
    const QByteArray block = jpeg.mid(start, 60000);
    const QVariantMap whole = Metadata::fromFileBytes(jpeg).toProperties();
    for (const QByteArray &each : {block, block.mid(6)}) {
        const Metadata metadata = Metadata::fromBlocks(each);
        QCOMPARE(metadata.toProperties().value(QStringLiteral("{Exif}")), whole.value(QStringLiteral("{Exif}")));
    }
    for (const QByteArray &junk : {QByteArray("x"), QByteArray(5000, '\xff'), QByteArray("II*\0\xff\xff\xff\xff", 8)})
        QVERIFY(Metadata::fromBlocks(junk, junk, junk).isEmpty());
}

void TheMetadata::changesTheOrientationWhereOneIsStated()
{
    const QByteArray plain = smallFile(platform::FileFormat::Jpeg);
    const Metadata turned = metadataOfPicture(QStringLiteral("own/orientation/landscape_6.jpg")).withOrientation(1);
    QCOMPARE(turned.orientation(), 1);
    QCOMPARE(Metadata::fromFileBytes(turned.writtenInto(plain).value()).orientation(), 1);
    QCOMPARE(Metadata().withOrientation(6).orientation(), 0);
}

void TheMetadata::refusesOtherFiles_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("start of a PNG") << smallFile(platform::FileFormat::Png).left(40);
    QTest::newRow("GIF") << smallFile(platform::FileFormat::Gif);
    QTest::newRow("BMP") << smallFile(platform::FileFormat::Bmp);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("start of a JPEG") << QByteArray("\xff\xd8");
    QTest::newRow("a JPEG without a scan") << smallFile(platform::FileFormat::Jpeg).left(300);
}

void TheMetadata::refusesOtherFiles()
{
    QFETCH(QByteArray, file);
    const auto written = metadataOfPicture(QStringLiteral("own/metadata/every-group.jpg")).writtenInto(file);
    QVERIFY(!written);
    QCOMPARE(written.error().code, platform::ErrorCode::Unsupported);
}

/** A segment of a JPEG ends at 64 KB, and a script may put a longer text into one. */
void TheMetadata::carriesWhatASegmentCannotHoldInPart()
{
    const QVariantMap exif = {{QStringLiteral("UserComment"), QString(80000, u'x')}};
    const QVariantMap tiff = {{QStringLiteral("Artist"), QStringLiteral("Anna")}};
    const QByteArray plain = smallFile(platform::FileFormat::Jpeg);
    const auto written = Metadata::fromProperties({{QStringLiteral("{Exif}"), exif}, {QStringLiteral("{TIFF}"), tiff}})
                             .writtenInto(plain);
    QVERIFY(written);
    QCOMPARE(storedPixels(*written), storedPixels(plain));
    const QVariantMap read = Metadata::fromFileBytes(*written).toProperties();
    QCOMPARE(read.value(QStringLiteral("{TIFF}")).toMap(), tiff);
}

void TheMetadata::survivesBrokenFiles_data()
{
    QTest::addColumn<QString>("path");
    for (const Row &row : std::as_const(m_rows))
        if (row.value(QStringLiteral("bytes")).toInt() < 300000)
            QTest::newRow(qPrintable(row.value(QStringLiteral("path")))) << row.value(QStringLiteral("path"));
}

/** Everything that can be done with the metadata of a file, with bytes of its beginning spoilt and its end cut off. */
void TheMetadata::survivesBrokenFiles()
{
    QFETCH(QString, path);
    const QByteArray original = contentOf(pictureNamed(path));
    const QByteArray jpeg = smallFile(platform::FileFormat::Jpeg);
    const QByteArray tiff = smallFile(platform::FileFormat::Tiff);
    QRandomGenerator random(20260816);
    for (int round = 0; round < 8; ++round) {
        QByteArray broken = original;
        const qsizetype head = std::min<qsizetype>(broken.size(), round % 2 == 0 ? 400 : 40000);
        for (int spoilt = 0; head > 0 && spoilt < 1 + round; ++spoilt)
            broken[random.bounded(qint64(head))] = round % 3 == 0 ? '\xff' : char(random.bounded(256));
        if (round % 4 == 3 && !broken.isEmpty())
            broken.truncate(random.bounded(qint64(broken.size())));
        const Metadata metadata = Metadata::fromFileBytes(broken);
        const Metadata again = Metadata::fromProperties(metadata.toProperties());
        for (const Metadata &each : {metadata, again})
            for (const QByteArray &plain : {jpeg, tiff}) {
                const auto written = each.writtenInto(plain);
                QVERIFY(written);
                const auto opened = platform::ImageSource::fromData(*written);
                QVERIFY2(opened, opened ? "" : qPrintable(opened.error().message));
                QCOMPARE(storedPixels(*written), storedPixels(plain));
            }
    }
}

void TheMetadata::keepsTheOthersWhereOneBlockIsBroken_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<bool>("hasIptc");
    for (const char *extension : {"jpg", "png", "webp", "jp2", "heic", "avif"})
        QTest::newRow(extension) << QString::fromLatin1(extension) << (QByteArray(extension) == "jpg");
}

/** Of a file whose EXIF block no longer begins as one, its XMP and IPTC are read and carried on. */
void TheMetadata::keepsTheOthersWhereOneBlockIsBroken()
{
    QFETCH(QString, extension);
    QFETCH(bool, hasIptc);
    QByteArray file = contentOf(pictureNamed(QStringLiteral("own/metadata/every-group.") + extension));
    const qsizetype header = std::max(file.indexOf(QByteArray("MM\0*", 4)), file.indexOf(QByteArray("II*\0", 4)));
    QVERIFY(header > 0);
    file.replace(header, 4, QByteArray(4, '\xff'));
    const auto source = platform::ImageSource::fromData(file);
    QVERIFY(source);
    const auto metadata = source->metadata();
    QVERIFY(metadata);
    const QVariantMap read = metadata->toProperties();
    QVERIFY(read.contains(QStringLiteral("{XMP}")));
    QVERIFY(!read.contains(QStringLiteral("{GPS}")));
    QCOMPARE(read.contains(QStringLiteral("{IPTC}")), hasIptc);
    const auto written = metadata->writtenInto(smallFile(platform::FileFormat::Tiff), platform::Carried::Everything);
    QVERIFY(written);
    const QVariantMap carried = Metadata::fromFileBytes(*written).toProperties();
    QVERIFY(carried.contains(QStringLiteral("{XMP}")));
    QCOMPARE(carried.contains(QStringLiteral("{IPTC}")), hasIptc);
}

QUORLIN_TEST(TheMetadata)
#include "tst_metadata.moc"
