#include "platform/workers/worker_pool.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform {
namespace {

constexpr int betweenLooks = 100; // milliseconds
constexpr int loadingSeconds = 60;

enum class Libraries { Unloaded, Loading, Loaded };

/** The descriptors of a child: nothing to read, no output except errors, and its socket. */
class SpawnActions
{
public:
    explicit SpawnActions(int socket)
    {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&m_actions, socket, workerSocket);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, workerSocket + 1);
    }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;
    ~SpawnActions() { posix_spawn_file_actions_destroy(&m_actions); }
    const posix_spawn_file_actions_t *get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

/** The number of the new process, or a negative errno. */
pid_t spawned(const QString &program, int socket, qint64 bytes, const QStringList &further)
{
    const QByteArray name = QFile::encodeName(program);
    QByteArrayList texts = {name, QByteArray::number(::getpid()), QByteArray::number(bytes)};
    for (const QString &argument : further)
        texts.append(QFile::encodeName(argument));
    std::vector<char *> arguments;
    for (QByteArray &text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    const SpawnActions actions(socket);
    pid_t child = -1;
    const int problem = posix_spawn(&child, name.constData(), actions.get(), nullptr, arguments.data(), environ);
    return problem == 0 ? child : -problem;
}

bool hasLeft(int process)
{
    const pid_t left = ::waitpid(process, nullptr, WNOHANG);
    return left == process || (left < 0 && errno == ECHILD);
}

} // namespace

struct WorkerPool::Worker
{
    Worker(pid_t number, Descriptor end, MessageSocket::Files files) : process(number), socket(std::move(end), files)
    {
        const QByteArray path = QByteArrayLiteral("/proc/") + QByteArray::number(number) + "/statm";
        memory = Descriptor(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    }

    qint64 residentBytes() const
    {
        std::array<char, 128> text = {};
        if (::pread(memory.number(), text.data(), text.size() - 1, 0) <= 0)
            return 0;
        const char *resident = std::strchr(text.data(), ' ');
        return resident ? std::atoll(resident) * ::sysconf(_SC_PAGESIZE) : 0;
    }

    pid_t process;
    MessageSocket socket;
    Descriptor memory;
    std::unique_ptr<QSocketNotifier> readable;
    std::unique_ptr<QSocketNotifier> writable;
    bool isAtWork = false;
    Libraries libraries = Libraries::Unloaded;
    qint64 workedFor = 0; ///< milliseconds
    int mostSeconds = 0;
};

WorkerPool::WorkerPool(const QString &program, const WorkerLimits &limits, MessageSocket::Files files)
    : m_program(program), m_limits(limits), m_files(files)
{
    QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { watch(); });
    m_watch.setTimerType(Qt::PreciseTimer);
    m_watch.setInterval(betweenLooks);
}

WorkerPool::~WorkerPool()
{
    while (!m_workers.empty())
        remove(m_workers.begin()->first);
    // One that hangs in a system call cannot be waited for; it ends when it returns.
    constexpr int looks = 100;
    constexpr int microseconds = 10'000;
    for (int i = 0; i < looks && !m_ending.empty(); ++i) {
        reap();
        if (!m_ending.empty())
            ::usleep(microseconds);
    }
}

std::optional<WorkerPool::Id> WorkerPool::start(QString *problem)
{
    MessageSocket::Pair ends = MessageSocket::makePair();
    const pid_t child =
        ends.one.isOpen() ? spawned(m_program, ends.other.number(), m_limits.residentBytes, m_arguments) : -errno;
    if (child < 0) {
        if (problem)
            *problem = QString::fromLocal8Bit(std::strerror(-child));
        return std::nullopt;
    }
    if (m_limits.niceness > 0)
        ::setpriority(PRIO_PROCESS, id_t(child), ::getpriority(PRIO_PROCESS, 0) + m_limits.niceness);
    ::fcntl(ends.one.number(), F_SETFL, O_NONBLOCK);
    const Id id = m_next++;
    auto worker = std::make_unique<Worker>(child, std::move(ends.one), m_files);
    const int socket = worker->socket.descriptor();
    worker->readable = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    worker->writable = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
    worker->writable->setEnabled(false);
    QObject::connect(worker->readable.get(), &QSocketNotifier::activated, &m_watch, [this, id] { serve(id); });
    QObject::connect(worker->writable.get(), &QSocketNotifier::activated, &m_watch, [this, id] { sendWaiting(id); });
    m_workers.emplace(id, std::move(worker));
    if (!m_watch.isActive()) {
        m_sinceWatch.start();
        m_watch.start();
    }
    return id;
}

void WorkerPool::send(Id id, Message message)
{
    const auto found = m_workers.find(id);
    if (found == m_workers.end())
        return;
    found->second->socket.send(std::move(message));
    sendWaiting(id);
}

void WorkerPool::sendWaiting(Id id)
{
    const auto found = m_workers.find(id);
    if (found == m_workers.end())
        return;
    Worker &worker = *found->second;
    worker.socket.sendWaiting();
    worker.writable->setEnabled(worker.socket.hasWaiting() && worker.socket.state() == MessageSocket::State::Open);
}

void WorkerPool::serve(Id id)
{
    if (const auto found = m_workers.find(id); found != m_workers.end())
        found->second->socket.receive();
    // The receiver of a message may end the worker.
    for (auto found = m_workers.find(id); found != m_workers.end(); found = m_workers.find(id)) {
        MessageSocket &socket = found->second->socket;
        std::optional<Message> message = socket.next();
        if (!message) {
            if (socket.state() != MessageSocket::State::Open)
                finish(id,
                       socket.state() == MessageSocket::State::Ended ? WorkerEnd::Crashed : WorkerEnd::SpokeNonsense);
            return;
        }
        if (message->kind == loadingLibraries || message->kind == librariesLoaded) {
            if (!takeLoading(id, *message))
                finish(id, WorkerEnd::SpokeNonsense);
        } else if (onMessage) {
            onMessage(id, std::move(*message));
        }
    }
}

/** Only once, so that a worker cannot work forever. */
bool WorkerPool::takeLoading(Id id, const Message &message)
{
    Worker &worker = *m_workers.at(id);
    const Libraries expected = message.kind == loadingLibraries ? Libraries::Unloaded : Libraries::Loading;
    if (worker.libraries != expected || !message.body.isEmpty() || !message.files.empty())
        return false;
    worker.libraries = expected == Libraries::Unloaded ? Libraries::Loading : Libraries::Loaded;
    worker.workedFor = 0;
    return true;
}

bool WorkerPool::waitFor(Id id, int milliseconds)
{
    const auto found = m_workers.find(id);
    if (found == m_workers.end())
        return false;
    MessageSocket &socket = found->second->socket;
    const short events = short(POLLIN | (socket.hasWaiting() ? POLLOUT : 0));
    pollfd wait = {socket.descriptor(), events, 0};
    if (::poll(&wait, 1, milliseconds) <= 0) {
        watch();
        return false;
    }
    if ((wait.revents & POLLOUT) != 0)
        sendWaiting(id);
    if ((wait.revents & ~POLLOUT) != 0)
        serve(id);
    return true;
}

void WorkerPool::beginWork(Id id, int seconds)
{
    if (const auto found = m_workers.find(id); found != m_workers.end()) {
        found->second->isAtWork = true;
        found->second->mostSeconds = seconds > 0 ? seconds : m_limits.seconds;
        found->second->workedFor = 0;
    }
}

void WorkerPool::endWork(Id id)
{
    if (const auto found = m_workers.find(id); found != m_workers.end())
        found->second->isAtWork = false;
}

void WorkerPool::resumeWork(Id id)
{
    if (const auto found = m_workers.find(id); found != m_workers.end())
        found->second->isAtWork = true;
}

void WorkerPool::end(Id id)
{
    remove(id);
}

void WorkerPool::finish(Id id, WorkerEnd end)
{
    remove(id);
    if (onEnded)
        onEnded(id, end);
}

void WorkerPool::remove(Id id)
{
    const auto found = m_workers.find(id);
    if (found == m_workers.end())
        return;
    Worker &worker = *found->second;
    ::kill(worker.process, SIGKILL);
    worker.readable->setEnabled(false);
    worker.writable->setEnabled(false);
    if (!hasLeft(worker.process))
        m_ending.push_back(worker.process);
    m_gone.push_back(std::move(found->second));
    m_workers.erase(found);
}

void WorkerPool::watch()
{
    // The time between two checks counts as at most this if the machine slept or this process was stopped.
    constexpr qint64 longest = 1000;
    const qint64 since = std::min(m_sinceWatch.restart(), longest);
    m_gone.clear();
    reap();
    constexpr qint64 milliseconds = 1000;
    std::vector<std::pair<Id, WorkerEnd>> beyond;
    for (const auto &[id, worker] : m_workers) {
        worker->workedFor += worker->isAtWork ? since : 0;
        const int seconds = worker->mostSeconds + (worker->libraries == Libraries::Loading ? loadingSeconds : 0);
        if (worker->isAtWork && worker->workedFor > seconds * milliseconds)
            beyond.emplace_back(id, WorkerEnd::TookTooLong);
        else if (worker->residentBytes() > m_limits.residentBytes)
            beyond.emplace_back(id, WorkerEnd::TookTooMuch);
    }
    for (const auto &[id, end] : beyond)
        finish(id, end);
}

void WorkerPool::reap()
{
    std::erase_if(m_ending, hasLeft);
}

void endWithParent(int parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        std::_Exit(EXIT_FAILURE);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        std::signal(signal, SIG_IGN);
}

} // namespace platform
