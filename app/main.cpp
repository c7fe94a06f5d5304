#include "app/window/start_up.h"

#include "platform/foundation/log.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // Whoever started the program from a terminal has no use for what the services say.
    platform::logToSystem("quorlin");
    window::StartUp startUp(application);
    // The user-interface scripts first, then the application loop.
    if (!startUp.loadScripts(application.arguments().mid(1))) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(startUp.problem()));
        return 1;
    }
    return QApplication::exec();
}
