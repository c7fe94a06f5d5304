// The file types that can be written and what each can hold. Pure data and functions; no service is used.

export const ORIGINAL = "original file type";

// profile: keeps the colour profile. alpha: keeps transparency.
export const WRITTEN = [
    { id: "public.jpeg", extension: ".jpg", word: "JPEG", profile: true, alpha: false, quality: true },
    { id: "public.png", extension: ".png", word: "PNG", profile: true, alpha: true, quality: false },
    { id: "public.tiff", extension: ".tiff", word: "TIFF", profile: true, alpha: true, quality: false },
    { id: "public.bmp", extension: ".bmp", word: "BMP", profile: false, alpha: false, quality: false },
    { id: "com.compuserve.gif", extension: ".gif", word: "GIF", profile: false, alpha: true, quality: false },
    { id: "public.jp2", extension: ".jp2", word: "JPEG 2000", profile: false, alpha: true, quality: false },
];

/** What pictures can be converted to besides; no other action writes it. */
export const PDF_PAGE = { id: "com.adobe.pdf", extension: ".pdf", word: "PDF", profile: true, alpha: true, quality: false };

const BY_EXTENSION = {
    jpg: "public.jpeg", jpeg: "public.jpeg", jpe: "public.jpeg", png: "public.png", tif: "public.tiff",
    tiff: "public.tiff", bmp: "public.bmp", gif: "com.compuserve.gif", jp2: "public.jp2",
    psd: "com.adobe.photoshop-image", pdf: "com.adobe.pdf", heic: "public.heic", heif: "public.heif",
    webp: "org.webmproject.webp", avif: "public.avif",
};

/** The files that actions on pictures take, by extension. */
export const PICTURE_INPUT = ["jpg", "jpeg", "tif", "tiff", "png", "jp2", "gif", "bmp"];

/** The files that actions take which look at no pixels: these and those of cameras and phones. */
export const PHOTO_INPUT = PICTURE_INPUT.concat([
    "jpe", "heic", "heif", "webp", "avif", "psd", "pdf", "svg",
    "dng", "cr2", "cr3", "crw", "nef", "nrw", "arw", "srf", "sr2", "raf", "orf", "rw2", "pef", "srw", "raw", "3fr", "erf", "kdc", "mrw", "x3f",
]);

/** The files of a folder that comments are written into, and those that can be chosen for it, by extension. */
export const COMMENT_INPUT = ["jpg", "jpeg", "jpe", "tif", "tiff"];

/** The written type of that identifier, or null. */
export function writtenType(id) {
    return WRITTEN.find((type) => type.id === id) || null;
}

/** The written type of that identifier, or that of a page, or null. */
export function madeType(id) {
    return id === PDF_PAGE.id ? PDF_PAGE : writtenType(id);
}

/** The extension of a path's file name names this type; empty where it is unknown. */
export function typeOfExtension(extension) {
    return BY_EXTENSION[extension.toLowerCase()] || "";
}

/** The type that a result gets: the chosen one, or the one that the source's extension names. Null if not writable. */
export function resultType(extension, choice) {
    return writtenType(choice === ORIGINAL ? typeOfExtension(extension) : choice);
}
