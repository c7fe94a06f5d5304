#include "jobs/services/watch_service.h"

#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"

namespace jobs {

namespace {

constexpr int betweenLooksMs = 250; ///< a picture is complete a while after the last event about it

QVariantMap answer(const char *code, const QString &detail = {})
{
    return {{QStringLiteral("code"), QString::fromLatin1(code)}, {QStringLiteral("detail"), detail}};
}

} // namespace

WatchService::WatchService(QObject *parent) : QObject(parent)
{
    m_looks.setInterval(betweenLooksMs);
    connect(&m_looks, &QTimer::timeout, this, &WatchService::look);
}

QVariantMap WatchService::start(const QString &folder, const QString &work)
{
    stop();
    const QString path = platform::absolutePath(folder);
    if (!platform::folderExists(path))
        return answer("missing");
    WatchLock lock;
    if (!lock.take(path, work))
        return answer("taken");
    auto watch = PictureWatch::start({path}, {});
    if (!watch)
        return answer("system", watch.error().message);
    m_folder = path;
    m_lock.emplace(std::move(lock));
    m_watch.emplace(std::move(*watch));
    if (m_watch->descriptor() >= 0) {
        m_news = std::make_unique<QSocketNotifier>(m_watch->descriptor(), QSocketNotifier::Read);
        connect(m_news.get(), &QSocketNotifier::activated, this, &WatchService::look);
    }
    m_looks.start();
    return answer("");
}

void WatchService::stop()
{
    m_looks.stop();
    m_news.reset();
    m_watch.reset();
    m_lock.reset();
    m_folder.clear();
}

void WatchService::leaveOut(const QString &path)
{
    if (m_watch)
        m_watch->leaveOut(path);
}

void WatchService::look()
{
    // Who listens may stop watching.
    while (m_watch) {
        if (m_watch->descriptor() < 0) // the folders are looked through from now on
            m_news.reset();
        if (const QString news = m_watch->news(); !news.isEmpty())
            Q_EMIT told(news);
        else if (const auto state = m_watch->look(0); state == PictureWatch::State::Ready)
            Q_EMIT arrived(m_watch->take().path);
        else if (state == PictureWatch::State::Ended) {
            stop();
            Q_EMIT ended();
        } else {
            return;
        }
    }
}

} // namespace jobs
