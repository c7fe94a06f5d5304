#include "app/setup/command_line.h"

#include "tests/support/test_program.h"

#include <QTest>

using app::CommandLine;
using Wish = app::CommandLine::Wish;

/** What the program takes out of its arguments before there is a window system. */
class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsItsOptions_data();
    void knowsItsOptions();
    void takesPathsAfterTheEndOfOptions();
    void tellsWhatTheWindowOpensWith();
    void tellsWhichWindowSystemIsWanted();
    void saysWhichDisplayIsMissing_data();
    void saysWhichDisplayIsMissing();
};

void TestCommandLine::knowsItsOptions_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<Wish>("wish");
    QTest::addColumn<QString>("unknown");
    const auto row = [](const char *arguments, Wish wish, const char *unknown = "") {
        QTest::newRow(*arguments ? arguments : "none")
            << QString::fromLatin1(arguments) << wish << QString::fromLatin1(unknown);
    };
    row("", Wish::Window);
    row("a.jpg folder", Wish::Window);
    row("--help", Wish::Help);
    row("-h", Wish::Help);
    row("a.jpg --version", Wish::Version);
    row("--version --nonsense", Wish::Version);
    row("--nonsense --help", Wish::Unknown, "--nonsense");
    row("a.jpg -x", Wish::Unknown, "-x");
    row("-", Wish::Unknown, "-");
    row("--versions", Wish::Unknown, "--versions");
    row("-- --help -x", Wish::Window);
    row("-platform offscreen a.jpg", Wish::Window);
    row("--platform offscreen --help", Wish::Help);
    row("-platform --help", Wish::Window);
    row("-style=fusion --version", Wish::Version);
    row("-reverse --version", Wish::Version);
    row("-platforms offscreen", Wish::Unknown, "-platforms");
}

void TestCommandLine::knowsItsOptions()
{
    QFETCH(QString, arguments);
    const CommandLine line = app::commandLineFrom(arguments.split(u' ', Qt::SkipEmptyParts));
    QTEST(line.wish, "wish");
    QTEST(line.unknown, "unknown");
}

void TestCommandLine::takesPathsAfterTheEndOfOptions()
{
    const auto split = [](const char *text) { return QString::fromLatin1(text).split(u' '); };
    QCOMPARE(app::pathsAmong(split("a -- -b --help")), split("a -b --help"));
    QCOMPARE(app::pathsAmong(split("-- -- a")), split("-- a"));
    QCOMPARE(app::pathsAmong({}), QStringList());
}

void TestCommandLine::tellsWhatTheWindowOpensWith()
{
    const auto opening = [](const char *text) {
        return app::commandLineFrom(QString::fromLatin1(text).split(u' ')).opening;
    };
    QCOMPARE(opening("--new-recipe"), QStringLiteral("recipe"));
    QCOMPARE(opening("a.jpg --watch-folder"), QStringLiteral("watch"));
    QCOMPARE(opening("-- --watch-folder"), QString());
    QCOMPARE(app::pathsAmong({QStringLiteral("--new-recipe"), QStringLiteral("a")}), QStringList{QStringLiteral("a")});
    const QStringList ended{QStringLiteral("--"), QStringLiteral("--new-recipe")};
    QCOMPARE(app::pathsAmong(ended), QStringList{QStringLiteral("--new-recipe")});
}

void TestCommandLine::tellsWhichWindowSystemIsWanted()
{
    const auto wanted = [](const char *text) {
        return app::commandLineFrom(QString::fromLatin1(text).split(u' ')).platform;
    };
    QCOMPARE(wanted("-platform xcb a.jpg"), QStringLiteral("xcb"));
    QCOMPARE(wanted("a.jpg --platform offscreen -reverse"), QStringLiteral("offscreen"));
    QCOMPARE(wanted("-style fusion a.jpg"), QString());
    QCOMPARE(wanted("-platform"), QString());
}

void TestCommandLine::saysWhichDisplayIsMissing_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QString>("wayland");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("sentence");
    const auto row = [](const char *platform, const char *wayland, const char *display, const char *end) {
        QTest::newRow(end) << QString::fromLatin1(platform) << QString::fromLatin1(wayland)
                           << QString::fromLatin1(display)
                           << QStringLiteral("Quorlin cannot open its window: ") + QString::fromLatin1(end);
    };
    row("", "", "", "there is no display. Neither WAYLAND_DISPLAY nor DISPLAY is set.");
    row("", "", ":5", "no display answers at DISPLAY=:5.");
    row("", "wayland-0", "", "no display answers at WAYLAND_DISPLAY=wayland-0.");
    row("", "wayland-0", ":5", "no display answers at WAYLAND_DISPLAY=wayland-0 or DISPLAY=:5.");
    row("xcb", "", ":5", "the window system \"xcb\" that was asked for does not start.");
}

void TestCommandLine::saysWhichDisplayIsMissing()
{
    QFETCH(QString, platform);
    QFETCH(QString, wayland);
    QFETCH(QString, display);
    QTEST(app::noDisplaySentence(platform, wayland, display), "sentence");
}

QUORLIN_TEST(TestCommandLine)
#include "tst_command_line.moc"
