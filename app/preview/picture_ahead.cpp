#include "app/preview/picture_ahead.h"

#include <QFileInfo>

#include <algorithm>

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
    m_soon.drop();
    m_wanted = paths;
    m_wantedRoom = room;
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

void PictureAhead::ask(jobs::Reader &reader, const QString &path, const ShownRoom &room, jobs::Urgency urgency,
                       const std::function<void(const ShownPicture &picture)> &take)
{
    const jobs::ReadRequest request = {jobs::Reading::Rendition,
                                       path,
                                       {{QStringLiteral("roomWidth"), room.size.width()},
                                        {QStringLiteral("roomHeight"), room.size.height()},
                                        {QStringLiteral("covers"), room.isCovered}}};
    const QFileInfo info(path);
    const QDateTime changed = info.lastModified();
    const qint64 bytes = info.size();
    reader.ask(request, urgency, [=, this](const jobs::ReadResult &result) {
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
    if (const Kept *kept = find(path, room)) {
        const Kept used = *kept;
        forget(path);
        m_kept.push_back(used);
        take(used.picture);
        return;
    }
    ask(m_now, path, room, jobs::Urgency::Now, take);
}

void PictureAhead::prepareNext()
{
    while (!m_wanted.isEmpty()) {
        const QString path = m_wanted.takeFirst();
        if (!find(path, m_wantedRoom)) {
            ask(m_soon, path, m_wantedRoom, jobs::Urgency::Later, [this](const ShownPicture &) { prepareNext(); });
            return;
        }
    }
}

} // namespace window
