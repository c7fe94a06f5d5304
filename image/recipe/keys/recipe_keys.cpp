#include "image/recipe/keys/recipe_keys.h"
#include "image/types/sentence.h"
#include "platform/foundation/paths.h"

#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace image {
namespace {

QString plain(double number)
{
    constexpr int digits = 16; // so that the largest whole number in any range is written in full
    return QString::number(number, 'g', digits);
}

QString expectedNumber(const NumberRange &range)
{
    if (range.isAboveLeast)
        return sentence(QT_TRANSLATE_NOOP("recipe", "a number above %1, to %2"))
            .arg(plain(range.least), plain(range.most));
    const QString form = range.isWhole ? sentence(QT_TRANSLATE_NOOP("recipe", "a whole number from %1 to %2"))
                                       : sentence(QT_TRANSLATE_NOOP("recipe", "a number from %1 to %2"));
    return form.arg(plain(range.least), plain(range.most));
}

QString escaped(QChar sign)
{
    constexpr int digits = 4;
    constexpr int hexadecimal = 16;
    return QStringLiteral("\\u%1").arg(int(sign.unicode()), digits, hexadecimal, QLatin1Char('0'));
}

/** Half of a pair without the other half, unless it represents a byte of a path. */
bool isHalfCharacter(const QString &text, qsizetype at)
{
    if (!text[at].isSurrogate())
        return false;
    const bool hasLower = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    const bool hasUpper = text[at].isLowSurrogate() && at > 0 && text[at - 1].isHighSurrogate();
    return !hasLower && !hasUpper && !platform::canBeAPath(text.mid(at, 1));
}

/** Without anything that would break the line or change the direction of what follows. */
QString onOneLine(const QString &text)
{
    QString line;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar::Category category = text[at].category();
        const bool isOdd = category == QChar::Other_Control || category == QChar::Other_Format ||
                           category == QChar::Separator_Line || category == QChar::Separator_Paragraph ||
                           isHalfCharacter(text, at);
        line += isOdd ? escaped(text[at]) : QString(text[at]);
    }
    return line;
}

/** A value as in the file, truncated if it is long. */
QString written(const QJsonValue &value)
{
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    return shortened(list.mid(1, list.size() - 2));
}

} // namespace

QString shortened(const QString &text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    return text.left(text[longest - 1].isHighSurrogate() ? longest - 1 : longest) + u'…';
}

QString placeOfKey(const QString &place, const QString &key)
{
    const auto isOfWord = [](QChar sign) { return sign.isLetterOrNumber() || sign == u'_' || sign == u'-'; };
    const bool isWord = !key.isEmpty() && std::all_of(key.begin(), key.end(), isOfWord);
    return (place.isEmpty() ? place : place + u'.') + (isWord ? shortened(key) : written(key));
}

void RecipeProblem::state(const QString &place, const QString &what)
{
    constexpr qsizetype longest = 300;
    if (m_sentence.isEmpty())
        m_sentence = onOneLine(place.isEmpty() ? what : place + QLatin1String(": ") + shortened(what, longest));
}

std::optional<QColor> recipeColor(const QString &text)
{
    constexpr qsizetype opaqueLength = 7;
    constexpr qsizetype fullLength = 9;
    if (!text.startsWith(u'#') || (text.size() != opaqueLength && text.size() != fullLength))
        return std::nullopt;
    constexpr int hexadecimal = 16;
    const auto isDigit = [](QChar sign) {
        return (sign >= u'0' && sign <= u'9') || (sign >= u'a' && sign <= u'f') || (sign >= u'A' && sign <= u'F');
    };
    if (!std::all_of(text.begin() + 1, text.end(), isDigit))
        return std::nullopt;
    const auto part = [&text](int index) { return text.mid(1 + 2 * index, 2).toInt(nullptr, hexadecimal); };
    constexpr int alpha = 3;
    return QColor(part(0), part(1), part(2), text.size() == fullLength ? part(alpha) : 255);
}

QString RecipeKeys::placeOf(const char *key) const
{
    return m_place.isEmpty() ? QString::fromLatin1(key) : m_place + u'.' + QLatin1String(key);
}

QJsonValue RecipeKeys::take(const char *key)
{
    m_taken.insert(QLatin1String(key));
    return m_object.value(QLatin1String(key));
}

void RecipeKeys::refuse(const char *key, const QString &expected, const QJsonValue &value)
{
    m_problem->state(placeOf(key), sentence(QT_TRANSLATE_NOOP("recipe", "%1, not %2")).arg(expected, written(value)));
}

bool RecipeKeys::isIn(const QJsonValue &value, const NumberRange &range) const
{
    if (!value.isDouble())
        return false;
    const double number = value.toDouble();
    const bool isAbove = range.isAboveLeast ? number > range.least : number >= range.least;
    return isAbove && number <= range.most && (!range.isWhole || number == std::floor(number));
}

std::optional<double> RecipeKeys::number(const char *key, const NumberRange &range)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    if (isIn(value, range))
        return value.toDouble();
    refuse(key, expectedNumber(range), value);
    return std::nullopt;
}

std::optional<QList<double>> RecipeKeys::numbers(const char *key, std::span<const NumberRange> ranges)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    const QJsonArray list = value.toArray();
    if (!value.isArray() || size_t(list.size()) != ranges.size()) {
        refuse(key, sentence(QT_TRANSLATE_NOOP("recipe", "a list of %1 numbers")).arg(ranges.size()), value);
        return std::nullopt;
    }
    QList<double> found;
    for (int i = 0; i < list.size(); ++i) {
        if (!isIn(list[i], ranges[size_t(i)])) {
            m_problem->state(placeOf(key) + QStringLiteral("[%1]").arg(i),
                             sentence(QT_TRANSLATE_NOOP("recipe", "%1, not %2"))
                                 .arg(expectedNumber(ranges[size_t(i)]), written(list[i])));
            return std::nullopt;
        }
        found.append(list[i].toDouble());
    }
    return found;
}

std::optional<QString> RecipeKeys::text(const char *key)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    const QString text = value.toString();
    if (!value.isString() || text.contains(QChar(u'\0'))) {
        refuse(key, sentence(QT_TRANSLATE_NOOP("recipe", "text")), value);
        return std::nullopt;
    }
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (isHalfCharacter(text, at)) {
            complain(key,
                     sentence(QT_TRANSLATE_NOOP("recipe", "it contains half a character, %1")).arg(escaped(text[at])));
            return std::nullopt;
        }
    }
    return text;
}

std::optional<bool> RecipeKeys::flag(const char *key)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    if (value.isBool())
        return value.toBool();
    refuse(key, sentence(QT_TRANSLATE_NOOP("recipe", "true or false")), value);
    return std::nullopt;
}

std::optional<QColor> RecipeKeys::color(const char *key)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    std::optional<QColor> color = value.isString() ? recipeColor(value.toString()) : std::nullopt;
    if (!color)
        refuse(key, sentence(QT_TRANSLATE_NOOP("recipe", "a colour such as #ff8000 or #ff800080")), value);
    return color;
}

QList<RecipeKeys> RecipeKeys::objects(const char *key)
{
    const QJsonValue value = take(key);
    QList<RecipeKeys> found;
    if (value.isUndefined())
        return found;
    if (!value.isArray()) {
        refuse(key, sentence(QT_TRANSLATE_NOOP("recipe", "a list")), value);
        return found;
    }
    const QJsonArray list = value.toArray();
    for (int i = 0; i < list.size(); ++i) {
        const QString place = placeOf(key) + QStringLiteral("[%1]").arg(i);
        if (!list[i].isObject())
            m_problem->state(place, sentence(QT_TRANSLATE_NOOP("recipe", "%1, not %2"))
                                        .arg(sentence(QT_TRANSLATE_NOOP("recipe", "an object")), written(list[i])));
        found.append(RecipeKeys(list[i].toObject(), place, *m_problem));
    }
    return found;
}

std::optional<RecipeKeys> RecipeKeys::object(const char *key)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    if (!value.isObject())
        refuse(key, sentence(QT_TRANSLATE_NOOP("recipe", "an object")), value);
    return RecipeKeys(value.toObject(), placeOf(key), *m_problem);
}

std::optional<QString> RecipeKeys::oneOf(const QStringList &keys)
{
    std::optional<QString> found;
    for (const QString &key : keys) {
        if (!m_object.contains(key))
            continue;
        if (found) {
            complain(key.toLatin1().constData(),
                     sentence(QT_TRANSLATE_NOOP("recipe", "it cannot be used together with %1")).arg(*found));
            return std::nullopt;
        }
        found = key;
    }
    if (!found)
        complain(sentence(QT_TRANSLATE_NOOP("recipe", "one of %1 is missing")).arg(keys.join(QLatin1String(", "))));
    return found;
}

void RecipeKeys::refuseKey(const char *key, const QString &reason)
{
    if (has(key))
        complain(key, reason);
    m_taken.insert(QLatin1String(key));
}

void RecipeKeys::complain(const char *key, const QString &what)
{
    m_problem->state(placeOf(key), what);
}

void RecipeKeys::finish()
{
    for (auto key = m_object.begin(); key != m_object.end(); ++key)
        if (!m_taken.contains(key.key()))
            m_problem->state(placeOfKey(m_place, key.key()), sentence(QT_TRANSLATE_NOOP("recipe", "unknown key")));
}

} // namespace image
