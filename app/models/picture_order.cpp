#include "app/models/picture_order.h"

#include "platform/foundation/natural_order.h"

namespace window {

namespace {

qint64 area(const PictureRow &row)
{
    return qint64(row.pixels.width()) * row.pixels.height();
}

QString textOf(const PictureRow &row, int column)
{
    switch (column) {
    case PictureModel::Folder:
        return row.path.left(row.path.lastIndexOf(u'/'));
    case PictureModel::Camera:
        return row.camera;
    case PictureModel::Type:
        return row.type;
    case PictureModel::NewName:
        return row.newName;
    case PictureModel::NewSize:
        return row.newSize;
    case PictureModel::Status:
        return row.status;
    default:
        return row.name;
    }
}

} // namespace

PictureOrder::PictureOrder(PictureModel &model, QObject *parent)
    : QSortFilterProxyModel(parent), m_model(model), m_order(platform::naturalOrder())
{
    setDynamicSortFilter(false);
    setSourceModel(&model);
}

void PictureOrder::setProblemsOnly(bool on)
{
    m_problemsOnly = on;
    invalidateFilter();
}

void PictureOrder::setOnly(const std::optional<QSet<int>> &ids)
{
    if (!ids && !m_only)
        return;
    m_only = ids;
    invalidateFilter();
}

void PictureOrder::setInput(const InputRule &rule)
{
    const InputRule before = m_input;
    m_input = rule;
    m_input.leastRating = before.leastRating;
    m_input.filter = before.filter;
    invalidateFilter();
}

void PictureOrder::setLeastRating(int stars)
{
    m_input.leastRating = stars;
    invalidateFilter();
}

void PictureOrder::setFilter(const PropertyFilter &filter)
{
    m_input.filter = filter;
    invalidateFilter();
}

/** Numbers before texts, and missing values last. */
bool PictureOrder::isStatedBefore(const PictureRow &a, const PictureRow &b, const QString &property) const
{
    const ListedValue first = a.properties.value(property);
    const ListedValue second = b.properties.value(property);
    if (first.words.isEmpty() || second.words.isEmpty())
        return second.words.isEmpty() && !first.words.isEmpty();
    if (first.number && second.number)
        return *first.number < *second.number;
    if (first.number || second.number)
        return bool(first.number);
    return m_order.compare(first.stated.isEmpty() ? first.words : first.stated,
                           second.stated.isEmpty() ? second.words : second.stated) < 0;
}

bool PictureOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const PictureRow &a = m_model.row(left.row());
    const PictureRow &b = m_model.row(right.row());
    if (const QString property = m_model.propertyOf(left.column()); !property.isEmpty())
        return isStatedBefore(a, b, property);
    if (left.column() == PictureModel::Bytes)
        return a.bytes < b.bytes;
    if (left.column() == PictureModel::Pixels)
        return area(a) < area(b);
    if (left.column() == PictureModel::Rating)
        return a.rating < b.rating;
    if (left.column() == PictureModel::Taken && a.taken != b.taken)
        return a.taken.isValid() && (!b.taken.isValid() || a.taken < b.taken);
    return m_order.compare(textOf(a, left.column()), textOf(b, left.column())) < 0;
}

bool PictureOrder::filterAcceptsRow(int row, const QModelIndex &) const
{
    const PictureRow &picture = m_model.row(row);
    return m_input.takes(picture) && (!m_problemsOnly || picture.kind == StatusKind::Bad) &&
           (!m_only || m_only->contains(picture.id));
}

} // namespace window
