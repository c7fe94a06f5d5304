#include "app/script/list_texts.h"

#include "app/seam/facade.h"

#include <QJSEngine>

namespace script {

// The engine has made join() and toString() read only; but before it calls them it asks for this symbol, inside of join() too.
void boundListTexts(QJSEngine &engine)
{
    engine.evaluate(QStringLiteral(R"js((function () {
    "use strict";
    const underWay = [];
    Object.defineProperty(Array.prototype, Symbol.toPrimitive, {
        value: function () {
            if (underWay.includes(this))
                return "";
            underWay.push(this);
            try {
                return this.toString();
            } finally {
                underWay.pop();
            }
        }
    });
})())js"),
                    facadeFileName());
}

} // namespace script
