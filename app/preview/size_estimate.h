#pragma once

#include "jobs/reading/preview_deeds.h"
#include "platform/imageio/encode/image_destination.h"

/** How large a file will be, told from a rendition of the picture with fewer pixels. Nothing here touches a file. */
namespace window {

/** What an encoder made of so many pixels. */
struct CodedSample
{
    double bytes = 0;
    double pixels = 0;
};

/**
 * How bytes grow with pixels: bytes ~ pixels ^ exponent, below 1 since a larger rendition of the same picture has less to
 * tell in each pixel. From two sizes of one picture; @p typical where they are too close to tell. Between 0.5 and 1.05.
 */
double exponentBetween(const CodedSample &small, const CodedSample &large, double typical);

/** The exponent that photographs have on the average as JPEG. */
constexpr double typicalJpegExponent = 0.85;

/** The exponent of another format for a picture that has @p jpegExponent as JPEG; found with camera photographs. */
double exponentFor(platform::FileFormat format, double jpegExponent);

double grown(const CodedSample &sample, double pixels, double exponent);

/** The size of a bitmap file of 24 bits, or of 8 bits and a table for a grey picture. */
double bitmapFileBytes(QSize size, platform::ColorModel model);

/** The size of a TIFF without compression, less profile and metadata. */
double tiffFileBytes(QSize size, int bytesPerPixel);

/** How many bytes of an encoded JPEG come before the first scan; 0 for anything else. */
double jpegHeaderBytes(const QByteArray &encoded);

/**
 * The estimated size of the file of @p result; exact, but for metadata, where the rendition has all pixels. None where the
 * encoder fails.
 *
 * @param exponentAsJpeg  how this picture grows as JPEG, see jpegExponent()
 */
std::optional<double> estimatedFileBytes(const jobs::Rendition &result, platform::FileFormat format,
                                         const platform::EncodeOptions &options,
                                         double exponentAsJpeg = typicalJpegExponent);

/** The exponent of a JPEG file of @p scanBytes behind its header, by encoding @p rendition of it in the same way. */
std::optional<double> jpegExponent(const jobs::Rendition &rendition, double scanBytes);

} // namespace window
