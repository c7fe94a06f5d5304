#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QString>
#include <QStringList>

namespace platform {

/**
 * True if a font of that family, such as "DejaVu Sans" or "Sans Bold", is installed, so that no substitute is used.
 * False with a number at the end, which would be read as a size that nothing has.
 */
bool hasFont(const QString &font);

/** The names of the installed font families, in alphabetical order; none is empty. */
QStringList fontFamilies();

/**
 * The path of the font file that letters of that font come from; empty if there is none. An empty @p font is the
 * default one.
 */
QString fontFile(const QString &font);

struct Lettering
{
    QString text;                        ///< several lines are separated by line feeds
    QString font;                        ///< family and style; empty for the default sans-serif font
    double size = 16;                    ///< of the font, in pixels
    QColor color = Qt::white;            ///< sRGB; its alpha counts
    Qt::Alignment lines = Qt::AlignLeft; ///< alignment of the lines: left, centre or right
};

/**
 * The size of the text in pixels, without drawing it; a pixel more or less than drawn() needs. Fails with InvalidValue
 * if there is no text, with TooLarge if it is larger than can be drawn, and with Unsupported where no font is installed.
 */
Result<QSize> sizeOfDrawn(const Lettering &lettering);

/** The text on a transparent bitmap of exactly its size. Fails like sizeOfDrawn(). */
Result<Bitmap> drawn(const Lettering &lettering);

} // namespace platform
