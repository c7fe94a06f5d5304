#pragma once

#include "app/models/picture_model.h"

#include <QFontMetrics>
#include <QHeaderView>

/** How a status and its reason are shown in a row of the picture list. */
namespace window {

/** The text in at most two lines of whole words; what has no room there is elided at the end. */
QString inTwoLines(const QString &text, const QFontMetrics &metrics, int widthPx);

/** Whether inTwoLines() leaves all of the text. */
bool fitsInTwoLines(const QString &text, const QFontMetrics &metrics, int widthPx);

/**
 * The column in which the status begins. A reason that its own column is too narrow for takes the place of the new size, and of the
 * new name if need be, as long as the user left these beside it.
 *
 * @param paddingPx  what a cell leaves empty at both sides together
 */
PictureModel::Column statusColumn(const PictureRow &row, const QHeaderView &header, const QFontMetrics &metrics,
                                  int paddingPx);

} // namespace window
