// recipe_here RECIPE OUT_FOLDER PICTURE...: what workers do for a batch, done in one process with one thread, and nothing else.

#include "image/recipe/make.h"
#include "image/recipe/recipe_reader.h"
#include "jobs/names.h"
#include "platform/file/atomic_file.h"
#include "platform/imageio/source/start_libraries.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdlib>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr int own = 3;
    const auto recipe = image::readRecipeFile(arguments.value(1));
    if (argc <= own || !recipe)
        return EXIT_FAILURE;
    platform::prepareForPictures(1);
    for (int i = own; i < argc; ++i) {
        const auto source = platform::ImageSource::open(arguments[i]);
        if (!source)
            return EXIT_FAILURE;
        const text::TokenFacts facts = jobs::factsOfPicture(arguments[i], i);
        const auto fill = [&facts](const QString &pattern, QSize size) {
            return jobs::watermarkFrom(pattern, facts, size);
        };
        bool isMade = true;
        image::makeOutputs(*recipe, *source, image::planOf(*recipe, *source), fill, [&](int index, const auto &made) {
            const QString path =
                QStringLiteral("%1/%2-%3").arg(arguments[2], QFileInfo(arguments[i]).fileName()).arg(index);
            isMade = made && platform::replaceFile(path, made->bytes) && isMade;
        });
        if (!isMade)
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
