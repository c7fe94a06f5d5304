#include "files/items/date_stamp.h"

#include "platform/foundation/human_texts.h"
#include "text/searching.h"

#include <QStringList>

namespace files {

QString dateStamp(const QDateTime &date)
{
    QString stamp = platform::mediumDateText(date);
    stamp = text::replaced(stamp, QStringLiteral(", "), QStringLiteral("T"));
    stamp = text::replaced(stamp, QStringLiteral(" "), QStringLiteral("-"));
    return text::replaced(stamp, QStringLiteral(":"), QStringLiteral("-"));
}

bool asksForStamp(const QVariant &formatCode)
{
    static const QStringList codes = {QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")};
    return codes.contains(formatCode.toString());
}

} // namespace files
