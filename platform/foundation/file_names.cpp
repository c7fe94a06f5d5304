#include "platform/foundation/file_names.h"

namespace platform {
namespace {

/** How many bytes of UTF-8 the character at @p at takes; @p at is less than the length. */
qsizetype bytesOf(const QString &text, qsizetype at, qsizetype units)
{
    const char16_t c = text[at].unicode();
    if (c < 0x80)
        return 1;
    if (c < 0x800)
        return 2;
    return units == 1 ? 3 : 4;
}

qsizetype unitsOf(const QString &text, qsizetype at)
{
    return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate() ? 2 : 1;
}

/** Where the extension begins, with its dot; the length if there is none. */
qsizetype dotOf(const QString &name, NameOf what)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return what == NameOf::File && dot > 0 && dot < name.size() - 1 ? dot : name.size();
}

QString markOf(int number)
{
    return QStringLiteral(" (%1)").arg(number);
}

} // namespace

QString nameKey(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toLower();
}

QString shortened(const QString &text, qsizetype mostBytes)
{
    qsizetype end = 0;
    for (qsizetype bytes = 0; end < text.size();) {
        const qsizetype units = unitsOf(text, end);
        bytes += bytesOf(text, end, units);
        if (bytes > mostBytes)
            break;
        end += units;
    }
    return text.left(end);
}

QString numberedName(const QString &name, int number, NameOf what)
{
    const qsizetype dot = dotOf(name, what);
    return name.left(dot) + markOf(number) + name.mid(dot);
}

QString fittingNumberedName(const QString &name, int number, NameOf what)
{
    const QString mark = markOf(number);
    const qsizetype dot = dotOf(name, what);
    const QString ending = mark + name.mid(dot);
    const qsizetype left = longestNameBytes - ending.toUtf8().size();
    return left > 0 ? shortened(name.left(dot), left) + ending : shortened(name, longestNameBytes - mark.size()) + mark;
}

} // namespace platform
