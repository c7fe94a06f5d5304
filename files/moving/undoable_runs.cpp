#include "files/moving/undoable_runs.h"

#include <QSet>

namespace files {

Undoable UndoableRuns::of(const QString &run)
{
    lookForNewRuns();
    if (const auto known = m_known.find(run); known != m_known.end())
        return known->second;
    const Undoable answer = undoableItems(m_shelf, run);
    if (answer.why != MoveProblem::OpenRun)
        m_known[run] = answer;
    return answer;
}

void UndoableRuns::ended(const RunRecord &run)
{
    lookForNewRuns();
    forget(run.undoes);
    Undoable answer;
    answer.count = run.filesAtEnd;
    answer.why = answer.count > 0 ? MoveProblem::None : MoveProblem::EmptyRun;
    m_known[run.id] = answer;
}

void UndoableRuns::lookForNewRuns()
{
    const QStringList names = m_shelf.names();
    if (names == m_names)
        return;
    const QSet<QString> before(m_names.cbegin(), m_names.cend());
    m_names = names;
    for (const QString &name : names) {
        if (before.contains(name))
            continue;
        const QString undoes = summaryOf(m_shelf.ends(name)).undoes;
        m_undoes[name] = undoes;
        forget(undoes);
    }
    const QSet<QString> now(names.cbegin(), names.cend());
    for (const QString &name : before - now)
        m_known.erase(name);
}

/** Undoing a run that undid others changes the state of those too. */
void UndoableRuns::forget(const QString &run)
{
    QSet<QString> seen; // damaged journals may form a cycle
    for (QString each = run; !each.isEmpty() && !seen.contains(each);) {
        seen.insert(each);
        m_known.erase(each);
        const auto undoes = m_undoes.find(each);
        each = undoes == m_undoes.end() ? QString() : undoes->second;
    }
}

} // namespace files
