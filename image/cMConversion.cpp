#include "image/cMConversion.h"

#include "image/unit_conversion.h"
#include "platform/imageio/source/image_source.h"

#include <cmath>

cMConversion::cMConversion(QObject *parent) : QObject(parent) {}

float cMConversion::convertXtoPixel(const QString &path, const QString &targetUnit, const QString &unit, float value)
{
    if (targetUnit == QLatin1String("pixel")) {
        const image::LengthUnit length = image::lengthUnit(unit);
        if (length != image::LengthUnit::Pixel)
            myDPIvalue = getPictureDPI(path);
        myNewValue = image::inPixels(value, length, myDPIvalue);
    }
    return float(myNewValue);
}

float cMConversion::getPictureDPI(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    return source ? image::resolutionOf(source->uprightSize(), source->pointSize()) : 0;
}
