#include "jobs/crew/messages.h"

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

bool isKind(const Message &message, MessageKind kind)
{
    return message.kind == quint16(kind);
}

template<class T> std::optional<T> ifAll(const MessageReader &reader, T value)
{
    return reader.isAll() ? std::optional<T>(std::move(value)) : std::nullopt;
}

void writeSize(MessageWriter &writer, QSize size)
{
    writer.number(size.width());
    writer.number(size.height());
}

/** No picture has more pixels on a side. */
QSize readSize(MessageReader &reader)
{
    constexpr qint64 longest = 1'000'000'000;
    const auto width = int(reader.number(-1, longest));
    return {width, int(reader.number(-1, longest))};
}

void writeTokenFacts(MessageWriter &writer, const text::TokenFacts &facts)
{
    for (const QString &text :
         {facts.path, facts.taken, facts.created, facts.changed, facts.camera, facts.lens, facts.type, facts.size})
        writer.text(text);
    writer.number(facts.bytes);
    writeSize(writer, facts.pixels);
    writer.number(facts.index);
    writer.number(facts.rating);
}

text::TokenFacts readTokenFacts(MessageReader &reader)
{
    text::TokenFacts facts;
    for (QString *text : {&facts.path, &facts.taken, &facts.created, &facts.changed, &facts.camera, &facts.lens,
                          &facts.type, &facts.size})
        *text = reader.text();
    facts.bytes = reader.number();
    facts.pixels = readSize(reader);
    facts.index = reader.number();
    facts.rating = int(reader.number());
    return facts;
}

void writePlan(MessageWriter &writer, const image::OutputPlan &plan)
{
    writer.text(plan.problem);
    writer.flag(plan.isNotSupported);
    writer.number(int(plan.type));
    writeSize(writer, plan.size);
    writer.flag(plan.isLossless);
    writer.number(plan.leftOut);
    writer.texts(plan.losses);
}

image::OutputPlan readPlan(MessageReader &reader)
{
    image::OutputPlan plan;
    plan.problem = reader.text();
    plan.isNotSupported = reader.flag();
    plan.type = image::OutputType(reader.number(int(image::OutputType::Original), int(image::OutputType::JpegXl)));
    plan.size = readSize(reader);
    plan.isLossless = reader.flag();
    plan.leftOut = reader.number();
    plan.losses = reader.texts();
    return plan;
}

void writePictureFacts(MessageWriter &writer, const platform::PictureFacts &facts)
{
    writer.text(facts.taken.toString(Qt::ISODate));
    writer.text(facts.camera);
    writer.text(facts.lens);
    writeSize(writer, facts.pixels);
    writer.text(facts.typeIdentifier);
}

platform::PictureFacts readPictureFacts(MessageReader &reader)
{
    platform::PictureFacts facts;
    facts.taken = QDateTime::fromString(reader.text(), Qt::ISODate);
    facts.camera = reader.text();
    facts.lens = reader.text();
    facts.pixels = readSize(reader);
    facts.typeIdentifier = reader.text();
    return facts;
}

/** Counts are believed as far as a body of so many bytes can hold so many values. */
constexpr qint64 mostValues = 1 << 16;

} // namespace

Message toMessage(const HelloMessage &hello)
{
    MessageWriter writer;
    writer.number(hello.version);
    writer.flag(hello.hasNoNewPrivileges);
    writer.flag(hello.hasFileRules);
    writer.flag(hello.hasCallRules);
    return message(MessageKind::Hello, writer);
}

template<> std::optional<HelloMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Hello))
        return std::nullopt;
    MessageReader reader(message.body);
    HelloMessage hello;
    hello.version = int(reader.number(messagesVersion, messagesVersion));
    hello.hasNoNewPrivileges = reader.flag();
    hello.hasFileRules = reader.flag();
    hello.hasCallRules = reader.flag();
    return ifAll(reader, hello);
}

Message toMessage(const RecipeFilesMessage &files)
{
    MessageWriter writer;
    writer.texts(files.paths);
    return message(MessageKind::RecipeFiles, writer);
}

template<> std::optional<RecipeFilesMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::RecipeFiles))
        return std::nullopt;
    MessageReader reader(message.body);
    RecipeFilesMessage files = {reader.texts()};
    return size_t(files.paths.size()) == message.files.size() ? ifAll(reader, files) : std::nullopt;
}

Message toMessage(const RecipeMessage &recipe)
{
    MessageWriter writer;
    writer.bytes(recipe.json);
    writer.text(recipe.folder);
    return message(MessageKind::Recipe, writer);
}

template<> std::optional<RecipeMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Recipe))
        return std::nullopt;
    MessageReader reader(message.body);
    RecipeMessage recipe;
    recipe.json = reader.bytes();
    recipe.folder = reader.text();
    return ifAll(reader, recipe);
}

Message toMessage(const ReadyMessage &ready)
{
    MessageWriter writer;
    writer.text(ready.problem);
    return message(MessageKind::Ready, writer);
}

template<> std::optional<ReadyMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Ready))
        return std::nullopt;
    MessageReader reader(message.body);
    const ReadyMessage ready = {reader.text()};
    return ifAll(reader, ready);
}

Message toMessage(const PictureMessage &picture)
{
    MessageWriter writer;
    writeTokenFacts(writer, picture.facts);
    writer.flag(picture.wantsFacts);
    writer.bytes(picture.packet);
    return message(MessageKind::Picture, writer);
}

template<> std::optional<PictureMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Picture) || message.files.size() != 1)
        return std::nullopt;
    MessageReader reader(message.body);
    PictureMessage picture;
    picture.facts = readTokenFacts(reader);
    picture.wantsFacts = reader.flag();
    picture.packet = reader.bytes();
    return ifAll(reader, picture);
}

Message toMessage(const PlannedMessage &planned)
{
    MessageWriter writer;
    writer.text(planned.problem);
    writePictureFacts(writer, planned.facts);
    writeSize(writer, planned.pixels);
    writer.number(planned.plans.size());
    for (const image::OutputPlan &plan : planned.plans)
        writePlan(writer, plan);
    return message(MessageKind::Planned, writer);
}

template<> std::optional<PlannedMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Planned))
        return std::nullopt;
    MessageReader reader(message.body);
    PlannedMessage planned;
    planned.problem = reader.text();
    planned.facts = readPictureFacts(reader);
    planned.pixels = readSize(reader);
    const qint64 count = reader.number(0, mostValues);
    for (qint64 i = 0; i < count; ++i)
        planned.plans.append(readPlan(reader));
    return ifAll(reader, planned);
}

Message toMessage(const OutputsMessage &outputs)
{
    MessageWriter writer;
    writer.number(outputs.indices.size());
    for (const int index : outputs.indices)
        writer.number(index);
    return message(MessageKind::Outputs, writer);
}

template<> std::optional<OutputsMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Outputs))
        return std::nullopt;
    MessageReader reader(message.body);
    OutputsMessage outputs;
    const qint64 count = reader.number(0, qint64(message.files.size()));
    for (qint64 i = 0; i < count; ++i)
        outputs.indices.append(int(reader.number(0, mostValues)));
    return size_t(count) == message.files.size() ? ifAll(reader, outputs) : std::nullopt;
}

Message toMessage(const MadeMessage &made)
{
    MessageWriter writer;
    writer.number(made.index);
    writer.text(made.problem);
    writer.number(made.writeError);
    writeSize(writer, made.size);
    writer.flag(made.isLossless);
    writer.number(made.bytes);
    writer.number(made.milliseconds);
    return message(MessageKind::Made, writer);
}

template<> std::optional<MadeMessage> fromMessage(const Message &message)
{
    if (!isKind(message, MessageKind::Made))
        return std::nullopt;
    MessageReader reader(message.body);
    MadeMessage made;
    made.index = int(reader.number(0, mostValues));
    made.problem = reader.text();
    made.writeError = reader.integer();
    made.size = readSize(reader);
    made.isLossless = reader.flag();
    made.bytes = reader.number();
    made.milliseconds = reader.number();
    return ifAll(reader, made);
}

Message toMessage(MessageKind kind)
{
    return message(kind, {});
}

} // namespace jobs
