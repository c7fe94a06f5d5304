#pragma once

#include <QString>

class QWidget;

namespace window {

/** A control of this program, by the name of its class in a .ui file; null for one of the toolkit. */
QWidget *makeOwnControl(const QString &className, QWidget *parent);

} // namespace window
