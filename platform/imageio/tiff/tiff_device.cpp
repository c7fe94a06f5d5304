#include "platform/imageio/tiff/tiff_device.h"

#include <cstdio>

namespace platform {
namespace {

using Owner = std::shared_ptr<QIODevice>;

gint64 readFor(VipsSourceCustom *, void *bytes, gint64 count, Owner *device)
{
    return (*device)->read(static_cast<char *>(bytes), count);
}

gint64 seekFor(VipsSourceCustom *, gint64 offset, int whence, Owner *device)
{
    QIODevice &file = **device;
    qint64 start = 0;
    if (whence == SEEK_CUR)
        start = file.pos();
    else if (whence == SEEK_END)
        start = file.size();
    return file.seek(start + offset) ? file.pos() : -1;
}

void release(gpointer owner, GClosure *)
{
    delete static_cast<Owner *>(owner);
}

} // namespace

TiffDevice::TiffDevice(const PictureBytes &bytes) : m_bytes(bytes.openedDevice())
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool TiffDevice::seek(qint64 position)
{
    // A buffer has no position after its end and a file has; the library must see the same in both.
    return QIODevice::seek(position) && m_bytes->seek(qMin(position, m_bytes->size()));
}

qint64 TiffDevice::readData(char *data, qint64 count)
{
    return qMax<qint64>(m_bytes->read(data, count), 0);
}

vips::VSource sourceOver(const std::shared_ptr<QIODevice> &device)
{
    VipsSourceCustom *custom = vips_source_custom_new();
    g_signal_connect_data(custom, "read", G_CALLBACK(readFor), new Owner(device), release, GConnectFlags(0));
    g_signal_connect_data(custom, "seek", G_CALLBACK(seekFor), new Owner(device), release, GConnectFlags(0));
    return vips::VSource(VIPS_SOURCE(custom));
}

} // namespace platform
