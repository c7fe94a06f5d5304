// What the user marks in the picture list, and what it knows about cameras: ticks and clocks.

#include "app/window/pictures/picture_table.h"

#include "app/window/pictures/picture_delegate.h"

#include "jobs/camera_clocks.h"
#include "jobs/records/picture_ratings.h"

#include "platform/foundation/raised.h"

#include <QHeaderView>
#include <QMap>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>

namespace window {

QVariantList PictureTable::tickedIds() const
{
    QVariantList found;
    for (const int row : rowsInOrder())
        if (m_model.row(row).isTicked)
            found.append(m_model.row(row).id);
    return found;
}

QStringList PictureTable::tickedPaths() const
{
    QStringList found;
    for (const int row : rowsInOrder())
        if (m_model.row(row).isTicked)
            found.append(m_model.row(row).path);
    return found;
}

QStringList PictureTable::pathsOf(const QVariantList &ids) const
{
    QStringList found;
    for (const QVariant &id : ids) {
        const int row = m_model.indexOfId(id.toInt());
        found.append(row < 0 ? QString() : m_model.row(row).path);
    }
    return found;
}

QVariantList PictureTable::untickedIds() const
{
    QVariantList found;
    for (const int row : rowsInOrder())
        if (!m_model.row(row).isTicked)
            found.append(m_model.row(row).id);
    return found;
}

void PictureTable::tick(const std::vector<int> &rows, bool on)
{
    if (m_busy)
        return;
    for (const int row : rows)
        m_model.setTicked(row, on);
    countTaken();
    Q_EMIT ticksChanged();
}

void PictureTable::toggleTicks()
{
    std::vector<int> rows;
    const QModelIndexList chosen = selectionModel()->selectedRows();
    for (const QModelIndex &index : chosen)
        rows.push_back(m_order.mapToSource(index).row());
    if (!rows.empty())
        tick(rows, std::none_of(rows.begin(), rows.end(), [this](int row) { return m_model.row(row).isTicked; }));
}

void PictureTable::rate(int stars)
{
    if (stars < 0 || stars > jobs::PictureRatings::most)
        throw platform::Raised::rangeError(QStringLiteral("Expected 0 to 5 for stars but received %1").arg(stars));
    const QModelIndexList chosen = selectionModel()->selectedRows();
    if (m_busy || chosen.isEmpty())
        return;
    std::vector<int> rows;
    for (const QModelIndex &index : chosen)
        rows.push_back(m_order.mapToSource(index).row());
    for (const int row : rows)
        m_model.setRating(row, stars);
    rated();
}

QVariantList PictureTable::ratings() const
{
    QVariantList found;
    for (const int index : rowsInOrder())
        if (const PictureRow &row = m_model.row(index); row.isTicked)
            found.append(QVariantMap{{QStringLiteral("id"), row.id},
                                     {QStringLiteral("path"), row.path},
                                     {QStringLiteral("name"), row.name},
                                     {QStringLiteral("rating"), row.rating}});
    return found;
}

/** The visible rows and their order may depend on ratings. */
void PictureTable::rated()
{
    const bool isSorted = horizontalHeader()->sortIndicatorSection() == PictureModel::Rating;
    if (isSorted)
        m_order.sort(PictureModel::Rating, horizontalHeader()->sortIndicatorOrder());
    const int before = m_taken;
    if (leastRating() > 0)
        m_order.setLeastRating(leastRating());
    countTaken();
    chooseSomeRow();
    if (before != m_taken)
        Q_EMIT countChanged(count());
    if (isSorted)
        Q_EMIT orderChanged();
    Q_EMIT ratingsChanged();
}

void PictureTable::setLeastRating(int stars)
{
    if (stars < 0 || stars > jobs::PictureRatings::most)
        throw platform::Raised::rangeError(QStringLiteral("Expected 0 to 5 for stars but received %1").arg(stars));
    if (m_busy || stars == leastRating())
        return;
    m_order.setLeastRating(stars);
    countTaken();
    chooseSomeRow();
    wakeLoader();
    Q_EMIT leastRatingChanged(stars);
    Q_EMIT countChanged(count());
}

/** Which ratings are shown. */
void PictureTable::addRatingEntries(QMenu &menu)
{
    if (!m_hasRatings)
        return;
    for (int stars = 0; stars <= jobs::PictureRatings::most; ++stars) {
        QAction *entry =
            menu.addAction(stars == 0 ? tr("Show All Ratings") : tr("Only %n stars or more", nullptr, stars));
        entry->setCheckable(true);
        entry->setChecked(stars == leastRating());
        entry->setEnabled(!m_busy);
        connect(entry, &QAction::triggered, this, [this, stars] { setLeastRating(stars); });
    }
    menu.addSeparator();
}

void PictureTable::tickAll()
{
    tick(rowsInOrder(), true);
}

/**
 * Whether it is a click on the check box of a row, which is handled then, for all chosen rows if this is one of them.
 */
bool PictureTable::pressTick(const QMouseEvent &event)
{
    const QModelIndex index = indexAt(event.pos());
    if (event.button() != Qt::LeftButton || index.column() != PictureModel::Thumbnail ||
        !PictureDelegate::tickPlace(visualRect(index)).contains(event.pos()))
        return false;
    const int clicked = m_order.mapToSource(index).row();
    const bool on = !m_model.row(clicked).isTicked;
    std::vector<int> rows = {clicked};
    if (selectionModel()->isRowSelected(index.row())) {
        rows.clear();
        const QModelIndexList chosen = selectionModel()->selectedRows();
        for (const QModelIndex &each : chosen)
            rows.push_back(m_order.mapToSource(each).row());
    }
    tick(rows, on);
    return true;
}

void PictureTable::mousePressEvent(QMouseEvent *event)
{
    if (!pressTick(*event))
        QTableView::mousePressEvent(event);
}

// Both clicks of a double click on a box count.
void PictureTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!pressTick(*event))
        QTableView::mouseDoubleClickEvent(event);
}

QVariantList PictureTable::cameras() const
{
    QMap<QString, int> counts;
    for (const int row : rowsInOrder())
        if (m_model.row(row).headerRead && m_model.row(row).stated.isValid())
            ++counts[m_model.row(row).camera];
    QStringList names = counts.keys();
    std::stable_sort(names.begin(), names.end(),
                     [&counts](const QString &a, const QString &b) { return counts.value(a) > counts.value(b); });
    QVariantList found;
    for (const QString &name : names)
        found.append(QVariantMap{{QStringLiteral("camera"), name},
                                 {QStringLiteral("count"), counts.value(name)},
                                 {QStringLiteral("shift"), double(jobs::CameraClocks::ofProcess().shift(name))}});
    return found;
}

void PictureTable::setClockShift(const QString &camera, int seconds)
{
    if (m_busy || jobs::CameraClocks::ofProcess().shift(camera) == seconds)
        return;
    jobs::CameraClocks::ofProcess().setShift(camera, seconds);
    m_model.clocksChanged();
    if (horizontalHeader()->sortIndicatorSection() == PictureModel::Taken) {
        m_order.sort(PictureModel::Taken, horizontalHeader()->sortIndicatorOrder());
        Q_EMIT orderChanged();
    }
    Q_EMIT clocksChanged();
}

} // namespace window
