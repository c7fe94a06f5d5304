#pragma once

#include <QStringList>
#include <QWidget>

/**
 * What of a window cannot be read or lies on something else: a text that is wider or higher than its control and has no tooltip that
 * holds it, a control that sticks out of the one around it, two controls on one another, an area that must be scrolled sideways.
 * Only what is visible now is looked at.
 *
 * @return one line each, with the name of the control
 */
QStringList misfits(const QWidget &window);
