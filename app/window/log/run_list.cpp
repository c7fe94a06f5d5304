#include "app/window/log/run_list.h"

#include "app/window/look/theme.h"

#include "platform/foundation/human_texts.h"
#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QDateTime>
#include <QPainter>
#include <QPainterPath>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include <algorithm>

namespace window {

namespace {

constexpr int rowHeightPx = 50;
constexpr int smallFontPx = 12;

/** A line with the action, and below it, fainter, its date and counts. */
class RunDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return {120, rowHeightPx}; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool selected = option.state & QStyle::State_Selected;
        QPainterPath shape;
        shape.addRoundedRect(QRectF(option.rect).adjusted(6, 1, -6, -1), 6, 6);
        if (selected)
            painter->fillPath(shape, Theme::color(QStringLiteral("row")));
        else if (option.state & QStyle::State_MouseOver)
            painter->fillPath(shape, Theme::color(QStringLiteral("hover")));
        if (selected && option.state & QStyle::State_HasFocus) {
            painter->setPen(Theme::color(QStringLiteral("focus")));
            painter->drawPath(shape);
        }
        paintTexts(*painter, option, index);
        painter->restore();
    }

private:
    static int takenBy(const QString &right, const QFont &font)
    {
        constexpr int gapPx = 8;
        return right.isEmpty() ? 0 : QFontMetrics(font).horizontalAdvance(right) + gapPx;
    }

    // Draws a text on the right, then one on the left in the remaining space.
    static void paintLine(QPainter &painter, const QRect &place, Qt::Alignment line, const QString &left,
                          const QFont &leftFont, const QString &right, const QFont &rightFont, const char *rightColor)
    {
        painter.setFont(leftFont);
        const QString shown =
            QFontMetrics(leftFont).elidedText(left, Qt::ElideRight, place.width() - takenBy(right, rightFont));
        painter.drawText(place, Qt::AlignLeft | line, shown);
        painter.setFont(rightFont);
        painter.setPen(Theme::color(QString::fromLatin1(rightColor)));
        painter.drawText(place, Qt::AlignRight | line, right);
    }

    static void paintTexts(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const QRect place = option.rect.adjusted(16, 7, -14, -7);
        QFont bold = option.font;
        bold.setWeight(QFont::DemiBold);
        QFont small = option.font;
        small.setPixelSize(Theme::scaled(smallFontPx));
        const QString title = index.data().toString();
        const QString count = index.data(RunRows::countRole).toString();
        const QString problems = index.data(RunRows::problemsRole).toString();
        // A long title has its line to itself; the bar below the table gives all counts of the chosen run.
        const bool isLong = QFontMetrics(bold).horizontalAdvance(title) + takenBy(count, small) > place.width();
        const bool isCountBelow = isLong && problems.isEmpty();
        painter.setPen(Theme::color(QStringLiteral("text")));
        paintLine(painter, place, Qt::AlignTop, title, bold, isLong ? QString() : count, small, "muted");
        painter.setPen(Theme::color(QStringLiteral("muted")));
        paintLine(painter, place, Qt::AlignBottom, index.data(RunRows::dateRole).toString(), small,
                  isCountBelow ? count : problems, small, isCountBelow ? "muted" : "bad");
    }
};

} // namespace

void RunRows::follow(LogModel *log)
{
    if (m_log)
        m_log->disconnect(this);
    m_log = log;
    connect(log, &LogModel::grown, this, &RunRows::update);
    connect(log, &QObject::destroyed, this, &RunRows::forget);
    connect(log, &QAbstractItemModel::modelReset, this, &RunRows::update);
    update();
}

void RunRows::forget()
{
    beginResetModel();
    m_log = nullptr;
    m_rows = 0;
    endResetModel();
}

// The log's current number of runs, or the number when its rows were last announced.
void RunRows::update()
{
    const int rows = m_log->entries().runCount() + 1;
    if (rows == m_rows) {
        Q_EMIT dataChanged(index(0), index(rows - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int RunRows::rowOf(int run) const
{
    if (run < 0 || !m_log)
        return 0;
    const std::vector<int> &order = m_log->entries().runOrder();
    const auto found = std::find(order.cbegin(), order.cend(), run);
    return found == order.cend() ? 0 : int(found - order.cbegin()) + 1;
}

int RunRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QString RunRows::title(int number) const
{
    const LogEntries &entries = m_log->entries();
    const LogRun &run = entries.run(number);
    const QString &process = entries.texts().text(run.process);
    if (run.undoes.isEmpty())
        return process;
    const int undone = entries.runNamed(run.undoes);
    const bool isRedo = undone >= 0 && !entries.run(undone).undoes.isEmpty();
    return m_texts.value(isRedo ? QStringLiteral("redo") : QStringLiteral("undo")).toString().arg(process);
}

QString RunRows::longTitle(int number) const
{
    const LogEntries &entries = m_log->entries();
    const int undone = entries.runNamed(entries.run(number).undoes);
    if (undone < 0)
        return title(number);
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(entries.run(undone).first);
    return m_texts.value(QStringLiteral("of")).toString().arg(title(number), platform::localDateText(date));
}

QVariant RunRows::cell(int number, int role) const
{
    const LogEntries &entries = m_log->entries();
    const bool isAll = number < 0;
    const LogRun run = isAll ? LogRun() : entries.run(number);
    switch (role) {
    case Qt::DisplayRole:
        return isAll ? m_texts.value(QStringLiteral("all")) : title(number);
    case dateRole:
        return run.first == 0 ? QString() : platform::localDateText(QDateTime::fromMSecsSinceEpoch(run.first));
    case countRole:
        return tr("%Ln entries", nullptr, isAll ? entries.count() : run.count);
    case problemsRole:
        return run.problems == 0 ? QString() : tr("%Ln problems", nullptr, run.problems);
    default:
        return {};
    }
}

QVariant RunRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !m_log)
        return {};
    const std::vector<int> &order = m_log->entries().runOrder();
    const bool isAll = index.row() == 0 || size_t(index.row()) > order.size();
    const int number = isAll ? -1 : order[size_t(index.row()) - 1];
    if (role == numberRole)
        return number;
    if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole)
        return cell(number, role);
    QStringList all = {isAll ? cell(number, Qt::DisplayRole).toString() : longTitle(number)};
    for (const int part : {dateRole, countRole, problemsRole})
        all.append(cell(number, part).toString());
    all.removeAll(QString());
    return all.join(QStringLiteral(", "));
}

RunList::RunList(QWidget *parent) : QListView(parent)
{
    setModel(&m_rows);
    setItemDelegate(new RunDelegate(this));
    setMouseTracking(true);
    setFrameShape(NoFrame);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&m_rows, &QAbstractItemModel::modelReset, this, &RunList::keepChoice);
}

void RunList::follow(LogTable *table, const QVariantMap &texts)
{
    const platform::Fields given(
        texts, QStringLiteral("texts"),
        {QStringLiteral("all"), QStringLiteral("undo"), QStringLiteral("redo"), QStringLiteral("of")});
    for (const char *key : {"all", "undo", "redo", "of"})
        given.text(key);
    if (!table)
        throw platform::Raised::typeError(QStringLiteral("Expected a LogTable for table but received null"));
    if (m_table)
        m_table->logModel().disconnect(this);
    m_table = table;
    // Connected before the rows' own handler, which asks for the table.
    connect(&table->logModel(), &QObject::destroyed, this, [this] { m_table = nullptr; });
    m_rows.setTexts(texts);
    m_rows.follow(&table->logModel());
}

int RunList::number() const
{
    return currentIndex().isValid() ? currentIndex().data(RunRows::numberRole).toInt() : -1;
}

QString RunList::run() const
{
    return m_number < 0 || !m_table ? QString() : m_table->logModel().entries().run(m_number).id;
}

QVariant RunList::chosen() const
{
    if (m_number < 0 || !m_table)
        return QVariant::fromValue(nullptr);
    const LogEntries &entries = m_table->logModel().entries();
    const LogRun &run = entries.run(m_number);
    return QVariantMap{{QStringLiteral("count"), run.count},
                       {QStringLiteral("problems"), run.problems},
                       {QStringLiteral("process"), entries.texts().text(run.process)},
                       {QStringLiteral("title"), m_rows.longTitle(m_number)},
                       {QStringLiteral("areEdits"), run.areEdits},
                       {QStringLiteral("edits"), run.edits},
                       {QStringLiteral("undone"), entries.undoneOf(run.id)}};
}

QVariantList RunList::edits() const
{
    return m_number < 0 || !m_table ? QVariantList() : m_table->editsOfRun(m_number);
}

bool RunList::choose(const QString &run)
{
    if (!m_table || run.isEmpty())
        return false;
    const LogEntries &entries = m_table->logModel().entries();
    for (int number = 0; number < entries.runCount(); ++number)
        if (entries.run(number).id == run) {
            setCurrentIndex(m_rows.index(m_rows.rowOf(number)));
            return true;
        }
    return false;
}

void RunList::chooseAll()
{
    setCurrentIndex(m_rows.index(0));
}

// More of the log was read, or it was replaced.
void RunList::keepChoice()
{
    if (m_table && m_number >= m_table->logModel().entries().runCount()) {
        m_number = -1;
        m_table->showRun(-1);
    }
    setCurrentIndex(m_rows.index(m_rows.rowOf(m_number)));
}

void RunList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (!current.isValid() || number() == m_number)
        return;
    m_number = number();
    if (m_table)
        m_table->showRun(m_number);
    Q_EMIT runChosen();
}

} // namespace window
