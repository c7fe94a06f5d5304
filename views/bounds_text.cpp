#include "views/bounds_text.h"

#include "platform/desktop/user_defaults.h"

#include <QRegularExpression>

#include <cmath>

namespace views {
namespace {

const QString boundsKey = QStringLiteral("myBounds");

QString textOfNumber(double number)
{
    constexpr int enoughDigits = 17;
    return QString::number(number, 'g', enoughDigits);
}

} // namespace

QString textOfSize(QSizeF size)
{
    return QStringLiteral("{%1, %2}").arg(textOfNumber(size.width()), textOfNumber(size.height()));
}

QSizeF sizeOfText(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("[-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][-+]?\\d+)?"));
    double sides[2] = {0, 0};
    int found = 0;
    for (auto match = number.globalMatch(text); match.hasNext() && found < 2; ++found) {
        const double side = match.next().captured().toDouble();
        sides[found] = std::isfinite(side) ? side : 0;
    }
    return {sides[0], sides[1]};
}

QSizeF publishedBounds()
{
    return sizeOfText(platform::userDefault(boundsKey).toString());
}

void publishBounds(QSizeF size)
{
    platform::setUserDefault(boundsKey, textOfSize(size));
}

} // namespace views
