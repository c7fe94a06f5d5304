// The reader of properties on any bytes at all.
#include "platform/imageio/facts/container_properties.h"
#include "platform/imageio/source/image_source.h"

#include <QBuffer>

namespace {

/** Texts and lists must be whole to be walked through; that is what is found out here. */
qsizetype walked(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantMap) {
        qsizetype count = 1;
        for (const QVariant &each : value.toMap())
            count += walked(each);
        return count;
    }
    if (value.typeId() == QMetaType::QVariantList) {
        qsizetype count = 1;
        for (const QVariant &each : value.toList())
            count += walked(each);
        return count;
    }
    return value.toString().size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const platform::Metadata metadata = platform::Metadata::fromFileBytes(bytes);
    const platform::Metadata block = platform::Metadata::fromBlocks(bytes, bytes, bytes);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    qsizetype count = walked(metadata.toProperties()) + metadata.userComment().size() + walked(block.toProperties()) +
                      block.userComment().size() + walked(platform::containerProperties(buffer));
    if (const auto source = platform::ImageSource::fromData(bytes))
        count += walked(source->properties().value_or(QVariantMap()));
    return count < 0 ? -1 : 0;
}
