#include "presets/layout.h"

namespace presets {
namespace {

constexpr int firstInteger = 21;
constexpr int firstTextAgain = 42;
constexpr int firstNumberedInPresets = 3;

QStringList numbered(const QString &word, int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names.append(word + QString::number(i));
    return names;
}

} // namespace

QString declaredType(int field)
{
    return field >= firstInteger && field < firstTextAgain ? QStringLiteral("Integer") : QStringLiteral("Text");
}

QStringList presetColumns()
{
    return QStringList{QStringLiteral("NameOfPreset"), QStringLiteral("Process"), QStringLiteral("Action")} +
           numbered(QStringLiteral("StrField"), firstNumberedInPresets, fieldCount - 1);
}

QStringList numberedColumns()
{
    return numbered(QStringLiteral("StrField"), 0, fieldCount - 1);
}

QStringList seedRow(const QString &first)
{
    QStringList values(fieldCount, QStringLiteral(""));
    values.first() = first;
    return values;
}

QStringList sampleRow()
{
    return QStringList{QStringLiteral("myPresetName"), QStringLiteral("Sorting"), QStringLiteral("ByHand")} +
           numbered(QStringLiteral("Loc"), 1, fieldCount - firstNumberedInPresets);
}

} // namespace presets
