#include "app/preview/picture_ahead.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace window {

std::optional<QRectF> partIn(const jobs::ReadResult &result)
{
    if (!result.value("right").isValid())
        return std::nullopt;
    return QRectF(QPointF(result.value("left").toDouble(), result.value("top").toDouble()),
                  QPointF(result.value("right").toDouble(), result.value("bottom").toDouble()));
}

namespace {

constexpr size_t keptAhead = 6; // the whole and a part of each picture

ShownPicture pictureFrom(const jobs::ReadResult &result)
{
    ShownPicture picture;
    picture.problem = result.problem;
    picture.full = result.size();
    picture.image = result.image;
    picture.isReaderGone = result.isReaderGone;
    picture.lacksMemory = result.value("lacksMemory").toBool();
    picture.part = partIn(result).value_or(picture.part);
    if (picture.problem.isEmpty() && (picture.image.isNull() || picture.full.isEmpty()))
        picture.isReaderGone = true; // unless the worker said either
    return picture;
}

} // namespace

QVariantMap valuesOf(const ShownRoom &room)
{
    QVariantMap values = {{QStringLiteral("roomWidth"), room.size.width()},
                          {QStringLiteral("roomHeight"), room.size.height()},
                          {QStringLiteral("covers"), room.isCovered}};
    if (room.isPart()) {
        values.insert(QStringLiteral("scale"), room.scale);
        values.insert(QStringLiteral("centerX"), room.center.x());
        values.insert(QStringLiteral("centerY"), room.center.y());
    }
    return values;
}

void PictureAhead::want(const QStringList &paths, const QList<ShownRoom> &rooms)
{
    m_wanted.clear();
    for (const QString &path : paths)
        for (const ShownRoom &room : rooms)
            m_wanted.append({path, room});
    // What is already being made is not started again.
    const bool isWantedStill = (m_takePrepared && rooms.contains(m_preparing.room)) || m_wanted.contains(m_preparing);
    if (!m_preparing.path.isEmpty() && !isWantedStill) {
        m_soon.drop();
        m_preparing = {};
        m_takePrepared = {};
    }
    m_wanted.removeAll(m_preparing);
    m_mostKept = paths.isEmpty() ? 2 : 2 * keptAhead;
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

/** What is cached of the same picture for another view of the same kind is not requested again. */
void PictureAhead::forgetLike(const QString &path, const ShownRoom &room)
{
    std::erase_if(m_kept, [&](const Kept &kept) { return kept.path == path && kept.room.isPart() == room.isPart(); });
}

void PictureAhead::forget(const QString &path)
{
    m_kept.erase(std::remove_if(m_kept.begin(), m_kept.end(), [&path](const Kept &kept) { return kept.path == path; }),
                 m_kept.end());
}

jobs::Reader::Number PictureAhead::ask(jobs::Reader &reader, const QString &path, const ShownRoom &room,
                                       jobs::Urgency urgency, const Take &take)
{
    const jobs::ReadRequest request = {jobs::Reading::Rendition, path, valuesOf(room)};
    const QFileInfo info(path);
    const QDateTime changed = info.lastModified();
    const qint64 bytes = info.size();
    return reader.ask(request, urgency, [=, this](const jobs::ReadResult &result) {
        const ShownPicture picture = pictureFrom(result);
        forgetLike(path, room);
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
        forgetLike(path, room);
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
    return m_preparing == Wanted{path, room} && m_soon.isBegun(m_preparingNumber);
}

void PictureAhead::takePrepared(const ShownPicture &picture)
{
    m_preparing = {};
    if (const Take take = std::exchange(m_takePrepared, {}))
        take(picture);
    prepareNext();
}

void PictureAhead::prepareNext()
{
    while (m_preparing.path.isEmpty() && !m_wanted.isEmpty()) {
        const Wanted next = m_wanted.takeFirst();
        if (find(next.path, next.room))
            continue;
        m_preparing = next;
        m_preparingNumber = ask(m_soon, next.path, next.room, jobs::Urgency::Later,
                                [this](const ShownPicture &picture) { takePrepared(picture); });
    }
}

} // namespace window
