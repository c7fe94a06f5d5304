// Does harm, or tries to, where the name of a picture begins with "try-" when something is made of it, or with "read-" when it is looked
// into: to a file and a process that its environment names.

#include "platform/workers/worker_pool.h"
#include "tools/worker/worker_main.h"

#include <QFileInfo>
#include <QStringList>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

/** What the harm is done to comes in the environment, since the worker cannot read it anywhere. */
QByteArray victim()
{
    return qgetenv("QUORLIN_TRIAL_VICTIM");
}

int victimProcess()
{
    return qEnvironmentVariableIntValue("QUORLIN_TRIAL_PROCESS");
}

int succeeded(bool isDone)
{
    return isDone ? 0 : errno;
}

/** The input that the worker has open is among its descriptors, after its socket. */
int eachDescriptor(int (*attack)(int descriptor))
{
    constexpr int first = 4;
    constexpr int behind = 64;
    int problem = EBADF; // if there is none
    for (int descriptor = first; descriptor < behind; ++descriptor)
        if ((::fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDONLY && ::fcntl(descriptor, F_GETFD) >= 0)
            problem = std::min(problem, attack(descriptor));
    return problem;
}

/** As attack(), on the picture that it was given. */
int attackOnInput(const QString &what)
{
    if (what == QLatin1String("inputtruncate"))
        return eachDescriptor([](int file) { return succeeded(::ftruncate(file, 0) == 0); });
    if (what == QLatin1String("inputchmod"))
        return eachDescriptor([](int file) { return succeeded(::fchmod(file, 0777) == 0); });
    if (what == QLatin1String("inputchown"))
        return eachDescriptor([](int file) { return succeeded(::fchown(file, 1, 1) == 0); });
    if (what == QLatin1String("inpututimes"))
        return eachDescriptor([](int file) { return succeeded(::futimens(file, nullptr) == 0); });
    if (what == QLatin1String("inputsetxattr"))
        return eachDescriptor([](int file) { return succeeded(::fsetxattr(file, "user.trial", "x", 1, 0) == 0); });
    if (what == QLatin1String("inputreopen"))
        return eachDescriptor([](int file) {
            const std::string again = "/proc/self/fd/" + std::to_string(file);
            return succeeded(::open(again.c_str(), O_WRONLY) >= 0 || ::truncate(again.c_str(), 0) == 0);
        });
    if (what == QLatin1String("inputmap"))
        return eachDescriptor(
            [](int file) { return succeeded(::mmap(nullptr, 1, PROT_WRITE, MAP_SHARED, file, 0) != MAP_FAILED); });
    return -1;
}

/** 0 where the attack succeeded, else an errno. */
int attack(const QString &what)
{
    const QByteArray path = victim();
    const std::string other = path.toStdString() + ".new";
    if (what == QLatin1String("socket"))
        return succeeded(::socket(AF_INET, SOCK_STREAM, 0) >= 0);
    if (what == QLatin1String("localsocket"))
        return succeeded(::socket(AF_UNIX, SOCK_STREAM, 0) >= 0);
    if (what == QLatin1String("read"))
        return succeeded(::open(path.constData(), O_RDONLY) >= 0);
    if (what == QLatin1String("write"))
        return succeeded(::open(path.constData(), O_WRONLY) >= 0);
    if (what == QLatin1String("create"))
        return succeeded(::open(other.c_str(), O_WRONLY | O_CREAT, 0600) >= 0);
    if (what == QLatin1String("createempty"))
        return succeeded(::open(path.constData(), O_RDONLY | O_TRUNC) >= 0);
    if (what == QLatin1String("truncate"))
        return succeeded(::truncate(path.constData(), 0) == 0);
    if (what == QLatin1String("remove"))
        return succeeded(::unlink(path.constData()) == 0);
    if (what == QLatin1String("rename"))
        return succeeded(::rename(path.constData(), other.c_str()) == 0);
    if (what == QLatin1String("link"))
        return succeeded(::link(path.constData(), other.c_str()) == 0 || ::symlink("/", other.c_str()) == 0);
    if (what == QLatin1String("chmod"))
        return succeeded(::chmod(path.constData(), 0777) == 0);
    if (what == QLatin1String("chown"))
        return succeeded(::chown(path.constData(), 1, 1) == 0);
    if (what == QLatin1String("utimes"))
        return succeeded(::utimensat(AT_FDCWD, path.constData(), nullptr, 0) == 0);
    if (what == QLatin1String("setxattr"))
        return succeeded(::setxattr(path.constData(), "user.trial", "x", 1, 0) == 0);
    if (what == QLatin1String("signal"))
        return succeeded(::kill(victimProcess(), SIGTERM) == 0);
    if (what == QLatin1String("threadsignal"))
        return succeeded(::tgkill(victimProcess(), victimProcess(), SIGTERM) == 0);
    if (what == QLatin1String("ptrace"))
        return succeeded(::ptrace(PTRACE_ATTACH, victimProcess(), nullptr, nullptr) == 0);
    if (what == QLatin1String("fork"))
        return succeeded(::fork() >= 0);
    if (what == QLatin1String("program")) {
        ::execl("/bin/touch", "touch", other.c_str(), nullptr);
        return errno;
    }
    return attackOnInput(what);
}

void tell(quint16 kind)
{
    platform::MessageSocket socket(platform::Descriptor(::dup(platform::workerSocket)),
                                   platform::MessageSocket::Files::Refused);
    platform::Message message;
    message.kind = kind;
    socket.send(std::move(message));
}

void hangAfterLoading()
{
    tell(platform::loadingLibraries);
    ::sleep(3); // more than it may work
    tell(platform::librariesLoaded);
    for (;;)
        ::pause();
}

/** @return why nothing is made of the picture; empty if it is a picture like any other */
QString trial(const QString &path, QLatin1String prefix)
{
    const QString name = QFileInfo(path).completeBaseName();
    if (!name.startsWith(prefix))
        return {};
    const QString what = name.mid(prefix.size()).section(u'-', 0, 0);
    if (what == QLatin1String("crash"))
        std::raise(SIGSEGV);
    if (what == QLatin1String("hang"))
        for (;;)
            ::pause();
    if (what == QLatin1String("again"))
        tell(platform::librariesLoaded);
    if (what == QLatin1String("late"))
        hangAfterLoading();
    if (what == QLatin1String("nonsense"))
        (void)::write(platform::workerSocket, "nonsense that is no message at all", 34);
    if (what == QLatin1String("memory")) {
        constexpr size_t step = 16 << 20;
        for (;;) {
            void *more = std::malloc(step); // NOLINT: never given back
            if (more)
                std::memset(more, 1, step);
            ::usleep(2000);
        }
    }
    const int problem = attack(what);
    return problem == 0 ? QStringLiteral("it succeeded")
                        : QStringLiteral("refused: ") + QString::fromLatin1(strerrorname_np(problem));
}

/** The first output of a picture "full-…" of each worker finds no room. */
int roomTrial(const QString &path)
{
    static bool isFull = true;
    return QFileInfo(path).completeBaseName().startsWith(QLatin1String("full-")) && std::exchange(isFull, false)
               ? ENOSPC
               : 0;
}

} // namespace

int main(int argc, char **argv)
{
    jobs::WorkerTrial trials;
    trials.beforeMaking = [](const QString &path) { return trial(path, QLatin1String("try-")); };
    trials.beforeWriting = roomTrial;
    trials.beforeReading = [](const QString &path) { (void)trial(path, QLatin1String("read-")); };
    std::_Exit(runWorker(argc, argv, trials));
}
