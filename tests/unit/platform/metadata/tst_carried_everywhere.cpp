// One picture with tags of every group is written in every type, and read back by another program and by our reader;
// the same is done with less metadata.

#include "platform/file/atomic_file.h"
#include "platform/imageio/convert/pdf_page.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_program.h"

#include "tests/support/corpus.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace platform;

Q_DECLARE_METATYPE(platform::FileFormat)

namespace {

constexpr QSize sourceSize(64, 48);
constexpr QSize resultSize(40, 30);

QByteArray contentOf(const QString &path)
{
    return readFile(path).value_or(QByteArray());
}

bool haveReader()
{
    return !QStandardPaths::findExecutable(QStringLiteral("exiftool")).isEmpty();
}

QByteArray exiftool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("exiftool"), arguments);
    process.waitForFinished();
    if (process.exitCode() != 0)
        qWarning("%s", process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

Bitmap pixels(QSize size)
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 3, y * 4, 90));
    return Bitmap::fromImage(image);
}

struct Kind
{
    const char *name;
    const char *extension;
    std::optional<FileFormat> format; ///< none for a page
    bool exif;
    bool iptc;
    bool comment;
};

constexpr Kind kinds[] = {
    {"jpeg", "jpg", FileFormat::Jpeg, true, true, true},    {"png", "png", FileFormat::Png, true, true, true},
    {"tiff", "tiff", FileFormat::Tiff, true, true, false},  {"jp2", "jp2", FileFormat::Jpeg2000, true, true, false},
    {"webp", "webp", FileFormat::Webp, true, false, false}, {"avif", "avif", FileFormat::Avif, true, false, false},
    {"jxl", "jxl", FileFormat::JpegXl, true, false, false}, {"gif", "gif", FileFormat::Gif, false, false, true},
    {"pdf", "pdf", std::nullopt, false, false, false},
};

/** Set by exiftool in the source; by name of group and tag as it then reports them. */
const QList<std::pair<QString, QString>> &exifTags()
{
    static const QList<std::pair<QString, QString>> tags = {
        {QStringLiteral("IFD0:Artist"), QStringLiteral("Jane Doe")},
        {QStringLiteral("IFD0:Copyright"), QStringLiteral("(c) Jane")},
        {QStringLiteral("IFD0:ImageDescription"), QStringLiteral("A boat")},
        {QStringLiteral("IFD0:Make"), QStringLiteral("Maker")},
        {QStringLiteral("ExifIFD:DateTimeOriginal"), QStringLiteral("2024:05:06 07:08:09")},
        {QStringLiteral("ExifIFD:ISO"), QStringLiteral("400")},
        {QStringLiteral("ExifIFD:LensModel"), QStringLiteral("50 mm")},
        {QStringLiteral("ExifIFD:UserComment"), QStringLiteral("seen from the pier")},
        {QStringLiteral("GPS:GPSLatitude"), QStringLiteral("53.5")},
        {QStringLiteral("GPS:GPSLatitudeRef"), QStringLiteral("N")},
        {QStringLiteral("InteropIFD:InteropIndex"), QStringLiteral("R98")},
    };
    return tags;
}

const QList<std::pair<QString, QString>> &iptcTags()
{
    static const QList<std::pair<QString, QString>> tags = {
        {QStringLiteral("IPTC:By-line"), QStringLiteral("Jane I")},
        {QStringLiteral("IPTC:CopyrightNotice"), QStringLiteral("(c) I")},
        {QStringLiteral("IPTC:Caption-Abstract"), QStringLiteral("A boat, I")},
        {QStringLiteral("IPTC:ObjectName"), QStringLiteral("Boat I")},
        {QStringLiteral("IPTC:City"), QStringLiteral("Hamburg I")},
        {QStringLiteral("IPTC:Keywords"), QStringLiteral("boat")},
    };
    return tags;
}

const QList<std::pair<QString, QString>> &xmpTags()
{
    static const QList<std::pair<QString, QString>> tags = {
        {QStringLiteral("XMP-dc:Creator"), QStringLiteral("Jane X")},
        {QStringLiteral("XMP-dc:Rights"), QStringLiteral("(c) X")},
        {QStringLiteral("XMP-dc:Title"), QStringLiteral("Boat X")},
        {QStringLiteral("XMP-dc:Description"), QStringLiteral("A boat & \"more\" <X>")},
        {QStringLiteral("XMP-xmp:Rating"), QStringLiteral("4")},
        {QStringLiteral("XMP-photoshop:City"), QStringLiteral("Hamburg X")},
        {QStringLiteral("XMP-exif:GPSLatitude"), QStringLiteral("53.5")},
        {QStringLiteral("XMP-iptcCore:Location"), QStringLiteral("Pier X")},
        {QStringLiteral("XMP-iptcExt:LocationShownCity"), QStringLiteral("Hamburg Y")},
        {QStringLiteral("XMP-lr:HierarchicalSubject"), QStringLiteral("a|b")},
    };
    return tags;
}

bool isAuthorship(const QString &tag)
{
    static const QStringList tags = {QStringLiteral("IFD0:Artist"),           QStringLiteral("IFD0:Copyright"),
                                     QStringLiteral("IFD0:ImageDescription"), QStringLiteral("IPTC:By-line"),
                                     QStringLiteral("IPTC:CopyrightNotice"),  QStringLiteral("IPTC:Caption-Abstract"),
                                     QStringLiteral("IPTC:ObjectName"),       QStringLiteral("XMP-dc:Creator"),
                                     QStringLiteral("XMP-dc:Rights"),         QStringLiteral("XMP-dc:Title"),
                                     QStringLiteral("XMP-dc:Description")};
    return tags.contains(tag);
}

bool isPlace(const QString &tag)
{
    return tag.contains(QStringLiteral("GPS")) || tag.contains(QStringLiteral("City")) ||
           tag.contains(QStringLiteral("Location"));
}

QStringList camerasThere()
{
    QStringList paths;
    for (const char *folder : {"own/metadata/", "exif-real/", "cameras/"}) {
        const QDir there(picturePath(folder));
        for (const QString &name : there.entryList({QStringLiteral("*.jpg")}, QDir::Files))
            paths << there.filePath(name);
    }
    return paths;
}

/**
 * The bytes of the maker note as stored in the file. What exiftool extracts is reassembled, with offsets of that file.
 */
QByteArray makerNote(const QString &path)
{
    static const QRegularExpression place(QStringLiteral("Tag 0x927c \\((\\d+) bytes[^\\n]*\\n[ |]*([0-9a-f]+): "));
    const auto found = place.match(QString::fromLatin1(exiftool({QStringLiteral("-v3"), path})));
    return contentOf(path).mid(found.captured(2).toLongLong(nullptr, 16), found.captured(1).toLongLong());
}

/** What a reader finds in the maker note, without what it works out from the note's place in the file. */
QJsonObject makerTags(const QString &path)
{
    const QByteArray told = exiftool({QStringLiteral("-q"), QStringLiteral("-j"), QStringLiteral("-n"),
                                      QStringLiteral("-G1"), QStringLiteral("-MakerNotes:all"), path});
    QJsonObject tags = QJsonDocument::fromJson(told).array().first().toObject();
    tags.remove(QStringLiteral("SourceFile"));
    for (const QString &tag : tags.keys())
        if (tag.endsWith(QLatin1String("Start")) || tag.endsWith(QLatin1String("Offset")))
            tags.remove(tag);
    return tags;
}

QString group(const QString &tag)
{
    return tag.section(u':', 0, 0);
}

} // namespace

class CarriedEverywhere : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        if (!haveReader())
            QSKIP("no exiftool");
    }
    void holdsAllThatItsTypeCan_data() { addKinds(); }
    void holdsAllThatItsTypeCan();
    void saysInXmpWhatHasNoOtherPlace();
    void dependsOnNoPictureBefore();
    void keepsAuthorshipAlone_data() { addKinds(); }
    void keepsAuthorshipAlone();
    void losesThePlace_data() { addKinds(); }
    void losesThePlace();
    void keepsNothing_data() { addKinds(); }
    void keepsNothing();
    void statesTheResolutionThatIsAskedFor_data() { addKinds(); }
    void statesTheResolutionThatIsAskedFor();
    void isReadAgainByThisProgram_data() { addKinds(); }
    void isReadAgainByThisProgram();
    void keepsMakerNotesWhole_data() { addKinds(); }
    void keepsMakerNotesWhole();
    void erasesThePlaceFromTheBytes();
    void statesAResolutionWhereThereWasNone();
    void dropsWhatItAnnouncesAndDoesNotHave();
    void servicesCarryWhatTheyAlwaysDid();

private:
    static void addKinds();
    QByteArray written(const Kind &kind, const Metadata &metadata, std::optional<double> dpi = {}) const;
    QJsonObject read(const QByteArray &file, const char *extension) const;
    QString wrong(const QJsonObject &told, const QString &tag, const QString &text) const;

    QTemporaryDir m_folder;
    QByteArray m_source;
    Metadata m_known;
};

Q_DECLARE_METATYPE(const Kind *)

void CarriedEverywhere::addKinds()
{
    QTest::addColumn<const Kind *>("kind");
    for (const Kind &kind : kinds)
        QTest::newRow(kind.name) << &kind;
}

void CarriedEverywhere::initTestCase()
{
    if (!haveReader())
        return;
    const QString path = m_folder.filePath(QStringLiteral("source.jpg"));
    const QByteArray thumbnail = encodeImage(pixels({16, 12}), FileFormat::Jpeg).value();
    QVERIFY(replaceFile(m_folder.filePath(QStringLiteral("thumbnail.jpg")), thumbnail));
    QVERIFY(replaceFile(path, encodeImage(pixels(sourceSize), FileFormat::Jpeg).value()));
    QStringList arguments = {QStringLiteral("-q"), QStringLiteral("-n"), QStringLiteral("-overwrite_original")};
    for (const auto &tags : {exifTags(), iptcTags(), xmpTags()})
        for (const auto &[tag, text] : tags)
            arguments << QStringLiteral("-%1=%2").arg(tag, text);
    arguments << QStringLiteral("-Comment=written by hand: \u00e4") << QStringLiteral("-IFD0:Orientation=6")
              << QStringLiteral("-XMP-tiff:Orientation=6") << QStringLiteral("-IFD0:XResolution=300")
              << QStringLiteral("-IFD0:YResolution=300") << QStringLiteral("-XMP-tiff:XResolution=300")
              << QStringLiteral("-ExifIFD:ExifImageWidth=64") << QStringLiteral("-ExifIFD:ExifImageHeight=48")
              << QStringLiteral("-XMP-tiff:ImageWidth=64")
              << QStringLiteral("-IFD1:ThumbnailImage<=") + m_folder.filePath(QStringLiteral("thumbnail.jpg")) << path;
    exiftool(arguments);
    m_source = contentOf(path);
    m_known = Metadata::fromFileBytes(m_source);
    QCOMPARE(m_known.orientation(), 6);
    QCOMPARE(m_known.comments(), QStringList(QStringLiteral("written by hand: \u00e4")));
}

QByteArray CarriedEverywhere::written(const Kind &kind, const Metadata &metadata, std::optional<double> dpi) const
{
    const Bitmap bitmap = pixels(resultSize);
    EncodeOptions options;
    options.metadata = metadata;
    options.carried = Carried::Everything;
    options.dpi = dpi;
    if (kind.format)
        return encodeImage(bitmap, *kind.format, options).value_or(QByteArray());
    return encodeImage(bitmap, FileFormat::Png)
        .and_then([](const QByteArray &png) { return ImageSource::fromData(png); })
        .and_then([](const ImageSource &source) { return pdfPageOf(source); })
        .and_then([&](const QByteArray &page) {
            return metadata.withOrientation(1).writtenInto(page, Carried::Everything, resultSize);
        })
        .value_or(QByteArray());
}

QJsonObject CarriedEverywhere::read(const QByteArray &file, const char *extension) const
{
    const QString path = m_folder.filePath(QStringLiteral("result.") + QString::fromLatin1(extension));
    if (file.isEmpty() || !replaceFile(path, file))
        return {};
    const QByteArray told = exiftool({QStringLiteral("-json"), QStringLiteral("-G1"), QStringLiteral("-n"), path});
    return QJsonDocument::fromJson(told).array().first().toObject();
}

QString CarriedEverywhere::wrong(const QJsonObject &told, const QString &tag, const QString &text) const
{
    QJsonValue value = told.value(tag);
    if (value.isArray())
        value = value.toArray().first();
    const QString found = value.isDouble() ? QString::number(value.toDouble()) : value.toString();
    return found == text ? QString() : QStringLiteral("%1 is \"%2\", not \"%3\"; ").arg(tag, found, text);
}

void CarriedEverywhere::holdsAllThatItsTypeCan()
{
    QFETCH(const Kind *, kind);
    const QJsonObject told = read(written(*kind, m_known), kind->extension);
    QVERIFY(!told.isEmpty());
    QString faults;
    for (const auto &[tag, text] : kind->exif ? exifTags() : QList<std::pair<QString, QString>>())
        faults += wrong(told, tag, text);
    for (const auto &[tag, text] : kind->iptc ? iptcTags() : QList<std::pair<QString, QString>>())
        faults += wrong(told, tag, text);
    for (const auto &[tag, text] : xmpTags())
        faults += wrong(told, tag, text);
    if (kind->comment) {
        const QString place = QString::fromLatin1(kind->format == FileFormat::Png ? "PNG:Comment" : "File:Comment");
        faults += wrong(told, place, QStringLiteral("written by hand: \u00e4"));
    }
    if (kind->exif) {
        faults += wrong(told, QStringLiteral("IFD0:Orientation"), QStringLiteral("1"));
        faults += wrong(told, QStringLiteral("ExifIFD:ExifImageWidth"), QStringLiteral("40"));
        faults += wrong(told, QStringLiteral("ExifIFD:ExifImageHeight"), QStringLiteral("30"));
    }
    faults += wrong(told, QStringLiteral("XMP-tiff:Orientation"), QStringLiteral("1"));
    faults += wrong(told, QStringLiteral("XMP-tiff:ImageWidth"), QStringLiteral("40"));
    for (const QString &tag : told.keys())
        if (tag.startsWith(QStringLiteral("IFD1:")) || tag.contains(QStringLiteral("Thumbnail")) ||
            tag.startsWith(QStringLiteral("XMP-hdrgm")))
            faults += tag + QStringLiteral(" is there; ");
    if (told.contains(QStringLiteral("ExifTool:Warning")))
        faults += told.value(QStringLiteral("ExifTool:Warning")).toString();
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void CarriedEverywhere::saysInXmpWhatHasNoOtherPlace()
{
    for (const Kind &kind : kinds) {
        const QJsonObject told = read(written(kind, m_known), kind.extension);
        QString faults;
        if (!kind.exif) {
            faults += wrong(told, QStringLiteral("XMP-tiff:Make"), QStringLiteral("Maker"));
            faults += wrong(told, QStringLiteral("XMP-photoshop:DateCreated"), QStringLiteral("2024:05:06 07:08:09"));
        }
        if (!kind.iptc) // what XMP says itself counts more
            faults += wrong(told, QStringLiteral("XMP-dc:Subject"), QStringLiteral("boat")) +
                      wrong(told, QStringLiteral("XMP-dc:Title"), QStringLiteral("Boat X"));
        QVERIFY2(faults.isEmpty(), qPrintable(QString::fromLatin1(kind.name) + u' ' + faults));
    }
}

void CarriedEverywhere::keepsAuthorshipAlone()
{
    QFETCH(const Kind *, kind);
    const QJsonObject told = read(written(*kind, m_known.reduced(MetadataScope::Copyright)), kind->extension);
    QString faults;
    for (const auto &tags : {exifTags(), iptcTags(), xmpTags()})
        for (const auto &[tag, text] : tags) {
            const bool isHeld = group(tag) == QStringLiteral("IPTC")
                                    ? kind->iptc
                                    : group(tag).startsWith(QStringLiteral("XMP")) || kind->exif;
            if (isAuthorship(tag) && isHeld)
                faults += wrong(told, tag, text);
            else if (!isAuthorship(tag) && told.contains(tag))
                faults += tag + QStringLiteral(" is there; ");
        }
    for (const char *comment : {"File:Comment", "PNG:Comment"})
        if (told.contains(QLatin1String(comment)))
            faults += QStringLiteral("a comment is there; ");
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void CarriedEverywhere::losesThePlace()
{
    QFETCH(const Kind *, kind);
    const Metadata placeless = m_known.reduced(MetadataScope::All, PlaceTaken::Drop);
    const QByteArray file = written(*kind, placeless);
    const QJsonObject told = read(file, kind->extension);
    QString faults;
    for (const auto &tags : {exifTags(), iptcTags(), xmpTags()})
        for (const auto &[tag, text] : tags) {
            const bool isHeld = group(tag) == QStringLiteral("IPTC")
                                    ? kind->iptc
                                    : group(tag).startsWith(QStringLiteral("XMP")) || kind->exif;
            if (!isPlace(tag) && isHeld)
                faults += wrong(told, tag, text);
        }
    for (const QString &tag : told.keys())
        if (isPlace(tag))
            faults += tag + QStringLiteral(" is there; ");
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
    QVERIFY(!file.contains("Hamburg") && !file.contains("Pier X"));
}

void CarriedEverywhere::keepsNothing()
{
    QFETCH(const Kind *, kind);
    const QByteArray file = written(*kind, m_known.reduced(MetadataScope::None));
    QVERIFY(!file.isEmpty());
    const QJsonObject told = read(file, kind->extension);
    for (const QString &tag : told.keys())
        QVERIFY2(!tag.startsWith(QStringLiteral("XMP")) && !tag.startsWith(QStringLiteral("IPTC")) &&
                     !tag.startsWith(QStringLiteral("GPS")) && !tag.endsWith(QStringLiteral(":Comment")) &&
                     (!tag.startsWith(QStringLiteral("IFD0:")) || kind->format == FileFormat::Tiff ||
                      tag.contains(QStringLiteral("Resolution"))) &&
                     !tag.startsWith(QStringLiteral("ExifIFD")),
                 qPrintable(tag));
    QVERIFY(!file.contains("Jane") && !file.contains("Maker"));
}

void CarriedEverywhere::statesTheResolutionThatIsAskedFor()
{
    QFETCH(const Kind *, kind);
    if (!kind->exif)
        QSKIP("holds no resolution");
    for (const double dpi : {240.0, 254.5}) {
        const QJsonObject told = read(written(*kind, m_known, dpi), kind->extension);
        QString faults = wrong(told, QStringLiteral("IFD0:XResolution"), QString::number(dpi)) +
                         wrong(told, QStringLiteral("IFD0:YResolution"), QString::number(dpi)) +
                         wrong(told, QStringLiteral("IFD0:ResolutionUnit"), QStringLiteral("2")) +
                         wrong(told, QStringLiteral("IFD0:Artist"), QStringLiteral("Jane Doe"));
        const QString inXmp = told.value(QStringLiteral("XMP-tiff:XResolution")).toVariant().toString();
        if (inXmp != QString::number(dpi))
            faults += QStringLiteral("XMP says ") + inXmp;
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }
}

void CarriedEverywhere::isReadAgainByThisProgram()
{
    QFETCH(const Kind *, kind);
    const auto source = ImageSource::fromData(written(*kind, m_known));
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    QVERIFY(source->decode());
    if (!kind->format)
        return;
    QCOMPARE(source->storedSize(), resultSize);
    QCOMPARE(source->orientation(), 1);
    const auto known = source->metadata();
    QVERIFY(known);
    const QVariantMap properties = known->toProperties();
    QCOMPARE(properties.value(QStringLiteral("{XMP}")).toMap().isEmpty(), false);
    QCOMPARE(properties.contains(QStringLiteral("{IPTC}")), kind->iptc);
    if (kind->exif)
        QCOMPARE(known->userComment(), QStringLiteral("seen from the pier"));
    if (kind->comment)
        QCOMPARE(known->comments(), m_known.comments());
}

/** A name space has another name in some pictures, which must not be found in the files that are written after them. */
void CarriedEverywhere::dependsOnNoPictureBefore()
{
    const auto readOne = [](const QByteArray &prefix) {
        const QByteArray packet =
            "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
            "<rdf:Description rdf:about='' xmlns:" +
            prefix + "='http://ns.adobe.com/tiff/1.0/' " + prefix + ":Make='A'/></rdf:RDF></x:xmpmeta>";
        QVERIFY(!Metadata::fromBlocks({}, packet, {}).isEmpty());
    };
    const Metadata known =
        Metadata::fromFileBytes(contentOf(picturePath("own/metadata/big-endian.jpg"))); // without XMP
    for (const Kind &kind : kinds) {
        readOne("tiff");
        const QByteArray before = written(kind, known);
        readOne("other");
        QVERIFY2(written(kind, known) == before, kind.name);
    }
}

void CarriedEverywhere::keepsMakerNotesWhole()
{
    QFETCH(const Kind *, kind);
    if (!kind->exif)
        QSKIP("holds no EXIF");
    int checked = 0;
    for (const QString &path : camerasThere()) {
        if (checked >= tests::repetitions(3, 60))
            break;
        const QByteArray file = contentOf(path);
        const QByteArray note = makerNote(path);
        if (note.isEmpty())
            continue;
        const QByteArray made = written(*kind, Metadata::fromFileBytes(file));
        QVERIFY2(made.contains(note), qPrintable(path));
        const QString result = m_folder.filePath(QStringLiteral("maker.") + QString::fromLatin1(kind->extension));
        QVERIFY(replaceFile(result, made));
        QCOMPARE(makerTags(result), makerTags(path));
        ++checked;
    }
    if (checked == 0)
        QSKIP("no pictures with maker notes");
}

void CarriedEverywhere::erasesThePlaceFromTheBytes()
{
    // The latitude as its three fractions.
    const QByteArray latitude = QByteArray::fromHex("0000003500000001") + QByteArray::fromHex("0000001e00000001");
    QVERIFY(m_source.contains(latitude));
    const QByteArray file = written(kinds[0], m_known.reduced(MetadataScope::All, PlaceTaken::Drop));
    QVERIFY(!file.contains(latitude));
}

void CarriedEverywhere::statesAResolutionWhereThereWasNone()
{
    const Metadata bare = Metadata().withResolution(150, 75);
    QCOMPARE(bare.resolution(), QSizeF(150, 75));
    for (const Kind &kind : kinds) {
        if (!kind.exif)
            continue;
        const QJsonObject told = read(written(kind, bare), kind.extension); // none of the bitmap is written
        const QString faults = wrong(told, QStringLiteral("IFD0:XResolution"), QStringLiteral("150")) +
                               wrong(told, QStringLiteral("IFD0:YResolution"), QStringLiteral("75"));
        QVERIFY2(faults.isEmpty(), qPrintable(QString::fromLatin1(kind.name) + u' ' + faults));
    }
    const QString path = m_folder.filePath(QStringLiteral("unstated.jpg"));
    QVERIFY(replaceFile(path, m_source));
    exiftool({QStringLiteral("-q"), QStringLiteral("-overwrite_original"), QStringLiteral("-IFD0:XResolution="),
              QStringLiteral("-IFD0:YResolution="), QStringLiteral("-IFD0:ResolutionUnit="), path});
    const Metadata stated = Metadata::fromFileBytes(contentOf(path)).withResolution(200, 200);
    const QJsonObject told = read(written(kinds[0], stated), "jpg");
    QString faults = wrong(told, QStringLiteral("IFD0:XResolution"), QStringLiteral("200"));
    for (const auto &[tag, text] : exifTags())
        faults += wrong(told, tag, text);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
    QVERIFY(!told.contains(QStringLiteral("IFD1:ThumbnailLength")));
}

void CarriedEverywhere::dropsWhatItAnnouncesAndDoesNotHave()
{
    const QByteArray packet = R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF
        xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#"><rdf:Description rdf:about=""
        xmlns:hdrgm="http://ns.adobe.com/hdr-gain-map/1.0/" xmlns:GCamera="http://ns.google.com/photos/1.0/camera/"
        xmlns:xmpNote="http://ns.adobe.com/xmp/note/" xmlns:xmp="http://ns.adobe.com/xap/1.0/"
        xmlns:Container="http://ns.google.com/photos/1.0/container/" hdrgm:Version="1.0" GCamera:MotionPhoto="1"
        GCamera:HdrPlusMakernote="kept" xmp:Rating="3" xmpNote:HasExtendedXMP="0123456789ABCDEF">
        <Container:Directory><rdf:Seq><rdf:li>map</rdf:li></rdf:Seq></Container:Directory>
        </rdf:Description></rdf:RDF></x:xmpmeta>)";
    for (const Kind &kind : kinds) {
        const QByteArray file = written(kind, Metadata::fromBlocks({}, packet));
        QVERIFY2(file.contains("xmp:Rating=\"3\"") && file.contains("HdrPlusMakernote=\"kept\""), kind.name);
        for (const char *announced : {"hdrgm:Version", "MotionPhoto", "Container:Directory", "HasExtendedXMP"})
            QVERIFY2(!file.contains(announced), announced);
    }
}

/** What is asked for in the old way is what it always was. */
void CarriedEverywhere::servicesCarryWhatTheyAlwaysDid()
{
    EncodeOptions options;
    options.metadata = m_known;
    for (const FileFormat format :
         {FileFormat::Png, FileFormat::Bmp, FileFormat::Gif, FileFormat::Jpeg2000, FileFormat::Webp})
        QCOMPARE(encodeImage(pixels(resultSize), format, options).value(),
                 encodeImage(pixels(resultSize), format).value());
    const QByteArray jpeg = encodeImage(pixels(resultSize), FileFormat::Jpeg, options).value();
    const QJsonObject told = read(jpeg, "jpg");
    QVERIFY(!told.contains(QStringLiteral("File:Comment")));
    QCOMPARE(told.value(QStringLiteral("IFD0:Orientation")).toInt(), 6);
    QCOMPARE(told.value(QStringLiteral("XMP-tiff:Orientation")).toInt(), 6);
}

QUORLIN_TEST(CarriedEverywhere)
#include "tst_carried_everywhere.moc"
