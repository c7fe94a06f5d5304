#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVariant>

#include <vector>

namespace window {

/** Rows of plain text under headings. */
class TextRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setRows(const QStringList &headings, const QVariantList &rows);
    const QStringList &row(int index) const { return m_rows[size_t(index)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList m_headings;
    std::vector<QStringList> m_rows;
};

/** The rows in which a text occurs anywhere, and whose cell in one column is a given one; either may be empty. */
class TextFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void look(const QString &text, int column, const QString &cell);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QString m_text;
    QString m_cell;
    int m_column = 0;
};

/** A table of texts that can be searched; for the log. */
class LogTable : public QTableView
{
    Q_OBJECT

public:
    explicit LogTable(QWidget *parent = nullptr);

    /** @param rows  lists of texts, as many as there are headings, in the order shown */
    Q_INVOKABLE void setRows(const QStringList &headings, const QVariantList &rows);
    /** Shows the rows with @p text in any cell, in any case of letters, and @p cell in @p column if it is not empty. */
    Q_INVOKABLE void look(const QString &text, int column, const QString &cell);
    /** The positions, in the list that was set, of the rows that are shown. */
    Q_INVOKABLE QVariantList shownRows() const;
    /** The position of the chosen row in the list that was set, or -1. */
    Q_INVOKABLE int chosenRow() const;

Q_SIGNALS:
    void rowChosen();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void arrangeColumns();

    TextRows m_rows;
    TextFilter m_filter;
};

} // namespace window
