#include "text/services/token_text.h"

#include "text/safe_names.h"
#include "text/services/token_facts.h"

#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <algorithm>
#include <cmath>

namespace {

/** Up to this every whole number can be represented. */
constexpr double mostCounted = 9007199254740991;

qint64 wholeIndex(double index)
{
    if (!(std::abs(index) <= mostCounted) || index != std::trunc(index))
        throw platform::Raised::rangeError(
            QStringLiteral("Expected a whole number for index but received %1").arg(index));
    return qint64(index);
}

} // namespace

TokenText::TokenText(QObject *parent) : QObject(parent) {}

void TokenText::setPattern(const QString &pattern)
{
    m_pattern = pattern;
    m_parts = text::tokenParts(pattern);
    m_needsFacts = text::needsFacts(m_parts);
}

QVariantMap TokenText::standIns() const
{
    QVariantMap all;
    for (auto entry = m_standIns.begin(); entry != m_standIns.end(); ++entry)
        all.insert(entry.key(), entry.value());
    return all;
}

void TokenText::setStandIns(const QVariantMap &standIns)
{
    m_standIns = platform::Fields(standIns, QStringLiteral("standIns")).everyText();
}

QString TokenText::values() const
{
    switch (m_values) {
    case Values::Plain:
        return QStringLiteral("plain");
    case Values::Name:
        return QStringLiteral("name");
    case Values::Folder:
        break;
    }
    return QStringLiteral("folder");
}

void TokenText::setValues(const QString &word)
{
    if (word == QStringLiteral("plain"))
        m_values = Values::Plain;
    else if (word == QStringLiteral("name"))
        m_values = Values::Name;
    else if (word == QStringLiteral("folder"))
        m_values = Values::Folder;
    else
        throw platform::Raised::typeError(
            QStringLiteral("Expected \"plain\", \"name\" or \"folder\" for values but received \"%1\"").arg(word));
}

text::StandIn TokenText::standInForMissing() const
{
    return [this](const text::TokenPart &part) { return m_standIns.value(part.token, m_standIn); };
}

QStringList TokenText::expand(const QString &path, const QVariantMap &facts, double index) const
{
    text::TokenFacts known = text::tokenFactsFrom(facts, path);
    known.index = wholeIndex(index);
    const text::Clean clean = m_values == Values::Plain  ? text::Clean()
                              : m_values == Values::Name ? text::Clean(text::asPartOfName)
                                                         : text::Clean(text::asFolderName);
    const text::Expanded made =
        text::expandTokens(m_parts, known, text::TokenLanguage::Reader, standInForMissing(), clean);
    const QString name = m_values == Values::Folder ? text::asFolderName(made.text) : made.text;
    return QStringList(m_values == Values::Folder && name.isEmpty() ? QStringLiteral("-") : name) + made.missing;
}
