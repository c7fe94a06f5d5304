#pragma once

#include "app/models/slot_rows.h"

#include <QListView>
#include <QTimer>
#include <QVariant>

class QShortcut;

namespace window {

/**
 * Folders as slots with keys. A key, a click or Enter chooses a slot; F2 edits its label; slots can be dragged to
 * another place, and folders dropped on the list become new ones. The script decides what each of these does.
 *
 * While the list is visible and active the keys work anywhere in the window, except in text fields.
 */
class SlotList : public QListView
{
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive WRITE setActive)
    Q_PROPERTY(int count READ count)
    /** The row that the menu and the keyboard act on; -1 if there is none. */
    Q_PROPERTY(int currentRow READ current)

public:
    explicit SlotList(QWidget *parent = nullptr);

    bool isActive() const { return m_active; }
    void setActive(bool active);
    int count() const { return m_rows.count(); }
    int current() const { return currentIndex().row(); }

    /** @param slots  [{key ("1", "A", "Shift+A"), label, note, problem, count}, ...], see window::Slot */
    Q_INVOKABLE void setSlots(const QVariantList &slots);
    /** The entries of a slot's menu and their texts; "-" is a separator. */
    Q_INVOKABLE void setMenu(const QStringList &texts, const QStringList &words);
    Q_INVOKABLE void editLabel(int row);
    /** Highlights a slot for a moment, because something was put there. */
    Q_INVOKABLE void light(int row);
    Q_INVOKABLE void reveal(int row);
    Q_INVOKABLE void choose(int row) { setCurrentIndex(m_rows.index(row)); }

    const SlotRows &rows() const { return m_rows; }
    int litRow() const { return m_litTimer.isActive() ? m_lit : -1; }
    int slotWidth() const;

    /** As high as all slots in one column; with less room they scroll. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void slotChosen(int row);
    void labelEdited(int row, const QString &label);
    /** A slot was dragged to the position @p to. */
    void slotMoved(int from, int to);
    void foldersDropped(const QStringList &paths);
    void menuChosen(int row, const QString &word);
    /** Another slot is now the one that the menu and the keyboard act on. */
    void currentSlotChanged(int row);

protected:
    bool event(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void makeShortcuts();
    void arrange();
    int rowAt(QPoint place) const;

    SlotRows m_rows;
    QList<QShortcut *> m_shortcuts;
    QStringList m_menuTexts;
    QStringList m_menuWords;
    bool m_active = true;
    int m_columns = 1;
    int m_pressed = -1;
    int m_dragged = -1;
    int m_dropRow = -1;
    int m_lit = -1;
    QTimer m_litTimer;
};

} // namespace window
