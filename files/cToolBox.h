#pragma once

#include "platform/controls/save_panel.h"
#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QVariant>

#include <memory>

/**
 * Collects the input of the actions, stages files, asks for folders, and saves pictures, texts and data where the user says.
 *
 * Operations that do not save are called on the class, except hChooseDirectory(), and store nothing between calls.
 * Saving a picture requires an object with menus on its outlets; the choices stay in its fields. Nothing raises. Main
 * thread only; panels are modal.
 */
class cToolBox : public QObject
{
    Q_OBJECT
    Q_CLASSINFO(
        "ClassOperations",
        "hOpenDialogFiles hOpenDialogFilesOC hStoreFiles hStoreFiles2 hStoreTempFile hGetTempDir "
        "hGetHomeDir hGetFilesInDir hShowURL hNSStrToUrl hGetMacOSVersion hCallShellScript hSaveWriteDialogFile")
    /** Not used by any operation. */
    Q_PROPERTY(QVariant err MEMBER err)
    /** What the menu of types said last: "jpeg"; null before. */
    Q_PROPERTY(QString myFileType MEMBER myFileType)
    /** What the menu of qualities said last: "8"; null before. */
    Q_PROPERTY(QString myCompType MEMBER myCompType)
    /** A list of one text, myFileType, which is what the panel allows; null before. */
    Q_PROPERTY(QVariant extensions MEMBER extensions)
    /** Not used by any operation. */
    Q_PROPERTY(QString myJPEGcompression MEMBER myJPEGcompression)
    /** The panel of hSaveDialogFile() that is open, or was last; null before. */
    Q_PROPERTY(QObject *panel READ panel)
    /** The tags that were typed into the last panel that asked for them; null before. */
    Q_PROPERTY(QVariant tagNames MEMBER tagNames)
    /** The view under the panel of hSaveDialogFile(). */
    Q_PROPERTY(QObject *wwFormats MEMBER wwFormats)
    /** Menus of types and of JPEG qualities: those in the panel, and those of another form. */
    Q_PROPERTY(QObject *pubFileType MEMBER pubFileType)
    Q_PROPERTY(QObject *pubSaveAsFileType MEMBER pubSaveAsFileType)
    Q_PROPERTY(QObject *pubJPEGcompression MEMBER pubJPEGcompression)
    Q_PROPERTY(QObject *pubSaveAsJPEGcompression MEMBER pubSaveAsJPEGcompression)

public:
    Q_INVOKABLE explicit cToolBox(QObject *parent = nullptr);

    /**
     * Asks for the input of an action and returns it.
     *
     * @param actionType  "EMM", "batchSort", "resize", "sort", "rescale", "rename", "renameDir", "sortDir",
     *                    "WatermarkDir" or "WatermarkFiles", letter for letter
     * @return a list of absolute paths of files, in the order of the panel or of the folder walk; empty if the user cancels;
     *         null, without a panel, for any other action type
     *
     * Modal; main thread only. Unreadable items in a folder walk are skipped.
     */
    Q_INVOKABLE QVariant hOpenDialogFiles(const QString &actionType);

    /**
     * The same for "EMM", "EMMDir", "sort", "rescale", "rename", "renameDir", "batchSortImages" and "sortDir", with PDF
     * and without BMP and JPEG 2000 among the types that the panel offers.
     */
    Q_INVOKABLE QVariant hOpenDialogFilesOC(const QString &actionType);

    /**
     * Copies a file beside itself under @p newName.
     *
     * @return "successfull", spelled so, or "Failed". If the name is taken, that file stays as it is, and the copy
     *         remains under the name with "-temp" appended
     */
    Q_INVOKABLE QString hStoreFiles(const QString &source, const QString &newName);

    /** Copies to a free path: "successfull" or "Failed". */
    Q_INVOKABLE QString hStoreFiles2(const QString &source, const QString &destination);

    /** Copies into the staging folder, which must exist, under a free name: "successfull" or "Failed". */
    Q_INVOKABLE QString hStoreTempFile(const QString &source, const QString &fileName);

    /** The staging folder, "Temp" in the home folder. Not created here. */
    Q_INVOKABLE QString hGetTempDir();

    Q_INVOKABLE QString hGetHomeDir();

    /** Asks for one folder, which can be created in the panel: its path, null on cancel. Modal. */
    Q_INVOKABLE QString hChooseDirectory();

    /**
     * The direct contents of a folder, as a list of locations in the file system's order, without hidden items. Null if
     * the folder cannot be read.
     */
    Q_INVOKABLE QVariant hGetFilesInDir(const QString &folder);

    /** Opens a location in the program for its kind, a web address in the browser. Does nothing for other text. */
    Q_INVOKABLE void hShowURL(const QString &location);

    /**
     * The text as one percent-encoded segment of a location, including slashes: "a/b c" gives "a%2Fb%20c". Null if that
     * is no location.
     */
    Q_INVOKABLE QUrl hNSStrToUrl(const QString &text);

    /** "109+" if the whole part of the framework's version number is 856 or more, else "108". */
    Q_INVOKABLE QString hGetMacOSVersion();

    /**
     * Makes a PDF of a picture with the system's image tool and waits for it. Does nothing if there is no such tool.
     */
    Q_INVOKABLE void hCallShellScript(const QString &input, const QString &output);

    /**
     * Asks where to save a picture, and writes it there with the type and quality that the menus of pubFileType and
     * pubJPEGcompression show when the panel closes, by the rules of image::convertFile().
     *
     * The panel opens in the Desktop folder with the source's name, shows wwFormats, and accepts files of the chosen
     * type only. If the user default "MOS" is "109+" it also asks for tags, which are set on the file.
     *
     * @return the location of the file, its type, and the source's name without extension, even if nothing could be
     *         written; null if the user cancels
     */
    Q_INVOKABLE QVariant hSaveDialogFile(const QString &source);

    /** The menu on pubFileType was used: the panel allows the new type, and qualities can be chosen for "jpeg" only. */
    Q_INVOKABLE void hChooseFileType(const platform::Sender &sender);

    /** The same for pubSaveAsFileType and pubSaveAsJPEGcompression. */
    Q_INVOKABLE void hSaveAsChooseFileType(const platform::Sender &sender);

    /** The menu on pubJPEGcompression was used. */
    Q_INVOKABLE void hChooseCompType(const platform::Sender &sender);

    /** Asks where to save a text, and writes it there in UTF-8. */
    Q_INVOKABLE void hSaveWriteDialogFile(const QString &fileType, const QString &text, const QString &name);

    /** The same for an action file: its path, even if writing failed; empty if the user cancels. */
    Q_INVOKABLE QString hSaveWriteDialogFile2(const QString &text, const QString &name);

    /** The same for data: the path; empty if the user cancels, if it cannot be written, and for null. */
    Q_INVOKABLE QString hSaveNSDataWriteDialogFile(const QByteArray &data, const QString &name);

    /** Asks for an action file: its text; empty if the user cancels, null if it cannot be read or is not UTF-8. */
    Q_INVOKABLE QString hReadNSDataInFile();

private:
    QObject *panel() const { return m_panel.get(); }
    void takeType(const QObject *menu);
    void showType(const QObject *menu, QObject *qualityMenu);

    QVariant err;
    QString myFileType;
    QString myCompType;
    QVariant extensions;
    QString myJPEGcompression;
    std::shared_ptr<platform::SavePanel> m_panel;
    QVariant tagNames;
    QPointer<QObject> wwFormats;
    QPointer<QObject> pubFileType;
    QPointer<QObject> pubSaveAsFileType;
    QPointer<QObject> pubJPEGcompression;
    QPointer<QObject> pubSaveAsJPEGcompression;
};
