#include "meta/mMeta.h"

#include "meta/edit_log.h"
#include "meta/property_tree.h"

#include "platform/controls/controls.h"
#include "platform/desktop/strings_tables.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/source/image_source.h"

using platform::ImageSource;

namespace {

/** The comment in a picture's properties; none if they have no place for one. */
QVariant commentIn(const QVariantMap &properties)
{
    return properties.value(QStringLiteral("{Exif}")).toMap().value(QStringLiteral("UserComment"));
}

/** The text of the main strings table, or the key itself. */
QString mainText(const char *key)
{
    return platform::localizedText(QString::fromLatin1(key), {});
}

} // namespace

mMeta::mMeta(QObject *parent) : QObject(parent) {}

QVariant mMeta::hiDoNothing(const QString &path)
{
    const auto properties =
        ImageSource::open(path).and_then([](const ImageSource &source) { return source.properties(); });
    if (!properties) {
        platform::setTextOf(m_commentField, mainText("NotSupported"));
        platform::setContentOf(m_treeController, {});
        return m_tree;
    }
    const QVariant comment = commentIn(*properties);
    platform::setTextOf(m_commentField, comment.isValid() ? comment.toString() : mainText("NotSupportedOrAvailable"));
    propTree(*properties);
    platform::setContentOf(m_treeController, m_tree.toList());
    return m_tree;
}

QVariantList mMeta::propTree(const QVariantMap &properties)
{
    QVariantList nodes = meta::nodesOf(properties);
    if (!nodes.isEmpty())
        m_tree = nodes;
    return nodes;
}

QString mMeta::hGetExifUc(const QString &path)
{
    const QString comment = platform::readUserComment(path).value_or(QString());
    return comment.isNull() ? QStringLiteral("") : comment;
}

QString mMeta::hGetColorProfile(const QString &path)
{
    const auto source = ImageSource::open(path);
    return source ? source->colorSpaceName() : QString();
}

QStringList mMeta::hGetPixelFormat(const QString &path)
{
    const auto source = ImageSource::open(path);
    const QSize size = source ? source->uprightSize() : QSize(0, 0);
    return {QString::number(size.width()), QString::number(size.height())};
}

QString mMeta::hSetExifData(const QString &path, const QString &comment)
{
    // Write errors are not reported here, only that the picture cannot be opened; one that was written was opened. On
    // failure the file is intact and unchanged.
    const bool canOpen = platform::writeUserComment(path, comment) || ImageSource::canOpen(path);
    return canOpen ? QStringLiteral("OK") : QStringLiteral("Failed");
}

void mMeta::btApplyExifUserComment(platform::Sender)
{
    const QString path = platform::textOf(m_pathField);
    const QString status = hSetExifData(path, platform::textOf(m_commentField));
    if (status == QLatin1String("OK"))
        hiDoNothing(path);
    else
        platform::setTextOf(m_commentField, mainText("NotSupported"));
    platform::addRowTo(m_logController, meta::editLogRow(path, status));
    platform::reloadTable(m_logTable);
}
