#pragma once

#include "views/ViewHost.h"

#include <QSize>
#include <QWidget>

namespace window {

/** Stands for the scroll view around a view: its content is the area that the preview has given it. */
struct PreviewHost : views::ViewHost
{
    explicit PreviewHost(QWidget &shown) : widget(shown) {}
    std::optional<QSizeF> scrollContentSize() const override { return content; }
    void requestRedisplay() override { widget.update(); }
    void requestLayout() override {}

    QWidget &widget;
    QSizeF content = QSizeF(0, 0); ///< in pixels of the screen
};

/** A size on the screen in whole pixels, at least one. */
inline QSize wholePixels(QSizeF size)
{
    return QSize(qRound(size.width()), qRound(size.height())).expandedTo({1, 1});
}

} // namespace window
