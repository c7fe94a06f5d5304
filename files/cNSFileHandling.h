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
 * Paths are absolute. Operations that place or remove answer with a status word: "OK" or "Failed", making a folder with
 * "OK", "EXISTS" or "FAILED", the question whether something exists with "OK" or "NO". Nothing raises, nothing is shown, and
 * nothing is logged. Main thread only.
 *
 * Text, property lists and data are written whole or not at all, and a failure to write is not reported.
 */
class cNSFileHandling : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations", "hMoveFileTo hCopyFileTo hAliasFileTo hTrashFile hGetFileType")
    /** The last date stamp; null before. */
    Q_PROPERTY(QString dateString MEMBER dateString)
    /** Where hConvertFileType() wrote last, or would have; null before. */
    Q_PROPERTY(QUrl saveURL MEMBER saveURL)
    /** The last text that getFileSize() made; null before. */
    Q_PROPERTY(QString myFileSizeStr MEMBER myFileSizeStr)
    /** The field that shows the folder which hShowInFinder() opens. */
    Q_PROPERTY(QObject *tfDestinationFolder MEMBER tfDestinationFolder)

public:
    Q_INVOKABLE explicit cNSFileHandling(QObject *parent = nullptr);

    /**
     * The date on which the file was made, where the file system keeps no such date the one of its last change, for use in
     * names: "16-Nov-2026T03-52-09", local time.
     *
     * @param formatCode  0, 1 or 2, as number or text: a new stamp, in one and the same form. Anything else: the stamp that the
     *                    object gave before
     * @return "(null)" where there is none: nothing is at the path, or nothing was given before. A link has dates of its own
     */
    Q_INVOKABLE QString hGetCreationDateFile(const QString &path, const QVariant &formatCode);

    /** The date of the last change, by the rules of hGetCreationDateFile(). */
    Q_INVOKABLE QString hGetModificationDateFile(const QString &path, const QVariant &formatCode);

    /**
     * Makes the folder at @p path with all above it that are missing.
     *
     * @return "EXISTS" where anything is there, a file too; else "OK", or "FAILED"
     */
    Q_INVOKABLE QString hCreateDirectory(const QString &path);

    /**
     * Makes @p icon the icon of a file or folder: a folder gets a hidden copy and a ".directory" file, a file an attribute.
     * What is in the item stays as it is. Nothing happens without an item or a picture, or where it cannot be written.
     */
    Q_INVOKABLE void hAddIconToFile(const QString &path, const platform::Picture &icon);

    /**
     * Removes files and whole folders for good, in the order of the list; of a link the link only.
     *
     * @param locations  file locations as text, "file:///a/b%20c.jpg"; null counts as empty
     * @return "OK", also where something could not be removed
     *
     * A TypeError, before anything is removed, where one of them is no location.
     */
    Q_INVOKABLE QString hDeleteFiles(const QVariantList &locations);

    /** Opens the item whose path tfDestinationFolder shows, a folder in the file browser; nothing where nothing is there. */
    Q_INVOKABLE void hShowInFinder(const platform::Sender &sender);

    /**
     * Gives an item another name in its folder. Both paths are read as locations: a path with a space or another character
     * that no location can hold is none, and then nothing happens, as where the new name is taken.
     */
    Q_INVOKABLE void hRenameFile(const QString &path, const QString &newName);

    /** "OK" where a file or folder is at @p path, else "NO"; a link counts as what it leads to. */
    Q_INVOKABLE QString hCheckIfFileExist(const QString &path);

    /**
     * The size of the item as text: "Zero KB", "999 bytes", "2.4 MB". A folder's is that of its entry, a link's its own.
     *
     * @return where nothing is at @p path the text that the object gave before, null where there was none
     */
    Q_INVOKABLE QString getFileSize(const QString &path);

    /**
     * Moves a file or folder, to another file system too. The folder of the destination is made where it is missing, and
     * then what is at the destination is removed for good, whatever becomes of the rest: a file that is moved onto
     * itself is lost. Where the move fails the source is still there, but for that.
     */
    Q_INVOKABLE QString hMoveFileTo(const QString &source, const QString &destination);

    /** Copies a file, or a folder with all that is in it, by the rules of hMoveFileTo(). A whole copy is made or none. */
    Q_INVOKABLE QString hCopyFileTo(const QString &source, const QString &destination);

    /** Makes a symbolic link that says exactly @p source, which need not exist, by the rules of hMoveFileTo(). */
    Q_INVOKABLE QString hAliasFileTo(const QString &source, const QString &destination);

    /** Moves a file or folder to the user's trash. On "Failed" it is still in its place. */
    Q_INVOKABLE QString hTrashFile(const QString &path);

    /** The type identifier by the item's extension, "public.folder" for a folder; null where nothing is there. */
    Q_INVOKABLE QString hGetFileType(const QString &path);

    /** Replaces the file at @p path, or makes it, with @p text in UTF-8; null counts as empty. */
    Q_INVOKABLE void hWritHTMLFile(const QString &path, const QString &text);

    /** The same. */
    Q_INVOKABLE void hWriteTextFile(const QString &path, const QString &text);

    /**
     * The lines of a file in UTF-8 as a list of texts; null if it cannot be read or is not UTF-8. Each newline character ends a
     * line by itself, so that CR and LF have an empty line between them, and a line break at the end one behind it.
     */
    Q_INVOKABLE QVariant hReadTextFileLbyL(const QString &path);

    /** The value under a key of a property list, XML or binary; null without such a file, dictionary or key. */
    Q_INVOKABLE QVariant readPlist(const QString &path, const QString &key);

    /**
     * Changes one key of a property list; a null value removes it. Everything else and the form of the file are kept.
     * Nothing happens where no property list with a dictionary is at @p path, and for a value that none can hold.
     */
    Q_INVOKABLE void writeToPlist(const QString &path, const QString &key, const platform::PropertyValue &value);

    /** Replaces the file at @p path, or makes it; nothing happens for null. */
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
     * @return the destination as a location, the type as it was given, and the source's name without its extension; the
     *         same where nothing could be read or written, of which nobody is told: the file is simply not there
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
