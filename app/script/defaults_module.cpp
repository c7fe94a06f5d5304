#include "app/script/defaults_module.h"

#include "app/script/ScriptEngine.h"
#include "app/script/defaults_store.h"

#include <QJSEngine>

namespace script {
namespace {

QString defaultsSource()
{
    return QStringLiteral(R"js((function (store) {
    "use strict";
    return Object.freeze({
        get: function (...values) { return store.get(values); },
        set: function (...values) { store.set(values); },
        remove: function (...values) { store.remove(values); }
    });
}))js");
}

} // namespace

QJSValue defaultsModule(ScriptEngine &scripts)
{
    QJSEngine &engine = scripts.engine();
    auto *store = new DefaultsStore(scripts);
    const QJSValue makeDefaults = engine.evaluate(defaultsSource(), QStringLiteral("quorlin:facade"));
    QJSValue exports = engine.newObject();
    exports.setProperty(QStringLiteral("defaults"), makeDefaults.call({engine.newQObject(store)}));
    return exports;
}

} // namespace script
