#pragma once

#include <QStringList>
#include <QWidget>

/**
 * Whatever cannot be read in a window or overlaps: a text that is wider or higher than its control and not in a
 * tooltip, a control that extends beyond its container, two controls that overlap, an area that must be scrolled
 * sideways. Only what is visible now is looked at.
 *
 * @return one line each, with the name of the control
 */
QStringList misfits(const QWidget &window);
