#pragma once

#include <QFileInfo>
#include <QString>

#include <unistd.h>

/**
 * What differs between machines and changes what a widget measures: fonts and their resolution, scale, style, the theme of
 * the desktop, time zone, and how long the path of the folder for temporary files is. All of it is read when the
 * application is made, so the file that includes this sets it before main().
 */
inline bool pinWorld()
{
    const QByteArray fonts = QFileInfo(QStringLiteral(QUORLIN_TEST_DATA)).path().toLocal8Bit() + "/support/fonts.conf";
    qputenv("FONTCONFIG_FILE", fonts);
    qputenv("QT_FONT_DPI", "96");
    qputenv("TZ", "UTC");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME",
                             "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION", "QUORLIN_APPEARANCE"})
        qunsetenv(name);
    if (::access("/tmp", W_OK | X_OK) == 0)
        qputenv("TMPDIR", "/tmp");
    return true;
}

namespace {
[[maybe_unused]] const bool isWorldPinned = pinWorld();
}
