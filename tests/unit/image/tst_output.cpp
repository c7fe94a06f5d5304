#include "image/output.h"
#include "tests/support/test_program.h"

#include <QTest>

class Output : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheExtensionOfAType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("extension");
        const auto row = [](const char *type, const char *extension) {
            QTest::newRow(type) << QString::fromLatin1(type) << QString::fromLatin1(extension);
        };
        row("public.png", ".png");
        row("public.tiff", ".tiff");
        row("public.bmp", ".bmp");
        row("com.compuserve.gif", ".gif");
        row("public.jpeg", ".jpg");
        row("public.jp2", ".jp2");
        row("com.adobe.pdf", "");
        row("PUBLIC.PNG", "");
        row("dyn.xyz", "");
    }

    void namesTheExtensionOfAType()
    {
        QFETCH(QString, type);
        QTEST(image::extensionForType(type), "extension");
    }

    void mapsQualityCodes_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<double>("quality");
        for (int digit = 1; digit <= 9; ++digit)
            QTest::addRow("%d", digit) << QString::number(digit) << digit / 10.0;
        for (const char *code : {"0", "10", "", "a", " 5", "5 ", "-1", "01"})
            QTest::addRow("'%s'", code) << QString::fromLatin1(code) << 1.0;
    }

    void mapsQualityCodes()
    {
        QFETCH(QString, code);
        QTEST(image::qualityForCode(code), "quality");
    }

    void comparesTheRequestedTypeAsText()
    {
        QVERIFY(image::keepsSourceType(QStringLiteral("original file type")));
        QVERIFY(!image::keepsSourceType(QStringLiteral("Original file type")));
        QVERIFY(!image::keepsSourceType(7));
        QVERIFY(!image::keepsSourceType(QVariant()));
    }

    void putsTheNameDirectlyBehindThePrefix()
    {
        QCOMPARE(image::outputBase(QStringLiteral("/out/"), QStringLiteral("/in/a.b.JPG")), QStringLiteral("/out/a.b"));
        QCOMPARE(image::outputBase(QStringLiteral("/out/small-"), QStringLiteral("/in/a.jpg")),
                 QStringLiteral("/out/small-a"));
    }

    void recognisesWhatIsNeverWritten()
    {
        QVERIFY(image::isNeverWritten(QStringLiteral("com.adobe.photoshop-image")));
        QVERIFY(image::isNeverWritten(QStringLiteral("com.adobe.pdf")));
        QVERIFY(!image::isNeverWritten(QStringLiteral("public.png")));
    }
};

QUORLIN_TEST(Output)
#include "tst_output.moc"
