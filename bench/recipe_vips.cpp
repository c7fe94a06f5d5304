// bench-recipe-vips OUT PICTURE...: the two files of bench/recipes, as one program of libvips makes them.

#include <vips/vips8>

#include <cstdio>
#include <string>

namespace {

using vips::VImage;

VImage lettered(const VImage &image)
{
    const VImage mask = VImage::text("© Quorlin bench", VImage::option()->set("font", "Sans 54")->set("dpi", 72));
    const VImage letters = mask.new_from_image({255, 255, 255})
                               .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
                               .bandjoin(mask * 0.7)
                               .cast(VIPS_FORMAT_UCHAR);
    constexpr int margin = 27;
    const int x = image.width() - letters.width() - margin;
    const int y = image.height() - letters.height() - margin;
    // Only the part under the letters is blended.
    const VImage part = image.extract_area(x, y, letters.width(), letters.height());
    const VImage blended =
        part.composite2(letters, VIPS_BLEND_MODE_OVER).extract_band(0, VImage::option()->set("n", 3));
    return image.insert(blended.cast(VIPS_FORMAT_UCHAR), x, y);
}

void save(const VImage &image, const std::string &path, int quality)
{
    image.jpegsave(path.c_str(), VImage::option()->set("Q", quality));
}

void make(const std::string &folder, const std::string &path)
{
    const VImage source = VImage::jpegload(path.c_str(), VImage::option()->set("access", VIPS_ACCESS_SEQUENTIAL));
    const int height = source.width() * 2 / 3;
    const VImage part = source.extract_area(0, (source.height() - height) / 2, source.width(), height);
    const VImage small = part.resize(2048.0 / part.width()).copy_memory();
    const VImage large = lettered(small.sharpen(VImage::option()->set("sigma", 0.7))).copy_memory();
    const std::string name = path.substr(path.rfind('/') + 1);
    save(large, folder + "/large-" + name, 85);
    save(large.resize(0.5), folder + "/small-" + name, 80);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3 || VIPS_INIT(argv[0]) != 0)
        return 2;
    try {
        for (int i = 2; i < argc; ++i)
            make(argv[1], argv[i]);
    } catch (const vips::VError &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
