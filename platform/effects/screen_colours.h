#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace platform {

/** The way from sRGB to the colours of one screen. */
class ScreenColours
{
public:
    /**
     * @param profile  the ICC profile of the screen; one that is none, is not for RGB or means sRGB leaves all colours as they are
     */
    explicit ScreenColours(const QByteArray &profile);
    ~ScreenColours();
    Q_DISABLE_COPY_MOVE(ScreenColours)

    /** Whether colours change at all. */
    bool isNeeded() const { return m_way != nullptr; }

    /** @p image, which is sRGB with 8 bits, as the screen wants it; of the same format where that is an RGB one with 32 bits. */
    QImage converted(const QImage &image) const;

private:
    struct Way;
    std::unique_ptr<Way> m_way;
};

} // namespace platform
