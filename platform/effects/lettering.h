#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QString>
#include <QStringList>

namespace platform {

/** True where a font of that family, such as "DejaVu Sans" or "Sans Bold", is installed; no other would stand in for it. */
bool hasFont(const QString &font);

/** The names of the families of fonts that are installed, by the alphabet; none is empty. */
QStringList fontFamilies();

/** The path of the file that letters of that font come from; empty where there is none. Empty for @p font is the usual one. */
QString fontFile(const QString &font);

struct Lettering
{
    QString text;                        ///< several lines are parted by line feeds
    QString font;                        ///< family and style; empty for the usual font without serifs
    double size = 16;                    ///< of the font, in pixels
    QColor color = Qt::white;            ///< sRGB; its alpha counts
    Qt::Alignment lines = Qt::AlignLeft; ///< how the lines lie to each other: left, centre or right
};

/**
 * The letters on a transparent bitmap that is just as large as they are. Fails with InvalidValue where there is nothing to see,
 * and with TooLarge where they would fill more than any picture.
 */
Result<Bitmap> drawn(const Lettering &lettering);

} // namespace platform
