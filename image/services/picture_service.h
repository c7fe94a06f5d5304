#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>

namespace image {

/** What the scripts of a job do with pictures besides the services' own operations. Nothing here needs a window. */
class PictureService : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Writes the upright picture at @p path, on a repeated tile of the picture at @p pattern, as @p target, whose
     * extension determines the type; pixels, depth, profile and resolution stay, and no other metadata is kept. Atomic.
     *
     * @return a sentence that says what failed; empty on success
     */
    Q_INVOKABLE QString layOnPattern(const QString &path, const QString &pattern, const QString &target) const;

    /**
     * The kinds of picture files, each as {id, extensions, profile, alpha, depth16, resolution, quality}: the type identifier,
     * the extensions of its names, of which new files get the first, and what its files keep of a picture; of the profile
     * "yes", "no" or "ifItFits". All false for kinds that are not written.
     */
    Q_INVOKABLE QVariantList formats() const;

    /**
     * The types that are written, in the order of lists, each as {id, keyword, word, isPage, isOfRecipes, hasQuality,
     * carriesMetadata}: the type identifier, the keyword of conversions and recipes, the word of lists, whether it is no format of
     * pictures, whether no conversion makes it, whether recipes state a quality for it, and whether a conversion hands metadata on
     * into it.
     */
    Q_INVOKABLE QVariantList outputTypes() const;

    /** The codes of JPEG quality, the lowest first; conversions know no last one. */
    Q_INVOKABLE QStringList qualityCodes() const;

    /** The kinds of raw files of cameras, each as {extension, hasPreview}; only those with a preview can be converted. */
    Q_INVOKABLE QVariantList rawTypes() const;

    /**
     * True if a file of @p typeIdentifier can hold the colour profile of the picture at @p path, or that has none;
     * otherwise its colours become sRGB. False for what cannot be opened or written. Reads the header.
     */
    Q_INVOKABLE virtual bool keepsProfile(const QString &path, const QString &typeIdentifier) const;

    /**
     * The horizontal resolution of the upright picture at @p path in dots per inch, rounded up; 72 if it states none, 0
     * if it cannot be read. Reads the header.
     */
    Q_INVOKABLE virtual double resolution(const QString &path) const;
    /** A length in "mm", "cm", "inch", "pica" or "punt" as whole pixels at @p dpi; see image::inPixels(). */
    Q_INVOKABLE int inPixels(double length, const QString &unit, double dpi) const;

    /** See platform::takeMemoryRefusal(): the operations of the services answer "Failed" and no more. */
    Q_INVOKABLE QString takeMemoryRefusal() const;
};

} // namespace image
