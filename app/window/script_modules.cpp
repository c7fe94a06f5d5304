#include "app/window/script_modules.h"

#include "app/script/ScriptEngine.h"
#include "app/window/file_desk.h"
#include "app/window/move_desk.h"
#include "app/window/picture_desk.h"
#include "app/window/program_desk.h"
#include "app/window/shell.h"

#include <QQmlEngine>

namespace window {

namespace {

void addObject(script::ScriptEngine &scripts, const QString &module, const QString &name, QObject *object)
{
    QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
    QJSValue exports = scripts.engine().newObject();
    exports.setProperty(name, scripts.engine().newQObject(object));
    scripts.registerModule(module, exports);
}

} // namespace

void addFilesModule(script::ScriptEngine &scripts)
{
    addObject(scripts, QStringLiteral("quorlin/files"), QStringLiteral("files"), new FileDesk(&scripts));
    addObject(scripts, QStringLiteral("quorlin/moves"), QStringLiteral("moves"), new MoveDesk(&scripts));
    addObject(scripts, QStringLiteral("quorlin/pictures"), QStringLiteral("pictures"), new PictureDesk(&scripts));
}

void addShellModule(script::ScriptEngine &scripts, Shell &shell)
{
    addObject(scripts, QStringLiteral("quorlin/shell"), QStringLiteral("shell"), &shell);
    addObject(scripts, QStringLiteral("quorlin/program"), QStringLiteral("program"), new ProgramDesk(&scripts));
}

} // namespace window
