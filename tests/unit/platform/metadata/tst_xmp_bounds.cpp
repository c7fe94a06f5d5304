// A packet of XMP with too many properties to be parsed is copied but not read, wherever it is.

#include "platform/imageio/metadata/metadata.h"
#include "platform/imageio/xmp/xmp_bounds.h"
#include "tests/support/made_png.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QTest>

using pictures::big;
using pictures::bytes;
using pictures::chunk;
using pictures::png;
using pictures::zlib;

namespace {

/** A packet with this in it. */
QByteArray packetOf(const QByteArray &content)
{
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>" +
           content + "</rdf:RDF></x:xmpmeta>";
}

QByteArray description(int elements)
{
    QByteArray text = "<rdf:Description rdf:about='' xmlns:x='http://e.x/'>";
    for (int i = 0; i < elements; ++i)
        text += "<x:p" + QByteArray::number(i) + "/>";
    return text + "</rdf:Description>";
}

QByteArray pngWith(const QByteArray &texts)
{
    return png(texts + chunk("IDAT", zlib(QByteArray(4, '\0'))));
}

QByteArray plainText(const QByteArray &packetText)
{
    return chunk("iTXt", bytes("XML:com.adobe.xmp\0\0\0\0\0") + packetText);
}

QByteArray writtenOut(const QByteArray &packetText)
{
    return "\nxmp\n" + QByteArray::number(packetText.size()) + "\n" + packetText.toHex() + "\n";
}

} // namespace

class XmpBounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotHeldUpByTooManyProperties_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isKnown");
        QByteArray attributes;
        QByteArray elements;
        QByteArray items;
        constexpr int many = 60'000; // which would take a minute
        for (int i = 0; i < many; ++i) {
            const QByteArray number = QByteArray::number(i);
            attributes += " x:p" + number + "='v'";
            elements += "<x:p" + number + ">v</x:p" + number + ">";
            items += "<rdf:li>v</rdf:li>";
        }
        const QByteArray head = "<rdf:Description rdf:about='' xmlns:x='http://e.x/'";
        QTest::newRow("attributes") << head + attributes + "/>" << false;
        QTest::newRow("elements") << head + ">" + elements + "</rdf:Description>" << false;
        QTest::newRow("items of a list") << head + "><x:list><rdf:Bag>" + items +
                                                "</rdf:Bag></x:list></rdf:Description>"
                                         << true;
    }

    void isNotHeldUpByTooManyProperties()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isKnown);
        const QByteArray packetText = packetOf(content);
        const QByteArray bytes = pngWith(plainText(packetText));
        QElapsedTimer timer;
        timer.start();
        const auto metadata = platform::Metadata::fromFileBytes(bytes);
        QCOMPARE(metadata.toProperties().contains(QStringLiteral("{XMP}")), isKnown);
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
        // It is carried all the same.
        const auto carried = metadata.writtenInto(pngWith({}));
        QVERIFY(carried && carried->contains(packetText));
    }

    void isNotHeldUpWhereverThePacketStands_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("isKnown");
        const auto jpeg = [](const QByteArray &packetText) {
            const QByteArray segment = bytes("http://ns.adobe.com/xap/1.0/\0") + packetText;
            QByteArray made;
            QBuffer buffer(&made);
            buffer.open(QIODevice::WriteOnly);
            pictures::gradient(24, 16).save(&buffer, "jpg");
            return made.insert(2, "\xff\xe1" + big(quint32(segment.size() + 2)).last(2) + segment);
        };
        for (const int count : {1000, 7000}) {
            const QByteArray text = packetOf(description(count));
            const bool isKnown = count == 1000;
            const QByteArray compressed = bytes("XML:com.adobe.xmp\0\1\0\0\0") + zlib(text);
            const QByteArray digits = bytes("Raw profile type xmp\0") + writtenOut(text);
            const QByteArray zipped = bytes("Raw profile type xmp\0\0") + zlib(writtenOut(text));
            const QByteArray named = " " + QByteArray::number(count);
            QTest::newRow("a JPEG's segment" + named) << jpeg(text) << isKnown;
            QTest::newRow("a PNG's text" + named) << pngWith(plainText(text)) << isKnown;
            QTest::newRow("compressed" + named) << pngWith(chunk("iTXt", compressed)) << isKnown;
            QTest::newRow("in digits" + named) << pngWith(chunk("tEXt", digits)) << isKnown;
            QTest::newRow("in compressed digits" + named) << pngWith(chunk("zTXt", zipped)) << isKnown;
        }
    }

    void isNotHeldUpWhereverThePacketStands()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, isKnown);
        const auto metadata = platform::Metadata::fromFileBytes(file);
        QCOMPARE(metadata.toProperties().contains(QStringLiteral("{XMP}")), isKnown);
    }

    void looksForPacketsInALineAndNotInASquare_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<bool>("isDigestible");
        const QByteArray name = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
        QTest::newRow("beginnings alone") << name.repeated(300'000) << true;
        QTest::newRow("openings alone") << QByteArray("<a b='" + name + "'><rdf:RDF>").repeated(200'000) << true;
        QTest::newRow("without an opening")
            << QByteArray(name + "</rdf:RDF>").replace('<', ' ').repeated(200'000) << true;
        QTest::newRow("many small ones") << packetOf(description(9)).repeated(40'000) << true;
        const QByteArray far(9'000'000, ' ');
        QTest::newRow("far behind") << far + packetOf(description(9)) + far + packetOf(description(9000)) << false;
        const QByteArray outside = "<a xmlns:rdf='" + name + "'><rdf:RDF>" + description(9000) + "</rdf:RDF></a>";
        QTest::newRow("named further out") << far + outside << false;
    }

    void looksForPacketsInALineAndNotInASquare()
    {
        QFETCH(QByteArray, file);
        QFETCH(bool, isDigestible);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(platform::holdsDigestibleXmp(file), isDigestible);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    }
};

QUORLIN_TEST(XmpBounds)
#include "tst_xmp_bounds.moc"
