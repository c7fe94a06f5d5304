#pragma once

#include <QColor>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

namespace image {

/** A word of a recipe and its meaning. */
template<typename T> struct Word
{
    const char *word;
    T value;
};

struct NumberRange
{
    double least = 0;
    double most = 0;
    bool isWhole = false;
    bool isAboveLeast = false; ///< the minimum itself is excluded
};

/** The first thing that is wrong in a recipe. */
class RecipeProblem
{
public:
    bool isThere() const { return !m_sentence.isEmpty(); }
    const QString &sentence() const { return m_sentence; }
    /** Kept if it is the first; on one line and of moderate length, whatever of the file it quotes. */
    void state(const QString &place, const QString &what);

private:
    QString m_sentence;
};

/**
 * One object of a recipe that is read key by key. Missing or wrong values give nothing, and wrong ones report a
 * problem; finish() reports keys that nobody has asked for.
 */
class RecipeKeys
{
public:
    RecipeKeys(const QJsonObject &object, const QString &place, RecipeProblem &problem)
        : m_object(object), m_place(place), m_problem(&problem)
    {
    }

    bool has(const char *key) const { return m_object.contains(QLatin1String(key)); }
    QString place() const { return m_place; }
    QString placeOf(const char *key) const;

    std::optional<double> number(const char *key, const NumberRange &range);
    /** As many numbers as @p range has entries, in a list. */
    std::optional<QList<double>> numbers(const char *key, std::span<const NumberRange> ranges);
    std::optional<QString> text(const char *key);
    std::optional<bool> flag(const char *key);
    /** #rrggbb or #rrggbbaa. */
    std::optional<QColor> color(const char *key);
    /** The objects of a list. */
    QList<RecipeKeys> objects(const char *key);
    std::optional<RecipeKeys> object(const char *key);

    template<typename T, size_t n> std::optional<T> choice(const char *key, const Word<T> (&words)[n])
    {
        return choice(key, std::span<const Word<T>>(words));
    }

    template<typename T> std::optional<T> choice(const char *key, std::span<const Word<T>> words)
    {
        const QJsonValue value = take(key);
        if (value.isUndefined())
            return std::nullopt;
        QStringList all;
        for (const Word<T> &each : words) {
            if (value.isString() && value.toString() == QLatin1String(each.word))
                return each.value;
            all.append(QLatin1String(each.word));
        }
        refuse(key, all.join(QLatin1String(", ")), value);
        return std::nullopt;
    }

    /** Which of @p keys is present; reports a problem unless it is exactly one. */
    std::optional<QString> oneOf(const QStringList &keys);
    /** Reports a problem if @p key is present, which is meaningless unless @p reason holds. */
    void refuseKey(const char *key, const QString &reason);
    void complain(const char *key, const QString &what);
    void complain(const QString &what) { m_problem->state(m_place, what); }
    void finish();

private:
    QJsonValue take(const char *key);
    void refuse(const char *key, const QString &expected, const QJsonValue &value);
    bool isIn(const QJsonValue &value, const NumberRange &range) const;

    QJsonObject m_object;
    QString m_place;
    RecipeProblem *m_problem;
    QSet<QString> m_taken;
};

/** A key of the file that may be anything; in quotation marks unless it is a word. */
QString placeOfKey(const QString &place, const QString &key);

/** The beginning of a text of the file that a sentence quotes. */
QString shortened(const QString &text, qsizetype longest = 60);

/** A colour of a recipe; none for other text. */
std::optional<QColor> recipeColor(const QString &text);

} // namespace image
