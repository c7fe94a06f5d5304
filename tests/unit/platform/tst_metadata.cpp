#include "platform/foundation/atomic_file.h"
#include "platform/imageio/image_destination.h"
#include "platform/imageio/image_source.h"
#include "platform/imageio/metadata.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using platform::Metadata;

namespace {

QString corpus(const QString &name)
{
    return QStringLiteral(QUORLIN_TEST_CORPUS "/") + name;
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
    const QStringList lines = QString::fromUtf8(contentOf(corpus(QStringLiteral("EXPECT.tsv")))).split(u'\n');
    const QStringList names = lines.first().split(u'\t');
    for (const QString &line : lines.mid(1)) {
        const QStringList fields = line.split(u'\t');
        if (fields.size() != names.size())
            continue;
        Row row;
        for (qsizetype i = 0; i < names.size(); ++i)
            row.insert(names.at(i), unescaped(fields.at(i)));
        rows.append(row);
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

/** As the decoder hands it on; from the bytes where it cannot open the picture. */
Metadata metadataOfPicture(const QString &path)
{
    const auto source = platform::ImageSource::open(corpus(path));
    return source ? source->metadata() : Metadata::fromFileBytes(contentOf(corpus(path)));
}

/** Everything from the first table on: what says how the pixels are coded, and the pixels. */
QByteArray pixelsOf(const QByteArray &jpeg)
{
    return jpeg.mid(jpeg.indexOf("\xff\xdb"));
}

/** Tags that tell how a file stores its pixels, or that are the old file's own. */
bool belongsToTheOldFile(const QString &tag)
{
    static const QRegularExpression structure(QStringLiteral(
        "^IFD0:(Image(Width|Height)|BitsPerSample|Compression|FillOrder|PageNumber|PhotometricInterpretation|Planar.*|"
        "Predictor|RowsPerStrip|SamplesPerPixel|Strip.*|Tile.*|SampleFormat|ExtraSamples|SubfileType|T[46]Options|"
        "JPEGTables|InkSet|OtherImageStart|PreviewImage.*|YCbCr.*|ProfileName|Profile.*|DNG.*|AsShot.*|Baseline.*|"
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
    if (m_rows.isEmpty())
        QSKIP("The shared pictures are not here");
    if (!haveIndependentReader())
        return;
    QStringList paths;
    for (const QString &path : soundPictures())
        paths << corpus(path);
    m_tags = independentlyRead(paths);
}

QStringList TheMetadata::soundPictures() const
{
    QStringList paths;
    for (const Row &row : m_rows)
        if (const QString path = row.value(QStringLiteral("path"));
            !path.startsWith(QLatin1String("broken/")) && !path.endsWith(QLatin1String(".svg")))
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
    const Metadata metadata = Metadata::fromFileBytes(contentOf(corpus(path)));
    QCOMPARE(metadata.userComment(), comment);
    QEXPECT_FAIL("formats/hopper_bigtiff.tif", "exiv2 knows no BigTIFF", Continue);
    QCOMPARE(metadata.orientation(), orientation);
}

/** What a picture's tags became in another file, one line for each that is not what it was. */
QString TheMetadata::lostTags(const QString &path, const Tags &after) const
{
    static const QRegularExpression carried(
        QStringLiteral("^(IFD0|ExifIFD|GPS|InteropIFD|IPTC|XMP-.*|Canon|CanonCustom|Nikon|NikonPreview|Apple|Sony|"
                       "Pentax|Olympus|Panasonic|"
                       "FujiFilm|Samsung|Casio|Kodak|Ricoh|Reconyx|Sanyo|Sigma|Minolta|Leica|PrintIM):"));
    const Tags before = m_tags.value(corpus(path));
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
    QEXPECT_FAIL("formats/hopper_bigtiff.tif", "exiv2 knows no BigTIFF", Continue);
    QCOMPARE(lostTags(path, after), QString());
    const QString warning = QStringLiteral("ExifTool:Warning"); // some sources earn one themselves
    QVERIFY2(after.value(warning).isEmpty() || after.value(warning) == m_tags.value(corpus(path)).value(warning),
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

QTEST_GUILESS_MAIN(TheMetadata)
#include "tst_metadata.moc"
