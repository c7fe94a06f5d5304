#pragma once

#include <QList>
#include <QString>

namespace platform {

/** A library that the program uses. */
struct Library
{
    QString name;
    QString version; ///< the one that is in use
    QString licence; ///< its short name
};

/** The libraries of this room, Qt first. */
QList<Library> librariesInUse();

/** A line "name version" for each of them, as printed by --version: what a bug report needs. */
QString librariesText();

} // namespace platform
