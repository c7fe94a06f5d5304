#pragma once

#include <QKeySequence>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QWidget>

class QComboBox;

namespace clicks {

/**
 * What a person does with mouse and keyboard, counted: one for a click, one for a chord of keys. Events go to the windows of the toolkit's
 * platform, as those of a real mouse do, so that only what can be seen and reached is worked. Main thread only.
 */
class Hand
{
public:
    int count() const { return m_count; }

    /** Ends the program if another control covers it, or if it cannot be used. */
    void click(QWidget &control);
    void click(QWidget &control, QPoint at);
    /** Opens a box and clicks an entry: two clicks. */
    void choose(QComboBox &box, const QString &entry);
    /** One chord, "Ctrl+Return". */
    void press(const QString &chord);
    /** The characters of a name or a caption, which do not count; ASCII. */
    void type(const QString &text);

private:
    int m_count = 0;
};

} // namespace clicks
