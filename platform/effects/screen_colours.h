#pragma once

#include <QByteArray>
#include <QImage>

#include <memory>

namespace platform {

/** The conversion from sRGB to the colours of one screen. */
class ScreenColours
{
public:
    /**
     * @param profile  the ICC profile of the screen; an invalid one, one that is not RGB, or one that means sRGB leaves
     * all colours unchanged
     */
    explicit ScreenColours(const QByteArray &profile);
    ~ScreenColours();
    Q_DISABLE_COPY_MOVE(ScreenColours)

    /** Whether colours change at all. */
    bool isNeeded() const { return m_way != nullptr; }

    /**
     * @p image, which is sRGB with 8 bits, converted for the screen; in the same format if that is RGB with 32 bits.
     */
    QImage converted(const QImage &image) const;

private:
    struct Way;
    std::unique_ptr<Way> m_way;
};

} // namespace platform
