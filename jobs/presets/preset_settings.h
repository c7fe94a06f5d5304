#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

/** Presets of the window, for those who have no window: the same settings, read from the same rows. docs/presets.md has their layout. */
namespace jobs {

struct Preset
{
    QString action; ///< the words that its rows have for it: "Resize", "Rotate and Flip"
    QString name;
    QJsonObject settings; ///< as the action's pane has them; empty for an action that makes no pictures
};

/** True for the words of an action that makes pictures. */
bool makesPictures(const QString &action);

/** The settings of a new pane; empty for an action that makes no pictures. */
QJsonObject standardSettings(const QString &action);

/** What a row of 62 texts holds; none for a row of another maker, of a later version, or a damaged one. */
std::optional<Preset> presetOfRow(const QStringList &row);

} // namespace jobs
