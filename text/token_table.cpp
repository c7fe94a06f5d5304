#include "text/token_table.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace text {
namespace {

constexpr auto path = TokenSource::Path;
constexpr auto facts = TokenSource::Facts;

constexpr std::array table = {
    TokenRow{Token::Name, "name", TokenForms::Name, path, QT_TRANSLATE_NOOP("text", "Name without extension"),
             "IMG_4711"},
    TokenRow{Token::Extension, "extension", TokenForms::None, path, QT_TRANSLATE_NOOP("text", "Extension"), "jpg"},
    TokenRow{Token::Date, "date", TokenForms::Date, facts,
             QT_TRANSLATE_NOOP("text", "Date taken, otherwise date changed"), "2026-08-14"},
    TokenRow{Token::Taken, "taken", TokenForms::Date, facts, QT_TRANSLATE_NOOP("text", "Date taken"), "2026-08-14"},
    TokenRow{Token::Created, "created", TokenForms::Date, facts, QT_TRANSLATE_NOOP("text", "Date created"),
             "2026-08-14"},
    TokenRow{Token::Changed, "changed", TokenForms::Date, facts, QT_TRANSLATE_NOOP("text", "Date changed"),
             "2026-08-15"},
    TokenRow{Token::Counter, "counter", TokenForms::Counter, path, QT_TRANSLATE_NOOP("text", "Counter"), "1"},
    TokenRow{Token::Camera, "camera", TokenForms::None, facts, QT_TRANSLATE_NOOP("text", "Camera"), "Canon EOS 40D"},
    TokenRow{Token::Lens, "lens", TokenForms::None, facts, QT_TRANSLATE_NOOP("text", "Lens"), "EF 50mm f/1.4"},
    TokenRow{Token::Width, "width", TokenForms::None, facts, QT_TRANSLATE_NOOP("text", "Width in pixels"), "4032"},
    TokenRow{Token::Height, "height", TokenForms::None, facts, QT_TRANSLATE_NOOP("text", "Height in pixels"), "3024"},
    TokenRow{Token::Size, "size", TokenForms::Size, facts, QT_TRANSLATE_NOOP("text", "File size"), "2.4 MB"},
    TokenRow{Token::Type, "type", TokenForms::None, facts, QT_TRANSLATE_NOOP("text", "File type"), "JPEG"},
    TokenRow{Token::Orientation, "orientation", TokenForms::None, facts,
             QT_TRANSLATE_NOOP("text", "Landscape, portrait or square"), QT_TRANSLATE_NOOP("text", "Landscape")},
    TokenRow{Token::Rating, "rating", TokenForms::None, facts, QT_TRANSLATE_NOOP("text", "Rating, 1 to 5"), "3"},
    TokenRow{Token::Folder, "folder", TokenForms::None, path, QT_TRANSLATE_NOOP("text", "Name of the folder"),
             QT_TRANSLATE_NOOP("text", "Holiday")},
};

bool isDateForm(const QString &form)
{
    for (qsizetype at = 0; at < form.size();) {
        const qsizetype length = datePartAt(form, at).size();
        const char16_t c = form[at].unicode();
        if (length == 0 && ((c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z')))
            return false;
        at += std::max<qsizetype>(length, 1);
    }
    return true;
}

bool isNumber(const QString &form, qsizetype mostFigures)
{
    return form.size() <= mostFigures &&
           std::all_of(form.begin(), form.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isNameForm(const QString &form)
{
    constexpr qsizetype mostFigures = 3;
    return form.isEmpty() || form == QStringLiteral("word") ||
           (isNumber(form, mostFigures) && !form.startsWith(u'0')) || !wordsOfForm(form).isEmpty();
}

} // namespace

std::span<const TokenRow> tokenTable()
{
    return table;
}

const TokenRow *tokenRow(QStringView name)
{
    const auto *found =
        std::find_if(table.begin(), table.end(), [&](const TokenRow &row) { return name == QLatin1String(row.name); });
    return found == table.end() ? nullptr : found;
}

bool isTokenForm(TokenForms forms, const QString &form)
{
    constexpr qsizetype mostFigures = 9;
    switch (forms) {
    case TokenForms::Date:
        return isDateForm(form);
    case TokenForms::Counter:
        return isNumber(form, mostFigures);
    case TokenForms::Name:
        return isNameForm(form);
    case TokenForms::Size:
        return form.isEmpty() || form == QStringLiteral("class") || form == QStringLiteral("MB");
    case TokenForms::None:
        break;
    }
    return form.isEmpty();
}

QStringView datePartAt(const QString &form, qsizetype at)
{
    const QStringView rest = QStringView(form).mid(at);
    for (const char *part : datePartNames) {
        const QLatin1String name(part);
        if (rest.startsWith(name))
            return rest.left(name.size());
    }
    return {};
}

QStringList wordsOfForm(const QString &form)
{
    QStringList words;
    if (!form.startsWith(u'~'))
        return words;
    for (const QStringView piece : QStringView(form).mid(1).split(u',')) {
        if (const QString word = withoutBlanksAround(piece); !word.isEmpty())
            words.append(word);
    }
    return words;
}

bool isBlank(QChar c)
{
    return c.isSpace() || c == QChar(QChar::ByteOrderMark);
}

QString withoutBlanksAround(QStringView text)
{
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.mid(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text.toString();
}

} // namespace text
