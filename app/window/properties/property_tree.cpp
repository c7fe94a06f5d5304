#include "app/window/properties/property_tree.h"

#include "jobs/reading/read_errand.h"
#include "platform/foundation/raised.h"
#include "platform/imageio/metadata/property_labels.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMap>
#include <QSet>
#include <QTreeWidgetItemIterator>

namespace window {
namespace {

constexpr int rowHeightPx = 24;
constexpr int leastValuePx = 90;
/** Precedes the name of a property in which the compared pictures differ. */
const QString differs = QStringLiteral("≠ ");

/** "Exposure time: 1/250 s", and below a branch each of its lines, indented. */
void addLines(QStringList &lines, const QTreeWidgetItem &item, int depth)
{
    QStringList values;
    for (int column = 1; column < item.columnCount(); ++column)
        values << item.text(column);
    const QString value = values.join(QStringLiteral(" | "));
    lines << QString(2 * depth, u' ') + item.text(0) + (value.isEmpty() ? QString() : QStringLiteral(": ") + value);
    for (int i = 0; i < item.childCount(); ++i)
        if (!item.child(i)->isHidden())
            addLines(lines, *item.child(i), depth + 1);
}

} // namespace

PropertyTree::PropertyTree(QWidget *parent) : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderLabels({tr("Property"), tr("Value")});
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setFrameShape(NoFrame);
    addMenu();
    header()->setSectionResizeMode(0, QHeaderView::Interactive);
    header()->setStretchLastSection(true);
    constexpr int namesPx = 260;
    header()->resizeSection(0, namesPx);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem *item) { m_closed.removeAll(item->text(0)); });
    connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem *item) {
        if (!m_closed.contains(item->text(0)))
            m_closed << item->text(0);
    });
}

void PropertyTree::addMenu()
{
    setContextMenuPolicy(Qt::ActionsContextMenu);
    addAction(tr("Copy"), this, [this] { copyChosen(); });
    for (const auto &[text, form] : {std::pair(tr("Copy Location in Degrees"), QStringLiteral("degrees")),
                                     std::pair(tr("Copy Location in Minutes"), QStringLiteral("minutes"))})
        addAction(text, this, [this, form = form] { copyPlace(form); })->setObjectName(form);
}

/** For compared pictures, the properties that any of them has. */
void PropertyTree::add(const QList<QVariantMap> &pictures, QTreeWidgetItem *above)
{
    QMap<QString, bool> names; // and whether it is a branch
    for (const QVariantMap &properties : pictures)
        for (auto entry = properties.begin(); entry != properties.end(); ++entry)
            names[entry.key()] |= entry.value().typeId() == QMetaType::QVariantMap;
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        auto *item = above ? new QTreeWidgetItem(above) : new QTreeWidgetItem(this);
        item->setText(0, platform::propertyLabel(name.key()));
        item->setSizeHint(0, QSize(0, rowHeightPx));
        if (!name.value()) {
            addValues(*item, name.key(), pictures);
            continue;
        }
        QList<QVariantMap> branches;
        for (const QVariantMap &properties : pictures)
            branches.append(properties.value(name.key()).toMap());
        add(branches, item);
    }
}

void PropertyTree::addValues(QTreeWidgetItem &item, const QString &name, const QList<QVariantMap> &pictures)
{
    QSet<QString> values;
    for (int i = 0; i < pictures.size(); ++i) {
        const QVariantMap &properties = pictures.at(i);
        const QString words =
            properties.contains(name) ? propertyWords(name, properties.value(name), properties) : QString();
        values.insert(words);
        item.setText(i + 1, QString(words).replace(u'\n', u' '));
        item.setToolTip(i + 1, words);
    }
    item.setToolTip(0, name);
    if (values.size() < 2)
        return;
    item.setText(0, differs + item.text(0));
    QFont stressed = font();
    stressed.setWeight(QFont::DemiBold);
    for (int column = 0; column < columnCount(); ++column)
        item.setFont(column, stressed);
}

void PropertyTree::useColumns(const QStringList &paths)
{
    QStringList headings = {tr("Property")};
    for (const QString &path : paths)
        headings << (paths.size() > 1 ? path.section(u'/', -1) : tr("Value"));
    setColumnCount(int(headings.size()));
    setHeaderLabels(headings);
    // Names get their share of the width, and values the rest, evenly.
    const int values = qMax(1, int(paths.size()));
    const int room = qMax(0, viewport()->width() - header()->sectionSize(0));
    for (int column = 1; column < values; ++column)
        header()->resizeSection(column, qMax(leastValuePx, room / values));
}

int PropertyTree::differenceCount() const
{
    int count = 0;
    for (QTreeWidgetItemIterator it(const_cast<PropertyTree *>(this)); *it; ++it)
        count += (*it)->childCount() == 0 && (*it)->text(0).startsWith(differs);
    return count;
}

bool PropertyTree::showFile(const QString &path)
{
    return showFiles({path});
}

bool PropertyTree::showFiles(const QStringList &paths)
{
    QList<QVariantMap> all;
    bool areGood = true;
    for (const QString &path : paths) {
        const jobs::ReadResult known = jobs::readNow({jobs::Reading::Properties, path, {}});
        all.append(known.value("properties").toMap());
        areGood = areGood && known.isGood();
    }
    setUpdatesEnabled(false);
    clear();
    useColumns(paths);
    add(all, nullptr);
    m_place = all.size() == 1 ? placeOf(all.constFirst()) : std::nullopt;
    for (const char *form : {"degrees", "minutes"})
        findChild<QAction *>(QString::fromLatin1(form))->setEnabled(hasPlace());
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = topLevelItem(i);
        const bool open = !m_closed.contains(item->text(0));
        item->setExpanded(open);
        filter(item, m_words.isEmpty());
    }
    setUpdatesEnabled(true);
    return areGood;
}

bool PropertyTree::hasWord(const QTreeWidgetItem &item, const QString &word)
{
    for (int column = 0; column < item.columnCount(); ++column)
        if (item.text(column).contains(word, Qt::CaseInsensitive))
            return true;
    return false;
}

/** Shown are matches, everything below a matching name, and the path to them. */
bool PropertyTree::filter(QTreeWidgetItem *item, bool isShown)
{
    bool matches = true;
    for (const QString &word : m_words)
        matches = matches && hasWord(*item, word);
    isShown = isShown || matches;
    bool any = isShown;
    for (int i = 0; i < item->childCount(); ++i)
        any = filter(item->child(i), isShown) || any;
    item->setHidden(!any);
    if (!m_words.isEmpty() && any && item->childCount() > 0) {
        const QStringList closed = m_closed; // matches are shown, even inside closed branches
        item->setExpanded(true);
        m_closed = closed;
    }
    return any;
}

void PropertyTree::look(const QString &text)
{
    m_words = text.split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < topLevelItemCount(); ++i)
        filter(topLevelItem(i), m_words.isEmpty());
}

int PropertyTree::shownCount() const
{
    int count = 0;
    for (QTreeWidgetItemIterator it(const_cast<PropertyTree *>(this)); *it; ++it)
        count += (*it)->childCount() == 0 && !(*it)->isHidden();
    return count;
}

int PropertyTree::copyChosen() const
{
    const QTreeWidgetItem *item = currentItem();
    if (!item)
        return 0;
    QStringList lines;
    addLines(lines, *item, 0);
    const bool isValue = item->childCount() == 0;
    QGuiApplication::clipboard()->setText(isValue ? item->toolTip(qMax(1, currentColumn())) : lines.join(u'\n'));
    return int(lines.size());
}

QString PropertyTree::copyPlace(const QString &form) const
{
    const bool inMinutes = form == QLatin1String("minutes");
    if (!inMinutes && form != QLatin1String("degrees"))
        throw platform::Raised::typeError(
            QStringLiteral("Expected \"degrees\" or \"minutes\" for form but received \"%1\"").arg(form));
    if (!m_place)
        return {};
    const QString words = placeWords(*m_place, inMinutes ? PlaceForm::Minutes : PlaceForm::Degrees);
    QGuiApplication::clipboard()->setText(words);
    return words;
}

QString PropertyTree::words(const QStringList &names) const
{
    const QTreeWidgetItem *item = invisibleRootItem();
    for (const QString &name : names) {
        const QTreeWidgetItem *found = nullptr;
        for (int i = 0; item && i < item->childCount(); ++i)
            if (item->child(i)->text(0) == name)
                found = item->child(i);
        item = found;
    }
    return item && item != invisibleRootItem() ? item->text(1) : QString();
}

void PropertyTree::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copyChosen();
    else
        QTreeWidget::keyPressEvent(event);
}

} // namespace window
