#include "platform/foundation/atomic_file.h"
#include "platform/imageio/metadata.h"

#include <QBuffer>
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

QByteArray smallJpeg(QSize size = {64, 48})
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 4 % 256, y * 5 % 256, 90));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 90);
    return buffer.data();
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

private:
    QStringList soundPictures() const;
    QString lostTags(const QString &path, const Tags &after, const char *groups) const;

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
        if (!row.value(QStringLiteral("path")).startsWith(QLatin1String("broken/")))
            paths << row.value(QStringLiteral("path"));
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
QString TheMetadata::lostTags(const QString &path, const Tags &after, const char *groups) const
{
    const QRegularExpression carried{QLatin1String(groups)};
    const Tags before = m_tags.value(corpus(path));
    QStringList lost;
    for (auto tag = before.begin(); tag != before.end(); ++tag)
        if (carried.match(tag.key()).hasMatch() && !belongsToTheOldFile(tag.key()) &&
            after.value(tag.key()) != tag.value())
            lost << tag.key() + u'=' + tag.value().left(60) + QStringLiteral(" -> ") + after.value(tag.key()).left(60);
    return lost.join(u'\n');
}

void TheMetadata::survivesInAJpeg_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<Tags>("after");
    const QByteArray plain = smallJpeg();
    QHash<QString, QString> targets;
    for (const QString &path : soundPictures()) {
        const auto written = Metadata::fromFileBytes(contentOf(corpus(path))).writtenInto(plain);
        QVERIFY2(written, qPrintable(path));
        QVERIFY2(written->endsWith(pixelsOf(plain)), qPrintable(path));
        targets.insert(path, m_folder.filePath(QString(path).replace(u'/', u'_') + QLatin1String(".jpg")));
        QVERIFY(platform::replaceFile(targets.value(path), *written));
    }
    const auto after = independentlyRead(targets.values());
    for (const QString &path : soundPictures())
        QTest::newRow(qPrintable(path)) << path << after.value(targets.value(path));
}

void TheMetadata::survivesInAJpeg()
{
    if (m_tags.isEmpty())
        QSKIP("exiftool is not installed");
    QFETCH(QString, path);
    QFETCH(Tags, after);
    QVERIFY(!after.isEmpty());
    QEXPECT_FAIL("formats/hopper_bigtiff.tif", "exiv2 knows no BigTIFF", Continue);
    QCOMPARE(lostTags(path, after, "^(IFD0|ExifIFD|GPS|InteropIFD|IPTC):"), QString());
}

QTEST_GUILESS_MAIN(TheMetadata)
#include "tst_metadata.moc"
