#pragma once

#include "jobs/reading/preview_edits.h"
#include "jobs/reading/reading_messages.h"
#include "platform/descriptors/shared_image.h"
#include "platform/imageio/source/picture.h"

namespace jobs {

/** What a worker answers to one Read. */
struct ReadAnswer
{
    AnswerMessage message;
    std::optional<platform::SharedImage> image;
};

/** The message of an answer, with its pixels. */
platform::Message toMessage(ReadAnswer answer);

/**
 * Looks into pictures for another process. Opens nothing itself; of the picture that was shown last it keeps what was decoded, since a
 * preview asks for it again with every change of a setting.
 */
class PictureReader
{
public:
    ReadAnswer answer(const ReadMessage &read, std::vector<platform::Descriptor> files);

private:
    class Request;
    /** The same file as it was a moment ago. */
    struct Kept
    {
        quint64 disk = 0;
        quint64 number = 0;
        qint64 bytes = -1;
        qint64 changedNs = 0;
        bool operator==(const Kept &other) const = default;
    };
    static Kept keptOf(int descriptor);

    static ReadAnswer thumbnail(const Request &request);
    static ReadAnswer sharedThumbnail(const Request &request);
    ReadAnswer rendition(const Request &request);
    ReadAnswer result(const Request &request);
    platform::Result<platform::Picture> pictureOf(const Request &request);
    platform::Result<platform::Bitmap> baseOf(const Request &request, QSize *full);
    platform::Result<Rendition> resultOf(const Request &request);

    Kept m_kept;
    platform::Picture m_picture;
    /** The last result that only a part was asked for, since more of it will be. */
    QVariantMap m_resultAsked;
    std::vector<Kept> m_resultFiles;
    Rendition m_result;
    std::optional<QRect> m_found; ///< in the last result, see foundPart()
};

} // namespace jobs
