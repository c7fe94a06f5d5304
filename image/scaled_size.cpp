#include "image/scaled_size.h"

#include <limits>

namespace image {
namespace {

/** The product wraps in 32 bits, and results depend on it: it is computed before any conversion to double. */
double hundredfold(quint32 number)
{
    constexpr quint32 hundred = 100;
    return double(number * hundred);
}

ScaledSize byWidth(quint32 number, double width, double height)
{
    const double factor = hundredfold(number) / width;
    return {qint32(number), truncated(factor * height / 100.0), factor};
}

ScaledSize byHeight(quint32 number, double width, double height)
{
    const double factor = hundredfold(number) / height;
    return {truncated(factor * width / 100.0), qint32(number), factor};
}

} // namespace

qint32 truncated(double value)
{
    constexpr double below = -2147483649.0;
    constexpr double above = 2147483648.0;
    const bool fits = value > below && value < above;
    return fits ? qint32(value) : std::numeric_limits<qint32>::min();
}

std::optional<ScaledSize> scaledSize(quint32 number, quint32 mode, double width, double height)
{
    constexpr auto lastMode = quint32(ScaleMode::Percentage);
    if (mode > lastMode)
        return std::nullopt;
    switch (ScaleMode(mode)) {
    case ScaleMode::Width:
        return byWidth(number, width, height);
    case ScaleMode::Height:
        return byHeight(number, width, height);
    case ScaleMode::LongestSide:
        return width > height ? byWidth(number, width, height) : byHeight(number, width, height);
    case ScaleMode::Percentage:
        return ScaledSize{truncated(width * number / 100.0), truncated(height * number / 100.0), {}};
    }
    return std::nullopt;
}

FilledBox filledBox(quint32 boxWidth, quint32 boxHeight, double width, double height)
{
    const double heightScale = hundredfold(boxHeight) / height;
    const double widthScale = hundredfold(boxWidth) / width;
    FilledBox box;
    if (heightScale > widthScale) {
        box.drawn.height = qint32(boxHeight);
        box.drawn.width = truncated(width * heightScale / 100.0);
    } else {
        box.drawn.width = qint32(boxWidth);
        box.drawn.height = truncated(height * widthScale / 100.0);
    }
    const auto excess = [](qint32 drawn, quint32 wanted) { return qint32((qint64(drawn) - qint32(wanted)) / 2); };
    box.offset = QPoint(excess(box.drawn.width, boxWidth), excess(box.drawn.height, boxHeight));
    return box;
}

} // namespace image
