#pragma once

// Inside platform/ only: the numbers of TIFF tags and types that are used here.

#include <QtGlobal>

namespace platform::tiffTag {

constexpr quint16 subfileType = 0x00fe;
constexpr quint16 width = 0x0100;
constexpr quint16 height = 0x0101;
constexpr quint16 bits = 0x0102;
constexpr quint16 compression = 0x0103;
constexpr quint16 photometric = 0x0106;
constexpr quint16 make = 0x010f;
constexpr quint16 model = 0x0110;
constexpr quint16 stripOffsets = 0x0111;
constexpr quint16 orientation = 0x0112;
constexpr quint16 samplesPerPixel = 0x0115;
constexpr quint16 rowsPerStrip = 0x0116;
constexpr quint16 stripSizes = 0x0117;
constexpr quint16 resolutionAcross = 0x011a;
constexpr quint16 resolutionDown = 0x011b;
constexpr quint16 planarConfiguration = 0x011c;
constexpr quint16 resolutionUnit = 0x0128;
constexpr quint16 changed = 0x0132;
constexpr quint16 tileOffsets = 0x0144;
constexpr quint16 tileSizes = 0x0145;
constexpr quint16 subDirectories = 0x014a;
constexpr quint16 extraSamples = 0x0152;
constexpr quint16 sampleFormat = 0x0153;
constexpr quint16 jpegOffset = 0x0201; ///< of a thumbnail, or of a picture in TIFF 6.0 style
constexpr quint16 jpegSize = 0x0202;
constexpr quint16 firstOldJpegTable = 0x0207;
constexpr quint16 lastOldJpegTable = 0x0209;
constexpr quint16 chromaPosition = 0x0213;
constexpr quint16 xmp = 0x02bc;
constexpr quint16 iptc = 0x83bb;
constexpr quint16 photoshop = 0x8649;
constexpr quint16 exifDirectory = 0x8769;
constexpr quint16 profile = 0x8773;
constexpr quint16 gpsDirectory = 0x8825;
constexpr quint16 original = 0x9003;
constexpr quint16 digitized = 0x9004;
constexpr quint16 makerNote = 0x927c;
constexpr quint16 userComment = 0x9286;
constexpr quint16 photoshopLayers = 0x935c;
constexpr quint16 pixelWidth = 0xa002;
constexpr quint16 pixelHeight = 0xa003;
constexpr quint16 interoperabilityDirectory = 0xa005;
constexpr quint16 lens = 0xa434;
constexpr quint16 dngVersion = 0xc612; ///< the first of the tags for raw files
constexpr quint16 lastRaw = 0xcd3f;

} // namespace platform::tiffTag

namespace platform::tiffType {

constexpr quint16 byteType = 1;
constexpr quint16 shortType = 3;
constexpr quint16 longType = 4;
constexpr quint16 fractionType = 5;
constexpr quint16 undefinedType = 7;
constexpr quint16 signedFractionType = 10;
constexpr quint16 lastClassicType = 13;
constexpr quint16 bigDirectoryType = 18;

} // namespace platform::tiffType
