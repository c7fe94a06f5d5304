#include "jobs/reading/read_errand.h"

#include "image/recipe/sentence.h"
#include "meta/metadata_file.h"
#include "platform/descriptors/shared_image.h"
#include "platform/file/lent_file.h"

#include <fcntl.h>

#include <utility>

namespace jobs {

using platform::Message;

QSize ReadResult::size(const char *width, const char *height) const
{
    constexpr int longest = 1'000'000'000;
    const QSize size(value(width).toInt(), value(height).toInt());
    return !size.isEmpty() && size.width() <= longest && size.height() <= longest ? size : QSize();
}

namespace {

/** What is made of a picture has the metadata of its sidecar too. */
QVariantMap valuesWithSidecar(const ReadRequest &request)
{
    QVariantMap values = request.values;
    if (request.what == Reading::Result || request.what == Reading::Plan || request.what == Reading::Bytes)
        values.insert(QStringLiteral("packet"), meta::packetBeside(request.path));
    return values;
}

} // namespace

std::vector<Message> ReadErrand::begin(Hand &)
{
    if (!m_take)
        return {};
    m_isBegun = true;
    const QStringList paths = QStringList{m_request.path} + m_request.files;
    Message message = toMessage(ReadMessage{m_request.what, valuesWithSidecar(m_request), paths});
    for (const QString &path : paths) {
        auto file = platform::LentFile::open(path);
        if (!file) {
            ReadResult result;
            result.problem = file.error().message;
            answer(result);
            return {};
        }
        message.files.push_back(file->takeDescriptor());
    }
    std::vector<Message> messages;
    messages.push_back(std::move(message));
    return messages;
}

Errand::Turn ReadErrand::take(Message &message)
{
    const auto said = fromMessage<AnswerMessage>(message);
    if (!said)
        return Turn::Nonsense;
    ReadResult result;
    result.problem = said->problem;
    result.values = said->values;
    if (!message.files.empty()) {
        result.image = platform::imageFrom({said->pixels, said->hasAlpha, std::move(message.files.front())});
        if (result.image.isNull())
            return Turn::Nonsense;
    }
    answer(result);
    return Turn::Over;
}

void ReadErrand::fail(const QString &reason)
{
    ReadResult result;
    result.problem = reason;
    result.isReaderGone = true;
    answer(result);
}

void ReadErrand::answer(const ReadResult &result)
{
    if (const TakeReading take = std::exchange(m_take, {}))
        take(result);
}

int ReadErrand::seconds() const
{
    constexpr int usual = 30;
    constexpr int toMake = 120; // a result as large as the picture
    return m_request.seconds > 0 ? m_request.seconds : m_request.what == Reading::Bytes ? toMake : usual;
}

Reader::Number Reader::ask(const ReadRequest &request, Urgency urgency, const TakeReading &take)
{
    WorkerDesk &desk = m_desk ? *m_desk : WorkerDesk::ofProcess();
    const Number own = m_next++;
    const auto errand = std::make_shared<ReadErrand>(request, [this, own, take](const ReadResult &result) {
        m_asked.erase(own);
        take(result);
    });
    m_asked.emplace(own, Asked{&desk, desk.add(errand, urgency), errand});
    return own;
}

bool Reader::isBegun(Number number) const
{
    const auto found = m_asked.find(number);
    return found != m_asked.end() && found->second.errand->isBegun();
}

void Reader::drop(Number number)
{
    const auto found = m_asked.find(number);
    if (found == m_asked.end())
        return;
    const Asked gone = found->second;
    m_asked.erase(found);
    gone.errand->abandon();
    if (gone.desk && !gone.errand->isBegun())
        gone.desk->drop(gone.number);
}

ReadResult readNow(const ReadRequest &request, WorkerDesk &desk)
{
    constexpr int patience = 10;
    ReadRequest soon = request;
    if (soon.seconds == 0)
        soon.seconds = patience;
    ReadResult result;
    const auto errand = std::make_shared<ReadErrand>(soon, [&result](const ReadResult &said) { result = said; });
    if (!desk.finish(desk.add(errand, Urgency::Now))) {
        result.problem = image::sentence(QT_TRANSLATE_NOOP("recipe", "reading was stopped because it took too long"));
        result.isReaderGone = true;
    }
    errand->abandon();
    return result;
}

void Reader::drop()
{
    while (!m_asked.empty())
        drop(m_asked.begin()->first);
}

} // namespace jobs
