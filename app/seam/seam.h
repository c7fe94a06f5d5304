#pragma once

#include "app/seam/service_class.h"
#include "app/seam/values.h"

#include <QHash>
#include <QJSEngine>
#include <QJSValue>
#include <QObject>
#include <QPointer>

#include <exception>
#include <functional>

namespace script {

/**
 * The one hold that scripts have on a service object, shared by all its facades. The object may be destroyed first if
 * it belongs to the application; then another one may get the same address.
 */
struct Holding
{
    QPointer<QObject> object;
    /** Its facade was assigned to a field; see the facade's script. */
    bool isAttached = false;
};

/** What is behind a facade. */
struct Native
{
    std::shared_ptr<Holding> holding;

    QObject *object() const { return holding ? holding->object.data() : nullptr; }
};

/** Where in a script something happened. */
struct Location
{
    QString file; ///< a path, or another name if the script is not a file; empty if unknown
    int line = 0;
};

/** The topmost place in a stack, as errors hold it, that is not in the facade's own script. */
Location locationInStack(const QString &stack);

/**
 * The one way from scripts to services.
 *
 * Makes the classes that scripts see and carries every call, read and write of a field: looks the operation up in the
 * meta-object, checks count and types of the arguments, converts them, calls, converts the result. Everything that is
 * thrown underneath ends here as an error of the script; a C++ exception that entered the engine would end the process.
 */
class Seam : public QObject
{
    Q_OBJECT

public:
    Seam(QJSEngine &engine, std::vector<ServiceEntry> entries);
    ~Seam() override;

    /** The seam of an engine, which must not outlive it; null for an engine without one. */
    static Seam *of(const QJSEngine *engine);

    /** Adds a class, or the one object of a module. Before exportsOf() its module. */
    void add(ServiceEntry entry);

    /** What `import ... from "module"` yields. */
    QJSValue exportsOf(const QByteArray &module);

    /**
     * Who deletes an object without a parent: the scripts with their last facade of it, or the C++ code that created
     * it.
     */
    enum class Owner { Scripts, Application };

    /**
     * The facade for an object. One of no registered class has no members that scripts know, and always belongs to the application.
     * An object that has a facade already keeps its owner.
     */
    QJSValue facadeOf(QObject *object, Owner owner);
    /** The object behind a facade; null for other values. */
    QObject *objectOf(const QJSValue &value) const;

    /**
     * Calls a function that a script connected to a signal or passed to an operation, and answers what it returns;
     * replaced by the code that reports what such functions throw.
     */
    std::function<QJSValue(const QJSValue &function, const QJSValueList &values)> callHandler;

    const Values &values() const { return m_values; }
    const std::vector<std::unique_ptr<ServiceClass>> &classes() const { return m_classes; }

    /** Runs @p body; what it throws becomes an error of the running script. */
    template<typename Body> QJSValue guarded(Body body)
    {
        try {
            return body();
        } catch (...) {
            raiseCurrentException();
            return QJSValue(QJSValue::NullValue);
        }
    }

    // Called by the facade's script only.
    Q_INVOKABLE QJSValue make(int classId, bool isConstructed, const QJSValue &arguments);
    Q_INVOKABLE QJSValue call(const QVariant &native, int operationId, const QJSValue &arguments);
    Q_INVOKABLE QJSValue read(const QVariant &native, int fieldId, const QJSValue &kept);
    Q_INVOKABLE void write(const QVariant &native, int fieldId, const QJSValue &value);
    Q_INVOKABLE void connectTo(const QVariant &native, int signalId, const QJSValue &arguments);
    Q_INVOKABLE void rejectName(const QString &className, const QString &name);
    Q_INVOKABLE void rejectAssignment(const QString &className, const QString &name);

private:
    struct OperationOfClass
    {
        ServiceClass *owner;
        const Operation *operation;
    };
    struct FieldOfClass
    {
        ServiceClass *owner;
        const Field *field;
    };
    struct SignalOfClass
    {
        ServiceClass *owner;
        const Signal *signal;
    };

    QJSValue defineClass(int classId);
    QJSValue operationTable(ServiceClass &service);
    QJSValue fieldTable(ServiceClass &service);
    QJSValue signalTable(ServiceClass &service);
    /** At least the alignment of any object. */
    const ServiceClass &classOf(const QMetaObject &meta) const;
    std::shared_ptr<Holding> holdingOf(QObject *object) const;
    QVariant hold(QObject *object, Owner owner);
    void letGo(Holding *holding, QObject *address, Owner owner);
    QObject *target(const QVariant &native, ServiceClass &owner, const QByteArray &member) const;
    QJSValue invoke(QObject *object, const OperationOfClass &called, const QJSValue &arguments);
    QJSValue resultToScript(QObject *object, const QVariant &result, const OperationOfClass &called);
    QJSValue shellOf(QObject *object) const;
    void attachToShell(const QJSValue &facade);
    QJSValue facadeOfControl(QObject *object, const QJSValue &wrap);
    QVariant fromScript(const ServiceClass &owner, const QJSValue &value, Kind kind, QMetaType type,
                        const QString &name) const;
    void collectAfterPixels(const QVariant &value, Kind kind);
    void raise(const QString &name, const QString &message);
    void raiseCurrentException();

    QJSEngine &m_engine;
    Values m_values;
    std::vector<std::unique_ptr<ServiceClass>> m_classes;
    std::vector<OperationOfClass> m_operations;
    std::vector<FieldOfClass> m_fields;
    std::vector<SignalOfClass> m_signals;
    std::vector<QJSValue> m_definitions;
    QHash<const QMetaObject *, int> m_classIds;
    QHash<QObject *, std::weak_ptr<Holding>> m_held;
    /** Of objects that have one facade, as long as they live. */
    QHash<QObject *, QJSValue> m_facades;
    QJSValue m_define;
    QJSValue m_nativeOf;
    QJSValue m_setName;
    QJSValue m_attach;
    QJSValue m_facadeIn;
    QJSValue m_itself;
    qint64 m_pixelBytesHandedOut = 0;
    int m_pixelValuesHandedOut = 0;
    bool m_isQuickToCollect = true;
};

} // namespace script

Q_DECLARE_METATYPE(script::Native)
