#include "files/moving/move_operations.h"

#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>

namespace files {
namespace {

using platform::ItemKind;
using platform::ItemState;
using platform::joinedPath;
using platform::lastPathComponent;
using platform::nameKey;
using platform::NameOf;
using platform::parentFolder;

OperationOutcome failed(MoveProblem why, const QString &path)
{
    return {why, sentence(why, path), {}, {}};
}

/** The standard library has no name for an exhausted disk quota. */
bool isForLackOfRoom(const std::error_code &error)
{
    return error == std::errc::no_space_on_device || error == std::error_code(EDQUOT, std::generic_category());
}

} // namespace

OperationOutcome failureFor(const std::error_code &error, const QString &path, const QString &to)
{
    if (error == std::errc::file_exists || error == std::errc::directory_not_empty)
        return failed(MoveProblem::Taken, to);
    if (error == std::errc::no_such_file_or_directory)
        return failed(MoveProblem::Gone, path);
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return failed(MoveProblem::Locked, path);
    if (isForLackOfRoom(error))
        return failed(MoveProblem::Full, path);
    if (error == std::errc::invalid_argument)
        return failed(MoveProblem::Illegal, to);
    if (error == std::errc::filename_too_long)
        return failed(MoveProblem::TooLong, to);
    OperationOutcome other;
    other.why = MoveProblem::Other;
    other.message = QCoreApplication::translate("files", "%1 stays unchanged: %2")
                        .arg(lastPathComponent(path), QString::fromLocal8Bit(error.message().c_str()));
    return other;
}

QString asidePath(const QString &run, int index, const MoveItem &item)
{
    return joinedPath(parentFolder(item.isAhead ? item.to : item.from),
                      QStringLiteral(".quorlin-aside-%1-%2").arg(run).arg(index));
}

QString partPath(const QString &run, int index, const QString &to)
{
    return joinedPath(parentFolder(to), QStringLiteral(".quorlin-aside-%1-%2-copy").arg(run).arg(index));
}

OperationOutcome MoveOperations::carryOut(int index, const MoveItem &item, const QString &source)
{
    if (item.operation == Operation::Link)
        return linked(item);
    const auto state = m_disk.look(source);
    if (!state)
        return failed(MoveProblem::Gone, item.from);
    if (item.was && !isSameItem(*state, *item.was))
        return failed(MoveProblem::Changed, item.from);
    switch (item.operation) {
    case Operation::Move:
        return moved(index, item, source);
    case Operation::Copy:
        return copied(index, source, item.to);
    case Operation::Trash:
        return trashed(source);
    case Operation::RemoveCopy:
        return copyRemoved(item);
    case Operation::RemoveLink:
        return linkRemoved(index, item);
    case Operation::Restore:
        return restored(item);
    case Operation::Link:
        break;
    }
    Q_UNREACHABLE();
}

OperationOutcome MoveOperations::stepAside(int index, const MoveItem &item)
{
    const auto state = m_disk.look(item.from);
    if (!state)
        return failed(MoveProblem::Gone, item.from);
    if (item.was && !isSameItem(*state, *item.was))
        return failed(MoveProblem::Changed, item.from);
    const QString aside = asidePath(m_run, index, item);
    if (const std::error_code error = m_disk.rename(item.from, aside))
        return failureFor(error, item.from, aside);
    return {{}, {}, aside, state};
}

OperationOutcome MoveOperations::done(const QString &path) const
{
    return {{}, {}, path, m_disk.look(path)};
}

OperationOutcome MoveOperations::moved(int index, const MoveItem &item, const QString &source)
{
    OperationOutcome outcome = move(index, source, item.to);
    if (outcome.why == MoveProblem::Taken && source == item.from && isSameUnderOtherCase(source, item.to))
        return renamedInCase(index, item.from, item.to);
    return outcome;
}

OperationOutcome MoveOperations::move(int index, const QString &from, const QString &to)
{
    if (OperationOutcome made = madeFolders(parentFolder(to)); made.why != MoveProblem::None)
        return made;
    const std::error_code error = m_disk.rename(from, to);
    if (!error)
        return done(to);
    if (error == std::errc::cross_device_link)
        return movedToOtherDisk(index, from, to);
    return error == std::errc::invalid_argument && isInside(parentFolder(to), from) ? failed(MoveProblem::Inside, from)
                                                                                    : failureFor(error, from, to);
}

/** By identity, which recognises a folder reached by another path, such as a second mount of its disk. */
bool MoveOperations::isInside(const QString &folder, const QString &item) const
{
    const auto outer = m_disk.look(item);
    for (QString inner = m_disk.canonicalFolder(folder); outer && !inner.isEmpty(); inner = parentFolder(inner)) {
        const auto state = m_disk.look(inner);
        if (state && isOneItem(*state, *outer))
            return true;
        if (inner.size() < 2)
            break;
    }
    return false;
}

/** On a case-insensitive disk, the new name seems to be taken by the item itself. */
bool MoveOperations::isSameUnderOtherCase(const QString &from, const QString &to) const
{
    const QString folder = parentFolder(from);
    const QString name = lastPathComponent(to);
    if (folder != parentFolder(to) || nameKey(lastPathComponent(from)) != nameKey(name))
        return false;
    const auto one = m_disk.look(from);
    const auto other = m_disk.look(to);
    const auto entries = m_disk.list(m_disk.canonicalFolder(folder));
    return one && other && entries && isSameItem(*one, *other) &&
           std::none_of(entries->begin(), entries->end(),
                        [&](const platform::FolderEntry &entry) { return entry.name == name; });
}

OperationOutcome MoveOperations::renamedInCase(int index, const QString &from, const QString &to)
{
    const QString aside = asidePath(m_run, index, {Operation::Move, from, to});
    if (const std::error_code error = m_disk.rename(from, aside))
        return failureFor(error, from, aside);
    const std::error_code error = m_disk.rename(aside, to);
    if (!error)
        return done(to);
    if (m_disk.rename(aside, from))
        return {MoveProblem::Taken, sentence(MoveProblem::Taken, to), aside, {}};
    return failureFor(error, from, to);
}

OperationOutcome MoveOperations::copied(int index, const QString &from, const QString &to)
{
    if (OperationOutcome made = madeFolders(parentFolder(to)); made.why != MoveProblem::None)
        return made;
    if (m_disk.look(to))
        return failed(MoveProblem::Taken, to);
    if (isInside(parentFolder(to), from))
        return failed(MoveProblem::Inside, from);
    const QString part = partPath(m_run, index, to);
    discard(part);
    OperationOutcome outcome;
    if (const std::error_code error = m_disk.copy(from, part))
        outcome = failureFor(error, from, to);
    else if (!m_disk.haveSameContent(from, part) && m_disk.look(from))
        outcome = failed(MoveProblem::Damaged, from);
    else if (const auto state = m_disk.look(part); !state)
        outcome = failed(MoveProblem::Damaged, from);
    else if (const auto noted = m_log.noteCopy(index, *state); !noted)
        outcome = {MoveProblem::Other, noted.error().message, {}, {}};
    else if (const std::error_code taken = m_disk.rename(part, to))
        outcome = failureFor(taken, from, to);
    if (outcome.why != MoveProblem::None) {
        discard(part);
        return outcome;
    }
    settleWayTo(to);
    return done(to);
}

/** A name is on the disk only when the names of all its new parent folders are. */
void MoveOperations::settleWayTo(const QString &path)
{
    m_disk.settle(parentFolder(path));
    const auto isAbove = [&](const QString &folder) { return path.startsWith(folder + u'/'); };
    for (const QString &folder : m_newFolders)
        if (isAbove(folder))
            m_disk.settle(parentFolder(folder));
    m_newFolders.removeIf(isAbove);
}

void MoveOperations::discard(const QString &path)
{
    if (m_disk.look(path) && m_disk.discard(path))
        m_hasLeftOver = true;
}

OperationOutcome MoveOperations::movedToOtherDisk(int index, const QString &from, const QString &to)
{
    if (!m_disk.mayBeTakenAway(from))
        return failed(MoveProblem::Locked, from);
    const auto before = m_disk.look(from);
    OperationOutcome outcome = copied(index, from, to);
    if (outcome.why != MoveProblem::None)
        return outcome;
    const auto after = m_disk.look(from);
    if (!after)
        return outcome; // somebody has removed the source: this is all that is left of it
    if (!before || !isUnchanged(*before, *after))
        return withoutCopy(index, failed(MoveProblem::Changed, from), from, outcome);
    const Removal removal = removeWhole(index, from, to);
    if (!removal.error || !m_disk.look(removal.path))
        return outcome;
    OperationOutcome why = failureFor(removal.error, from, to);
    if (removal.error == std::errc::device_or_resource_busy)
        why = failed(MoveProblem::Changed, from);
    if (removal.path != from)
        why.path = removal.path;
    if (removal.isWhole)
        return withoutCopy(index, why, removal.path, outcome);
    outcome.message = QCoreApplication::translate("files", "A part of %1 could not be removed").arg(removal.path);
    return outcome;
}

/**
 * Removes a copy whose source must stay, unless somebody has put something into it. It is moved aside first and the
 * source checked once more after that, so that two processes backing out do not both remove theirs.
 */
OperationOutcome MoveOperations::withoutCopy(int index, OperationOutcome why, const QString &source,
                                             const OperationOutcome &copy)
{
    const QString part = partPath(m_run, index, copy.path);
    if (m_disk.rename(copy.path, part)) {
        m_hasLeftOver = m_hasLeftOver || m_disk.look(copy.path);
        return why;
    }
    const auto state = m_disk.look(part);
    const bool isFolder = state && state->kind == ItemKind::Folder;
    const bool isOurs =
        isFolder ? m_disk.haveSameContent(source, part) : state && copy.is && isUnchanged(*state, *copy.is);
    if (isOurs && m_disk.look(source)) {
        discard(part);
        return why;
    }
    const QString place = putBack(part, copy.path);
    m_hasLeftOver = m_hasLeftOver || place == part;
    if (!m_disk.look(source))
        return done(place);
    why.message = QCoreApplication::translate("files", "%1; a copy is at %2").arg(why.message, place);
    return why;
}

/** What is removed is moved aside in one step and deleted only if it is still what was copied. */
MoveOperations::Removal MoveOperations::removeWhole(int index, const QString &path, const QString &copy)
{
    const QString aside = asidePath(m_run, index, {Operation::Move, path, {}});
    if (path != aside)
        if (const std::error_code error = m_disk.rename(path, aside))
            return {error, path, true};
    std::error_code error = std::make_error_code(std::errc::device_or_resource_busy);
    if (m_disk.haveSameContent(aside, copy))
        error = m_disk.remove(aside);
    if (!error)
        return {};
    const bool isWhole = error == std::errc::device_or_resource_busy || m_disk.haveSameContent(aside, copy);
    return {error, path == aside ? aside : putBack(aside, path), isWhole};
}

QString MoveOperations::putBack(const QString &aside, const QString &path)
{
    constexpr int mostNumbers = 1000;
    constexpr int mostTries = 10;
    const auto state = m_disk.look(aside);
    const NameOf what = state && state->kind == ItemKind::Folder ? NameOf::Folder : NameOf::File;
    QString place = path;
    for (int number = 2, tries = 0; number < mostNumbers && tries < mostTries;) {
        const std::error_code error = m_disk.rename(aside, place);
        if (!error)
            return place;
        if (error == std::errc::file_exists)
            place =
                joinedPath(parentFolder(path), platform::fittingNumberedName(lastPathComponent(path), number++, what));
        else
            ++tries;
    }
    m_hasLeftOver = true;
    return aside;
}

OperationOutcome MoveOperations::linked(const MoveItem &item)
{
    if (OperationOutcome made = madeFolders(parentFolder(item.to)); made.why != MoveProblem::None)
        return made;
    if (const std::error_code error = m_disk.makeLink(item.from, item.to))
        return failureFor(error, item.to, item.to);
    return done(item.to);
}

OperationOutcome MoveOperations::trashed(const QString &path)
{
    const auto trashed = m_disk.trash(path);
    if (trashed)
        return done(trashed->path);
    return {MoveProblem::Other, trashed.error().message, {}, {}};
}

/**
 * A copy goes into the trash: whatever somebody does to it, or to its original, at the last moment, nothing is lost.
 */
OperationOutcome MoveOperations::copyRemoved(const MoveItem &item)
{
    const auto copy = m_disk.look(item.from);
    const auto original = m_disk.look(item.to);
    if (copy && original && isOneItem(*copy, *original))
        return failed(MoveProblem::Original, item.from);
    return trashed(item.from);
}

OperationOutcome MoveOperations::linkRemoved(int index, const MoveItem &item)
{
    const QString aside = asidePath(m_run, index, {Operation::Move, item.from, {}});
    if (m_disk.linkText(item.from) != item.to)
        return failed(MoveProblem::Changed, item.from);
    if (const std::error_code error = m_disk.rename(item.from, aside))
        return failureFor(error, item.from, item.from);
    std::error_code error = std::make_error_code(std::errc::device_or_resource_busy);
    if (m_disk.linkText(aside) == item.to)
        error = m_disk.remove(aside);
    if (!error)
        return {};
    OperationOutcome outcome = error == std::errc::device_or_resource_busy ? failed(MoveProblem::Changed, item.from)
                                                                           : failureFor(error, item.from, item.from);
    outcome.path = putBack(aside, item.from);
    return outcome;
}

OperationOutcome MoveOperations::restored(const MoveItem &item)
{
    if (OperationOutcome made = madeFolders(parentFolder(item.to)); made.why != MoveProblem::None)
        return made;
    if (const std::error_code error = m_disk.restore({item.from}, item.to))
        return failureFor(error, item.to, item.to);
    return done(item.to);
}

OperationOutcome MoveOperations::madeFolders(const QString &folder)
{
    if (!m_disk.canonicalFolder(folder).isNull())
        return {};
    if (folder.size() < 2 || m_disk.look(folder))
        return failed(MoveProblem::Taken, folder);
    if (OperationOutcome above = madeFolders(parentFolder(folder)); above.why != MoveProblem::None)
        return above;
    if (const auto noted = m_log.noteFolder(folder); !noted)
        return {MoveProblem::Other, noted.error().message, {}, {}};
    const std::error_code error = m_disk.makeFolder(folder);
    if (!error)
        m_newFolders.append(folder);
    return error && error != std::errc::file_exists ? failureFor(error, folder, folder) : OperationOutcome();
}

} // namespace files
