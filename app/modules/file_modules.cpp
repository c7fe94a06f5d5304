#include "app/modules/file_modules.h"

#include "app/modules/offered_services.h"
#include "app/modules/program_files.h"

#include "files/services/move_service.h"
#include "image/services/picture_service.h"

namespace script {

std::vector<ServiceEntry> fileServices()
{
    return {oneObject<ProgramFiles>("quorlin/files", "files"), oneObject<files::MoveService>("quorlin/moves", "moves"),
            oneObject<image::PictureService>("quorlin/pictures", "pictures")};
}

void addFileModules(ScriptEngine &scripts)
{
    offerServices(scripts, fileServices(), "quorlin/files", new ProgramFiles(&scripts));
    offerServices(scripts, fileServices(), "quorlin/moves", new files::MoveService(&scripts));
    offerServices(scripts, fileServices(), "quorlin/pictures", new image::PictureService(&scripts));
}

} // namespace script
