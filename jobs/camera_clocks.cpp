#include "jobs/camera_clocks.h"

namespace jobs {

CameraClocks &CameraClocks::ofProcess()
{
    static CameraClocks clocks;
    return clocks;
}

void CameraClocks::setShift(const QString &camera, qint64 seconds)
{
    if (seconds == 0)
        m_shifts.remove(camera);
    else
        m_shifts.insert(camera, seconds);
}

// A date without a zone: summer time has no part in it.
platform::PictureFacts CameraClocks::corrected(platform::PictureFacts facts) const
{
    const qint64 seconds = shift(facts.camera);
    if (seconds != 0 && facts.taken.isValid()) {
        const QDateTime even = QDateTime(facts.taken.date(), facts.taken.time(), Qt::UTC).addSecs(seconds);
        facts.taken = QDateTime(even.date(), even.time(), facts.taken.timeSpec());
    }
    return facts;
}

} // namespace jobs
