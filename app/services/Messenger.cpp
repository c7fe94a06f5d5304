#include "app/services/Messenger.h"

#include "platform/desktop/strings_tables.h"

QString Messenger::getLangStr(const QString &key, const QString &defaultValue, const QString &table) const
{
    return platform::localizedText(key, defaultValue, table);
}
