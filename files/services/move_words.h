#pragma once

#include "files/moving/move_record.h"
#include "files/planning/move_plan.h"

#include <QStringView>

#include <optional>

namespace files {

/** "move", "copy" or "link"; nothing for any other word. */
std::optional<MoveKind> moveKind(QStringView word);

/** "move", "copy", "link" or "trash": what a script may request for an item. Nothing for any other word. */
std::optional<Operation> wantedOperation(QStringView word);

/** What was done with an item, in a word: "move", "copy", "link", "trash" or "remove". */
QString wordOf(Operation operation);

/** "ready", "same" or "refused". */
QString wordOf(PlanStatus status);

/** The outcome for an item of a run: "OK", "Skipped" or "Failed". */
QString statusWord(Stand stand);

} // namespace files
