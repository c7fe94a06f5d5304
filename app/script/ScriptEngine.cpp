#include "app/script/ScriptEngine.h"

#include "app/script/defaults_module.h"
#include "app/script/import_place.h"
#include "app/script/language.h"
#include "app/script/panels_module.h"
#include "app/seam/facade.h"
#include "app/seam/host_call.h"
#include "app/seam/seam.h"
#include "app/setup/configuration.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QFileInfo>
#include <QJSEngine>
#include <QRegularExpression>
#include <QUrl>

namespace script {
namespace {

/**
 * The global name under which the engine finds the running HostCall while it looks it up; afterwards it is undefined.
 */
const QString hostName = QStringLiteral("quorlinHost");

QString readableName(const QString &source)
{
    const QUrl url(source);
    return url.isLocalFile() ? url.toLocalFile() : source;
}

/** The topmost entry of a trace (entries are "function:line:column:file") that is in a user's script. */
Location locationInTrace(const QStringList &trace)
{
    static const QRegularExpression entryForm(QStringLiteral("^(.*?):(-?\\d+):(-?\\d+):(.*)$"));
    for (const QString &entry : trace) {
        const QRegularExpressionMatch match = entryForm.match(entry);
        const QString source = match.captured(4);
        const int line = std::abs(match.captured(2).toInt());
        if (line > 0 && QUrl(source).isLocalFile())
            return {readableName(source), line};
    }
    return {};
}

QString sentence(const Location &location, const QString &text)
{
    return QStringLiteral("%1:%2: %3").arg(location.file, QString::number(location.line), text);
}

bool isUsable(const Location &location)
{
    return !location.file.isEmpty() && location.line > 0 && !location.file.endsWith(facadeFileName());
}

} // namespace

ScriptEngine::ScriptEngine(std::vector<ServiceEntry> services, QObject *parent)
    : QObject(parent), m_engine(std::make_unique<QJSEngine>())
{
    app::useTexts();
    m_engine->installExtensions(QJSEngine::AllExtensions);
    m_language = std::make_unique<Language>(*m_engine);
    m_language->tellRejection = [this](const QJSValue &reason, const Location &place) {
        reportUncaught(describe(reason, place));
    };
    // Always defined: an engine whose global object loses properties mixes up those that were added later.
    m_engine->evaluate(QStringLiteral("Object.defineProperty(this, '%1', { writable: true })").arg(hostName));
    m_seam = std::make_unique<Seam>(*m_engine, std::move(services));
    m_seam->callHandler = [this](const QJSValue &function, const QJSValueList &values) {
        const auto called = call(function, values);
        if (!called)
            reportUncaught(called.error().message);
        return called.value_or(QJSValue());
    };
    registerOwnModules();
}

ScriptEngine::~ScriptEngine()
{
    // The services that scripts still hold go first; the seam keeps the list of them.
    m_engine.reset();
}

void ScriptEngine::registerOwnModules()
{
    for (const QByteArray &module : {QByteArray("quorlin"), QByteArray("quorlin/controls")})
        registerModule(QString::fromLatin1(module), m_seam->exportsOf(module));
    registerModule(QStringLiteral("quorlin/panels"), panelsModule(*this));
    registerModule(QStringLiteral("quorlin/defaults"), defaultsModule(*this));
}

bool ScriptEngine::registerModule(const QString &name, const QJSValue &value)
{
    if (m_modules.contains(name) || !m_engine->registerModule(name, value))
        return false;
    m_modules.insert(name);
    return true;
}

void ScriptEngine::registerServices(const QByteArray &module, std::vector<ServiceEntry> services)
{
    for (ServiceEntry &service : services)
        m_seam->add(std::move(service));
    registerModule(QString::fromLatin1(module), m_seam->exportsOf(module));
}

platform::Result<QJSValue> ScriptEngine::importFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return platform::failure(platform::ErrorCode::NotFound, tr("Cannot read %1: no such file").arg(path));
    const QString file = info.absoluteFilePath();
    // The engine would hand out a half-evaluated module again.
    if (const auto failed = m_failedModules.constFind(file); failed != m_failedModules.constEnd())
        return platform::failure(platform::ErrorCode::InvalidValue, *failed);
    const auto load = [this, file] {
        const QJSValue loaded = m_engine->importModule(file);
        // A failure before anything runs is returned, not thrown.
        if (!m_engine->hasError() && loaded.isError())
            m_engine->throwError(loaded);
        return loaded;
    };
    auto module = run(hostName + QStringLiteral(".run()"), load, file);
    if (!module)
        m_failedModules.insert(file, module.error().message);
    return module;
}

platform::Result<QJSValue> ScriptEngine::call(const QJSValue &function, const QJSValueList &arguments,
                                              const QJSValue &thisObject)
{
    if (!function.isCallable())
        return platform::failure(platform::ErrorCode::InvalidValue, tr("This is not a function of a script"));
    // Only a call from inside the engine tells what was thrown from what was returned.
    QJSValue list = m_engine->newArray(uint(arguments.size()));
    for (qsizetype i = 0; i < arguments.size(); ++i)
        list.setProperty(quint32(i), arguments.at(i));
    QJSValue parts = m_engine->newObject();
    parts.setProperty(QStringLiteral("f"), function);
    parts.setProperty(QStringLiteral("object"), thisObject);
    parts.setProperty(QStringLiteral("list"), list);
    return run(QStringLiteral("(c => c.f.apply(c.object, c.list))(%1.run())").arg(hostName), [parts] { return parts; },
               {});
}

platform::Result<QJSValue> ScriptEngine::run(const QString &program, const Body &body, const QString &file)
{
    HostCall host([&] {
        m_engine->globalObject().setProperty(hostName, QJSValue());
        return body();
    });
    QJSEngine::setObjectOwnership(&host, QJSEngine::CppOwnership);
    m_engine->globalObject().setProperty(hostName, m_engine->newQObject(&host));
    QStringList trace;
    const QJSValue value = m_engine->evaluate(program, {}, 1, &trace);
    if (trace.isEmpty())
        return value;
    Location location = placeOfMissingImport(file, textOf(value));
    if (!isUsable(location))
        location = locationInTrace(trace);
    return platform::failure(platform::ErrorCode::InvalidValue,
                             describe(value, isUsable(location) ? location : Location{file, 1}));
}

/** A thrown value in words, with its own position if it is an error that has one. */
QString ScriptEngine::describe(const QJSValue &thrown, const Location &otherwise) const
{
    Location location;
    if (thrown.isError())
        location = {readableName(thrown.property(QStringLiteral("fileName")).toString()),
                    thrown.property(QStringLiteral("lineNumber")).toInt()};
    return sentence(isUsable(location) ? location : otherwise, textOf(thrown));
}

QString ScriptEngine::textOf(const QJSValue &thrown) const
{
    return thrown.isError() ? thrown.toString() : nameAndMessage(thrown);
}

/** A thrown value that is no error, wrapped as one. */
QString ScriptEngine::nameAndMessage(const QJSValue &thrown) const
{
    const QString name = thrown.property(QStringLiteral("name")).toString();
    const QJSValue message = thrown.property(QStringLiteral("message"));
    const bool saysMore = thrown.isObject() && message.isString();
    const bool hasName = saysMore && thrown.property(QStringLiteral("name")).isString() && !name.isEmpty();
    m_engine->catchError(); // a getter of the script may throw
    if (saysMore)
        return QStringLiteral("%1: %2").arg(hasName ? name : QStringLiteral("Error"), message.toString());
    return QStringLiteral("Error: %1").arg(thrown.isString() ? thrown.toString() : m_seam->values().described(thrown));
}

void ScriptEngine::reportUncaught(const QString &message)
{
    Q_EMIT uncaughtError(message);
}

QJSValue ScriptEngine::controlValue(QObject *object)
{
    return object ? m_seam->facadeOf(object, Seam::Owner::Application) : QJSValue(QJSValue::NullValue);
}

void ScriptEngine::drain()
{
    // Settled promises post an event for each reaction.
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    do {
        while (dispatcher && dispatcher->processEvents(QEventLoop::AllEvents)) {
        }
    } while (m_language->tellRejections());
}

} // namespace script
