#include "platform/controls/controls.h"

#include <QMetaProperty>
#include <QObject>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace platform {
namespace {

using Names = std::initializer_list<const char *>;

/** The stand-ins' own property names come first, so that a widget with such a property is read through it. */
constexpr Names textNames = {"stringValue", "plainText", "text", "currentText"};
constexpr Names stateNames = {"state", "checked"};
constexpr Names segmentNames = {"selectedSegment", "currentIndex"};
constexpr Names titleNames = {"selectedTitle", "currentText"};
constexpr Names visibleNames = {"visible"};

std::unique_ptr<WindowControls> &windowControls()
{
    static std::unique_ptr<WindowControls> controls;
    return controls;
}

/** What the windows know about a control; none if there are no windows or they do not know it. */
template<typename Question> auto asked(const QObject *control, Question question)
{
    using Answer = decltype(question(*windowControls(), *control));
    return control && windowControls() ? question(*windowControls(), *control) : Answer();
}

/** The first of @p names that the control has; null if it has none of them. */
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

/** A number field may show text around its number; a slider shows none at all. */
bool isNumberControl(const QObject *control)
{
    return firstProperty(control, {"value"}) &&
           (firstProperty(control, {"cleanText"}) || !firstProperty(control, textNames));
}

int withoutFraction(double number)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return int(std::clamp(number, least, most));
}

/** The chosen text of a list of them. */
QString chosenOf(const QObject *control, Names listNames)
{
    const QStringList texts = read(control, listNames).toStringList();
    return texts.value(selectedSegmentOf(control));
}

} // namespace

void setWindowControls(std::unique_ptr<WindowControls> controls)
{
    windowControls() = std::move(controls);
}

QString textOf(const QObject *control)
{
    return isNumberControl(control) ? read(control, {"value"}).toString() : read(control, textNames).toString();
}

void setTextOf(QObject *control, const QString &text)
{
    if (isNumberControl(control))
        write(control, {"value"}, text.toDouble());
    else
        write(control, textNames, text.isNull() ? QStringLiteral("") : text); // a control shows nothing as no text
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
    return isNumberControl(control) ? withoutFraction(read(control, {"value"}).toDouble())
                                    : leadingInteger(textOf(control));
}

int stateOf(const QObject *control)
{
    const auto known = asked(control, [](const auto &window, const QObject &box) { return window.state(box); });
    return known ? *known : read(control, stateNames).toInt();
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
    if (const auto label =
            asked(control, [](const auto &window, const QObject &tabs) { return window.selectedLabel(tabs); }))
        return *label;
    if (firstProperty(control, {"segments"}))
        return chosenOf(control, {"segments"});
    return read(control, {"selectedLabel", "currentText"}).toString();
}

QStringList titlesOf(const QObject *control)
{
    const auto known = asked(control, [](const auto &window, const QObject &menu) { return window.titles(menu); });
    return known ? *known : read(control, {"titles"}).toStringList();
}

void setTitlesOf(QObject *control, const QStringList &titles)
{
    const bool isDone = control && windowControls() && windowControls()->setTitles(*control, titles);
    if (!isDone)
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
    write(control, {"rows"}, QVariantList()); // otherwise the whole list would be copied for each row
    rows.append(row);
    write(control, {"rows"}, rows);
}

void reloadTable(QObject *control)
{
    write(control, {"reloads"}, read(control, {"reloads"}).toInt() + 1);
}

void redraw(QObject *control)
{
    if (control && control->metaObject()->indexOfMethod("repaint()") >= 0)
        QMetaObject::invokeMethod(control, "repaint", Qt::DirectConnection);
}

void setContentOf(QObject *control, const QVariantList &nodes)
{
    write(control, {"content"}, nodes);
}

} // namespace platform
