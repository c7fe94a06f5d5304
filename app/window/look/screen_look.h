#pragma once

#include "platform/effects/screen_colours.h"

#include <QHash>
#include <QImage>
#include <QObject>

#include <memory>

class QScreen;

namespace window {

/**
 * Shows pictures in the colours of their screen: by the profile of the window system, else that of the desktop's colour
 * manager, else unconverted. Results never pass through here.
 */
class ScreenLook : public QObject
{
    Q_OBJECT

public:
    /** Lives as long as the application. */
    static ScreenLook &ofProcess();

    /** @p image, which is sRGB, for @p screen. */
    QImage shown(const QImage &image, const QScreen *screen);

    /** Asks the window system again: a screen may have been calibrated meanwhile. */
    void lookAgain();

Q_SIGNALS:
    /** The colours of a screen changed. */
    void changed();

private:
    struct Screen
    {
        QByteArray profile;
        std::shared_ptr<platform::ScreenColours> colours;
    };

    explicit ScreenLook(QObject *parent);
    const Screen &lookOf(const QScreen *screen);
    void take(const QString &name, const QByteArray &profile);
    void askColourManager(const QString &name);
    void askForProfile(const QString &name, const QString &device);

    QHash<QString, Screen> m_screens;
};

} // namespace window
