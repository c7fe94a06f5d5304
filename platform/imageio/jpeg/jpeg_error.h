#pragma once

// Private to the platform: libjpeg reports failure by a call that must not return. This one jumps back to the caller.

#include <QString>

#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace platform {

struct JpegErrorManager
{
    jpeg_error_mgr base;
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX] = {};
};

inline void jpegErrorExit(j_common_ptr info)
{
    auto *manager = reinterpret_cast<JpegErrorManager *>(info->err);
    (*info->err->format_message)(info, manager->message);
    std::longjmp(manager->jump, 1);
}

inline void jpegIgnoreMessage(j_common_ptr, int) {}

inline jpeg_error_mgr *prepare(JpegErrorManager &manager)
{
    jpeg_std_error(&manager.base);
    manager.base.error_exit = jpegErrorExit;
    manager.base.emit_message = jpegIgnoreMessage;
    return &manager.base;
}

} // namespace platform
