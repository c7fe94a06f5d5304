// Stands in until platform/graphics and platform/imageio have their implementations; see CMakeLists.txt.
#include "platform/graphics/picture.h"
#include "platform/imageio/image_destination.h"
#include "platform/imageio/image_source.h"
namespace platform {
Bitmap::Bitmap() = default;
struct Bitmap::Pixels
{
};
int Bitmap::width() const
{
    return 0;
}
int Bitmap::height() const
{
    return 0;
}
std::array<int, 4> Bitmap::pixel(int, int) const
{
    return {};
}
QSizeF Bitmap::pointSize() const
{
    return {};
}
Picture Picture::fromFile(const QString &)
{
    return {};
}
Metadata::Metadata() = default;
Result<void> writeImageFile(const QString &, const Bitmap &, FileFormat, const EncodeOptions &)
{
    return {};
}
} // namespace platform
