#include "app/window/script_modules.h"

#include "app/script/ScriptEngine.h"
#include "app/window/program_desk.h"
#include "app/window/shell.h"
#include "app/window/window_files.h"

#include "files/services/move_service.h"
#include "image/services/picture_service.h"

namespace window {

namespace {

using script::ServiceEntry;

const char *const shellModule = "quorlin/shell";

/** A window with sheets is what the outlets of services take for one. */
ServiceEntry sheetHosts()
{
    ServiceEntry entry = script::givenEntry<SheetHost>(shellModule);
    entry.isControl = true;
    return entry;
}

void offer(script::ScriptEngine &scripts, const std::vector<ServiceEntry> &services, const QByteArray &module,
           QObject *object)
{
    std::vector<ServiceEntry> ofModule;
    for (const ServiceEntry &entry : services) {
        if (entry.module != module)
            continue;
        ofModule.push_back(entry);
        if (entry.isOneObject)
            ofModule.back().object = object;
    }
    scripts.registerServices(module, ofModule);
}

} // namespace

std::vector<ServiceEntry> fileServices()
{
    return {script::oneObject<WindowFiles>("quorlin/files", "files"),
            script::oneObject<files::MoveService>("quorlin/moves", "moves"),
            script::oneObject<image::PictureService>("quorlin/pictures", "pictures")};
}

std::vector<ServiceEntry> windowServices()
{
    return {script::oneObject<Shell>(shellModule, "shell"),
            script::givenEntry<Form>(shellModule),
            script::givenEntry<JobDriver>(shellModule),
            script::givenEntry<ScriptTimer>(shellModule),
            script::givenEntry<Theme>(shellModule),
            sheetHosts(),
            script::oneObject<ProgramDesk>("quorlin/program", "program")};
}

void addFilesModule(script::ScriptEngine &scripts)
{
    offer(scripts, fileServices(), "quorlin/files", new WindowFiles(&scripts));
    offer(scripts, fileServices(), "quorlin/moves", new files::MoveService(&scripts));
    offer(scripts, fileServices(), "quorlin/pictures", new image::PictureService(&scripts));
}

void addShellModule(script::ScriptEngine &scripts, Shell &shell)
{
    offer(scripts, windowServices(), shellModule, &shell);
    offer(scripts, windowServices(), "quorlin/program", new ProgramDesk(&scripts));
}

} // namespace window
