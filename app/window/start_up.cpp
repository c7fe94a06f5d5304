#include "app/window/start_up.h"

#include "app/modules/file_modules.h"
#include "app/reading/reading_services.h"
#include "app/script/ScriptEngine.h"
#include "app/setup/configuration.h"
#include "app/setup/interface_folder.h"
#include "app/setup/translations.h"
#include "app/window/forms/accessible_controls.h"
#include "app/window/forms/widget_controls.h"
#include "app/window/look/icons.h"
#include "app/window/look/theme.h"
#include "app/window/panels/dialog_panels.h"
#include "app/window/script_modules.h"
#include "app/window/shell.h"
#include "jobs/desk/worker_desk.h"

#include "platform/desktop/strings_tables.h"
#include "platform/foundation/log.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>

namespace window {

StartUp::StartUp(QApplication &application)
{
    QCoreApplication::setApplicationName(QStringLiteral("quorlin"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quorlin"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUORLIN_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.brelmark.Quorlin"));
    const QString folder = interfaceFolder();
    useLanguage();
    setIconsOf(folder);
    describeOwnControls();
    m_theme = std::make_unique<Theme>(application, folder + QStringLiteral("/themes"));
    m_shell = std::make_unique<Shell>(folder, *m_theme);
    // The engine's queue of answers takes precedence over the dialogs.
    platform::setPanelProvider(std::make_unique<DialogPanels>());
    platform::setWindowControls(std::make_unique<WidgetControls>());
    m_scripts = std::make_unique<script::ScriptEngine>();
    script::addFileModules(*m_scripts, {new ReadingFiles(m_scripts.get()), new ReadingPictures(m_scripts.get()),
                                        new ReadingRecipes(m_scripts.get()), new ReadingPages(m_scripts.get())});
    addShellModule(*m_scripts, *m_shell);
    jobs::WorkerDesk::forWaiting().warmUp();
    QObject::connect(m_scripts.get(), &script::ScriptEngine::uncaughtError, m_shell.get(),
                     [](const QString &message) { platform::logLine(message); });
}

void StartUp::useLanguage()
{
    app::useTexts();
    QLocale::setDefault(app::wantedLocale());
    m_translations = std::make_unique<app::Translations>(platform::languageOfTexts());
    jobs::WorkerDesk::useTexts(m_translations->files());
}

// The windows are destroyed first: their controls still hold functions of the scripts.
StartUp::~StartUp()
{
    m_shell->closeAll();
}

bool StartUp::loadScripts(const QStringList &arguments, const QString &opening)
{
    m_shell->setArguments(arguments, opening);
    const auto loaded = m_scripts->importFile(interfaceFolder() + QStringLiteral("/main.js"));
    if (loaded)
        return true;
    m_problem = loaded.error().message;
    platform::logLine(m_problem);
    m_shell->closeAll();
    tellFatalProblem(m_problem);
    return false;
}

void tellFatalProblem(const QString &problem)
{
    QMessageBox box(
        QMessageBox::Critical, QStringLiteral("Quorlin"),
        QCoreApplication::translate("window::StartUp", "Quorlin cannot start: a script of its interface failed."));
    box.setInformativeText(problem);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

} // namespace window
