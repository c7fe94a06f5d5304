#include "platform/graphics/icc_profile.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>
#include <QtEndian>

#include <array>
#include <cmath>
#include <functional>

using platform::isSrgb;

namespace {

using Colorants = std::array<std::array<double, 3>, 3>; ///< of red, green and blue

constexpr Colorants srgb = {{{0.4361, 0.2225, 0.0139}, {0.3851, 0.7169, 0.0971}, {0.1431, 0.0606, 0.7141}}};
constexpr Colorants displayP3 = {{{0.5151, 0.2412, -0.0011}, {0.2920, 0.6922, 0.0419}, {0.1571, 0.0666, 0.7841}}};

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray fixedPoint(double value)
{
    return number(quint32(qint32(std::lround(value * 65536))));
}

QByteArray colorant(const std::array<double, 3> &xyz)
{
    return QByteArray("XYZ \0\0\0\0", 8) + fixedPoint(xyz[0]) + fixedPoint(xyz[1]) + fixedPoint(xyz[2]);
}

double lightOfSrgb(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

QByteArray sampled(int count, const std::function<double(double)> &light)
{
    QByteArray tag = QByteArray("curv\0\0\0\0", 8) + number(quint32(count));
    for (int i = 0; i < count; ++i) {
        QByteArray sample(2, '\0');
        qToBigEndian(quint16(std::lround(light(i / (count - 1.0)) * 65535)), sample.data());
        tag += sample;
    }
    return tag;
}

QByteArray power(double exponent)
{
    QByteArray tag = QByteArray("curv\0\0\0\0", 8) + number(1) + QByteArray(2, '\0');
    qToBigEndian(quint16(std::lround(exponent * 256)), tag.data() + 12);
    return tag;
}

QByteArray formula(int kind, const QList<double> &parameters)
{
    QByteArray tag = QByteArray("para\0\0\0\0", 8) + number(quint32(kind) << 16);
    for (const double parameter : parameters)
        tag += fixedPoint(parameter);
    return tag;
}

const QByteArray srgbFormula = formula(3, {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045});

/** Of a display's profile of version 4, connected by XYZ under the light D50. */
QByteArray header(qsizetype size, const char *space)
{
    const QByteArray dateAndMark = QByteArray(12, '\0') + "acsp";
    const QByteArray white = fixedPoint(0.9642) + fixedPoint(1) + fixedPoint(0.8249);
    const QByteArray head = number(quint32(size)) + QByteArray(4, '\0') + number(0x04300000) + "mntr" + space + "XYZ " +
                            dateAndMark + QByteArray(28, '\0') + white;
    return head.leftJustified(128, '\0');
}

/** Two bytes a number, as tables have them. */
QByteArray words(const QList<int> &values)
{
    QByteArray bytes(2 * values.size(), '\0');
    for (qsizetype i = 0; i < values.size(); ++i)
        qToBigEndian(quint16(values[i]), bytes.data() + 2 * i);
    return bytes;
}

/** A conversion by tables: a curve of 256 samples for each component, then the colorants in the corners of a cube. */
QByteArray tables(const Colorants &colours, const std::function<double(double)> &light)
{
    QByteArray tag = QByteArray("mft2\0\0\0\0\3\3\2\0", 12);
    for (int i = 0; i < 9; ++i)
        tag += fixedPoint(i % 4 == 0 ? 1 : 0);
    QList<int> numbers = {256, 2};
    for (int i = 0; i < 3 * 256; ++i)
        numbers += int(std::lround(light(i % 256 / 255.0) * 65535));
    for (int corner = 0; corner < 8; ++corner) // blue changes first
        for (size_t xyz = 0; xyz < 3; ++xyz) {
            constexpr double one = 32768;
            const double value = (corner & 4 ? colours[0][xyz] : 0) + (corner & 2 ? colours[1][xyz] : 0) +
                                 (corner & 1 ? colours[2][xyz] : 0);
            numbers += int(std::lround(value * one));
        }
    numbers += {0, 65535, 0, 65535, 0, 65535};
    return tag + words(numbers);
}

QByteArray profileOf(const QList<QPair<QByteArray, QByteArray>> &tags, const char *space = "RGB ")
{
    QByteArray table = number(quint32(tags.size()));
    QByteArray values;
    for (const auto &[name, value] : tags) {
        table += name + number(quint32(132 + 12 * tags.size() + values.size())) + number(quint32(value.size()));
        values += value;
        values += QByteArray((4 - values.size() % 4) % 4, '\0'); // tags begin at multiples of four
    }
    return header(128 + table.size() + values.size(), space) + table + values;
}

QByteArray matrixProfile(const Colorants &colours, const QByteArray &curve, const char *space = "RGB ")
{
    return profileOf({{"rXYZ", colorant(colours[0])},
                      {"gXYZ", colorant(colours[1])},
                      {"bXYZ", colorant(colours[2])},
                      {"rTRC", curve},
                      {"gTRC", curve},
                      {"bTRC", curve}},
                     space);
}

} // namespace

class IccProfiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsSrgbByWhatItDoes_data();
    void knowsSrgbByWhatItDoes();
    void goesByTablesBeforeColorants();
    void readsNothingOutside();
    void knowsThoseOfRealPictures_data();
    void knowsThoseOfRealPictures();
};

void IccProfiles::knowsSrgbByWhatItDoes_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<bool>("isIt");
    const auto straight = [](double value) { return value; };
    QTest::newRow("formula") << matrixProfile(srgb, srgbFormula) << true;
    QTest::newRow("long formula") << matrixProfile(
                                         srgb, formula(4, {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045, 0, 0}))
                                  << true;
    QTest::newRow("1024 samples") << matrixProfile(srgb, sampled(1024, lightOfSrgb)) << true;
    QTest::newRow("one power") << matrixProfile(srgb, power(2.2)) << false;
    QTest::newRow("one power as formula") << matrixProfile(srgb, formula(0, {2.2})) << false;
    QTest::newRow("power with a shift") << matrixProfile(srgb, formula(1, {2.4, 1 / 1.055, 0.055 / 1.055})) << false;
    QTest::newRow("power above a floor") << matrixProfile(srgb, formula(2, {2.4, 1 / 1.055, 0.055 / 1.055, 0.01}))
                                         << false;
    QTest::newRow("no curve") << matrixProfile(srgb, sampled(2, straight)) << false;
    QTest::newRow("no samples") << matrixProfile(srgb, QByteArray("curv\0\0\0\0\0\0\0\0", 12)) << false;
    QTest::newRow("other colorants, same curve") << matrixProfile(displayP3, srgbFormula) << false;
    QTest::newRow("red and blue swapped") << matrixProfile({srgb[2], srgb[1], srgb[0]}, srgbFormula) << false;
    Colorants near = srgb;
    near[0][0] += 0.004;
    QTest::newRow("nearly") << matrixProfile(near, srgbFormula) << false;
    QTest::newRow("no colours") << matrixProfile(srgb, srgbFormula, "GRAY") << false;
    QTest::newRow("unknown formula") << matrixProfile(srgb, formula(9, {1, 1, 1, 1, 1, 1, 1})) << false;
    QTest::newRow("more samples than there are")
        << matrixProfile(srgb, QByteArray("curv\0\0\0\0\x7f\xff\xff\xff", 12) + QByteArray(40, 'x')) << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void IccProfiles::knowsSrgbByWhatItDoes()
{
    QFETCH(QByteArray, profile);
    QFETCH(bool, isIt);
    QCOMPARE(isSrgb(profile), isIt);
    QCOMPARE(isSrgb(profile), isIt); // also when asked again
}

void IccProfiles::goesByTablesBeforeColorants()
{
    const QByteArray mark = colorant({0.9642, 1, 0.8249});
    const auto withTable = [&mark](const QByteArray &table) {
        return profileOf({{"A2B0", table},
                          {"wtpt", mark},
                          {"rXYZ", colorant(srgb[0])},
                          {"gXYZ", colorant(srgb[1])},
                          {"bXYZ", colorant(srgb[2])},
                          {"rTRC", srgbFormula},
                          {"gTRC", srgbFormula},
                          {"bTRC", srgbFormula}});
    };
    QVERIFY(isSrgb(withTable(tables(srgb, lightOfSrgb))));
    QVERIFY(!isSrgb(withTable(tables(displayP3, lightOfSrgb))));
    QVERIFY(!isSrgb(withTable(tables(srgb, [](double value) { return value * value; }))));
    QVERIFY(!isSrgb(withTable("mft2"))); // cut
}

void IccProfiles::readsNothingOutside()
{
    const QByteArray whole = matrixProfile(srgb, sampled(16, lightOfSrgb));
    for (qsizetype size = 0; size < whole.size(); ++size)
        QVERIFY(!isSrgb(QByteArray(whole.constData(), size)));
    for (qsizetype at = 0; at < 208; ++at) { // the header, counts, places and lengths
        QByteArray broken = whole;
        broken[at] = '\xff';
        isSrgb(broken);
    }
}

void IccProfiles::knowsThoseOfRealPictures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isIt");
    for (const expected::Row &row : expected::rows())
        if (row.isDecodable && row.profile.size() > 1)
            QTest::newRow(qPrintable(row.name)) << row.path << row.profile.contains(QLatin1String("sRGB"));
}

void IccProfiles::knowsThoseOfRealPictures()
{
    QFETCH(QString, path);
    QFETCH(bool, isIt);
    const auto source = platform::ImageSource::open(path);
    if (!source)
        QSKIP("no decoder reads it");
    QCOMPARE(isSrgb(source->decode()->iccProfile()), isIt);
}

QUORLIN_TEST(IccProfiles)
#include "tst_icc_profile.moc"
