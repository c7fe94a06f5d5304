#include "platform/imageio/codecs/whole_picture.h"

#include "platform/file/regular_file.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/tiff/camera_raw.h"
#include "platform/imageio/whole/whole_tiff.h"

#include <QFile>

namespace platform {

bool isWhole(QIODevice &file, Content content)
{
    const Codec *codec = codecOf(content);
    return !codec || !codec->isWhole || codec->isWhole(file);
}

bool isWholeRaw(QIODevice &file)
{
    const QByteArray mark = file.seek(0) ? file.peek(2) : QByteArray();
    const bool isLikeTiff = mark == "II" || mark == "MM";
    return !isLikeTiff || isWholeTiff(file);
}

bool isWholePicture(const QString &path)
{
    QFile file(path);
    if (!openToRead(file))
        return false;
    const QByteArray head = file.peek(contentHeadBytes);
    if (isCameraRaw(head))
        return isWholeRaw(file);
    const Content content = contentOf(head);
    return content != Content::Unknown && isWhole(file, content);
}

} // namespace platform
