#pragma once

#include <QListWidget>

namespace window {

/** A list of pages to choose one from. */
class PageList : public QListWidget
{
    Q_OBJECT
    Q_PROPERTY(QString current READ current WRITE setCurrent)

public:
    explicit PageList(QWidget *parent = nullptr);

    Q_INVOKABLE void setPages(const QStringList &names, const QStringList &titles);
    QString current() const;
    /** Selects a page without emitting a signal; clears the selection if there is no such page. */
    void setCurrent(const QString &name);

    /** As wide as the widest title needs. */
    QSize sizeHint() const override { return {neededWidth(), 400}; }
    QSize minimumSizeHint() const override { return {neededWidth(), 120}; }

Q_SIGNALS:
    /** The user chose a page. */
    void chosen(const QString &name);

private:
    int neededWidth() const;
};

} // namespace window
