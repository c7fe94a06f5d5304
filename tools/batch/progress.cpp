#include "tools/batch/progress.h"

#include "platform/foundation/paths.h"

#include <cstdio>
#include <unistd.h>

void say(const QString &text)
{
    std::fputs(platform::encodedPath(text).constData(), stderr);
}

Progress::Progress(const CommandLine &line) : m_isQuiet(line.isQuiet)
{
    const bool isTerminal = ::isatty(STDERR_FILENO) == 1;
    m_isShown = line.progress == CommandLine::Progress::Always ||
                (line.progress == CommandLine::Progress::Auto && isTerminal && !line.isQuiet);
    m_timer.start();
}

void Progress::expect(int lines, bool mayBeMore)
{
    m_lines = lines;
    m_mayBeMore = mayBeMore;
}

void Progress::take(const jobs::ReportLine &line)
{
    ++m_done;
    const bool isFailure = line.status == jobs::LineStatus::Failed || line.status == jobs::LineStatus::NotSupported;
    m_failed += isFailure;
    if (isFailure) {
        clear();
        say(QStringLiteral("%1: %2\n").arg(line.input, line.reason));
    }
    if (m_isShown)
        show();
}

void Progress::finish(const jobs::Summary &summary, bool isPlan)
{
    clear();
    if (!m_isQuiet)
        std::fprintf(stderr, "%d %s, %d failed, %d not supported, %d skipped\n", summary.ok,
                     isPlan ? "planned" : "done", summary.failed, summary.notSupported, summary.skipped);
}

void Progress::show()
{
    constexpr qint64 milliseconds = 1000;
    const int lines = qMax(m_lines, m_done);
    const qint64 left = m_timer.elapsed() * (lines - m_done) / qMax(m_done, 1) / milliseconds;
    std::fprintf(stderr, "\r\033[K%d of %d%s, %lld s left, %d failed", m_done, lines, m_mayBeMore ? "+" : "",
                 static_cast<long long>(left), m_failed);
    std::fflush(stderr);
    m_isDirty = true;
}

void Progress::clear()
{
    if (m_isDirty)
        std::fputs("\r\033[K", stderr);
    m_isDirty = false;
}
