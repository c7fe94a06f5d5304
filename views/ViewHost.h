#pragma once

#include <QSizeF>

#include <optional>

namespace views {

/** The real widget behind a view. Sizes are in the units of the view's frame. */
class ViewHost
{
public:
    virtual ~ViewHost() = default;
    /** The content size of the enclosing scroll view; none if the view is in none. */
    virtual std::optional<QSizeF> scrollContentSize() const = 0;
    virtual void requestRedisplay() = 0;
    virtual void requestLayout() = 0;
};

} // namespace views
