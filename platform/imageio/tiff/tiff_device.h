#pragma once

// Private to the platform.

#include "platform/imageio/bytes/picture_bytes.h"

#include <vips/vips8>

namespace platform {

/**
 * A TIFF file for the library that decodes it. Where a read fails the library writes one byte before its buffer, and goes on
 * without the tag that it wanted; so a failed read looks like the end of the file to it, and is remembered here.
 */
class TiffDevice : public QIODevice
{
public:
    /** Throws vips::VError where the bytes cannot be opened. */
    explicit TiffDevice(const PictureBytes &bytes);

    bool seek(qint64 position) override;
    qint64 size() const override { return m_bytes->size(); }
    /** Throws vips::VError where a read has failed so far. */
    void demandAllRead() const { demandRead(*m_bytes); }

protected:
    qint64 readData(char *data, qint64 count) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::unique_ptr<QIODevice> m_bytes;
};

/** What libvips reads @p device by, which lives as long as the source. */
vips::VSource sourceOver(const std::shared_ptr<QIODevice> &device);

} // namespace platform
