#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/preview/compare_preview.h"

#include <QColorSpace>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>

#include <cstdlib>

#include <xcb/xcb.h>

namespace {

const char *const inside = "QUORLIN_TEST_UNDER_X";
constexpr QColor shown(200, 40, 40);

void putOnRoot(const QByteArray &profile)
{
    xcb_connection_t *display = xcb_connect(nullptr, nullptr);
    const auto named = xcb_intern_atom(display, 0, 12, "_ICC_PROFILE");
    xcb_intern_atom_reply_t *atom = xcb_intern_atom_reply(display, named, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, root, atom->atom, XCB_ATOM_CARDINAL, 8,
                        uint32_t(profile.size()), profile.constData());
    std::free(atom);
    xcb_flush(display);
    // The answer to another question says that this was done.
    std::free(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
    xcb_disconnect(display);
}

QByteArray digest(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256)
                                          : QByteArray();
}

} // namespace

/** Pictures are shown in the colours of the screen, and nothing else is. Runs itself once more, on a separate display. */
class ScreenColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsUnderX();
    void previewsHaveTheColoursOfTheScreen();

private:
    QColor seen(const char *view, double place);
    QByteArray made(const QByteArray &profile);

    std::unique_ptr<WindowDriver> m_driver;
    QColor m_original;
    QColor m_result;
};

void ScreenColours::runsUnderX()
{
    if (qEnvironmentVariableIsSet(inside))
        QSKIP("this is the inner run");
    const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (program.isEmpty())
        QSKIP("there is no Xvfb");
    QProcess display;
    display.start(program,
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("1600x1000x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    QVERIFY(display.waitForStarted() && display.waitForReadyRead());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(display.readLine().trimmed()));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QString::fromLatin1(inside), QStringLiteral("1"));
    QProcess again;
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::ForwardedChannels);
    again.start(QCoreApplication::arguments().constFirst(), {QStringLiteral("previewsHaveTheColoursOfTheScreen")});
    constexpr int mostMs = 180000;
    const bool isOver = again.waitForFinished(mostMs);
    display.terminate();
    display.waitForFinished();
    QVERIFY(isOver);
    QCOMPARE(again.exitCode(), 0);
}

/** The middle of a half of a view, as it is on the screen. */
QColor ScreenColours::seen(const char *view, double place)
{
    auto *widget = m_driver->control<QWidget>(view);
    const QPoint point = widget->mapToGlobal(QPoint(int(widget->width() * place), widget->height() / 2));
    return widget->screen()->grabWindow(0, point.x(), point.y(), 1, 1).toImage().pixelColor(0, 0);
}

/** Starts with this profile on the screen, shows a picture and makes its result; what is on the screen is noted. */
QByteArray ScreenColours::made(const QByteArray &profile)
{
    putOnRoot(profile);
    m_driver = WindowDriver::showing("resize");
    m_driver->window().move(0, 0);
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(shown);
    const QString path = m_driver->inputFolder() + QStringLiteral("/a.png");
    if (!image.save(path) || !QTest::qWaitForWindowExposed(&m_driver->window()))
        return {};
    m_driver->drop({path});
    auto *view = m_driver->control<window::ComparePreview>("preview");
    bool isShown = false;
    connect(view, &window::ComparePreview::resultShown, this, [&isShown] { isShown = true; });
    const bool isThere = m_driver->waitFor([&] { return isShown && seen("preview", 0.25) == seen("preview", 0.75); });
    m_original = seen("preview", 0.25);
    m_result = isThere ? seen("preview", 0.75) : QColor();
    m_driver->click("startButton");
    m_driver->waitForSummary();
    QDir folder(m_driver->inputFolder());
    const QStringList made = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return made.isEmpty() ? QByteArray() : digest(folder.filePath(made.constFirst() + QStringLiteral("/a.png")));
}

void ScreenColours::previewsHaveTheColoursOfTheScreen()
{
    if (!qEnvironmentVariableIsSet(inside))
        QSKIP("this is the outer run");
    const QByteArray plain = made(QColorSpace(QColorSpace::SRgb).iccProfile());
    QVERIFY(!plain.isEmpty());
    QCOMPARE(m_original, shown);
    QCOMPARE(m_result, shown);
    // What a screen with more red needs for the same colour is less red, and not as pure.
    const QColorSpace wide(QColorSpace::AdobeRgb);
    const QColor expected = QColorSpace(QColorSpace::SRgb).transformationToColorSpace(wide).map(shown);
    const QByteArray converted = made(wide.iccProfile());
    constexpr int near = 2;
    for (const QColor &color : {m_original, m_result}) {
        QVERIFY2(qAbs(color.red() - expected.red()) <= near && qAbs(color.green() - expected.green()) <= near &&
                     qAbs(color.blue() - expected.blue()) <= near,
                 qPrintable(color.name() + QStringLiteral(" and not ") + expected.name()));
        QVERIFY(qAbs(color.red() - shown.red()) > 4 * near);
    }
    QCOMPARE(converted, plain); // the result has nothing of the screen
    m_driver.reset();
}

QUORLIN_GUI_TEST(ScreenColours)

#include "tst_screen_colours.moc"
