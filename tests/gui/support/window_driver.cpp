#include "tests/gui/support/window_driver.h"

#include "app/window/folders/side_bar.h"

#include "jobs/desk/worker_desk.h"

#include "platform/controls/panels.h"
#include "platform/desktop/user_defaults.h"

#include "tests/support/own_settings.h"
#include "tests/support/pinned_world.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFontInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace {

/** Answers every panel with the paths that were laid out for it. */
class LaidOutPanels : public platform::PanelProvider
{
public:
    explicit LaidOutPanels(QStringList paths) : m_paths(std::move(paths)) {}
    platform::PanelAnswer run(const platform::PanelRequest &) override { return {!m_paths.isEmpty(), m_paths, {}}; }

private:
    QStringList m_paths;
};

} // namespace

// The name is no longer for a test of a longer name, since windows show paths.
WindowDriver::WindowDriver(QApplication &application, const QString &home) : m_application(application), m_folder(home)
{
    if (home.isEmpty())
        m_folder = m_home.emplace(QDir::tempPath() + QStringLiteral("/quorlin-XXXXXX")).path();
    if (const QString family = QFontInfo(QFont()).family(); family != QLatin1String("DejaVu Sans"))
        qFatal("the tests measure with DejaVu Sans, of the package fonts-dejavu-core, and got %s", qPrintable(family));
    static bool isFirst = true;
    if (std::exchange(isFirst, false))
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER)); // the tests are not where the program is
    qputenv("HOME", m_folder.toLocal8Bit());
    qputenv("XDG_DATA_HOME", (m_folder + QStringLiteral("/.local/share")).toLocal8Bit());
    qputenv("XDG_CACHE_HOME", (m_folder + QStringLiteral("/.cache")).toLocal8Bit());
    keepSettingsIn(m_folder + QStringLiteral("/.config"));
    // Nobody is there to be asked; who tests the question takes this away.
    platform::setUserDefault(QStringLiteral("SupportFolderPutOff"), QStringLiteral("{\"on\":true}"));
    startAgain();
}

void WindowDriver::startAgain(const QString &opening)
{
    m_startUp.reset();
    m_startUp = std::make_unique<window::StartUp>(m_application);
    if (!m_startUp->loadScripts({}, opening))
        qFatal("%s", qPrintable(m_startUp->problem()));
}

std::unique_ptr<WindowDriver> WindowDriver::started(const QString &home)
{
#ifdef QUORLIN_INTERFACE_FOLDER
    qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
#endif
    return std::make_unique<WindowDriver>(*qobject_cast<QApplication *>(QCoreApplication::instance()), home);
}

std::unique_ptr<WindowDriver> WindowDriver::showing(const char *action)
{
    auto driver = started();
    driver->show(action);
    return driver;
}

QString WindowDriver::inputFolder() const
{
    const QString path = folder() + QStringLiteral("/in");
    QDir().mkpath(path);
    return path;
}

WindowDriver::~WindowDriver() = default;

QMainWindow &WindowDriver::window()
{
    return *qobject_cast<QMainWindow *>(m_startUp->shell().mainForm()->root());
}

bool WindowDriver::isShown(const QObject *object)
{
    const auto *widget = qobject_cast<const QWidget *>(object);
    return widget && widget->isVisible();
}

void WindowDriver::show(const char *action)
{
    control<window::SideBar>("sideBar")->setCurrentAction(QString::fromLatin1(action));
}

void WindowDriver::click(const char *button)
{
    auto *found = control<QAbstractButton>(button);
    if (!waitFor([found] { return found->isVisible() && found->isEnabled(); }))
        qFatal("the button %s cannot be clicked", button);
    QTest::mouseClick(found, Qt::LeftButton);
}

void WindowDriver::trigger(const char *action)
{
    control<QAction>(action)->trigger();
}

void WindowDriver::choose(const char *box, const QString &value)
{
    auto *found = control<QComboBox>(box);
    const int index = found->findData(value);
    if (index < 0)
        qFatal("the box %s has no entry %s", box, qPrintable(value));
    found->setCurrentIndex(index);
    Q_EMIT found->activated(index);
}

void WindowDriver::choosePresetEntry(const char *text)
{
    const QList<QAction *> entries = control<QPushButton>("presetMenu")->menu()->actions();
    for (QAction *entry : entries)
        if (entry->text() == QString::fromUtf8(text) && entry->isEnabled())
            return entry->trigger();
    qFatal("no entry %s can be chosen", text);
}

QString WindowDriver::cell(int row, int column)
{
    return pictures().model()->index(row, column).data().toString();
}

void WindowDriver::drop(const QStringList &paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &enter);
    if (!enter.isAccepted())
        return;
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &drop);
}

bool WindowDriver::waitFor(const std::function<bool()> &condition, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QTest::qSleep(1);
    }
    return true;
}

QString WindowDriver::waitForSummary()
{
    auto *dismiss = control<QAbstractButton>("dismissButton");
    return waitFor([dismiss] { return dismiss->isVisible(); }, 60000) ? text("statusText") : QString();
}

void WindowDriver::answerNextQuestion(const QString &button)
{
    QTimer::singleShot(50, [button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return answerNextQuestion(button);
        for (QAbstractButton *found : box->buttons())
            if (found->text() == button)
                found->click();
    });
}

void WindowDriver::answerPanels(const QStringList &paths)
{
    platform::setPanelProvider(std::make_unique<LaidOutPanels>(paths));
}
