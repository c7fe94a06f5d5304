#include "app/script/language.h"

#include "app/seam/facade.h"

#include <QLocale>

#include <utility>

namespace script {
namespace {

/*
 * The engine's own operations recurse into a list that contains itself until the stack overflows, which ends the
 * process. Where such a list contains itself, its text is empty, as the language defines it.
 *
 * Every promise of the engine is created by the constructor of another one, so all of them pass through the one here. A
 * promise counts as handled as soon as then() is called on it, which catch() does too; the promise that then() returns
 * is watched instead.
 */
const char *const source = R"js((function (host) {
    "use strict";
    const global = Function("return this")();
    const define = (object, name, value) =>
        Object.defineProperty(object, name, { value, writable: true, enumerable: false, configurable: true });

    let reactions = 0;
    function boundText(name) {
        const underWay = [];
        const native = Array.prototype[name];
        const bounded = function (...values) {
            if (underWay.includes(this))
                return "";
            underWay.push(this);
            try {
                return native.apply(this, values);
            } finally {
                underWay.pop();
            }
        };
        Object.defineProperty(bounded, "name", { value: name, configurable: true });
        define(Array.prototype, name, bounded);
    }

    function readersNumbers() {
        const valueOf = Number.prototype.valueOf;
        define(Number.prototype, "toLocaleString", function toLocaleString() { return host.numberText(valueOf.call(this)); });
    }

    function watchedPromises() {
        const Native = global.Promise;
        const nativeThen = Native.prototype.then;
        const handled = new WeakSet();
        let isWatching = false;
        const counted = reaction => typeof reaction !== "function" ? reaction : value => {
            reactions += 1;
            return reaction(value);
        };

        function watch(promise) {
            const stack = new Error().stack;
            const isHandled = () => handled.has(promise);
            isWatching = true;
            try {
                nativeThen.call(promise, undefined, reason => {
                    if (!isHandled())
                        host.rejected(reason, stack, isHandled);
                });
            } finally {
                isWatching = false;
            }
            return promise;
        }

        function Promise(executor) {
            if (new.target === undefined)
                throw new TypeError("Promise is made with new");
            const promise = Reflect.construct(Native, [executor], new.target);
            return isWatching ? promise : watch(promise);
        }

        function then(onFulfilled, onRejected) {
            if (typeof this === "object" && this !== null)
                handled.add(this);
            return nativeThen.call(this, counted(onFulfilled), counted(onRejected));
        }

        Object.getOwnPropertyNames(Native).filter(name => typeof Native[name] === "function" && name !== "prototype")
            .forEach(name => define(Promise, name, Native[name]));
        Object.defineProperty(Promise, Symbol.species, { get() { return this; }, configurable: true });
        Object.defineProperty(Promise, "prototype", { value: Native.prototype });
        define(Native.prototype, "constructor", Promise);
        define(Native.prototype, "then", then);
        define(global, "Promise", Promise);
    }

    // Existing members stay as they are; others can be added, as everywhere in the language.
    function lock(object, locked) {
        if ((typeof object !== "object" && typeof object !== "function") || object === null || locked.has(object))
            return;
        locked.add(object);
        Reflect.ownKeys(object).forEach(key => {
            const member = Object.getOwnPropertyDescriptor(object, key);
            if (member.configurable)
                Object.defineProperty(object, key, "value" in member ? { writable: false, configurable: false }
                                                                     : { configurable: false });
            lock(member.value, locked);
        });
    }

    ["join", "toString", "toLocaleString"].forEach(boundText);
    readersNumbers();
    watchedPromises();
    lock(global, new Set());
    return () => reactions;
}))js";

} // namespace

Language::Language(QJSEngine &engine)
{
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    const QJSValue prepare = engine.evaluate(QString::fromLatin1(source), facadeFileName());
    m_reactions = prepare.call({engine.newQObject(this)});
    Q_ASSERT_X(!m_reactions.isError(), "language", qPrintable(m_reactions.toString()));
    m_due.setSingleShot(true);
    m_due.setInterval(0);
    connect(&m_due, &QTimer::timeout, this, &Language::tellWhenQuiet);
}

QString Language::numberText(double number) const
{
    return QLocale().toString(number, 'f', QLocale::FloatingPointShortest);
}

void Language::rejected(const QJSValue &reason, const QString &stack, const QJSValue &isHandled)
{
    m_rejections.push_back({reason, stack, isHandled});
    m_turns = 0;
    m_due.start();
}

/** Each reaction runs in its own pass of the event loop; the last of them may still handle a rejection. */
void Language::tellWhenQuiet()
{
    constexpr int mostTurns = 100;
    const int reactions = m_reactions.call().toInt();
    const bool isQuiet = m_turns > 0 && reactions == m_reactionsBefore;
    m_reactionsBefore = reactions;
    if (isQuiet || ++m_turns > mostTurns)
        tellRejections();
    else
        m_due.start();
}

bool Language::tellRejections()
{
    const std::vector<Rejection> rejections = std::exchange(m_rejections, {});
    for (const Rejection &rejection : rejections)
        if (!rejection.isHandled.call().toBool() && tellRejection)
            tellRejection(rejection.reason, locationInStack(rejection.stack));
    return !rejections.empty();
}

} // namespace script
