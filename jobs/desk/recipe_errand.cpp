#include "jobs/desk/recipe_errand.h"

#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "jobs/crew/messages.h"
#include "jobs/names.h"
#include "jobs/output_places.h"
#include "jobs/report.h"
#include "jobs/result_files.h"
#include "jobs/result_mark.h"
#include "meta/metadata_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"

#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace jobs {

using platform::Descriptor;
using platform::Message;
using platform::Result;

namespace {

tl::unexpected<platform::Error> unwritten(const QString &path, int code)
{
    return platform::failure(platform::ErrorCode::WriteFailed,
                             image::sentence(QT_TRANSLATE_NOOP("recipe", "%1 cannot be written: %2"))
                                 .arg(path, QString::fromLocal8Bit(std::strerror(code))));
}

} // namespace

Result<std::shared_ptr<const SharedRecipe>> SharedRecipe::from(const QByteArray &json)
{
    auto shared = whole(json, QStringLiteral("/"));
    if (shared && (*shared)->recipe().outputs.size() != 1)
        return platform::failure(platform::ErrorCode::InvalidValue,
                                 image::sentence(QT_TRANSLATE_NOOP("recipe", "outputs: exactly one")));
    return shared;
}

Result<std::shared_ptr<const SharedRecipe>> SharedRecipe::whole(const QByteArray &json, const QString &folder)
{
    static quint64 s_last = 0;
    image::RecipeFiles files;
    files.folder = folder;
    files.areOpened = false;
    const Result<image::Recipe> recipe = image::readRecipe(json, files);
    if (!recipe)
        return tl::unexpected<platform::Error>(recipe.error());
    auto shared = std::make_shared<SharedRecipe>();
    shared->m_number = ++s_last;
    shared->m_json = json;
    shared->m_folder = folder;
    shared->m_recipe = *recipe;
    shared->m_settings = settingsOf(*recipe, recipeName(json));
    for (const QString &path : image::filesOf(*recipe))
        if (auto file = platform::LentFile::open(path)) // what is not there the worker misses
            shared->m_files.emplace(path, std::move(*file));
    return std::shared_ptr<const SharedRecipe>(shared);
}

const QList<MadeWith> &SharedRecipe::made() const
{
    if (m_made.isEmpty())
        m_made = madeWith(m_json, m_recipe);
    return m_made;
}

std::vector<Message> SharedRecipe::messages() const
{
    std::vector<Message> messages;
    RecipeFilesMessage named;
    std::vector<Descriptor> files;
    const auto tell = [&] {
        messages.push_back(toMessage(std::exchange(named, {})));
        messages.back().files = std::exchange(files, {});
    };
    for (const auto &[path, file] : m_files) {
        files.emplace_back(::fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0));
        named.paths.append(path);
        if (files.size() == platform::mostFiles)
            tell();
    }
    if (!files.empty())
        tell();
    messages.push_back(toMessage(RecipeMessage{m_json, m_folder}));
    return messages;
}

RecipeErrand::RecipeErrand(std::shared_ptr<const SharedRecipe> recipe, Task task, Take take)
    : m_recipe(std::move(recipe)), m_task(std::move(task)), m_take(std::move(take))
{
}

RecipeErrand::~RecipeErrand()
{
    if (m_isBegun)
        ::unlink(platform::encodedPath(m_task.target).constData());
}

qint64 RecipeErrand::expectedBytes() const
{
    constexpr qint64 idle = 64LL << 20;
    constexpr qint64 eachPixel = 12; // all of it, with a result of the same size beside it
    return m_task.pixels.isEmpty() ? 0 : idle + eachPixel * m_task.pixels.width() * m_task.pixels.height();
}

Result<Descriptor> RecipeErrand::makeTarget()
{
    const QByteArray path = platform::encodedPath(m_task.target);
    constexpr mode_t asTheFolderHasIt = 0666;
    if (m_isBegun)
        ::unlink(path.constData()); // of a worker that crashed
    Descriptor file(::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, asTheFolderHasIt));
    if (!file.isOpen()) {
        m_writeError = errno;
        return unwritten(m_task.target, m_writeError);
    }
    m_isBegun = true;
    return file;
}

std::vector<Message> RecipeErrand::begin(Hand &hand)
{
    m_result = {};
    m_writeError = 0;
    m_isMade = false;
    auto picture = platform::LentFile::open(m_task.path);
    if (!picture) {
        m_result.cause = QFileInfo::exists(m_task.path) ? RecipeResult::Cause::Other : RecipeResult::Cause::Vanished;
        fail(picture.error().message);
        return {};
    }
    auto target = makeTarget();
    if (!target) {
        fail(target.error().message);
        return {};
    }
    std::vector<Message> messages;
    if (std::exchange(hand.recipe, m_recipe->number()) != m_recipe->number())
        messages = m_recipe->messages();
    const bool isNeeded = needsFacts(m_recipe->recipe());
    messages.push_back(toMessage(
        PictureMessage{factsOfFile(m_task.path, m_task.index, isNeeded), isNeeded, meta::packetBeside(m_task.path)}));
    messages.back().files.push_back(picture->takeDescriptor());
    messages.push_back(toMessage(OutputsMessage{{0}}));
    messages.back().files.push_back(std::move(*target));
    messages.push_back(toMessage(MessageKind::Make));
    return messages;
}

Errand::Turn RecipeErrand::take(Message &message)
{
    if (const auto ready = fromMessage<ReadyMessage>(message)) {
        m_result.reason = ready->problem;
        return Turn::GoesOn;
    }
    if (const auto planned = fromMessage<PlannedMessage>(message)) {
        if (planned->plans.size() > 1)
            return Turn::Nonsense;
        const image::OutputPlan plan = planned->plans.value(0);
        m_result.reason = planned->problem.isEmpty() ? plan.problem : planned->problem;
        m_result.outcome = plan.isNotSupported ? RecipeResult::Outcome::NotSupported : RecipeResult::Outcome::Failed;
        m_result.losses = plan.losses;
        return Turn::GoesOn;
    }
    if (const auto made = fromMessage<MadeMessage>(message)) {
        if (made->index != 0 || m_isMade)
            return Turn::Nonsense;
        m_isMade = true;
        m_writeError = made->writeError;
        m_result.reason = made->problem;
        m_result.size = made->size;
        m_result.isLossless = made->isLossless;
        m_result.bytes = made->bytes;
        m_result.milliseconds = made->milliseconds;
        return Turn::GoesOn;
    }
    const bool isDone = MessageKind(message.kind) == MessageKind::Done && message.body.isEmpty();
    return isDone ? finish() : Turn::Nonsense;
}

/** The worker says that it is done; the file says whether it is. */
Errand::Turn RecipeErrand::finish()
{
    RecipeResult result = std::exchange(m_result, {});
    const auto file = platform::regularFile(m_task.target);
    if (m_writeError == 0 && m_isMade && result.reason.isEmpty() && (!file || file->bytes != result.bytes))
        m_writeError = EIO;
    if (m_writeError != 0)
        result.reason = unwritten(m_task.target, m_writeError).value().message;
    else if (!m_isMade && result.reason.isEmpty())
        result.reason = image::sentence(QT_TRANSLATE_NOOP("recipe", "no result"));
    if (result.reason.isEmpty()) {
        result.outcome = RecipeResult::Outcome::Ok;
        m_isBegun = false; // the caller owns it now
        if (m_recipe->recipe().outputs.first().dates == image::FileDates::Keep)
            takeDateOf(m_task.path, m_task.target);
        if (m_task.isNoted)
            markResult(m_task.target, m_task.path, settingsName(m_recipe->settings(), 0));
    }
    answer(std::move(result));
    return Turn::Over;
}

void RecipeErrand::fail(const QString &reason)
{
    RecipeResult result = std::exchange(m_result, {});
    result.outcome = RecipeResult::Outcome::Failed;
    result.reason = reason;
    answer(std::move(result));
}

void RecipeErrand::answer(RecipeResult result)
{
    if (m_writeError == ENOSPC || m_writeError == EDQUOT)
        result.cause = RecipeResult::Cause::Full;
    if (const Take take = std::exchange(m_take, {}))
        take(result);
}

} // namespace jobs
