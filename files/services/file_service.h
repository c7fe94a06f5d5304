#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace files {

/**
 * What the scripts of a job do with files besides the pictures' own operations: query folders, collect input, and move
 * finished files to their destination without ever overwriting one unasked.
 *
 * Paths are absolute. Nothing here needs a window. Failures are sentences; an empty text means success. Virtual
 * operations read pictures, which a process with windows leaves to others.
 */
class FileService : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString home READ home CONSTANT)
    Q_PROPERTY(QString dataFolder READ dataFolder CONSTANT)

public:
    explicit FileService(QObject *parent = nullptr);

    QString home() const;
    /** The folder for this program's own data, created if necessary. */
    QString dataFolder() const;

    /** {exists, isFolder, isLink, bytes (-1 if unknown), writable}. A broken link exists. */
    Q_INVOKABLE QVariantMap info(const QString &path) const;
    /**
     * The file system that contains @p path, or would: {free: bytes that this user may still write, disk: identifies
     * the file system}; both -1 if unknown.
     */
    Q_INVOKABLE QVariantMap space(const QString &path) const;
    /**
     * The same of the file system that keeps what is moved from the folder @p path to the trash. For a folder that is
     * missing this is that of its place, and for what cannot be a path that of the user's own trash or of the root.
     */
    Q_INVOKABLE QVariantMap trashSpace(const QString &path) const;
    /** The path as an absolute one, from the current folder. */
    Q_INVOKABLE QString absolute(const QString &path) const;
    /**
     * Identifies the item at a path, however the path is spelled; a link is not followed. Empty if nothing is there.
     */
    Q_INVOKABLE QString identity(const QString &path) const;
    /** The same for a folder, following links; it need not exist yet. */
    Q_INVOKABLE QString folderIdentity(const QString &folder) const;
    /** Which of the paths are, or lead to, an item: {identity: [path ...]}. */
    Q_INVOKABLE QVariantMap owners(const QStringList &paths) const;
    /** Names of all entries of a folder, including hidden ones, in no particular order; empty if it cannot be read. */
    Q_INVOKABLE QStringList names(const QString &folder) const;
    /** Those of names() that end in one of these, whatever their case, and have a character before it. */
    Q_INVOKABLE QStringList namesEndingIn(const QString &folder, const QStringList &endings) const;
    /**
     * The names of the folders in a folder, including hidden ones, in no particular order; empty if it cannot be read.
     */
    Q_INVOKABLE QStringList folders(const QString &folder) const;

    /**
     * Turns dropped or chosen files and folders into the list of pictures to process; see collectFiles().
     *
     * @param companions  extensions of files that may move with a picture
     * @param listed      extensions of the files that come into the list, whatever the action takes; empty for those taken
     * @return {paths, listed, folders (those of the given paths that are), leftOut (count of files that are not taken), companions
     *         (the paths of those of them that have such an extension), example (name of one that has none)}
     */
    Q_INVOKABLE QVariantMap collect(const QStringList &paths, const QStringList &extensions,
                                    const QStringList &companions, const QStringList &listed) const;

    /** Creates a folder with its parents. */
    Q_INVOKABLE QString makeFolder(const QString &folder) const;
    /** Removes a folder if it is empty; reports nothing otherwise. */
    Q_INVOKABLE void removeEmptyFolder(const QString &folder) const;

    /**
     * Creates a hidden, private folder in @p folder for unfinished files; null if that fails. The path ends in "/" and
     * leads to this folder even if somebody moves it. While it is locked sweep() leaves it alone, also that of another
     * process.
     */
    Q_INVOKABLE QVariant makeStaging(const QString &folder) const;
    /** Removes a folder made by makeStaging() with its contents; refuses any other. */
    Q_INVOKABLE void removeStaging(const QString &staging) const;
    /** Removes what ended processes left in @p folder: staging folders and unfinished files. */
    Q_INVOKABLE void sweep(const QString &folder) const;

    /**
     * Moves a finished file into place, in one step, within one file system.
     *
     * @param replaced  the identity() of the file at @p to that may be replaced and whose permissions are kept; "" for
     *                  none. Anything else there is never touched
     * @return {status: "OK", "Taken" or "Failed", message}
     */
    Q_INVOKABLE QVariantMap place(const QString &from, const QString &to, const QString &replaced) const;

    /** The path of a folder without links and dots; empty if it does not exist. */
    Q_INVOKABLE QString realFolder(const QString &folder) const;
    /** Gives the file at @p to the permissions of the file or link at @p from, as far as possible. */
    Q_INVOKABLE void copyPermissions(const QString &from, const QString &to) const;

    /** Pixels of the file as stored: {width, height}, or null for an unreadable file. */
    Q_INVOKABLE virtual QVariant storedSize(const QString &path) const;
    /** The pixels of one block of a JPEG file, as stored: {width, height}; null for any other file. Reads the header only. */
    Q_INVOKABLE QVariant jpegBlock(const QString &path) const;
    /** Marks a JPEG or TIFF file made by us as upright; see platform::markUpright(). */
    Q_INVOKABLE QString markUpright(const QString &path) const;
    /** {width, height, orientation, type, bytes} of a picture, upright; width 0 for an unreadable file. */
    Q_INVOKABLE virtual QVariantMap picture(const QString &path) const;
    /** What is known about a file or folder without decoding it; see fileFacts(). Null if nothing is there. */
    Q_INVOKABLE virtual QVariant facts(const QString &path) const;
    /** The name of the picture's colour profile; empty if it has none. */
    Q_INVOKABLE virtual QString profileName(const QString &path) const;

    /** Writes the user comment of a picture; see platform::writeUserComment(). */
    Q_INVOKABLE virtual QString writeComment(const QString &path, const QString &comment) const;
    /**
     * {lost, problem}: the kinds of metadata, "EXIF", "GPS", "IPTC" and "XMP", that one picture has and another one,
     * made from it, does not; or why one of the two cannot be read.
     */
    Q_INVOKABLE virtual QVariantMap lostMetadata(const QString &from, const QString &to) const;
    /** {comment, problem}: the user comment of a picture, or why it cannot be read. */
    Q_INVOKABLE virtual QVariantMap readComment(const QString &path) const;
    /** How many pages a file would lose to a comment; see platform::pagesLostToUserComment(). */
    Q_INVOKABLE virtual int pagesLostToComment(const QString &path) const;
    /** Whether a file is of a kind that can hold a comment; see platform::canHoldUserComment(). */
    Q_INVOKABLE virtual bool holdsComment(const QString &path) const;

    Q_INVOKABLE QString writeText(const QString &path, const QString &text) const;
    /** Appends lines, each ending in a line feed; see files::appendLines(). */
    Q_INVOKABLE QString appendLines(const QString &path, const QString &lines) const;
    /** See files::keepNewestLines(). */
    Q_INVOKABLE QString keepNewestLines(const QString &path, int most, int limit) const;
    /** Null if the file cannot be read. */
    Q_INVOKABLE QVariant readText(const QString &path) const;

    Q_INVOKABLE QString byteText(double bytes) const;
    /** A local date and time such as "2026-08-14T10:20:30" in the reader's own format; empty if it is invalid. */
    Q_INVOKABLE QString dateText(const QString &date) const;
};

/** The answer of FileService::picture(). @param type  identifier; that of the name if empty */
QVariantMap pictureValues(const QString &path, QSize pixels, int orientation, const QString &type);

/** What FileService::lostMetadata() answers of the properties of two pictures. */
QVariantMap lostBetween(const QVariantMap &had, const QVariantMap &has, const QString &problem);

} // namespace files
