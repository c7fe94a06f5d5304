#include "platform/file/mapped_file.h"

#include <QFile>

#include <cstdint>

#include <csignal>
#include <sys/mman.h>
#include <unistd.h>

namespace platform {

/** The system reports an unreadable page by a signal to the thread that touches it. */
struct MappedFaults
{
    static inline MappedFile *volatile first = nullptr;
    static inline struct sigaction before = {};

    static void handle(int signal, siginfo_t *info, void *)
    {
        for (MappedFile *file = first; file; file = file->m_next)
            if (file->mend(info->si_addr))
                return;
        // Not our mapping: the signal occurs again, and ends the process as it would have without this handler.
        ::sigaction(signal, &before, nullptr);
    }

    static void listen()
    {
        struct sigaction action = {};
        action.sa_sigaction = handle;
        action.sa_flags = SA_SIGINFO | SA_NODEFER;
        ::sigaction(SIGBUS, &action, &before);
    }
};

MappedFile::MappedFile(QFile &file)
    : m_file(file), m_size(file.size()), m_data(file.map(0, m_size)), m_next(MappedFaults::first)
{
    if (!m_next)
        MappedFaults::listen();
    MappedFaults::first = this;
}

MappedFile::~MappedFile()
{
    if (MappedFaults::first == this)
        MappedFaults::first = m_next;
    for (MappedFile *file = MappedFaults::first; file; file = file->m_next)
        if (file->m_next == this)
            file->m_next = m_next;
    if (!MappedFaults::first)
        ::sigaction(SIGBUS, &MappedFaults::before, nullptr);
    if (m_data)
        m_file.unmap(m_data);
}

QByteArray MappedFile::bytes() const
{
    return m_data ? QByteArray::fromRawData(reinterpret_cast<const char *>(m_data), m_size) : QByteArray();
}

/** Maps zeros over the page; called in the middle of whatever touched it. */
bool MappedFile::mend(const void *address)
{
    const auto at = reinterpret_cast<std::uintptr_t>(address);
    const auto begin = reinterpret_cast<std::uintptr_t>(m_data);
    if (!m_data || at < begin || at >= begin + std::uintptr_t(m_size))
        return false;
    const auto pageBytes = std::uintptr_t(::sysconf(_SC_PAGESIZE));
    void *page = reinterpret_cast<void *>(at / pageBytes * pageBytes);
    m_isSpoilt = true;
    return ::mmap(page, pageBytes, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0) == page;
}

} // namespace platform
