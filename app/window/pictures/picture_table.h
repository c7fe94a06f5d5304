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
 * The list of input pictures, as windows show it and as scripts handle it. A picture is named by its id.
 *
 * Rows stay when another action works on the list; those that it does not take are hidden, and are then in none of the
 * counts and lists below. Sizes and thumbnails arrive from the event loop in slices of a few milliseconds, those of visible rows first.
 */
class PictureTable : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int currentId READ currentId NOTIFY currentPictureChanged)
    /** The place of the current picture in the list as it is shown, from 1; 0 where there is none. */
    Q_PROPERTY(int currentPlace READ currentPlace NOTIFY currentPictureChanged)
    /** Rows that failed are shown only; the current one is one of them where there is any. */
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
    /** False while the list is sorted by something that is still being read of some files. */
    Q_PROPERTY(bool settled READ isSettled NOTIFY orderChanged)
    /** The properties that stand in columns, by their names: those of offeredProperties(), or paths. At most eight; others are left out. */
    Q_PROPERTY(QStringList propertyColumns READ propertyColumns WRITE setPropertyColumns NOTIFY propertyColumnsChanged)
    /** Whether setFilter() hides any pictures that it does not take. */
    Q_PROPERTY(bool filtered READ isFiltered NOTIFY filterChanged)
    /** What the user did to the columns, as a text to be kept: their order and widths. Empty where nothing was done. */
    Q_PROPERTY(QString layout READ columnLayout WRITE setColumnLayout NOTIFY layoutChanged)
    /** The column by which the list is sorted, with a minus sign before it where the last comes first; empty for the order of adding. */
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
    bool sharesThumbnails() const { return m_model.sharesThumbnails(); }
    void setSharesThumbnails(bool shares) { m_model.setSharesThumbnails(shares); }
    bool isBusy() const { return m_busy; }
    /** While busy (a job runs) nothing is read in the background for rows that are not visible, and ticks stay as they are. */
    void setBusy(bool busy);
    QStringList propertyColumns() const { return m_propertyColumns; }
    void setPropertyColumns(const QStringList &names);
    bool isFiltered() const { return !m_order.input().filter.isEmpty(); }
    QString columnLayout() const;
    void setColumnLayout(const QString &layout);
    QString sorting() const;
    void setSorting(const QString &sorting);
    /** Whether not all words of a status can be read in the list. */
    bool isStatusCut(int id) const;

    /**
     * Says what the action takes: files with one of the extensions, or any file for "*", or folders and no files.
     */
    Q_INVOKABLE void setInput(const QStringList &extensions, bool folders);
    /** How many rows the action does not take. */
    Q_INVOKABLE int hiddenCount() const { return m_model.rowCount() - m_taken - m_belowRating; }
    /** The paths of these rows, in the order of adding. */
    Q_INVOKABLE QStringList hiddenPaths() const;
    /**
     * Shows these columns only: "thumbnail", "name", "folder", "taken", "camera", "rating", "pixels", "size", "type", "newName", "newSize",
     * "status". The folder is shown where the pictures lie in several, and what says least is left out where there is no room; the user
     * chooses otherwise.
     *
     * @param headings  other words for the heads of columns, by the same names
     * @param stressed  new names are what the list is about
     */
    Q_INVOKABLE void setColumns(const QStringList &columns, const QVariantMap &headings, bool stressed);

    /** What fields of metadata are called, by their names; what is not named there is a path, see jobs::propertyValues(). */
    Q_INVOKABLE void setFieldNames(const QVariantMap &words);
    /**
     * The properties that columns and filters can have: fields, what cameras usually say, and all that the current picture says: {name,
     * words}. Waits for the current picture.
     */
    Q_INVOKABLE QVariantList offeredProperties();
    /**
     * Shows pictures that fit only, and no action works on the others: {join: "all" or "any", rules: [{property, comparison, value}],
     * text}; an empty one shows all. The comparison is one of comparisonNamed(). Parts of the text, between blanks, have each to be in the
     * name or in one of the values. Pictures that nobody has read yet are not shown until they are.
     */
    Q_INVOKABLE void setFilter(const QVariantMap &filter);
    /** Adds the paths that are not in the list yet; returns how many those were. @p roots: the folders that were added. */
    Q_INVOKABLE int addPaths(const QStringList &paths, const QStringList &roots);
    /** Takes the chosen rows out; returns how many those were. */
    Q_INVOKABLE int removeSelected();
    /** Takes rows out because their files are gone: no edit that could be undone. */
    Q_INVOKABLE void removeIds(const QVariantList &ids);
    /** Takes all rows out, hidden ones too; returns how many those were. */
    Q_INVOKABLE int removeAll();
    /**
     * Moves the chosen rows by one place up (-1) or down (1), together; the order shown becomes that of adding. How many were moved: 0
     * where they stand at the end already, or where the list shows a part of itself.
     */
    Q_INVOKABLE int moveSelected(int by);
    /** Undoes the last of addPaths(), removeSelected(), removeAll() and moveSelected() that still stands; 100 of them are kept. */
    Q_INVOKABLE void undoEdit();
    /** Does again what was undone last. */
    Q_INVOKABLE void redoEdit();
    /** The path of the picture that is @p rows behind the current one, as the list is shown; empty beyond its ends. */
    Q_INVOKABLE QString pathBeside(int rows) const;
    /** The ids of all pictures, in the order shown; in the order of adding while a filter hides some. */
    Q_INVOKABLE QVariantList ids() const;
    /** The paths of all pictures, in the order of ids(). */
    Q_INVOKABLE QStringList paths() const;
    /** Of these, the pictures that are ticked. */
    Q_INVOKABLE QVariantList tickedIds() const;
    Q_INVOKABLE QStringList tickedPaths() const;
    /** The pictures that are not. */
    Q_INVOKABLE QVariantList untickedIds() const;
    /** Unticks the chosen rows, or ticks them where none of them is ticked. */
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
     * is empty for pictures that state none. Those that nobody has read yet are not counted.
     */
    Q_INVOKABLE QVariantList cameras() const;
    /** Sets the clock of a camera right: its dates are told later by so many seconds. */
    Q_INVOKABLE void setClockShift(const QString &camera, int seconds);
    /** The file of a picture is at another path now, because it was renamed. */
    Q_INVOKABLE void setPath(int id, const QString &path);
    /** Shows the pictures with these ids only, and the first of them as the current one if the current one is not among them. */
    Q_INVOKABLE void showOnly(const QVariantList &ids);
    /** Takes back showOnly(). */
    Q_INVOKABLE void showAll();
    /** The chosen rows, in the order shown. */
    Q_INVOKABLE QVariantList selectedIds() const;
    /** Chooses all rows. */
    Q_INVOKABLE void selectAll() override { QTableView::selectAll(); }
    /** Moves the current row by @p rows; stays at the ends. */
    Q_INVOKABLE void step(int rows);
    Q_INVOKABLE void selectId(int id);
    /**
     * {id, path, name, type (in words), bytes (-1 unknown), width, height (upright; 0 for an unreadable picture),
     * orientation, problem (why whoever read it gave up; else empty)}. Waits for the file's header if need be. Null for an unknown id.
     */
    Q_INVOKABLE QVariant photo(int id);
    Q_INVOKABLE void setPlan(int id, const QString &newName, const QString &newSize);
    /** @param kind  "none", "waiting", "planned", "busy", "good", "bad" or "caution" */
    Q_INVOKABLE void setStatus(int id, const QString &kind, const QString &text, const QString &detail);
    /** {newName, newSize, kind, status} as the list shows them; null for an unknown id. */
    Q_INVOKABLE QVariant shown(int id) const;
    Q_INVOKABLE void forget(int id);
    /** The files that a run made of a picture, after its status: they are what is dragged and copied while it stays. */
    Q_INVOKABLE void setResults(int id, const QStringList &paths);
    /** Of the chosen rows: the files that were made of them, or where none were they themselves. */
    Q_INVOKABLE QStringList chosenFiles() const;
    /** Puts these on the clipboard, to be pasted into folders, mail and browsers. How many they are. */
    Q_INVOKABLE int copyFiles();
    /** Scrolls so that the row can be seen, unless the user works in the list. */
    Q_INVOKABLE void reveal(int id);

Q_SIGNALS:
    void countChanged(int count);
    /** The pictures are shown in another order. */
    void orderChanged();
    void ticksChanged();
    void ratingsChanged();
    void leastRatingChanged(int stars);
    /** Clocks of cameras were set. */
    void clocksChanged();
    void currentPictureChanged(int id);
    void largePreviewRequested();
    void propertyColumnsChanged();
    void filterChanged();
    /** Columns and filters are to be chosen. */
    void propertiesRequested();
    /** Properties that the list is sorted or filtered by were read of so many pictures; the same number twice at the end. */
    void propertiesProgress(int done, int count);
    /** Files of so many rows were put on the clipboard. */
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
    int fixedWidth(size_t column) const;
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
    QElapsedTimer m_sinceProgress; ///< was told, and the list was filtered
    bool m_isReadingProperties = false;
    bool m_busy = false;
    bool m_resortPending = false;
    bool m_arranging = false;
    int m_taken = 0;           ///< rows that the action takes
    int m_tickedCount = 0;     ///< of them
    int m_belowRating = 0;     ///< rows that it would take, but for their rating
    bool m_hasRatings = false; ///< some row has one
    bool m_keysRate = true;
    bool m_hasFolders = false;       ///< they lie in several folders
    QList<int> m_leftOut;            ///< columns that there is no room for
    std::vector<bool> m_columnShown; ///< of those that setColumns() named
    bool m_columnsChosen = false;    ///< by hand; then their widths are left alone
    QHash<int, bool> m_wanted;       ///< columns that the user shows or hides, whatever the room
};

} // namespace window
