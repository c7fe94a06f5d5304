#pragma once

#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>
#include <QVariant>

/**
 * Writes one comment into many pictures that the user chooses, with a progress bar, and a row in the log for each.
 *
 * The outlets may be null. A run completes before the operation returns. Nothing raises. Main thread only.
 */
class cEditMetaData : public QObject
{
    Q_OBJECT
    /** The paths of the last run; null before the first. */
    Q_PROPERTY(QVariant myEMMfiles MEMBER m_files)
    /** Not used. */
    Q_PROPERTY(QVariant ocTheLogData MEMBER m_logData)
    /** Not changed here. */
    Q_PROPERTY(int myLogCounter MEMBER m_logCounter)
    Q_PROPERTY(QObject *myProgressBarke READ progressBar WRITE setProgressBar)
    Q_PROPERTY(QObject *tfEMDuserCommentField READ commentField WRITE setCommentField)
    Q_PROPERTY(QObject *myLogTableViewController READ logController WRITE setLogController)
    Q_PROPERTY(QObject *theLogTable READ logTable WRITE setLogTable)

public:
    Q_INVOKABLE explicit cEditMetaData(QObject *parent = nullptr);

    /** Asks for JPEG and TIFF files and writes the comment field's text into each. */
    Q_INVOKABLE void btEMDchooseFile(platform::Sender sender);

    /** Asks for a folder and writes it into the JPEG and TIFF files below it. */
    Q_INVOKABLE void btEMDchooseFolder(platform::Sender sender);

private:
    void editChosen(const QString &action);
    void edit(const QString &path, const QString &comment);

    QObject *progressBar() const { return m_progressBar; }
    void setProgressBar(QObject *control) { m_progressBar = control; }
    QObject *commentField() const { return m_commentField; }
    void setCommentField(QObject *control) { m_commentField = control; }
    QObject *logController() const { return m_logController; }
    void setLogController(QObject *control) { m_logController = control; }
    QObject *logTable() const { return m_logTable; }
    void setLogTable(QObject *control) { m_logTable = control; }

    QVariant m_files;
    QVariant m_logData;
    int m_logCounter = 0;
    QPointer<QObject> m_progressBar;
    QPointer<QObject> m_commentField;
    QPointer<QObject> m_logController;
    QPointer<QObject> m_logTable;
};
