#pragma once

#include "platform/controls/controls.h"

namespace window {

/** Gives services access to tab views, menus and tri-state check boxes, whose state is not exposed as a property. */
class WidgetControls : public platform::WindowControls
{
public:
    /** Of a QTabWidget or QTabBar, without its mnemonic mark; null if no tab is chosen. */
    std::optional<QString> selectedLabel(const QObject &control) const override;
    /** Of a QCheckBox: 1, 0, or -1 if it is partly checked. */
    std::optional<int> state(const QObject &control) const override;
    /** Of a QComboBox. */
    std::optional<QStringList> titles(const QObject &control) const override;
    bool setTitles(QObject &control, const QStringList &titles) const override;
};

} // namespace window
