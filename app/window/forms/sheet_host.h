#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace window {

/** A window as the services know it that open sheets: a dialog that is set as its sheet opens on it. */
class SheetHost : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *sheet READ sheet WRITE setSheet)

public:
    /** @param window  lives longer, and owns the sheets from when they first open */
    explicit SheetHost(QWidget &window);

    /** The sheet that is open, or null. */
    QObject *sheet() const;
    /** Opens a dialog; it blocks this window and nothing waits for it. Null forgets it, other objects are passed over. */
    void setSheet(QObject *sheet);

private:
    QWidget &m_window;
    QPointer<QWidget> m_sheet;
};

} // namespace window
