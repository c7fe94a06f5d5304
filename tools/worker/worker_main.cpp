#include "tools/worker/worker_main.h"

#include "platform/imageio/source/start_libraries.h"
#include "platform/workers/worker_pool.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include <sys/resource.h>

namespace {

void limit(int what, rlim_t amount)
{
    const rlimit both = {amount, amount};
    ::setrlimit(__rlimit_resource(what), &both);
}

/** What backs up the memory watchdog: a step that allocates everything at once is faster than any check. */
void limitAddresses(qint64 residentBytes)
{
#if !defined(__SANITIZE_ADDRESS__)
    constexpr qint64 times = 3; // addresses that are never used count too
    if (residentBytes > 0)
        limit(RLIMIT_AS, rlim_t(residentBytes * times));
#else
    Q_UNUSED(residentBytes);
#endif
}

/** The texts in which reasons are given; a file that cannot be read leaves them as they are. */
class Tables
{
public:
    Tables(char **first, char **last)
    {
        for (char **file = first; file != last; ++file) {
            auto table = std::make_unique<QTranslator>();
            if (table->load(QFile::decodeName(*file)) && QCoreApplication::installTranslator(table.get()))
                m_tables.push_back(std::move(table));
        }
    }

private:
    std::vector<std::unique_ptr<QTranslator>> m_tables;
};

} // namespace

int runWorker(int count, char **arguments, const jobs::WorkerTrial &trial)
{
    constexpr int own = 3;
    if (count < own)
        return EXIT_FAILURE;
    platform::endWithParent(std::atoi(arguments[1]));
    limit(RLIMIT_CORE, 0); // no pictures of users are around
    // Before memory is short: the font library would find no font, and write that to the cache of all programs.
    const auto folders = platform::systemFolders();
    limitAddresses(std::atoll(arguments[2]));
    const QCoreApplication application(count, arguments);
    const Tables tables(arguments + own, arguments + count);
    platform::prepareForPictures(1);
    const platform::Confinement active = platform::confine(folders);
    platform::MessageSocket socket(platform::Descriptor(platform::workerSocket), platform::MessageSocket::Files::Taken);
    const auto tell = [&socket](quint16 kind) {
        platform::Message message;
        message.kind = kind;
        socket.send(std::move(message));
    };
    platform::watchLibraries([tell] { tell(platform::loadingLibraries); }, [tell] { tell(platform::librariesLoaded); });
    jobs::workOnRecipes(socket, active, trial);
    return EXIT_SUCCESS;
}
