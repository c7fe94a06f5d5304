#include "app/modules/file_modules.h"

#include "app/modules/offered_services.h"
#include "app/modules/program_files.h"
#include "app/printing/page_work.h"

#include "files/services/folder_names.h"
#include "files/services/move_service.h"
#include "image/services/picture_service.h"
#include "jobs/services/comment_work.h"
#include "jobs/services/field_work.h"
#include "jobs/services/page_service.h"
#include "jobs/services/recipe_batch.h"
#include "jobs/services/recipe_service.h"
#include "jobs/services/recipe_work.h"
#include "jobs/services/run_records.h"
#include "jobs/services/watch_service.h"
#include "text/services/token_service.h"
#include "text/services/token_text.h"

namespace script {

namespace {

/** Scripts create them and set their fields; their texts are never null. */
template<typename T> ServiceEntry madeWithFields(const char *module)
{
    ServiceEntry entry = serviceEntry<T>(module, true);
    entry.answersNullTexts = false;
    return entry;
}

/** The same, with signals. A connection keeps them alive, so the caller says when one is no longer needed. */
template<typename T> ServiceEntry madeWithSignals(const char *module)
{
    ServiceEntry entry = madeWithFields<T>(module);
    entry.offersSignals = true;
    return entry;
}

} // namespace

std::vector<ServiceEntry> fileServices()
{
    return {oneObject<ProgramFiles>("quorlin/files", "files"),
            madeWithFields<FolderNames>("quorlin/files"),
            madeWithSignals<jobs::CommentWork>("quorlin/files"),
            madeWithSignals<jobs::FieldWork>("quorlin/files"),
            oneObject<files::MoveService>("quorlin/moves", "moves"),
            oneObject<image::PictureService>("quorlin/pictures", "pictures"),
            oneObject<text::TokenService>("quorlin/tokens", "tokens"),
            madeWithFields<TokenText>("quorlin/tokens"),
            oneObject<jobs::RecipeService>("quorlin/recipes", "recipes"),
            oneObject<jobs::RunRecords>("quorlin/records", "runRecords"),
            givenEntry<jobs::RecipeWork>("quorlin/recipes"),
            madeWithSignals<jobs::RecipeBatch>("quorlin/recipes"),
            oneObject<jobs::WatchService>("quorlin/watch", "watch"),
            oneObject<jobs::PageService>("quorlin/web", "webPages"),
            madeWithSignals<app::PageWork>("quorlin/pages")};
}

void addFileModules(ScriptEngine &scripts)
{
    addFileModules(scripts, {new ProgramFiles(&scripts), new image::PictureService(&scripts),
                             new jobs::RecipeService(&scripts), new jobs::PageService(&scripts)});
}

void addFileModules(ScriptEngine &scripts, const FileObjects &objects)
{
    offerServices(scripts, fileServices(), "quorlin/files", objects.files);
    offerServices(scripts, fileServices(), "quorlin/moves", new files::MoveService(&scripts));
    offerServices(scripts, fileServices(), "quorlin/pictures", objects.pictures);
    offerServices(scripts, fileServices(), "quorlin/tokens", new text::TokenService(&scripts));
    offerServices(scripts, fileServices(), "quorlin/recipes", objects.recipes);
    offerServices(scripts, fileServices(), "quorlin/records", new jobs::RunRecords(&scripts));
    offerServices(scripts, fileServices(), "quorlin/web", objects.pages);
    offerServices(scripts, fileServices(), "quorlin/watch", new jobs::WatchService(&scripts));
    offerServices(scripts, fileServices(), "quorlin/pages", nullptr);
}

} // namespace script
