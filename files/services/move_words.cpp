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

std::optional<Deed> wantedDeed(QStringView word)
{
    if (word == QStringLiteral("trash"))
        return Deed::Trash;
    const std::optional<MoveKind> kind = moveKind(word);
    if (!kind)
        return std::nullopt;
    switch (*kind) {
    case MoveKind::Move:
        return Deed::Move;
    case MoveKind::Copy:
        return Deed::Copy;
    case MoveKind::Link:
        return Deed::Link;
    }
    Q_UNREACHABLE();
}

QString wordOf(Deed deed)
{
    switch (deed) {
    case Deed::Move:
    case Deed::Restore:
        return QStringLiteral("move");
    case Deed::Copy:
        return QStringLiteral("copy");
    case Deed::Link:
        return QStringLiteral("link");
    case Deed::Trash:
        return QStringLiteral("trash");
    case Deed::RemoveCopy:
    case Deed::RemoveLink:
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
