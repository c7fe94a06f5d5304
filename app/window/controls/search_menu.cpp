#include "app/window/controls/search_menu.h"

#include "app/window/look/theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int explanationRole = Qt::UserRole;
constexpr int wordsRole = Qt::UserRole + 1;
constexpr int valueRole = Qt::UserRole + 2;
constexpr int entryHeightPx = 44;
constexpr int shownEntries = 8;

class EntryDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override { return {200, entryHeightPx}; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        painter->save();
        const bool isCurrent = option.state & QStyle::State_Selected;
        if (isCurrent)
            painter->fillRect(option.rect, Theme::color(QStringLiteral("accent")));
        const QRect place = option.rect.adjusted(12, 4, -8, -4);
        QFont font = option.font;
        font.setWeight(QFont::DemiBold);
        painter->setFont(font);
        painter->setPen(Theme::color(isCurrent ? QStringLiteral("onAccent") : QStringLiteral("text")));
        painter->drawText(place, Qt::AlignLeft | Qt::AlignTop, index.data().toString());
        font.setWeight(QFont::Normal);
        font.setPixelSize(Theme::scaled(12));
        painter->setFont(font);
        painter->setPen(Theme::color(isCurrent ? QStringLiteral("onAccent") : QStringLiteral("muted")));
        const QString explanation = index.data(explanationRole).toString();
        painter->drawText(place, Qt::AlignLeft | Qt::AlignBottom,
                          QFontMetrics(font).elidedText(explanation, Qt::ElideRight, place.width()));
        painter->restore();
    }
};

bool fits(const QListWidgetItem &item, const QStringList &wanted)
{
    const QString all = item.text() + QLatin1Char(' ') + item.data(explanationRole).toString() + QLatin1Char(' ') +
                        item.data(wordsRole).toString();
    return std::all_of(wanted.cbegin(), wanted.cend(),
                       [&all](const QString &word) { return all.contains(word, Qt::CaseInsensitive); });
}

} // namespace

SearchMenu::SearchMenu(QWidget *parent)
    : QFrame(parent, Qt::Popup), m_field(new QLineEdit(this)), m_list(new QListWidget(this))
{
    setProperty("role", QStringLiteral("popup"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    m_field->setObjectName(QStringLiteral("searchField"));
    m_list->setObjectName(QStringLiteral("searchList"));
    m_list->setFrameShape(NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setItemDelegate(new EntryDelegate(m_list));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &SearchMenu::filter);
    connect(m_list, &QListWidget::itemClicked, this, &SearchMenu::choose);
    connect(m_list, &QListWidget::itemEntered, m_list, [this](QListWidgetItem *item) { m_list->setCurrentItem(item); });
}

void SearchMenu::setEntries(const QStringList &titles, const QStringList &explanations, const QStringList &words,
                            const QVariantList &values)
{
    m_list->clear();
    for (int i = 0; i < titles.size(); ++i) {
        auto *item = new QListWidgetItem(titles.at(i), m_list);
        item->setData(explanationRole, explanations.value(i));
        item->setData(wordsRole, words.value(i));
        item->setData(valueRole, values.value(i));
        item->setData(Qt::AccessibleTextRole, QString(titles.at(i) + QStringLiteral(": ") + explanations.value(i)));
    }
}

void SearchMenu::setPlaceholder(const QString &text)
{
    m_field->setPlaceholderText(text);
    m_field->setAccessibleName(text);
    m_list->setAccessibleName(text);
}

void SearchMenu::popUp(QWidget *control)
{
    if (!control)
        return;
    m_field->clear();
    filter(QString());
    const int height = entryHeightPx * qMin(shownEntries, m_list->count()) + m_field->sizeHint().height() + 24;
    const QRect screen = control->screen()->availableGeometry();
    QRect place(control->mapToGlobal(QPoint(0, control->height() + 2)), QSize(qMax(control->width(), 260), height));
    if (place.bottom() > screen.bottom())
        place.moveBottom(qMax(screen.top() + height, control->mapToGlobal(QPoint(0, -2)).y()));
    setGeometry(place);
    show();
    m_field->setFocus(Qt::PopupFocusReason);
}

void SearchMenu::filter(const QString &text)
{
    const QStringList wanted = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QListWidgetItem *first = nullptr;
    for (int i = 0; i < m_list->count(); ++i) {
        QListWidgetItem *item = m_list->item(i);
        item->setHidden(!fits(*item, wanted));
        if (!first && !item->isHidden())
            first = item;
    }
    m_list->setCurrentItem(first);
    m_list->scrollToTop();
}

void SearchMenu::choose(const QListWidgetItem *item)
{
    if (!item || item->isHidden())
        return;
    hide();
    Q_EMIT chosen(item->data(valueRole));
}

bool SearchMenu::walk(int key)
{
    const int by = key == Qt::Key_Down || key == Qt::Key_PageDown ? 1 : -1;
    const int steps = key == Qt::Key_PageDown || key == Qt::Key_PageUp ? shownEntries - 1 : 1;
    int row = m_list->currentRow();
    for (int left = steps; left > 0; --left) {
        int next = row + by;
        while (next >= 0 && next < m_list->count() && m_list->item(next)->isHidden())
            next += by;
        if (next < 0 || next >= m_list->count())
            break;
        row = next;
    }
    m_list->setCurrentRow(row);
    return true;
}

bool SearchMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        return walk(static_cast<QKeyEvent *>(event)->key());
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentItem());
        return true;
    default:
        return false;
    }
}

} // namespace window
