#pragma once

#include "image/recipe/plan.h"
#include "platform/imageio/source/picture_facts.h"
#include "platform/workers/message.h"
#include "text/token_values.h"

#include <optional>

/**
 * What quorlin-batch and its workers say to each other. A worker says Hello, gets the files of a recipe and the recipe, and says whether it
 * can be carried out. Then, for one picture after the other, it gets the Picture and answers what is Planned; then it
 * gets the next one, or files for its Outputs and the order to Make them, reports each as Made, and finally Done. After
 * Hello it also accepts a Read and gives one Answer, see reading_messages.h.
 */
namespace jobs {

enum class MessageKind : quint16 {
    Hello = 1,
    RecipeFiles,
    Recipe,
    Ready,
    Picture,
    Planned,
    Outputs,
    Make,
    Made,
    Done,
    Read = 32,
    Answer
};

/** Version of this protocol; a worker of another version is rejected. */
inline constexpr int messagesVersion = 1;

/** What a worker says first. */
struct HelloMessage
{
    int version = messagesVersion;
    bool hasNoNewPrivileges = false; ///< see platform::Confinement
    bool hasFileRules = false;
    bool hasCallRules = false;
};

/** Files are attached in the order of the paths. */
struct RecipeFilesMessage
{
    QStringList paths;
};

struct RecipeMessage
{
    QByteArray json;
    QString folder;
};

/** Whether the recipe can be carried out. */
struct ReadyMessage
{
    QString problem; ///< a sentence that begins with the place
};

/** One picture, which is attached as an open file. */
struct PictureMessage
{
    text::TokenFacts facts; ///< what is known without looking into the picture
    bool wantsFacts = false;
    QByteArray packet = {}; ///< of its sidecar, see packetBeside(); empty if there is none
};

/** What a picture will become, one plan an output; only what the other side needs of each. */
struct PlannedMessage
{
    QString problem; ///< a sentence if the picture cannot be opened; then there are no plans
    QList<image::OutputPlan> plans;
    platform::PictureFacts facts; ///< where they were wanted
    QSize pixels;
};

/** Files for these outputs are attached in this order. */
struct OutputsMessage
{
    QList<int> indices;
};

struct MadeMessage
{
    int index = 0;
    QString problem;    ///< a sentence if nothing was made
    int writeError = 0; ///< an errno if it could not be written
    QSize size;
    bool isLossless = false;
    qint64 bytes = 0;
    qint64 milliseconds = 0;
};

platform::Message toMessage(const HelloMessage &hello);
platform::Message toMessage(const RecipeFilesMessage &files);
platform::Message toMessage(const RecipeMessage &recipe);
platform::Message toMessage(const ReadyMessage &ready);
platform::Message toMessage(const PictureMessage &picture);
platform::Message toMessage(const PlannedMessage &planned);
platform::Message toMessage(const OutputsMessage &outputs);
platform::Message toMessage(const MadeMessage &made);
/** One that is nothing but its kind. */
platform::Message toMessage(MessageKind kind);

/** Nothing where the message is of another kind or makes no sense. */
template<class T> std::optional<T> fromMessage(const platform::Message &message);

} // namespace jobs
