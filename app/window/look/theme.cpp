#include "app/window/look/theme.h"

#include "platform/desktop/user_defaults.h"
#include "platform/foundation/raised.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QRegularExpression>

namespace window {

namespace {

struct CurrentTheme
{
    Appearance appearance = Appearance::Light;
    QHash<QString, QColor> colors;
};

CurrentTheme &current()
{
    static CurrentTheme theme;
    return theme;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QHash<QString, QColor> colorsOf(const QString &path)
{
    QHash<QString, QColor> colors;
    const QJsonObject object = QJsonDocument::fromJson(contentOf(path)).object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        colors.insert(entry.key(), QColor(entry.value().toString()));
    return colors;
}

QPalette paletteOf()
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const char *name, const char *disabled) {
        palette.setColor(role, Theme::color(QString::fromLatin1(name)));
        palette.setColor(QPalette::Disabled, role, Theme::color(QString::fromLatin1(disabled)));
    };
    set(QPalette::Window, "window", "window");
    set(QPalette::WindowText, "text", "faint");
    set(QPalette::Base, "field", "window");
    set(QPalette::AlternateBase, "window", "window");
    set(QPalette::Text, "text", "faint");
    set(QPalette::Button, "field", "window");
    set(QPalette::ButtonText, "text", "faint");
    set(QPalette::BrightText, "onAccent", "onAccent");
    set(QPalette::ToolTipBase, "tip", "tip");
    set(QPalette::ToolTipText, "tipText", "tipText");
    set(QPalette::PlaceholderText, "muted", "faint");
    set(QPalette::Highlight, "accent", "line");
    set(QPalette::HighlightedText, "onAccent", "text");
    set(QPalette::Link, "accentText", "faint");
    set(QPalette::LinkVisited, "accentText", "faint");
    set(QPalette::Light, "field", "field");
    set(QPalette::Midlight, "line", "line");
    set(QPalette::Mid, "line", "line");
    set(QPalette::Dark, "line", "line");
    set(QPalette::Shadow, "line", "line");
    return palette;
}

/**
 * Fusion without icons on dialog buttons, and with menu mnemonics underlined only while Alt is held.
 *
 * No text is taken for rich text because of a name in it, such as "a<h1>b.jpg": labels, including those of questions
 * and tooltips, show plain text, unless they were made for pages.
 */
class CalmStyle : public QProxyStyle
{
public:
    CalmStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    using QProxyStyle::polish;
    void polish(QWidget *widget) override
    {
        auto *label = qobject_cast<QLabel *>(widget);
        if (label && label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
        QProxyStyle::polish(widget);
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        if (hint == SH_UnderlineShortcut)
            return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier) ? 1 : 0;
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

QString withScaledFonts(QString sheet)
{
    static const QRegularExpression size(QStringLiteral("font-size: (\\d+)px"));
    for (auto found = size.match(sheet); found.hasMatch(); found = size.match(sheet, found.capturedEnd()))
        sheet.replace(found.capturedStart(1), found.capturedLength(1),
                      QString::number(Theme::scaled(found.captured(1).toInt())));
    return sheet;
}

/** The desktop's preference over the settings portal: 1 dark, 2 light, nothing if it cannot be asked. */
int portalColorScheme()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return 0;
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    message << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
    constexpr int timeoutMs = 300;
    const QDBusMessage reply = bus.call(message, QDBus::Block, timeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return 0;
    QVariant value = reply.arguments().constFirst();
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toInt();
}

} // namespace

Theme::Theme(QApplication &application, const QString &folder, QObject *parent)
    : QObject(parent), m_application(application), m_folder(folder),
      m_systemPaletteIsDark(application.palette().color(QPalette::Window).lightness() < 128)
{
    // A path in a style sheet could not contain quotation marks, ampersands and more; a prefix stands for it.
    QDir::setSearchPaths(QStringLiteral("theme"), {folder});
    application.setStyle(new CalmStyle);
    useReadableFont();
    apply(wanted());
    QDBusConnection::sessionBus().connect(
        QString(), QStringLiteral("/org/freedesktop/portal/desktop"), QStringLiteral("org.freedesktop.portal.Settings"),
        QStringLiteral("SettingChanged"), this, SLOT(portalSettingChanged(QString, QString)));
}

QColor Theme::color(const QString &name)
{
    const QHash<QString, QColor> &colors = current().colors;
    return colors.isEmpty() ? QGuiApplication::palette().color(QPalette::WindowText)
                            : colors.value(name, QColor(Qt::magenta));
}

// Sizes are designed for a font of about 13 pixels; what a desktop has is close to that or intentionally larger.
int Theme::scaled(int fontPx)
{
    constexpr double usualPx = 13;
    constexpr double nearPx = 16;
    const int own = QFontInfo(QApplication::font()).pixelSize();
    return own > nearPx ? qRound(fontPx * own / usualPx) : fontPx;
}

Appearance Theme::appearance()
{
    return current().appearance;
}

QString Theme::appearanceName() const
{
    return appearance() == Appearance::Dark ? QStringLiteral("dark") : QStringLiteral("light");
}

void Theme::choose(const QString &name)
{
    const bool isKnown =
        name == QLatin1String("light") || name == QLatin1String("dark") || name == QLatin1String("system");
    if (!isKnown)
        throw platform::Raised::typeError(
            QStringLiteral("Expected \"light\", \"dark\" or \"system\" for name but received \"%1\"").arg(name));
    platform::setUserDefault(QStringLiteral("Appearance"), name);
    apply(wanted());
}

QString Theme::choice() const
{
    const QString stored = platform::userDefault(QStringLiteral("Appearance")).toString();
    return stored == QLatin1String("light") || stored == QLatin1String("dark") ? stored : QStringLiteral("system");
}

void Theme::portalSettingChanged(const QString &group, const QString &key)
{
    if (group == QLatin1String("org.freedesktop.appearance") && key == QLatin1String("color-scheme"))
        apply(wanted());
}

// A desktop without a configured font falls back to DejaVu Sans, which is wide and coarse in small sizes.
void Theme::useReadableFont()
{
    const QString better = QStringLiteral("Inter");
    if (!QFontInfo(m_application.font()).family().startsWith(QLatin1String("DejaVu")) ||
        !QFontDatabase::hasFamily(better))
        return;
    QFont font = m_application.font();
    font.setFamily(better);
    m_application.setFont(font);
}

Appearance Theme::wanted() const
{
    for (const QString &said : {qEnvironmentVariable("QUORLIN_APPEARANCE"), choice()}) {
        if (said == QLatin1String("dark"))
            return Appearance::Dark;
        if (said == QLatin1String("light"))
            return Appearance::Light;
    }
    return systemAppearance();
}

Appearance Theme::systemAppearance() const
{
    switch (portalColorScheme()) {
    case 1:
        return Appearance::Dark;
    case 2:
        return Appearance::Light;
    default:
        return m_systemPaletteIsDark ? Appearance::Dark : Appearance::Light;
    }
}

void Theme::apply(Appearance appearance)
{
    const QString name = appearance == Appearance::Dark ? QStringLiteral("dark") : QStringLiteral("light");
    current() = {appearance, colorsOf(m_folder + QLatin1Char('/') + name + QStringLiteral(".json"))};
    if (current().colors.isEmpty()) { // without its files the program must still be able to say so, legibly
        m_application.setPalette(m_application.style()->standardPalette());
        m_application.setStyleSheet({});
        Q_EMIT changed();
        return;
    }
    QString sheet = withScaledFonts(QString::fromUtf8(contentOf(m_folder + QStringLiteral("/base.qss"))));
    for (auto entry = current().colors.cbegin(); entry != current().colors.cend(); ++entry)
        sheet.replace(QLatin1Char('@') + entry.key() + QLatin1Char('@'), entry.value().name(QColor::HexArgb));
    sheet.replace(QStringLiteral("@name@"), name);
    m_application.setPalette(paletteOf());
    m_application.setStyleSheet(sheet);
    QPixmapCache::clear();
    Q_EMIT changed();
}

} // namespace window
