#pragma once

#include "app/window/log_model.h"

#include <QListView>

namespace window {

class LogTable;

/** The runs of a log, the newest first, under one entry that stands for all of them. */
class RunRows : public QAbstractListModel
{
    Q_OBJECT

public:
    /** Numbers of runs are found under this role; -1 stands for all. */
    static constexpr int numberRole = Qt::UserRole;
    static constexpr int dateRole = Qt::UserRole + 1;
    static constexpr int countRole = Qt::UserRole + 2;
    static constexpr int problemsRole = Qt::UserRole + 3;

    using QAbstractListModel::QAbstractListModel;

    void follow(LogModel *log);
    /** %1 and %2 stand for numbers: {all, oneEntry, entries, oneProblem, problems}. */
    void setTexts(const QVariantMap &texts) { m_texts = texts; }
    int rowOf(int run) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void update();
    QString counted(const char *one, const char *many, int count) const;
    QVariant cell(int number, int role) const;

    LogModel *m_log = nullptr;
    QVariantMap m_texts;
    int m_rows = 0;
};

/** A list of the runs of a log, each with its deed, date and counts; choosing one shows its entries in the table. */
class RunList : public QListView
{
    Q_OBJECT
    /** The run that is chosen, as its entries name it; empty for all, and for a run that they do not name. */
    Q_PROPERTY(QString run READ run)

public:
    explicit RunList(QWidget *parent = nullptr);

    /** Shows the runs of the log in @p table, and filters it. @param texts  see RunRows::setTexts() */
    Q_INVOKABLE void follow(QObject *table, const QVariantMap &texts);
    QString run() const;
    /** The number of entries and problems of the chosen run: {count, problems, process}; null where all are shown. */
    Q_INVOKABLE QVariant chosen() const;
    /** Chooses the run with that name; false where the log has none. */
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
    LogTable *m_table = nullptr; ///< in the same window
    int m_number = -1;
};

} // namespace window
