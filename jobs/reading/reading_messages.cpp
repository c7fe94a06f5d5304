#include "jobs/reading/reading_messages.h"

#include "platform/workers/plain_value.h"

#include <QRect>

#include <cmath>

namespace jobs {
namespace {

using platform::Message;
using platform::MessageReader;
using platform::MessageWriter;

Message message(MessageKind kind, const MessageWriter &writer)
{
    Message made;
    made.kind = quint16(kind);
    made.body = writer.body();
    return made;
}

QSize whole(QSizeF size)
{
    return QSize(int(std::lround(size.width())), int(std::lround(size.height()))).expandedTo({1, 1});
}

} // namespace

Message toMessage(const ReadMessage &read)
{
    MessageWriter writer;
    writer.number(int(read.what));
    platform::writeValue(writer, read.values);
    writer.texts(read.paths);
    return message(MessageKind::Read, writer);
}

template<> std::optional<ReadMessage> fromMessage(const Message &message)
{
    MessageReader reader(message.body);
    ReadMessage read;
    read.what = Reading(reader.number(int(Reading::Facts), int(Reading::Values)));
    read.values = platform::readFields(reader);
    read.paths = reader.texts();
    const bool isSound = message.kind == quint16(MessageKind::Read) && reader.isAll() && !read.paths.isEmpty() &&
                         size_t(read.paths.size()) == message.files.size();
    return isSound ? std::optional(read) : std::nullopt;
}

Message toMessage(const AnswerMessage &answer)
{
    MessageWriter writer;
    writer.text(answer.problem);
    platform::writeValue(writer, answer.values);
    writer.number(answer.pixels.width());
    writer.number(answer.pixels.height());
    writer.flag(answer.hasAlpha);
    return message(MessageKind::Answer, writer);
}

template<> std::optional<AnswerMessage> fromMessage(const Message &message)
{
    constexpr qint64 longest = 1'000'000'000;
    MessageReader reader(message.body);
    AnswerMessage answer;
    answer.problem = reader.text();
    answer.values = platform::readFields(reader);
    const auto width = int(reader.number(-1, longest));
    answer.pixels = QSize(width, int(reader.number(-1, longest)));
    answer.hasAlpha = reader.flag();
    const size_t files = answer.pixels.isEmpty() ? 0 : 1;
    const bool isSound =
        message.kind == quint16(MessageKind::Answer) && reader.isAll() && message.files.size() == files;
    return isSound ? std::optional(answer) : std::nullopt;
}

QSize renditionSize(QSize pixels, QSizeF room, bool covers)
{
    const QSizeF own = pixels;
    if (own.isEmpty())
        return {};
    const QSizeF least = room.expandedTo({1, 1});
    if (!covers && own.width() <= least.width() && own.height() <= least.height())
        return pixels;
    // A picture of an extreme shape that covers its room would be huge as a whole.
    constexpr double mostOfRoom = 16;
    const QSizeF scaled = own.scaled(least, covers ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
    const bool isHuge = scaled.width() * scaled.height() > mostOfRoom * least.width() * least.height();
    return whole(isHuge ? own.scaled(least * mostOfRoom, Qt::KeepAspectRatio) : scaled).boundedTo(pixels);
}

QRect partInView(QSize pixels, QSizeF room, QPointF center, double zoom)
{
    constexpr double around = 1.25;
    const QSizeF wide = (room * around / std::max(1.0, zoom)).expandedTo({1, 1});
    const auto along = [](double middle, double length, int all) {
        const double begin = length >= all ? 0 : std::clamp(middle - length / 2, 0.0, all - length);
        return std::pair(int(std::floor(begin)), std::min(all, int(std::ceil(begin + std::min(length, double(all))))));
    };
    const auto [left, right] = along(center.x() * pixels.width(), wide.width(), pixels.width());
    const auto [top, bottom] = along(center.y() * pixels.height(), wide.height(), pixels.height());
    return {left, top, right - left, bottom - top};
}

} // namespace jobs
