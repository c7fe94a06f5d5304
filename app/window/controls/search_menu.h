#pragma once

#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QVariant>

namespace window {

/**
 * A menu that is searched by typing: a field over a list of entries, each with a title and a line that explains it.
 *
 * Up, Down, Page Up and Page Down walk the list while the field keeps the focus, Return chooses, Escape closes.
 */
class SearchMenu : public QFrame
{
    Q_OBJECT

public:
    explicit SearchMenu(QWidget *parent = nullptr);

    /**
     * The entries, in their order.
     *
     * @param words  further words by which an entry is found, besides its title and explanation
     */
    Q_INVOKABLE void setEntries(const QStringList &titles, const QStringList &explanations, const QStringList &words,
                                const QVariantList &values);
    Q_INVOKABLE void setPlaceholder(const QString &text);
    /** Opens below a control, or above it if there is no room; everything is shown again. */
    Q_INVOKABLE void popUp(QWidget *control);

Q_SIGNALS:
    void chosen(const QVariant &value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void filter(const QString &text);
    void choose(const QListWidgetItem *item);
    bool walk(int key);

    QLineEdit *m_field;
    QListWidget *m_list;
};

} // namespace window
