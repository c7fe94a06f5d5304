#include "image/recipe/keys/repeated_key.h"

#include "image/recipe/keys/recipe_keys.h"

#include <QJsonDocument>

#include <vector>

namespace image {
namespace {

/** Goes through a JSON text once, from bracket to bracket. */
class KeySearch
{
public:
    explicit KeySearch(const QByteArray &json) : m_json(json) {}

    QString run()
    {
        for (m_at = 0; m_at < m_json.size() && m_found.isEmpty(); ++m_at)
            step();
        return m_found;
    }

private:
    struct Level
    {
        QString place;
        bool isObject;
        bool isBeforeKey;
        int index = 0;
        QString key = {};
        QSet<QString> keys = {};
    };

    void step()
    {
        const char sign = m_json[m_at];
        if (sign == '{' || sign == '[')
            m_levels.push_back({placeOfNext(), sign == '{', sign == '{'});
        else if (sign == '"')
            takeText(textHere());
        if (m_levels.empty())
            return;
        if (sign == '}' || sign == ']')
            m_levels.pop_back();
        else if (sign == ',')
            toNext(m_levels.back());
    }

    QString placeOfNext() const
    {
        if (m_levels.empty())
            return {};
        const Level &level = m_levels.back();
        return level.isObject ? placeOfKey(level.place, level.key)
                              : level.place + QStringLiteral("[%1]").arg(level.index);
    }

    static void toNext(Level &level)
    {
        level.isBeforeKey = level.isObject;
        ++level.index;
    }

    /** From one quotation mark to the other, which becomes the current position. */
    QByteArray textHere()
    {
        const qsizetype first = m_at++;
        while (m_at < m_json.size() && m_json[m_at] != '"')
            m_at += m_json[m_at] == '\\' ? 2 : 1;
        return m_json.mid(first, m_at - first + 1);
    }

    void takeText(const QByteArray &text)
    {
        if (m_levels.empty() || !m_levels.back().isBeforeKey)
            return;
        Level &level = m_levels.back();
        level.isBeforeKey = false;
        level.key = QJsonDocument::fromJson('[' + text + ']').array().first().toString();
        if (level.keys.contains(level.key))
            m_found = placeOfKey(level.place, level.key);
        level.keys.insert(level.key);
    }

    const QByteArray &m_json;
    qsizetype m_at = 0;
    std::vector<Level> m_levels;
    QString m_found;
};

} // namespace

QString repeatedKey(const QByteArray &json)
{
    return KeySearch(json).run();
}

} // namespace image
