#pragma once

#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>
#include <QVariant>

/**
 * The metadata of one picture: shown in the controls of a pane, returned as values, and its comment written.
 *
 * Files are recognised by their content. The outlets may be null; then nothing is shown or read there. Nothing raises.
 * Main thread only.
 */
class mMeta : public QObject
{
    Q_OBJECT
    /** The tree that was built last, a list of nodes; null before the first. A dictionary without keys leaves it as it is. */
    Q_PROPERTY(QVariant myVarTree MEMBER m_tree)
    /** Not used. */
    Q_PROPERTY(QString myString MEMBER m_text)
    Q_PROPERTY(QObject *mTree READ treeController WRITE setTreeController)
    Q_PROPERTY(QObject *tfExifUserComment READ commentField WRITE setCommentField)
    Q_PROPERTY(QObject *tfActiveFilePath READ pathField WRITE setPathField)
    Q_PROPERTY(QObject *mymMetaLogTableViewController READ logController WRITE setLogController)
    Q_PROPERTY(QObject *themMetaLogTable READ logTable WRITE setLogTable)

public:
    Q_INVOKABLE explicit mMeta(QObject *parent = nullptr);

    /**
     * Shows a file: its comment, or why there is none, in the comment field, and its properties in the tree.
     *
     * @return myVarTree; if the file cannot be opened the tree is empty and myVarTree stays unchanged
     */
    Q_INVOKABLE QVariant hiDoNothing(const QString &path);

    /**
     * The nodes of a dictionary, ascending by key: "key" (its label), "val" (the value, "" for a dictionary) and, for a
     * dictionary, "children". They are stored in myVarTree unless there are none.
     */
    Q_INVOKABLE QVariantList propTree(const QVariantMap &properties);

    /** The user comment of the first picture; "" if there is none or the file cannot be read. */
    Q_INVOKABLE QString hGetExifUc(const QString &path);

    /** The name of the picture's colour space; null if the file cannot be read. */
    Q_INVOKABLE QString hGetColorProfile(const QString &path);

    /** Width and height of the upright picture in pixels as two texts; "0" and "0" if the file cannot be read. */
    Q_INVOKABLE QStringList hGetPixelFormat(const QString &path);

    /**
     * Writes the user comment into the file, in place and atomically; nothing else changes, except that only the first
     * page of a TIFF with several pages is kept.
     *
     * @return "OK" whenever the file could be opened as a picture, else "Failed". A file that cannot be written, or
     *         whose type has no place for a comment, stays as it is; hGetExifUc() returns its present comment
     */
    Q_INVOKABLE QString hSetExifData(const QString &path, const QString &comment);

    /** Writes the comment field's text into the file of the path field, shows it again, and appends a row to the log. */
    Q_INVOKABLE void btApplyExifUserComment(platform::Sender sender);

private:
    QObject *treeController() const { return m_treeController; }
    void setTreeController(QObject *control) { m_treeController = control; }
    QObject *commentField() const { return m_commentField; }
    void setCommentField(QObject *control) { m_commentField = control; }
    QObject *pathField() const { return m_pathField; }
    void setPathField(QObject *control) { m_pathField = control; }
    QObject *logController() const { return m_logController; }
    void setLogController(QObject *control) { m_logController = control; }
    QObject *logTable() const { return m_logTable; }
    void setLogTable(QObject *control) { m_logTable = control; }

    QVariant m_tree;
    QString m_text;
    QPointer<QObject> m_treeController;
    QPointer<QObject> m_commentField;
    QPointer<QObject> m_pathField;
    QPointer<QObject> m_logController;
    QPointer<QObject> m_logTable;
};
