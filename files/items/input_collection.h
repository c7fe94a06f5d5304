#pragma once

#include "platform/controls/panels.h"

#include <QStringList>

#include <optional>

namespace files {

/** Which of the two families of actions asks: they have different keywords and base lists of types. */
enum class ActionFamily { Standard, Ordering };

enum class InputKind { Files, Folder };

/** Which of the files in a folder become input, by their extension, case-sensitively. */
enum class FolderFilter { Any, Sorting, Watermark, Metadata };

/** How the input of one action is requested and found. */
struct InputRule
{
    InputKind kind = InputKind::Files;
    /** Extensions that the panel offers; none means any type. Does not restrict the choice of folders. */
    std::optional<QStringList> panelTypes;
    /** The rest is for folders only. */
    FolderFilter filter = FolderFilter::Any;
    bool entersPackages = false;
};

/** The rule of an action keyword, exact and case-sensitive; none if the family does not know it. */
std::optional<InputRule> inputRule(ActionFamily family, const QString &actionType);

/** The open panel that asks for the input of an action. */
platform::PanelRequest panelRequest(const InputRule &rule);

/** True if @p filter takes a file with this extension (without the dot; may be empty). */
bool takesExtension(FolderFilter filter, std::string_view extension);

/**
 * The files below a folder that become input, in the order of the walk, which is the file system's own, depth first.
 *
 * Hidden items are skipped, and so are the contents of packages unless the rule enters them. Unlimited depth; links are
 * not followed; unreadable items are skipped. A name that is not valid UTF-8 is listed with replacement characters, so
 * that the user sees the file fail by name instead of missing it.
 */
QStringList filesBelow(const QString &folder, const InputRule &rule);

/**
 * Asks the user for the input of an action and collects it: absolute paths, never a folder.
 *
 * Empty if the user cancels or nothing is found; none, without a panel, if the keyword is unknown. Chosen files come in
 * the panel's order, neither sorted nor checked again. Main thread only.
 */
std::optional<QStringList> collectInput(ActionFamily family, const QString &actionType);

} // namespace files
