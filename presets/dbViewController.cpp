#include "presets/dbViewController.h"

#include "platform/disk/folders.h"
#include "platform/foundation/log.h"
#include "platform/foundation/paths.h"
#include "platform/foundation/raised.h"
#include "presets/layout.h"
#include "presets/seeding.h"
#include "presets/statements.h"

#include <QFile>

#include <algorithm>

namespace {

/** At most so many connections are left open; otherwise a long run would exhaust the file handles. */
constexpr size_t mostLeftOpen = 16;

constexpr int bytesOfGroup = 4;

const QString presetsTable = QStringLiteral("Presets");
const QString resourceTable = QStringLiteral("AppResource");
const QString bookmarksTable = QStringLiteral("AppBookmarks");
/** The same table; the database ignores the case of letters. */
const QString bookmarksTableOfSeed = QStringLiteral("AppBookMarks");

/** Requires a list of 62 texts; otherwise nothing happens. */
void demandFields(const QStringList &list, const QString &name)
{
    if (list.size() != presets::fieldCount)
        throw platform::Raised::typeError(QStringLiteral("Expected a list of %1 texts for %2 but received %3")
                                              .arg(presets::fieldCount)
                                              .arg(name)
                                              .arg(list.size()));
    if (std::any_of(list.begin(), list.end(), [](const QString &text) { return text.isNull(); }))
        throw platform::Raised::typeError(QStringLiteral("Expected text for %1 but received null").arg(name));
}

/** "<48656c6c 6f>" */
QString described(const QByteArray &data)
{
    QByteArrayList groups;
    for (qsizetype i = 0; i < data.size(); i += bytesOfGroup)
        groups.append(data.mid(i, bytesOfGroup).toHex());
    return u'<' + QString::fromLatin1(groups.join(' ')) + u'>';
}

QString joinedFields(const presets::Prepared &row)
{
    QStringList fields;
    for (int field = 0; field < presets::fieldCount; ++field)
        fields.append(row.text(field + 1));
    return fields.join(u'|');
}

} // namespace

dbViewController::dbViewController(QObject *parent) : QObject(parent) {}

bool dbViewController::open()
{
    const presets::Connection older = m_db;
    m_db = presets::Connection::open(dbFilePath());
    if (older.isOpen())
        m_leftOpen.push_back(older);
    if (m_leftOpen.size() > mostLeftOpen)
        m_leftOpen.pop_front();
    return m_db.isOpen();
}

void dbViewController::fail(const QString &description)
{
    m_db.close();
    throw platform::Raised::internalInconsistency(description);
}

QString dbViewController::dbFilePath() const
{
    const QString folder = platform::applicationSupportFolder() + QStringLiteral("/BrelmarkCom/");
    static_cast<void>(platform::makeFolder(folder)); // errors show when the file is opened
    return folder + QStringLiteral("QuorlinPS.sql");
}

void dbViewController::openmyPresetsDb()
{
    if (!open())
        fail(QStringLiteral("Presets Db failed to open."));
}

void dbViewController::createTableNamed(const QString &table, const QStringList &names)
{
    demandFields(names, QStringLiteral("names"));
    if (!m_db.execute(presets::createTable(table, names)))
        fail(QStringLiteral("Presets Table failed to create."));
}

void dbViewController::insertRecordIntoTableNamed(const QString &table, const QStringList &names,
                                                  const QStringList &values)
{
    demandFields(names, QStringLiteral("names"));
    demandFields(values, QStringLiteral("values"));
    openmyPresetsDb();
    if (!m_db.execute(presets::insertRecord(table, names, values)))
        fail(QStringLiteral("Error updating table."));
}

void dbViewController::linkToPresetsDB()
{
    const QString path = dbFilePath();
    const presets::Seeding others(platform::parentFolder(path));
    if (platform::itemExists(path))
        return;
    openmyPresetsDb();
    createTableNamed(presetsTable, presets::presetColumns());
    createTableNamed(resourceTable, presets::numberedColumns());
    createTableNamed(bookmarksTable, presets::numberedColumns());
    insertRecordIntoTableNamed(resourceTable, presets::numberedColumns(), presets::seedRow(QStringLiteral("appSys")));
    insertRecordIntoTableNamed(bookmarksTableOfSeed, presets::numberedColumns(),
                               presets::seedRow(QStringLiteral("myAppDestBookmark")));
    m_db.close();
}

void dbViewController::insertPreset(const QStringList &values)
{
    insertRecordIntoTableNamed(presetsTable, presets::presetColumns(), values);
    m_db.close();
}

void dbViewController::insertSortingPresetToDB01(const QStringList &values)
{
    insertPreset(values);
}

void dbViewController::insertHTMLPresetToDB01(const QStringList &values)
{
    insertPreset(values);
}

void dbViewController::insertSortingPresetToDB02(const QStringList &values)
{
    insertPreset(values);
}

void dbViewController::insertSortingPresetToDB()
{
    insertRecordIntoTableNamed(presetsTable, presets::presetColumns(), presets::sampleRow());
}

void dbViewController::getAllRowsFromTableNamed(const QString &table)
{
    open();
    {
        presets::Prepared rows = m_db.prepare(presets::selectAll(table));
        while (rows.step()) {
        }
    }
    m_db.close();
}

QString dbViewController::checkPresetNameFromTableNamed(const QString &table, const QString &column,
                                                        const QString &value)
{
    open();
    {
        presets::Prepared rows = m_db.prepare(presets::selectWhere(table, column, value));
        while (rows.step())
            m_presetExist = rows.text(1);
    }
    m_db.close();
    return m_presetExist;
}

platform::SharedTexts dbViewController::checkForActionType(const QString &table, const QString &column,
                                                           const QString &value)
{
    open();
    {
        presets::Prepared rows = m_db.prepare(presets::selectWhere(table, column, value));
        if (rows.isValid()) {
            m_presets = platform::SharedTexts::make();
            m_presetsToPass.empty();
        }
        while (rows.step()) {
            m_presets.append(joinedFields(rows));
            m_presetsToPass = m_presets;
        }
    }
    m_db.close();
    return m_presetsToPass;
}

QString dbViewController::removePresetFromDatabase(const QString &table, const QString &column, const QString &value)
{
    const bool isOpen = open();
    {
        presets::Prepared rows = m_db.prepare(presets::deleteWhere(table, column, value));
        if (isOpen && !rows.isValid())
            m_presetExist = QStringLiteral("preset not found");
        while (rows.step())
            m_presetExist = QStringLiteral("preset removed"); // a removal returns no rows
    }
    m_db.close();
    return m_presetExist;
}

void dbViewController::hSaveSecurityScopedBookmarks(const QByteArray &data)
{
    open();
    const presets::Statement insert = presets::insertImage();
    {
        presets::Prepared prepared = m_db.prepare(insert);
        if (prepared.isValid())
            prepared.bind(1, data);
        prepared.step();
    }
    // Run again without binding anything, so that the second row contains NULL.
    m_db.execute(insert);
}

QByteArray dbViewController::hGetBookMarkedFolders(const QString &table, const QString &columnA, const QString &valueA,
                                                   const QString &columnB, const QString &valueB,
                                                   const QString &selected)
{
    if (open()) {
        const presets::Statement select = presets::selectColumns(selected, table, {columnA, valueA}, {columnB, valueB});
        platform::logLine(QStringLiteral("SQL: ") + select.text);
        presets::Prepared rows = m_db.prepare(select);
        if (rows.isValid())
            platform::logLine(QStringLiteral("check 1"));
        while (rows.step()) {
            platform::logLine(QStringLiteral("check 2"));
            m_searchValue = rows.data(1);
            platform::logLine(QStringLiteral("check 4: ") + described(m_searchValue));
        }
    }
    m_db.close();
    return m_searchValue;
}

void dbViewController::SaveImagesToSql(const QByteArray &image, const QString &url)
{
    presets::Prepared insert = m_db.prepare(presets::insertImageOfUrl());
    if (!insert.isValid())
        return;
    insert.bind(1, url);
    insert.bind(2, image);
    insert.step();
}

QByteArray dbViewController::LoadImagesFromSql(const QString &url)
{
    presets::Prepared select = m_db.prepare(presets::selectImageOfUrl(url));
    return select.step() ? select.data(0) : QByteArray();
}
