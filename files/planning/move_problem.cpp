#include "files/planning/move_problem.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace files {
namespace {

struct Row
{
    MoveProblem problem;
    const char *word;
    const char *sentence = QT_TRANSLATE_NOOP("files", "%1 could not be copied correctly");
};

// In the order of the enum. Journals of earlier runs have these words too.
const Row table[] = {
    {MoveProblem::None, ""},
    {MoveProblem::Empty, "empty"},
    {MoveProblem::Illegal, "illegal", QT_TRANSLATE_NOOP("files", "The name %1 cannot be used on this disk")},
    {MoveProblem::TooLong, "long", QT_TRANSLATE_NOOP("files", "The name %1 is too long for this disk")},
    {MoveProblem::Gone, "gone", QT_TRANSLATE_NOOP("files", "%1 no longer exists")},
    {MoveProblem::Twice, "twice"},
    {MoveProblem::Taken, "taken", QT_TRANSLATE_NOOP("files", "The name %1 is already in use")},
    {MoveProblem::OtherCase, "case"},
    {MoveProblem::Inside, "inside", QT_TRANSLATE_NOOP("files", "The folder %1 cannot be moved into itself")},
    {MoveProblem::Locked, "locked", QT_TRANSLATE_NOOP("files", "You are not allowed to change %1 or its folder")},
    {MoveProblem::Leader, "leader", QT_TRANSLATE_NOOP("files", "%1 keeps its name, and so does its sidecar file")},
    {MoveProblem::Changed, "changed", QT_TRANSLATE_NOOP("files", "%1 was changed or replaced in the meantime")},
    {MoveProblem::Full, "full", QT_TRANSLATE_NOOP("files", "There is no space left on the disk for %1")},
    {MoveProblem::Original, "original", QT_TRANSLATE_NOOP("files", "%1 is now the original itself, not a copy of it")},
    {MoveProblem::Damaged, "damaged"},
    {MoveProblem::Circle, "circle",
     QT_TRANSLATE_NOOP("files", "%1 could not be renamed, and other files need its old name")},
    {MoveProblem::Same, "same"},
    {MoveProblem::Other, "other"},
    {MoveProblem::UnknownRun, "unknown run", QT_TRANSLATE_NOOP("files", "There is no record of this run")},
    {MoveProblem::OpenRun, "open run", QT_TRANSLATE_NOOP("files", "This run is still in progress")},
    {MoveProblem::EmptyRun, "empty run", QT_TRANSLATE_NOOP("files", "Nothing was done in this run")},
    {MoveProblem::TakenBack, "taken back", QT_TRANSLATE_NOOP("files", "This run has already been undone")},
    {MoveProblem::Stuck, "stuck", QT_TRANSLATE_NOOP("files", "Nothing in this run can be undone any more")},
};

const Row &rowOf(MoveProblem problem)
{
    return table[size_t(problem)];
}

} // namespace

QString wordOf(MoveProblem problem)
{
    return QString::fromLatin1(rowOf(problem).word);
}

QString wordOf(PlanRemark remark)
{
    switch (remark) {
    case PlanRemark::None:
        return QStringLiteral("");
    case PlanRemark::Aside:
        return QStringLiteral("aside");
    case PlanRemark::OtherCase:
        return QStringLiteral("case");
    case PlanRemark::Numbered:
        return QStringLiteral("numbered");
    case PlanRemark::OtherDisk:
        return QStringLiteral("disk");
    }
    Q_UNREACHABLE();
}

std::optional<MoveProblem> moveProblem(QStringView word)
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [word](const Row &row) { return word == QLatin1String(row.word); });
    return found == std::end(table) ? std::nullopt : std::optional(found->problem);
}

QString sentence(MoveProblem problem, const QString &path)
{
    return QCoreApplication::translate("files", rowOf(problem).sentence).arg(platform::lastPathComponent(path));
}

QString sentence(MoveProblem problem)
{
    return problem == MoveProblem::None ? QString() : QCoreApplication::translate("files", rowOf(problem).sentence);
}

} // namespace files
