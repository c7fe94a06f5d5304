#include "tests/seam/support/ScriptRun.h"

#include "tests/seam/support/EchoService.h"

#include <QFile>
#include <QJSEngine>

namespace {

const char *const prologue =
    "import { EchoService, EchoPartner, Picture, ZtFFullScreen, ZtImageHandling, cNSFileHandling, cNSStringHandling, "
    "cEditMetaData, cToolBox, mMeta, my2ndPhotoView, myMainPhotoView } from 'quorlin'; "
    "import { TextField, CheckBox, ColorWell, SegmentedControl, TabView, PopUpButton, TextView, ProgressIndicator, "
    "ArrayController, TableView, TreeController, Window } from 'quorlin/controls'; "
    "import { panels } from 'quorlin/panels'; import { defaults } from 'quorlin/defaults'; "
    "import { report, reportError } from 'test'; const echo = new EchoService();\n";

const char *const reporter = R"js((function (list) {
    const report = value => { list.push(value === undefined ? "undefined" : JSON.stringify(value)); };
    const reportError = f => {
        try {
            report(f());
        } catch (e) {
            list.push(e.name + ": " + e.message);
        }
    };
    return { report, reportError };
}))js";

std::vector<script::ServiceEntry> entries()
{
    std::vector<script::ServiceEntry> all = script::registeredServices();
    all.push_back(script::serviceEntry<EchoService>());
    all.push_back(script::serviceEntry<EchoPartner>());
    for (size_t i = all.size() - 2; i < all.size(); ++i)
        all[i].isControl = true; // they stand for the controls that a program adds
    return all;
}

const QString listName = QStringLiteral("testReports");

} // namespace

ScriptRun::ScriptRun() : m_engine(entries())
{
    QObject::connect(&m_engine, &script::ScriptEngine::uncaughtError, &m_engine,
                     [this](const QString &message) { uncaught.append(message); });
    QJSEngine &engine = m_engine.engine();
    const QJSValue list = engine.newArray();
    engine.globalObject().setProperty(listName, list);
    const QJSValue functions = engine.evaluate(QString::fromLatin1(reporter)).call({list});
    m_engine.registerModule(QStringLiteral("test"), functions);
}

void ScriptRun::write(const QString &name, const QString &text) const
{
    QFile file(pathOf(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("The module cannot be written");
}

bool ScriptRun::runFile(const QString &name, const QString &text)
{
    write(name, text);
    lastFile = pathOf(name);
    const auto module = m_engine.importFile(lastFile);
    m_engine.drain();
    error = module ? QString() : module.error().message;
    QJSValue list = m_engine.engine().globalObject().property(listName);
    reports = list.toVariant().toStringList();
    list.setProperty(QStringLiteral("length"), 0);
    return module.has_value();
}

bool ScriptRun::run(const QString &body)
{
    return runFile(QStringLiteral("module%1.js").arg(++m_count), QString::fromLatin1(prologue) + body + u'\n');
}

QString ScriptRun::valueOf(const QString &expression)
{
    if (!run(QStringLiteral("reportError(() => { const value = ") + expression + QStringLiteral("; return value; });")))
        return QStringLiteral("failed: ") + error;
    return reports.value(0);
}
