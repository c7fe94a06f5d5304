#include "platform/effects/lettering.h"

#include "platform/graphics/pixels.h"
#include "platform/graphics/resample.h"

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>

#include <QCoreApplication>

#include <memory>

namespace platform {
namespace {

using vips::VImage;

struct FreeDescription
{
    void operator()(PangoFontDescription *description) const { pango_font_description_free(description); }
};
using Description = std::unique_ptr<PangoFontDescription, FreeDescription>;

constexpr const char *usualFont = "Sans";

bool isGeneric(const QString &family)
{
    return family.compare(QLatin1String("sans"), Qt::CaseInsensitive) == 0 ||
           family.compare(QLatin1String("serif"), Qt::CaseInsensitive) == 0 ||
           family.compare(QLatin1String("monospace"), Qt::CaseInsensitive) == 0;
}

QString text(const char *sentence)
{
    return QCoreApplication::translate("platform", sentence);
}

tl::unexpected<Error> tooLarge()
{
    return failure(ErrorCode::TooLarge, text(QT_TRANSLATE_NOOP("platform", "The text is too large to be drawn")));
}

/** The generic families are always among those of the layout library, even where it finds no letters for them. */
bool hasAnyFont()
{
    const FcFontSet *fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    return fonts && fonts->nfont > 0;
}

QStringList installedFamilies()
{
    if (!hasAnyFont())
        return {};
    PangoFontFamily **families = nullptr;
    int count = 0;
    pango_font_map_list_families(pango_cairo_font_map_get_default(), &families, &count);
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QString::fromUtf8(pango_font_family_get_name(families[i])));
    g_free(families);
    names.removeAll(QString());
    return names;
}

/** The whole text may be the name of a family, even if it ends in a style name, such as "Nimbus Mono Bold". */
Description descriptionOf(const QString &font)
{
    if (!installedFamilies().contains(font, Qt::CaseInsensitive))
        return Description(pango_font_description_from_string(font.toUtf8().constData()));
    Description description(pango_font_description_new());
    pango_font_description_set_family(description.get(), font.toUtf8().constData());
    return description;
}

VipsAlign alignmentOf(Qt::Alignment lines)
{
    if (lines.testFlag(Qt::AlignRight))
        return VIPS_ALIGN_HIGH;
    return lines.testFlag(Qt::AlignHCenter) ? VIPS_ALIGN_CENTRE : VIPS_ALIGN_LOW;
}

Description descriptionFor(const Lettering &lettering)
{
    Description description = descriptionOf(lettering.font.isEmpty() ? QString::fromLatin1(usualFont) : lettering.font);
    pango_font_description_set_absolute_size(description.get(), lettering.size * PANGO_SCALE);
    return description;
}

/** One band: how much of each pixel is covered. */
VImage coverageOf(const Lettering &lettering)
{
    const Description description = descriptionFor(lettering);
    const std::unique_ptr<char, decltype(&g_free)> name(pango_font_description_to_string(description.get()), g_free);
    return VImage::text(lettering.text.toHtmlEscaped().toUtf8().constData(), // the library would parse it as markup
                        VImage::option()->set("font", name.get())->set("align", alignmentOf(lettering.lines)));
}

} // namespace

bool hasFont(const QString &font)
{
    const Description description = descriptionOf(font);
    const char *family = pango_font_description_get_family(description.get());
    const QString name = QString::fromUtf8(family);
    const bool hasSize = (pango_font_description_get_set_fields(description.get()) & PANGO_FONT_MASK_SIZE) != 0;
    const QStringList installed = installedFamilies();
    return family && !hasSize && !installed.isEmpty() &&
           (isGeneric(name) || installed.contains(name, Qt::CaseInsensitive));
}

QStringList fontFamilies()
{
    QStringList names = installedFamilies();
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString fontFile(const QString &font)
{
    struct FreePattern
    {
        void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
    };
    using Pattern = std::unique_ptr<FcPattern, FreePattern>;
    const Description description = descriptionOf(font.isEmpty() ? QString::fromLatin1(usualFont) : font);
    const char *family = pango_font_description_get_family(description.get());
    const Pattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8 *>(family ? family : usualFont));
    FcPatternAddInteger(wanted.get(), FC_WEIGHT,
                        FcWeightFromOpenType(pango_font_description_get_weight(description.get())));
    if (pango_font_description_get_style(description.get()) != PANGO_STYLE_NORMAL)
        FcPatternAddInteger(wanted.get(), FC_SLANT, FC_SLANT_ITALIC);
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern found(FcFontMatch(nullptr, wanted.get(), &result));
    FcChar8 *file = nullptr;
    if (!found || FcPatternGetString(found.get(), FC_FILE, 0, &file) != FcResultMatch)
        return {};
    return QString::fromUtf8(reinterpret_cast<const char *>(file));
}

Result<QSize> sizeOfDrawn(const Lettering &lettering)
{
    struct Unreference
    {
        void operator()(void *object) const { g_object_unref(object); }
    };
    constexpr double largestSize = 20'000;
    constexpr qsizetype longest = 10'000;
    constexpr int longestSide = 32'000; // a little less than the drawing library has
    if (lettering.text.trimmed().isEmpty() || !(lettering.size > 0))
        return failure(ErrorCode::InvalidValue, QStringLiteral("There is no text to draw"));
    if (lettering.size > largestSize || lettering.text.size() > longest)
        return tooLarge();
    if (!hasAnyFont())
        return failure(ErrorCode::Unsupported,
                       text(QT_TRANSLATE_NOOP("platform", "No font is installed, so no text can be drawn")));
    const std::unique_ptr<PangoContext, Unreference> context(
        pango_font_map_create_context(pango_cairo_font_map_get_default()));
    const std::unique_ptr<PangoLayout, Unreference> layout(pango_layout_new(context.get()));
    const Description description = descriptionFor(lettering);
    pango_layout_set_font_description(layout.get(), description.get());
    pango_layout_set_text(layout.get(), lettering.text.toUtf8().constData(), -1);
    PangoRectangle ink;
    pango_layout_get_pixel_extents(layout.get(), &ink, nullptr);
    const bool fits = ink.width <= longestSide && ink.height <= longestSide;
    return fits && fitsMemoryBudget(std::max(1, ink.width), std::max(1, ink.height), 4, 1)
               ? Result<QSize>(QSize(ink.width, ink.height))
               : tooLarge();
}

Result<Bitmap> drawn(const Lettering &lettering)
{
    if (const Result<QSize> size = sizeOfDrawn(lettering); !size)
        return tl::unexpected<Error>(size.error());
    try {
        initVips();
        const VImage coverage = coverageOf(lettering);
        const QColor color = lettering.color.toRgb();
        const VImage plain =
            coverage.new_from_image({double(color.red()), double(color.green()), double(color.blue())});
        const VImage letters = plain.copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
                                   .cast(VIPS_FORMAT_UCHAR)
                                   .bandjoin(coverage.linear(color.alphaF(), 0).rint().cast(VIPS_FORMAT_UCHAR));
        return bitmapFromImage(letters);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
