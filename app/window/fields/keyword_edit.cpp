#include "app/window/fields/keyword_edit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

namespace window {

namespace {

constexpr int mostShown = 8;

bool partsWords(QChar sign)
{
    return sign == u',' || sign == u';';
}

} // namespace

KeywordEdit::KeywordEdit(QWidget *parent)
    : QLineEdit(parent), m_model(new QStringListModel(this)), m_completer(new QCompleter(m_model, this))
{
    m_completer->setWidget(this);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setFilterMode(Qt::MatchStartsWith);
    m_completer->setMaxVisibleItems(mostShown);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this, &KeywordEdit::take);
    connect(this, &QLineEdit::textEdited, this, &KeywordEdit::offer);
}

QStringList KeywordEdit::words() const
{
    return m_model->stringList();
}

void KeywordEdit::setWords(const QStringList &words)
{
    m_model->setStringList(words);
}

std::pair<int, int> KeywordEdit::wordAtCursor() const
{
    const QString all = text();
    int first = cursorPosition();
    int last = first;
    while (first > 0 && !partsWords(all[first - 1]))
        --first;
    while (last < all.size() && !partsWords(all[last]))
        ++last;
    while (first < last && all[first].isSpace())
        ++first;
    while (last > first && all[last - 1].isSpace())
        --last;
    return {first, last};
}

void KeywordEdit::offer()
{
    const auto [first, last] = wordAtCursor();
    const QString typed = text().mid(first, qMax(0, cursorPosition() - first));
    m_completer->setCompletionPrefix(typed);
    const bool isWhole = m_completer->completionCount() == 1 && m_completer->currentCompletion() == typed;
    if (typed.isEmpty() || m_completer->completionCount() == 0 || isWhole) {
        m_completer->popup()->hide();
        return;
    }
    m_completer->complete();
}

void KeywordEdit::take(const QString &word)
{
    const auto [first, last] = wordAtCursor();
    setText(text().left(first) + word + text().mid(last));
    setCursorPosition(first + int(word.size()));
}

// Return accepts the highlighted word and has no other effect.
void KeywordEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isOffering = m_completer->popup()->isVisible();
    if (isOffering &&
        (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape))
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}

} // namespace window
