#pragma once

#include "app/script/registry.h"
#include "platform/foundation/result.h"

#include <QHash>
#include <QJSValue>
#include <QObject>
#include <QSet>

#include <functional>
#include <memory>

class QJSEngine;

namespace script {

class Language;
class Seam;
struct Location;

/**
 * Runs user-interface scripts: ES modules that import the service classes and controls of the application.
 *
 * Modules there are from the start: "quorlin" (service classes, Picture), "quorlin/controls" (stand-ins),
 * "quorlin/panels" (answers to panels), "quorlin/defaults" (user defaults).
 *
 * How the application uses it:
 *
 *     script::ScriptEngine scripts;
 *     QJSValue window = scripts.engine().newObject();
 *     window.setProperty("control", ...);                       // any value; its properties are what can be imported
 *     scripts.registerModule("quorlin/window", window);         // before the first module that imports it
 *     // A provider of real panels is set before the engine is made, so that scripts can answer in its place.
 *     connect(&scripts, &ScriptEngine::uncaughtError, ...);     // errors in signal handlers, in words with file and line
 *     auto main = scripts.importFile(folder + "/main.js");      // imports of other files are relative to each file
 *     if (!main) showFatal(main.error().message);               // "FILE:LINE: NAME: MESSAGE"
 *     auto result = scripts.call(main->property("start"), {});  // functions that a module exports
 *
 * A widget is handed to scripts with controlValue(); service outlets take it like a stand-in. A function that a script
 * connects to a signal needs nothing more: what it throws arrives at uncaughtError(). A generator (a job) is carried on
 * with call(generator.property("next"), {}, generator).
 *
 * `import * as name` does not work for the registered modules, only `import { a, b }`; a name that a registered module does
 * not have is undefined. A promise that is rejected and that nobody handles before everything that was due has run is an uncaught
 * error. Modules are loaded once; a module that failed fails again with the same words.
 *
 * Main thread only. Nothing here throws.
 */
class ScriptEngine : public QObject
{
    Q_OBJECT

public:
    explicit ScriptEngine(std::vector<ServiceEntry> services = registeredServices(), QObject *parent = nullptr);
    ~ScriptEngine() override;

    QJSEngine &engine() { return *m_engine; }
    Seam &seam() { return *m_seam; }

    /** Makes the properties of @p value importable from @p name. False if the name is taken. */
    bool registerModule(const QString &name, const QJSValue &value);

    /** Makes services importable from @p module, behind the same facade as those that are there from the start. */
    void registerServices(const QByteArray &module, std::vector<ServiceEntry> services);

    /**
     * Loads and runs the module at @p path, relative to the current folder, and everything that it imports.
     *
     * @return what the module exports. Fails with NotFound if there is no such file, otherwise with InvalidValue and
     *         "FILE:LINE: NAME: MESSAGE".
     */
    platform::Result<QJSValue> importFile(const QString &path);

    /** Calls a function of a script. Fails like importFile(). */
    platform::Result<QJSValue> call(const QJSValue &function, const QJSValueList &arguments,
                                    const QJSValue &thisObject = {});

    /** @p object as scripts get it: a service as its facade, a widget or other control as itself; C++ keeps owning it. */
    QJSValue controlValue(QObject *object);

    /** Runs everything that settled promises and queued events have left to do. */
    void drain();

    /** Reports an error that nobody caught; "FILE:LINE: NAME: MESSAGE". */
    void reportUncaught(const QString &message);

Q_SIGNALS:
    void uncaughtError(const QString &message);

private:
    using Body = std::function<QJSValue()>;

    platform::Result<QJSValue> run(const QString &program, const Body &body, const QString &file);
    QString describe(const QJSValue &thrown, const Location &otherwise) const;
    QString textOf(const QJSValue &thrown) const;
    QString nameAndMessage(const QJSValue &thrown) const;
    void registerOwnModules();

    std::unique_ptr<Seam> m_seam;
    std::unique_ptr<Language> m_language;
    std::unique_ptr<QJSEngine> m_engine;
    QSet<QString> m_modules;
    QHash<QString, QString> m_failedModules;
};

} // namespace script
