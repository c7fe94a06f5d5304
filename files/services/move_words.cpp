#include "files/services/move_words.h"

namespace files {

std::optional<MoveKind> moveKind(QStringView word)
{
    if (word == QStringLiteral("move"))
        return MoveKind::Move;
    if (word == QStringLiteral("copy"))
        return MoveKind::Copy;
    if (word == QStringLiteral("link"))
        return MoveKind::Link;
    return std::nullopt;
}

std::optional<Operation> wantedOperation(QStringView word)
{
    if (word == QStringLiteral("trash"))
        return Operation::Trash;
    const std::optional<MoveKind> kind = moveKind(word);
    if (!kind)
        return std::nullopt;
    switch (*kind) {
    case MoveKind::Move:
        return Operation::Move;
    case MoveKind::Copy:
        return Operation::Copy;
    case MoveKind::Link:
        return Operation::Link;
    }
    Q_UNREACHABLE();
}

QString wordOf(Operation operation)
{
    switch (operation) {
    case Operation::Move:
    case Operation::Restore:
        return QStringLiteral("move");
    case Operation::Copy:
        return QStringLiteral("copy");
    case Operation::Link:
        return QStringLiteral("link");
    case Operation::Trash:
        return QStringLiteral("trash");
    case Operation::RemoveCopy:
    case Operation::RemoveLink:
        return QStringLiteral("remove");
    }
    Q_UNREACHABLE();
}

QString wordOf(PlanStatus status)
{
    switch (status) {
    case PlanStatus::Ready:
        return QStringLiteral("ready");
    case PlanStatus::Same:
        return QStringLiteral("same");
    case PlanStatus::Refused:
        return QStringLiteral("refused");
    }
    Q_UNREACHABLE();
}

QString statusWord(Stand stand)
{
    switch (stand) {
    case Stand::Done:
        return QStringLiteral("OK");
    case Stand::Skipped:
        return QStringLiteral("Skipped");
    case Stand::Waiting:
    case Stand::Aside:
    case Stand::Failed:
    case Stand::TakenBack:
        return QStringLiteral("Failed");
    }
    Q_UNREACHABLE();
}

} // namespace files
