#include "text/services/token_facts.h"

#include "platform/values/fields.h"

#include <algorithm>

namespace text {

TokenFacts tokenFactsFrom(const QVariantMap &map, const QString &path)
{
    /** Up to this every whole number can be represented. */
    constexpr double mostCounted = 9007199254740991;
    TokenFacts facts;
    facts.path = path;
    if (map.isEmpty())
        return facts;
    const platform::Fields fields(map, QStringLiteral("facts"));
    facts.taken = fields.text("taken");
    facts.created = fields.text("created");
    facts.changed = fields.text("changed");
    facts.camera = fields.text("camera");
    facts.lens = fields.text("lens");
    facts.type = fields.text("type");
    facts.size = fields.text("size");
    const double bytes = fields.number("bytes", -1);
    facts.bytes = bytes >= 0 ? qint64(std::min(bytes, mostCounted)) : -1;
    facts.rating = fields.whole("rating", 0);
    facts.pixels = QSize(fields.whole("width", 0), fields.whole("height", 0));
    return facts;
}

} // namespace text
