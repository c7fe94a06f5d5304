#include "app/script/panels_module.h"

#include "app/script/ScriptEngine.h"
#include "app/script/panel_queue.h"
#include "app/seam/seam.h"

#include <QJSEngine>

namespace script {
namespace {

QString panelsSource()
{
    return QStringLiteral(R"js((function (queue) {
    "use strict";
    const shown = [];
    queue.onShown(entry => { shown.push(entry); });
    return Object.freeze({
        accept: function (...values) { queue.accept(values); },
        cancel: function (...values) { queue.cancel(values); },
        get shown() { return shown; }
    });
}))js");
}

} // namespace

QJSValue panelsModule(ScriptEngine &scripts)
{
    QJSEngine &engine = scripts.engine();
    auto *queue = new PanelQueue(scripts);
    const QJSValue makePanels = engine.evaluate(panelsSource(), QStringLiteral("quorlin:facade"));
    QJSValue exports = engine.newObject();
    exports.setProperty(QStringLiteral("panels"), makePanels.call({engine.newQObject(queue)}));
    return exports;
}

} // namespace script
