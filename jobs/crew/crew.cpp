#include "jobs/crew/crew.h"

#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "platform/foundation/processors.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>

#include <utility>

#include <fcntl.h>

namespace jobs {

using platform::Message;
using platform::WorkerEnd;

namespace {

constexpr qint64 megabyte = 1 << 20;

/** With so little a worker cannot even begin: it crashes for want of memory before anybody sees how much it has. */
bool needsMore(WorkerEnd end, const platform::WorkerLimits &limits)
{
    constexpr qint64 leastToBegin = 64 * megabyte;
    return end == WorkerEnd::TookTooMuch || (end == WorkerEnd::Crashed && limits.residentBytes < leastToBegin);
}

} // namespace

Crew::Crew(const CrewOptions &options, const QByteArray &recipe, const QString &folder)
    : m_options(options), m_size(options.workers > 0 ? options.workers : platform::usableProcessors()),
      m_recipe(recipe), m_folder(folder), m_pool(options.program, options.limits)
{
    m_pool.onMessage = [this](Id worker, Message message) { take(worker, std::move(message)); };
    m_pool.onEnded = [this](Id worker, WorkerEnd end) { takeEnd(worker, end); };
}

QString Crew::begin()
{
    image::RecipeFiles files;
    files.folder = m_folder;
    files.areOpened = false;
    const auto recipe = image::readRecipe(m_recipe, files);
    if (!recipe)
        return recipe.error().message;
    for (const QString &path : image::filesOf(*recipe))
        if (auto file = platform::LentFile::open(path)) // what is not there the worker misses
            m_files.emplace(path, std::move(*file));
    for (int tries = 0; tries < mostFailedStarts && m_ready.empty(); ++tries) {
        QEventLoop loop;
        m_wake = [&loop] { loop.quit(); };
        m_problem.clear();
        start();
        if (m_problem.isEmpty())
            loop.exec();
        m_wake = {};
    }
    return m_problem;
}

void Crew::start()
{
    QString problem;
    const std::optional<Id> worker = m_pool.start(&problem);
    if (worker) {
        m_pool.beginWork(*worker);
        return;
    }
    m_problem =
        image::sentence(QT_TRANSLATE_NOOP("recipe", "%1 cannot be started: %2")).arg(m_options.program, problem);
    if (onMissing)
        onMissing(m_problem);
}

void Crew::end(Id worker)
{
    m_ready.erase(worker);
    m_pool.end(worker);
}

void Crew::tellRecipe(Id worker)
{
    RecipeFilesMessage named;
    std::vector<platform::Descriptor> files;
    const auto tell = [&] {
        Message message = toMessage(std::exchange(named, {}));
        message.files = std::exchange(files, {});
        m_pool.send(worker, std::move(message));
    };
    for (const auto &[path, file] : m_files) {
        files.emplace_back(::fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0));
        named.paths.append(path);
        if (files.size() == platform::mostFiles)
            tell();
    }
    if (!files.empty())
        tell();
    m_pool.send(worker, toMessage(RecipeMessage{m_recipe, m_folder}));
}

void Crew::take(Id worker, Message message)
{
    if (m_ready.count(worker) != 0) {
        if (onMessage)
            onMessage(worker, message);
        return;
    }
    if (fromMessage<HelloMessage>(message)) {
        tellRecipe(worker);
        return;
    }
    const auto ready = fromMessage<ReadyMessage>(message);
    if (!ready) {
        m_pool.end(worker);
        takeEnd(worker, WorkerEnd::SpokeNonsense);
        return;
    }
    m_pool.endWork(worker);
    m_ready.insert(worker);
    if (m_wake) {
        m_problem = ready->problem;
        m_wake();
    } else if (onReady) {
        onReady(worker);
    }
}

void Crew::takeEnd(Id worker, WorkerEnd end)
{
    if (m_ready.erase(worker) != 0) {
        if (onEnded)
            onEnded(worker, end);
        return;
    }
    m_problem =
        needsMore(end, m_options.limits)
            ? image::sentence("a worker needs more than %1 MB of memory").arg(m_options.limits.residentBytes / megabyte)
            : image::sentence("a worker ended while it read the recipe");
    if (m_wake)
        m_wake();
    else if (onMissing)
        onMissing(m_problem);
}

QString reasonFor(WorkerEnd end, const platform::WorkerLimits &limits)
{
    if (needsMore(end, limits))
        return image::sentence(QT_TRANSLATE_NOOP("recipe", "it needs more than %1 MB of memory"))
            .arg(limits.residentBytes / megabyte);
    if (end == WorkerEnd::TookTooLong)
        return image::sentence(QT_TRANSLATE_NOOP("recipe", "it took longer than %1 seconds")).arg(limits.seconds);
    return image::sentence(QT_TRANSLATE_NOOP("recipe", "its reader crashed"));
}

std::optional<HelloMessage> confinementOf(const QString &program)
{
    platform::WorkerPool pool(program, {});
    QEventLoop loop;
    std::optional<HelloMessage> hello;
    pool.onMessage = [&](platform::WorkerPool::Id, const Message &message) {
        hello = fromMessage<HelloMessage>(message);
        loop.quit();
    };
    pool.onEnded = [&loop](platform::WorkerPool::Id, WorkerEnd) { loop.quit(); };
    if (pool.start())
        loop.exec();
    return hello;
}

QString workerProgram()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString beside = programs.filePath(QStringLiteral("quorlin-worker"));
    const QString installed = QDir::cleanPath(programs.filePath(QStringLiteral("../libexec/quorlin/quorlin-worker")));
    return QFileInfo::exists(beside) ? beside : installed;
}

} // namespace jobs
