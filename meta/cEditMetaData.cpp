#include "meta/cEditMetaData.h"

#include "files/cToolBox.h"
#include "meta/edit_log.h"
#include "meta/mMeta.h"
#include "platform/controls/controls.h"

cEditMetaData::cEditMetaData(QObject *parent) : QObject(parent) {}

void cEditMetaData::btEMDchooseFile(platform::Sender)
{
    editChosen(QStringLiteral("EMM"));
}

void cEditMetaData::btEMDchooseFolder(platform::Sender)
{
    editChosen(QStringLiteral("EMMDir"));
}

void cEditMetaData::editChosen(const QString &action)
{
    const QStringList paths = cToolBox().hOpenDialogFilesOC(action).toStringList();
    m_files = paths;
    const QString comment = platform::textOf(m_commentField);
    platform::setVisibleOf(m_progressBar, true);
    platform::setProgressOf(m_progressBar, 0);
    platform::setIndeterminateOf(m_progressBar, false);
    platform::setProgressMaximumOf(m_progressBar, double(paths.size()));
    for (const QString &path : paths)
        edit(path, comment);
    platform::setVisibleOf(m_progressBar, false);
    platform::setProgressOf(m_progressBar, 0);
}

void cEditMetaData::edit(const QString &path, const QString &comment)
{
    const QString status = mMeta().hSetExifData(path, comment);
    if (status != QLatin1String("OK"))
        return;
    platform::addRowTo(m_logController, meta::editLogRow(path, status));
    platform::reloadTable(m_logTable);
    platform::setProgressOf(m_progressBar, platform::progressOf(m_progressBar) + 1);
    platform::redraw(m_progressBar);
}
