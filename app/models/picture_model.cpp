#include "app/models/picture_model.h"

#include "image/services/format_words.h"
#include "jobs/camera_clocks.h"
#include "jobs/reading/field_errand.h"
#include "jobs/records/picture_ratings.h"

#include "platform/foundation/human_texts.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace window {

namespace {
constexpr int keptThumbnails = 800;

/** The added folder that holds @p path: the innermost, where one is inside another. */
QString rootOf(const QString &path, const QStringList &roots)
{
    QString found;
    for (const QString &root : roots)
        if (root.size() > found.size() && (root == QLatin1String("/") || path.startsWith(root + u'/')))
            found = root;
    return found;
}

/** Where a picture is, starting at the folder that was added. */
QString folderText(const PictureRow &row)
{
    const QString folder = row.path.left(row.path.lastIndexOf(u'/'));
    const QString top = row.root.isEmpty() ? folder : row.root;
    return folder.mid(top.lastIndexOf(u'/') + 1);
}

bool isProperty(int column)
{
    return column >= PictureModel::FirstProperty && column <= PictureModel::LastProperty;
}

QString cellText(const PictureRow &row, int column)
{
    const QString none = QStringLiteral("–");
    switch (column) {
    case PictureModel::Name:
        return row.name;
    case PictureModel::Folder:
        return folderText(row);
    case PictureModel::Taken:
        return platform::localDateText(row.taken);
    case PictureModel::Camera:
        return row.camera;
    case PictureModel::Rating:
        return QString(row.rating, QChar(u'★'));
    case PictureModel::Pixels:
        return row.pixels.isEmpty() ? (row.headerRead ? none : QString()) : image::pixelText(row.pixels);
    case PictureModel::Bytes:
        return row.bytes < 0 ? none : platform::localByteCountText(row.bytes);
    case PictureModel::Type:
        return row.type;
    case PictureModel::NewName:
        return row.newName;
    case PictureModel::NewSize:
        return row.newSize;
    case PictureModel::Status:
        return row.status;
    default:
        return {};
    }
}
} // namespace

QString PictureModel::thumbnailWords(const PictureRow &row)
{
    return row.isTicked ? tr("Thumbnail of %1").arg(row.name)
                        : tr("Thumbnail of %1, left out of the run").arg(row.name);
}

bool InputRule::takesKindOf(const PictureRow &row) const
{
    if (row.isFolder || folders)
        return row.isFolder && folders;
    const qsizetype dot = row.name.lastIndexOf(QLatin1Char('.'));
    return anyFile || (dot > 0 && extensions.contains(row.name.mid(dot + 1).toLower()));
}

PictureModel::PictureModel(QObject *parent) : QAbstractTableModel(parent), m_thumbnails(keptThumbnails) {}

int PictureModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int PictureModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PictureModel::data(const QModelIndex &index, int role) const
{
    const PictureRow &row = m_rows[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return isProperty(index.column()) ? row.properties.value(propertyOf(index.column())).words
                                          : cellText(row, index.column());
    case Qt::AccessibleTextRole:
        if (isProperty(index.column()))
            return data(index, Qt::DisplayRole);
        if (index.column() == Rating)
            return row.rating == 0 ? QString() : tr("%n stars", nullptr, row.rating);
        return index.column() == Thumbnail ? thumbnailWords(row) : cellText(row, index.column());
    case Qt::ToolTipRole:
        if (isProperty(index.column()))
            return data(index, Qt::DisplayRole);
        if (index.column() == Pixels && !row.problem.isEmpty())
            return row.problem;
        if (index.column() == Taken && row.taken != row.stated)
            return tr("%1 according to the camera clock").arg(platform::localDateText(row.stated));
        if (index.column() == Status)
            return row.detail.isEmpty() ? row.status : row.detail;
        return index.column() == NewName ? row.newName : QDir::toNativeSeparators(row.path);
    default:
        return {};
    }
}

Qt::ItemFlags PictureModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | (index.isValid() ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QList<int> PictureModel::order() const
{
    QList<int> ids;
    for (const PictureRow &row : m_rows)
        ids.append(row.id);
    return ids;
}

void PictureModel::setOrder(const QList<int> &ids)
{
    QHash<int, int> places;
    for (const int id : ids)
        places.insert(id, int(places.size()));
    const auto place = [&](const PictureRow &row) { return places.value(row.id, int(ids.size())); };
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QList<int> idsBefore;
    for (const QModelIndex &index : before)
        idsBefore.append(m_rows[size_t(index.row())].id);
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [&](const PictureRow &a, const PictureRow &b) { return place(a) < place(b); });
    rebuildIndex();
    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i)
        after.append(createIndex(indexOfId(idsBefore[i]), before[i].column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

QVariant PictureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    // A heading that is cut off is shown in full in its tooltip.
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    if (isProperty(section))
        return m_propertyHeadings.value(propertyOf(section));
    if (m_headings.contains(section))
        return m_headings.value(section);
    switch (section) {
    case Name:
        return tr("Name");
    case Folder:
        return tr("Folder");
    case Taken:
        return tr("Date taken");
    case Camera:
        return tr("Camera");
    case Rating:
        return tr("Rating");
    case Pixels:
        return tr("Pixels");
    case Bytes:
        return tr("Size");
    case Type:
        return tr("Type");
    case NewName:
        return tr("New name");
    case NewSize:
        return tr("New size");
    case Status:
        return tr("Status");
    default:
        return QString();
    }
}

int PictureModel::add(const QStringList &paths, const QStringList &roots)
{
    std::vector<PictureRow> fresh;
    for (const QString &path : paths) {
        if (m_idOfPath.contains(path))
            continue;
        PictureRow row;
        row.id = m_nextId++;
        row.path = path;
        row.name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
        row.root = rootOf(path, roots);
        row.isFolder = QFileInfo(path).isDir();
        row.type = row.isFolder ? tr("Folder") : image::typeWord(image::typeOfName(row.name));
        row.bytes = image::fileBytes(path);
        row.rating = jobs::PictureRatings::ofProcess().of(path);
        m_idOfPath.insert(path, row.id);
        fresh.push_back(std::move(row));
    }
    if (fresh.empty())
        return 0;
    const int first = int(m_rows.size());
    beginInsertRows({}, first, first + int(fresh.size()) - 1);
    for (PictureRow &row : fresh) {
        m_indexOfId.insert(row.id, int(m_rows.size()));
        m_rows.push_back(std::move(row));
    }
    endInsertRows();
    return int(fresh.size());
}

void PictureModel::setHeadings(const QHash<int, QString> &headings)
{
    m_headings = headings;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

std::vector<PlacedRow> PictureModel::takeIds(const QList<int> &ids)
{
    const QSet<int> gone(ids.begin(), ids.end());
    return takeWhere([&gone](const PictureRow &row) { return gone.contains(row.id); });
}

std::vector<PlacedRow> PictureModel::takeAll()
{
    return takeWhere([](const PictureRow &) { return true; });
}

std::vector<PlacedRow> PictureModel::takeWhere(const std::function<bool(const PictureRow &)> &isTaken)
{
    std::vector<PlacedRow> taken;
    std::vector<PictureRow> kept;
    beginResetModel();
    for (size_t i = 0; i < m_rows.size(); ++i) {
        if (!isTaken(m_rows[i])) {
            kept.push_back(std::move(m_rows[i]));
            continue;
        }
        m_idOfPath.remove(m_rows[i].path);
        m_thumbnails.remove(m_rows[i].id);
        dropReading(m_rows[i].id);
        forgetProperties(m_rows[i]);
        taken.push_back({int(i), std::move(m_rows[i])});
    }
    m_rows = std::move(kept);
    rebuildIndex();
    endResetModel();
    return taken;
}

void PictureModel::putBack(const std::vector<PlacedRow> &rows)
{
    std::vector<PictureRow> all;
    size_t next = 0;
    beginResetModel();
    for (const PlacedRow &each : rows) {
        while (next < m_rows.size() && int(all.size()) < each.place)
            all.push_back(std::move(m_rows[next++]));
        if (m_idOfPath.contains(each.row.path))
            continue;
        PictureRow row;
        row.id = each.row.id;
        row.path = each.row.path;
        row.name = each.row.name;
        row.root = each.row.root;
        row.isFolder = each.row.isFolder;
        row.type = each.row.type;
        row.bytes = each.row.bytes;
        row.isTicked = each.row.isTicked;
        m_idOfPath.insert(row.path, row.id);
        all.push_back(std::move(row));
    }
    while (next < m_rows.size())
        all.push_back(std::move(m_rows[next++]));
    m_rows = std::move(all);
    rebuildIndex();
    endResetModel();
}

const PictureRow &PictureModel::withHeader(int index)
{
    const PictureRow &row = m_rows[size_t(index)];
    if (!row.headerRead && !row.isFolder)
        takeHeader(row.id, KnownPictures::ofProcess().now(row.path));
    return row;
}

void PictureModel::wantHeader(int index, jobs::Urgency urgency)
{
    const PictureRow &row = m_rows[size_t(index)];
    const int id = row.id;
    if (row.headerRead || row.isFolder || m_headers.contains(id))
        return;
    if (const auto known = KnownPictures::ofProcess().find(row.path)) {
        takeHeader(id, *known);
        return;
    }
    m_headers.insert(
        id, KnownPictures::ofProcess().ask(m_reader, row.path, urgency, [this, id](const KnownPicture &picture) {
            m_headers.remove(id);
            takeHeader(id, picture);
            Q_EMIT headerArrived(id);
        }));
}

void PictureModel::takeHeader(int id, const KnownPicture &picture)
{
    const int index = indexOfId(id);
    if (index < 0)
        return;
    PictureRow &row = m_rows[size_t(index)];
    row.headerRead = true;
    row.bytes = image::fileBytes(row.path);
    row.problem = picture.problem;
    row.isReaderGone = picture.isReaderGone;
    row.pixels = picture.pixels;
    row.orientation = picture.orientation;
    row.stated = picture.facts.taken;
    row.taken = jobs::CameraClocks::ofProcess().corrected(picture.facts).taken;
    row.camera = picture.facts.camera;
    if (!picture.type.isEmpty())
        row.type = image::typeWord(picture.type);
    changed(index, Taken, Type);
}

void PictureModel::setTicked(int index, bool on)
{
    m_rows[size_t(index)].isTicked = on;
    changed(index, Thumbnail, Status);
}

void PictureModel::setRating(int index, int stars)
{
    PictureRow &row = m_rows[size_t(index)];
    row.rating = stars;
    jobs::PictureRatings::ofProcess().set(row.path, stars);
    changed(index, Rating, Rating);
}

void PictureModel::clocksChanged()
{
    platform::PictureFacts facts;
    for (PictureRow &row : m_rows) {
        facts.taken = row.stated;
        facts.camera = row.camera;
        row.taken = jobs::CameraClocks::ofProcess().corrected(facts).taken;
    }
    if (!m_rows.empty())
        Q_EMIT dataChanged(createIndex(0, Taken), createIndex(rowCount() - 1, Taken));
}

void PictureModel::setPath(int index, const QString &path)
{
    PictureRow &row = m_rows[size_t(index)];
    // During a swap two rows briefly have the same path; the later one owns it.
    if (m_idOfPath.value(row.path) == row.id) {
        m_idOfPath.remove(row.path);
        jobs::PictureRatings::ofProcess().set(row.path, 0);
    }
    row.path = path;
    jobs::PictureRatings::ofProcess().set(path, row.rating);
    row.name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    m_idOfPath.insert(path, row.id);
    changed(index, Name, Folder);
}

void PictureModel::setPlan(int index, const QString &newName, const QString &newSize)
{
    PictureRow &row = m_rows[size_t(index)];
    if (row.newName == newName && row.newSize == newSize)
        return;
    row.newName = newName;
    row.newSize = newSize;
    changed(index, NewName, NewSize);
}

void PictureModel::setStatus(int index, StatusKind kind, const QString &text, const QString &detail)
{
    PictureRow &row = m_rows[size_t(index)];
    const QString status = text.left(1).toUpper() + text.mid(1);
    if (row.kind == kind && row.status == status && row.detail == detail)
        return;
    row.kind = kind;
    if (kind != StatusKind::Good)
        row.results.clear();
    row.status = status;
    row.detail = detail;
    changed(index, NewName, Status); // a long reason covers the columns before it
}

QPixmap PictureModel::thumbnail(int index) const
{
    const QPixmap *found = m_thumbnails.object(row(index).id);
    return found ? *found : QPixmap();
}

void PictureModel::wantThumbnail(int index, QSize devicePixels)
{
    const PictureRow &row = m_rows[size_t(index)];
    const int id = row.id;
    if (row.thumbnailTried || row.isFolder || m_thumbnailAsks.contains(id))
        return;
    askForThumbnail(id, thumbnailAsk(row.path, row.pixels, devicePixels, m_sharesThumbnails));
}

void PictureModel::askForThumbnail(int id, const ThumbnailAsk &ask)
{
    const auto take = [this, id, ask](const jobs::ReadResult &result) {
        m_thumbnailAsks.remove(id);
        if (result.image.isNull() && ask.shared) { // cached thumbnails of other programs may be damaged, or gone by now
            askForThumbnail(id, thumbnailAsk(ask.path, ask.pixels, ask.wanted, false));
            return;
        }
        takeThumbnail(id, result, ask);
        Q_EMIT thumbnailArrived(id);
    };
    m_thumbnailAsks.insert(id, m_reader.ask(ask.request(), jobs::Urgency::Now, take));
}

void PictureModel::takeThumbnail(int id, const jobs::ReadResult &result, const ThumbnailAsk &ask)
{
    const int index = indexOfId(id);
    if (index < 0)
        return;
    PictureRow &row = m_rows[size_t(index)];
    row.thumbnailTried = result.image.isNull();
    if (row.thumbnailTried)
        return;
    m_thumbnails.insert(id, new QPixmap(QPixmap::fromImage(ask.thumbnailFrom(result))));
    if (ask.isWorthKeeping(result)) // later, because compressing takes time
        QMetaObject::invokeMethod(
            this,
            [ask, image = result.image] {
                // Nobody waits for this: if the disk is full, other programs miss a thumbnail and the user misses
                // nothing.
                (void)platform::writeSharedThumbnail(*ask.shared, ask.path, image, ask.pixels);
            },
            Qt::QueuedConnection);
    changed(index, Thumbnail, Thumbnail);
}

void PictureModel::forgetProperties(PictureRow &row)
{
    m_propertiesRead -= row.propertiesRead ? 1 : 0;
    row.propertiesRead = false;
    row.propertiesOld = false;
    row.properties.clear();
}

void PictureModel::setWantedProperties(const QStringList &names)
{
    if (names == m_wantedProperties)
        return;
    m_wantedProperties = names;
    const QList<int> asked = m_propertyAsks.keys();
    for (const int id : asked)
        m_reader.drop(m_propertyAsks.take(id));
    for (PictureRow &row : m_rows)
        forgetProperties(row);
}

void PictureModel::setPropertyColumns(const QStringList &names, const QHash<QString, QString> &headings)
{
    m_propertyColumns = names.mid(0, LastProperty - FirstProperty + 1);
    m_propertyHeadings = headings;
    Q_EMIT headerDataChanged(Qt::Horizontal, FirstProperty, LastProperty);
}

void PictureModel::wantProperties(int index, jobs::Urgency urgency)
{
    const PictureRow &row = m_rows[size_t(index)];
    const int id = row.id;
    if ((row.propertiesRead && !row.propertiesOld) || row.isFolder || m_wantedProperties.isEmpty() ||
        m_propertyAsks.contains(id))
        return;
    QVariantMap asked = jobs::askingFields(row.path);
    asked.insert(QStringLiteral("names"), m_wantedProperties);
    m_propertyAsks.insert(id, m_reader.ask({jobs::Reading::Values, row.path, asked}, urgency,
                                           [this, id](const jobs::ReadResult &result) { takeProperties(id, result); }));
}

void PictureModel::takeProperties(int id, const jobs::ReadResult &result)
{
    m_propertyAsks.remove(id);
    const int index = indexOfId(id);
    if (index < 0)
        return;
    PictureRow &row = m_rows[size_t(index)];
    row.properties = listedValues(result.value("values").toMap());
    m_propertiesRead += row.propertiesRead ? 0 : 1;
    row.propertiesOld = false;
    row.propertiesRead = true; // also for an unreadable one, which has no values
    changed(index, FirstProperty, LastProperty);
    Q_EMIT propertiesArrived(id);
}

void PictureModel::dropThumbnailsBut(const QSet<int> &ids)
{
    const QList<int> asked = m_thumbnailAsks.keys();
    for (const int id : asked)
        if (!ids.contains(id))
            m_reader.drop(m_thumbnailAsks.take(id));
}

void PictureModel::dropReading(int id)
{
    m_reader.drop(m_headers.take(id));
    m_reader.drop(m_thumbnailAsks.take(id));
    m_reader.drop(m_propertyAsks.take(id));
}

void PictureModel::forget(int index)
{
    PictureRow &row = m_rows[size_t(index)];
    dropReading(row.id);
    row.headerRead = false;
    row.thumbnailTried = false;
    row.propertiesOld = true; // and they count until they are read again: a row does not disappear and return
    m_thumbnails.remove(row.id);
    changed(index, Thumbnail, Type);
}

void PictureModel::changed(int index, Column first, Column last)
{
    Q_EMIT dataChanged(createIndex(index, first), createIndex(index, last));
}

void PictureModel::rebuildIndex()
{
    m_indexOfId.clear();
    for (size_t i = 0; i < m_rows.size(); ++i)
        m_indexOfId.insert(m_rows[i].id, int(i));
}

} // namespace window
