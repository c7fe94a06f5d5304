#pragma once

#include "platform/confinement/confinement.h"
#include "platform/workers/message_socket.h"

#include <QString>

#include <functional>

namespace jobs {

/** What tests put into the way of a worker. */
struct WorkerTrial
{
    /** Called before the outputs of a picture are made, with its path; what it says is the reason why none is. */
    std::function<QString(const QString &path)> beforeMaking;
};

/**
 * The other side of a Crew: carries out what it is told over @p socket until that is closed. Opens no file: pictures, what a recipe names
 * and the files of the results all come over the socket.
 */
void workOnRecipes(platform::MessageSocket &socket, const platform::Confinement &confinement,
                   const WorkerTrial &trial = {});

} // namespace jobs
