#pragma once

#include <QStringList>

/**
 * The tables of the presets database. Each has the key column ID and 62 columns with the caller's names after it; the
 * type of a column depends only on its position.
 */
namespace presets {

constexpr int fieldCount = 62;

/** "Text" for the fields 0 to 20 and 42 to 61, "Integer" for 21 to 41. */
QString declaredType(int field);

/** "NameOfPreset", "Process", "Action", "StrField3" to "StrField61". */
QStringList presetColumns();

/** "StrField0" to "StrField61". */
QStringList numberedColumns();

/** 62 values: @p first and 61 empty texts. */
QStringList seedRow(const QString &first);

/** The 62 values of the sample preset: "myPresetName", "Sorting", "ByHand", "Loc1" to "Loc59". */
QStringList sampleRow();

} // namespace presets
