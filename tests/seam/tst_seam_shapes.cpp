#include "tests/seam/support/ScriptRun.h"

#include "platform/imageio/source/picture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

/** Crops, shapes, overlays, borders and units as scripts use them, with controls that no window has. */
class TestSeamShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drivesTheOperations_data();
    void drivesTheOperations();
};

void TestSeamShapes::drivesTheOperations_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[body, outcome] : std::initializer_list<Row>{
             {"return [image.myCropType, image.cropBoxLine]", "[0,0]"},
             {"sheet('%', 4, {tfCropPercentage: '25'});"
              "return [image.cropImage(photo, 0, 0, out, 'public.png', ''), image.myXWOffset, image.myYHOffset,"
              "image.myImageCropPercentage, image.myCropType, Picture.open(out + 'photo.png').pixelsWide]",
              "[\"OK\",50,37,75,\"%\",300]"},
             {"sheet('W x H', 8, {tfCropXsize: '40', tfCropYsize: '30px', tfCropXOffset: '-1'});"
              "const frame = image.hShowCropBox(photo);"
              "return [frame.width, frame.pixelsHigh, frame.pixel(360, 270), frame.pixel(5, 5), image.myXWOffset,"
              "image.myYHOffset, image.myXWSize, image.myYHSize, image.cropBoxLine]",
              "[400,300,[255,59,48,255],[0,0,0,0],359,0,40,30,3]"},
             {"return image.hShowCropBox(folder + '/missing.png')", "null"},
             {"return [image.cropImage(folder + '/missing.png', 1, 1, out, 'public.png', ''),"
              "image.cropImage(photo, 1, 1, out, 'com.adobe.pdf', '')]",
              "[\"Failed\",\"Not Supported\"]"},
             {"image.hShowCropBox(tall); return image.cropBoxLine", "1.5"},
             {"image.cbImageBgColorCheck = new CheckBox({state: 1});"
              "image.cwImageBackgroundColor = new ColorWell({color: '#10c820'});"
              "image.tfBorderWidth = new TextField({stringValue: '20'});"
              "const status = image.roundCornersOfImage(photo, out, 30, '0', '0');"
              "return [status, Picture.open(out + 'photo.png').pixel(19, 150), image.composedMasked.pixelsWide,"
              "image.imageMasked !== null, image.myFileType]",
              "[\"OK\",[16,200,32,255],400,true,\"public.png\"]"},
             {"return [image.roundCornersOfImage(photo, out, 30, '1', '1'), Picture.open(out + "
              "'photo.tiff').pixelsWide,"
              "Picture.open(out + 'photo.tiff').pixel(0, 0)]",
              "[\"OK\",300,[0,0,0,0]]"},
             {"return image.addOverlayColor(photo, out, 'anything', true, '2')", "\"OK\""},
             {"return image.addOverlayColor(photo, out, null, 3, '7')", "\"OK\""},
             {"const framed = image.addBorderToImage(Picture.open(photo));"
              "return [framed.width, framed.height, framed.pixel(0, 0)]",
              "[420,320,[255,255,255,255]]"},
             {"return image.addBorderToImage(null)", "null"},
             {"const field = new TextField(); const check = new CheckBox();"
              "image.tfBorderWidth = field; image.cbImageBgColorCheck = check; image.statusAddBgColor(null);"
              "const first = field.enabled; check.state = 1; image.statusAddBgColor(check);"
              "return [first, field.enabled]",
              "[false,true]"},
             {"return [units.convertXtoPixel(photo, 'pixel', 'inch', 1), units.myNewValue, units.myDPIvalue,"
              "units.convertXtoPixel(photo, 'inch', 'mm', 5), units.getPictureDPI(folder + '/missing.png')]",
              "[71,71,72,71,0]"},
             {"return image.roundCornersOfImage(photo, out, -1, '0', '0')", "\"RangeError\""},
             {"return image.cropImage(photo, '1', 1, out, 'public.png', '')", "\"TypeError\""},
         })
        QTest::newRow(body) << QString::fromUtf8(body) << QString::fromUtf8(outcome);
}

void TestSeamShapes::drivesTheOperations()
{
    QFETCH(QString, body);
    QFETCH(QString, outcome);
    ScriptRun run;
    const auto save = [&run](const QSize &size, const char *name) {
        QImage image = pictures::gradient(size.width(), size.height());
        image.setDotsPerMeterX(2835); // 72 dots per inch
        image.setDotsPerMeterY(2835);
        return image.save(run.pathOf(QString::fromUtf8(name)));
    };
    QVERIFY(save(QSize(400, 300), "photo.png") && save(QSize(300, 400), "tall.png"));
    const QString folder = run.pathOf(QStringLiteral("photo.png")).chopped(10);
    const QString script =
        QStringLiteral(
            "import { ZtImageHandling, cMConversion, Picture } from 'quorlin';"
            "import { CheckBox, ColorWell, SegmentedControl, TabView, TextField } from 'quorlin/controls';"
            "const folder = '%1', out = folder + '/new-', photo = folder + '/photo.png', tall = folder + '/tall.png';"
            "const image = new ZtImageHandling(), units = new cMConversion();"
            "function sheet(label, place, fields) {"
            "  image.tvCropType = new TabView({selectedLabel: label});"
            "  image.scImageCropPos = new SegmentedControl({selectedSegment: place});"
            "  for (const name in fields) image[name] = new TextField({stringValue: fields[name]}); }"
            "function call() { %2 }"
            "export const told = () => { try { return JSON.stringify(call()); }"
            "  catch (error) { return JSON.stringify(error.name); } };")
            .arg(folder, body);
    QVERIFY2(run.runFile(QStringLiteral("call.js"), script), qPrintable(run.error));
    const auto module = run.engine().importFile(run.pathOf(QStringLiteral("call.js")));
    QVERIFY(module);
    const auto told = run.engine().call(module->property(QStringLiteral("told")), {});
    QVERIFY(told);
    QCOMPARE(told->toString(), outcome);
}

QUORLIN_TEST(TestSeamShapes)
#include "tst_seam_shapes.moc"
