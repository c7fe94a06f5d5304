#include "app/reading/known_pictures.h"

#include "jobs/reading/field_errand.h"
#include "meta/metadata_file.h"

#include "platform/foundation/paths.h"

#include <sys/stat.h>

namespace window {

namespace {

/** As long as a list may reasonably be; beyond that everything is read again when requested. */
constexpr qsizetype mostKnown = 200'000;

KnownPicture pictureFrom(const jobs::ReadResult &result)
{
    KnownPicture picture;
    picture.problem = result.problem;
    picture.isReaderGone = result.isReaderGone;
    picture.facts.taken = QDateTime::fromString(result.value("taken").toString(), Qt::ISODate);
    picture.facts.camera = result.value("camera").toString();
    picture.facts.lens = result.value("lens").toString();
    picture.facts.pixels = result.size("statedWidth", "statedHeight");
    picture.facts.typeIdentifier = result.value("statedType").toString();
    if (!result.isGood())
        return picture;
    constexpr int mostOrientations = 8;
    picture.pixels = result.size();
    picture.stored = result.size("storedWidth", "storedHeight");
    picture.orientation = qBound(1, result.value("orientation").toInt(), mostOrientations);
    picture.type = result.value("type").toString();
    const QSizeF points(result.value("pointWidth").toDouble(), result.value("pointHeight").toDouble());
    picture.points = points.isEmpty() || !qIsFinite(points.width() * points.height()) ? QSizeF(picture.pixels) : points;
    return picture;
}

jobs::ReadRequest requestFor(const QString &path)
{
    return {jobs::Reading::Facts, path, jobs::askingFields(path)};
}

} // namespace

KnownPictures &KnownPictures::ofProcess()
{
    static KnownPictures all;
    return all;
}

KnownPictures::Stamp KnownPictures::stampOf(const QString &path)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    struct stat status = {};
    if (::stat(platform::encodedPath(path).constData(), &status) != 0)
        return {};
    Stamp stamp = {status.st_dev, status.st_ino, status.st_size,
                   status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
    const meta::Sidecar sidecar = meta::sidecarOf(path);
    if (sidecar.isThere && ::stat(platform::encodedPath(sidecar.path).constData(), &status) == 0)
        stamp.sidecarChangedNs = status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec;
    return stamp;
}

std::optional<KnownPicture> KnownPictures::find(const QString &path) const
{
    const auto found = m_known.constFind(path);
    if (found == m_known.constEnd() || found->stamp != stampOf(path))
        return std::nullopt;
    return found->picture;
}

KnownPicture KnownPictures::now(const QString &path)
{
    if (const auto known = find(path))
        return *known;
    const Stamp stamp = stampOf(path);
    return keep(path, stamp, jobs::readNow(requestFor(path)));
}

jobs::Reader::Number KnownPictures::ask(jobs::Reader &reader, const QString &path, jobs::Urgency urgency,
                                        const Take &take)
{
    const Stamp stamp = stampOf(path);
    return reader.ask(requestFor(path), urgency,
                      [this, path, stamp, take](const jobs::ReadResult &result) { take(keep(path, stamp, result)); });
}

KnownPicture KnownPictures::keep(const QString &path, const Stamp &stamp, const jobs::ReadResult &result)
{
    if (m_known.size() >= mostKnown)
        m_known.clear();
    const KnownPicture picture = pictureFrom(result);
    m_known.insert(path, {stamp, picture});
    return picture;
}

} // namespace window
