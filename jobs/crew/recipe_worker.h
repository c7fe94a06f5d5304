#pragma once

#include "platform/confinement/confinement.h"
#include "platform/workers/message_socket.h"

#include <QString>

#include <functional>
#include <optional>

namespace jobs {

/** What tests and measurements put in the place of a worker's work. */
struct WorkerTrial
{
    /**
     * Called before the outputs of a picture are made, with its path; if it returns a text, that is the reason why none
     * is.
     */
    std::function<QString(const QString &path)> beforeMaking;
    /** Called before an output is written, with the path of its picture; an errno is said in place of writing. */
    std::function<int(const QString &path)> beforeWriting;
    /** Called before a picture is looked into for somebody who shows it. */
    std::function<void(const QString &path)> beforeReading;

    /** Sleeping in place of computing, so that a machine with few processors can show what many workers do. */
    struct Sleep
    {
        int lookingUs = 0; ///< microseconds
        int makingUs = 0;
    };
    std::optional<Sleep> sleep;
};

/**
 * The other side of a Crew: carries out the orders from @p socket until that is closed. Opens no file: pictures, files
 * named by a recipe and the files of results all arrive over the socket.
 */
void workOnRecipes(platform::MessageSocket &socket, const platform::Confinement &confinement,
                   const WorkerTrial &trial = {});

} // namespace jobs
