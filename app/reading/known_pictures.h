#pragma once

#include "jobs/reading/read_errand.h"
#include "platform/imageio/source/picture_facts.h"

#include <QHash>
#include <QSizeF>

#include <optional>

namespace window {

/** What the header of a file tells, as a worker read it. */
struct KnownPicture
{
    QString problem;           ///< a sentence if the file cannot be read as a picture
    bool isReaderGone = false; ///< because the process that read it crashed, or was stopped
    QSize pixels;              ///< upright; null if there is a problem
    QSize stored;
    int orientation = 1;
    QString type;  ///< identifier, by the content; empty if there is a problem
    QSizeF points; ///< the size of the upright picture
    platform::PictureFacts facts;
};

/**
 * The headers of this process' pictures, each read once by a worker, and again if its file has changed. This process
 * reads none itself.
 */
class KnownPictures
{
public:
    using Take = std::function<void(const KnownPicture &picture)>;

    static KnownPictures &ofProcess();

    /** What is known of the file in its present state; nothing if it was never requested. */
    std::optional<KnownPicture> find(const QString &path) const;
    /** The same, but read if it was never requested: the process waits for that. */
    KnownPicture now(const QString &path);
    /** Has it read; @p take is called from the event loop, unless @p reader drops it. */
    jobs::Reader::Number ask(jobs::Reader &reader, const QString &path, jobs::Urgency urgency, const Take &take);

private:
    /** Tells a file from the one that was at its path before. */
    struct Stamp
    {
        quint64 disk = 0;
        quint64 number = 0;
        qint64 bytes = -1; ///< no file is there
        qint64 changedNs = 0;
        qint64 sidecarChangedNs = 0; ///< values of a sidecar count too
        bool operator==(const Stamp &other) const = default;
    };
    struct Entry
    {
        Stamp stamp;
        KnownPicture picture;
    };
    static Stamp stampOf(const QString &path);
    KnownPicture keep(const QString &path, const Stamp &stamp, const jobs::ReadResult &result);

    QHash<QString, Entry> m_known;
};

} // namespace window
