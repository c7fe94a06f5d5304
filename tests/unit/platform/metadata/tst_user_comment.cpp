#include "platform/imageio/exif/user_comment.h"
#include "tests/support/test_program.h"

#include <QTest>

using platform::decodeUserComment;
using platform::encodeUserComment;

namespace {

/** A literal with its NULs. */
template<size_t size> QByteArray bytes(const char (&literal)[size])
{
    return QByteArray(literal, size - 1);
}

} // namespace

class UserComment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEachCharacterSet_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("little");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &value, const QString &text, bool little = true) {
            QTest::newRow(name) << value << little << text;
        };
        row("ASCII", bytes("ASCII\0\0\0Harbour"), QStringLiteral("Harbour"));
        row("ASCII with spaces kept", bytes("ASCII\0\0\0 Harbour  "), QStringLiteral(" Harbour  "));
        row("ASCII padded with NULs", bytes("ASCII\0\0\0Harbour\0\0\0"), QStringLiteral("Harbour"));
        row("ASCII with junk after a NUL", bytes("ASCII\0\0\0Harbour\0\x80\x81"), QStringLiteral("Harbour"));
        row("UTF-8 under the ASCII mark",
            bytes("ASCII\0\0\0Gr\xc3\xb6\xc3\x9f"
                  "e"),
            QStringLiteral("Größe"));
        row("Latin-1 under the ASCII mark",
            bytes("ASCII\0\0\0Gr\xf6\xdf"
                  "e"),
            QStringLiteral("Größe"));
        row("undefined set", bytes("\0\0\0\0\0\0\0\0Harbour"), QStringLiteral("Harbour"));
        row("no mark", bytes("Harbour at dawn"), QStringLiteral("Harbour at dawn"));
        row("no mark and short", bytes("Dawn"), QStringLiteral("Dawn"));
        row("no mark that looks like one", bytes("ASCII is a character set"),
            QStringLiteral("ASCII is a character set"));
        row("UNICODE, file's order little", bytes("UNICODE\0\x5a\x00\x7d\x01"),
            QStringLiteral("Zž").replace(1, 1, QChar(0x17d)));
        row("UNICODE, file's order big", bytes("UNICODE\0\x00\x5a\x01\x7d"), QStringLiteral("Z") + QChar(0x17d), false);
        row("UNICODE, order other than the file's", bytes("UNICODE\0\0D\0a\0w\0n"), QStringLiteral("Dawn"), true);
        row("UNICODE, the other way round", bytes("UNICODE\0D\0a\0w\0n\0"), QStringLiteral("Dawn"), false);
        row("UNICODE without a letter of ASCII", bytes("UNICODE\0\x19\x51\x1f\x77"),
            QString(QChar(0x5119)) + QChar(0x771f), true);
        row("UNICODE, letters like ASCII the wrong way round", bytes("UNICODE\0\x4e\x00\x4e\x8c\x4e\x09"),
            QStringLiteral("一二三"), false);
        row("UNICODE, one of them", bytes("UNICODE\0\x4e\x00"), QStringLiteral("一"), false);
        row("UNICODE with a little mark", bytes("UNICODE\0\xff\xfe\x19\x51"), QString(QChar(0x5119)), false);
        row("UNICODE with a big mark", bytes("UNICODE\0\xfe\xff\x51\x19"), QString(QChar(0x5119)), true);
        row("UNICODE beyond the basic plane", bytes("UNICODE\0\x3d\xd8\x00\xde"), QStringLiteral("😀"));
        row("UNICODE ended by a NUL", bytes("UNICODE\0D\0a\0\0\0x\0"), QStringLiteral("Da"));
        row("UNICODE of an odd length", bytes("UNICODE\0D\0a\0w"), QStringLiteral("Da"));
        row("JIS with escapes", bytes("JIS\0\0\0\0\0\x1b$B<L??\x1b(B"), QStringLiteral("写真"));
        row("JIS as Shift JIS", bytes("JIS\0\0\0\0\0\x8e\xca\x90\x5e"), QStringLiteral("写真"));
        row("JIS in plain ASCII", bytes("JIS\0\0\0\0\0Harbour"), QStringLiteral("Harbour"));
        row("empty", {}, {});
        row("mark alone", bytes("ASCII\0\0\0"), {});
        row("UNICODE mark alone", bytes("UNICODE\0"), {});
        row("half a mark", bytes("ASC"), QStringLiteral("ASC"));
        row("blanks", bytes("ASCII\0\0\0      "), {});
        row("blanks and NULs", bytes("\0\0\0\0\0\0\0\0   \0\0"), {});
        row("nothing but NULs", QByteArray(264, '\0'), {});
        row("UNICODE blanks, which somebody typed", bytes("UNICODE\0 \0 \0 \0"), QStringLiteral("   "));
    }

    void readsEachCharacterSet()
    {
        QFETCH(QByteArray, value);
        QFETCH(bool, little);
        QFETCH(QString, text);
        QCOMPARE(decodeUserComment(value, little ? QSysInfo::LittleEndian : QSysInfo::BigEndian), text);
    }

    void writesPlainAsciiUnderItsMark()
    {
        QCOMPARE(encodeUserComment(QStringLiteral("Dawn"), QSysInfo::BigEndian), bytes("ASCII\0\0\0Dawn"));
        QCOMPARE(encodeUserComment(QString(), QSysInfo::LittleEndian), bytes("ASCII\0\0\0"));
    }

    void writesOtherTextInTheFilesOrder()
    {
        QCOMPARE(encodeUserComment(QStringLiteral("ö😀"), QSysInfo::LittleEndian),
                 bytes("UNICODE\0\xf6\x00\x3d\xd8\x00\xde"));
        QCOMPARE(encodeUserComment(QStringLiteral("ö😀"), QSysInfo::BigEndian),
                 bytes("UNICODE\0\x00\xf6\xd8\x3d\xde\x00"));
    }

    void marksTheOrderWhereItCouldBeMistaken()
    {
        QCOMPARE(encodeUserComment(QStringLiteral("☀☀☀"), QSysInfo::LittleEndian),
                 bytes("UNICODE\0\xff\xfe\x00\x26\x00\x26\x00\x26"));
        QCOMPARE(encodeUserComment(QStringLiteral("☀☀☀"), QSysInfo::BigEndian),
                 bytes("UNICODE\0\xfe\xff\x26\x00\x26\x00\x26\x00"));
        QCOMPARE(encodeUserComment(QStringLiteral("  "), QSysInfo::BigEndian), bytes("UNICODE\0\0 \0 "));
    }

    void readsBackWhatItWrote_data()
    {
        QTest::addColumn<QString>("text");
        for (const QString &text : {QStringLiteral("Plain"), QStringLiteral("Größe 5½"), QStringLiteral("Ελληνικά"),
                                    QStringLiteral("Кириллица"), QStringLiteral("写真"), QStringLiteral("😀🏔️"),
                                    QStringLiteral("a\nb\tc"), QStringLiteral("Žluťoučký kůň 写真 😀"),
                                    QStringLiteral("☀☀☀"), QStringLiteral("☀☁☂☀☁☂"), QStringLiteral("   "),
                                    QStringLiteral(" \n"), QString(QChar(0xfeff)) + u'x', QString(QChar(0xfffe)) + u'x',
                                    QStringLiteral("一一一"), QStringLiteral("戀戀戀 a"), QString(QChar(0xd800))})
            QTest::newRow(qPrintable(text)) << text;
    }

    void readsBackWhatItWrote()
    {
        QFETCH(QString, text);
        for (const auto order : {QSysInfo::LittleEndian, QSysInfo::BigEndian})
            QCOMPARE(decodeUserComment(encodeUserComment(text, order), order), text);
    }
};

QUORLIN_TEST(UserComment)
#include "tst_user_comment.moc"
