#include "image/ZtImageHandling.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QMetaProperty>
#include <QTemporaryDir>
#include <QTest>

using platform::BitmapHandle;

class Opening : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString picture(const char *name, int width, int height) const
    {
        const QString path = m_folder.filePath(QString::fromLatin1(name));
        return pictures::gradient(width, height).save(path) ? path : QString();
    }

private Q_SLOTS:
    void declaresItsFieldsInOrder()
    {
        const QMetaObject &meta = ZtImageHandling::staticMetaObject;
        QStringList names;
        for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index)
            names << QString::fromLatin1(meta.property(index).name());
        const QString wanted = QStringLiteral(
            "scImageCropPos tfCropXOffset tfCropYOffset tfCropXsize tfCropYsize tfCropPercentage tfCropPixels "
            "tvCropType "
            "cbImageBgColorCheck cwImageBackgroundColor pubFutureFileFormat tfBorderWidth tfAddBorder tfAddBorderPx "
            "tfBorderColor ivPhoto myXWOffset myYHOffset myXWOffsetPlus myYHOffsetPlus myXWSize myYHSize "
            "myImageCropPercentage myImageCropPixels myCropType newImgW newImgH myXRCval myImageCropPos cropBoxLine "
            "myCompressionLevelFloat myScaleFactor composedMasked imageMasked myImageRef myFileType fileExtension "
            "fileExtensionNSString fileUTI properties imageCIImage degrees wmAngle context");
        QCOMPARE(names.join(u' '), wanted);
    }

    void keepsThePictureItOpened()
    {
        ZtImageHandling service;
        const QString path = picture("a.png", 30, 20);
        const platform::ImageSource opened = service.hNSURLtoCIImage(QUrl::fromLocalFile(path));
        QCOMPARE(opened.uprightSize(), QSize(30, 20));
        QCOMPARE(service.property("imageCIImage").value<platform::ImageSource>(), opened);
        QCOMPARE(service.hGetPixelSize(path), QStringLiteral("30x20px"));
        service.hGetPixelSize(QStringLiteral("/no such file"));
        QVERIFY(service.property("imageCIImage").value<platform::ImageSource>().isNull());
    }

    void refersToTheVariableNotToThePicture()
    {
        ZtImageHandling service;
        const BitmapHandle first = service.hStringToCGImageRef(picture("a.png", 30, 20));
        QCOMPARE(first.bitmap().size(), QSize(30, 20));
        const BitmapHandle second = service.hStringToCGImageRef(picture("b.png", 7, 9));
        QCOMPARE(second.bitmap().size(), QSize(7, 9));
        QCOMPARE(first.bitmap().size(), QSize(7, 9));
        QVERIFY(first == second);
    }

    void readsTheStoredPixels()
    {
        ZtImageHandling service;
        const BitmapHandle tall = service.hStringToCGImageRef(picturePath("own/orientation/landscape_6.jpg"));
        QCOMPARE(tall.bitmap().size(), QSize(40, 60));
    }

    void tellsAMissingSourceFromOneWithoutAnImage()
    {
        ZtImageHandling service;
        const QString broken = picturePath("own/broken/");
        QVERIFY(service.hStringToCGImageRef(broken + QStringLiteral("missing.jpg")).isNull());
        QVERIFY(service.hStringToCGImageRef(broken + QStringLiteral("text-named.jpg")).isNull());
        service.hStringToCGImageRef(picture("a.png", 30, 20));
        const BitmapHandle damaged = service.hStringToCGImageRef(broken + QStringLiteral("truncated.png"));
        QVERIFY(!damaged.isNull());
        QVERIFY(damaged.bitmap().isNull());
        QVERIFY(service.property("myImageRef").value<BitmapHandle>().isNull());
    }

    void keepsTheLastImageWhenThereIsNoSource()
    {
        ZtImageHandling service;
        service.hStringToCGImageRef(picture("a.png", 30, 20));
        service.hStringToCGImageRef(QStringLiteral("/no such file"));
        QCOMPARE(service.property("myImageRef").value<BitmapHandle>().bitmap().size(), QSize(30, 20));
    }

    void makesAPictureOfThePixelSize()
    {
        ZtImageHandling service;
        const BitmapHandle bitmap = service.hStringToCGImageRef(picturePath("own/dpi/tiff-300dpi-inch.tif"));
        QCOMPARE(qRound(bitmap.bitmap().pointSize().width() * 1000), 14400);
        const platform::Picture made = service.imageFromCGImageRef(bitmap);
        QCOMPARE(made.size(), QSizeF(60, 40));
        QCOMPARE(made.bitmap().pixel(10, 10), bitmap.bitmap().pixel(10, 10));
        QVERIFY(service.imageFromCGImageRef(BitmapHandle()).isNull());
    }
};

QUORLIN_TEST(Opening)
#include "tst_opening.moc"
