#pragma once

#include "app/seam/service_class.h"

#include <vector>

namespace image {
class PictureService;
}
namespace jobs {
class PageService;
class RecipeService;
} // namespace jobs

namespace script {

class ProgramFiles;

class ScriptEngine;

/** The services of the modules "quorlin/files", "moves", "pictures", "tokens", "recipes", "records", "watch", "pages" and "web". */
std::vector<ServiceEntry> fileServices();

/** Those of them that read pictures; the caller owns each. */
struct FileObjects
{
    ProgramFiles *files;
    image::PictureService *pictures;
    jobs::RecipeService *recipes;
    jobs::PageService *pages;
};

/** Adds the modules of fileServices(). They work without windows. */
void addFileModules(ScriptEngine &scripts);
/** The same with other objects. */
void addFileModules(ScriptEngine &scripts, const FileObjects &objects);

} // namespace script
