#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QVariant>

/**
 * Text operations for building names of files and folders. Each takes values and returns a new one; nothing is stored
 * between calls.
 *
 * Positions and counts are in UTF-16 code units, from 0. A position, count or range outside the text, or a negative
 * one, leaves the text unchanged. Modes are text or a number: 1 and "1" mean the same. Tests answer "YES" or "NO". Null
 * as the text to be changed gives null, and null in a test "NO"; null as any other text is written "(null)".
 */
class cNSStringHandling : public QObject
{
    Q_OBJECT
    /** For scripts only. */
    Q_PROPERTY(QVariant myBaseString2 MEMBER m_baseString)

public:
    Q_INVOKABLE explicit cNSStringHandling(QObject *parent = nullptr);

    /**
     * Changes the case by @p mode: "1" lower, "2" upper, "3" the first letter of each word upper and the rest lower; any other leaves it.
     * Only white space bounds a word. The same in every locale.
     */
    Q_INVOKABLE QString hChangeCaseFiles(const QString &text, const QVariant &mode) const;

    /** The pieces between the separators; one piece if there is none. An empty separator never occurs. */
    Q_INVOKABLE QStringList hSplitString(const QString &text, const QString &separator) const;

    /** @p target with @p insertion at @p position; at the length it is appended. */
    Q_INVOKABLE QString hInsertStringInString(const QString &target, const QString &insertion, int position) const;

    /** Replaces every occurrence, case-sensitively. An empty @p search never occurs. */
    Q_INVOKABLE QString hReplaceStringInString(const QString &text, const QString &search,
                                               const QString &replacement) const;

    /** "NA" keeps letters, marks and numbers of every script, "OL" letters and marks only; any other mode keeps all. */
    Q_INVOKABLE QString hRemoveNonLetters(const QString &text, const QVariant &mode) const;

    /** Removes @p count units from the end ("fRight") or the beginning ("fLeft"); any other side removes none. */
    Q_INVOKABLE QString hStripString(const QString &text, const QVariant &side, int count) const;

    /** @p length units from @p start; all of the text if that range is not in it. */
    Q_INVOKABLE QString hSubsectionString(const QString &text, int start, int length) const;

    /** The user's short date and full time with the zone's name; null for null. */
    Q_INVOKABLE QString hNSDateToNSString(const QDateTime &date) const;

    /** UTF-8 as text, a byte-order mark kept; null if it is not valid. */
    Q_INVOKABLE QString hNSDataToNSString(const QByteArray &data) const;

    /** ASCII bytes; null if a character is outside ASCII. */
    Q_INVOKABLE QByteArray hNSStringToNSData(const QString &text) const;

    Q_INVOKABLE QString hConcatString(const QString &first, const QString &second, const QString &third) const;

    /** In any case of letters; an empty @p search occurs in every text. */
    Q_INVOKABLE QString hStringContainsString(const QString &text, const QString &search) const;

    /** By case. */
    Q_INVOKABLE QString hStringBeginsWith(const QString &text, const QString &prefix) const;

    /** Case-sensitive. Raises a RangeError if @p suffix is longer than @p text; the only operation here that raises. */
    Q_INVOKABLE QString hStringEndWith(const QString &text, const QString &suffix) const;

    /** Base64 on one line. */
    Q_INVOKABLE QString hConvertNSdToNSstr(const QByteArray &data) const;

    /** Skips characters outside the alphabet; null if what remains is not whole groups of four, including padding. */
    Q_INVOKABLE QByteArray hConvertNSstrToNSd(const QString &base64Text) const;

    /** The last component of a path, without trailing slashes. */
    Q_INVOKABLE QString hGetFileNameWithExt(const QString &path) const;

    /** The same without what follows its last dot, and without that dot: "/a/b/c.tar.gz" gives "c.tar". */
    Q_INVOKABLE QString hGetFileNameNoExt(const QString &path) const;

    /** Accented Latin letters become their base letters, everything else outside ASCII "?". */
    Q_INVOKABLE QString hConvertAccentLetters(const QString &text) const;

    /** Removes U+0020 only. */
    Q_INVOKABLE QString hRemoveWhiteSpace(const QString &text) const;

    /**
     * The text after a round trip through UTF-8, which turns half a surrogate pair into "?". Logs "hUTF8toNSString"
     * first.
     */
    Q_INVOKABLE QString hUTF8toNSString(const QString &text) const;

private:
    QVariant m_baseString;
};
