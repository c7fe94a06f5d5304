#include "app/modules/file_modules.h"

#include "app/modules/offered_services.h"
#include "app/modules/program_files.h"

#include "files/services/move_service.h"
#include "image/services/picture_service.h"
#include "text/services/token_service.h"
#include "text/services/token_text.h"

namespace script {

namespace {

/** Scripts make them; their texts are never nothing. */
ServiceEntry tokenTexts()
{
    ServiceEntry entry = serviceEntry<TokenText>("quorlin/tokens", true);
    entry.answersNullTexts = false;
    return entry;
}

} // namespace

std::vector<ServiceEntry> fileServices()
{
    return {oneObject<ProgramFiles>("quorlin/files", "files"), oneObject<files::MoveService>("quorlin/moves", "moves"),
            oneObject<image::PictureService>("quorlin/pictures", "pictures"),
            oneObject<text::TokenService>("quorlin/tokens", "tokens"), tokenTexts()};
}

void addFileModules(ScriptEngine &scripts)
{
    offerServices(scripts, fileServices(), "quorlin/files", new ProgramFiles(&scripts));
    offerServices(scripts, fileServices(), "quorlin/moves", new files::MoveService(&scripts));
    offerServices(scripts, fileServices(), "quorlin/pictures", new image::PictureService(&scripts));
    offerServices(scripts, fileServices(), "quorlin/tokens", new text::TokenService(&scripts));
}

} // namespace script
