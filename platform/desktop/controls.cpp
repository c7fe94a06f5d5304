#include "platform/desktop/controls.h"

#include <QMetaProperty>
#include <QObject>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace platform {
namespace {

using Names = std::initializer_list<const char *>;

/** The stand-ins' own names come first, so that a widget with such a property is read through it. */
constexpr Names textNames = {"stringValue", "plainText", "text"};
constexpr Names stateNames = {"state", "checked"};
constexpr Names segmentNames = {"selectedSegment", "currentIndex"};
constexpr Names titleNames = {"selectedTitle", "currentText"};
constexpr Names visibleNames = {"visible"};

/** The first of @p names that the control has; null where it has none of them. */
const char *firstProperty(const QObject *control, Names names)
{
    if (!control)
        return nullptr;
    const auto found = std::find_if(names.begin(), names.end(), [control](const char *name) {
        return control->metaObject()->indexOfProperty(name) >= 0 || control->property(name).isValid();
    });
    return found == names.end() ? nullptr : *found;
}

QVariant read(const QObject *control, Names names)
{
    const char *name = firstProperty(control, names);
    return name ? control->property(name) : QVariant();
}

void write(QObject *control, Names names, const QVariant &value)
{
    if (const char *name = firstProperty(control, names))
        control->setProperty(name, value);
}

} // namespace

QString textOf(const QObject *control)
{
    return read(control, textNames).toString();
}

void setTextOf(QObject *control, const QString &text)
{
    write(control, textNames, text);
}

int leadingInteger(const QString &text)
{
    auto at = std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    const bool isNegative = at != text.end() && *at == u'-';
    if (at != text.end() && (*at == u'-' || *at == u'+'))
        ++at;
    constexpr qint64 largest = qint64(std::numeric_limits<int>::max()) + 1;
    qint64 value = 0;
    for (; at != text.end() && *at >= u'0' && *at <= u'9'; ++at)
        value = std::min(largest, value * 10 + (at->unicode() - u'0'));
    return int(std::clamp<qint64>(isNegative ? -value : value, std::numeric_limits<int>::min(),
                                  std::numeric_limits<int>::max()));
}

int integerValueOf(const QObject *control)
{
    return leadingInteger(textOf(control));
}

int stateOf(const QObject *control)
{
    const QVariant state = read(control, stateNames);
    return state.toInt();
}

void setStateOf(QObject *control, int state)
{
    write(control, stateNames, state);
}

QColor colorOf(const QObject *control)
{
    const QVariant color = read(control, {"color"});
    return color.metaType() == QMetaType::fromType<QColor>() ? color.value<QColor>() : QColor(color.toString());
}

void setColorOf(QObject *control, const QColor &color)
{
    write(control, {"color"}, color.name());
}

int selectedSegmentOf(const QObject *control)
{
    return read(control, segmentNames).toInt();
}

QString selectedLabelOf(const QObject *control)
{
    return read(control, {"selectedLabel", "currentText"}).toString();
}

QStringList titlesOf(const QObject *control)
{
    return read(control, {"titles"}).toStringList();
}

void setTitlesOf(QObject *control, const QStringList &titles)
{
    write(control, {"titles"}, titles);
}

QString selectedTitleOf(const QObject *control)
{
    return read(control, titleNames).toString();
}

void setSelectedTitleOf(QObject *control, const QString &title)
{
    write(control, titleNames, title);
}

void setEnabledOf(QObject *control, bool enabled)
{
    write(control, {"enabled"}, enabled);
}

void setVisibleOf(QObject *control, bool visible)
{
    write(control, visibleNames, visible);
}

double progressOf(const QObject *control)
{
    return read(control, {"value"}).toDouble();
}

void setProgressOf(QObject *control, double value)
{
    write(control, {"value"}, value);
}

void setProgressMaximumOf(QObject *control, double maximum)
{
    write(control, {"maximum"}, maximum);
}

void setIndeterminateOf(QObject *control, bool indeterminate)
{
    write(control, {"indeterminate"}, indeterminate);
}

QVariantList rowsOf(const QObject *control)
{
    return read(control, {"rows"}).toList();
}

void addRowTo(QObject *control, const QVariantMap &row)
{
    QVariantList rows = rowsOf(control);
    rows.append(row);
    write(control, {"rows"}, rows);
}

void reloadTable(QObject *control)
{
    write(control, {"reloads"}, read(control, {"reloads"}).toInt() + 1);
}

void setContentOf(QObject *control, const QVariantList &nodes)
{
    write(control, {"content"}, nodes);
}

} // namespace platform
