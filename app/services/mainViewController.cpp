#include "app/services/mainViewController.h"

#include <QVariant>

void mainViewController::viewWillAppear()
{
    QObject *window = m_window.data();
    if (!window)
        return;
    window->setProperty("titlebarAppearsTransparent", true);
    window->setProperty("alphaValue", 1.0);
    // Widgets know their opacity under this name.
    if (window->metaObject()->indexOfProperty("windowOpacity") >= 0)
        window->setProperty("windowOpacity", 1.0);
}
