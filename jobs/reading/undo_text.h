#pragma once

#include "platform/file/atomic_file.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** What an edit of metadata is reverted with, as a text that is kept in a file. */
namespace jobs {

/** Of a picture: what makes the old file of the new one, whose digest is given. */
struct PictureUndo
{
    QList<platform::Splice> splices;
    QByteArray digest;
    QByteArray before = {}; ///< the digest of the old file; empty in texts of older versions
};

struct SidecarUndo
{
    QString path;
    QByteArray before; ///< empty if there was none
    QByteArray now;
};

QString undoText(const PictureUndo &undo);
QString undoText(const SidecarUndo &undo);

/** None if the text is not such an undo. */
std::optional<PictureUndo> pictureUndo(const QString &text);
std::optional<SidecarUndo> sidecarUndo(const QString &text);

} // namespace jobs
