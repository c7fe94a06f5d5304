#pragma once

#include <QObject>
#include <QPointer>

/** The controller of the main window's content. */
class mainViewController : public QObject
{
    Q_OBJECT
    /** The window that holds the content. */
    Q_PROPERTY(QObject *window READ window WRITE setWindow)

public:
    /** Gives the window a transparent title bar and full opacity. Does nothing without a window. */
    Q_INVOKABLE void viewWillAppear();

    QObject *window() const { return m_window; }
    void setWindow(QObject *window) { m_window = window; }

private:
    QPointer<QObject> m_window;
};
