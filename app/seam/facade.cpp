#include "app/seam/facade.h"

namespace script {
namespace {

/*
 * Scripts never see a service itself. A facade is a frozen object whose fields are accessors and whose operations are
 * in its prototype; the service itself is an opaque value under a symbol that never leaves this function. The
 * prototype's own prototype answers every name that was not found with a TypeError. Objects that were set on a field
 * are kept under a second symbol, so that they live as long as the facade and come back as the same object. Such an
 * object may also come back from another object's field, which a service has set: then the engine's own wrapper of the
 * service object, its shell, leads to the facade. Scripts never see a shell; the facade keeps it alive inside a
 * function.
 */
const char *const source = R"js((function (seam) {
    "use strict";
    const NATIVE = Symbol("native");
    const KEPT = Symbol("kept");
    const FACADE = Symbol("facade");
    const ITSELF = Object.freeze({});
    // Every look at a method of an object of the application makes a new function.
    const { call, read, write, make: makeService } = seam;

    function nativeOf(value) {
        return value === null || value === undefined ? undefined : value[NATIVE];
    }

    // Names that the language itself asks every object for.
    function isProtocolName(key) {
        return typeof key === "symbol" || key === "then" || key === "toJSON" || key in Object.prototype;
    }

    function guard(base, className) {
        return new Proxy(base, {
            get(target, key, receiver) {
                return isProtocolName(key) || key in target ? Reflect.get(target, key, receiver)
                                                            : seam.rejectName(className, key);
            },
            set(target, key) {
                seam.rejectAssignment(className, String(key));
                return false;
            }
        });
    }

    function operation(id, name) {
        const result = function (...values) {
            const value = call(nativeOf(this), id, values);
            return value === ITSELF ? this : value;
        };
        Object.defineProperty(result, "name", { value: name });
        return Object.freeze(result);
    }

    function field(id, name, isObject) {
        return {
            get() {
                const kept = isObject && this[KEPT] !== undefined ? this[KEPT][name] : undefined;
                return read(nativeOf(this), id, kept);
            },
            set(value) {
                write(nativeOf(this), id, value);
                if (isObject)
                    this[KEPT][name] = value;
            },
            enumerable: true
        };
    }

    // What is connected is kept by the seam as long as the object lives; the function gets values as operations answer them.
    function signal(id) {
        return {
            get() {
                const native = nativeOf(this);
                return Object.freeze({ connect: (...values) => seam.connectTo(native, id, values) });
            },
            enumerable: true
        };
    }

    function wrap(prototype, fields, native) {
        const facade = Object.create(prototype, fields);
        Object.defineProperty(facade, NATIVE, { value: native });
        Object.defineProperty(facade, KEPT, { value: {} });
        return Object.freeze(facade);
    }

    function setFields(facade, name, fields, values) {
        for (const key of Object.keys(values)) {
            if (!(key in fields))
                seam.rejectAssignment(name, key);
            facade[key] = values[key];
        }
    }

    function define(classId, name, { operations, fields: fieldList, signals, takesFields }) {
        const prototype = Object.create(guard(Object.prototype, name));
        const fields = {};
        const make = function (...values) {
            const native = makeService(classId, new.target !== undefined, values);
            const facade = wrap(prototype, fields, native);
            if (takesFields && values.length > 0)
                setFields(facade, name, fields, values[0]);
            return facade;
        };
        Object.setPrototypeOf(make, guard(Function.prototype, name));
        for (const o of operations)
            Object.defineProperty(o.isClassLevel ? make : prototype, o.name, { value: operation(o.id, o.name) });
        for (const f of fieldList)
            fields[f.name] = field(f.id, f.name, f.isObject);
        for (const s of signals)
            fields[s.name] = signal(s.id);
        Object.defineProperty(prototype, "toString", { value: () => "[object " + name + "]" });
        Object.defineProperty(prototype, "constructor", { value: make });
        Object.defineProperty(make, "name", { value: name });
        Object.defineProperty(make, "prototype", { value: prototype });
        Object.freeze(prototype);
        return { make: Object.freeze(make), wrap: native => wrap(prototype, fields, native) };
    }

    function attach(shell, facade) {
        Object.defineProperty(shell, FACADE, { value: facade, configurable: true });
        facade[KEPT][FACADE] = () => { shell; };
    }

    function facadeIn(shell) {
        return shell[FACADE];
    }

    // Plain assignment fails, since the engine has made the name that all errors share read only.
    function setName(error, name) {
        Object.defineProperty(error, "name", { value: name, writable: true, configurable: true });
    }

    return { define, nativeOf, setName, attach, facadeIn, ITSELF };
}))js";

} // namespace

QString facadeSource()
{
    return QString::fromLatin1(source);
}

QString facadeFileName()
{
    return QStringLiteral("quorlin:facade");
}

} // namespace script
