// One reader of directories over memory and over a file, classic and with offsets of 64 bits, in both byte orders.
#include "platform/imageio/tiff/tiff_extents.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QTest>

using namespace platform;

namespace {

QByteArray header(const TiffForm &form, quint64 first)
{
    const QByteArray mark = form.little ? "II" : "MM";
    return form.big ? mark + form.bytes(43, 2) + form.bytes(8, 2) + form.bytes(0, 2) + form.offset(first)
                    : mark + form.bytes(42, 2) + form.offset(first);
}

QByteArray shortEntry(const TiffForm &form, quint16 tag, quint16 value)
{
    return form.entry(tag, tiffType::shortType, 1, form.bytes(value, 2));
}

/** A file whose first directory has these entries, which are at its end. */
QByteArray fileWith(const TiffForm &form, const QByteArray &entries, quint64 next = 0)
{
    return header(form, quint64(form.headerSize())) + form.directory(entries, next);
}

struct FailingBuffer : QBuffer
{
    qint64 failsAt = 0;
    qint64 readData(char *data, qint64 count) override
    {
        return pos() + count > failsAt ? -1 : QBuffer::readData(data, count);
    }
};

} // namespace

class ReadingTiff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsNumbersInEachForm_data()
    {
        QTest::addColumn<bool>("isLittle");
        QTest::addColumn<bool>("isBig");
        QTest::newRow("II") << true << false;
        QTest::newRow("MM") << false << false;
        QTest::newRow("II, 64 bits") << true << true;
        QTest::newRow("MM, 64 bits") << false << true;
    }
    void readsNumbersInEachForm()
    {
        QFETCH(bool, isLittle);
        QFETCH(bool, isBig);
        const TiffForm form{isLittle, isBig};
        const QByteArray text = "a text that is too long for an entry";
        const auto textAt = quint64(form.headerSize() + form.countSize() + 3 * form.entrySize() + form.offsetSize());
        const QByteArray file =
            fileWith(form, shortEntry(form, tiffTag::width, 640) +
                               form.entry(tiffTag::make, 2, quint64(text.size()), form.offset(textAt)) +
                               form.entry(tiffTag::stripSizes, tiffType::byteType, 2, QByteArray("\x07\xfe"))) +
            text;
        QBuffer device;
        device.setData(file);
        QVERIFY(device.open(QIODevice::ReadOnly));
        for (const TiffReader &reader : {TiffReader(file), TiffReader(device)}) {
            QVERIFY(reader.isValid());
            QCOMPARE(reader.isClassic(), !isBig);
            QVERIFY(reader.form() == form);
            const TiffDirectory first = reader.first();
            QVERIFY(first.valid);
            QCOMPARE(first.entries.size(), 3);
            QCOMPARE(first.range.end(), qint64(textAt));
            QCOMPARE(reader.integer(first, tiffTag::width), quint64(640));
            QCOMPARE(reader.integer(first, tiffTag::height, 7), quint64(7));
            QCOMPARE(reader.integer(first, tiffTag::make, 7), quint64(7)); // no number
            QCOMPARE(reader.value(*first.find(tiffTag::make), 100), text);
            QCOMPARE(reader.value(*first.find(tiffTag::make), 10), QByteArray());
            QCOMPARE(reader.integer(*first.find(tiffTag::stripSizes), 1), quint64(0xfe));
            QCOMPARE(reader.integer(*first.find(tiffTag::stripSizes), 2), quint64(0));
            QVERIFY(!reader.hasFailed());
        }
    }

    void tellsWhyAValueIsNotSound()
    {
        const TiffForm form;
        const QByteArray file =
            fileWith(form, form.entry(1, 99, 1, {}) + form.entry(2, tiffType::longType, 1 << 30, form.offset(8)) +
                               form.entry(3, tiffType::longType, 4, form.offset(60)) +
                               form.entry(4, tiffType::longType, 4, form.offset(8)));
        const TiffDirectory first = TiffReader(file).first();
        QCOMPARE(file.size(), 62);
        QCOMPARE(first.entries.size(), 4);
        QVERIFY(first.entries[0].state == TiffValue::Nonsense);
        QVERIFY(first.entries[1].state == TiffValue::Nonsense);
        QVERIFY(first.entries[2].state == TiffValue::Outside);
        QVERIFY(first.entries[3].isSound());
        QCOMPARE(TiffReader(file).integer(first, 3, 5), quint64(5));
    }

    void passesOverAnEntryThatIsNotSoundForASecondOne()
    {
        const TiffForm form;
        const QByteArray file =
            fileWith(form, form.entry(tiffTag::width, 99, 1, {}) + shortEntry(form, tiffTag::width, 5));
        const TiffDirectory first = TiffReader(file).first();
        QVERIFY(!first.find(tiffTag::width)->isSound());
        QCOMPARE(TiffReader(file).integer(first, tiffTag::width), quint64(5));
    }

    void refusesWhatIsNoHeader_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const TiffForm big{true, true};
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("short") << header({}, 8).chopped(1);
        QTest::newRow("another version") << QByteArray("II\x2c\0\x08\0\0\0", 8);
        QTest::newRow("mixed order") << QByteArray("IM*\0\x08\0\0\0", 8);
        QTest::newRow("64 bits, cut") << header(big, 16).chopped(1);
        QTest::newRow("64 bits, other offsets") << header(big, 16).replace(4, 1, "\x04");
    }
    void refusesWhatIsNoHeader()
    {
        QFETCH(QByteArray, bytes);
        const TiffReader reader(bytes);
        QVERIFY(!reader.isValid());
        QVERIFY(!reader.first().valid);
    }

    void readsADirectoryThatEndsTheFileWithoutItsNext()
    {
        const TiffForm form;
        const QByteArray file = fileWith(form, shortEntry(form, tiffTag::width, 5), 77).chopped(1);
        const TiffReader reader(file);
        QVERIFY(!reader.first().valid);
        const TiffDirectory cut = reader.directory(reader.firstOffset(), TiffReader::End::MayBeCut);
        QVERIFY(cut.valid);
        QCOMPARE(cut.next, quint64(0));
        QCOMPARE(reader.integer(cut, tiffTag::width), quint64(5));
    }

    void staysInsideTheBytes_data()
    {
        QTest::addColumn<quint64>("offset");
        for (const quint64 offset : {quint64(0), quint64(7), quint64(1000), quint64(1) << 63, ~quint64(0)})
            QTest::newRow(QByteArray::number(offset).constData()) << offset;
    }
    void staysInsideTheBytes()
    {
        QFETCH(quint64, offset);
        const TiffForm form{true, true};
        const QByteArray file = fileWith(form, shortEntry(form, tiffTag::width, 5));
        QVERIFY(!TiffReader(file).directory(offset).valid);
        QVERIFY(!TiffReader(file).directory(offset, TiffReader::End::MayBeCut).valid);
    }

    void entersACircleOnce()
    {
        const TiffForm form;
        const QByteArray pointer = form.entry(tiffTag::exifDirectory, tiffType::longType, 1, form.offset(8));
        const QByteArray file = fileWith(form, pointer, 8);
        const TiffExtents extents = tiffExtents(TiffReader(file), TiffPages::All);
        QVERIFY(!extents.isComplete);
        QCOMPARE(extents.ranges.size(), 1);
    }

    void knowsStripsWhoseSizesAreSingleBytes()
    {
        const TiffForm form;
        const QByteArray file =
            fileWith(form, form.entry(tiffTag::stripOffsets, tiffType::longType, 1, form.offset(38)) +
                               form.entry(tiffTag::stripSizes, tiffType::byteType, 1, QByteArray("\x09"))) +
            QByteArray(9, 'p');
        const TiffExtents extents = tiffExtents(TiffReader(file), TiffPages::First);
        QCOMPARE(extents.pixels.size(), 1);
        QCOMPARE(extents.pixels.first().start, 38);
        QCOMPARE(extents.pixels.first().size, 9);
    }

    void tellsThatAReadFailed()
    {
        const TiffForm form;
        QByteArray entries;
        for (quint16 tag = 1; tag < 1000; ++tag)
            entries += shortEntry(form, tag, tag);
        FailingBuffer device;
        device.setData(fileWith(form, entries));
        device.failsAt = 5000;
        QVERIFY(device.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
        const TiffReader reader(device);
        QVERIFY(reader.isValid());
        QVERIFY(!reader.first().valid);
        QVERIFY(reader.hasFailed());
    }
};

QUORLIN_TEST(ReadingTiff)
#include "tst_tiff_reader.moc"
