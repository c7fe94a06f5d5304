#include "platform/controls/stand_ins.h"

#include "platform/foundation/raised.h"

namespace platform {
namespace {

bool isColorText(const QString &text)
{
    const auto isHexDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
    };
    return text.size() == 7 && text.startsWith(u'#') && std::all_of(text.begin() + 1, text.end(), isHexDigit);
}

} // namespace

void ColorWell::setColor(const QString &color)
{
    if (!isColorText(color))
        throw Raised::typeError(QStringLiteral("Expected #rrggbb for color but received \"%1\"").arg(color));
    m_color = color;
}

void ProgressIndicator::setValue(double value)
{
    m_value = value;
    m_history.append(value);
}

} // namespace platform
