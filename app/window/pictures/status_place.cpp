#include "app/window/pictures/status_place.h"

namespace window {

namespace {

/** How many characters fit in a line; whole words if at least one fits. */
qsizetype lineEnd(const QString &text, const QFontMetrics &metrics, int widthPx)
{
    if (metrics.horizontalAdvance(text) <= widthPx)
        return text.size();
    qsizetype end = text.lastIndexOf(u' ');
    while (end > 0 && metrics.horizontalAdvance(text, int(end)) > widthPx)
        end = text.lastIndexOf(u' ', end - 1);
    return qMax<qsizetype>(0, end);
}

bool isReason(StatusKind kind)
{
    return kind == StatusKind::Bad || kind == StatusKind::Caution;
}

} // namespace

QString inTwoLines(const QString &text, const QFontMetrics &metrics, int widthPx)
{
    const qsizetype end = lineEnd(text, metrics, widthPx);
    if (end == text.size())
        return text;
    if (end == 0)
        return metrics.elidedText(text, Qt::ElideRight, widthPx);
    return text.left(end) + u'\n' + metrics.elidedText(text.mid(end + 1), Qt::ElideRight, widthPx);
}

bool fitsInTwoLines(const QString &text, const QFontMetrics &metrics, int widthPx)
{
    const qsizetype end = lineEnd(text, metrics, widthPx);
    return end == text.size() || (end > 0 && metrics.horizontalAdvance(text.mid(end + 1)) <= widthPx);
}

PictureModel::Column statusColumn(const PictureRow &row, const QHeaderView &header, const QFontMetrics &metrics,
                                  int paddingPx)
{
    PictureModel::Column first = PictureModel::Status;
    int width = header.sectionSize(first) - paddingPx;
    for (const PictureModel::Column before : {PictureModel::NewSize, PictureModel::NewName}) {
        // The name of a future result is what the user wants to see.
        const bool mayCover = before == PictureModel::NewSize || isReason(row.kind);
        if (!mayCover || fitsInTwoLines(row.status, metrics, width))
            break;
        if (header.isSectionHidden(before))
            continue;
        if (header.sectionPosition(before) + header.sectionSize(before) != header.sectionPosition(first))
            break;
        width += header.sectionSize(before);
        first = before;
    }
    return first;
}

} // namespace window
