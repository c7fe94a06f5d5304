#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace files {

/**
 * What the scripts of a job do with files beside the pictures' own operations: look at folders, collect input, and
 * bring finished files into their place without ever overwriting one unasked.
 *
 * Paths are absolute. Nothing here needs a window. Failures are sentences; an empty text means success. What is virtual looks into
 * pictures, which a process with windows leaves to others.
 */
class FileService : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString home READ home CONSTANT)
    Q_PROPERTY(QString dataFolder READ dataFolder CONSTANT)

public:
    explicit FileService(QObject *parent = nullptr);

    QString home() const;
    /** The folder for this program's own data, made if need be. */
    QString dataFolder() const;

    /** {exists, isFolder, isLink, bytes (-1 where it cannot be told), writable}. A broken link exists. */
    Q_INVOKABLE QVariantMap info(const QString &path) const;
    /**
     * The file system that holds @p path, or would hold it: {free: bytes that this user may still write, disk: tells file
     * systems apart}; both -1 where it cannot be told.
     */
    Q_INVOKABLE QVariantMap space(const QString &path) const;
    /** The path as an absolute one, from the current folder. */
    Q_INVOKABLE QString absolute(const QString &path) const;
    /** What tells the item at a path from all others, however the path is spelled; a link not followed. Empty where nothing is. */
    Q_INVOKABLE QString identity(const QString &path) const;
    /** The same for a folder, followed through links; it need not be there yet. */
    Q_INVOKABLE QString folderIdentity(const QString &folder) const;
    /** Which of the paths are, or lead to, an item: {identity: [path ...]}. */
    Q_INVOKABLE QVariantMap owners(const QStringList &paths) const;
    /** Names of all entries of a folder, hidden ones included, in no order; empty where it cannot be read. */
    Q_INVOKABLE QStringList names(const QString &folder) const;
    /** The names of the folders in a folder, hidden ones included, in no order; empty where it cannot be read. */
    Q_INVOKABLE QStringList folders(const QString &folder) const;

    /**
     * Files and folders as they were dropped or chosen, turned into the list of pictures to work on; see collectFiles().
     *
     * @param companions  extensions of files that may move with a picture
     * @param listed      extensions of the files that come into the list, whatever the action takes; empty for those taken
     * @return {paths, listed, folders (those of the given paths that are), leftOut (count of files that are not taken), companions
     *         (the paths of those of them that have such an extension), example (name of one that has none)}
     */
    Q_INVOKABLE QVariantMap collect(const QStringList &paths, const QStringList &extensions,
                                    const QStringList &companions, const QStringList &listed) const;

    /** Makes a folder and those above it. */
    Q_INVOKABLE QString makeFolder(const QString &folder) const;
    /** Removes a folder if nothing is in it; says nothing otherwise. */
    Q_INVOKABLE void removeEmptyFolder(const QString &folder) const;

    /**
     * Makes a hidden, private folder in @p folder for unfinished files; null where that fails. The path ends in "/" and leads
     * to this folder even if somebody moves it away. While it is held sweep() leaves it alone, also that of another process.
     */
    Q_INVOKABLE QVariant makeStaging(const QString &folder) const;
    /** Removes a folder made by makeStaging() with all that is in it; refuses any other. */
    Q_INVOKABLE void removeStaging(const QString &staging) const;
    /** Removes what processes that have ended left in @p folder: staging folders and unfinished files. */
    Q_INVOKABLE void sweep(const QString &folder) const;

    /**
     * Moves a finished file into place, in one step, inside one file system.
     *
     * @param replaced  the identity() of the file at @p to that may be replaced and hands on its permissions; "" for none.
     *                  Whatever else is there is never touched
     * @return {status: "OK", "Taken" or "Failed", message}
     */
    Q_INVOKABLE QVariantMap place(const QString &from, const QString &to, const QString &replaced) const;

    /** The path of a folder without links and dots; empty where it is not there. */
    Q_INVOKABLE QString realFolder(const QString &folder) const;
    /** Gives the file at @p to the permissions of the file or link at @p from, as far as that can be done. */
    Q_INVOKABLE void copyPermissions(const QString &from, const QString &to) const;

    /** Pixels of the file as stored: {width, height}, or null for an unreadable file. */
    Q_INVOKABLE virtual QVariant storedSize(const QString &path) const;
    /** The pixels of one block of a JPEG file, as stored: {width, height}; null for any other file. Reads the header only. */
    Q_INVOKABLE QVariant jpegBlock(const QString &path) const;
    /** Marks a JPEG or TIFF file of ours as upright; see platform::markUpright(). */
    Q_INVOKABLE QString markUpright(const QString &path) const;
    /** {width, height, orientation, type, bytes} of a picture, upright; width 0 for an unreadable file. */
    Q_INVOKABLE virtual QVariantMap picture(const QString &path) const;
    /** What is known of a file or folder without decoding it; see fileFacts(). Null where nothing is there. */
    Q_INVOKABLE virtual QVariant facts(const QString &path) const;
    /** The name of the picture's colour profile; empty where it has none. */
    Q_INVOKABLE virtual QString profileName(const QString &path) const;

    /** Writes the user comment of a picture; see platform::writeUserComment(). */
    Q_INVOKABLE virtual QString writeComment(const QString &path, const QString &comment) const;
    /**
     * {lost, problem}: the kinds of metadata, "EXIF", "GPS", "IPTC" and "XMP", that one picture holds and another, made of it, does
     * not; or why one of the two cannot be read.
     */
    Q_INVOKABLE virtual QVariantMap lostMetadata(const QString &from, const QString &to) const;
    /** {comment, problem}: the user comment of a picture, or why it cannot be read. */
    Q_INVOKABLE virtual QVariantMap readComment(const QString &path) const;
    /** How many pages a file would lose to a comment; see platform::pagesLostToUserComment(). */
    Q_INVOKABLE virtual int pagesLostToComment(const QString &path) const;
    /** Whether a file is of a kind that can hold a comment; see platform::canHoldUserComment(). */
    Q_INVOKABLE virtual bool holdsComment(const QString &path) const;

    Q_INVOKABLE QString writeText(const QString &path, const QString &text) const;
    /** Adds lines, each ending in a line feed; see files::appendLines(). */
    Q_INVOKABLE QString appendLines(const QString &path, const QString &lines) const;
    /** See files::keepNewestLines(). */
    Q_INVOKABLE QString keepNewestLines(const QString &path, int most, int limit) const;
    /** Null where the file cannot be read. */
    Q_INVOKABLE QVariant readText(const QString &path) const;

    Q_INVOKABLE QString byteText(double bytes) const;
    /** A local date and time such as "2026-08-14T10:20:30" in the reader's own form; empty for what is none. */
    Q_INVOKABLE QString dateText(const QString &date) const;
};

/** What FileService::picture() answers. @param type  identifier; that of the name where it is empty */
QVariantMap pictureValues(const QString &path, QSize pixels, int orientation, const QString &type);

/** What FileService::lostMetadata() answers of the properties of two pictures. */
QVariantMap lostBetween(const QVariantMap &had, const QVariantMap &has, const QString &problem);

} // namespace files
