#pragma once

#include "app/models/picture_order.h"
#include "app/window/pictures/list_edits.h"

#include <QElapsedTimer>
#include <QTableView>
#include <QTimer>
#include <QVariant>

class QMenu;

namespace window {

/**
 * The list of input pictures, as windows show it and scripts use it. A picture is identified by its id.
 *
 * Rows stay when another action works on the list; those that it does not accept are hidden, and left out of the counts
 * and lists below. Sizes and thumbnails arrive from the event loop in slices of a few milliseconds, those of visible
 * rows first.
 */
class PictureTable : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int currentId READ currentId NOTIFY currentPictureChanged)
    /** The position of the current picture in the list as shown, from 1; 0 if there is none. */
    Q_PROPERTY(int currentPlace READ currentPlace NOTIFY currentPictureChanged)
    /** Only failed rows are shown; the current one is one of them if there is any. */
    Q_PROPERTY(bool problemsOnly READ problemsOnly WRITE setProblemsOnly)
    /** Only pictures with so many stars, 1 to 5, or more are shown, and no action works on the others; 0 for all. */
    Q_PROPERTY(int leastRating READ leastRating WRITE setLeastRating NOTIFY leastRatingChanged)
    /** Whether any row is rated. */
    Q_PROPERTY(bool hasRatings READ hasRatings)
    /** Whether the keys 0 to 5 rate the chosen pictures. */
    Q_PROPERTY(bool keysRate READ keysRate WRITE setKeysRate)
    /** How many of them are ticked: runs work on these. */
    Q_PROPERTY(int tickedCount READ tickedCount NOTIFY ticksChanged)
    Q_PROPERTY(bool busy READ isBusy WRITE setBusy)
    /** Whether the thumbnails that the programs of the desktop share are used and written. */
    Q_PROPERTY(bool sharesThumbnails READ sharesThumbnails WRITE setSharesThumbnails)
    /** False while the list is sorted by something that is still being read for some files. */
    Q_PROPERTY(bool settled READ isSettled NOTIFY orderChanged)
    /** Whether the rows are not in the chosen order yet, because that needs what is still being read. */
    Q_PROPERTY(bool sortPending READ isSortPending NOTIFY orderChanged)
    /**
     * The properties that have columns, by their names: those of offeredProperties(), or paths. At most eight; others
     * are dropped.
     */
    Q_PROPERTY(QStringList propertyColumns READ propertyColumns WRITE setPropertyColumns NOTIFY propertyColumnsChanged)
    /** Whether setFilter() hides any pictures that it does not accept. */
    Q_PROPERTY(bool filtered READ isFiltered NOTIFY filterChanged)
    /**
     * The user's changes to the columns as a text for the settings: their order and widths. Empty if there are none.
     */
    Q_PROPERTY(QString layout READ columnLayout WRITE setColumnLayout NOTIFY layoutChanged)
    /**
     * The column by which the list is sorted, with a minus sign before it if descending; empty for the order of adding.
     */
    Q_PROPERTY(QString sorting READ sorting WRITE setSorting NOTIFY layoutChanged)

public:
    explicit PictureTable(QWidget *parent = nullptr);

    int count() const;
    int currentId() const;
    int currentPlace() const { return currentIndex().isValid() ? currentIndex().row() + 1 : 0; }
    bool problemsOnly() const { return m_order.problemsOnly(); }
    void setProblemsOnly(bool on);
    int tickedCount() const { return m_tickedCount; }
    int leastRating() const { return m_order.input().leastRating; }
    void setLeastRating(int stars);
    bool hasRatings() const { return m_hasRatings; }
    bool keysRate() const { return m_keysRate; }
    void setKeysRate(bool on) { m_keysRate = on; }
    bool isSettled() const { return !m_resortPending && !m_isReadingProperties; }
    bool isSortPending() const { return m_resortPending; }
    bool sharesThumbnails() const { return m_model.sharesThumbnails(); }
    void setSharesThumbnails(bool shares) { m_model.setSharesThumbnails(shares); }
    bool isBusy() const { return m_busy; }
    /** While busy (a job runs) nothing is read in the background for invisible rows, and ticks cannot be changed. */
    void setBusy(bool busy);
    QStringList propertyColumns() const { return m_propertyColumns; }
    void setPropertyColumns(const QStringList &names);
    bool isFiltered() const { return !m_order.input().filter.isEmpty(); }
    QString columnLayout() const;
    void setColumnLayout(const QString &layout);
    QString sorting() const;
    void setSorting(const QString &sorting);
    /** Whether a status in the list is truncated. */
    bool isStatusCut(int id) const;

    /**
     * Sets what the action accepts: files with one of the extensions, any file for "*", or folders and no files.
     */
    Q_INVOKABLE void setInput(const QStringList &extensions, bool folders);
    /** How many rows the action does not accept. */
    Q_INVOKABLE int hiddenCount() const { return m_model.rowCount() - m_taken - m_belowRating; }
    /** The paths of these rows, in the order of adding. */
    Q_INVOKABLE QStringList hiddenPaths() const;
    /**
     * Shows these columns only: "thumbnail", "name", "folder", "taken", "camera", "rating", "pixels", "size", "type", "newName", "newSize",
     * "status". The folder is shown if the pictures are in several, and the least important columns are hidden if there
     * is no room; the user can override both.
     *
     * @param headings  other titles for columns, by the same names
     * @param stressed  new names are what the list is about
     */
    Q_INVOKABLE void setColumns(const QStringList &columns, const QVariantMap &headings, bool stressed);

    /** The names of metadata fields in words; a name that is not listed is a path, see jobs::propertyValues(). */
    Q_INVOKABLE void setFieldNames(const QVariantMap &words);
    /**
     * The properties available for columns and filters: fields, the usual ones of cameras, and all of the current
     * picture: {name, words}. Waits for the current picture.
     */
    Q_INVOKABLE QVariantList offeredProperties();
    /**
     * Shows matching pictures only, and no action works on the others: {join: "all" or "any", rules: [{property,
     * comparison, value}], text}; an empty one shows all. The comparison is one of comparisonNamed(). Parts of the
     * text, separated by spaces, must each be in the name or in one of the values. Pictures are hidden until they have
     * been read.
     */
    Q_INVOKABLE void setFilter(const QVariantMap &filter);
    /**
     * Adds the paths that are not in the list yet; returns how many were new. @p roots: the folders that were added.
     */
    Q_INVOKABLE int addPaths(const QStringList &paths, const QStringList &roots);
    /** Removes the chosen rows; returns how many there were. */
    Q_INVOKABLE int removeSelected();
    /** Removes rows because their files are gone; this cannot be undone. */
    Q_INVOKABLE void removeIds(const QVariantList &ids);
    /** Removes all rows, including hidden ones; returns how many there were. */
    Q_INVOKABLE int removeAll();
    /**
     * Moves the chosen rows by one place up (-1) or down (1), together; the order shown becomes that of adding. Returns
     * how many were moved: 0 if they are already at the end, or if only part of the list is shown.
     */
    Q_INVOKABLE int moveSelected(int by);
    /**
     * Undoes the last addPaths(), removeSelected(), removeAll() or moveSelected() that is still in effect; 100 of them
     * are kept.
     */
    Q_INVOKABLE void undoEdit();
    /** Redoes what was undone last. */
    Q_INVOKABLE void redoEdit();
    /** The path of the picture @p rows after the current one in the list as shown; empty beyond its ends. */
    Q_INVOKABLE QString pathBeside(int rows) const;
    /** The ids of all pictures, in the order shown; in the order of adding while a filter hides some. */
    Q_INVOKABLE QVariantList ids() const;
    /** The paths of all pictures, in the order of ids(). */
    Q_INVOKABLE QStringList paths() const;
    /** Of these, the pictures that are ticked. */
    Q_INVOKABLE QVariantList tickedIds() const;
    Q_INVOKABLE QStringList tickedPaths() const;
    /** The paths of the pictures with these ids; empty for one that is gone. */
    Q_INVOKABLE QStringList pathsOf(const QVariantList &ids) const;
    /** The pictures that are not. */
    Q_INVOKABLE QVariantList untickedIds() const;
    /** Unticks the chosen rows, or ticks them if none of them is ticked. */
    Q_INVOKABLE void toggleTicks();
    /** Rates the chosen pictures: 1 to 5 stars, or 0 for none. */
    Q_INVOKABLE void rate(int stars);
    /** Of all ticked rows, each {id, path, name, rating}. */
    Q_INVOKABLE QVariantList ratings() const;
    /** Ticks all rows. */
    Q_INVOKABLE void tickAll();
    /** Shows the menu of the columns at the head of the list. */
    Q_INVOKABLE void showColumnMenu();
    /**
     * The cameras of the list, those with most pictures first: {camera, count, shift (seconds, see jobs::CameraClocks)}. The camera
     * is empty for pictures that do not name one. Those not read yet are not counted.
     */
    Q_INVOKABLE QVariantList cameras() const;
    /** Corrects the clock of a camera: its dates are shifted by so many seconds. */
    Q_INVOKABLE void setClockShift(const QString &camera, int seconds);
    /** The file of a picture is at another path now, because it was renamed. */
    Q_INVOKABLE void setPath(int id, const QString &path);
    /**
     * Shows only the pictures with these ids, and makes the first of them current if the current one is not among them.
     */
    Q_INVOKABLE void showOnly(const QVariantList &ids);
    /** Reverts showOnly(). */
    Q_INVOKABLE void showAll();
    /** The chosen rows, in the order shown. */
    Q_INVOKABLE QVariantList selectedIds() const;
    /** Chooses all rows. */
    Q_INVOKABLE void selectAll() override { QTableView::selectAll(); }
    /** Moves the current row by @p rows; stops at the ends. */
    Q_INVOKABLE void step(int rows);
    Q_INVOKABLE void selectId(int id);
    /**
     * {id, path, name, type (in words), bytes (-1 unknown), width, height (upright; 0 for an unreadable picture),
     * orientation, problem (why it could not be read; else empty)}. Waits for the file's header if necessary. Null for
     * an unknown id.
     */
    Q_INVOKABLE QVariant photo(int id);
    Q_INVOKABLE void setPlan(int id, const QString &newName, const QString &newSize);
    /** @param kind  "none", "waiting", "planned", "busy", "good", "bad" or "caution" */
    Q_INVOKABLE void setStatus(int id, const QString &kind, const QString &text, const QString &detail);
    /** The new names of many pictures, without sizes. Raises a RangeError if there is not one for each. */
    Q_INVOKABLE void setNewNames(const QVariantList &ids, const QStringList &newNames);
    /** The same status for many pictures; see setStatus(). */
    Q_INVOKABLE void setStatuses(const QVariantList &ids, const QString &kind, const QString &text,
                                 const QString &detail);
    /** {newName, newSize, kind, status} as the list shows them; null for an unknown id. */
    Q_INVOKABLE QVariant shown(int id) const;
    /** Of all rows, not only of those in view; "settled" tells when they are known. */
    Q_INVOKABLE void readProperties();
    Q_INVOKABLE void forget(int id);
    /**
     * The files that a run made of a picture, set after its status: they are dragged and copied as long as that stays.
     */
    Q_INVOKABLE void setResults(int id, const QStringList &paths);
    /** For the chosen rows: the files made of them, or the originals if there are none. */
    Q_INVOKABLE QStringList chosenFiles() const;
    /** Copies them to the clipboard, to be pasted into folders, mail and browsers. Returns how many. */
    Q_INVOKABLE int copyFiles();
    /** Scrolls to the row, unless the user is working in the list. */
    Q_INVOKABLE void reveal(int id);

Q_SIGNALS:
    void countChanged(int count);
    /** The order of the pictures changed. */
    void orderChanged();
    void ticksChanged();
    void ratingsChanged();
    void leastRatingChanged(int stars);
    /** The clocks of cameras were set. */
    void clocksChanged();
    void currentPictureChanged(int id);
    void largePreviewRequested();
    void propertyColumnsChanged();
    void filterChanged();
    /** Columns and filters should be chosen. */
    void propertiesRequested();
    /**
     * Properties by which the list is sorted or filtered were read for so many pictures; the same number twice at the
     * end.
     */
    void propertiesProgress(int done, int count);
    /** So many files were copied to the clipboard. */
    void copied(int count);
    void layoutChanged();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void prepareHeader();
    void arrangeColumns();
    void showColumns();
    bool isShown(size_t column) const;
    void chooseDispensable();
    int numbersWidth(size_t column) const;
    int fixedWidth(size_t column) const;
    int leastWidth(size_t column) const;
    void layOutAsFirst();
    void columnsChanged();
    void addColumnEntries(QMenu &menu);
    void addRatingEntries(QMenu &menu);
    void addPropertyEntries(QMenu &menu);
    bool arePropertiesRead() const;
    bool needsAllProperties() const;
    void wantProperties();
    void loadProperties();
    void filterAgain();
    QString propertyHeading(const QString &name) const;
    void rated();
    void chooseColumn(size_t column, bool on);
    void choose(const QModelIndex &index);
    void noteSorting(int column);
    bool isReadFor(int column) const;
    bool pressTick(const QMouseEvent &event);
    void tick(const std::vector<int> &rows, bool on);
    void loadSlice();
    void loadVisible();
    void loadHeaders();
    void wakeLoader();
    QModelIndex shownIndex(int id) const;
    std::vector<int> rowsInOrder() const;
    void countTaken();
    void rowsChanged();
    /** Keeps a row current as long as there is one. */
    void chooseSomeRow();

    PictureModel m_model;
    PictureOrder m_order;
    ListEdits m_edits;
    QTimer m_loader;
    int m_headersUpTo = 0;
    int m_propertiesUpTo = 0;
    QStringList m_propertyColumns;
    QVariantMap m_fieldNames;
    QElapsedTimer m_sinceProgress; ///< was reported while the list was filtered
    bool m_isReadingProperties = false;
    bool m_wantsAllProperties = false; ///< since readProperties(), until they are read
    bool m_busy = false;
    bool m_resortPending = false;
    bool m_arranging = false;
    int m_taken = 0;           ///< rows that the action accepts
    int m_tickedCount = 0;     ///< of them
    int m_belowRating = 0;     ///< rows that it would accept but for their rating
    bool m_hasRatings = false; ///< some row has one
    bool m_keysRate = true;
    bool m_hasFolders = false;       ///< they are in several folders
    QList<int> m_leftOut;            ///< columns for which there is no room
    std::vector<bool> m_columnShown; ///< of those that setColumns() named
    bool m_columnsChosen = false;    ///< by hand; then their widths are not adjusted
    QHash<int, bool> m_wanted;       ///< columns that the user shows or hides regardless of the room
};

} // namespace window
