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

QString inLines(const QString &text, const QFontMetrics &metrics, int widthPx, int lines)
{
    const qsizetype end = lineEnd(text, metrics, widthPx);
    if (end == text.size())
        return text;
    if (end == 0 || lines == 1)
        return metrics.elidedText(text, Qt::ElideRight, widthPx);
    return text.left(end) + u'\n' + inLines(text.mid(end + 1), metrics, widthPx, lines - 1);
}

bool fitsInLines(const QString &text, const QFontMetrics &metrics, int widthPx, int lines)
{
    const qsizetype end = lineEnd(text, metrics, widthPx);
    return end == text.size() || (end > 0 && lines > 1 && fitsInLines(text.mid(end + 1), metrics, widthPx, lines - 1));
}

int widthInTwoLines(const QString &text, const QFontMetrics &metrics)
{
    int least = metrics.horizontalAdvance(text);
    for (qsizetype at = text.indexOf(u' '); at > 0; at = text.indexOf(u' ', at + 1))
        least =
            qMin(least, qMax(metrics.horizontalAdvance(text, int(at)), metrics.horizontalAdvance(text.mid(at + 1))));
    return least;
}

PictureModel::Column statusColumn(const PictureRow &row, const QHeaderView &header, const QFontMetrics &metrics,
                                  int paddingPx)
{
    PictureModel::Column first = PictureModel::Status;
    int width = header.sectionSize(first) - paddingPx;
    for (const PictureModel::Column before : {PictureModel::NewSize, PictureModel::NewName}) {
        // The name of a future result is what the user wants to see.
        const bool mayCover = before == PictureModel::NewSize || isReason(row.kind);
        if (!mayCover || fitsInLines(row.status, metrics, width, 2))
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
