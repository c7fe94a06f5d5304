#pragma once

#include <QLineEdit>
#include <QStringList>

class QCompleter;
class QStringListModel;

namespace window {

/** A field for words separated by commas or semicolons, which completes known words while one is being typed. */
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
    /** The range of the word that the cursor is in, without surrounding spaces. */
    std::pair<int, int> wordAtCursor() const;
    void offer();
    void take(const QString &word);

    QStringListModel *m_model = nullptr;
    QCompleter *m_completer = nullptr;
};

} // namespace window
