#include "jobs/crew/recipe_worker.h"

#include "image/recipe/make.h"
#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "jobs/crew/messages.h"
#include "jobs/names.h"
#include "jobs/reading/picture_reader.h"
#include "meta/sidecar_metadata.h"
#include "platform/descriptors/write_all.h"
#include "platform/file/lent_file.h"

#include <QElapsedTimer>
#include <QHash>

#include <unistd.h>

namespace jobs {
namespace {

using platform::Descriptor;
using platform::ImageSource;
using platform::LentFile;
using platform::Message;
using platform::Result;

using SharedFile = std::shared_ptr<const LentFile>;

class RecipeWorker
{
public:
    RecipeWorker(platform::MessageSocket &socket, const WorkerTrial &trial) : m_socket(socket), m_trial(trial) {}

    /** False for a message that makes no sense here. */
    bool take(Message &message)
    {
        switch (MessageKind(message.kind)) {
        case MessageKind::RecipeFiles:
            return takeFiles(message);
        case MessageKind::Recipe:
            return takeRecipe(message);
        case MessageKind::Picture:
            return takePicture(message);
        case MessageKind::Outputs:
            return takeOutputs(message);
        case MessageKind::Make:
            make();
            return true;
        case MessageKind::Read:
            return takeRead(message);
        default:
            return false;
        }
    }

private:
    bool takeFiles(Message &message)
    {
        const auto files = fromMessage<RecipeFilesMessage>(message);
        if (!files)
            return false;
        for (qsizetype i = 0; i < files->paths.size(); ++i)
            m_files.insert(files->paths[i],
                           std::make_shared<const LentFile>(std::move(message.files[size_t(i)]), files->paths[i]));
        return true;
    }

    bool takeRecipe(const Message &message)
    {
        const auto told = fromMessage<RecipeMessage>(message);
        if (!told)
            return false;
        image::RecipeFiles files;
        files.folder = told->folder;
        files.open = [this](const QString &path) -> Result<SharedFile> {
            const SharedFile file = m_files.value(path);
            if (file)
                return file;
            return platform::failure(platform::ErrorCode::NotFound, path);
        };
        const Result<image::Recipe> recipe = image::readRecipe(told->json, files);
        m_recipe = recipe.value_or(image::Recipe());
        m_socket.send(toMessage(ReadyMessage{recipe ? QString() : recipe.error().message}));
        return true;
    }

    bool takePicture(Message &message)
    {
        const auto told = fromMessage<PictureMessage>(message);
        if (!told)
            return false;
        forgetPicture();
        m_facts = told->facts;
        if (m_trial.sleep) {
            planAsleep();
            return true;
        }
        const auto file = std::make_shared<const LentFile>(std::move(message.files.front()), told->facts.path);
        const Result<ImageSource> source = ImageSource::fromLent(file);
        PlannedMessage planned;
        if (told->wantsFacts)
            planned.facts = meta::withSidecar(platform::pictureFacts(file), file, told->packet);
        m_facts = withPictureFacts(m_facts, planned.facts);
        if (source) {
            m_source = meta::withSidecar(*source, file, told->packet);
            m_plans = image::planOf(m_recipe, m_source, fill());
            planned.plans = m_plans;
            planned.pixels = m_source.uprightSize();
        } else {
            planned.problem = source.error().message;
        }
        m_problem = planned.problem;
        m_socket.send(toMessage(planned));
        return true;
    }

    bool takeOutputs(Message &message)
    {
        const auto told = fromMessage<OutputsMessage>(message);
        if (!told)
            return false;
        for (qsizetype i = 0; i < told->indices.size(); ++i)
            m_outputs.insert_or_assign(told->indices[i], std::move(message.files[size_t(i)]));
        return true;
    }

    bool takeRead(Message &message)
    {
        const auto told = fromMessage<ReadMessage>(message);
        if (!told)
            return false;
        if (m_trial.beforeReading)
            m_trial.beforeReading(told->paths.first());
        m_socket.send(toMessage(m_reader.answer(*told, std::move(message.files))));
        return true;
    }

    void planAsleep()
    {
        ::usleep(useconds_t(m_trial.sleep->lookingUs));
        PlannedMessage planned;
        planned.pixels = QSize(4, 3);
        for (const image::RecipeOutput &output : m_recipe.outputs) {
            image::OutputPlan plan;
            plan.type = output.type == image::OutputType::Original ? image::OutputType::Jpeg : output.type;
            plan.size = planned.pixels;
            planned.plans.append(plan);
        }
        m_plans = planned.plans;
        m_socket.send(toMessage(planned));
    }

    /** Answers for all outputs that were to be made. */
    void answerAll(const std::function<void(MadeMessage &message)> &fill)
    {
        std::vector<int> indices;
        for (const auto &[index, file] : m_outputs)
            indices.push_back(index);
        for (const int index : indices) {
            MadeMessage message;
            message.index = index;
            fill(message);
            m_socket.send(toMessage(message));
        }
        forgetPicture();
        m_socket.send(toMessage(MessageKind::Done));
    }

    /** True if there was a trial instead of the work. */
    bool tries()
    {
        const QString trouble = m_trial.beforeMaking ? m_trial.beforeMaking(m_facts.path) : QString();
        if (!trouble.isEmpty())
            answerAll([&trouble](MadeMessage &message) { message.problem = trouble; });
        else if (m_trial.sleep)
            answerAll([this](MadeMessage &message) {
                constexpr int microseconds = 1000;
                ::usleep(useconds_t(m_trial.sleep->makingUs));
                keep(message, {message.index, QByteArrayLiteral("nothing"), QSize(4, 3), false});
                message.milliseconds = (m_trial.sleep->lookingUs + m_trial.sleep->makingUs) / microseconds;
            });
        return !trouble.isEmpty() || m_trial.sleep;
    }

    /** True if there is nothing to do, and the caller did not wait for the plan. */
    bool lacksPicture()
    {
        if (!m_problem.isEmpty())
            answerAll([this](MadeMessage &message) { message.problem = m_problem; });
        return !m_problem.isEmpty();
    }

    image::FillText fill() const
    {
        return [this](const QString &pattern, QSize size) { return watermarkFrom(pattern, m_facts, size); };
    }

    void make()
    {
        if (lacksPicture() || tries())
            return;
        for (qsizetype index = 0; index < m_plans.size(); ++index)
            if (!m_outputs.contains(int(index)))
                m_plans[index].problem = QStringLiteral("-"); // nothing is to be made of it
        QElapsedTimer timer;
        timer.start();
        const auto take = [&](int index, const Result<image::MadeOutput> &made) {
            MadeMessage message;
            message.index = index;
            if (made)
                keep(message, *made);
            else
                message.problem = made.error().message;
            message.milliseconds = timer.restart();
            m_socket.send(toMessage(message));
        };
        image::makeOutputs(m_recipe, m_source, m_plans, fill(), take);
        forgetPicture();
        m_socket.send(toMessage(MessageKind::Done));
    }

    void keep(MadeMessage &message, const image::MadeOutput &made)
    {
        const auto output = m_outputs.find(message.index);
        if (output == m_outputs.end())
            return;
        message.size = made.size;
        message.isLossless = made.isLossless;
        message.bytes = made.bytes.size();
        const int trouble = m_trial.beforeWriting ? m_trial.beforeWriting(m_facts.path) : 0;
        message.writeError = trouble != 0 ? trouble : platform::writeAll(output->second, made.bytes);
        m_outputs.erase(output);
    }

    void forgetPicture()
    {
        m_source = ImageSource();
        m_plans.clear();
        m_outputs.clear();
    }

    platform::MessageSocket &m_socket;
    const WorkerTrial &m_trial;
    QHash<QString, SharedFile> m_files;
    image::Recipe m_recipe;
    ImageSource m_source;
    QString m_problem; ///< why the picture could not be opened
    text::TokenFacts m_facts;
    QList<image::OutputPlan> m_plans;
    std::map<int, Descriptor> m_outputs;
    PictureReader m_reader;
};

} // namespace

void workOnRecipes(platform::MessageSocket &socket, const platform::Confinement &confinement, const WorkerTrial &trial)
{
    HelloMessage hello;
    hello.hasNoNewPrivileges = confinement.hasNoNewPrivileges;
    hello.hasFileRules = confinement.hasFileRules;
    hello.hasCallRules = confinement.hasCallRules;
    socket.send(toMessage(hello));
    RecipeWorker worker(socket, trial);
    while (std::optional<Message> message = socket.wait())
        if (!worker.take(*message))
            return;
}

} // namespace jobs
