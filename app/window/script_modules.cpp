#include "app/window/script_modules.h"

#include "app/modules/offered_services.h"
#include "app/window/forms/control_classes.h"
#include "app/window/program_desk.h"
#include "app/window/shell.h"

namespace window {

namespace {

using script::ServiceEntry;

const char *const shellModule = "quorlin/shell";

/** Outlets of services accept a window with sheets as a window. */
ServiceEntry sheetHosts()
{
    ServiceEntry entry = script::givenEntry<SheetHost>(shellModule);
    entry.isControl = true;
    return entry;
}

} // namespace

std::vector<ServiceEntry> windowServices()
{
    std::vector<ServiceEntry> all = {script::oneObject<Shell>(shellModule, "shell"),
                                     script::givenEntry<Form>(shellModule),
                                     script::givenEntry<JobDriver>(shellModule),
                                     script::givenEntry<ScriptTimer>(shellModule),
                                     script::givenEntry<SizeEstimate>(shellModule),
                                     script::givenEntry<SaveChoice>(shellModule),
                                     script::givenEntry<Theme>(shellModule),
                                     script::givenEntry<DesktopSigns>(shellModule),
                                     sheetHosts(),
                                     script::oneObject<ProgramDesk>("quorlin/program", "program")};
    const std::vector<ServiceEntry> controls = controlClasses();
    all.insert(all.end(), controls.begin(), controls.end());
    return all;
}

void addShellModule(script::ScriptEngine &scripts, Shell &shell)
{
    script::offerServices(scripts, windowServices(), shellModule, &shell);
    script::offerServices(scripts, windowServices(), "quorlin/program", new ProgramDesk(&scripts));
}

} // namespace window
