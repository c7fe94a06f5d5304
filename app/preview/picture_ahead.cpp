#include "app/preview/picture_ahead.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace window {

namespace {

constexpr size_t keptAhead = 6;

ShownPicture pictureFrom(const jobs::ReadResult &result)
{
    ShownPicture picture;
    picture.problem = result.problem;
    picture.full = result.size();
    picture.image = result.image;
    picture.isReaderGone = result.isReaderGone;
    picture.lacksMemory = result.value("lacksMemory").toBool();
    if (picture.problem.isEmpty() && (picture.image.isNull() || picture.full.isEmpty()))
        picture.isReaderGone = true; // it said neither the one nor the other
    return picture;
}

} // namespace

void PictureAhead::want(const QStringList &paths, const ShownRoom &room)
{
    m_wanted = paths;
    m_wantedRoom = room;
    // What is in the making is not begun once more.
    const bool isWantedStill = m_takePrepared || paths.contains(m_preparing);
    if (!m_preparing.isEmpty() && !(isWantedStill && room == m_preparingRoom)) {
        m_soon.drop();
        m_preparing.clear();
        m_takePrepared = {};
    }
    m_wanted.removeAll(m_preparing);
    m_mostKept = paths.isEmpty() ? 1 : keptAhead;
    while (m_kept.size() > m_mostKept)
        m_kept.pop_front();
    prepareNext();
}

const PictureAhead::Kept *PictureAhead::find(const QString &path, const ShownRoom &room) const
{
    const auto found = std::find_if(m_kept.cbegin(), m_kept.cend(),
                                    [&](const Kept &kept) { return kept.path == path && kept.room == room; });
    if (found == m_kept.cend())
        return nullptr;
    const QFileInfo info(path);
    return info.lastModified() == found->changed && info.size() == found->bytes ? &*found : nullptr;
}

void PictureAhead::forget(const QString &path)
{
    m_kept.erase(std::remove_if(m_kept.begin(), m_kept.end(), [&path](const Kept &kept) { return kept.path == path; }),
                 m_kept.end());
}

jobs::Reader::Number PictureAhead::ask(jobs::Reader &reader, const QString &path, const ShownRoom &room,
                                       jobs::Urgency urgency, const Take &take)
{
    const jobs::ReadRequest request = {jobs::Reading::Rendition,
                                       path,
                                       {{QStringLiteral("roomWidth"), room.size.width()},
                                        {QStringLiteral("roomHeight"), room.size.height()},
                                        {QStringLiteral("covers"), room.isCovered}}};
    const QFileInfo info(path);
    const QDateTime changed = info.lastModified();
    const qint64 bytes = info.size();
    return reader.ask(request, urgency, [=, this](const jobs::ReadResult &result) {
        const ShownPicture picture = pictureFrom(result);
        forget(path);
        m_kept.push_back({path, changed, bytes, room, picture});
        if (m_kept.size() > m_mostKept)
            m_kept.pop_front();
        take(picture);
    });
}

void PictureAhead::get(const QString &path, const ShownRoom &room,
                       const std::function<void(const ShownPicture &picture)> &take)
{
    m_now.drop();
    m_takePrepared = {};
    if (const Kept *kept = find(path, room)) {
        const Kept used = *kept;
        forget(path);
        m_kept.push_back(used);
        take(used.picture);
        return;
    }
    if (isPreparing(path, room))
        m_takePrepared = take;
    else
        ask(m_now, path, room, jobs::Urgency::Now, take);
}

bool PictureAhead::isPreparing(const QString &path, const ShownRoom &room) const
{
    return path == m_preparing && room == m_preparingRoom && m_soon.isBegun(m_preparingNumber);
}

void PictureAhead::takePrepared(const ShownPicture &picture)
{
    m_preparing.clear();
    if (const Take take = std::exchange(m_takePrepared, {}))
        take(picture);
    prepareNext();
}

void PictureAhead::prepareNext()
{
    while (m_preparing.isEmpty() && !m_wanted.isEmpty()) {
        const QString path = m_wanted.takeFirst();
        if (find(path, m_wantedRoom))
            continue;
        m_preparing = path;
        m_preparingRoom = m_wantedRoom;
        m_preparingNumber = ask(m_soon, path, m_wantedRoom, jobs::Urgency::Later,
                                [this](const ShownPicture &picture) { takePrepared(picture); });
    }
}

} // namespace window
