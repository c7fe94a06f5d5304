#pragma once

#include "app/models/log_model.h"
#include "app/window/log/log_table.h"

#include <QListView>
#include <QPointer>

namespace window {

/** The runs of a log, the newest first, under one entry for all of them. */
class RunRows : public QAbstractListModel
{
    Q_OBJECT

public:
    /** Numbers of runs are found under this role; -1 means all. */
    static constexpr int numberRole = Qt::UserRole;
    static constexpr int dateRole = Qt::UserRole + 1;
    static constexpr int countRole = Qt::UserRole + 2;
    static constexpr int problemsRole = Qt::UserRole + 3;

    using QAbstractListModel::QAbstractListModel;

    void follow(LogModel *log);
    /**
     * {all, undo, redo, of}. In undo and redo %1 stands for the undone or redone run; in of %1 is that text, and %2 the
     * date of the run that was undone.
     */
    void setTexts(const QVariantMap &texts) { m_texts = texts; }
    /** The title: "Rename", or "Undo of Rename" for a run that undid one. */
    QString title(int number) const;
    /** The same, with the date of the run that was undone. */
    QString longTitle(int number) const;
    int rowOf(int run) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void update();
    void forget();
    QVariant cell(int number, int role) const;

    LogModel *m_log = nullptr; ///< null again once its table is destroyed
    QVariantMap m_texts;
    int m_rows = 0;
};

/** A list of the runs of a log, each with its action, date and counts; choosing one shows its entries in the table. */
class RunList : public QListView
{
    Q_OBJECT
    /** The chosen run, named as in its entries; empty for all, and for a run without a name. */
    Q_PROPERTY(QString run READ run)

public:
    explicit RunList(QWidget *parent = nullptr);

    /** Shows the runs of the log in @p table, and filters it. @param texts  see RunRows::setTexts() */
    Q_INVOKABLE void follow(window::LogTable *table, const QVariantMap &texts);
    QString run() const;
    /**
     * The chosen run: {count (of its entries), problems, process, title (with what it undid), areEdits (of comments),
     * edits (how many can be reverted), undone (how many entries were undone since)}; null if all are shown.
     */
    Q_INVOKABLE QVariant chosen() const;
    /** The edits of the chosen run; see LogTable::editsOfRun(). */
    Q_INVOKABLE QVariantList edits() const;
    /** Chooses the run with that name; false if the log has none. */
    Q_INVOKABLE bool choose(const QString &run);
    Q_INVOKABLE void chooseAll();

    QSize sizeHint() const override { return {230, 300}; }

Q_SIGNALS:
    void runChosen();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    int number() const;
    void keepChoice();

    RunRows m_rows;
    LogTable *m_table = nullptr; ///< null again when it is gone
    int m_number = -1;
};

} // namespace window
