#include "text/token_values.h"

#include "text/code_points.h"
#include "text/token_table.h"

#include "platform/foundation/file_names.h"
#include "platform/foundation/human_texts.h"

#include <QCoreApplication>
#include <QDate>

#include <algorithm>
#include <array>
#include <limits>

namespace text {
namespace {

QString words(const char *english, TokenLanguage language)
{
    return language == TokenLanguage::English ? QString::fromUtf8(english)
                                              : QCoreApplication::translate("text", english);
}

QString monthName(const QString &date, TokenLanguage language)
{
    const int month = QStringView(date).mid(5, 2).toInt();
    return words(QT_TRANSLATE_NOOP("text", "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec"), language)
        .split(u' ')
        .value(month - 1);
}

QString dayName(const QString &date, TokenLanguage language)
{
    constexpr int daysInWeek = 7;
    const QDate day = QDate::fromString(date.left(10), Qt::ISODate);
    const QStringList names = words(QT_TRANSLATE_NOOP("text", "Sun Mon Tue Wed Thu Fri Sat"), language).split(u' ');
    return day.isValid() ? names.value(day.dayOfWeek() % daysInWeek) : QString();
}

QString datePiece(const QString &date, QStringView part, TokenLanguage language)
{
    if (part == u"MMM")
        return monthName(date, language);
    if (part == u"EEE")
        return dayName(date, language);
    struct Place
    {
        QStringView part;
        qsizetype at;
    };
    static constexpr std::array places = {Place{u"yyyy", 0}, Place{u"yy", 2},  Place{u"MM", 5}, Place{u"dd", 8},
                                          Place{u"HH", 11},  Place{u"mm", 14}, Place{u"ss", 17}};
    const auto *place =
        std::find_if(places.begin(), places.end(), [&](const Place &each) { return each.part == part; });
    return date.mid(place->at, part.size());
}

/** The first letters of a text; one that takes two units is one letter. */
QString firstLetters(const QString &text, qlonglong count)
{
    qsizetype end = 0;
    for (qlonglong letters = 0; letters < count && end < text.size(); ++letters)
        end += unitsOf(characterAt(text, end));
    return text.left(end);
}

bool endsWord(QChar c)
{
    constexpr char16_t nextLine = 0x85;
    return (c >= u'0' && c <= u'9') || c == u'-' || c == u'_' || c == u'.' || (isBlank(c) && c != nextLine);
}

QString firstWord(const QString &name)
{
    return name.left(std::find_if(name.begin(), name.end(), endsWord) - name.begin());
}

QString wordIn(const QString &name, const QStringList &words)
{
    const QString all = platform::nameKey(name);
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&](const QString &word) { return all.contains(platform::nameKey(word)); });
    return found == words.end() ? QString() : *found;
}

QString counterText(const QString &form, qint64 index)
{
    if (!isTokenForm(TokenForms::Counter, form))
        return {};
    const qint64 first = form.isEmpty() ? 1 : form.toLongLong();
    return QString::number(first + index).rightJustified(form.size(), u'0');
}

QString megabytesText(qint64 bytes)
{
    constexpr qint64 tenth = 100000;
    const qint64 tenths = bytes / tenth + (bytes % tenth >= tenth / 2 ? 1 : 0);
    const QString whole = QString::number(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + u'.' + QString::number(tenths % 10);
}

QString sizeText(const TokenFacts &facts, const QString &form, TokenLanguage language)
{
    if (facts.bytes < 0)
        return {};
    if (form == u"class")
        return sizeClassText(facts.bytes, language);
    if (form == u"MB")
        return megabytesText(facts.bytes);
    if (!facts.size.isEmpty())
        return facts.size;
    return language == TokenLanguage::English ? platform::byteCountText(facts.bytes)
                                              : platform::localByteCountText(facts.bytes);
}

QString dateOrNothing(const QString &date, const QString &form, TokenLanguage language)
{
    return date.isEmpty() ? QString() : dateText(date, form, language);
}

QString lengthText(int pixels)
{
    return pixels > 0 ? QString::number(pixels) : QString();
}

/** The last component of a path, which may be empty, and where its extension begins, behind the dot; its length for none. */
struct LastName
{
    explicit LastName(const QString &path) : name(path.mid(path.lastIndexOf(u'/') + 1))
    {
        const qsizetype dot = name.lastIndexOf(u'.');
        if (dot > 0 && dot < name.size() - 1)
            m_dot = dot;
    }

    QString base() const { return name.left(m_dot); }
    QString extension() const { return m_dot < 0 ? QString() : name.mid(m_dot + 1); }

    QString name;

private:
    qsizetype m_dot = -1;
};

QString folderName(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash > 0 ? path.left(slash).section(u'/', -1) : QString();
}

/** The value of a token; empty if it is missing. */
QString valueOf(Token token, const QString &form, const TokenFacts &facts, TokenLanguage language)
{
    switch (token) {
    case Token::Name:
        return namePart(LastName(facts.path).base(), form);
    case Token::Extension:
        return LastName(facts.path).extension();
    case Token::Date:
        return dateOrNothing(facts.taken.isEmpty() ? facts.changed : facts.taken, form, language);
    case Token::Taken:
        return dateOrNothing(facts.taken, form, language);
    case Token::Created:
        return dateOrNothing(facts.created, form, language);
    case Token::Changed:
        return dateOrNothing(facts.changed, form, language);
    case Token::Counter:
        return counterText(form, facts.index);
    case Token::Camera:
        return facts.camera;
    case Token::Lens:
        return facts.lens;
    case Token::Width:
        return lengthText(facts.pixels.width());
    case Token::Height:
        return lengthText(facts.pixels.height());
    case Token::Size:
        return sizeText(facts, form, language);
    case Token::Type:
        return facts.type;
    case Token::Orientation:
        return orientationText(facts.pixels, language);
    case Token::Rating:
        return facts.rating > 0 ? QString::number(facts.rating) : QString();
    case Token::Folder:
        return folderName(facts.path);
    }
    return {};
}

} // namespace

Expanded expandTokens(const QList<TokenPart> &parts, const TokenFacts &facts, TokenLanguage language,
                      const StandIn &standIn, const Clean &clean)
{
    Expanded made;
    for (const TokenPart &part : parts) {
        if (!part.isToken) {
            made.text += part.text;
            continue;
        }
        const TokenRow *row = tokenRow(part.token);
        QString value = row == nullptr ? QString() : valueOf(row->token, part.form, facts, language);
        if (value.isEmpty()) {
            made.missing.append(part.token);
            value = standIn ? standIn(part) : QString();
        }
        made.text += clean ? clean(value) : value;
    }
    return made;
}

QString dateText(const QString &date, const QString &form, TokenLanguage language)
{
    const QString wanted = form.isEmpty() ? QStringLiteral("yyyy-MM-dd") : form;
    QString made;
    for (qsizetype at = 0; at < wanted.size();) {
        const QStringView part = datePartAt(wanted, at);
        if (part.isEmpty())
            made += wanted[at];
        else
            made += datePiece(date, part, language);
        at += std::max<qsizetype>(part.size(), 1);
    }
    return made;
}

QString namePart(const QString &name, const QString &form)
{
    if (form.isEmpty())
        return name;
    if (form == u"word")
        return firstWord(name);
    if (form.startsWith(u'~'))
        return wordIn(name, wordsOfForm(form));
    return withoutBlanksAround(firstLetters(name, form.toLongLong()));
}

QString sizeClassText(qint64 bytes, TokenLanguage language)
{
    struct Class
    {
        qint64 below;
        const char *words;
    };
    static constexpr std::array classes = {
        Class{1'000'000, QT_TRANSLATE_NOOP("text", "Under 1 MB")},
        Class{5'000'000, QT_TRANSLATE_NOOP("text", "1 to 5 MB")},
        Class{20'000'000, QT_TRANSLATE_NOOP("text", "5 to 20 MB")},
    };
    const auto *found =
        std::find_if(classes.begin(), classes.end(), [&](const Class &each) { return bytes < each.below; });
    return words(found == classes.end() ? QT_TRANSLATE_NOOP("text", "20 MB and more") : found->words, language);
}

QString orientationText(QSize pixels, TokenLanguage language)
{
    if (pixels.width() <= 0 || pixels.height() <= 0)
        return {};
    if (pixels.width() == pixels.height())
        return words(QT_TRANSLATE_NOOP("text", "Square"), language);
    return pixels.width() > pixels.height() ? words(QT_TRANSLATE_NOOP("text", "Landscape"), language)
                                            : words(QT_TRANSLATE_NOOP("text", "Portrait"), language);
}

} // namespace text
