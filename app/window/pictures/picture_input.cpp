// Which rows of the picture list an action works on, and in what order.

#include "app/window/pictures/picture_table.h"

#include "platform/values/fields.h"

#include <QHeaderView>

#include <utility>

namespace window {

void PictureTable::setInput(const QStringList &extensions, bool folders)
{
    InputRule rule;
    rule.folders = folders;
    rule.anyFile = extensions.contains(QLatin1String("*"));
    for (const QString &extension : extensions)
        rule.extensions.insert(extension.toLower());
    m_order.setInput(rule);
    countTaken();
    chooseSomeRow();
    Q_EMIT currentPictureChanged(currentId());
    Q_EMIT countChanged(count());
    wakeLoader();
}

void PictureTable::countTaken()
{
    m_taken = 0;
    m_tickedCount = 0;
    m_belowRating = 0;
    bool hasRatings = leastRating() > 0;
    QStringView first;
    bool hasFolders = false;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const PictureRow &picture = m_model.row(row);
        hasRatings = hasRatings || picture.rating > 0;
        if (!m_order.input().takes(picture)) {
            m_belowRating += m_order.input().takesKindOf(picture) ? 1 : 0;
            continue;
        }
        const QStringView folder = QStringView(picture.path).left(picture.path.lastIndexOf(u'/'));
        first = m_taken++ == 0 ? folder : first;
        m_tickedCount += picture.isTicked ? 1 : 0;
        hasFolders = hasFolders || folder != first;
    }
    const bool hadFolders = std::exchange(m_hasFolders, hasFolders);
    const bool hadRatings = std::exchange(m_hasRatings, hasRatings);
    if (hadFolders != hasFolders || hadRatings != hasRatings)
        showColumns();
}

void PictureTable::chooseSomeRow()
{
    if (!currentIndex().isValid() && m_order.rowCount() > 0)
        choose(m_order.index(0, PictureModel::Name));
}

void PictureTable::showOnly(const QVariantList &ids)
{
    const QList<int> shown = platform::wholeNumbers(ids, QStringLiteral("ids"), 0);
    m_order.setOnly(QSet<int>(shown.cbegin(), shown.cend()));
    chooseSomeRow();
    wakeLoader();
}

void PictureTable::showAll()
{
    m_order.setOnly({});
    chooseSomeRow();
    wakeLoader();
}

// Rows hidden by a filter have no position; then the order of adding applies.
std::vector<int> PictureTable::rowsInOrder() const
{
    std::vector<int> rows;
    rows.reserve(size_t(m_taken));
    const bool allShown = m_order.rowCount() == m_taken;
    for (int i = 0; i < m_model.rowCount() && !allShown; ++i)
        if (m_order.input().takes(m_model.row(i)))
            rows.push_back(i);
    for (int i = 0; i < m_order.rowCount() && allShown; ++i)
        rows.push_back(m_order.mapToSource(m_order.index(i, 0)).row());
    return rows;
}

QVariantList PictureTable::ids() const
{
    QVariantList found;
    for (const int row : rowsInOrder())
        found.append(m_model.row(row).id);
    return found;
}

QStringList PictureTable::paths() const
{
    QStringList found;
    for (const int row : rowsInOrder())
        found.append(m_model.row(row).path);
    return found;
}

QStringList PictureTable::hiddenPaths() const
{
    QStringList found;
    for (int i = 0; i < m_model.rowCount(); ++i)
        if (!m_order.input().takesKindOf(m_model.row(i)))
            found.append(m_model.row(i).path);
    return found;
}

void PictureTable::setPath(int id, const QString &path)
{
    const int index = m_model.indexOfId(id);
    if (index >= 0)
        m_model.setPath(index, path);
}

void PictureTable::removeIds(const QVariantList &ids)
{
    const QList<int> gone = platform::wholeNumbers(ids, QStringLiteral("ids"), 0);
    if (gone.isEmpty())
        return;
    m_model.takeIds(gone);
    rowsChanged();
}

// Rows reappeared or went away.
void PictureTable::rowsChanged()
{
    countTaken();
    m_headersUpTo = 0;
    m_propertiesUpTo = 0;
    noteSorting(horizontalHeader()->sortIndicatorSection());
    chooseSomeRow();
    if (m_order.rowCount() == 0)
        Q_EMIT currentPictureChanged(0);
    Q_EMIT countChanged(count());
    wakeLoader();
}

QString PictureTable::pathBeside(int rows) const
{
    const qint64 row = qint64(currentIndex().row()) + rows;
    return currentIndex().isValid() && row >= 0 && row < m_order.rowCount()
               ? m_model.row(m_order.mapToSource(m_order.index(int(row), 0)).row()).path
               : QString();
}

} // namespace window
