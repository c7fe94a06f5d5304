#pragma once

#include "app/models/picture_model.h"

#include <QFontMetrics>
#include <QHeaderView>

/** How a status and its reason are shown in a row of the picture list. */
namespace window {

/** The text in at most so many lines of whole words; the rest is elided at the end. */
QString inLines(const QString &text, const QFontMetrics &metrics, int widthPx, int lines);

/** Whether inLines() keeps all of the text. */
bool fitsInLines(const QString &text, const QFontMetrics &metrics, int widthPx, int lines);

/** The least width in which the text fits in two lines. */
int widthInTwoLines(const QString &text, const QFontMetrics &metrics);

/**
 * The column in which the status begins. A reason that does not fit its own column also covers the new size, and the
 * new name if necessary, provided the user left these beside it.
 *
 * @param paddingPx  a cell's left and right padding together
 */
PictureModel::Column statusColumn(const PictureRow &row, const QHeaderView &header, const QFontMetrics &metrics,
                                  int paddingPx);

} // namespace window
