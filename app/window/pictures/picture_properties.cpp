// Properties of pictures in the list: as columns, and for filtering.

#include "app/window/pictures/picture_table.h"

#include "jobs/reading/property_values.h"
#include "meta/fields.h"
#include "platform/values/fields.h"

#include <QHeaderView>
#include <QMenu>

#include <utility>

namespace window {

namespace {

constexpr int sliceMs = 8;
constexpr int pauseMs = 4;
constexpr int mostAsked = 32;
/** Filtering the list takes longer than reading one picture; the user wants to see progress all the same. */
constexpr int progressMs = 400;
constexpr int mostRules = 50;

PropertyRule ruleFrom(const QVariant &value, int place)
{
    const platform::Fields given(value, QStringLiteral("filter.rules[%1]").arg(place),
                                 {QStringLiteral("property"), QStringLiteral("comparison"), QStringLiteral("value")});
    const auto comparison = comparisonNamed(given.text("comparison"));
    if (!comparison)
        given.reject("a comparison", "comparison");
    return {given.text("property"), *comparison, given.text("value")};
}

PropertyFilter filterFrom(const QVariantMap &map)
{
    const platform::Fields given(map, QStringLiteral("filter"),
                                 {QStringLiteral("join"), QStringLiteral("rules"), QStringLiteral("text")});
    PropertyFilter filter;
    const QString join = given.text("join");
    if (!join.isEmpty() && join != QLatin1String("all") && join != QLatin1String("any"))
        given.reject("\"all\" or \"any\"", "join");
    filter.join = join == QLatin1String("any") ? Join::Any : Join::All;
    filter.text = given.text("text").simplified();
    const QVariantList rules = given.list("rules").mid(0, mostRules);
    for (const QVariant &rule : rules)
        filter.rules.append(ruleFrom(rule, int(filter.rules.size())));
    return filter;
}

QStringList allFields()
{
    QStringList names;
    for (const meta::Field &field : meta::fields())
        names.append(field.name);
    return names;
}

} // namespace

QString PictureTable::propertyHeading(const QString &name) const
{
    return m_fieldNames.contains(name) ? m_fieldNames.value(name).toString() : propertyPathWords(name);
}

void PictureTable::setFieldNames(const QVariantMap &words)
{
    m_fieldNames = words;
    setPropertyColumns(m_propertyColumns);
}

void PictureTable::setPropertyColumns(const QStringList &names)
{
    constexpr int most = PictureModel::LastProperty - PictureModel::FirstProperty + 1;
    const QStringList before = m_propertyColumns;
    m_propertyColumns = names.mid(0, most);
    m_propertyColumns.removeDuplicates();
    m_propertyColumns.removeAll(QString());
    QHash<QString, QString> headings;
    for (const QString &name : std::as_const(m_propertyColumns))
        headings.insert(name, propertyHeading(name));
    const QString sorted = m_model.propertyOf(horizontalHeader()->sortIndicatorSection());
    m_model.setPropertyColumns(m_propertyColumns, headings);
    wantProperties();
    if (!sorted.isEmpty() && before != m_propertyColumns) // the sorted column may be another one now
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    showColumns();
    viewport()->update();
    if (before != m_propertyColumns)
        Q_EMIT propertyColumnsChanged();
}

/** Those of the columns and of the filter; a typed text may be in any that is offered. */
void PictureTable::wantProperties()
{
    QStringList names = m_propertyColumns;
    const PropertyFilter &filter = m_order.input().filter;
    for (const PropertyRule &rule : filter.rules)
        names.append(rule.property);
    if (!filter.text.isEmpty())
        names += allFields() + usualPropertyPaths();
    names.removeDuplicates();
    if (names == m_model.wantedProperties())
        return;
    m_model.setWantedProperties(names);
    m_propertiesUpTo = 0;
    noteSorting(horizontalHeader()->sortIndicatorSection());
    wakeLoader();
}

QVariantList PictureTable::offeredProperties()
{
    QStringList names = allFields() + usualPropertyPaths();
    const QStringList usual = names;
    if (currentId() > 0) {
        const QString path = m_model.row(m_model.indexOfId(currentId())).path;
        const jobs::ReadResult read = jobs::readNow({jobs::Reading::Properties, path, {}});
        names += jobs::propertyNames(read.value("properties").toMap());
    }
    names += m_propertyColumns;
    names.removeDuplicates();
    QVariantList offered;
    for (const QString &name : std::as_const(names))
        offered.append(QVariantMap{{QStringLiteral("name"), name}, {QStringLiteral("words"), propertyHeading(name)}});
    return offered;
}

void PictureTable::setFilter(const QVariantMap &map)
{
    const PropertyFilter filter = filterFrom(map);
    if (m_busy || (filter.isEmpty() && !isFiltered()))
        return;
    m_order.setFilter(filter);
    wantProperties();
    m_propertiesUpTo = 0;
    m_isReadingProperties = isFiltered() && m_model.rowCount() > 0;
    m_sinceProgress.start();
    filterAgain();
    wakeLoader();
    Q_EMIT filterChanged();
}

/** Newly read values may add rows to the list, or remove them. */
void PictureTable::filterAgain()
{
    const int before = m_taken;
    m_order.setFilter(m_order.input().filter);
    countTaken();
    chooseSomeRow();
    if (m_order.rowCount() == 0)
        Q_EMIT currentPictureChanged(0);
    if (before != m_taken)
        Q_EMIT countChanged(count());
}

void PictureTable::readProperties()
{
    m_wantsAllProperties = true;
    m_propertiesUpTo = 0;
    m_isReadingProperties = !m_model.wantedProperties().isEmpty() && m_model.rowCount() > 0;
    m_sinceProgress.start();
    wakeLoader();
}

bool PictureTable::needsAllProperties() const
{
    return m_wantsAllProperties || isFiltered() ||
           !m_model.propertyOf(horizontalHeader()->sortIndicatorSection()).isEmpty();
}

bool PictureTable::arePropertiesRead() const
{
    return m_model.wantedProperties().isEmpty() ||
           (m_propertiesUpTo >= m_model.rowCount() && m_model.propertiesInWork() == 0);
}

/** All rows are read if the list is sorted or filtered by properties; visible ones in any case. */
void PictureTable::loadProperties()
{
    if (!needsAllProperties()) {
        if (std::exchange(m_isReadingProperties, false))
            Q_EMIT propertiesProgress(m_model.rowCount(), m_model.rowCount());
        return;
    }
    QElapsedTimer clock;
    clock.start();
    for (; m_propertiesUpTo < m_model.rowCount() && m_model.propertiesInWork() < mostAsked; ++m_propertiesUpTo) {
        if (clock.elapsed() >= sliceMs) {
            m_loader.start(pauseMs);
            break;
        }
        m_model.wantProperties(m_propertiesUpTo, jobs::Urgency::Later);
    }
    const bool isOver = arePropertiesRead();
    m_wantsAllProperties = m_wantsAllProperties && !isOver;
    const bool wasReading = std::exchange(m_isReadingProperties, !isOver);
    if (!wasReading && !isOver)
        m_sinceProgress.start();
    if (!wasReading || (!isOver && m_sinceProgress.elapsed() < progressMs))
        return;
    m_sinceProgress.start();
    if (isFiltered())
        filterAgain();
    Q_EMIT propertiesProgress(isOver ? m_model.rowCount() : m_model.propertiesRead(), m_model.rowCount());
    if (isOver && !m_resortPending)
        Q_EMIT orderChanged(); // for code that waits for the list to settle
}

/** A chosen column is removed here; columns are chosen elsewhere. */
void PictureTable::addPropertyEntries(QMenu &menu)
{
    for (const QString &name : std::as_const(m_propertyColumns)) {
        QAction *entry = menu.addAction(propertyHeading(name));
        entry->setCheckable(true);
        entry->setChecked(true);
        connect(entry, &QAction::triggered, this, [this, name] {
            QStringList rest = m_propertyColumns;
            rest.removeAll(name);
            setPropertyColumns(rest);
        });
    }
    menu.addAction(tr("Properties and Filter…"), this, &PictureTable::propertiesRequested);
}

} // namespace window
