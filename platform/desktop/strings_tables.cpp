#include "platform/desktop/strings_tables.h"

#include "platform/disk/folders.h"
#include "platform/file/atomic_file.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace platform {
namespace {

using Table = QHash<QString, QString>;

struct Tables
{
    QString folder;
    QString language = QStringLiteral("en");
    QHash<QString, Table> read; ///< by name
};

Tables &tables()
{
    static Tables all;
    return all;
}

/** A name that cannot escape from the folder. */
bool isName(const QString &name)
{
    const auto isAllowed = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'-' ||
               c == u'_';
    };
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), isAllowed);
}

Table readTable(const QString &path)
{
    Table table;
    const QJsonObject texts = QJsonDocument::fromJson(readFile(path).value_or(QByteArray())).object();
    for (auto entry = texts.begin(); entry != texts.end(); ++entry)
        if (entry.value().isString())
            table.insert(entry.key(), entry.value().toString());
    return table;
}

const Table &tableOf(const QString &name)
{
    Tables &all = tables();
    auto found = all.read.find(name);
    if (found == all.read.end()) {
        const QString path = all.folder + u'/' + all.language + u'/' + name + QStringLiteral(".json");
        found = all.read.insert(name, all.folder.isEmpty() || !isName(name) ? Table() : readTable(path));
    }
    return *found;
}

} // namespace

void setStringsTables(const QString &folder, const QStringList &languages)
{
    Tables all;
    all.folder = folder;
    for (const QString &wanted : languages) {
        const QString code = wanted.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
        if (isName(code) && folderExists(folder + u'/' + code)) {
            all.language = code;
            break;
        }
    }
    tables() = all;
}

QString languageOfTexts()
{
    return tables().language;
}

QString localizedText(const QString &key, const QString &fallback, const QString &table)
{
    const QString otherwise = fallback.isEmpty() ? key : fallback;
    return tableOf(table.isEmpty() ? QStringLiteral("Localizable") : table).value(key, otherwise);
}

} // namespace platform
