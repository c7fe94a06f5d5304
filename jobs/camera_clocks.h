#pragma once

#include "platform/imageio/source/picture_facts.h"

#include <QHash>
#include <QString>

namespace jobs {

/**
 * The errors of the cameras' clocks, as the user told this process. The order of pictures, and names and folders with
 * dates, follow the corrected clock. No file is changed, and workers draw the dates stored in the files.
 *
 * A camera is named as in platform::PictureFacts; the empty name is that of all files that state none. Main thread only.
 */
class CameraClocks
{
public:
    static CameraClocks &ofProcess();

    /** The camera's dates are shifted by so many seconds, to earlier ones if negative. */
    void setShift(const QString &camera, qint64 seconds);
    /** In seconds; 0 where the clock is right. */
    qint64 shift(const QString &camera) const { return m_shifts.value(camera); }

    /** The same facts with the date by the corrected clock. */
    platform::PictureFacts corrected(platform::PictureFacts facts) const;

private:
    QHash<QString, qint64> m_shifts;
};

} // namespace jobs
