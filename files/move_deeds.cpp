#include "files/move_deeds.h"

#include "files/move_names.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <algorithm>

namespace files {
namespace {

using platform::ItemKind;
using platform::ItemState;
using platform::joinedPath;
using platform::lastPathComponent;
using platform::parentFolder;

QString said(const char *sentence, const QString &name)
{
    return QCoreApplication::translate("files", sentence).arg(name);
}

DeedOutcome failed(const QString &code, const QString &path)
{
    return {code, MoveDeeds::sentence(code, path), {}, {}};
}

} // namespace

DeedOutcome failureFor(const std::error_code &error, const QString &path, const QString &to)
{
    if (error == std::errc::file_exists || error == std::errc::directory_not_empty)
        return failed(QStringLiteral("taken"), to);
    if (error == std::errc::no_such_file_or_directory)
        return failed(QStringLiteral("gone"), path);
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return failed(QStringLiteral("locked"), path);
    if (error == std::errc::no_space_on_device)
        return failed(QStringLiteral("full"), path);
    if (error == std::errc::filename_too_long)
        return failed(QStringLiteral("long"), to);
    DeedOutcome other;
    other.code = QStringLiteral("other");
    other.message = QCoreApplication::translate("files", "%1 stays as it is: %2")
                        .arg(lastPathComponent(path), QString::fromLocal8Bit(error.message().c_str()));
    return other;
}

QString MoveDeeds::sentence(const QString &code, const QString &path)
{
    const QString name = lastPathComponent(path);
    if (code == QStringLiteral("taken"))
        return said(QT_TRANSLATE_NOOP("files", "The name %1 is taken"), name);
    if (code == QStringLiteral("gone"))
        return said(QT_TRANSLATE_NOOP("files", "%1 is not there any more"), name);
    if (code == QStringLiteral("changed"))
        return said(QT_TRANSLATE_NOOP("files", "%1 was changed or replaced in the meantime"), name);
    if (code == QStringLiteral("locked"))
        return said(QT_TRANSLATE_NOOP("files", "%1 or its folder may not be changed"), name);
    if (code == QStringLiteral("full"))
        return said(QT_TRANSLATE_NOOP("files", "There is no room left on the disk for %1"), name);
    if (code == QStringLiteral("long"))
        return said(QT_TRANSLATE_NOOP("files", "The name %1 is too long for this disk"), name);
    if (code == QStringLiteral("inside"))
        return said(QT_TRANSLATE_NOOP("files", "The folder %1 cannot go into itself"), name);
    if (code == QStringLiteral("circle"))
        return said(QT_TRANSLATE_NOOP("files", "%1 could not get its new name, and others wait for its old one"), name);
    if (code == QStringLiteral("leader"))
        return said(QT_TRANSLATE_NOOP("files", "%1, which it belongs to, keeps its name"), name);
    return said(QT_TRANSLATE_NOOP("files", "%1 could not be copied correctly"), name);
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

DeedOutcome MoveDeeds::carryOut(int index, const MoveItem &item, const QString &source)
{
    if (item.deed == Deed::Link)
        return linked(item);
    const auto state = m_disk.look(source);
    if (!state)
        return failed(QStringLiteral("gone"), item.from);
    if (item.was && !isSameItem(*state, *item.was))
        return failed(QStringLiteral("changed"), item.from);
    switch (item.deed) {
    case Deed::Move:
        return moved(index, item, source);
    case Deed::Copy:
        return copied(index, source, item.to);
    case Deed::Trash:
        return trashed(source);
    case Deed::RemoveCopy:
        return copyRemoved(index, item);
    case Deed::RemoveLink:
        return linkRemoved(item);
    case Deed::Restore:
        return restored(item);
    case Deed::Link:
        break;
    }
    Q_UNREACHABLE();
}

DeedOutcome MoveDeeds::stepAside(int index, const MoveItem &item)
{
    const auto state = m_disk.look(item.from);
    if (!state)
        return failed(QStringLiteral("gone"), item.from);
    if (item.was && !isSameItem(*state, *item.was))
        return failed(QStringLiteral("changed"), item.from);
    const QString aside = asidePath(m_run, index, item);
    if (const std::error_code error = m_disk.rename(item.from, aside))
        return failureFor(error, item.from, aside);
    return {{}, {}, aside, state};
}

DeedOutcome MoveDeeds::done(const QString &path) const
{
    return {{}, {}, path, m_disk.look(path)};
}

DeedOutcome MoveDeeds::moved(int index, const MoveItem &item, const QString &source)
{
    DeedOutcome outcome = move(index, source, item.to);
    if (outcome.code == QStringLiteral("taken") && source == item.from && isSameUnderOtherCase(source, item.to))
        return renamedInCase(index, item.from, item.to);
    return outcome;
}

DeedOutcome MoveDeeds::move(int index, const QString &from, const QString &to)
{
    if (DeedOutcome made = madeFolders(parentFolder(to)); !made.code.isEmpty())
        return made;
    const std::error_code error = m_disk.rename(from, to);
    if (!error)
        return done(to);
    if (error == std::errc::cross_device_link)
        return movedToOtherDisk(index, from, to);
    return error == std::errc::invalid_argument ? failed(QStringLiteral("inside"), from) : failureFor(error, from, to);
}

/** On a disk that does not tell cases apart, the new name seems to be taken by the item itself. */
bool MoveDeeds::isSameUnderOtherCase(const QString &from, const QString &to) const
{
    const QString folder = parentFolder(from);
    const QString name = lastPathComponent(to);
    if (folder != parentFolder(to) || nameKey(lastPathComponent(from)) != nameKey(name))
        return false;
    const auto one = m_disk.look(from);
    const auto other = m_disk.look(to);
    const auto entries = m_disk.list(folder);
    return one && other && entries && isSameItem(*one, *other) &&
           std::none_of(entries->begin(), entries->end(),
                        [&](const platform::FolderEntry &entry) { return entry.name == name; });
}

DeedOutcome MoveDeeds::renamedInCase(int index, const QString &from, const QString &to)
{
    const QString aside = asidePath(m_run, index, {Deed::Move, from, to});
    if (const std::error_code error = m_disk.rename(from, aside))
        return failureFor(error, from, aside);
    const std::error_code error = m_disk.rename(aside, to);
    if (!error)
        return done(to);
    if (m_disk.rename(aside, from))
        return {QStringLiteral("taken"), sentence(QStringLiteral("taken"), to), aside, {}};
    return failureFor(error, from, to);
}

DeedOutcome MoveDeeds::copied(int index, const QString &from, const QString &to)
{
    if (DeedOutcome made = madeFolders(parentFolder(to)); !made.code.isEmpty())
        return made;
    if (m_disk.look(to))
        return failed(QStringLiteral("taken"), to);
    const QString part = partPath(m_run, index, to);
    discard(part);
    DeedOutcome outcome;
    if (const std::error_code error = m_disk.copy(from, part))
        outcome = failureFor(error, from, to);
    else if (!m_disk.haveSameContent(from, part))
        outcome = failed(QStringLiteral("damaged"), from);
    else if (const auto state = m_disk.look(part); !state)
        outcome = failed(QStringLiteral("damaged"), from);
    else if (const QString problem = m_log.noteCopy(index, *state); !problem.isEmpty())
        outcome = {QStringLiteral("other"), problem, {}, {}};
    else if (const std::error_code taken = m_disk.rename(part, to))
        outcome = failureFor(taken, from, to);
    if (!outcome.code.isEmpty()) {
        discard(part);
        return outcome;
    }
    m_disk.settle(parentFolder(to));
    return done(to);
}

void MoveDeeds::discard(const QString &path)
{
    if (m_disk.look(path) && m_disk.remove(path))
        m_hasLeftOver = true;
}

DeedOutcome MoveDeeds::movedToOtherDisk(int index, const QString &from, const QString &to)
{
    const auto before = m_disk.look(from);
    DeedOutcome outcome = copied(index, from, to);
    if (!outcome.code.isEmpty())
        return outcome;
    const auto after = m_disk.look(from);
    if (!before || !after || !isUnchanged(*before, *after))
        return withoutCopy(index, failed(QStringLiteral("changed"), from), from, outcome);
    const std::error_code error = removeWhole(index, from, to);
    if (!error)
        return outcome;
    if (error == std::errc::device_or_resource_busy)
        return withoutCopy(index, failed(QStringLiteral("changed"), from), from, outcome);
    if (before->kind == ItemKind::File || m_disk.haveSameContent(from, to))
        return withoutCopy(index, failureFor(error, from, to), from, outcome);
    // Part of it is gone, so the whole copy stays too.
    outcome.message = QStringLiteral("A part of %1 could not be removed and is still there").arg(from);
    return outcome;
}

/** Takes a copy away again whose source has to stay, unless somebody has put something into it. */
DeedOutcome MoveDeeds::withoutCopy(int index, DeedOutcome why, const QString &from, const DeedOutcome &copy)
{
    const QString part = partPath(m_run, index, copy.path);
    if (m_disk.rename(copy.path, part)) {
        m_hasLeftOver = true;
        return why;
    }
    const auto state = m_disk.look(part);
    const bool isFolder = state && state->kind == ItemKind::Folder;
    const bool isOurs =
        isFolder ? m_disk.haveSameContent(from, part) : state && copy.is && isUnchanged(*state, *copy.is);
    if (isOurs)
        discard(part);
    else if (m_disk.rename(part, copy.path))
        m_hasLeftOver = true;
    else
        why.message += QStringLiteral("; a copy is at %1").arg(copy.path);
    return why;
}

/** A folder leaves its place in one step and goes only if nothing came into it since it was copied. */
std::error_code MoveDeeds::removeWhole(int index, const QString &path, const QString &copy)
{
    const auto state = m_disk.look(path);
    if (!state || state->kind != ItemKind::Folder)
        return m_disk.remove(path);
    const QString aside = asidePath(m_run, index, {Deed::Move, path, {}});
    if (path == aside)
        return m_disk.remove(path);
    if (const std::error_code error = m_disk.rename(path, aside))
        return error;
    const bool isSame = m_disk.haveSameContent(aside, copy);
    const std::error_code error =
        isSame ? m_disk.remove(aside) : std::make_error_code(std::errc::device_or_resource_busy);
    if (error && m_disk.rename(aside, path))
        m_hasLeftOver = true;
    return error;
}

DeedOutcome MoveDeeds::linked(const MoveItem &item)
{
    if (DeedOutcome made = madeFolders(parentFolder(item.to)); !made.code.isEmpty())
        return made;
    if (const std::error_code error = m_disk.makeLink(item.from, item.to))
        return failureFor(error, item.to, item.to);
    return done(item.to);
}

DeedOutcome MoveDeeds::trashed(const QString &path)
{
    const auto trashed = m_disk.trash(path);
    if (trashed)
        return done(trashed->path);
    return {QStringLiteral("other"), trashed.error().message, {}, {}};
}

DeedOutcome MoveDeeds::copyRemoved(int index, const MoveItem &item)
{
    const auto state = m_disk.look(item.from);
    const bool isUntouched = state && item.was && isUnchanged(*item.was, *state);
    if (!isUntouched || !m_disk.look(item.to) || !m_disk.haveSameContent(item.from, item.to))
        return trashed(item.from);
    if (const std::error_code error = removeWhole(index, item.from, item.to))
        return failureFor(error, item.from, item.from);
    return {};
}

DeedOutcome MoveDeeds::linkRemoved(const MoveItem &item)
{
    if (m_disk.linkText(item.from) != item.to)
        return failed(QStringLiteral("changed"), item.from);
    if (const std::error_code error = m_disk.remove(item.from))
        return failureFor(error, item.from, item.from);
    return {};
}

DeedOutcome MoveDeeds::restored(const MoveItem &item)
{
    if (DeedOutcome made = madeFolders(parentFolder(item.to)); !made.code.isEmpty())
        return made;
    if (const std::error_code error = m_disk.restore({item.from}, item.to))
        return failureFor(error, item.to, item.to);
    return done(item.to);
}

DeedOutcome MoveDeeds::madeFolders(const QString &folder)
{
    if (!m_disk.canonicalFolder(folder).isNull())
        return {};
    if (folder.size() < 2 || m_disk.look(folder))
        return failed(QStringLiteral("taken"), folder);
    if (DeedOutcome above = madeFolders(parentFolder(folder)); !above.code.isEmpty())
        return above;
    if (const QString problem = m_log.noteFolder(folder); !problem.isEmpty())
        return {QStringLiteral("other"), problem, {}, {}};
    const std::error_code error = m_disk.makeFolder(folder);
    return error && error != std::errc::file_exists ? failureFor(error, folder, folder) : DeedOutcome();
}

} // namespace files
