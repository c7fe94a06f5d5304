#include "platform/imageio/formats/type_identifiers.h"
#include "tests/support/test_program.h"

#include <QTest>

class TypeIdentifiers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsExtension_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("identifier");
        const auto row = [](const char *extension, const char *identifier) {
            QTest::newRow(extension) << QString::fromLatin1(extension) << QString::fromLatin1(identifier);
        };
        row("jpg", "public.jpeg");
        row("jpeg", "public.jpeg");
        row("jpe", "public.jpeg");
        row("JpG", "public.jpeg");
        row("png", "public.png");
        row("tif", "public.tiff");
        row("TIFF", "public.tiff");
        row("bmp", "public.bmp");
        row("gif", "com.compuserve.gif");
        row("jp2", "public.jp2");
        row("psd", "com.adobe.photoshop-image");
        row("pdf", "com.adobe.pdf");
        row("heic", "public.heic");
        row("heif", "public.heif");
        row("webp", "org.webmproject.webp");
        row("avif", "public.avif");
        row("svg", "public.svg-image");
        row("txt", "public.plain-text");
        row("html", "public.html");
        row("xyz", "dyn.xyz");
    }

    void knowsExtension()
    {
        QFETCH(QString, extension);
        QFETCH(QString, identifier);
        QCOMPARE(platform::typeIdentifierForExtension(extension), identifier);
    }

    void knowsTheOtherExtensionsOfAType()
    {
        QCOMPARE(platform::extensionsOfSameType(QStringLiteral("jpeg")).join(u' '), QStringLiteral("jpeg jpg jpe"));
        QCOMPARE(platform::extensionsOfSameType(QStringLiteral("TIF")).join(u' '), QStringLiteral("tif tiff"));
        QCOMPARE(platform::extensionsOfSameType(QStringLiteral("c-action")).join(u' '), QStringLiteral("c-action"));
    }

    void takesTheLastExtensionOfAPath()
    {
        QCOMPARE(platform::typeIdentifierForPath(QStringLiteral("/a.b/photo.old.PNG")), QStringLiteral("public.png"));
    }
};

QUORLIN_TEST(TypeIdentifiers)
#include "tst_type_identifiers.moc"
