// The files of rows, copied or dragged out of the window; and rows that are reordered.

#include "app/window/pictures/picture_table.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QHeaderView>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace window {

namespace {

/** For file managers, mail and browsers, and as text for editors. */
std::unique_ptr<QMimeData> mimeDataOf(const QStringList &paths)
{
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data->setUrls(urls);
    data->setText(paths.join(u'\n'));
    return data;
}

} // namespace

void PictureTable::setResults(int id, const QStringList &paths)
{
    const int index = m_model.indexOfId(id);
    if (index >= 0)
        m_model.setResults(index, paths);
}

QStringList PictureTable::chosenFiles() const
{
    QStringList files;
    const QVariantList ids = selectedIds();
    for (const QVariant &id : ids) {
        const PictureRow &row = m_model.row(m_model.indexOfId(id.toInt()));
        files += row.results.isEmpty() ? QStringList(row.path) : row.results;
    }
    files.removeDuplicates();
    return files;
}

int PictureTable::copyFiles()
{
    const QStringList files = chosenFiles();
    if (!files.isEmpty())
        QApplication::clipboard()->setMimeData(mimeDataOf(files).release());
    return int(files.size());
}

// Nothing leaves the list, whatever a drop target does.
void PictureTable::startDrag(Qt::DropActions)
{
    const QStringList files = chosenFiles();
    if (files.isEmpty())
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(mimeDataOf(files).release());
    const int current = m_order.mapToSource(currentIndex()).row();
    const QPixmap picture = current >= 0 ? m_model.thumbnail(current) : QPixmap();
    if (!picture.isNull())
        drag->setPixmap(picture);
    drag->exec(Qt::CopyAction);
}

int PictureTable::moveSelected(int by)
{
    const QVariantList chosen = selectedIds();
    const bool allShown = m_order.rowCount() == m_taken;
    QList<int> shown;
    for (const int row : rowsInOrder())
        shown.append(m_model.row(row).id);
    QList<int> moving;
    for (const QVariant &id : chosen)
        moving.append(id.toInt());
    const bool isAtEnd = !moving.isEmpty() && moving.contains(by < 0 ? shown.constFirst() : shown.constLast());
    if (m_busy || !allShown || moving.isEmpty() || isAtEnd || (by != 1 && by != -1))
        return 0;
    if (by > 0)
        std::reverse(moving.begin(), moving.end());
    for (const int id : std::as_const(moving)) {
        const int place = int(shown.indexOf(id));
        shown.swapItemsAt(place, place + by);
    }
    m_edits.ordered(m_model.order());
    m_model.setOrder(shown);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder); // which also reports the order
    m_order.sort(-1);
    Q_EMIT orderChanged();
    scrollTo(currentIndex());
    return int(moving.size());
}

} // namespace window
