#pragma once

#include <QColor>
#include <QHash>
#include <QObject>
#include <QString>

class QApplication;

namespace window {

enum class Appearance { Light, Dark };

/**
 * Colours, fonts and style of every window, light or dark.
 *
 * The appearance is what QUORLIN_APPEARANCE (light, dark) says, else the user's choice in the defaults ("Appearance":
 * "light" or "dark"), else what the desktop says, which is followed while the program runs. Colours are in
 * themes/light.json and themes/dark.json, shapes in themes/base.qss, where @name@ is replaced by the colour of that
 * name.
 */
class Theme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString appearance READ appearanceName NOTIFY changed)

public:
    /** @param folder  the folder that holds the theme files */
    Theme(QApplication &application, const QString &folder, QObject *parent = nullptr);

    /** Colour by its name in the theme file; a loud magenta if there is none. */
    static QColor color(const QString &name);
    static Appearance appearance();
    /** A font size in pixels, scaled with the font of the application. */
    static int scaled(int fontPx);

    QString appearanceName() const;
    /** "light", "dark" or "system"; another word is a TypeError. Remembered for the next start. */
    Q_INVOKABLE void choose(const QString &name);
    /** What was last passed to choose(): "light", "dark" or "system". */
    Q_INVOKABLE QString choice() const;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void portalSettingChanged(const QString &group, const QString &key);

private:
    void apply(Appearance appearance);
    void useReadableFont();
    Appearance wanted() const;
    Appearance systemAppearance() const;

    QApplication &m_application;
    QString m_folder;
    bool m_systemPaletteIsDark = false;
};

} // namespace window
