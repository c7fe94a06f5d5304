#pragma once

#include <QObject>
#include <QUrl>
#include <QVariant>

/**
 * Collects the input of the actions, stages files, and asks for folders. All operations but hChooseDirectory() are called on
 * the class; nothing is kept between calls, and nothing raises.
 */
class cToolBox : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations",
                "hOpenDialogFiles hOpenDialogFilesOC hStoreFiles hStoreFiles2 hStoreTempFile hGetTempDir "
                "hGetHomeDir hGetFilesInDir hShowURL hNSStrToUrl hGetMacOSVersion hCallShellScript")

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
     * Modal; main thread only. What a folder walk cannot read is left out.
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
     * @return "successfull", spelled so, or "Failed". Where the name is taken that file stays as it is, and the copy is left
     *         under the name with "-temp" behind it
     */
    Q_INVOKABLE QString hStoreFiles(const QString &source, const QString &newName);

    /** Copies to a path that nothing may be at: "successfull" or "Failed". */
    Q_INVOKABLE QString hStoreFiles2(const QString &source, const QString &destination);

    /** Copies into the staging folder, which must be there, under a free name: "successfull" or "Failed". */
    Q_INVOKABLE QString hStoreTempFile(const QString &source, const QString &fileName);

    /** The staging folder, "Temp" in the home folder. Not made here. */
    Q_INVOKABLE QString hGetTempDir();

    Q_INVOKABLE QString hGetHomeDir();

    /** Asks for one folder, which can be made on the way: its path, null on cancel. Modal. */
    Q_INVOKABLE QString hChooseDirectory();

    /**
     * What lies directly in a folder, as a list of locations in the file system's order, without hidden items. Null where
     * the folder cannot be read.
     */
    Q_INVOKABLE QVariant hGetFilesInDir(const QString &folder);

    /** Opens a location in the program for its kind, a web address in the browser. Nothing happens for other text. */
    Q_INVOKABLE void hShowURL(const QString &location);

    /**
     * The text as one percent-encoded segment of a location, slashes encoded too: "a/b c" gives "a%2Fb%20c". Null where
     * that is no location.
     */
    Q_INVOKABLE QUrl hNSStrToUrl(const QString &text);

    /** "109+" where the whole part of the framework's version number is 856 or more, else "108". */
    Q_INVOKABLE QString hGetMacOSVersion();

    /** Makes a PDF of a picture with the system's image tool and waits for it. Nothing happens where there is no such tool. */
    Q_INVOKABLE void hCallShellScript(const QString &input, const QString &output);
};
