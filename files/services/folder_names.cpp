#include "files/services/folder_names.h"

#include "platform/foundation/file_names.h"

#include <algorithm>

using platform::nameKey;

FolderNames::FolderNames(QObject *parent) : QObject(parent) {}

void FolderNames::setNames(const QStringList &names)
{
    m_names = names;
    m_exact = QSet<QString>(names.begin(), names.end());
    m_onDisk.clear();
    for (const QString &name : names)
        m_onDisk.insert(nameKey(name), name);
}

QString FolderNames::keyOf(const QString &name) const
{
    return nameKey(name);
}

QString FolderNames::numbered(const QString &name, int number) const
{
    return platform::fittingNumberedName(name, number, platform::NameOf::File);
}

QString FolderNames::onDiskAs(const QString &name) const
{
    return m_exact.contains(name) ? name : m_onDisk.value(nameKey(name));
}

bool FolderNames::isGiven(const QString &name) const
{
    return m_given.contains(nameKey(name));
}

bool FolderNames::isFree(const QString &name) const
{
    return isFreeByKey(nameKey(name));
}

QString FolderNames::give(const QString &name)
{
    m_given.insert(nameKey(name));
    return name;
}

QString FolderNames::giveNumbered(const QString &name)
{
    int &next = m_nextNumber[nameKey(name)];
    for (next = std::max(next, 2);; ++next) {
        const QString wanted = numbered(name, next);
        if (!isFreeByKey(nameKey(wanted)))
            continue;
        ++next;
        return give(wanted);
    }
}
