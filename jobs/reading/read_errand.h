#pragma once

#include "jobs/desk/worker_desk.h"
#include "jobs/reading/reading_messages.h"

#include <QImage>
#include <QPointer>

#include <functional>

namespace jobs {

/** What is wanted of a picture. */
struct ReadRequest
{
    Reading what = Reading::Facts;
    QString path;
    QVariantMap values;
    QStringList files = {}; ///< that workers need beside the picture
    int seconds = 0;        ///< that it may take; 0 for what is usual
};

/** What a worker says of it. */
struct ReadResult
{
    QString problem; ///< a sentence on failure
    /** Whoever looked into it crashed, or took longer or more memory than it may. */
    bool isReaderGone = false;
    QVariantMap values;
    QImage image;

    bool isGood() const { return problem.isEmpty(); }
    QVariant value(const char *key) const { return values.value(QString::fromLatin1(key)); }
    /** The upright size; null if there is none, or an impossible one. */
    QSize size(const char *width = "width", const char *height = "height") const;
};

using TakeReading = std::function<void(const ReadResult &result)>;

/** One look into a picture. The file is opened when it is begun. */
class ReadErrand : public Errand
{
public:
    ReadErrand(ReadRequest request, TakeReading take) : m_request(std::move(request)), m_take(std::move(take)) {}

    std::vector<platform::Message> begin(Hand &hand) override;
    Turn take(platform::Message &message) override;
    void fail(const QString &reason) override;
    int seconds() const override;

    bool isBegun() const { return m_isBegun; }
    /** Nobody waits for it any more. */
    void abandon() { m_take = {}; }

private:
    void answer(const ReadResult &result);

    ReadRequest m_request;
    TakeReading m_take;
    bool m_isBegun = false;
};

/**
 * Reads pictures through the workers of this process, and drops requests that nobody waits for any more: they are
 * dropped with this object. What was started is not stopped for that, since starting a worker takes longer than reading
 * most pictures.
 */
class Reader
{
public:
    /** @param desk  that of this process if none is given */
    explicit Reader(WorkerDesk *desk = nullptr) : m_desk(desk) {}
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;
    ~Reader() { drop(); }

    using Number = quint64; ///< never 0
    /** @param take  is called once, out of the event loop, unless this is dropped before */
    Number ask(const ReadRequest &request, Urgency urgency, const TakeReading &take);
    void drop(Number number);
    /** All of it. */
    void drop();
    int inWork() const { return int(m_asked.size()); }
    /** Whether a worker is at it. */
    bool isBegun(Number number) const;

private:
    struct Asked
    {
        QPointer<WorkerDesk> desk;
        WorkerDesk::Number number = 0;
        std::shared_ptr<ReadErrand> errand;
    };

    WorkerDesk *m_desk;
    std::map<Number, Asked> m_asked;
    Number m_next = 1;
};

/** The same, waited for: nothing else happens in this process meanwhile. At most some seconds. */
ReadResult readNow(const ReadRequest &request, WorkerDesk &desk = WorkerDesk::forWaiting());

} // namespace jobs
