#include "app/window/start_up.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    window::StartUp startUp(application);
    // The user-interface scripts first, then the application loop.
    if (!startUp.loadScripts(application.arguments().mid(1)))
        return 1;
    return QApplication::exec();
}
