/**
 * What scripts of Quorlin can import: fifteen modules. A test holds each of them against the program: names, order, parameters and
 * types. There is no other way from a script to a service.
 *
 * Nothing is converted in silence: an argument of another type, or another number of arguments, is a TypeError; a whole
 * number outside the range of its type is a RangeError; a word that is not among those of its type is a TypeError. Nothing is
 * null, never undefined. Null is taken where a text, a list, a dictionary or an object is; an answer is null only where it
 * says so.
 */

type text = string | null;
/** From -2147483648 to 2147483647. */
type whole = number;
/** A whole number from 0 to 4294967295. */
type unsigned = number;
type double = number;
/** Kept in single precision. */
type single = number;
/** On for exactly 1 and true. */
type flag = boolean | number;
/** Not looked at. */
type sender = any;
/** An argument is text, a number or null; a field can hold anything that a list can. */
type anything = string | number | boolean | Date | ArrayBuffer | any[] | { [key: string]: any } | null;
/** A value of a property list; null is none. */
type property = anything;
type dictionary = { [key: string]: any } | null;
type list = any[] | null;
/** None of the texts is null. */
type texts = string[] | null;
/** The operation empties this very list. */
type sharedList = any[] | null;
/** Always the same list, which a later operation may empty; copy what is needed for longer. */
type sharedTexts = string[] | null;
type data = ArrayBuffer | null;
type date = Date | null;
/** The absolute URL, percent-encoded: "file:///a/b%20c.jpg". */
type location = string | null;
type size = { width: number; height: number };
type point = { x: number; y: number };
type rectangle = { x: number; y: number; width: number; height: number };
/** Handed on to the operations that take one. */
type BitmapHandle = object;
type ImageSource = object;
/** Only to be compared with null. */
type Connection = object;
/** A stand-in from "quorlin/controls", or a control of a window. */
type Control = any;
type fieldsOf<T> = Partial<T>;

/** What an object tells: each function that is connected is called each time, as long as the object lives. */
interface Signal<Handler> {
    connect(handler: Handler): null;
}

/** The service classes. */
declare module "quorlin" {
    /** Holds one number. */
    export class MyModel {
        constructor();
        floatValue: double;
        setFloatValue(value: double): null;
    }

    /** Holds one MyModel. */
    export class MyObjectControler {
        constructor();
        myModelObj: MyModel | null;
    }

    /** A picture in memory, upright. */
    export class Picture {
        private constructor();
        /** In points. */
        readonly width: double;
        readonly height: double;
        /** In pixels. */
        readonly pixelsWide: whole;
        readonly pixelsHigh: whole;
        /** Reads a file; null if it cannot be read. */
        static open(path: text): Picture | null;
        /** [red, green, blue, alpha], 0 to 255, not premultiplied; origin top left; all 0 outside. */
        pixel(x: whole, y: whole): list;
        /** Writes a PNG file; false if that fails. */
        save(path: text): boolean;
        /** A handle for the operations that take one; null after release(). */
        bitmap(): BitmapHandle | null;
        /** Lets go of the pixels at once. */
        release(): null;
    }

    /** The panel of cToolBox.hSaveDialogFile. */
    export class SavePanel {
        private constructor();
        /** Extensions without the dot; setting them while it is open changes what can be saved. */
        allowedTypes: texts;
    }

    /** A window that can fill the first screen and go back. Rectangles are in screen coordinates. */
    export class ZtFFullScreen {
        constructor();
        /** 1 while the window fills the screen, otherwise 0. */
        fullscreenState: whole;
        /** The frame to go back to. */
        originalRect: rectangle;
        frame: rectangle;
        titlebarAppearsTransparent: boolean;
        /** 0 to 1. */
        alphaValue: double;
        /** Whether the menu bar of the application is to be seen. */
        readonly menuBarVisible: boolean;
        /** Starts again with this frame, in the normal state; answers the window itself. */
        initWithContentRect(
            rect: rectangle, styleMask: unsigned, backing: unsigned, defer: flag): ZtFFullScreen | null;
        /** Always true. */
        canBecomeKeyWindow(): boolean;
        /** Shows the menu bar again. */
        windowWillClose(notification: sender): null;
        /** Fills the screen and hides the menu bar, or goes back and shows it. */
        toggleFullscreen(): null;
        /** Fills the screen for exactly 1 or true, otherwise goes back to originalRect. */
        setFullscreenEnabled(enabled: flag): null;
    }

    /**
     * Operations on pictures, one file at a time. Paths are absolute. An output prefix is a folder with "/" at its end;
     * the source's name is put directly behind it. An output type is "original file type" or a type identifier.
     * Operations that write answer "OK", "Failed" or "Not Supported". Fields keep their values between calls.
     */
    export class ZtImageHandling {
        constructor();
        scImageCropPos: Control | null;
        tfCropXOffset: Control | null;
        tfCropYOffset: Control | null;
        tfCropXsize: Control | null;
        tfCropYsize: Control | null;
        tfCropPercentage: Control | null;
        tfCropPixels: Control | null;
        tvCropType: Control | null;
        cbImageBgColorCheck: Control | null;
        cwImageBackgroundColor: Control | null;
        pubFutureFileFormat: Control | null;
        tfBorderWidth: Control | null;
        tfAddBorder: Control | null;
        tfAddBorderPx: Control | null;
        tfBorderColor: Control | null;
        ivPhoto: Control | null;
        /** Left and top offset of the last cut, in pixels. */
        myXWOffset: whole;
        myYHOffset: whole;
        myXWOffsetPlus: whole;
        myYHOffsetPlus: whole;
        myXWSize: whole;
        myYHSize: whole;
        myImageCropPercentage: whole;
        myImageCropPixels: whole;
        /** The label of the tab that the last crop was read from; 0 before. */
        myCropType: anything;
        /** The pixel size that the last resize worked out. */
        newImgW: whole;
        newImgH: whole;
        myXRCval: whole;
        myImageCropPos: whole;
        /** The width of the last frame's line. */
        cropBoxLine: single;
        myCompressionLevelFloat: single;
        /** The scale of the last resize, in per cent. */
        myScaleFactor: double;
        composedMasked: Picture | null;
        imageMasked: BitmapHandle | null;
        /** The picture that hStringToCGImageRef opened. */
        myImageRef: BitmapHandle | null;
        /** The type identifier of the last output. */
        myFileType: text;
        fileExtension: text;
        fileExtensionNSString: text;
        fileUTI: text;
        /** The options of the last JPEG that was written with a quality code. */
        properties: anything;
        /** The picture that was opened last, to be seen upright. */
        imageCIImage: ImageSource | null;
        /** The angle of a rotation, in degrees. */
        degrees: double;
        wmAngle: double;
        context: BitmapHandle | null;
        /** Opens a picture, to be seen upright; null if it cannot be read. */
        hNSURLtoCIImage(location: location): ImageSource | null;
        /** The upright size, "4032x3024px"; "0x0px" for a file that cannot be read. */
        hGetPixelSize(path: text): text;
        /** Decodes image 0 as stored; null if the file is missing or no picture. */
        hStringToCGImageRef(path: text): BitmapHandle | null;
        /** The bitmap as a picture whose size in points is its pixel size. */
        imageFromCGImageRef(imageRef: BitmapHandle | null): Picture | null;
        /** Writes to a complete path. The properties reach TIFF and JPEG only. */
        hSaveToNewImageFile(
            path: text, type: text, imageRef: BitmapHandle | null, destinationProperties: dictionary): text;
        /** Writes to a path without extension. The properties reach TIFF only; codes "1" to "9" are 0.1 to 0.9. */
        hSaveToNewImageFileMPR(
            basePath: text, type: text, imageRef: BitmapHandle | null, sourceProperties: dictionary,
            qualityCode: text, sourceExtension: text): text;
        /** A resized copy, aspect ratio kept. Mode 0 width, 1 height, 2 longest side, 3 per cent, above: as before. */
        resizeImage(
            path: text, number: unsigned, mode: unsigned, prefix: text, type: anything, qualityCode: text): text;
        /** A copy of exactly that size. Mode 1 fills it and cuts the excess evenly; any other stretches. */
        resizeImage2(
            path: text, width: unsigned, height: unsigned, mode: whole, prefix: text, type: anything,
            qualityCode: text): text;
        /** A copy under the source's own name, left and right swapped as stored; null where there is no image. */
        hFlipHorizontalPicture(path: text, prefix: text): text;
        /** The same, top and bottom swapped. */
        hFlipVerticalPicture(path: text, prefix: text): text;
        /** A copy turned anticlockwise by degrees, as stored; the angle is a number or a text that begins with one. */
        hRotatePicture(path: text, prefix: text, angle: anything): text;
        /** A picture turned anticlockwise, transparent around it; null without a picture. */
        hRotatePictureBase(picture: Picture | null, angle: anything): Picture | null;
        /** The part that the crop sheet means. Width and height are read in the tab "W x H". */
        cropImage(path: text, width: whole, height: whole, prefix: text, type: anything, qualityCode: text): text;
        /** The frame of the same part on a transparent picture, one pixel a point. */
        hShowCropBox(path: text): Picture | null;
        /** Shape "0": round corners, "1": circle, else ellipse. Format "0" PNG, "1" TIFF, "2" GIF, else the source's. */
        roundCornersOfImage(path: text, prefix: text, radius: unsigned, shapeCode: text, formatCode: text): text;
        /** The picture on the colour of the well, without metadata; format codes as above. */
        addOverlayColor(path: text, prefix: text, unused: sender, unusedToo: sender, formatCode: text): text;
        /** The picture in a white frame of 10 points. */
        addBorderToImage(picture: Picture | null): Picture | null;
        /** Enables the colour and border controls while the check box is on. */
        statusAddBgColor(sender: sender): null;
    }

    /** Turns a location into data that can be kept, and back in a later run. */
    export class Ztbookmarks {
        constructor();
        /** Null if nothing is there or it may not be read. */
        bookmarkForURL(url: location): data;
        /** Null if what was there is gone, or another took its place. */
        urlForBookmark(bookmark: data): location;
    }

    /**
     * Text from which names are built. Positions and counts are in UTF-16 units, from 0; what lies outside the text leaves it as it
     * was. Modes are text or a number. Tests answer "YES" or "NO". Null gives null; as a second text it is written "(null)".
     */
    export class cNSStringHandling {
        constructor();
        myBaseString2: anything;
        /** Mode 1 lower case, 2 upper case, 3 the first letter of each word; any other leaves it. */
        hChangeCaseFiles(text: text, mode: anything): text;
        /** One piece where the separator does not occur. */
        hSplitString(text: text, separator: text): texts;
        hInsertStringInString(target: text, insertion: text, position: whole): text;
        /** Every occurrence, by case. */
        hReplaceStringInString(text: text, search: text, replacement: text): text;
        /** "NA" keeps letters and numbers of every script, "OL" letters; any other mode keeps all. */
        hRemoveNonLetters(text: text, mode: anything): text;
        /** From the end for "fRight", from the beginning for "fLeft". */
        hStripString(text: text, side: anything, count: whole): text;
        hSubsectionString(text: text, start: whole, length: whole): text;
        /** Short date and full time, as the user writes them. */
        hNSDateToNSString(date: date): text;
        /** Null if it is not valid UTF-8. */
        hNSDataToNSString(data: data): text;
        /** Null if a character is outside ASCII. */
        hNSStringToNSData(text: text): data;
        hConcatString(first: text, second: text, third: text): text;
        /** In any case of letters. */
        hStringContainsString(text: text, search: text): text;
        /** By case. */
        hStringBeginsWith(text: text, prefix: text): text;
        /** By case; a RangeError for a suffix that is longer than the text. */
        hStringEndWith(text: text, suffix: text): text;
        /** Base64 on one line. */
        hConvertNSdToNSstr(data: data): text;
        /** Passes over characters outside the alphabet; null if what remains is no base64. */
        hConvertNSstrToNSd(base64Text: text): data;
        /** The last component of a path. */
        hGetFileNameWithExt(path: text): text;
        /** "/a/b/c.tar.gz" gives "c.tar". */
        hGetFileNameNoExt(path: text): text;
        /** In ASCII: base letters for accented Latin ones, "?" for everything else. */
        hConvertAccentLetters(text: text): text;
        /** Removes U+0020 only. */
        hRemoveWhiteSpace(text: text): text;
        /** The same text. Logs "hUTF8toNSString" first. */
        hUTF8toNSString(text: text): text;
    }

    /** The sheets of the main window, the support folder that is chosen on one of them, and texts by key. */
    export class cSheetControl {
        constructor();
        wwMainWindow: Control | null;
        wwPreferencesWindow: Control | null;
        wwApplicationVersionWindow: Control | null;
        tfLibraryFilePath: Control | null;
        tfNewApplicationVersion: Control | null;
        wwApplicationInfoSheet: Control | null;
        tvInfoDescription: Control | null;
        tfInfoTitle: Control | null;
        tvWhatsNew: Control | null;
        /** Asks for the support folder and sets it up; patterns that are there are replaced. */
        chooseLibraryDestination(sender: sender): null;
        /** The same at the first start; patterns that are there are kept. */
        setLibraryDestination(): null;
        /** Shows the support folder's path and opens the preferences sheet. */
        hCallPreferencesWw(sender: sender): null;
        closePreferencesSheetObjC(sender: sender): null;
        /** Opens the new-version sheet with "LABEL VERSION"; the notes go behind those that are there. */
        hCallApplicationUpdate(label: text, version: text, notes: text): null;
        closeApplicationVersionSheetObjC(sender: sender): null;
        /** Opens the product page, where one is configured, and closes the new-version sheet. */
        goToProductPage(sender: sender): null;
        /**
         * Opens the info sheet with the texts of two keys. The message replaces as much of the text that is shown, from its
         * beginning, as the title is long. The caption is not used.
         */
        hInfoWindow(caption: text, titleKey: text, messageKey: text): null;
        closeApplicationInfoSheetObjC(sender: sender): null;
        /** Takes the sheet off the screen. */
        didEndSheet(sheet: Control | null, returnCode: whole, contextInfo: sender): null;
        /** From the main strings table; the default, or without one the key, where there is no text. */
        hGetTranslation(key: text, defaultValue: text): text;
        mySimulationMode(sender: sender): null;
        hTextWMPresetsInfo(sender: sender): null;
        /** The same sheet as for texts. */
        hImageWMPresetsInfo(sender: sender): null;
        hWMDestinationFolderInfo(sender: sender): null;
        hLibCheckboxInfo(sender: sender): null;
    }

    /** Texts by key, from tables by name. */
    export class Messenger {
        constructor();
        /** As cSheetControl's hGetTranslation; the main table where the name is null or empty. */
        getLangStr(key: text, defaultValue: text, table: text): text;
    }

    /** Asks the maker's server for a newer build. */
    export class cAppUpdater {
        constructor();
        /** Why the last download failed, or brought no version file; null where it did not. */
        err: anything;
        /** Fields 0, 2 and 3 of the version file where its build is greater, else null; a RangeError for too few fields. */
        getAppVersion(runningBuild: whole): anything;
    }

    /** Writes one comment into many pictures that the user chooses. */
    export class cEditMetaData {
        constructor();
        /** The paths of the last run; null before the first. */
        myEMMfiles: anything;
        /** Not used. */
        ocTheLogData: anything;
        myLogCounter: whole;
        myProgressBarke: Control | null;
        tfEMDuserCommentField: Control | null;
        myLogTableViewController: Control | null;
        theLogTable: Control | null;
        /** Asks for JPEG and TIFF files. */
        btEMDchooseFile(sender: sender): null;
        /** Asks for a folder, whose JPEG and TIFF files are taken at any depth. */
        btEMDchooseFolder(sender: sender): null;
    }

    /** Prints pictures. */
    export class cPrint {
        constructor();
        /** One picture on one page: fitted, in the middle, without margins. Shows the print panel. */
        printService(path: text): null;
    }

    /** Lengths in a unit, as pixels of one picture at its own resolution. */
    export class cMConversion {
        constructor();
        /** The last result. */
        myNewValue: whole;
        /** The resolution of the last picture, in dots per inch. */
        myDPIvalue: single;
        /** Units are "pixel", "mm", "cm", "inch", "pica", "punt"; with a target other than "pixel" the last result. */
        convertXtoPixel(path: text, targetUnit: text, unit: text, value: single): single;
        /** Dots per inch, rounded up; 72 where none is stated, 0 for a file that cannot be read. */
        getPictureDPI(path: text): single;
    }

    /** Moves, copies, links, renames, trashes and deletes files and folders, and tells about single ones. */
    export class cNSFileHandling {
        constructor();
        /** The last date stamp. */
        dateString: text;
        /** Where hConvertFileType wrote last, or would have. */
        saveURL: location;
        /** The last text of getFileSize. */
        myFileSizeStr: text;
        tfDestinationFolder: Control | null;
        /** "16-Nov-2026T03-52-09" for the codes 0, 1 and 2; for others the stamp before, or "(null)". */
        hGetCreationDateFile(path: text, formatCode: anything): text;
        hGetModificationDateFile(path: text, formatCode: anything): text;
        /** "OK", "EXISTS" where anything is there, or "FAILED"; makes the folders above too. */
        hCreateDirectory(path: text): text;
        hAddIconToFile(path: text, icon: Picture | null): null;
        /** Removes files and folders for good; "OK" whatever happened. Locations, not paths. */
        hDeleteFiles(locations: list): text;
        /** Opens what tfDestinationFolder shows. */
        hShowInFinder(sender: sender): null;
        /** Reads both as locations: with a space in them nothing happens. Replaces nothing. */
        hRenameFile(path: text, newName: text): null;
        /** "OK" or "NO". */
        hCheckIfFileExist(path: text): text;
        /** "2.4 MB"; the text before where nothing is there. */
        getFileSize(path: text): text;
        /** "OK" or "Failed". The destination's folder is made; what is at the destination is removed first, always. */
        static hMoveFileTo(source: text, destination: text): text;
        static hCopyFileTo(source: text, destination: text): text;
        /** A symbolic link that says exactly the source. */
        static hAliasFileTo(source: text, destination: text): text;
        /** "OK" or "Failed"; then it is still in its place. */
        static hTrashFile(path: text): text;
        /** "public.jpeg", "public.folder" ...; null where nothing is there. */
        static hGetFileType(path: text): text;
        /** In UTF-8; a failure is not reported. */
        hWritHTMLFile(path: text, text: text): null;
        hWriteTextFile(path: text, text: text): null;
        /** A list of texts; null if there is no file in UTF-8. Each newline character ends a line by itself. */
        hReadTextFileLbyL(path: text): anything;
        /** Null where the file or the key is missing. */
        readPlist(path: text, key: text): anything;
        /** Null removes the key. Never makes a file. */
        writeToPlist(path: text, key: text, value: property): null;
        writeNSDataToFile(data: data, path: text): null;
        readNSDataFromFile(path: text): data;
        /**
         * Writes a picture as "pdf", "png", "tiff", "bmp", "gif", "jpeg" or "jp2"; the code "1" to "8" is the quality of a JPEG,
         * any other the highest. Answers [location of the destination, type, name of the source without extension], also
         * where nothing was written.
         */
        hConvertFileType(source: text, type: text, qualityCode: text, destination: text): list;
    }

    /** Collects the input of the actions, stages files, asks for folders; called on the class but for one. */
    export class cToolBox {
        constructor();
        /** Not used by any operation. */
        err: anything;
        /** What the menus of types and qualities said last. */
        myFileType: text;
        myCompType: text;
        /** A list of one text, what the panel allows. */
        extensions: anything;
        /** Not used by any operation. */
        myJPEGcompression: text;
        /** The save panel that is open, or was last; its allowedTypes. */
        readonly panel: Control | null;
        /** A list of texts, once a panel has asked for tags. */
        tagNames: anything;
        /** The view under the save panel. */
        wwFormats: Control | null;
        pubFileType: Control | null;
        pubSaveAsFileType: Control | null;
        pubJPEGcompression: Control | null;
        pubSaveAsJPEGcompression: Control | null;
        /** Asks for the input of an action: a list of paths, empty if cancelled, null for an unknown action. */
        static hOpenDialogFiles(actionType: text): anything;
        /** The same for "EMM", "EMMDir", "sort", "rescale", "rename", "renameDir", "batchSortImages" and "sortDir". */
        static hOpenDialogFilesOC(actionType: text): anything;
        /** "successfull", spelled so, or "Failed"; replaces nothing, and leaves the copy with "-temp" where the name is taken. */
        static hStoreFiles(source: text, newName: text): text;
        static hStoreFiles2(source: text, destination: text): text;
        /** Into the staging folder, which must be there. */
        static hStoreTempFile(source: text, fileName: text): text;
        /** "Temp" in the home folder; not made here. */
        static hGetTempDir(): text;
        static hGetHomeDir(): text;
        /** A folder's path, null if cancelled. */
        hChooseDirectory(): text;
        /** A list of locations; null for a folder that cannot be read. */
        static hGetFilesInDir(folder: text): anything;
        static hShowURL(location: text): null;
        /** One segment, slashes encoded too. */
        static hNSStrToUrl(text: text): location;
        /** "109+" or "108". */
        static hGetMacOSVersion(): text;
        /** Makes a PDF with the system's image tool where that is there. */
        static hCallShellScript(input: text, output: text): null;
        /**
         * Asks where to save a picture and writes it as pubFileType and pubJPEGcompression say when the panel closes. Answers
         * [location, type, name of the source without extension] as hConvertFileType does, null if cancelled.
         */
        hSaveDialogFile(source: text): anything;
        /** For the menus while the panel is open: it allows the new type, and only "jpeg" has a quality. */
        hChooseFileType(sender: sender): null;
        hSaveAsChooseFileType(sender: sender): null;
        hChooseCompType(sender: sender): null;
        static hSaveWriteDialogFile(fileType: text, text: text, name: text): null;
        /** An action file: its path, "" if cancelled. */
        hSaveWriteDialogFile2(text: text, name: text): text;
        /** The same; "" also if it could not be written. */
        hSaveNSDataWriteDialogFile(data: data, name: text): text;
        /** The text of an action file; "" if cancelled, null if it is not UTF-8. */
        hReadNSDataInFile(): text;
    }

    /**
     * The presets database. Lists of names and values have exactly 62 texts. Operations that open, create and insert throw an
     * Error named InternalInconsistency when they fail: "Presets Db failed to open.", "Presets Table failed to create." or
     * "Error updating table.". A value with a single quote always makes its statement fail.
     */
    export class dbViewController {
        constructor();
        /** Null while nothing is open. */
        readonly myDb: Connection | null;
        myPresetExist: text;
        myPresetValueStr: text;
        readonly myPresetsArray: sharedTexts;
        readonly myPresetsArrayToPass: sharedTexts;
        myEmptyArray: anything;
        mySearchValue4: data;
        setMyPresetValueStr(value: text): null;
        /** Makes the folder, not the file. */
        dbFilePath(): text;
        openmyPresetsDb(): null;
        /** On the open connection. */
        createTableNamed(table: text, names: texts): null;
        /** Leaves the connection open. */
        insertRecordIntoTableNamed(table: text, names: texts, values: texts): null;
        creatTableIfNotExist(): null;
        /** Makes the file with its tables where there is none. */
        linkToPresetsDB(): null;
        insertSortingPresetToDB01(values: texts): null;
        insertHTMLPresetToDB01(values: texts): null;
        insertSortingPresetToDB02(values: texts): null;
        /** The sample row; leaves the connection open. */
        insertSortingPresetToDB(): null;
        getAllRowsFromTableNamed(table: text): null;
        /** Field 0 of the last row that matches, else the last result. */
        checkPresetNameFromTableNamed(table: text, column: text, value: text): text;
        /** The rows that match, each as 62 fields with "|" between them. */
        checkForActionType(table: text, column: text, value: text): sharedTexts;
        /** "preset not found" for an invalid statement, else the last result. */
        removePresetFromDatabase(table: text, column: text, value: text): text;
        hSaveSecurityScopedBookmarks(data: data): null;
        /** The second of the selected columns in the last row that matches, else the last result. */
        hGetBookMarkedFolders(
            table: text, columnA: text, valueA: text, columnB: text, valueB: text, selected: text): data;
        /** On the open connection. */
        SaveImagesToSql(image: data, url: text): null;
        LoadImagesFromSql(url: text): data;
    }

    /** The metadata of one picture. */
    export class mMeta {
        constructor();
        /** The tree that was built last, a list of nodes; null before the first. */
        myVarTree: anything;
        /** Not used. */
        myString: text;
        mTree: Control | null;
        tfExifUserComment: Control | null;
        tfActiveFilePath: Control | null;
        mymMetaLogTableViewController: Control | null;
        themMetaLogTable: Control | null;
        /** Shows a file's comment and properties in the controls; the tree, or the last one for what is no picture. */
        hiDoNothing(path: text): anything;
        /** Nodes {key, val, children}, ascending by the dictionary's keys; children for dictionaries only. */
        propTree(properties: dictionary): list;
        /** The user comment; "" where there is none. */
        hGetExifUc(path: text): text;
        /** The name of the colour space; null for what is no picture. */
        hGetColorProfile(path: text): text;
        /** Width and height of the upright picture in pixels; "0" and "0" for what is no picture. */
        hGetPixelFormat(path: text): texts;
        /** "OK" whenever the file is a picture, else "Failed"; what could not be written is as it was. */
        hSetExifData(path: text, comment: text): text;
        /** Writes the comment field's text into the file of the path field, shows it again and logs it. */
        btApplyExifUserComment(sender: sender): null;
    }

    /** The controller of the main window's content. */
    export class mainViewController {
        constructor();
        /** The window that the content lies in. */
        window: Control | null;
        /** Gives the window a transparent title bar and full opacity. */
        viewWillAppear(): null;
    }

    /** The controller of the main window. */
    export class mainWindowClass {
        constructor();
        /** Called when the window was loaded. */
        windowDidLoad(): null;
    }

    /**
     * The second view, for the preview of a crop: fits its picture into the size that the main view published last as
     * "myBounds" in the user defaults. Fields without a comment are kept for scripts only.
     */
    export class my2ndPhotoView {
        constructor();
        /** The last angle given to rotateByDegrees, in degrees. */
        pAngle: double;
        pImageSize: size;
        /** The frame size at which the drawing scale is 1; zero until it is set. */
        pMaxFrameSize: size;
        /** The scale applied when drawing; both alike and at most 1. */
        pDrawScaleX: double;
        pDrawScaleY: double;
        tNewFrameX: double;
        tNewFrameY: double;
        tNewFrameW: double;
        tNewFrameH: double;
        /** Setting another frame tells cropBoundsDidChangeNotification of it, once awakeFromNib has run. */
        frame: rectangle;
        simulationMode: Control | null;
        /** The drawing scale after the last adjustment of the frame. */
        pScale: double;
        /** A picture is there. */
        pImageLoadedCrop: boolean;
        /** The mode; both show the same. */
        pImageToFitCrop: boolean;
        /** The picture as shown, and as loaded. */
        pImageMain: Picture | null;
        pImageMainOrig: Picture | null;
        pImageCrop: Picture | null;
        /** Keeps the angle. The picture is not turned. */
        rotateByDegrees(degrees: double): null;
        /** A new picture of exactly this size in points, with all of the image in it. */
        resizeImageAspectRatioFit(image: Picture | null, size: size): Picture | null;
        /** A new picture of exactly this size, filled by the image. */
        resizeImageAspectRatioFitFullFrame(image: Picture | null, size: size): Picture | null;
        /** Does nothing. */
        viewWillDraw(): null;
        /** Does nothing without a widget to draw to. */
        drawRect(dirtyRect: rectangle): null;
        /** Starts without a picture and in fitted mode. */
        awakeFromNib(): null;
        /** Shows the picture at the path; one that cannot be read shows nothing. */
        setImageWithPath(path: text): null;
        /** The same. */
        setImageWithPath2(path: text): null;
        /** Shows the image, which becomes pImageMainOrig too. */
        setImage(image: Picture | null): null;
        /** Fitted mode; without a picture nothing changes. */
        setImageToFit(): null;
        /** The other mode; the picture is fitted all the same. */
        setImageToFullSize(): null;
        /** Takes the content size of the enclosing scroll view, where there is one, and sets the drawing scale. */
        adjustFrameToFit(): null;
        cropBoundsDidChangeNotification(notification: sender): null;
    }

    /**
     * The view of the current picture, fitted whole into the view or filling it. Publishes its size as "myBounds" in the
     * user defaults. Fields without a comment are kept for scripts only.
     */
    export class myMainPhotoView {
        constructor();
        /** The last angle given to rotateByDegrees, in degrees. */
        pAngle: double;
        pImageSize: size;
        /** The frame size at which the drawing scale is 1; zero until it is set. */
        pMaxFrameSize: size;
        /** The scale applied when drawing; both alike and at most 1. */
        pDrawScaleX: double;
        pDrawScaleY: double;
        tNewFrameX: double;
        tNewFrameY: double;
        tNewFrameW: double;
        tNewFrameH: double;
        /** Setting another frame tells boundsDidChangeNotification of it, once awakeFromNib has run. */
        frame: rectangle;
        tfActivePicture: Control | null;
        pScale: double;
        /** A picture is there; nothing is drawn while there is none. */
        pImageLoaded: boolean;
        /** True: the whole picture is fitted into the view. False: it fills the view. */
        pImageToFit: boolean;
        /** The picture as loaded, and as shown. */
        pImageOrig: Picture | null;
        pImage: Picture | null;
        pImageCrop: Picture | null;
        /** Keeps the angle. The picture is not turned. */
        rotateByDegrees(degrees: double): null;
        /** A new picture of exactly this size in points, with all of the image in it. */
        resizeImageAspectRatioFit(image: Picture | null, size: size): Picture | null;
        /** A new picture of exactly this size, filled by the image. */
        resizeImageAspectRatioFitFullFrame(image: Picture | null, size: size): Picture | null;
        /** Does nothing. */
        viewWillDraw(): null;
        /** Does nothing without a widget to draw to. */
        drawRect(dirtyRect: rectangle): null;
        /** Starts without a picture and in fitted mode. Logs "awakeFromNib". */
        awakeFromNib(): null;
        /** Shows the picture at the path; one that cannot be read shows nothing. */
        setImageWithPath(path: text): null;
        /** The same, opened twice, so that pImage and pImageOrig share nothing. */
        setImageWithPath2(path: text): null;
        /** Stores the image in pImage and keeps pImageOrig, of which the picture shown is made again. */
        setImage(image: Picture | null): null;
        /** Opens the path, and shows pImageOrig all the same. */
        setImageCropPreview(path: text, unused: sender): null;
        /** Fitted mode; without a picture nothing changes. */
        setImageToFit(): null;
        /** The picture fills the view; without a picture nothing changes. */
        setImageToFullSize(): null;
        /** Takes the content size of the enclosing scroll view, where there is one, and sets the drawing scale. */
        adjustFrameToFit(): null;
        boundsDidChangeNotification(notification: sender): null;
    }
}

/** Controls without a window; each takes a dictionary of its fields. */
declare module "quorlin/controls" {
    /** The rows of a table. */
    export class ArrayController {
        constructor(fields?: fieldsOf<ArrayController>);
        /** Dictionaries. */
        rows: list;
    }

    /** A check box. */
    export class CheckBox {
        constructor(fields?: fieldsOf<CheckBox>);
        /** 1 checked, 0 not, -1 partly. */
        state: whole;
        enabled: boolean;
    }

    /** A field that shows a colour. */
    export class ColorWell {
        constructor(fields?: fieldsOf<ColorWell>);
        /** "#rrggbb". */
        color: text;
        enabled: boolean;
    }

    /** A pop-up menu. */
    export class PopUpButton {
        constructor(fields?: fieldsOf<PopUpButton>);
        titles: texts;
        selectedTitle: text;
        enabled: boolean;
    }

    /** A progress bar. */
    export class ProgressIndicator {
        constructor(fields?: fieldsOf<ProgressIndicator>);
        value: double;
        maximum: double;
        visible: boolean;
        indeterminate: boolean;
        /** Every value it has had, oldest first. */
        readonly history: list;
    }

    /** A row of segments. */
    export class SegmentedControl {
        constructor(fields?: fieldsOf<SegmentedControl>);
        /** From 0; -1 where none is. */
        selectedSegment: whole;
    }

    /** A view with tabs. */
    export class TabView {
        constructor(fields?: fieldsOf<TabView>);
        selectedLabel: text;
    }

    /** A table. */
    export class TableView {
        constructor(fields?: fieldsOf<TableView>);
        /** How often it was told to reload. */
        reloads: whole;
    }

    /** A text field, or a label. */
    export class TextField {
        constructor(fields?: fieldsOf<TextField>);
        stringValue: text;
        enabled: boolean;
    }

    /** A text of several lines. */
    export class TextView {
        constructor(fields?: fieldsOf<TextView>);
        text: text;
    }

    /** The nodes of a tree. */
    export class TreeController {
        constructor(fields?: fieldsOf<TreeController>);
        content: list;
    }

    /** A window that can have a sheet. */
    export class Window {
        constructor(fields?: fieldsOf<Window>);
        /** The sheet that is open on it. */
        sheet: Control | null;
    }
}

/** Panels without a person. */
declare module "quorlin/panels" {
    /** A panel that was shown. */
    interface shownPanel {
        kind: "open" | "save" | "print";
        files: boolean;
        folders: boolean;
        multiple: boolean;
        createFolders: boolean;
        /** File name extensions; null for any. */
        types: string[] | null;
        otherTypes: boolean;
        message: text;
        name: text;
        folder: text;
        tagField: boolean;
    }

    export const panels: {
        /** Queues the answer to the next panel. whileOpen is called while the panel is up. */
        accept(paths: string[], options?: { tags?: string[]; whileOpen?: () => void }): void;
        /** Queues a cancelled panel. */
        cancel(): void;
        /** Oldest first. */
        readonly shown: shownPanel[];
    };
}

/** The user defaults, the store that the services use. */
declare module "quorlin/defaults" {
    type setting = string | number | boolean | Date | ArrayBuffer | any[] | { [key: string]: any };

    export const defaults: {
        /** Null where the key was never set. A value has the type that it was set with. */
        get(key: string): setting | null;
        set(key: string, value: setting): void;
        remove(key: string): void;
    };
}

/**
 * Looking at folders and files, collecting input, and bringing finished files to their places without ever overwriting one
 * unasked. Paths are absolute. A problem is a sentence; where there is none it is empty.
 */
declare module "quorlin/files" {
    interface Info {
        /** True of a broken link too. */
        exists: boolean;
        isFolder: boolean;
        isLink: boolean;
        /** -1 where it cannot be told. */
        bytes: double;
        writable: boolean;
    }

    interface Pixels {
        width: whole;
        height: whole;
    }

    interface PictureInfo extends Pixels {
        path: string;
        name: string;
        /** 1 to 8. */
        orientation: whole;
        /** Why whoever read it gave up; empty or missing where nobody did. */
        problem?: string;
        /** In words: "JPEG". */
        type: string;
        bytes: double;
    }

    interface Facts extends Pixels {
        /** "2026-08-14T10:20:30", local time without zone; empty where the file states none. */
        taken: string;
        created: string;
        changed: string;
        camera: string;
        lens: string;
        /** 1 to 5 stars, or 0 for none; in the window alone. */
        rating?: whole;
        bytes: double;
        /** The same in words, "2.4 MB", English in every language, for names. */
        size: string;
        type: string;
        isFolder: boolean;
    }

    interface Found {
        /** What the action takes. */
        paths: string[];
        /** What comes into the list. */
        listed: string[];
        /** Those of the given paths that are folders. */
        folders: string[];
        /** How many files are not taken. */
        leftOut: whole;
        /** Those of them that may accompany a picture. */
        companions: string[];
        /** The name of one that may not. */
        example: string;
    }

    export const files: {
        /** The user's folder. */
        readonly home: string;
        /** The folder for this program's own data, made if need be. */
        readonly dataFolder: string;
        info(path: text): Info;
        /** Bytes that this user may still write there, and what tells file systems apart; -1 where it is not known. */
        space(path: text): { free: double; disk: double };
        /**
         * The same of where the trash keeps what is moved to it from a folder, which may be missing. What cannot be a path is answered
         * as well: with the user's own trash, or the root.
         */
        trashSpace(path: text): { free: double; disk: double };
        /** From the current folder. */
        absolute(path: text): string;
        /** What tells an item from all others, however its path is spelled; a link not followed. Empty where nothing is. */
        identity(path: text): string;
        /** The same for a folder, followed through links; it need not be there yet. */
        folderIdentity(folder: text): string;
        /** Which of the paths are, or lead to, an item: {identity: [path ...]}. */
        owners(paths: texts): { [identity: string]: string[] };
        /** All entries of a folder, in no order; empty where it cannot be read. */
        names(folder: text): string[];
        /** Those that end in one of these, whatever their case. */
        namesEndingIn(folder: text, endings: texts): string[];
        /** Its folders. */
        folders(folder: text): string[];
        /** Files and folders as they were dropped, as the list to work on. "*" takes every file; an empty list of listed means those taken. */
        collect(paths: texts, extensions: texts, companions: texts, listed: texts): Found;
        /** Makes a folder and those above it; answers the problem. */
        makeFolder(folder: text): string;
        removeEmptyFolder(folder: text): null;
        /** A hidden, private folder for unfinished files, with "/" at its end; null where it cannot be made. */
        makeStaging(folder: text): string | null;
        /** Removes such a folder, and no other. */
        removeStaging(staging: text): null;
        /** Removes what processes that have ended left in a folder. */
        sweep(folder: text): null;
        /** In one step, inside one file system. Only the item with the identity `replaced` is replaced; "" for none. */
        place(from: text, to: text, replaced: text): { status: "OK" | "Taken" | "Failed"; message: string };
        /** The path of a folder without links and dots; empty where it is not there. */
        realFolder(folder: text): string;
        /** Gives a file the permissions of another one, as far as that can be done. */
        copyPermissions(from: text, to: text): null;
        /** As stored; null for an unreadable file. */
        storedSize(path: text): Pixels | null;
        /** One block of a JPEG file, as stored; null for any other file. */
        jpegBlock(path: text): Pixels | null;
        /** Marks a JPEG or TIFF file of ours as upright; answers the problem. */
        markUpright(path: text): string;
        /** Upright; width 0 for an unreadable file. */
        picture(path: text): PictureInfo;
        /** What is known without decoding; null where nothing is. */
        facts(path: text): Facts | null;
        /** Empty where the picture has no colour profile. */
        profileName(path: text): string;
        /** Writes the user comment; answers the problem. */
        writeComment(path: text, comment: text): string;
        /** "EXIF", "GPS", "IPTC" and "XMP": what one picture holds and another, made of it, does not; or why one cannot be read. */
        lostMetadata(from: text, to: text): { lost: string[]; problem: string };
        readComment(path: text): { comment: string; problem: string };
        /** How many pages a file would lose to a comment. */
        pagesLostToComment(path: text): whole;
        /** Whether a file is of a kind that can hold a comment. */
        holdsComment(path: text): boolean;
        /** In UTF-8, atomic; answers the problem. */
        writeText(path: text, text: text): string;
        /** Adds lines, each ending in a line feed; answers the problem. */
        appendLines(path: text, lines: text): string;
        /** Keeps the last lines of a file that has more than `limit` of them; answers the problem. */
        keepNewestLines(path: text, most: whole, limit: whole): string;
        /** Null where the file cannot be read. */
        readText(path: text): string | null;
        /** "2.4 MB", in the reader's own form. */
        byteText(bytes: double): string;
        /** "2026-08-14T10:20:30" in the reader's own form; empty for what is none. */
        dateText(date: text): string;
        /** The new path of a presets database that could hold no preset; empty where it is left. */
        setAsideUnusableDatabase(path: text): string;
        /** What a picture says in each field; sidecar is where that stands, or would stand, for files that are not changed themselves. */
        readFields(path: text): { fields?: any; inPlace?: boolean; sidecar: string; problem: string };
        /** Changes fields of a picture, or of its sidecar; see docs/manual for their names. */
        writeFields(path: text, work: dictionary): { problem: string; changed: boolean; file: string };
        /** What fields, as readFields() tells them, will say, of those that the work changes: no texts where one is taken out. */
        plannedFields(fields: dictionary, work: dictionary): { fields: any; problem: string };
        /** Adds lines to a file in a folder of the data folder that nobody else may read; answers the problem. */
        appendPrivate(path: text, lines: text): string;
        /** Removes such a file for good; answers the problem. */
        removePrivate(path: text): string;
        /** The names of all fields, in the order in which they are shown. */
        fieldNames(): string[];
        privateDataNames(): string[];
    };

    /**
     * User comments that workers read and write, one file at a time: the next thing is asked after the answer was taken.
     */
    export class CommentWork {
        constructor(fields?: fieldsOf<CommentWork>);
        /** There is something to take. */
        readonly arrived: Signal<() => any>;
        /** Asks what the comment of a file is. */
        look(path: text): null;
        /** Writes a comment; what is done to a file is done once it can be taken. */
        write(path: text, comment: text): null;
        /** {comment, pagesLost, problem} or {problem}; without any keys before it has come. */
        take(): { comment?: string; pagesLost?: whole; problem?: string };
        /** Gives up what was asked; the object is of no use any more. */
        close(): null;
    }

    /**
     * Fields of metadata that workers read and write, one file at a time: the next thing is asked after the answer was taken.
     */
    export class FieldWork {
        constructor(fields?: fieldsOf<FieldWork>);
        /** There is something to take. */
        readonly arrived: Signal<() => any>;
        /** Asks what the fields of a file are: {name: {value, exif, iptc, xmp, disputed}}. */
        look(path: text): null;
        /** Prepares a change of fields; its answer has isReady where there is something to place(). */
        write(path: text, work: dictionary): null;
        /** The change that was prepared last takes its place; another request gives it up. */
        place(): { problem: string; changed: boolean; file: string };
        /** Makes the old file again with what the answer to write() had as undo, at once; fails where it was changed since. */
        revert(path: text, undo: text): null;
        /** The answer; without any keys before it has come. */
        take(): { problem?: string; fields?: any; inPlace?: boolean; sidecar?: string; changed?: boolean; isReady?: boolean; file?: string;
                  undo?: string; before?: any; after?: any };
        /** Gives up what was asked; the object is of no use any more. */
        close(): null;
    }

    /**
     * The names of one folder during a run: those on the disk, and those that results of the run were given. Two names that differ only
     * in case or in the way an accent is written are one name on many disks, so they count as the same. No disk is asked.
     */
    export class FolderNames {
        constructor(fields?: fieldsOf<FolderNames>);
        /** Those on the disk. */
        names: texts;
        /** What the writings of one name have in common. */
        static keyOf(name: text): string;
        /** "photo.jpg", 3 gives "photo (3).jpg". A name that would be too long with the number loses the end of its base. */
        static numbered(name: text, number: whole): string;
        /** The name on the disk that stands in the way of this one, as it is written there; empty where none does. */
        onDiskAs(name: text): string;
        /** Whether a result of this run was given that name. */
        isGiven(name: text): boolean;
        /** Neither on the disk nor given. */
        isFree(name: text): boolean;
        /** Gives a name to a result, and answers it. */
        give(name: text): string;
        /** Gives the first free numbered form of the name, counting from 2, and answers it. */
        giveNumbered(name: text): string;
    }
}

/** What pictures need besides the operations of the services. */
declare module "quorlin/pictures" {
    export const pictures: {
        /** Writes a picture, laid on copies of another one, as the type of the target's extension; answers the problem. */
        layOnPattern(path: text, pattern: text, target: text): string;
        /**
         * The kinds of picture files, each as {id, extensions, profile, alpha, depth16, resolution, quality}: new files get the first of
         * the extensions; profile is "yes", "no" or "ifItFits".
         */
        formats(): list;
        /**
         * The types that are written, in the order of lists, each as {id, keyword, word, isPage, isOfRecipes,
         * hasQuality, carriesMetadata}: what conversions and recipes call it, what lists call it, whether it is no format of
         * pictures, whether only recipes make it, whether these state a quality for it, and whether a conversion hands metadata
         * on into it.
         */
        outputTypes(): list;
        /** The codes of JPEG quality, the lowest first; conversions know no last one. */
        qualityCodes(): texts;
        /** The kinds of raw files of cameras, each as {extension, hasPreview}; only those with a preview can be converted. */
        rawTypes(): list;
        /** Whether a file of the type holds the colour profile of the picture, or there is none. */
        keepsProfile(path: text, typeIdentifier: text): boolean;
        /** Of the upright picture, in dots per inch, rounded up; 72 where it states none, 0 where it cannot be read. */
        resolution(path: text): double;
        /** A length in "mm", "cm", "inch", "pica" or "punt" in whole pixels. */
        inPixels(length: double, unit: text, dpi: double): whole;
        /** Why memory was too short for a picture since this was asked last; empty where it was not. */
        takeMemoryRefusal(): string;
    };
}

/** Texts with tokens in them, such as "{taken:yyyy-MM-dd} {name}", in the reader's words. */
declare module "quorlin/tokens" {
    export const tokens: {
        /** All tokens in their order, each as {name, words: what it stands for, example, forms: those to offer, "" for none}. */
        offered(): list;
        /**
         * A text taken apart: {text} or {token, form} each. "{{" is a brace; a brace that is not closed is text. What stands in braces
         * is a token whether there is one of that name or not.
         */
        parts(pattern: text): list;
        /** What a token stands for, in words; its name where there is none of that name. */
        words(token: text): string;
        /** The pattern of each level of a pattern of folders; a "/" between tokens parts levels, empty ones are passed over. */
        levels(pattern: text): texts;
        /** What is wrong with a text, as sentences; empty where nothing is. */
        problems(pattern: text): texts;
        /** A value as the name of one folder, or as a part of one; empty where nothing of it is left. */
        folderName(value: text): string;
    };

    /** Such a text, made ready for many files. */
    export class TokenText {
        constructor(fields?: fieldsOf<TokenText>);
        pattern: string;
        /** What stands for a missing value, by the names of tokens; and for all that have none of their own. */
        standIns: dictionary;
        standIn: string;
        /**
         * What becomes of a value before it is put in. "plain", the default: nothing; "name": it can be a part of a file's name;
         * "folder": of a folder's, and the whole text is made one, or "-" where nothing of it is left.
         */
        values: string;
        /** Whether expand() looks at more than paths and indices. */
        readonly needsFacts: boolean;
        /**
         * The text for one file, and behind it the tokens that it has no value for. Facts as files.facts() tells them, or null; the
         * index, a whole number, is how many files came before this one.
         */
        expand(path: text, facts: dictionary, index: double): texts;
    }
}

/** Web pages: their HTML, captions, and which files of a folder are those of a page. */
declare module "quorlin/web" {
    export const webPages: {
        /** The template that comes with the program. */
        standardTemplate(): string;
        /** Why a text is no template, in a sentence that names line and field; empty where it is one. */
        templateProblem(text: text): string;
        /** Those of the page, then those of its pictures. */
        fields(): texts;
        /**
         * A page is {title, text, style: "grid", "rows" or "story", language, fromRight, lightPaper, darkPaper, accent, download,
         * pictures}; a picture {caption, files}, a file {path, width, height}, its path below the folder of the page. Another key is a
         * TypeError. html is empty where problem, a sentence, is not.
         */
        write(pageTemplate: text, page: dictionary): { html: string; problem: string };
        /** What captions can say beside the tokens of names: {name, words, isPlace}. */
        captionTokens(): list;
        /** Sentences; tokens that tell a place are refused unless that is allowed. */
        captionProblems(pattern: text, placesMayBeTold: boolean): texts;
        /** Whether a pattern says something that stands in the metadata of pictures. */
        needsTexts(pattern: text): boolean;
        /** What the metadata of a picture says of it, by the names of tokens. */
        textsOf(path: text): dictionary;
        /** Facts as files.facts() tells them, or null; texts as textsOf() does; index is how many pictures came before. */
        caption(pattern: text, path: text, facts: dictionary, texts: dictionary, index: whole): string;
        /** Whether a text can be the code of a language: "pt-BR". */
        isLanguage(code: text): boolean;
        isFromRight(code: text): boolean;
        /** What tells the content of a file from all others; empty where it cannot be read. A link is not followed. */
        fingerprint(path: text): string;
        /** Removes a file whose content has one of these fingerprints, and says whether it is gone. */
        removeKnown(path: text, fingerprints: texts): boolean;
    };
}

/** Pictures that arrive in a folder. */
declare module "quorlin/watch" {
    export const watch: {
        /** The folder that is watched; empty where none is. */
        readonly folder: string;
        /** A picture is there, complete. */
        readonly arrived: Signal<(path: text) => any>;
        /** A sentence for the user. */
        readonly told: Signal<(sentence: text) => any>;
        /** The folder is gone; it is not watched any more. */
        readonly ended: Signal<() => any>;
        /** Watches it and all below it from now on, and nothing else; code is empty, "missing", "taken" or "system". */
        start(folder: text, work: text): { code: string; detail: string };
        stop(): null;
        /** What is there now is a result, and no arrival. */
        leaveOut(path: text): null;
    };
}

/** Pictures on pages of paper. */
declare module "quorlin/pages" {
    /**
     * How pictures are laid on pages. Lengths of the page are millimetres, sizes of texts points; what is missing is as usual. A text may
     * have tokens; header and footer also {page}, {pages} and {pictures}.
     */
    interface PageSettings {
        /** A word of PageWork.papers, or "custom" with paperWidth and paperHeight; A4 where it is missing. */
        paper?: string;
        paperWidth?: number;
        paperHeight?: number;
        landscape?: boolean;
        marginTop?: number;
        marginRight?: number;
        marginBottom?: number;
        marginLeft?: number;
        /** Between two places, across and down. */
        gap?: number;
        rows?: whole;
        columns?: whole;
        /** "size": as large as its resolution says, smaller where its place is. */
        fit?: "fit" | "fill" | "size";
        /** A picture is turned to the left where it becomes larger by that. */
        turn?: boolean;
        /** Each picture has a page of its own and stands in all its places. */
        repeat?: boolean;
        cropMarks?: boolean;
        /** A thin line around each picture. */
        frames?: boolean;
        caption?: string;
        captionSize?: number;
        header?: string;
        headerSide?: "left" | "center" | "right";
        footer?: string;
        footerSide?: "left" | "center" | "right";
        /** Of the texts of header and footer. */
        lineSize?: number;
        /** A family; the usual one where it is empty. */
        font?: string;
        paperColor?: string;
        /** No picture has more pixels for an inch of paper. */
        dpi?: whole;
        /** Of pictures, 1 to 100. */
        quality?: whole;
        /** As in recipes; sRGB where it is empty. */
        profile?: string;
    }

    /** Makes a PDF of pictures on pages, by workers; what came of it is taken as it comes. */
    export class PageWork {
        constructor(fields?: fieldsOf<PageWork>);
        settings: dictionary;
        /** Of the pictures, absolute, in their order. */
        paths: texts;
        /** What is wrong with the settings; empty where nothing is. */
        readonly problem: string;
        /** Of all pictures; 0 where the settings are wrong. */
        readonly pages: whole;
        /** How many pixels the largest picture of a place has; 0 where the settings are wrong. */
        readonly placePixels: double;
        /** Of a page as it is held, in points. */
        readonly pageWidth: double;
        readonly pageHeight: double;
        /** What paper can be called: upright, in millimetres. */
        readonly papers: { word: string; width: number; height: number }[];
        /** There is something to take. */
        readonly arrived: Signal<() => any>;
        /**
         * Begins to make the new file at target; once. order: {from, to, copies, collated, backwards}; pages count from 1, all of them
         * are made where from is missing.
         */
        begin(target: text, order: dictionary): null;
        /**
         * {picture, status, reason} for each picture, from 0, with status "OK" or "Failed"; last {problem, pages, bytes}, with a sentence
         * where there is no file; without any keys where nothing has come.
         */
        take(): { picture?: whole; status?: string; reason?: string; problem?: string; pages?: whole; bytes?: number };
        /** Waits until nothing more comes, and all of it can be taken. For scripts without windows, where everything else goes on. */
        wait(): null;
        /** Gives up what is not finished; the object is of no use any more. */
        close(): null;
    }
}

/** Recipes (docs/recipes.md) for one picture. A recipe is the object that its file would hold, with one output; paths are absolute. */
declare module "quorlin/recipes" {
    interface OutputPlan {
        /** Why there will be none, in a sentence; empty where there will be one. */
        problem: string;
        /** Its type cannot be written. */
        isNotSupported: boolean;
        /** The word of recipes: "jpeg". */
        type: string;
        /** Of the upright result, in pixels. */
        width: whole;
        height: whole;
        /** ".jpg" */
        extension: string;
        /** No pixel is encoded again. */
        lossless: boolean;
        /** Further pages or frames of the file that the result will not have. */
        leftOut: whole;
        /** Sentences. */
        losses: string[];
        /** What the recipe takes of the picture where it begins with a cut; empty where it does not. */
        cut: CutPlan | { [key: string]: never };
    }

    /** In pixels of the upright picture. */
    interface CutPlan {
        /** What is asked for; it may reach outside. */
        frame: { x: whole; y: whole; width: whole; height: whole };
        /** What of it lies in the picture. */
        part: { x: whole; y: whole; width: whole; height: whole };
        /** False where its place is found by looking at the picture. */
        isPlaced: boolean;
    }

    interface Made {
        outcome: "OK" | "Failed" | "Not Supported";
        reason: string;
        /** Of the file that was written, or empty. */
        path: string;
        width: whole;
        height: whole;
        losses: string[];
    }

    export const recipes: {
        /** The recipe of the settings that a preset of that action would keep; without any keys where there is none. */
        recipeFor(action: text, settings: dictionary): { [key: string]: any };
        /** What the recipe makes of a picture, from its header. */
        planOutput(path: text, recipe: dictionary): OutputPlan;
        /** The name of a result with its extension, of a pattern of tokens; the index is how many pictures came before this one. */
        nameFor(path: text, pattern: text, index: whole, width: whole, height: whole, extension: text): string;
        /** Makes it as the file `target`, whole or not at all; what stands there is replaced. */
        make(path: text, recipe: dictionary, target: text): Made;
        /** Pictures that are handed over to workers, until it is closed. */
        work(): RecipeWork | null;
        /** How many pictures workers may be at, at a time; as many as there are processors where this was never called. */
        useProcessors(processors: whole): null;
        /** How much memory pictures that are worked on together may need, in MB; 0 is what is free. */
        useMemory(megabytes: whole): null;
        /** The processors that this process may use. */
        processors(): whole;
        /** Starts a first worker, for what may come. */
        prepare(): null;
        /** What keeps workers from doing harm, as the kernel tells one; no keys before the first one is there. See Confinement. */
        confinement(): { [key: string]: any };
        /**
         * Why a recipe cannot be carried out, in a sentence that begins with the place; empty where it can. `text` is that of its file,
         * `folder` where relative paths in it begin. Its pictures are looked at only where filesAreOpened is true.
         */
        problemOf(text: text, folder: text, filesAreOpened: boolean): string;
        /** Files outside of that folder that it would read, and folders of outputs that are absolute or lead upwards. */
        reachOf(text: text, folder: text): { reads: string[]; writes: string[] };
        /** Those that come with the program. */
        supplied(): { name: string; path: string }[];
        /** The extensions of the pictures that recipes are carried out over. */
        takes(): string[];
        /** Those of the paths that a run wrote, but not in the place of their originals, and nobody changed since. */
        resultsAmong(paths: texts): string[];
        /** Notes that a run wrote that file, which no recipe did. */
        noteResult(path: text): null;
        /**
         * The path of a result that needs not be made again: the same recipe made it of the same picture, and neither was changed since. It
         * is `wanted` or a numbered form of it; empty where there is none. The index is how many pictures came before this one.
         */
        upToDate(path: text, recipe: dictionary, index: whole, wanted: text): string;
        /** The families of fonts that watermarks can be set in. */
        fonts(): string[];
    };

    /** What is in force of it. */
    interface Confinement {
        /** No program that a worker starts may do more than it. */
        noNewPrivileges: boolean;
        /** Landlock. */
        fileRules: boolean;
        /** seccomp */
        callRules: boolean;
    }

    /** A picture that a worker is to make into a new file; width and height are those of the picture, 0 where they are not known. */
    interface Task {
        path: string;
        /** In a folder where nobody else makes files. */
        target: string;
        recipe: object;
        width: number;
        height: number;
        /** Whether the file is noted to be a result; true where it is missing. */
        noted?: boolean;
    }

    interface Result {
        number: whole;
        outcome: "OK" | "Failed" | "Not Supported";
        /** "vanished": the picture is no longer there; "full": the disk is. */
        cause: "" | "vanished" | "full";
        /** A sentence where there is no result. */
        reason: string;
        /** Of the upright result, in pixels. */
        width: number;
        height: number;
        bytes: number;
        lossless: boolean;
        losses: string[];
        ms: number;
    }

    /** Pictures that workers make: handed over now, taken later, in whatever order they are ready. */
    export class RecipeWork {
        private constructor();
        /** How many more should be handed over now, so that no worker waits. */
        readonly room: whole;
        /** How many have no result yet. */
        readonly inWork: whole;
        /** There is something to take. */
        readonly arrived: Signal<() => any>;
        /** {counter} in a watermark is the number, by which the result is known. */
        give(number: whole, task: dictionary): null;
        /** A result that has come; without any keys where there is none. See Result. */
        take(): { [key: string]: any };
        /** The result that was taken stands at that path now: it can be known to be up to date later. */
        placed(number: whole, path: text): null;
        /** Takes back what no worker has begun; the numbers of those. */
        takeBack(): any[];
        /** Gives up what is in work, of which nothing is left. */
        close(): null;
    }

    /** What one output of a recipe is to become for one picture. */
    interface PlannedOutput {
        /** Its index in the recipe. */
        output: whole;
        status: "ready" | "Failed" | "Not Supported" | "Skipped";
        reason: string;
        /** Empty where there is none. */
        path: string;
        /** The word of recipes: "jpeg". */
        type: string;
        width: whole;
        height: whole;
        bytes: double;
        /** What stands there gives way; that it is the picture itself. */
        replaces: boolean;
        replacesOriginal: boolean;
        lossless: boolean;
        losses: string[];
    }

    /** What came of it. */
    interface MadeOutput {
        output: whole;
        /** "waiting": whoever takes it puts what is at the path `file` into the place of what is there, known as `replaced`. */
        status: "OK" | "Failed" | "Not Supported" | "Skipped" | "waiting";
        reason: string;
        path: string;
        bytes: double;
        width: whole;
        height: whole;
    }

    /** One recipe over the pictures of a list: names and numbers are those of quorlin-batch. Its fields are set before anything is asked. */
    export class RecipeBatch {
        constructor(fields?: fieldsOf<RecipeBatch>);
        /** The text of the recipe's file. */
        recipe: string;
        /** Where relative paths in it begin. */
        folder: string;
        /** Where relative folders of its outputs begin; empty: the folder of each picture. */
        base: string;
        /** The tree of each folder that was added is built again below the base. */
        keepsTree: boolean;
        /** All pictures, in their order. */
        paths: texts;
        /** How many more should be handed over now, so that no worker waits. */
        readonly room: whole;
        /** How many were handed over and were not taken yet. */
        readonly inWork: whole;
        /** There is something to take. */
        readonly arrived: Signal<() => any>;
        /** Why the recipe cannot be carried out, in a sentence; empty where it can. */
        problem(): string;
        /** By the number of the picture, from 0; for all in their order, each once. root: the folder that it was found in, or "". */
        plan(index: whole, root: text): PlannedOutput[];
        /**
         * Plans a picture as an earlier batch did: {root, width, height, planned, done}, the last two one path an output, "" where there is
         * none. The outputs that are still to be made.
         */
        planAgain(index: whole, earlier: dictionary): PlannedOutput[];
        /** More pictures join behind the last; the number of the first of them. */
        join(paths: texts): whole;
        /** Hands a picture that was planned to a worker, which makes all its outputs from one decoding. */
        give(index: whole): null;
        /**
         * A picture that has come, {number, whole, ms}; without any keys where there is none. whole: [{output, file, path}], what waits to be
         * placed. One whose disk is full has the keys full, a sentence, and folder besides; it may be given again.
         */
        take(): { [key: string]: any };
        /** Puts what was made of a picture that was taken into its places. */
        place(index: whole): MadeOutput[];
        /** What waited of a picture is where it belongs, or is given up. */
        settle(index: whole): null;
        /** The outputs of a picture that is not begun go below that folder, and replace nothing there. */
        moveTo(index: whole, folder: text): null;
        /** Takes back what no worker has begun; the numbers of those. */
        takeBack(): any[];
        /** Gives up what is in work, of which nothing is left, and forgets what was planned. */
        close(): null;
    }
}

/** How far runs are, in files of lines that outlive a crash. */
declare module "quorlin/records" {
    export const runRecords: {
        /** Begins one in a folder, which is made; the path of its file, or empty where that cannot be done. */
        begin(folder: text): string;
        /** Adds lines; isKept: they are on the disk when this returns. False where they could not be written. */
        add(path: text, lines: text, isKept: boolean): boolean;
        /** It ends when this program ends in order, and is left where that crashes. */
        endWithProgram(path: text): null;
        /** Ends one: nothing of it is left. */
        end(path: text): null;
        /** Those that were begun and not ended by processes that are gone; they are held by this one from now on. */
        interrupted(folder: text): string[];
    };
}

/** Renaming, moving, copying and linking so that no file is ever lost or replaced. Paths are absolute. */
declare module "quorlin/moves" {
    type kind = "move" | "copy" | "link";

    interface Wish {
        kind: kind;
        from: string;
        to: string;
        /** Where `to` is taken, it gets a number: "name (2).jpg". */
        number?: boolean;
        /** The index of the wish that this one moves with. */
        leader?: whole;
    }

    interface Planned {
        status: "ready" | "same" | "refused";
        /**
         * Refused: "empty", "illegal", "long", "gone", "twice", "taken", "case", "inside", "locked" or "leader". Ready: "",
         * "aside", "case", "numbered" or "disk".
         */
        code: string;
        /** The path that stands in the way, or did. */
        other: string;
        /** The path that it will have. */
        to: string;
    }

    interface Outcome {
        status: "OK" | "Failed" | "Skipped";
        /** "gone", "changed", "taken", "locked", "full", "long", "inside", "damaged", "circle", "leader", "same" or "other". */
        code: string;
        message: string;
        /** Where it is now. */
        path: string;
    }

    interface Problem {
        path: string;
        code: string;
        reason: string;
    }

    interface Run {
        id: string;
        title: string;
        /** ISO, with the time zone. */
        date: string;
        count: whole;
        done: whole;
        /** The same as people count: what was put aside, and what took its place, are one. */
        files: whole;
        state: "open" | "done" | "cancelled" | "undone" | "recovered";
        /** The run that this one takes back, or empty. */
        undoes: string;
    }

    interface Recovered {
        id: string;
        title: string;
        /** Had their new names already. */
        done: whole;
        /** Were in the middle, and have their new names now. */
        finished: whole;
        /** Were in the middle, and have their old names again. */
        takenBack: whole;
        /** Their turn had not come. */
        left: whole;
        problems: string[];
    }

    export const moves: {
        /** As many answers as wishes, in their order. Touches nothing. */
        plan(wishes: Wish[]): Planned[];
        /** The same plan in slices: this one names it. */
        beginPlan(): string;
        /** Leaders count from the first of all wishes. */
        addWishes(plan: text, wishes: Wish[]): null;
        /** Works for about so long; true when the plan is made. */
        workOut(plan: text, milliseconds: whole): boolean;
        /** From `from` to before `to`; null for a wish that is ready, without a code, and gets the path that it asked for. */
        planned(plan: text, from: whole, to: whole): (Planned | null)[];
        /** Ends a plan, made or not. */
        dropPlan(plan: text): null;
        begin(run: { title: string; items: Wish[] }): { run: string } | { problem: string };
        /** The same in slices: this one names what is to be begun. */
        beginOrder(title: text): string;
        /** Leaders count from the first of all items. */
        addItems(order: text, items: Wish[]): null;
        /** Works for about so long; true when all is ready. Nothing moves. */
        prepare(order: text, milliseconds: whole): boolean;
        /** Begins the run; one that takes another back has a count of items, and problems. */
        carryOut(order: text):
            { run: string; count?: whole; problems?: Problem[] } | { problem: string; problems?: Problem[] };
        /** Gives it up. */
        dropOrder(order: text): null;
        /** Carries out one more item; null after the last one. */
        next(run: text): (Outcome & { index: whole }) | null;
        /** After an item that failed with the code "full": next() tries it again. False where that cannot be. */
        again(run: text): boolean;
        /** Empty, or what went wrong. May come before the last item: every file then has its old or its new name. */
        end(run: text): string;
        /** A run whose items are added one by one. */
        open(title: text): { run: string } | { problem: string };
        /** Opens such a run again, where it has ended and was not taken back; done are the items that stand. */
        reopen(run: text):
            | { run: string; done: { kind: kind | "trash"; from: string; to: string; path: string }[] }
            | { problem: string };
        add(run: text, item: { kind: kind | "trash"; from: string; to: string; number?: boolean }): Outcome;
        /** Undoes the last item of an open run that still stands; null where there is none. */
        takeBack(run: text): (Outcome & { kind: kind | "trash"; from: string; to: string }) | null;
        undoable(run: text): { can: boolean; count: whole; reason: string };
        /** Begins the run that takes another back; next() and end() drive it. That run can be taken back too. */
        undo(run: text):
            | { run: string; items: { kind: kind | "trash" | "remove"; from: string; to: string }[]; problems: Problem[] }
            | { problem: string; problems: Problem[] };
        /** The same in slices: prepare(), carryOut() and dropOrder() go on as for any order. */
        beginUndo(run: text): string;
        /** The items of a run that is open, from `from` to before `to`. */
        itemsOf(run: text, from: whole, to: whole):
            { kind: kind | "trash" | "remove"; from: string; to: string }[];
        /** The last 200, the newest first. */
        runs(): Run[];
        /** Ends what a crash interrupted; runs of another living process are left alone. Once, at start. */
        recover(): Recovered[];
        /**
         * What is left of a run that recover() ended, to be begun as a run again, and where its items are now but those that went along
         * with others. Nothing of one that took another back.
         */
        rest(run: text): { items: Wish[]; places: string[] };
    };
}

/** What a script of windows cannot do by itself: windows, timers, jobs, dialogs, the desktop. */
declare module "quorlin/shell" {
    import { Picture } from "quorlin";

    interface Question {
        title: string;
        text: string;
        detail?: string;
        buttons: string[];
        /** The button that Return presses, and the one that Escape does. */
        initial?: whole;
        escape?: whole;
        /** The text of a box to check; empty for none. */
        check?: string;
    }

    export const shell: {
        readonly theme: Theme | null;
        readonly desktop: DesktopSigns | null;
        readonly version: string;
        /** Files and folders that the program was started with. */
        readonly arguments: string[];
        /** What the window is to open with: "recipe" for a new one, "watch" for a folder to be watched; or "". */
        readonly opening: string;
        /** The folder of main.js, without "/" at its end. */
        readonly interfaceFolder: string;
        /** False while a change of the settings could not be written. */
        readonly keepsSettings: boolean;
        /** Whether the main window fills the screen. */
        readonly fullScreen: boolean;
        /** A change of the settings cannot be written; told once in the life of the program. */
        readonly settingsNotKept: Signal<() => any>;
        /** A window or pane from a file such as "windows/main/main.ui"; an Error that names the file if it cannot be loaded. */
        loadForm(file: text): Form | null;
        /** Gives the fields of the forms one left edge. */
        alignFields(forms: Form[]): null;
        /** Covers the window while files are dragged over it. */
        dropTarget(form: Form | null): DropTarget | null;
        /** A picture view that covers the window; hidden at first. */
        largePreview(form: Form | null): ComparePreview | null;
        /** Lays a widget over all of its window and gives it the focus. */
        cover(widget: Widget | null): null;
        /** The window as the services know it that open sheets. */
        sheetHost(form: Form | null): SheetHost | null;
        timer(handler: Function | null): ScriptTimer | null;
        job(): JobDriver | null;
        sizeEstimate(): SizeEstimate | null;
        /** A panel for the name of a new file, with a form in it. */
        saveChoice(): SaveChoice | null;
        /** Asks the user and waits for the answer. */
        ask(question: Question): { button: whole; checked: boolean };
        /** The path that was chosen, or null. */
        chooseFolder(title: text, start: text): string | null;
        /** With the parts of a form under the folders. */
        chooseFolderWith(title: text, start: text, form: Form | null): string | null;
        /** An empty list of extensions means any file. */
        chooseFiles(title: text, folder: text, extensions: texts): string[];
        chooseFile(title: text, folder: text, extensions: texts): string | null;
        /** The path of a file to write, or null. */
        chooseNewFile(title: text, folder: text, name: text, extension: text): string | null;
        /** False where there is no file manager. */
        openFolder(folder: text): boolean;
        /** With the program that the desktop has for its kind; false where there is none. */
        openFile(path: text): boolean;
        /** Gone when the program ends; empty where none can be made. */
        temporaryFolder(): string;
        /** Shows a file in its folder. */
        showInFolder(path: text): null;
        /** Files that were copied, or lines of text that are paths. */
        clipboardPaths(): string[];
        /** Puts a text on the clipboard. */
        copyText(text: text): null;
        quit(): null;
        /** Tells which form is the main window. */
        setMainForm(form: Form | null): null;
        toggleFullScreen(): null;
    };

    /** A window or pane that was loaded from a file. An unknown name is a ReferenceError. */
    export class Form {
        private constructor();
        shown: boolean;
        /** What the desktop writes over a window. */
        title: string;
        /** The user closes the window, and nothing has kept it open. */
        readonly closing: Signal<() => any>;
        /** The control, action or menu of that name. */
        control(name: text): AnyControl | null;
        names(): string[];
        /** Puts another form into the layout of a container. */
        place(name: text, other: Form | null): null;
        /** Lets the Tab key walk over the controls as they lie. */
        arrangeTabs(): null;
        /** The entries of a combo box: texts to read and the values behind them; "-" is a separator. */
        setItems(name: text, texts: texts, values: list): null;
        value(name: text): anything;
        /** False where no entry has that value. */
        chooseValue(name: text, value: anything): boolean;
        setIcon(name: text, icon: text): null;
        /** Sets a property that the style sheet looks at. */
        setLook(name: text, property: text, value: text): null;
        /** The entries of a menu: each calls `chosen` with its value; one whose value is null cannot be chosen. */
        setMenu(name: text, texts: texts, values: list, chosen: Function | null): null;
        /** Sizes of the parts of a splitter, in pixels; what the user set and was remembered wins. */
        setSplit(name: text, sizes: list): null;
        /** Makes several tool actions or menu entries exclude one another. */
        group(names: texts): null;
        show(): null;
        /** Brings the window before the others. */
        raise(): null;
        close(): null;
        /** Keeps size, place and splitters under a key, and takes up what was kept. */
        remember(key: text): null;
        /** Called when the user closes the window; where it answers false the window stays. */
        onClose(handler: Function | null): null;
    }

    /** Carries out a generator from the event loop, so that windows answer between its steps. */
    export class JobDriver {
        private constructor();
        readonly running: boolean;
        readonly paused: boolean;
        /** onStep(value) for each value that was yielded; onEnd(how, value): "done", "cancelled" or "failed". */
        start(generator: Iterator<any>, onStep: Function | null, onEnd: Function | null): null;
        pause(): null;
        resume(): null;
        /** A job that yields null waits until this is called; it is not told to onStep. */
        wake(): null;
        /** Stops after the current step; finally blocks run. */
        cancel(): null;
    }

    /** A panel for the name of a new file, with a form under the list of files. */
    export class SaveChoice {
        private constructor();
        /**
         * Waits for the answer. The name gets the extension unless it ends in one of the same type; the panel begins on the desktop
         * where the folder is not there. Null where it was cancelled.
         */
        choose(view: Form | null, name: text, folder: text, extension: text,
               wantsTags: boolean): { path: string; tags: string[] } | null;
        /** Another type, while the panel is up. */
        setExtension(extension: text): null;
        /** Gives a file tags, where its disk has them. */
        tag(path: text, tags: texts): null;
    }
    /** How many bytes results will have: workers make them, and nothing is written. */
    export class SizeEstimate {
        private constructor();
        /** Bytes are -1 where nothing came of it. */
        readonly measured: Signal<(number: whole, bytes: double) => any>;
        /** The result is {recipe}, or {type, quality} of a conversion. */
        measure(number: whole, path: text, result: dictionary): null;
        stop(): null;
    }


    /** Calls its function once, some time later; starting again puts it off. */
    export class ScriptTimer {
        private constructor();
        start(ms: whole): null;
        stop(): null;
    }

    /** Colours and style of every window. */
    export class Theme {
        private constructor();
        /** "light" or "dark". */
        readonly appearance: string;
        readonly changed: Signal<() => any>;
        /** "light", "dark" or "system"; kept for the next start. */
        choose(name: text): null;
        choice(): string;
    }

    /** What the desktop is told of a job. */
    export class DesktopSigns {
        private constructor();
        /** It is under way: the machine stays awake, and the task bar shows how far it is (0 to 100; -1 where nobody knows). */
        jobGoesOn(title: text, percent: whole): null;
        /** It is over; the summary is told where no window is in front. Empty: nothing is told. */
        jobEnded(title: text, summary: text): null;
    }

    /** A window on which sheets are opened. */
    export class SheetHost {
        private constructor();
        /** The dialog that is open on it, or null. */
        sheet: Control | null;
    }

    /** What every control has that is on the screen. */
    export interface Widget {
        visible: boolean;
        enabled: boolean;
        readonly focus: boolean;
        toolTip: string;
        accessibleName: string;
        accessibleDescription: string;
        setFocus(): null;
    }

    /** An entry of a menu, or a key. */
    export interface Action {
        text: string;
        enabled: boolean;
        visible: boolean;
        checkable: boolean;
        checked: boolean;
        toolTip: string;
        /** A person chose it. */
        readonly triggered: Signal<() => any>;
        readonly toggled: Signal<(value: boolean) => any>;
        trigger(): null;
    }

    /** A push button or check box. */
    export interface Button extends Widget {
        text: string;
        checkable: boolean;
        checked: boolean;
        /** A person pressed it. */
        readonly clicked: Signal<() => any>;
        readonly toggled: Signal<(checked: boolean) => any>;
        click(): null;
    }

    /** A text; some end in an ellipsis where there is no room. */
    export interface Label extends Widget {
        text: string;
    }

    /** A field for one line. */
    export interface LineEdit extends Widget {
        text: string;
        cursorPosition: whole;
        placeholderText: string;
        readOnly: boolean;
        readonly textChanged: Signal<(value: text) => any>;
        /** A person changed the text. */
        readonly textEdited: Signal<(value: text) => any>;
        /** From the first to the second. */
        readonly cursorPositionChanged: Signal<(value1: whole, value2: whole) => any>;
        readonly returnPressed: Signal<() => any>;
        selectAll(): null;
    }

    /** A field for several lines. */
    export interface TextEdit extends Widget {
        plainText: string;
        placeholderText: string;
        readOnly: boolean;
        readonly textChanged: Signal<() => any>;
        insertPlainText(text: text): null;
        selectAll(): null;
    }

    /** A list to choose one entry from; Form.setItems fills it, Form.value says what is chosen. */
    export interface ComboBox extends Widget {
        readonly count: whole;
        currentIndex: whole;
        /** A person chose an entry. */
        readonly activated: Signal<(index: whole) => any>;
    }

    /** A field for whole numbers, kept within minimum and maximum. */
    export interface SpinBox extends Widget {
        value: whole;
        minimum: whole;
        maximum: whole;
        suffix: string;
        readonly valueChanged: Signal<(value: whole) => any>;
    }

    /** A field for numbers, kept within minimum and maximum, that leaves alone what is being typed. */
    export interface NumberBox extends Widget {
        value: double;
        minimum: double;
        maximum: double;
        decimals: whole;
        suffix: string;
        readonly valueChanged: Signal<(value: double) => any>;
    }

    /** How far something is. */
    export interface ProgressBar extends Widget {
        value: whole;
        minimum: whole;
        maximum: whole;
    }

    /** Pages of which one is shown; an index outside of them is passed over. */
    export interface Stack extends Widget {
        readonly count: whole;
        currentIndex: whole;
    }

    /** A dial for an angle in degrees, -180 to 180 in tenths; anticlockwise is positive, 0 points up. Any angle is brought into it. */
    export interface AngleDial extends Widget {
        value: double;
        readonly valueChanged: Signal<(degrees: double) => any>;
        /** A person turned it. */
        readonly turned: Signal<(degrees: double) => any>;
    }

    /** The place by which a card is dragged to another place. */
    export interface CardHandle extends Widget {
        /** So many pixels below the place where it was pressed. */
        readonly dragged: Signal<(by: whole) => any>;
        readonly released: Signal<() => any>;
        /** One place up (-1) or down (1), by the arrow keys. */
        readonly stepped: Signal<(by: whole) => any>;
    }

    /** A line of text in which some parts stand in a frame. */
    export interface ChipLabel extends Widget {
        /** For each text, whether it stands in a frame. */
        setParts(texts: texts, chips: list): null;
    }

    /** A button that shows a colour, "#rrggbb", and opens a chooser; a text that is no colour is passed over. */
    export interface ColorWell extends Button {
        color: string;
        readonly colorChanged: Signal<(color: text) => any>;
        /** A person chose the colour. */
        readonly chosen: Signal<(color: text) => any>;
    }

    interface PreviewResult {
        /** What is done to the picture: {do: "recipe" | "lay" | "flatten", ...}. */
        edits: any[];
        /** Pixels of the result. */
        width: whole;
        height: whole;
        /** The type identifier, and the quality code or "". */
        type?: string;
        quality?: string;
        /** Shown instead where width is 0. */
        message?: string;
        /** That makes the file; without one it is a conversion. */
        recipe?: object;
        /** Not looked at. */
        bytes?: double;
    }

    /** The current picture and, beside it, what the settings make of it. */
    export interface ComparePreview extends Widget {
        fill: boolean;
        showsResult: boolean;
        /** Original and result have the same place; the result is seen where there is one. */
        single: boolean;
        /** Pixels of the screen for one of the picture, 1/32 to 8; 0: as large as the place allows. */
        zoom: double;
        /** Shown in the place of a picture that is not there; empty for the usual sentence. */
        problem: string;
        /** The size of the file of the result, which was made once for that; -1 while it is not known. */
        readonly estimatedBytes: double;
        readonly stepRequested: Signal<(rows: whole) => any>;
        readonly largePreviewRequested: Signal<() => any>;
        readonly closeRequested: Signal<() => any>;
        readonly pictureShown: Signal<() => any>;
        /** The part that can be seen at a scale is on the screen. */
        readonly partShown: Signal<() => any>;
        readonly zoomChanged: Signal<() => any>;
        readonly resultShown: Signal<() => any>;
        /** How large the file of the result will be, a while after the last change. */
        readonly resultEstimated: Signal<(bytes: double) => any>;
        /** The user moved or sized the frame. */
        readonly cropFrameEdited: Signal<(x: whole, y: whole, width: whole, height: whole) => any>;
        /** Nothing where the path is empty. */
        showPicture(path: text): null;
        /** Pictures that will probably be shown next, the likeliest first. */
        prepare(paths: texts): null;
        /** Reads the file again. */
        reload(): null;
        showResult(result: PreviewResult): null;
        setTitles(original: text, result: text): null;
        setCaptions(original: text, result: text): null;
        /** A second line under the result: what it will not hold. */
        setNotes(notes: text): null;
        /**
         * A frame that can be moved and sized, in pixels of the upright original; ratio 0 is free. With isFound it lies where whoever makes
         * the result says. Null takes it away.
         */
        setCropFrame(frame: { x: double; y: double; width: double; height: double; ratio?: double; isFound?: boolean }): null;
        /** Drawn over the original where there is a crop frame. */
        setOverlay(picture: Picture | null): null;
    }

    /** A day, in the reader's own form. */
    export interface DateBox extends Widget {
        /** Such as "2026-08-14"; what is no day is passed over. */
        day: string;
        readonly dayChanged: Signal<(day: text) => any>;
    }

    /** Covers the window while files are dragged over it, and takes the drop. */
    export interface DropTarget extends Widget {
        /** Closed, drops are refused. */
        open: boolean;
        /** Local paths, in the order given. */
        readonly dropped: Signal<(paths: texts) => any>;
        setMessage(message: text): null;
    }

    interface FolderRow {
        path: string;
        name: string;
        /** The path of the folder above, "" for one at the top. */
        above?: string;
        /** Of the files in it. */
        count?: whole;
        /** Of those and of the files below. */
        total: whole;
        isNew: boolean;
    }

    /** Folders with counts of files, as they will be after a run. */
    export interface FolderTree extends Widget {
        /** The path of the chosen folder; empty where none is. */
        chosenFolder: string;
        readonly folderChosen: Signal<(path: text) => any>;
        /** Each behind the one above it. */
        setFolders(folders: FolderRow[]): null;
        /** The same in parts: what was shown stays until showFolders(). */
        beginFolders(): null;
        addFolders(folders: FolderRow[]): null;
        showFolders(): null;
        /** In the order shown, closed ones included. */
        folders(): FolderRow[];
    }

    /** A field for words with commas between them, which offers known words for the one that is typed. */
    export interface KeywordEdit extends LineEdit {
        words: texts;
    }

    interface LogEntry {
        /** ISO, UTC; or empty. */
        date: string;
        process: string;
        action: string;
        status: string;
        reason: string;
        input: string;
        output: string;
        inputPath: string;
        outputPath: string;
        bytes: double;
        run: string;
        before: string;
        after: string;
    }

    /** An edit that can be reverted. */
    interface LogEdit {
        path: string;
        before: string;
        after: string;
        run: string;
    }

    /** The chosen run. */
    interface LogRun {
        count: whole;
        problems: whole;
        process: string;
        /** With what it took back. */
        title: string;
        /** Whether its entries are edits of comments, and how many of them can be reverted. */
        areEdits: boolean;
        edits: whole;
        /** How many entries were taken back since. */
        undone: whole;
    }

    /** The table of a log: searched, filtered, sorted by column, its rows copied. */
    export interface LogTable extends Widget {
        readonly shownCount: whole;
        readonly totalCount: whole;
        readonly chosenCount: whole;
        /** Of the chosen entries, those that are edits which can be reverted. */
        readonly chosenEditCount: whole;
        /** Whether old and new comments are shown in place of results. */
        comments: boolean;
        /** How many entries are shown, in the reader's own form. */
        readonly shownText: string;
        readonly reading: boolean;
        /** The arrangement of the columns, as a text to be kept. */
        columns: string;
        /** Something else is shown or chosen. */
        readonly changed: Signal<() => any>;
        readonly openRequested: Signal<() => any>;
        /** How each status word is shown. */
        setTexts(headings: texts, shown: dictionary): null;
        /** Reads the log file, or what was added to it, from the event loop. */
        follow(path: text): null;
        /** Shows the entries in which every word occurs. */
        look(text: text, status: text, editsOnly: boolean): null;
        /** By its number; -1 shows all. */
        showRun(number: whole): null;
        chosen(): LogEntry | null;
        entries(first: whole, count: whole): LogEntry[];
        /** The newest first. */
        chosenEdits(): LogEdit[];
        /** How many rows. */
        copyChosen(): whole;
        selectRow(row: whole): null;
    }

    /** Shows the pages of a manual; a page is named as its file is, without ".md". Pages that a language lacks are English. */
    export interface ManualView extends Widget {
        readonly page: string;
        readonly canGoBack: boolean;
        readonly canGoForward: boolean;
        readonly pageShown: Signal<(page: text) => any>;
        setFolder(folder: text, language: text): null;
        pages(): list;
        /** And, if it is not empty, the heading that has that anchor in the English page. */
        open(page: text, anchor: text): null;
        goBack(): null;
        goForward(): null;
        /** False where no page has it. */
        findNext(text: text): boolean;
        /** As after a change of the appearance. */
        redraw(): null;
    }

    /** A sketch of a web page in its style and colours, by daylight and in the dark. */
    export interface PageSketch extends Widget {
        /** "grid", "rows" or "story"; any other word is passed over. */
        style: string;
        /** "#rrggbb" */
        lightPaper: string;
        darkPaper: string;
        accent: string;
        title: string;
        fromRight: boolean;
        captions: boolean;
        /** Width by height of the first pictures; usual ones where there are none. */
        setRatios(ratios: list): null;
    }

    /** A list of pages to choose one from. */
    export interface PageList extends Widget {
        /** None where there is none of that name. */
        current: string;
        /** A person chose a page. */
        readonly chosen: Signal<(name: text) => any>;
        setPages(names: texts, titles: texts): null;
    }

    /** Pages with pictures, as they will be printed: as many side by side as there is room for. */
    export interface PagesView extends Widget {
        readonly pages: whole;
        /** The first that is seen, from 0; one outside of them is the nearest. */
        first: whole;
        /** How many are seen side by side. */
        readonly side: whole;
        /** Other pages are seen, or there are more or fewer of them. */
        readonly turned: Signal<() => any>;
        /** Settings as PageWork has them; those that make no sense leave what is shown as it is. */
        showPages(settings: dictionary, paths: texts): null;
    }

    /** The list of input pictures. A picture is named by its id; rows that the action does not take are in none of the counts and lists. */
    export interface PictureTable extends Widget {
        readonly count: whole;
        readonly currentId: whole;
        /** From 1; 0 where there is none. */
        readonly currentPlace: whole;
        problemsOnly: boolean;
        /** Only pictures with so many stars or more are shown, and no action works on the others; 0 for all. */
        leastRating: whole;
        /** Whether any row is rated. */
        readonly hasRatings: boolean;
        /** The keys 0 to 5 rate the chosen pictures. */
        keysRate: boolean;
        /** Runs work on these. */
        readonly tickedCount: whole;
        /** While a job runs nothing is read in the background for rows that are not visible. */
        busy: boolean;
        /** Whether the thumbnails that the programs of the desktop share are used and written. */
        sharesThumbnails: boolean;
        /** False while it is sorted by something that is still being read. */
        readonly settled: boolean;
        /** The rows are not in the chosen order yet, because that needs what is still being read. */
        readonly sortPending: boolean;
        /** The properties that stand in columns: fields of metadata, or paths such as "{Exif}|FNumber"; at most eight. */
        propertyColumns: texts;
        /** Whether setFilter() hides any pictures that it does not take. */
        readonly filtered: boolean;
        /** What the user did to the columns, as a text to be kept. */
        layout: string;
        /** A column by its name, with a minus sign before it where the last comes first; empty for the order of adding. */
        sorting: string;
        readonly countChanged: Signal<(count: whole) => any>;
        readonly orderChanged: Signal<() => any>;
        readonly ticksChanged: Signal<() => any>;
        readonly ratingsChanged: Signal<() => any>;
        readonly leastRatingChanged: Signal<(stars: whole) => any>;
        readonly clocksChanged: Signal<() => any>;
        readonly currentPictureChanged: Signal<(id: whole) => any>;
        readonly largePreviewRequested: Signal<() => any>;
        readonly propertyColumnsChanged: Signal<() => any>;
        readonly filterChanged: Signal<() => any>;
        /** Columns and filters are to be chosen. */
        readonly propertiesRequested: Signal<() => any>;
        /** Of so many pictures those properties were read that the list is sorted or filtered by. */
        readonly propertiesProgress: Signal<(done: whole, count: whole) => any>;
        readonly copied: Signal<(count: whole) => any>;
        readonly layoutChanged: Signal<() => any>;
        /** Files with one of the extensions, or any file for "*", or folders and no files. */
        setInput(extensions: texts, folders: boolean): null;
        /** How many rows the action does not take. */
        hiddenCount(): whole;
        hiddenPaths(): texts;
        /** "thumbnail", "name", "folder", "taken", "camera", "rating", "pixels", "size", "type", "newName", "newSize", "status"; headings by the same names. */
        setColumns(columns: texts, headings: dictionary, stressed: boolean): null;
        /** What fields of metadata are called, by their names. */
        setFieldNames(words: dictionary): null;
        /** What columns and filters can have, [{name, words}]: what is usual, and what the current picture says. */
        offeredProperties(): list;
        /** Shows those that fit only: {join: "all" or "any", rules: [{property, comparison, value}], text}; an empty one shows all. */
        setFilter(filter: dictionary): null;
        /** How many were not in the list yet. The roots are the folders that were added. */
        addPaths(paths: texts, roots: texts): whole;
        /** How many those were. */
        removeSelected(): whole;
        /** Because their files are gone: no edit that could be undone. */
        removeIds(ids: list): null;
        /** How many those were, hidden ones among them. */
        removeAll(): whole;
        /** By one place, up or down; how many were moved. */
        moveSelected(by: whole): whole;
        /** Of adding, removing and moving, the last that still stands. */
        undoEdit(): null;
        redoEdit(): null;
        /** Empty beyond the ends. */
        pathBeside(rows: whole): string;
        /** In the order shown. */
        ids(): list;
        /** In the order of ids(). */
        paths(): texts;
        /** In the order of ids(). */
        tickedIds(): list;
        tickedPaths(): texts;
        pathsOf(ids: list): texts;
        untickedIds(): list;
        /** Of the chosen rows. */
        toggleTicks(): null;
        /** The chosen pictures: 1 to 5 stars, or 0 for none. */
        rate(stars: whole): null;
        /** Of all ticked rows, each {id, path, name, rating}. */
        ratings(): list;
        tickAll(): null;
        showColumnMenu(): null;
        /** [{camera, count, shift}], shift in seconds; those with most pictures first. */
        cameras(): list;
        /** In seconds. */
        setClockShift(camera: text, seconds: whole): null;
        /** The file is at another path now. */
        setPath(id: whole, path: text): null;
        /** Until showAll(). */
        showOnly(ids: list): null;
        showAll(): null;
        selectedIds(): list;
        selectAll(): null;
        /** Stays at the ends. */
        step(rows: whole): null;
        selectId(id: whole): null;
        /** Reads the file's header if need be; null for an unknown id. */
        photo(id: whole): anything;
        setPlan(id: whole, newName: text, newSize: text): null;
        setStatus(id: whole, kind: text, text: text, detail: text): null;
        /** The new names of many pictures, one for each, without sizes. */
        setNewNames(ids: list, newNames: texts): null;
        /** The same status for many pictures. */
        setStatuses(ids: list, kind: text, text: text, detail: text): null;
        /** As the list shows it, the properties in the order of their columns; null for an unknown id. */
        shown(id: whole): anything;
        /** Of all rows, not only of those in view; "settled" tells when they are known. */
        readProperties(): null;
        forget(id: whole): null;
        /** Files that a run made of a picture, after its status. */
        setResults(id: whole, paths: texts): null;
        /** What was made of the chosen rows, or else they themselves. */
        chosenFiles(): texts;
        /** These, onto the clipboard; how many they are. */
        copyFiles(): whole;
        /** Unless the user works in the list. */
        reveal(id: whole): null;
    }

    /** Nine places, 0 to 8 row by row, of which one is chosen, or none, which is -1; another number is passed over. */
    export interface PositionPad extends Widget {
        selectedSegment: whole;
        /** What the places are called, for those who do not see them. */
        names: texts;
        readonly selectionChanged: Signal<(place: whole) => any>;
        /** A person made the choice. */
        readonly chosen: Signal<(place: whole) => any>;
    }

    /** The properties of one picture, with names and values in words. */
    export interface PropertyTree extends Widget {
        readonly shownCount: whole;
        /** Whether the picture tells where it was taken. */
        readonly hasPlace: boolean;
        /** False for what is no picture. */
        showFile(path: text): boolean;
        /** Of several pictures beside one another; what they do not share has a mark. False where one is no picture. */
        showFiles(paths: texts): boolean;
        differenceCount(): whole;
        /** Shows the values in which every word occurs. */
        look(text: text): null;
        /** How many lines. */
        copyChosen(): whole;
        /** What was put on the clipboard; empty where the picture has no place. */
        copyPlace(form: text): string;
        /** By the names shown: ["Exif", "F-number"]. */
        words(names: texts): string;
    }

    /** The runs of a log; choosing one shows its entries in the table. */
    export interface RunList extends Widget {
        /** Empty for all. */
        readonly run: string;
        readonly runChosen: Signal<() => any>;
        follow(table: LogTable | null, texts: dictionary): null;
        chosen(): LogRun | null;
        /** Those of the chosen run. */
        edits(): LogEdit[];
        /** False where the log has none of that name. */
        choose(run: text): boolean;
        chooseAll(): null;
    }

    /** A menu that is searched by typing. */
    export interface SearchMenu extends Widget {
        readonly chosen: Signal<(value: anything) => any>;
        /** Words are what an entry is also found by. */
        setEntries(titles: texts, explanations: texts, words: texts, values: list): null;
        setPlaceholder(text: text): null;
        /** Under the control, or over it where there is no room. */
        popUp(control: Widget | null): null;
    }

    /** A row of choices of which one is on; an index outside of them is passed over. */
    export interface SegmentedControl extends Widget {
        segments: texts;
        /** What the tool tip says over each segment. */
        tips: texts;
        selectedSegment: whole;
        readonly selectionChanged: Signal<(index: whole) => any>;
        /** A person made the choice. */
        readonly chosen: Signal<(index: whole) => any>;
    }

    /** The actions in groups. */
    export interface SideBar extends Widget {
        currentAction: string;
        readonly actionChosen: Signal<(name: text) => any>;
        addGroup(title: text): null;
        /** The name is what actionChosen says. */
        addEntry(name: text, title: text, iconName: text): null;
        /** Another name of an entry that shows one of several things; the entry has the name of that which was chosen last. */
        addFace(name: text, entryName: text): null;
        /** An entry that is off cannot be chosen. */
        setEntryEnabled(name: text, enabled: boolean): null;
    }

    /** Folders as slots with keys. */
    export interface SlotList extends Widget {
        /** Whether its keys work. */
        active: boolean;
        readonly count: whole;
        /** The row that the menu and the keyboard work on; -1 where there is none. */
        readonly currentRow: whole;
        readonly slotChosen: Signal<(row: whole) => any>;
        readonly labelEdited: Signal<(row: whole, label: text) => any>;
        /** A slot was dragged so that it should stand at `to`. */
        readonly slotMoved: Signal<(from: whole, to: whole) => any>;
        readonly foldersDropped: Signal<(paths: texts) => any>;
        readonly menuChosen: Signal<(row: whole, word: text) => any>;
        readonly currentSlotChanged: Signal<(row: whole) => any>;
        setSlots(slots: { key: string; label: string; note: string; problem: string; count: whole }[]): null;
        /** "-" is a separator. */
        setMenu(texts: texts, words: texts): null;
        editLabel(row: whole): null;
        /** For a moment, because something went there. */
        light(row: whole): null;
        reveal(row: whole): null;
        choose(row: whole): null;
    }

    /** A small picture of what edits make of a picture. */
    export interface StepPicture extends Widget {
        /** As in PreviewResult; nothing for an empty path. */
        showEdits(path: text, edits: list): null;
    }

    /** A control by its name: which members it has says its kind. */
    type AnyControl = Widget & Action & Button & Label & LineEdit & TextEdit & ComboBox & SpinBox & NumberBox & DateBox &
        ProgressBar & Stack & AngleDial & CardHandle & ChipLabel & ColorWell & ComparePreview & DropTarget &
        FolderTree & KeywordEdit & LogTable & ManualView & PageList & PagesView & PictureTable & PositionPad & PropertyTree & RunList &
        SearchMenu & SegmentedControl & SideBar & SlotList & StepPicture & PageSketch;
}

/** What windows ask about the program itself, and printing. */
declare module "quorlin/program" {
    export const program: {
        readonly version: string;
        /** The number that version files are compared with: 1.2.3 is 10203. */
        readonly build: whole;
        /** Where the program can be got; empty where nobody configured it. */
        readonly productPage: string;
        readonly hasUpdateHost: boolean;
        readonly libraries: { name: string; version: string; licence: string }[];
        /** The code of the language of the texts. */
        readonly language: string;
        /** The folder of the manual, or empty. */
        readonly manual: string;
        /** Whether there are pictures to try things with. */
        readonly hasSamples: boolean;
        /** Asks in the background for a newer build and calls taken(fields, problem): one of them is null. */
        lookForUpdate(taken: Function | null): null;
        /** A folder among the user's pictures with a copy of the samples; empty where it could not be made. */
        copySamples(): string;
        /** What an earlier window left that ended by a fault; empty where there is nothing. */
        crashReport(): string;
        forgetCrash(): null;
        /** Notes what the window is about, for the report of a crash. */
        noteWork(action: text, picture: text): null;
        /**
         * Shows the print panel for pages of this size in points. file is the path of a PDF that is wanted in place of a print; printer is
         * for sendToPrinter(), order for PageWork.
         */
        choosePrinter(pages: whole, width: double, height: double):
            { accepted: boolean; file?: string; printer?: string[]; order?: dictionary };
        /** Hands a PDF over to the print system; taken says what went wrong, or "". The file may go then. */
        sendToPrinter(path: text, printer: texts, taken: Function | null): null;
        /** Lets the user choose paper and orientation for this print and those to come. */
        setUpPage(): null;
        /** The paper that was chosen there, or the usual one: upright, in millimetres. */
        paper(): { width: number; height: number; landscape: boolean };
    };
}

/** Only for scripts that quorlin-script runs. */
declare const scriptArguments: readonly string[];
declare function print(...values: any[]): void;
/** Ends the run at once, with an exit status from 0 to 255. */
declare function quit(code?: number): never;
