#pragma once

#include <QSizeF>
#include <QString>

namespace views {

/** A size as the text "{640, 480}", with up to 17 digits where fractions need them. */
QString textOfSize(QSizeF size);

/** The first two numbers in @p text, 0 for each that is missing: "{640, 480}", "640 480"; garbage is 0 x 0. */
QSizeF sizeOfText(const QString &text);

/** The size that the main view last published, from the user defaults; 0 x 0 if there is none. */
QSizeF publishedBounds();
void publishBounds(QSizeF size);

} // namespace views
