#include "platform/imageio/exif/user_comment.h"

#include <QStringDecoder>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <iconv.h>

namespace platform {
namespace {

constexpr qsizetype markLength = 8;

QByteArray mark(const char *name)
{
    return QByteArray(name).leftJustified(markLength, '\0');
}

QByteArray untilNul(const QByteArray &bytes)
{
    const qsizetype end = bytes.indexOf('\0');
    return end < 0 ? bytes : bytes.left(end);
}

QString blankAsEmpty(const QString &text)
{
    return text.trimmed().isEmpty() ? QString() : text;
}

/** How many code units are ASCII characters when @p bytes are read with the high byte at @p highByte (0 or 1). */
qsizetype asciiUnits(const QByteArray &bytes, qsizetype highByte)
{
    qsizetype count = 0;
    for (qsizetype at = 0; at + 1 < bytes.size(); at += 2) {
        const auto high = uchar(bytes.at(at + highByte));
        const auto low = uchar(bytes.at(at + 1 - highByte));
        if (high == 0 && low >= 0x20 && low < 0x7f)
            ++count;
    }
    return count;
}

/**
 * The byte order in which the text makes sense: the file's, unless most of it is plain letters in the other one. A few
 * ideographs end in a zero byte and look like letters in the wrong order, so a short text proves nothing.
 */
QSysInfo::Endian plausibleOrder(const QByteArray &bytes, QSysInfo::Endian order)
{
    const bool little = order == QSysInfo::LittleEndian;
    const qsizetype inOrder = asciiUnits(bytes, little ? 1 : 0);
    const qsizetype inOther = asciiUnits(bytes, little ? 0 : 1);
    constexpr qsizetype fewest = 3;
    const bool other = inOther >= fewest && inOther > inOrder && inOther * 4 > bytes.size();
    return other == little ? QSysInfo::BigEndian : QSysInfo::LittleEndian;
}

/**
 * Whether a reader that guesses the order of 16-bit units guesses right. Readers that do not count letters expect low
 * bytes to vary more than high ones, and zeros to be high bytes if both vary equally.
 */
bool tellsItsOrder(const QString &text)
{
    std::array<bool, 256> highs = {};
    std::array<bool, 256> lows = {};
    qsizetype zeroHighs = 0;
    qsizetype zeroLows = 0;
    for (const QChar unit : text) {
        highs[unit.row()] = true;
        lows[unit.cell()] = true;
        zeroHighs += unit.row() == 0;
        zeroLows += unit.cell() == 0;
    }
    const auto highKinds = std::count(highs.begin(), highs.end(), true);
    const auto lowKinds = std::count(lows.begin(), lows.end(), true);
    return lowKinds > highKinds || (lowKinds == highKinds && zeroLows <= zeroHighs);
}

QString decodeUtf16(QByteArray bytes, QSysInfo::Endian order)
{
    if (bytes.startsWith("\xff\xfe")) {
        order = QSysInfo::LittleEndian;
        bytes.remove(0, 2);
    } else if (bytes.startsWith("\xfe\xff")) {
        order = QSysInfo::BigEndian;
        bytes.remove(0, 2);
    } else {
        order = plausibleOrder(bytes, order);
    }
    QString text(bytes.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char *unit = bytes.constData() + 2 * i;
        text[i] =
            QChar(order == QSysInfo::LittleEndian ? qFromLittleEndian<quint16>(unit) : qFromBigEndian<quint16>(unit));
    }
    const qsizetype end = text.indexOf(QChar(u'\0'));
    return end < 0 ? text : text.left(end);
}

/** The text in the named character set; null if the bytes are invalid in it. */
QString decodeWith(const char *charset, QByteArray bytes)
{
    const iconv_t converter = iconv_open("UTF-8", charset);
    if (converter == iconv_t(-1))
        return {};
    QByteArray utf8(bytes.size() * 4 + 16, '\0');
    char *in = bytes.data();
    char *out = utf8.data();
    size_t inLeft = size_t(bytes.size());
    size_t outLeft = size_t(utf8.size());
    const size_t result = iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    if (result == size_t(-1))
        return {};
    return QString::fromUtf8(utf8.constData(), utf8.size() - qsizetype(outLeft));
}

QString decodeJis(const QByteArray &bytes)
{
    const QByteArray text = untilNul(bytes);
    if (text.isEmpty())
        return {};
    const bool escapes = text.contains('\x1b');
    for (const char *charset : {escapes ? "ISO-2022-JP" : "SHIFT_JIS", "EUC-JP"}) {
        const QString decoded = decodeWith(charset, text);
        if (!decoded.isNull())
            return decoded;
    }
    return decodeUnmarkedText(text);
}

} // namespace

QString decodeUnmarkedText(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

QString decodeUserComment(const QByteArray &value, QSysInfo::Endian order)
{
    const QByteArray head = value.left(markLength);
    const QByteArray rest = value.mid(markLength);
    if (head == mark("UNICODE"))
        return decodeUtf16(rest, order);
    if (head == mark("JIS"))
        return blankAsEmpty(decodeJis(rest));
    if (head == mark("ASCII") || head == QByteArray(markLength, '\0'))
        return blankAsEmpty(decodeUnmarkedText(untilNul(rest)));
    return blankAsEmpty(decodeUnmarkedText(untilNul(value)));
}

QByteArray encodeUserComment(const QString &text, QSysInfo::Endian order)
{
    const bool ascii = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    const bool wouldBeNone = !text.isEmpty() && blankAsEmpty(text).isEmpty();
    if (ascii && !wouldBeNone)
        return mark("ASCII") + text.toLatin1();
    const QByteArray units = utf16Bytes(text, order);
    const bool isUnmistakable = tellsItsOrder(text) && decodeUtf16(units, order) == text;
    return mark("UNICODE") + (isUnmistakable ? QByteArray() : utf16Bytes(QString(QChar::ByteOrderMark), order)) + units;
}

QByteArray utf16Bytes(const QString &text, QSysInfo::Endian order)
{
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        char *unit = bytes.data() + 2 * i;
        if (order == QSysInfo::LittleEndian)
            qToLittleEndian<quint16>(text.at(i).unicode(), unit);
        else
            qToBigEndian<quint16>(text.at(i).unicode(), unit);
    }
    return bytes;
}

} // namespace platform
