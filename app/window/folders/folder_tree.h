#pragma once

#include <QCollator>
#include <QHash>
#include <QTreeWidget>
#include <QVariant>

#include <memory>
#include <vector>

namespace window {

/**
 * Folders with counts of files, as they will be after a run: new ones are marked, and existing ones say so.
 *
 * Arrow keys walk, open and close; Escape clears the choice. What was opened, closed and chosen is kept when the
 * folders are set again, as far as those still exist.
 */
class FolderTree : public QTreeWidget
{
    Q_OBJECT
    /** The path of the chosen folder; empty if none is. */
    Q_PROPERTY(QString chosenFolder READ chosen WRITE setChosen NOTIFY folderChosen)

public:
    explicit FolderTree(QWidget *parent = nullptr);

    QString chosen() const;
    void setChosen(const QString &path);

    /**
     * @param folders  [{path, above (path of the folder above, "" for a root), name, total (files in it and below), isNew}],
     *                 parents before their children; they are shown in natural order of their names
     */
    Q_INVOKABLE void setFolders(const QVariantList &folders);
    /** The same in parts, for thousands of folders: the old tree is shown until showFolders(). */
    Q_INVOKABLE void beginFolders();
    Q_INVOKABLE void addFolders(const QVariantList &folders);
    Q_INVOKABLE void showFolders();
    /** {path, name, total, isNew} of the folders in the order shown, closed ones included. */
    Q_INVOKABLE QVariantList folders() const;

Q_SIGNALS:
    void folderChosen(const QString &path);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const override;

private:
    /** A folder that is to be shown. */
    struct Waiting
    {
        QCollatorSortKey key;
        QString above;
        std::unique_ptr<QTreeWidgetItem> item;
    };

    QTreeWidgetItem *itemAt(const QString &path) const { return m_items.value(path); }
    QList<QTreeWidgetItem *> joinWaiting();
    void openItems();
    void rememberOpen(const QTreeWidgetItem *item, bool open);

    QHash<QString, QTreeWidgetItem *> m_items;
    std::vector<Waiting> m_waiting;
    QHash<QString, QTreeWidgetItem *> m_waitingItems;
    QCollator m_order;
    QHash<QString, bool> m_opened; ///< what the user opened or closed
    bool m_filling = false;
};

} // namespace window
