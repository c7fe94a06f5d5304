#include "platform/imageio/source/opened_file.h"

#include "platform/foundation/memory_left.h"
#include "platform/imageio/facts/metadata_of_file.h"
#include "platform/imageio/formats/memory_need.h"

namespace platform {

Metadata ImageSource::File::metadata() const
{
    if (otherMetadata)
        return *otherMetadata;
    return isRaw() ? metadataOf(raw, Content::Tiff) : metadataOf(bytes, content);
}

ImageSource ImageSource::File::withMetadata(const ImageSource &source, const Metadata &metadata)
{
    File file = *source.file();
    file.otherMetadata = std::make_shared<const Metadata>(metadata);
    return ImageSource(std::make_shared<const File>(std::move(file)));
}

Result<void> memoryIsLeftToDecode(const ImageSource::File &file, const vips::VImage &image, const Outcome &outcome)
{
    DecodingFacts facts;
    facts.content = file.content;
    facts.fileBytes = file.bytes.fileBytes();
    facts.decoded = QSize(image.width(), image.height());
    facts.bands = image.bands();
    facts.componentBytes = bytesPerComponent(image);
    facts.comesInPasses = image.get_typeof("interlaced") != 0 && image.get_int("interlaced") != 0;
    if (image.get_typeof(bytesOfDrawing) != 0)
        facts.drawingBytes = image.get_double(bytesOfDrawing);
    return memoryIsLeftFor(memoryNeed(facts, outcome), file.name(), addressesOfThreads(file.content));
}

} // namespace platform
