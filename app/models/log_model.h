#pragma once

#include "app/models/log_entries.h"

#include <QAbstractTableModel>
#include <QFile>
#include <QTimer>

namespace window {

/** Which entries of a log are shown. All conditions must hold. */
struct LogFilter
{
    QStringList words; ///< each must occur somewhere in the entry, in any case of letters
    QString status;    ///< a status word; empty for all
    int run = -1;      ///< the number of a run; -1 for all
    bool editsOnly = false;
};

/**
 * The entries of a log file as a table that is searched and sorted.
 *
 * The file is read from the event loop in slices of a few milliseconds, its newest lines first. Nothing is copied for the view:
 * a cell is made when it is drawn.
 */
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /** Before and After are comments: those of an edit. */
    enum Column { Date, Action, File, Status, Result, Folder, Before, After, ColumnCount };

    explicit LogModel(QObject *parent = nullptr);

    /** Reads the file at @p path; only the new part if it was read before and has grown since. */
    void follow(const QString &path);
    bool isReading() const { return m_slices.isActive(); }
    const LogEntries &entries() const { return m_entries; }

    void setHeadings(const QStringList &headings);
    /**
     * How status words are shown, word by word, and what is said of an edit: under "edit" with both comments (%1 and
     * %2), under "newEdit" and "lastEdit" where there is only one.
     */
    void setStatusWords(const QHash<QString, QString> &shown);
    /** Whether the status of an edit says what was edited, because no column shows it. */
    void setTellsEdits(bool tells) { m_tellsEdits = tells; }
    void setFilter(const LogFilter &filter);

    /** The place, in entries(), of a row that is shown. */
    int place(int row) const { return m_shown[size_t(row)]; }
    /** The row that shows an entry, or -1. */
    int rowOf(int place) const;
    /** Status and reason of an entry as they are shown. */
    QString statusOf(const LogEntry &entry) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    /** More of the file was read, or all of it. */
    void grown();

private:
    void forget();
    void readSlice();
    void readNewer();
    bool isShown(const LogEntry &entry) const;
    QString editWords(const LogEntry &entry) const;
    bool hasWord(const LogEntry &entry, int word) const;
    bool textHasWord(int text, int word) const;
    void showNewer(int from);
    void addOlder(const std::vector<int> &places);
    void refill();
    void order();
    QString cell(const LogEntry &entry, int column) const;
    QString toolTip(const LogEntry &entry, int column) const;

    LogEntries m_entries;
    std::vector<int> m_shown;
    QStringList m_headings;
    QHash<QString, QString> m_statusWords;
    LogFilter m_filter;
    bool m_tellsEdits = true;
    int m_sortColumn = Date;
    Qt::SortOrder m_sortOrder = Qt::DescendingOrder;
    /// What is known of each numbered text, per word of the search: 0 not looked at, 1 contains the word, 2 does not.
    mutable std::vector<std::vector<char>> m_textHasWord;
    QString m_path;
    QByteArray m_head;     ///< the first bytes of the file, which reveal a new file of the same name
    qint64 m_readUpTo = 0; ///< bytes, the line end included
    QByteArray m_older;    ///< what is still to be read of the file, backwards from its end
    QTimer m_slices;
};

} // namespace window
