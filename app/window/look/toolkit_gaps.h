#pragma once

#include <QtGlobal>

namespace window {

/**
 * Texts of the toolkit's dialogs that its own translations lack in one of our languages, or word differently from our
 * windows. The toolkit asks the installed translators for them under these names, ours first. Nothing reads this list:
 * it exists so that the texts are collected, translated and checked like our own.
 */
// clang-format off
inline constexpr const char *toolkitGaps[] = {
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Drive"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "File"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Folder"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Unknown"),
    QT_TRANSLATE_NOOP("QFileDialog", "Save As"),
    QT_TRANSLATE_NOOP("QFileDialog", "&Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save All"),
    QT_TRANSLATE_NOOP("QPrintPropertiesDialog", "Printer Properties"),
    QT_TRANSLATE_NOOP("QPrintPropertiesWidget", "Advanced"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Pages"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Double Sided Printing"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Off"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Long side binding"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Short side binding"),
};
// clang-format on

} // namespace window
