#include "jobs/inputs.h"

#include "files/items/picture_collector.h"
#include "image/recipe/sentence.h"
#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/formats/formats.h"

#include <utility>

namespace jobs {
namespace {

Input pictureNamed(const QString &path)
{
    const auto item = platform::targetFacts(path);
    Input input = {path, {}, {}, false};
    if (!item)
        input.problem = image::sentence(QT_TRANSLATE_NOOP("recipe", "no such file"));
    else if (!item->isFile)
        input.problem = image::sentence(QT_TRANSLATE_NOOP("recipe", "not an ordinary file"));
    return input;
}

/** The path of a file without links in its folders. */
QString withoutLinks(const QString &path)
{
    const QString folder = platform::DiskFileSystem().canonicalFolder(platform::parentFolder(path));
    return platform::joinedPath(folder, platform::lastPathComponent(path));
}

} // namespace

QStringList pictureExtensions()
{
    QStringList extensions;
    for (const platform::Format &format : platform::formats())
        if (format.content != platform::Content::Pdf && format.content != platform::Content::Svg)
            extensions += QString(format.extensions).split(u' ', Qt::SkipEmptyParts);
    for (const platform::RawType &raw : platform::rawTypes())
        if (raw.hasPreview)
            extensions.append(raw.extension);
    extensions.removeDuplicates();
    return extensions;
}

QString placeBelowRoot(const Input &input)
{
    if (input.root.isEmpty())
        return platform::lastPathComponent(input.path);
    return input.path.mid(input.root.size() + (input.root.endsWith(u'/') ? 0 : 1));
}

Inputs::Inputs(const QStringList &named, std::optional<NameStream> more) : m_more(std::move(more))
{
    for (const QString &name : named)
        addNamed(name);
}

Inputs::State Inputs::look(int waitMs)
{
    while (m_waiting.empty() && m_more) {
        const State state = m_more->look(waitMs);
        if (state == State::Waiting)
            return state;
        if (state == State::Ready)
            addNamed(m_more->take());
        else
            letGoAtEnd();
    }
    if (m_waiting.empty() && m_watch) {
        const State state = m_watch->look(waitMs);
        if (state == State::Ended && m_problem.isEmpty())
            m_problem = image::sentence("no folder is left to watch: %1").arg(m_watch->news());
        if (state != State::Ready)
            return state;
        const Arrival arrival = m_watch->take();
        if (const auto item = platform::targetFacts(arrival.path))
            m_items.insert(item->number);
        m_waiting.push_back({arrival.path, arrival.root, {}, arrival.isLive});
    }
    return m_waiting.empty() ? State::Ended : State::Ready;
}

void Inputs::letGoAtEnd()
{
    if (m_more->look(0) != State::Ended)
        return;
    m_problem = m_more->problem();
    m_more.reset();
}

Input Inputs::take()
{
    Input input = std::move(m_waiting.front());
    m_waiting.pop_front();
    ++m_taken;
    return input;
}

void Inputs::addNamed(const QString &name)
{
    const QString path = platform::absolutePath(name);
    if (!platform::folderExists(path)) {
        add(pictureNamed(path));
        return;
    }
    static const files::CollectRule rule = {pictureExtensions(), {}, {}, files::OddNames::AsPaths};
    const platform::DiskFileSystem disk;
    for (const QString &found : files::collectFiles({path}, rule).paths)
        if (const auto item = disk.look(found); !item || item->kind != platform::ItemKind::Link)
            add({found, path, {}, false});
}

void Inputs::add(const Input &input)
{
    if (isNew(input.path))
        m_waiting.push_back(input);
}

/** Second names of one file are pictures for themselves; another path to the same name is not. */
bool Inputs::isNew(const QString &path)
{
    const auto item = platform::targetFacts(path);
    const bool isKnown = item && m_items.contains(item->number);
    if (item)
        m_items.insert(item->number);
    if (item && !item->hasSecondName)
        return !isKnown;
    const PathKey name = pathKey(platform::encodedPath(item ? withoutLinks(path) : path));
    const bool isNamed = m_names.contains(name);
    m_names.insert(name);
    return !isNamed;
}

void Inputs::leaveOut(const QString &path)
{
    if (m_watch)
        m_watch->leaveOut(path);
    if (const auto item = platform::targetFacts(path); m_more && item)
        m_items.insert(item->number);
}

QList<Input> inputsFrom(const QStringList &named)
{
    Inputs inputs(named);
    QList<Input> all;
    while (inputs.look() == Inputs::State::Ready)
        all.append(inputs.take());
    return all;
}

} // namespace jobs
