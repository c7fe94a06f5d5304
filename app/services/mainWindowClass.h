#pragma once

#include <QObject>

/** The controller of the main window. */
class mainWindowClass : public QObject
{
    Q_OBJECT

public:
    /** Called when the window was loaded; its appearance comes from its interface file, so nothing is left to do. */
    Q_INVOKABLE void windowDidLoad();
};
