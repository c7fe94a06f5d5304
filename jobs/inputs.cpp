#include "jobs/inputs.h"

#include "files/items/picture_collector.h"
#include "image/recipe/sentence.h"
#include "platform/disk/item_identity.h"
#include "platform/imageio/formats/formats.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace jobs {
namespace {

Input pictureNamed(const QString &path)
{
    const QFileInfo file(path);
    Input input = {path, {}, {}};
    if (!file.exists())
        input.problem = image::sentence("there is no such file");
    else if (!file.isFile())
        input.problem = image::sentence("it is no ordinary file");
    return input;
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
    return input.root.isEmpty() ? QFileInfo(input.path).fileName() : QDir(input.root).relativeFilePath(input.path);
}

QList<Input> inputsFrom(const QStringList &named)
{
    QList<Input> inputs;
    QSet<QString> known;
    const files::CollectRule rule = {pictureExtensions(), {}, {}};
    const auto add = [&](const Input &input) {
        const QString identity = platform::targetIdentity(input.path);
        const QString key = identity.isEmpty() ? input.path : identity;
        if (known.contains(key))
            return;
        known.insert(key);
        inputs.append(input);
    };
    for (const QString &name : named) {
        const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(name));
        if (!QFileInfo(path).isDir()) {
            add(pictureNamed(path));
            continue;
        }
        for (const QString &found : files::collectFiles({path}, rule).paths)
            add({found, path, {}});
    }
    return inputs;
}

} // namespace jobs
