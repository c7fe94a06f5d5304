#include "text/cNSStringHandling.h"

#include "platform/foundation/log.h"
#include "platform/foundation/paths.h"
#include "platform/foundation/raised.h"
#include "platform/foundation/utf8.h"
#include "text/ascii_folding.h"
#include "text/date_text.h"
#include "text/encodings.h"
#include "text/letter_case.h"
#include "text/letters.h"
#include "text/ranges.h"
#include "text/searching.h"

namespace {

QString formatted(const QString &text)
{
    return text.isNull() ? QStringLiteral("(null)") : text;
}

/** Null stays null, and empty text stays text. */
QString sameNull(const QString &source, const QString &result)
{
    if (source.isNull())
        return QString();
    return result.isNull() ? QStringLiteral("") : result;
}

QString answer(bool isSo)
{
    return isSo ? QStringLiteral("YES") : QStringLiteral("NO");
}

text::CaseChange caseChange(const QVariant &mode)
{
    const QString code = mode.toString();
    if (code == QStringLiteral("1"))
        return text::CaseChange::Lower;
    if (code == QStringLiteral("2"))
        return text::CaseChange::Upper;
    return code == QStringLiteral("3") ? text::CaseChange::Capitalised : text::CaseChange::None;
}

} // namespace

cNSStringHandling::cNSStringHandling(QObject *parent) : QObject(parent) {}

QString cNSStringHandling::hChangeCaseFiles(const QString &text, const QVariant &mode) const
{
    const text::CaseChange change = caseChange(mode);
    return change == text::CaseChange::None ? formatted(text) : sameNull(text, text::changedCase(text, change));
}

QStringList cNSStringHandling::hSplitString(const QString &text, const QString &separator) const
{
    return text::pieces(formatted(text), formatted(separator));
}

QString cNSStringHandling::hInsertStringInString(const QString &target, const QString &insertion, int position) const
{
    return sameNull(target, text::inserted(target, formatted(insertion), position).value_or(target));
}

QString cNSStringHandling::hReplaceStringInString(const QString &text, const QString &search,
                                                  const QString &replacement) const
{
    return sameNull(text, text::replaced(text, formatted(search), formatted(replacement)));
}

QString cNSStringHandling::hRemoveNonLetters(const QString &text, const QVariant &mode) const
{
    if (mode.toString() == QStringLiteral("NA"))
        return sameNull(text, text::onlyLetters(text, text::Kept::LettersAndNumbers));
    if (mode.toString() == QStringLiteral("OL"))
        return sameNull(text, text::onlyLetters(text, text::Kept::Letters));
    return text;
}

QString cNSStringHandling::hStripString(const QString &text, const QVariant &side, int count) const
{
    if (side.toString() == QStringLiteral("fRight"))
        return sameNull(text, text::stripped(text, text::Side::Right, count).value_or(text));
    if (side.toString() == QStringLiteral("fLeft"))
        return sameNull(text, text::stripped(text, text::Side::Left, count).value_or(text));
    return text;
}

QString cNSStringHandling::hSubsectionString(const QString &text, int start, int length) const
{
    return sameNull(text, text::section(text, start, length).value_or(text));
}

QString cNSStringHandling::hNSDateToNSString(const QDateTime &date) const
{
    return text::dateText(date, QLocale::system(), QTimeZone::systemTimeZone());
}

QString cNSStringHandling::hNSDataToNSString(const QByteArray &data) const
{
    return data.isNull() ? QString() : platform::textFromUtf8(data).value_or(QString());
}

QByteArray cNSStringHandling::hNSStringToNSData(const QString &text) const
{
    return text.isNull() ? QByteArray() : text::asciiBytes(text).value_or(QByteArray());
}

QString cNSStringHandling::hConcatString(const QString &first, const QString &second, const QString &third) const
{
    return formatted(first) + formatted(second) + formatted(third);
}

QString cNSStringHandling::hStringContainsString(const QString &text, const QString &search) const
{
    return answer(!text.isNull() && !search.isNull() && text::containsInAnyCase(text, search));
}

QString cNSStringHandling::hStringBeginsWith(const QString &text, const QString &prefix) const
{
    return answer(!text.isNull() && !prefix.isNull() && text.startsWith(prefix));
}

QString cNSStringHandling::hStringEndWith(const QString &text, const QString &suffix) const
{
    if (text.isNull() || suffix.isNull())
        return answer(false);
    if (suffix.size() > text.size())
        throw platform::Raised::rangeError(QStringLiteral("Expected at most %1 characters for suffix but received %2")
                                               .arg(text.size())
                                               .arg(suffix.size()));
    return answer(text.endsWith(suffix));
}

QString cNSStringHandling::hConvertNSdToNSstr(const QByteArray &data) const
{
    if (data.isNull())
        return QString();
    return data.isEmpty() ? QStringLiteral("") : QString::fromLatin1(data.toBase64());
}

QByteArray cNSStringHandling::hConvertNSstrToNSd(const QString &base64Text) const
{
    return base64Text.isNull() ? QByteArray() : text::dataFromBase64(base64Text).value_or(QByteArray());
}

QString cNSStringHandling::hGetFileNameWithExt(const QString &path) const
{
    return sameNull(path, platform::lastPathComponent(path));
}

QString cNSStringHandling::hGetFileNameNoExt(const QString &path) const
{
    return sameNull(path, platform::baseName(path));
}

QString cNSStringHandling::hConvertAccentLetters(const QString &text) const
{
    return sameNull(text, text::foldedToAscii(text));
}

QString cNSStringHandling::hRemoveWhiteSpace(const QString &text) const
{
    return sameNull(text, text::withoutSpaces(text));
}

QString cNSStringHandling::hUTF8toNSString(const QString &text) const
{
    platform::logLine(QStringLiteral("hUTF8toNSString"));
    return text::throughUtf8(formatted(text));
}
