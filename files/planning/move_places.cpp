#include "files/planning/move_places.h"

#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"

#include <algorithm>

namespace files {

Spot &FolderView::spot(const QString &name)
{
    return spots[platform::nameKey(name)];
}

Spot::Tenant *FolderView::tenant(const QString &name)
{
    const auto found = spots.find(platform::nameKey(name));
    if (found == spots.end())
        return nullptr;
    for (Spot::Tenant &tenant : found->tenants)
        if (tenant.name == name)
            return &tenant;
    return nullptr;
}

FolderView &Places::folder(const QString &path)
{
    FolderView *known = existing(path);
    if (!known)
        known = m_byPath.value(path);
    if (!known)
        known = m_byPath.insert(path, &imagine(path)).value();
    return *known;
}

FolderView *Places::existing(const QString &path)
{
    if (FolderView *known = m_byPath.value(path))
        return known->isThere ? known : nullptr;
    const QString canonical = m_disk.canonicalFolder(path);
    return canonical.isNull() ? nullptr : m_byPath.insert(path, &read(canonical)).value();
}

FolderView &Places::read(const QString &canonical)
{
    if (FolderView *known = m_byCanonicalPath.value(canonical))
        return *known;
    FolderView &view = *m_all.emplace_back(std::make_unique<FolderView>());
    m_byCanonicalPath.insert(canonical, &view);
    view.path = canonical;
    view.isThere = true;
    view.mayChange = m_disk.mayChange(canonical);
    if (const auto state = m_disk.look(canonical))
        view.device = state->device;
    if (auto entries = m_disk.list(canonical)) {
        view.spots.reserve(qsizetype(entries->size()));
        view.unread = std::move(*entries);
        std::reverse(view.unread.begin(), view.unread.end());
        m_unread.push_back(&view);
    }
    return view;
}

void Places::begin(const QString &path)
{
    for (QString there = path; !existing(there) && there.size() > 1;)
        there = platform::parentFolder(there);
}

bool Places::goOn()
{
    constexpr int entriesAtOnce = 100;
    if (m_unread.empty())
        return false;
    FolderView &view = *m_unread.back();
    for (int i = 0; i < entriesAtOnce && !view.unread.empty(); ++i) {
        const platform::FolderEntry &entry = view.unread.back();
        view.spot(entry.name).tenants.push_back({entry.name, entry.mayBeFolder, -1});
        view.unread.pop_back();
    }
    if (view.unread.empty())
        m_unread.pop_back();
    return true;
}

FolderView &Places::imagine(const QString &path)
{
    FolderView &parent = folder(platform::parentFolder(path));
    const QString name = platform::lastPathComponent(path);
    const QString place = platform::joinedPath(parent.path, name);
    if (FolderView *known = m_byCanonicalPath.value(place))
        return *known;
    FolderView &view = *m_all.emplace_back(std::make_unique<FolderView>());
    m_byCanonicalPath.insert(place, &view);
    view.path = place;
    view.mayChange = parent.mayChange;
    view.device = parent.device;
    view.fault = parent.fault;
    view.faultOther = parent.faultOther;
    Spot &spot = parent.spot(name);
    if (view.fault == MoveProblem::None && (!spot.tenants.empty() || !spot.madeFolder.isEmpty())) {
        const bool isTenant = !spot.tenants.empty();
        const QString other = isTenant ? spot.tenants.front().name : platform::lastPathComponent(spot.madeFolder);
        view.fault = parent.tenant(name) ? MoveProblem::Taken : MoveProblem::OtherCase;
        view.faultOther = platform::joinedPath(parent.path, parent.tenant(name) ? name : other);
    } else if (view.fault == MoveProblem::None) {
        spot.madeFolder = place;
    }
    return view;
}

} // namespace files
