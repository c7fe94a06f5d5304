#include "app/seam/seam.h"

#include "app/seam/facade.h"
#include "app/seam/signal_handler.h"

#include "platform/foundation/raised.h"
#include "platform/imageio/source/picture.h"

#include <QJSEngine>
#include <QMetaProperty>
#include <QPointer>
#include <QVarLengthArray>

#include <cmath>
#include <ctime>

namespace script {
namespace {

/** The garbage collector cannot see native pixel memory, so we trigger it after this many bytes or values. */
constexpr qint64 bytesBetweenCollections = 96'000'000;
/** The same while a collection takes next to no time, as in a script without windows. */
constexpr qint64 bytesBetweenQuickCollections = 6'000'000;
constexpr int valuesBetweenCollections = 64;

constexpr const char *propertyOfEngine = "quorlinSeam";

qint64 byteCount(const platform::Bitmap &bitmap)
{
    const qint64 samples = bitmap.isNull() ? 0 : qint64(bitmap.width()) * bitmap.height() * bitmap.bandCount();
    return samples * bitmap.bitsPerComponent() / 8;
}

/** How much memory a value may keep alive. */
qint64 pixelBytes(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<platform::Picture>())
        return value.value<platform::Picture>().bytesInMemory();
    if (value.metaType() == QMetaType::fromType<platform::BitmapHandle>())
        return byteCount(value.value<platform::BitmapHandle>().bitmap());
    if (value.metaType() == QMetaType::fromType<platform::Bitmap>())
        return byteCount(value.value<platform::Bitmap>());
    return 0;
}

double secondsOfThread()
{
    constexpr double nanosecond = 1e-9;
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + nanosecond * double(time.tv_nsec);
}

QString arityText(const Operation &operation, int received)
{
    const auto count = int(operation.parameters.size());
    const QString expected = count == 0   ? QStringLiteral("no arguments")
                             : count == 1 ? QStringLiteral("1 argument")
                                          : QStringLiteral("%1 arguments").arg(count);
    return QStringLiteral("%1 takes %2 but received %3")
        .arg(QString::fromLatin1(operation.name), expected)
        .arg(received);
}

/** The address of the value itself, as the meta-call expects it. */
void *storage(QVariant &value, Kind kind)
{
    return kind == Kind::Any ? static_cast<void *>(&value) : value.data();
}

QVariant emptyOf(Kind kind, QMetaType type)
{
    return kind == Kind::Nothing || kind == Kind::Any ? QVariant() : QVariant(type);
}

/** Null text and empty text: a member field is left unchanged if the two compare equal. */
bool isOtherNothing(const QString &present, const QString &wanted)
{
    return present.isEmpty() && wanted.isEmpty() && present.isNull() != wanted.isNull();
}

QString nameOf(const ServiceClass &service)
{
    return QString::fromLatin1(service.entry.name);
}

Values::NullText nullTextOf(const ServiceClass &service)
{
    return service.entry.answersNullTexts ? Values::NullText::Null : Values::NullText::Empty;
}

/** An object of no registered class, which can only be passed on. */
ServiceEntry anyObject()
{
    ServiceEntry entry;
    entry.name = "Control";
    entry.meta = &QObject::staticMetaObject;
    entry.module = "none";
    entry.isControl = true;
    entry.isMadeByScripts = false;
    entry.hasOneFacade = true;
    return entry;
}

/** Said before the engine sees an object: it takes ownership of objects that have no owner, and deletes them. */
void keepFromEngine(QObject *object)
{
    QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
}

} // namespace

Seam::Seam(QJSEngine &engine, std::vector<ServiceEntry> entries) : m_engine(engine), m_values(engine)
{
    engine.setProperty(propertyOfEngine, QVariant::fromValue<QObject *>(this));
    m_values.objectOf = [this](const QJSValue &value) { return objectOf(value); };
    m_values.isControl = [this](const QObject &object) { return classOf(*object.metaObject()).entry.isControl; };
    m_values.wordOf = [this](const QMetaObject &meta) { return nameOf(classOf(meta)); };
    m_values.callFunction = [this](const QJSValue &function, const QJSValueList &values) {
        return callHandler(function, values);
    };
    m_values.facadeOf = [this](QObject *object) { return facadeOf(object, Owner::Application); };
    m_values.facadeOfNew = [this](QObject *object) { return facadeOf(object, Owner::Scripts); };
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    const QJSValue makeFacades = engine.evaluate(facadeSource(), facadeFileName());
    const QJSValue own = engine.newQObject(this);
    const QJSValue facades = makeFacades.call({own});
    Q_ASSERT_X(!facades.isError(), "seam", qPrintable(facades.toString()));
    m_define = facades.property(QStringLiteral("define"));
    m_nativeOf = facades.property(QStringLiteral("nativeOf"));
    m_setName = facades.property(QStringLiteral("setName"));
    m_attach = facades.property(QStringLiteral("attach"));
    m_facadeIn = facades.property(QStringLiteral("facadeIn"));
    m_itself = facades.property(QStringLiteral("ITSELF"));
    callHandler = [](const QJSValue &function, const QJSValueList &values) { return function.call(values); };
    add(anyObject());
    for (ServiceEntry &entry : entries)
        add(std::move(entry));
}

// The engine may be gone already.
Seam::~Seam() = default;

void Seam::add(ServiceEntry entry)
{
    const int id = int(m_classes.size());
    m_classes.push_back(std::make_unique<ServiceClass>(std::move(entry)));
    m_classIds.insert(m_classes.back()->entry.meta, id);
    m_definitions.push_back(defineClass(id));
}

Seam *Seam::of(const QJSEngine *engine)
{
    return engine ? qobject_cast<Seam *>(engine->property(propertyOfEngine).value<QObject *>()) : nullptr;
}

QJSValue Seam::operationTable(ServiceClass &service)
{
    QJSValue table = m_engine.newArray(uint(service.operations.size()));
    for (size_t i = 0; i < service.operations.size(); ++i) {
        const Operation &operation = service.operations[i];
        QJSValue row = m_engine.newObject();
        row.setProperty(QStringLiteral("id"), int(m_operations.size()));
        row.setProperty(QStringLiteral("name"), QString::fromLatin1(operation.name));
        row.setProperty(QStringLiteral("isClassLevel"), operation.isClassLevel);
        table.setProperty(quint32(i), row);
        m_operations.push_back({&service, &operation});
    }
    return table;
}

QJSValue Seam::fieldTable(ServiceClass &service)
{
    QJSValue table = m_engine.newArray(uint(service.fields.size()));
    for (size_t i = 0; i < service.fields.size(); ++i) {
        const Field &field = service.fields[i];
        QJSValue row = m_engine.newObject();
        row.setProperty(QStringLiteral("id"), int(m_fields.size()));
        row.setProperty(QStringLiteral("name"), QString::fromLatin1(field.name));
        row.setProperty(QStringLiteral("isObject"), field.kind == Kind::Object);
        table.setProperty(quint32(i), row);
        m_fields.push_back({&service, &field});
    }
    return table;
}

QJSValue Seam::signalTable(ServiceClass &service)
{
    QJSValue table = m_engine.newArray(uint(service.signalList.size()));
    for (size_t i = 0; i < service.signalList.size(); ++i) {
        const Signal &signal = service.signalList[i];
        QJSValue row = m_engine.newObject();
        row.setProperty(QStringLiteral("id"), int(m_signals.size()));
        row.setProperty(QStringLiteral("name"), QString::fromLatin1(signal.name));
        table.setProperty(quint32(i), row);
        m_signals.push_back({&service, &signal});
    }
    return table;
}

QJSValue Seam::defineClass(int classId)
{
    ServiceClass &service = *m_classes[size_t(classId)];
    QJSValue parts = m_engine.newObject();
    parts.setProperty(QStringLiteral("operations"), operationTable(service));
    parts.setProperty(QStringLiteral("fields"), fieldTable(service));
    parts.setProperty(QStringLiteral("signals"), signalTable(service));
    parts.setProperty(QStringLiteral("takesFields"), service.entry.takesFields);
    const QJSValue definition = m_define.call({classId, nameOf(service), parts});
    Q_ASSERT_X(!definition.isError(), "seam", qPrintable(definition.toString()));
    return definition;
}

QJSValue Seam::exportsOf(const QByteArray &module)
{
    QJSValue exports = m_engine.newObject();
    for (size_t id = 0; id < m_classes.size(); ++id) {
        const ServiceEntry &entry = m_classes[id]->entry;
        // The controls of a window are not created by scripts but found by name.
        if (entry.module == module && !entry.hasOneFacade)
            exports.setProperty(nameOf(*m_classes[id]), entry.isOneObject
                                                            ? facadeOf(entry.object, Owner::Application)
                                                            : m_definitions[id].property(QStringLiteral("make")));
    }
    return exports;
}

const ServiceClass &Seam::classOf(const QMetaObject &ofObject) const
{
    const QMetaObject *meta = &ofObject;
    while (!m_classIds.contains(meta))
        meta = meta->superClass();
    return *m_classes[size_t(m_classIds.value(meta))];
}

/** The hold that scripts have on @p object; none if they have none, or had one on an earlier object at that address. */
std::shared_ptr<Holding> Seam::holdingOf(QObject *object) const
{
    const std::shared_ptr<Holding> holding = m_held.value(object).lock();
    return holding && holding->object == object ? holding : nullptr;
}

QVariant Seam::hold(QObject *object, Owner owner)
{
    std::shared_ptr<Holding> holding = holdingOf(object);
    if (!holding) {
        const auto release = [this, object, owner](Holding *held) { letGo(held, object, owner); };
        holding = std::shared_ptr<Holding>(new Holding{object}, release);
        m_held.insert(object, holding);
        if (owner == Owner::Application)
            keepFromEngine(object);
    }
    return QVariant::fromValue(Native{holding});
}

void Seam::letGo(Holding *holding, QObject *address, Owner owner)
{
    if (m_held.value(address).expired())
        m_held.remove(address);
    QObject *alive = holding->object.data();
    delete holding;
    if (owner == Owner::Scripts && alive && !alive->parent())
        delete alive;
}

QJSValue Seam::facadeOf(QObject *object, Owner owner)
{
    const ServiceClass &service = classOf(*object->metaObject());
    const QJSValue wrap = m_definitions[size_t(m_classIds.value(service.entry.meta))].property(QStringLiteral("wrap"));
    if (service.entry.hasOneFacade)
        return facadeOfControl(object, wrap);
    if (const auto holding = holdingOf(object); holding && holding->isAttached)
        if (const QJSValue facade = m_facadeIn.call({shellOf(object)}); facade.isObject())
            return facade;
    return wrap.call({m_engine.toScriptValue(hold(object, owner))});
}

QJSValue Seam::facadeOfControl(QObject *object, const QJSValue &wrap)
{
    if (const auto found = m_facades.constFind(object); found != m_facades.constEnd())
        return *found;
    const QJSValue facade = wrap.call({m_engine.toScriptValue(hold(object, Owner::Application))});
    m_facades.insert(object, facade);
    connect(object, &QObject::destroyed, this, [this, object] { m_facades.remove(object); });
    return facade;
}

QObject *Seam::objectOf(const QJSValue &value) const
{
    if (!value.isObject())
        return nullptr;
    const QJSValue native = m_nativeOf.call({value});
    return native.isVariant() ? native.toVariant().value<Native>().object() : nullptr;
}

QJSValue Seam::shellOf(QObject *object) const
{
    if (QJSEngine::objectOwnership(object) != QJSEngine::CppOwnership)
        QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
    return m_engine.newQObject(object);
}

/** Makes the object behind a facade lead back to it, as long as a script holds the facade. */
void Seam::attachToShell(const QJSValue &facade)
{
    QObject *object = objectOf(facade);
    const std::shared_ptr<Holding> holding = object ? holdingOf(object) : nullptr;
    if (!holding || holding->isAttached)
        return;
    m_attach.call({shellOf(object), facade});
    holding->isAttached = true;
}

QJSValue Seam::make(int classId, bool isConstructed, const QJSValue &arguments)
{
    return guarded([&] {
        const ServiceClass &service = *m_classes[size_t(classId)];
        const QString name = nameOf(service);
        if (!service.entry.isMadeByScripts)
            throw platform::Raised::typeError(QStringLiteral("%1 is not made with new").arg(name));
        if (!isConstructed)
            throw platform::Raised::typeError(QStringLiteral("%1 is made with new").arg(name));
        const int received = arguments.property(QStringLiteral("length")).toInt();
        const int most = service.entry.takesFields ? 1 : 0;
        if (received > most)
            throw platform::Raised::typeError(
                QStringLiteral("new %1 takes %2 but received %3")
                    .arg(name, most ? QStringLiteral("1 argument") : QStringLiteral("no arguments"))
                    .arg(received));
        if (received == 1 && !m_values.isPlainObject(arguments.property(0)))
            throw platform::Raised::typeError(
                QStringLiteral("Expected a dictionary of properties for new %1 but received %2")
                    .arg(name, m_values.described(arguments.property(0))));
        return m_engine.toScriptValue(hold(service.entry.make(), Owner::Scripts));
    });
}

QObject *Seam::target(const QVariant &native, ServiceClass &owner, const QByteArray &member) const
{
    QObject *object = native.value<Native>().object();
    if (!object && native.value<Native>().holding)
        throw platform::Raised::typeError(QStringLiteral("%1 is called on %2 that is gone")
                                              .arg(QString::fromLatin1(member), withArticle(nameOf(owner))));
    if (!object || !object->metaObject()->inherits(owner.entry.meta))
        throw platform::Raised::typeError(QStringLiteral("%1 is called on %2")
                                              .arg(QString::fromLatin1(member), owner.entry.isOneObject
                                                                                    ? nameOf(owner)
                                                                                    : withArticle(nameOf(owner))));
    return object;
}

QJSValue Seam::call(const QVariant &native, int operationId, const QJSValue &arguments)
{
    return guarded([&] {
        const OperationOfClass called = m_operations[size_t(operationId)];
        if (!called.operation->isClassLevel)
            return invoke(target(native, *called.owner, called.operation->name), called, arguments);
        if (!called.owner->hidden)
            called.owner->hidden.reset(called.owner->entry.make());
        return invoke(called.owner->hidden.get(), called, arguments);
    });
}

/** What a script assigned to a member of @p owner. */
QVariant Seam::fromScript(const ServiceClass &owner, const QJSValue &value, Kind kind, QMetaType type,
                          const QString &name) const
{
    const bool isReal = kind == Kind::Number || kind == Kind::Single;
    if (owner.entry.takesFiniteNumbersOnly && isReal && value.isNumber() && !std::isfinite(value.toNumber()))
        throw platform::Raised::typeError(
            QStringLiteral("Expected a number for %1 but received %2").arg(name, m_values.described(value)));
    return m_values.toNative(value, kind, type, name);
}

QJSValue Seam::invoke(QObject *object, const OperationOfClass &called, const QJSValue &arguments)
{
    const Operation &operation = *called.operation;
    const int received = arguments.property(QStringLiteral("length")).toInt();
    const auto count = int(operation.parameters.size());
    if (received != count)
        throw platform::Raised::typeError(arityText(operation, received));
    QVarLengthArray<QVariant, 8> natives(count);
    QVarLengthArray<void *, 9> pointers(count + 1);
    for (int i = 0; i < count; ++i) {
        const Parameter &parameter = operation.parameters[size_t(i)];
        natives[i] = fromScript(*called.owner, arguments.property(quint32(i)), parameter.kind, parameter.type,
                                QString::fromLatin1(parameter.name));
        pointers[i + 1] = storage(natives[i], parameter.kind);
    }
    QVariant result = emptyOf(operation.resultKind, operation.resultType);
    pointers[0] = operation.resultKind == Kind::Nothing ? nullptr : storage(result, operation.resultKind);
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, operation.methodIndex, pointers.data());
    QJSValue answer = resultToScript(object, result, called);
    collectAfterPixels(result, operation.resultKind);
    return answer;
}

QJSValue Seam::resultToScript(QObject *object, const QVariant &result, const OperationOfClass &called)
{
    QObject *answered = called.operation->resultKind == Kind::Object ? result.value<QObject *>() : nullptr;
    if (answered && answered == object)
        return m_itself;
    // What an operation created for the script belongs to the script.
    if (answered && !answered->parent())
        return facadeOf(answered, Owner::Scripts);
    return m_values.toScript(result, nullTextOf(*called.owner));
}

void Seam::collectAfterPixels(const QVariant &value, Kind kind)
{
    if (kind != Kind::Opaque && kind != Kind::Picture)
        return;
    m_pixelBytesHandedOut += pixelBytes(value);
    ++m_pixelValuesHandedOut;
    const qint64 most = m_isQuickToCollect ? bytesBetweenQuickCollections : bytesBetweenCollections;
    if (m_pixelBytesHandedOut < most && m_pixelValuesHandedOut < valuesBetweenCollections)
        return;
    m_pixelBytesHandedOut = 0;
    m_pixelValuesHandedOut = 0;
    const double before = secondsOfThread();
    m_engine.collectGarbage();
    constexpr double quick = 0.003;
    m_isQuickToCollect = secondsOfThread() - before < quick;
}

QJSValue Seam::read(const QVariant &native, int fieldId, const QJSValue &kept)
{
    return guarded([&] {
        const auto &[owner, field] = m_fields[size_t(fieldId)];
        const QObject *object = target(native, *owner, field->name);
        const QVariant value = object->metaObject()->property(field->propertyIndex).read(object);
        if (field->kind != Kind::Object) {
            const QJSValue answer = m_values.toScript(value, nullTextOf(*owner));
            collectAfterPixels(value, field->kind);
            return answer;
        }
        auto *outlet = value.value<QObject *>();
        return outlet && objectOf(kept) == outlet ? kept : m_values.toScript(value);
    });
}

void Seam::write(const QVariant &native, int fieldId, const QJSValue &value)
{
    guarded([&] {
        const auto &[owner, field] = m_fields[size_t(fieldId)];
        QObject *object = target(native, *owner, field->name);
        const QString name = QString::fromLatin1(field->name);
        if (!field->isWritable)
            throw platform::Raised::typeError(QStringLiteral("%1 of %2 is read only").arg(name, nameOf(*owner)));
        const QVariant converted = field->kind == Kind::Any ? m_values.anything(value, name)
                                                            : fromScript(*owner, value, field->kind, field->type, name);
        const QMetaProperty property = object->metaObject()->property(field->propertyIndex);
        if (field->kind == Kind::Text && isOtherNothing(property.read(object).toString(), converted.toString()))
            property.write(object, QStringLiteral("another text"));
        property.write(object, converted);
        if (field->kind == Kind::Object)
            attachToShell(value);
        return QJSValue();
    });
}

void Seam::connectTo(const QVariant &native, int signalId, const QJSValue &arguments)
{
    guarded([&] {
        const auto &[owner, signal] = m_signals[size_t(signalId)];
        QObject *object = target(native, *owner, signal->name);
        const int received = arguments.property(QStringLiteral("length")).toInt();
        if (received != 1)
            throw platform::Raised::typeError(QStringLiteral("connect takes 1 argument but received %1").arg(received));
        const QJSValue function = arguments.property(0);
        if (!function.isCallable())
            throw platform::Raised::typeError(
                QStringLiteral("Expected a function for %1 but received %2")
                    .arg(QString::fromLatin1(signal->name), m_values.described(function)));
        new SignalHandler(*object, *signal, function, *this);
        return QJSValue();
    });
}

} // namespace script
