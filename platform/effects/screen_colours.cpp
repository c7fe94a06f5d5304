#include "platform/effects/screen_colours.h"

#include "platform/graphics/icc_profile.h"

#include <QScopeGuard>
#include <QSysInfo>

#include <lcms2.h>

namespace platform {

struct ScreenColours::Way
{
    cmsContext context = cmsCreateContext(nullptr, nullptr);
    cmsHTRANSFORM transform = nullptr;

    Way() = default;
    Q_DISABLE_COPY_MOVE(Way)
    ~Way()
    {
        if (transform)
            cmsDeleteTransform(transform);
        cmsDeleteContext(context);
    }
};

ScreenColours::ScreenColours(const QByteArray &profile)
{
    if (profile.isEmpty() || isSrgb(profile))
        return;
    auto way = std::make_unique<Way>();
    const cmsHPROFILE to = cmsOpenProfileFromMemTHR(way->context, profile.constData(), cmsUInt32Number(profile.size()));
    const cmsHPROFILE from = cmsCreate_sRGBProfileTHR(way->context);
    const auto closing = qScopeGuard([from, to] {
        for (const cmsHPROFILE each : {from, to})
            if (each)
                cmsCloseProfile(each);
    });
    if (!from || !to || cmsGetColorSpace(to) != cmsSigRgbData)
        return;
    const cmsUInt32Number pixel = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? TYPE_BGRA_8 : TYPE_ARGB_8;
    way->transform = cmsCreateTransformTHR(way->context, from, pixel, to, pixel, INTENT_RELATIVE_COLORIMETRIC,
                                           cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA);
    if (way->transform)
        m_way = std::move(way);
}

ScreenColours::~ScreenColours() = default;

QImage ScreenColours::converted(const QImage &image) const
{
    if (!m_way || image.isNull())
        return image;
    const bool hasAlpha = image.hasAlphaChannel();
    QImage made = image.convertToFormat(hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int row = 0; row < made.height(); ++row) {
        uchar *line = made.scanLine(row);
        cmsDoTransform(m_way->transform, line, line, cmsUInt32Number(made.width()));
    }
    return hasAlpha ? made.convertToFormat(image.format()) : made;
}

} // namespace platform
