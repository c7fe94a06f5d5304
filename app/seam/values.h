#pragma once

#include "app/seam/service_class.h"

#include <QJSEngine>
#include <QJSValue>
#include <QVariant>

#include <functional>

namespace platform {
class SharedTexts;
}

namespace script {

/** "a TextField", "an ArrayController". */
QString withArticle(const QString &noun);

/**
 * Converts values between scripts and services by the rules of the seam: nothing is converted silently.
 *
 * What does not fit raises platform::Raised, a TypeError or a RangeError with a sentence of the form "Expected X for N but
 * received V".
 */
class Values
{
public:
    explicit Values(QJSEngine &engine);

    /** Finds the object behind a facade; null for other values. */
    std::function<QObject *(const QJSValue &)> objectOf;
    /** Whether an outlet for any control takes the object: a stand-in, a window or view, or a real control. */
    std::function<bool(const QObject &)> isControl;
    /** Calls a function that a script passed to an operation. */
    std::function<QJSValue(const QJSValue &, const QJSValueList &)> callFunction;
    /** The name by which scripts know a class. */
    std::function<QString(const QMetaObject &)> wordOf;
    /** The facade of a service object or control. */
    std::function<QJSValue(QObject *)> facadeOf;
    /** The same for an object that was created for the script and belongs to it from now on. */
    std::function<QJSValue(QObject *)> facadeOfNew;

    /** @p value as a value of exactly @p type; @p name is its name in error messages. */
    QVariant toNative(const QJSValue &value, Kind kind, QMetaType type, const QString &name) const;

    /** A list of texts; null is none here. */
    QStringList textList(const QJSValue &value, const QString &name) const { return textListToNative(value, name); }
    /** The keys of a plain object. */
    QStringList keysOf(const QJSValue &value, const QString &name) const;
    /** Whatever a list may contain: text, numbers, booleans, dates, data, lists, dictionaries, null. */
    QVariant anything(const QJSValue &value, const QString &name) const;
    /** The same, but null is refused. */
    QVariant setting(const QJSValue &value, const QString &name) const;

    /** What scripts get for a null text. */
    enum class NullText { Null, Empty };

    /** A service's value as scripts see it: null for no value. */
    QJSValue toScript(const QVariant &value, NullText nullText = NullText::Null) const;

    /** A value in words: "abc" in quotation marks, numbers as they are, "a list" ... */
    QString described(const QJSValue &value) const;

    /** True for {...} as a script writes it; false for lists, functions, facades and objects of any class. */
    bool isPlainObject(const QJSValue &value) const;

private:
    QVariant compositeToNative(const QJSValue &value, Kind kind, QMetaType type, const QString &name) const;
    QVariant otherToNative(const QJSValue &value, Kind kind, QMetaType type, const QString &name) const;
    QVariant scalarToNative(const QJSValue &value, const QString &name) const;
    QVariant nestedToNative(const QJSValue &value, const QString &name, int depth) const;
    QVariantMap dictionaryToNative(const QJSValue &value, const QString &name, int depth) const;
    QVariantList listToNative(const QJSValue &value, const QString &name, int depth) const;
    QStringList textListToNative(const QJSValue &value, const QString &name) const;
    QVariant numberToNative(const QJSValue &value, Kind kind, const QString &name) const;
    QVariant geometryToNative(const QJSValue &value, Kind kind, const QString &name) const;
    QVariant dataToNative(const QJSValue &value, const QString &name) const;
    QVariant locationToNative(const QJSValue &value, const QString &name) const;
    QVariant opaqueToNative(const QJSValue &value, QMetaType type, const QString &name) const;
    QVariant pictureToNative(const QJSValue &value, const QString &name) const;
    QVariant objectToNative(const QJSValue &value, QMetaType type, const QString &name) const;
    QVariant objectListToNative(const QJSValue &value, const QString &name) const;
    QVariant functionToNative(const QJSValue &value, const QString &name) const;
    QVariant generatorToNative(const QJSValue &value, const QString &name) const;
    QList<double> numbersOf(const QJSValue &value, const QStringList &keys, const QString &shape,
                            const QString &name) const;
    bool isData(const QJSValue &value) const;
    [[noreturn]] void reject(const QString &expected, const QString &name, const QJSValue &value) const;

    QJSValue otherToScript(const QVariant &value, Kind kind) const;
    QJSValue numbersToScript(const QStringList &keys, const QList<double> &numbers) const;
    QJSValue listToScript(const QVariantList &list, NullText nullText) const;
    QJSValue sharedTextsToScript(platform::SharedTexts texts) const;
    QJSValue textListToScript(const QStringList &list, NullText nullText) const;
    QJSValue dictionaryToScript(const QVariantMap &map, NullText nullText) const;
    void setKey(QJSValue &object, const QString &key, const QJSValue &value) const;

    QJSEngine &m_engine;
    /** How many more values the running conversion may take; see nestedToNative(). */
    mutable qint64 m_valuesLeft = 0;
    QJSValue m_objectPrototype;
    QJSValue m_dataPrototype;
    QJSValue m_defineKey;
};

} // namespace script
