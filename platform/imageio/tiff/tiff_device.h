#pragma once

// Private to the platform.

#include "platform/imageio/bytes/picture_bytes.h"

#include <vips/vips8>

namespace platform {

/**
 * A TIFF file for the library that decodes it. If a read fails, the library writes one byte before its buffer, and
 * continues without the tag that it wanted; so a failed read is presented as the end of the file, and remembered here.
 */
class TiffDevice : public QIODevice
{
public:
    /** Throws vips::VError if the bytes cannot be opened. */
    explicit TiffDevice(const PictureBytes &bytes);

    bool seek(qint64 position) override;
    qint64 size() const override { return m_bytes->size(); }
    /** Throws vips::VError if a read has failed so far. */
    void demandAllRead() const { demandRead(*m_bytes); }

protected:
    qint64 readData(char *data, qint64 count) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::unique_ptr<QIODevice> m_bytes;
};

/** The source through which libvips reads @p device, which must outlive it. */
vips::VSource sourceOver(const std::shared_ptr<QIODevice> &device);

} // namespace platform
