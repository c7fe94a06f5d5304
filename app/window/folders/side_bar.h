#pragma once

#include <QListWidget>
#include <QStringList>

namespace window {

/** The actions in groups. Arrow keys move between the actions and skip the headings. */
class SideBar : public QListWidget
{
    Q_OBJECT
    Q_PROPERTY(QString currentAction READ currentAction WRITE setCurrentAction NOTIFY actionChosen)

public:
    explicit SideBar(QWidget *parent = nullptr);

    Q_INVOKABLE void addGroup(const QString &title);
    /** @param name  as passed to actionChosen(); @param iconName  a file of the icon folder */
    Q_INVOKABLE void addEntry(const QString &name, const QString &title, const QString &iconName);
    /** Another name of an entry that shows one of several actions; its current name is that of the last one chosen. */
    Q_INVOKABLE void addFace(const QString &name, const QString &entryName);
    /** A disabled entry is drawn faint and cannot be chosen. */
    Q_INVOKABLE void setEntryEnabled(const QString &name, bool enabled);

    QString currentAction() const;
    void setCurrentAction(const QString &name);

    /** As wide as the widest entry needs. */
    QSize sizeHint() const override { return {neededWidth(), 400}; }
    QSize minimumSizeHint() const override { return {neededWidth(), 120}; }

Q_SIGNALS:
    void actionChosen(const QString &name);

private:
    int neededWidth() const;
    QListWidgetItem *entry(const QString &name) const;
};

} // namespace window
