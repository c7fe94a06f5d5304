#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace window {

/** A window to which services attach sheets: a dialog that is set as its sheet opens on it. */
class SheetHost : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *sheet READ sheet WRITE setSheet)

public:
    /** @param window  lives longer, and owns the sheets once they have opened */
    explicit SheetHost(QWidget &window);

    /** The sheet that is open, or null. */
    QObject *sheet() const;
    /**
     * Opens a dialog that blocks this window; the call does not wait for it. Null forgets it; other objects are
     * ignored.
     */
    void setSheet(QObject *sheet);

private:
    QWidget &m_window;
    QPointer<QWidget> m_sheet;
};

} // namespace window
