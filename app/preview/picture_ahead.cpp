#include "app/preview/picture_ahead.h"

#include <QFileInfo>

#include <algorithm>

namespace window {

namespace {

constexpr size_t keptAhead = 6;
/** What is asked for now is shown first, and keys that follow one another quickly are heard first. */
constexpr int idleMs = 25;

} // namespace

PictureAhead::PictureAhead(std::function<QSize(QSize)> shownSize, QObject *parent)
    : QObject(parent), m_shownSize(std::move(shownSize))
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleMs);
    connect(&m_idle, &QTimer::timeout, this, &PictureAhead::decodeNext);
}

void PictureAhead::want(const QStringList &paths)
{
    m_wanted = paths;
    m_mostKept = paths.isEmpty() ? 1 : keptAhead;
    while (m_kept.size() > m_mostKept)
        m_kept.pop_front();
    if (m_wanted.isEmpty())
        m_idle.stop();
    else
        m_idle.start();
}

const PictureAhead::Kept *PictureAhead::find(const QString &path) const
{
    const auto found =
        std::find_if(m_kept.cbegin(), m_kept.cend(), [&path](const Kept &kept) { return kept.path == path; });
    if (found == m_kept.cend())
        return nullptr;
    const QFileInfo info(path);
    return info.lastModified() == found->changed && info.size() == found->bytes ? &*found : nullptr;
}

bool PictureAhead::has(const QString &path) const
{
    return find(path) != nullptr;
}

void PictureAhead::forget(const QString &path)
{
    m_kept.erase(std::remove_if(m_kept.begin(), m_kept.end(), [&path](const Kept &kept) { return kept.path == path; }),
                 m_kept.end());
}

platform::Picture PictureAhead::picture(const QString &path)
{
    return keep(path);
}

const platform::Picture &PictureAhead::keep(const QString &path)
{
    const Kept *known = find(path);
    Kept kept = known ? *known : Kept();
    if (!known) {
        const QFileInfo info(path);
        kept = {path, info.lastModified(), info.size(), platform::Picture::opened(path)};
    }
    forget(path);
    m_kept.push_back(kept);
    if (m_kept.size() > m_mostKept)
        m_kept.pop_front();
    return m_kept.back().picture;
}

void PictureAhead::decodeNext()
{
    if (m_wanted.isEmpty())
        return;
    const QString path = m_wanted.takeFirst();
    const platform::Picture &picture = keep(path);
    // A picture that cannot be decoded says so when it is shown.
    if (!picture.isNull())
        (void)picture.scaledTo(m_shownSize(picture.pixelSize()));
    if (!m_wanted.isEmpty())
        m_idle.start();
}

} // namespace window
