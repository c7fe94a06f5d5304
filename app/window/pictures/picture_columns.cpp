// The columns of the picture list: which are shown, what stands over them, and how wide they are.

#include "app/window/pictures/picture_table.h"

#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QHeaderView>

#include <array>

namespace window {

namespace {

constexpr int rowHeightPx = 36;
constexpr int narrowestTextPx = 60;

struct ColumnKind
{
    const char *name;
    int widthPx; ///< 0: shares what the others leave
    int share;   ///< of it, where the list is about new names
};

constexpr std::array<ColumnKind, PictureModel::ColumnCount> kinds = {{{"thumbnail", 58, 0},
                                                                      {"name", 0, 3},
                                                                      {"pixels", 92, 0},
                                                                      {"size", 76, 0},
                                                                      {"type", 86, 0},
                                                                      {"newName", 0, 4},
                                                                      {"newSize", 92, 0},
                                                                      {"status", 0, 4}}};

int columnNamed(const QString &name)
{
    for (size_t i = 0; i < kinds.size(); ++i)
        if (name == QLatin1String(kinds[i].name))
            return int(i);
    return -1;
}

QStringList columnNames()
{
    QStringList names;
    for (const auto &kind : kinds)
        names.append(QString::fromLatin1(kind.name));
    return names;
}

} // namespace

void PictureTable::prepareHeader()
{
    m_columnShown.assign(kinds.size(), true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowHeightPx);
    QHeaderView *header = horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->setMinimumSectionSize(48);
    header->setTextElideMode(Qt::ElideRight);
    header->setSectionResizeMode(PictureModel::Thumbnail, QHeaderView::Fixed);
    header->setSortIndicatorClearable(true);
    // -1: in the order in which the pictures were added.
    header->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(header, &QHeaderView::sectionResized, this,
            [this] { m_columnsChosen |= !m_arranging && isVisible() && underMouse(); });
    // Sorting by the thumbnail means nothing; it leads back to the order of adding.
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this, header](int column) {
        if (column == PictureModel::Thumbnail)
            header->setSortIndicator(-1, Qt::AscendingOrder);
        m_resortPending = column == PictureModel::Pixels && m_headersUpTo < m_model.rowCount();
        Q_EMIT orderChanged();
    });
}

void PictureTable::setColumns(const QStringList &columns, const QVariantMap &headings, bool stressed)
{
    const QStringList names = columnNames();
    for (const QString &column : columns)
        if (!names.contains(column))
            throw platform::Raised::typeError(
                QStringLiteral("Expected the name of a column for columns but received \"%1\"").arg(column));
    const platform::Fields given(headings, QStringLiteral("headings"), names);
    QHash<int, QString> words;
    for (auto heading = headings.cbegin(); heading != headings.cend(); ++heading)
        words.insert(columnNamed(heading.key()), given.text(heading.key().toLatin1().constData()));
    m_model.setHeadings(words);
    m_model.setStressesNewNames(stressed);
    for (int column = 0; column < PictureModel::ColumnCount; ++column) {
        m_columnShown[size_t(column)] = columns.contains(QLatin1String(kinds[size_t(column)].name));
        setColumnHidden(column, !m_columnShown[size_t(column)]);
    }
    m_columnsChosen = false;
    arrangeColumns();
    viewport()->update();
}

void PictureTable::arrangeColumns()
{
    if (m_columnsChosen)
        return;
    m_arranging = true;
    int room = viewport()->width();
    int shares = 0;
    const auto fixedWidth = [this](size_t i) {
        return qMax(kinds[i].widthPx, horizontalHeader()->sectionSizeHint(int(i)));
    };
    const auto shareOf = [this](size_t i) { return m_model.stressesNewNames() ? kinds[i].share : 1; };
    int texts = 0;
    for (size_t i = 0; i < kinds.size(); ++i) {
        room -= m_columnShown[i] && kinds[i].widthPx > 0 ? fixedWidth(i) : 0;
        shares += m_columnShown[i] && kinds[i].widthPx == 0 ? shareOf(i) : 0;
        texts += m_columnShown[i] && kinds[i].widthPx == 0 ? 1 : 0;
    }
    // Where not even narrow texts have room, a long heading is cut off, since the list is not to be moved sideways.
    int lacking = qMax(0, texts * narrowestTextPx - room);
    const auto cutWidth = [&](size_t i) {
        const int given = qMin(lacking, fixedWidth(i) - kinds[i].widthPx);
        lacking -= given;
        return fixedWidth(i) - given;
    };
    for (size_t i = 0; i < kinds.size(); ++i) {
        if (!m_columnShown[i])
            continue;
        const int text = qMax(narrowestTextPx, room * shareOf(i) / qMax(1, shares));
        horizontalHeader()->resizeSection(int(i), kinds[i].widthPx > 0 ? cutWidth(i) : text);
    }
    m_arranging = false;
}

} // namespace window
