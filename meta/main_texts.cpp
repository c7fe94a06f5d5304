#include "meta/main_texts.h"

#include <QCoreApplication>

namespace meta {
namespace {

struct Entry
{
    const char *key;
    const char *text;
};

constexpr Entry entries[] = {
    {"NotSupported", QT_TRANSLATE_NOOP("main", "This file is not a picture that can be read.")},
    {"NotSupportedOrAvailable", QT_TRANSLATE_NOOP("main", "This picture has no comment, or cannot hold one.")},
};

} // namespace

QString mainText(const QString &key)
{
    for (const Entry &entry : entries)
        if (key == QLatin1String(entry.key))
            return QCoreApplication::translate("main", entry.text);
    return key;
}

} // namespace meta
