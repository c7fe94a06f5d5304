#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QObject;

/**
 * How services read and write the controls on their outlets.
 *
 * A control is any object with the relevant properties: a stand-in (stand_ins.h), a real widget, or a widget that was
 * given such properties. A null control, or one without a matching property, reads as empty or 0 and ignores writes.
 * Main thread only.
 */
namespace platform {

/**
 * State of window controls that Qt does not expose as properties. The window layer installs the implementation; unknown
 * controls yield an empty value or false.
 */
class WindowControls
{
public:
    WindowControls() = default;
    WindowControls(const WindowControls &) = delete;
    WindowControls &operator=(const WindowControls &) = delete;
    virtual ~WindowControls() = default;

    virtual std::optional<QString> selectedLabel(const QObject &control) const = 0;
    virtual std::optional<int> state(const QObject &control) const = 0;
    virtual std::optional<QStringList> titles(const QObject &control) const = 0;
    virtual bool setTitles(QObject &control, const QStringList &titles) const = 0;
};

/** Null for none, which is the initial state. */
void setWindowControls(std::unique_ptr<WindowControls> controls);

/** The text of a field, label, text view or menu; of a field for numbers, the number. */
QString textOf(const QObject *control);
void setTextOf(QObject *control, const QString &text);

/**
 * The leading whole number of the control's text: "12px" is 12, "-3" is -3, "" and "abc" are 0, "3.9" is 3. For a
 * number field, a slider or a dial the number without its fraction, whatever text surrounds it.
 */
int integerValueOf(const QObject *control);
/** The rule of integerValueOf() for any text. Leading white space is skipped; values out of range are clamped. */
int leadingInteger(const QString &text);

/** 1 checked, 0 not, -1 partly. */
int stateOf(const QObject *control);
void setStateOf(QObject *control, int state);

/** The colour of a colour well; invalid if there is none. */
QColor colorOf(const QObject *control);
void setColorOf(QObject *control, const QColor &color);

/** From 0; -1 if none is selected, 0 for a null control. */
int selectedSegmentOf(const QObject *control);
/** The label of the chosen tab, of the chosen segment or of a menu's chosen entry; null if there is no control. */
QString selectedLabelOf(const QObject *control);

QStringList titlesOf(const QObject *control);
void setTitlesOf(QObject *control, const QStringList &titles);
QString selectedTitleOf(const QObject *control);
void setSelectedTitleOf(QObject *control, const QString &title);

void setEnabledOf(QObject *control, bool enabled);
void setVisibleOf(QObject *control, bool visible);

double progressOf(const QObject *control);
void setProgressOf(QObject *control, double value);
void setProgressMaximumOf(QObject *control, double maximum);
void setIndeterminateOf(QObject *control, bool indeterminate);

/** The rows of a list that shows dictionaries. */
QVariantList rowsOf(const QObject *control);
void addRowTo(QObject *control, const QVariantMap &row);
/** Tells a table to reload its rows. */
void reloadTable(QObject *control);
/** Repaints a control at once, since the event loop does not run in between. */
void redraw(QObject *control);
/** The nodes of a tree. */
void setContentOf(QObject *control, const QVariantList &nodes);

} // namespace platform
