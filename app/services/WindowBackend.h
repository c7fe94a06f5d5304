#pragma once

#include <QRectF>

namespace app {

/** What a window covers: its own frame, or the whole of the first screen without a title bar. */
enum class WindowExtent { OwnFrame, WholeScreen };

/** The real window behind a window service. Frames are in screen coordinates. */
class WindowBackend
{
public:
    virtual ~WindowBackend() = default;
    virtual QRectF frame() const = 0;
    /** Moves and sizes the window at once or with an animation; frame() returns the new frame immediately. */
    virtual void setFrame(const QRectF &frame, WindowExtent extent) = 0;
};

} // namespace app
