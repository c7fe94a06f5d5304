#include "app/services/cAppUpdater.h"

#include "app/network/download.h"
#include "app/network/version_file.h"

QVariant cAppUpdater::getAppVersion(int runningBuild)
{
    m_err = QVariant();
    const app::VersionAnswer answer = app::versionAnswer(app::downloadedText(app::versionFileAddress()), runningBuild);
    if (!answer.problem.isNull())
        m_err = answer.problem;
    return answer.fields ? QVariant(*answer.fields) : QVariant();
}
