#pragma once

#include <QLineEdit>
#include <QStringList>

class QCompleter;
class QStringListModel;

namespace window {

/** A field for words with commas or semicolons between them, which offers known words that go on from what is typed of one. */
class KeywordEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QStringList words READ words WRITE setWords)

public:
    explicit KeywordEdit(QWidget *parent = nullptr);

    QStringList words() const;
    void setWords(const QStringList &words);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /** From where to where in the text the word reaches that the cursor is in, blanks around it left out. */
    std::pair<int, int> wordAtCursor() const;
    void offer();
    void take(const QString &word);

    QStringListModel *m_model = nullptr;
    QCompleter *m_completer = nullptr;
};

} // namespace window
