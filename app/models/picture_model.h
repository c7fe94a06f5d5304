#pragma once

#include "app/models/property_filter.h"
#include "app/reading/known_pictures.h"
#include "app/reading/thumbnails.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QDateTime>
#include <QHash>
#include <QPixmap>
#include <QSet>
#include <QSize>

#include <functional>
#include <vector>

namespace window {

/** How a status is drawn; its words say the same. */
enum class StatusKind { None, Waiting, Planned, Busy, Good, Bad, Caution };

/** One picture of the list. */
struct PictureRow
{
    int id = 0; ///< stays the same while rows come and go
    QString path;
    QString name;
    QString root; ///< the folder that was added and that it was found in; empty for a file that was added itself
    bool isFolder = false;
    QString type; ///< in words, from the extension until the header was read
    qint64 bytes = -1;
    QSize pixels; ///< upright; null while unknown and if the file is no readable picture
    int orientation = 1;
    bool headerRead = false;
    bool thumbnailTried = false; ///< and it cannot be made
    QString problem;             ///< why it cannot be read as a picture
    bool isReaderGone = false;   ///< because the process that read it crashed, or was stopped
    QDateTime stated;            ///< when it was taken, by the camera's clock; not valid where the file states none
    QDateTime taken;             ///< the same by the corrected clock
    QString camera;              ///< empty where the file states none
    int rating = 0;              ///< stars, 1 to 5; 0 for none
    ListedValues properties;     ///< of the wanted ones
    bool propertiesRead = false;
    bool propertiesOld = false; ///< the file was written meanwhile
    bool isTicked = true;       ///< runs include it
    QStringList results;        ///< the files that a run made of it, as long as the row says so
    QString newName;
    QString newSize;
    StatusKind kind = StatusKind::None;
    QString status;
    QString detail; ///< everything known about the status, for the tooltip
};

/** A row and its position among the others. */
struct PlacedRow
{
    int place = 0;
    PictureRow row;
};

/** Which rows an action works on. */
struct InputRule
{
    bool folders = false;     ///< folders, and no files
    bool anyFile = true;      ///< files of any kind
    QSet<QString> extensions; ///< in lower case, unless any file is accepted
    int leastRating = 0;      ///< the user wants to see no others
    PropertyFilter filter;    ///< nor those that it does not accept; what is not read yet is not accepted

    /** The kind of file is one that the action works on. */
    bool takesKindOf(const PictureRow &row) const;
    bool takes(const PictureRow &row) const
    {
        return takesKindOf(row) && row.rating >= leastRating &&
               (filter.isEmpty() || ((row.isFolder || row.propertiesRead) && filter.takes(row.name, row.properties)));
    }
};

/** The input list. Cells are plain text; thumbnails are kept for a few hundred rows only. */
class PictureModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Thumbnail,
        Name,
        Folder,
        Taken,
        Camera,
        Rating,
        Pixels,
        Bytes,
        Type,
        FirstProperty, ///< properties chosen by the user
        LastProperty = FirstProperty + 7,
        NewName,
        NewSize,
        Status,
        ColumnCount
    };

    explicit PictureModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /**
     * Appends the paths that are not in the list yet, in order; returns how many were new. @p roots: the folders that
     * were added.
     */
    int add(const QStringList &paths, const QStringList &roots = {});
    /** Other titles for columns; those without one keep their own. */
    void setHeadings(const QHash<int, QString> &headings);
    /** New names are what the list is about, and are drawn prominently. */
    bool stressesNewNames() const { return m_stressesNewNames; }
    void setStressesNewNames(bool on) { m_stressesNewNames = on; }
    /** Takes rows out and returns them, the upper ones first; unknown ids are ignored. */
    std::vector<PlacedRow> takeIds(const QList<int> &ids);
    std::vector<PlacedRow> takeAll();
    /**
     * Puts rows back in their former places as if just added; one whose path has been added again meanwhile is left
     * out.
     */
    void putBack(const std::vector<PlacedRow> &rows);

    const PictureRow &row(int index) const { return m_rows[size_t(index)]; }
    /** -1 where no row has that id. */
    int indexOfId(int id) const { return m_indexOfId.value(id, -1); }

    /** With size and type; waits for them if the file has not been read yet. */
    const PictureRow &withHeader(int index);
    /** Requests that they are read; headerArrived() reports them, from the event loop unless they are known already. */
    void wantHeader(int index, jobs::Urgency urgency);
    /** Which properties are read for rows, by name; values of others are dropped. */
    void setWantedProperties(const QStringList &names);
    const QStringList &wantedProperties() const { return m_wantedProperties; }
    /** Which of them have columns, at most as many as there are, and their titles. */
    void setPropertyColumns(const QStringList &names, const QHash<QString, QString> &headings);
    /** The property of a column; empty if it has none. */
    QString propertyOf(int column) const { return m_propertyColumns.value(column - FirstProperty); }
    /** Requests that the wanted ones are read; propertiesArrived() reports them, from the event loop. */
    void wantProperties(int index, jobs::Urgency urgency);
    int propertiesInWork() const { return int(m_propertyAsks.size()); }
    /** For how many rows they were read. */
    int propertiesRead() const { return m_propertiesRead; }

    /** The file of the row is at another path now; everything known about it stays. */
    void setPath(int index, const QString &path);
    void setPlan(int index, const QString &newName, const QString &newSize);
    /** @param text  shown with a capital, whatever it begins with: it may be part of a sentence elsewhere */
    void setStatus(int index, StatusKind kind, const QString &text, const QString &detail);

    /** The files that a run made of it; setStatus() to anything but a good one forgets them. */
    void setResults(int index, const QStringList &paths) { m_rows[size_t(index)].results = paths; }
    /** The ids of all rows, in the order of adding. */
    QList<int> order() const;
    /** Puts the rows in another order; ids that are not listed come last. */
    void setOrder(const QList<int> &ids);
    /** Whether runs include the row. */
    void setTicked(int index, bool on);
    /** @param stars  0 to 5 */
    void setRating(int index, int stars);
    /** The clocks of cameras were set: updates all dates. See jobs::CameraClocks. */
    void clocksChanged();

    bool hasThumbnail(int index) const { return m_thumbnails.contains(row(index).id); }
    QPixmap thumbnail(int index) const;
    /**
     * Requests one of that many screen pixels; thumbnailArrived() reports it. One that cannot be made is not tried
     * again.
     */
    void wantThumbnail(int index, QSize devicePixels);
    /** Whether thumbnails are read from and written to the cache that the programs of a desktop share. */
    bool sharesThumbnails() const { return m_sharesThumbnails; }
    void setSharesThumbnails(bool shares) { m_sharesThumbnails = shares; }
    /** Withdraws all requests except those for these rows. */
    void dropThumbnailsBut(const QSet<int> &ids);
    /** How much is being read. */
    int headersInWork() const { return int(m_headers.size()); }
    int thumbnailsInWork() const { return int(m_thumbnailAsks.size()); }
    /** Forgets sizes, thumbnails and types, because the file was written. */
    void forget(int index);

Q_SIGNALS:
    void headerArrived(int id);
    void thumbnailArrived(int id);
    void propertiesArrived(int id);

private:
    static QString thumbnailWords(const PictureRow &row);
    void takeHeader(int id, const KnownPicture &picture);
    void askForThumbnail(int id, const ThumbnailAsk &ask);
    void takeThumbnail(int id, const jobs::ReadResult &result, const ThumbnailAsk &ask);
    void takeProperties(int id, const jobs::ReadResult &result);
    void forgetProperties(PictureRow &row);
    void dropReading(int id);
    void changed(int index, Column first, Column last);
    void rebuildIndex();
    std::vector<PlacedRow> takeWhere(const std::function<bool(const PictureRow &)> &isTaken);

    std::vector<PictureRow> m_rows;
    QHash<QString, int> m_idOfPath;
    QHash<int, int> m_indexOfId;
    QCache<int, QPixmap> m_thumbnails;
    QHash<int, jobs::Reader::Number> m_headers; ///< being read, by id
    QHash<int, jobs::Reader::Number> m_thumbnailAsks;
    QHash<int, jobs::Reader::Number> m_propertyAsks;
    QStringList m_wantedProperties;
    QStringList m_propertyColumns;
    QHash<QString, QString> m_propertyHeadings;
    int m_propertiesRead = 0;
    bool m_sharesThumbnails = false;
    QHash<int, QString> m_headings;
    bool m_stressesNewNames = false;
    int m_nextId = 1;
    jobs::Reader m_reader; ///< declared before the members that its answers change
};

} // namespace window
