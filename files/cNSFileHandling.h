#pragma once

#include "platform/imageio/source/picture.h"
#include "platform/plist/property_value.h"
#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QVariant>

/**
 * Answers questions about single files and moves, copies, links, renames, trashes and deletes them.
 *
 * Paths are absolute. Operations that place or remove return a status word: "OK" or "Failed"; creating a folder returns
 * "OK", "EXISTS" or "FAILED", and the test for existence "OK" or "NO". Nothing raises, nothing is shown, and nothing is
 * logged. Main thread only.
 *
 * Text, property lists and data are written atomically, and write errors are not reported.
 */
class cNSFileHandling : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations", "hMoveFileTo hCopyFileTo hAliasFileTo hTrashFile hGetFileType")
    /** The last date stamp; null before. */
    Q_PROPERTY(QString dateString MEMBER dateString)
    /** Where hConvertFileType() last wrote, or would have written; null before. */
    Q_PROPERTY(QUrl saveURL MEMBER saveURL)
    /** The last text that getFileSize() made; null before. */
    Q_PROPERTY(QString myFileSizeStr MEMBER myFileSizeStr)
    /** The field with the path of the folder that hShowInFinder() opens. */
    Q_PROPERTY(QObject *tfDestinationFolder MEMBER tfDestinationFolder)

public:
    Q_INVOKABLE explicit cNSFileHandling(QObject *parent = nullptr);

    /**
     * The creation date of the file, or the date of its last change if the file system does not store one, for use in
     * names: "16-Nov-2026T03-52-09", local time.
     *
     * @param formatCode  0, 1 or 2, as number or text: a new stamp, always in the same format. Anything else: the stamp
     *                    that the object returned before
     * @return "(null)" if there is none: nothing is at the path, or nothing was returned before. A link has dates of
     * its own
     */
    Q_INVOKABLE QString hGetCreationDateFile(const QString &path, const QVariant &formatCode);

    /** The date of the last change, by the rules of hGetCreationDateFile(). */
    Q_INVOKABLE QString hGetModificationDateFile(const QString &path, const QVariant &formatCode);

    /**
     * Creates the folder at @p path with all missing parents.
     *
     * @return "EXISTS" if anything is there, even a file; else "OK", or "FAILED"
     */
    Q_INVOKABLE QString hCreateDirectory(const QString &path);

    /**
     * Makes @p icon the icon of a file or folder: a folder gets a hidden copy and a ".directory" file, a file an attribute.
     * The contents of the item stay as they are. Does nothing without an item or a picture, or if it cannot be written.
     */
    Q_INVOKABLE void hAddIconToFile(const QString &path, const platform::Picture &icon);

    /**
     * Permanently removes files and whole folders, in the order of the list; of a link only the link.
     *
     * @param locations  file locations as text, "file:///a/b%20c.jpg"; null counts as empty
     * @return "OK", even if something could not be removed
     *
     * A TypeError, before anything is removed, if one of them is no location.
     */
    Q_INVOKABLE QString hDeleteFiles(const QVariantList &locations);

    /**
     * Opens the item whose path tfDestinationFolder shows, a folder in the file browser; does nothing if it does not
     * exist.
     */
    Q_INVOKABLE void hShowInFinder(const platform::Sender &sender);

    /**
     * Renames an item within its folder. Both paths are read as locations: a path with a space or another character
     * that a location cannot contain is invalid, and then nothing happens, nor if the new name is taken.
     */
    Q_INVOKABLE void hRenameFile(const QString &path, const QString &newName);

    /** "OK" if a file or folder is at @p path, else "NO"; a link counts as its target. */
    Q_INVOKABLE QString hCheckIfFileExist(const QString &path);

    /**
     * The size of the item as text: "Zero KB", "999 bytes", "2.4 MB". A folder's is that of its entry, a link's its own.
     *
     * @return the text that the object returned before if nothing is at @p path, null if there was none
     */
    Q_INVOKABLE QString getFileSize(const QString &path);

    /**
     * Moves a file or folder, also to another file system. The destination's folder is created if missing, and then
     * whatever is at the destination is permanently removed, regardless of the rest: a file that is moved onto itself
     * is lost. Otherwise, if the move fails, the source is still there.
     */
    Q_INVOKABLE QString hMoveFileTo(const QString &source, const QString &destination);

    /**
     * Copies a file, or a folder with its contents, by the rules of hMoveFileTo(). Either a complete copy is made or
     * none.
     */
    Q_INVOKABLE QString hCopyFileTo(const QString &source, const QString &destination);

    /** Creates a symbolic link with exactly the text @p source, which need not exist, by the rules of hMoveFileTo(). */
    Q_INVOKABLE QString hAliasFileTo(const QString &source, const QString &destination);

    /** Moves a file or folder to the user's trash. On "Failed" it is still in its place. */
    Q_INVOKABLE QString hTrashFile(const QString &path);

    /** The type identifier by the item's extension, "public.folder" for a folder; null if nothing is there. */
    Q_INVOKABLE QString hGetFileType(const QString &path);

    /** Replaces the file at @p path, or creates it, with @p text in UTF-8; null counts as empty. */
    Q_INVOKABLE void hWritHTMLFile(const QString &path, const QString &text);

    /** The same. */
    Q_INVOKABLE void hWriteTextFile(const QString &path, const QString &text);

    /**
     * The lines of a file in UTF-8 as a list of texts; null if it cannot be read or is not UTF-8. Every newline
     * character ends a line, so that there is an empty line between CR and LF, and one after a final line break.
     */
    Q_INVOKABLE QVariant hReadTextFileLbyL(const QString &path);

    /** The value of a key of a property list, XML or binary; null without such a file, dictionary or key. */
    Q_INVOKABLE QVariant readPlist(const QString &path, const QString &key);

    /**
     * Changes one key of a property list; a null value removes it. Everything else and the file's form are kept. Does
     * nothing if there is no property list with a dictionary at @p path, or if no property list can hold the value.
     */
    Q_INVOKABLE void writeToPlist(const QString &path, const QString &key, const platform::PropertyValue &value);

    /** Replaces the file at @p path, or creates it; does nothing for null. */
    Q_INVOKABLE void writeNSDataToFile(const QByteArray &data, const QString &path);

    /** All bytes of a file; null if it cannot be read. */
    Q_INVOKABLE QByteArray readNSDataFromFile(const QString &path);

    /**
     * Writes image 0 of a picture file as another type; see image::convertFile().
     *
     * @param type         "pdf", "png", "tiff", "bmp", "gif", "jpeg" or "jp2", letter for letter; nothing is written for
     *                     any other text
     * @param qualityCode  for "jpeg" only: "1" to "8" are 0.1 to 0.8, anything else is 0.9
     * @param destination  the path of the file to write, extension included; kept as a location in saveURL
     * @return the destination as a location, the type as given, and the source's name without its extension; the
     *         same if nothing could be read or written, which is not reported: the file is simply missing
     */
    Q_INVOKABLE QVariantList hConvertFileType(const QString &source, const QString &type, const QString &qualityCode,
                                              const QString &destination);

private:
    QString stampOr(const QDateTime &date, const QVariant &formatCode);

    QString dateString;
    QUrl saveURL;
    QString myFileSizeStr;
    QPointer<QObject> tfDestinationFolder;
};
