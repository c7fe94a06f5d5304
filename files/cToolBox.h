#pragma once

#include <QObject>
#include <QVariant>

/** Collects the input of the actions. Both operations are called on the class and keep nothing between calls. */
class cToolBox : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations", "hOpenDialogFiles hOpenDialogFilesOC")

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
};
