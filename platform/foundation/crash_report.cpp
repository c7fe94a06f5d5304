#include "platform/foundation/crash_report.h"

#include "platform/foundation/paths.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool canReport = false;
#else
constexpr bool canReport = true;
#endif

constexpr int mostFrames = 64;
constexpr std::array signalsOfFaults = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

/** Bytes allocated before anything goes wrong. */
template<size_t size> struct Reserved
{
    std::array<char, size> bytes = {};
    volatile sig_atomic_t count = 0;

    void set(const QByteArray &text)
    {
        count = 0; // a signal now sees an empty text, not half a text
        const auto length = std::min<size_t>(size_t(text.size()), size - 1);
        std::memcpy(bytes.data(), text.constData(), length);
        bytes[length] = 0;
        count = sig_atomic_t(length);
    }
};

Reserved<4096> s_file;
Reserved<2048> s_head;
Reserved<4096> s_note;
std::array<char, 65536> s_stack; ///< an overflowed stack has no room for the handler's calls
std::array<void *, mostFrames> s_frames;

void write(int file, const char *bytes, size_t count)
{
    while (count > 0) {
        const ssize_t written = ::write(file, bytes, count);
        if (written <= 0)
            return;
        bytes += written;
        count -= size_t(written);
    }
}

void writeNumber(int file, int number)
{
    std::array<char, 12> digits;
    size_t first = digits.size();
    do {
        digits[--first] = char('0' + number % 10);
        number /= 10;
    } while (number > 0 && first > 0);
    write(file, digits.data() + first, digits.size() - first);
}

// Only async-signal-safe calls; SA_RESETHAND has restored the signal's default action.
void report(int signal)
{
    const int file = ::open(s_file.bytes.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file >= 0) {
        write(file, s_head.bytes.data(), size_t(s_head.count));
        write(file, "Signal: ", 8);
        writeNumber(file, signal);
        write(file, "\n", 1);
        write(file, s_note.bytes.data(), size_t(s_note.count));
        write(file, "\n", 1);
        ::backtrace_symbols_fd(s_frames.data(), ::backtrace(s_frames.data(), mostFrames), file);
        ::close(file);
    }
    ::raise(signal); // takes effect when the handler returns
}

} // namespace

bool keepCrashReports(const QString &file, const QByteArray &head)
{
    const QByteArray path = encodedPath(file);
    if (!canReport || path.isEmpty() || size_t(path.size()) >= s_file.bytes.size())
        return false;
    s_file.set(path);
    s_head.set(head);
    ::backtrace(s_frames.data(), mostFrames); // the first call loads a library
    stack_t stack = {};
    stack.ss_sp = s_stack.data();
    stack.ss_size = s_stack.size();
    ::sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_handler = report;
    action.sa_flags = int(SA_RESETHAND | SA_ONSTACK);
    return std::all_of(signalsOfFaults.begin(), signalsOfFaults.end(),
                       [&action](int signal) { return ::sigaction(signal, &action, nullptr) == 0; });
}

void noteForCrashReport(const QString &text)
{
    s_note.set(text.toUtf8());
}

QString crashReport(const QString &file)
{
    constexpr qint64 most = 65536;
    QFile report(file);
    return report.open(QIODevice::ReadOnly) ? QString::fromUtf8(report.read(most)) : QString();
}

} // namespace platform
