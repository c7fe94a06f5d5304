#pragma once

#include "app/models/log_model.h"

#include <QTableView>
#include <QVariant>

#include <vector>

namespace window {

/**
 * The table of a log: searched, filtered, sorted by column, its rows copied.
 *
 * An entry is handed to scripts as {date (ISO, UTC, or ""), process, action, status, reason, input, output, inputPath, outputPath, bytes, run,
 * before, after}. An edit that can be reverted is {path, before, after, run}.
 */
class LogTable : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(int shownCount READ shownCount)
    Q_PROPERTY(int totalCount READ totalCount)
    Q_PROPERTY(int chosenCount READ chosenCount)
    /** Of the chosen entries, those that are edits which can be reverted. */
    Q_PROPERTY(int chosenEditCount READ chosenEditCount)
    /** Whether the columns of old and new comments are shown instead of those of results. */
    Q_PROPERTY(bool comments READ showsComments WRITE setShowsComments)
    /** How many entries are shown, in the reader's own form: "12,400". */
    Q_PROPERTY(QString shownText READ shownText)
    Q_PROPERTY(bool reading READ isReading)
    /** Widths, order and sorting of the columns as a text for the settings; "" for the default. */
    Q_PROPERTY(QString columns READ columns WRITE setColumns)

public:
    explicit LogTable(QWidget *parent = nullptr);

    int shownCount() const { return m_model.rowCount(); }
    int totalCount() const { return m_model.entries().count(); }
    int chosenCount() const;
    int chosenEditCount() const { return int(placesOfChosenEdits().size()); }
    bool showsComments() const { return m_showsComments; }
    void setShowsComments(bool shows);
    QString shownText() const { return locale().toString(shownCount()); }
    bool isReading() const { return m_model.isReading(); }
    QString columns() const;
    void setColumns(const QString &kept);
    LogModel &logModel() { return m_model; }

    /** @param shown  how each status word is shown */
    Q_INVOKABLE void setTexts(const QStringList &headings, const QVariantMap &shown);
    /** Reads the log file, or what was added to it, from the event loop, newest entries first. */
    Q_INVOKABLE void follow(const QString &path);
    /**
     * Shows the entries in which every word of @p text occurs, in any case of letters, with @p status if it is not empty,
     * and edits of comments alone with @p editsOnly.
     */
    Q_INVOKABLE void look(const QString &text, const QString &status, bool editsOnly);
    /** Shows the entries of one run, by its number, or of all for -1. */
    Q_INVOKABLE void showRun(int number);
    /** The current entry, or null. */
    Q_INVOKABLE QVariant chosen() const;
    /** Up to @p count entries from row @p first on, as they are shown. */
    Q_INVOKABLE QVariantList entries(int first, int count) const;
    /** The chosen edits, the newest first. */
    Q_INVOKABLE QVariantList chosenEdits() const { return editMaps(placesOfChosenEdits()); }
    /** All edits of a run, by its number, the newest first, whether they are shown or not. */
    QVariantList editsOfRun(int number) const;
    /** Copies the chosen rows to the clipboard, cells separated by tabs; returns how many. */
    Q_INVOKABLE int copyChosen() const;
    Q_INVOKABLE void selectRow(int row) { setCurrentIndex(m_model.index(row, 0)); }

Q_SIGNALS:
    /** The shown or chosen entries changed. */
    void changed();
    void openRequested();

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void measureActions();
    void arrangeColumns();
    std::vector<int> widths() const;
    void filter();
    QVariantMap entryMap(int row) const;
    std::vector<int> placesOfChosenEdits() const;
    QVariantList editMaps(const std::vector<int> &places) const;
    void showColumns();

    LogModel m_model;
    LogFilter m_filter;
    bool m_columnsChosen = false; ///< by hand; then their widths are not adjusted
    bool m_arranging = false;
    std::vector<int> m_arranged; ///< what widths() were then
    int m_actionPx = 0;          ///< that the longest action needs
    int m_runsMeasured = 0;
    bool m_showsComments = false;
};

} // namespace window
