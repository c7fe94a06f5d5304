#include "app/seam/service_class.h"

#include "app/seam/function.h"

#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture.h"
#include "platform/plist/property_value.h"
#include "platform/values/flag.h"
#include "platform/values/sender.h"
#include "platform/values/shared_texts.h"
#include "presets/database.h"

#include <QDateTime>
#include <QJSValue>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QUrl>

namespace script {
namespace {

template<typename T> int idOf()
{
    return QMetaType::fromType<T>().id();
}

const QHash<int, Kind> &kindsById()
{
    static const QHash<int, Kind> kinds = {
        {QMetaType::Void, Kind::Nothing},
        {QMetaType::QString, Kind::Text},
        {QMetaType::Int, Kind::Whole},
        {QMetaType::UInt, Kind::Unsigned},
        {QMetaType::Double, Kind::Number},
        {QMetaType::Float, Kind::Single},
        {QMetaType::Bool, Kind::Truth},
        {idOf<platform::Flag>(), Kind::Flag},
        {idOf<platform::Sender>(), Kind::Sender},
        {idOf<platform::PropertyValue>(), Kind::Property},
        {QMetaType::QVariant, Kind::Any},
        {QMetaType::QVariantMap, Kind::Dictionary},
        {QMetaType::QVariantList, Kind::List},
        {QMetaType::QStringList, Kind::TextList},
        {idOf<QJSValue>(), Kind::SharedList},
        {idOf<platform::SharedTexts>(), Kind::SharedTexts},
        {QMetaType::QByteArray, Kind::Data},
        {QMetaType::QDateTime, Kind::Date},
        {QMetaType::QUrl, Kind::Location},
        {QMetaType::QSizeF, Kind::Size},
        {QMetaType::QPointF, Kind::Point},
        {QMetaType::QRectF, Kind::Rectangle},
        {idOf<platform::Bitmap>(), Kind::Opaque},
        {idOf<platform::BitmapHandle>(), Kind::Opaque},
        {idOf<platform::ImageSource>(), Kind::Opaque},
        {idOf<presets::Connection>(), Kind::Opaque},
        {idOf<platform::Picture>(), Kind::Picture},
        {idOf<QObjectList>(), Kind::ObjectList},
        {idOf<Function>(), Kind::Function},
        {idOf<Generator>(), Kind::Generator},
    };
    return kinds;
}

std::vector<Parameter> parametersOf(const QMetaMethod &method)
{
    std::vector<Parameter> parameters;
    const QByteArrayList names = method.parameterNames();
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QMetaType type = method.parameterMetaType(i);
        const QByteArray name = names.at(i).isEmpty() ? "argument " + QByteArray::number(i + 1) : names.at(i);
        parameters.push_back({name, type, kindOf(type)});
    }
    return parameters;
}

Operation operationOf(const QMetaMethod &method, const QByteArrayList &classOperations)
{
    Operation operation;
    operation.name = method.name();
    operation.methodIndex = method.methodIndex();
    operation.isClassLevel = classOperations.contains(operation.name);
    operation.resultType = method.returnMetaType();
    operation.resultKind = kindOf(operation.resultType);
    operation.parameters = parametersOf(method);
    return operation;
}

Field fieldOf(const QMetaProperty &property)
{
    const QMetaType type = property.metaType();
    return {property.name(), property.propertyIndex(), property.isWritable(), type, kindOf(type)};
}

/** Toolkit classes give the parameters of their signals no names. */
Signal signalOf(const QMetaObject &meta, int index)
{
    Signal signal = {meta.method(index).name(), index, parametersOf(meta.method(index))};
    // The emitted signal has all arguments; after it the meta-object lists the forms with fewer.
    while (meta.method(signal.methodIndex).attributes() & QMetaMethod::Cloned)
        --signal.methodIndex;
    const bool isOne = signal.parameters.size() == 1;
    for (Parameter &parameter : signal.parameters)
        if (parameter.name.startsWith("argument "))
            parameter.name = isOne ? QByteArray("value") : "value" + parameter.name.mid(9);
    return signal;
}

} // namespace

Kind kindOf(QMetaType type)
{
    if (type.flags() & QMetaType::PointerToQObject)
        return Kind::Object;
    return kindsById().value(type.id(), Kind::Unreachable);
}

ServiceClass::ServiceClass(ServiceEntry description) : entry(std::move(description))
{
    if (entry.base)
        addMembers(*entry.base);
    inherited = {operations.size(), fields.size(), signalList.size()};
    if (entry.listed)
        addListed(*entry.listed);
    else
        addDeclared(*entry.meta, entry.base ? *entry.meta->superClass() : QObject::staticMetaObject);
}

void ServiceClass::addMembers(const ServiceEntry &described)
{
    if (described.base)
        addMembers(*described.base);
    if (described.listed)
        addListed(*described.listed);
    else
        addDeclared(*described.meta, described.base ? *described.meta->superClass() : QObject::staticMetaObject);
}

/** Looked up in the class of the entry itself: that may redeclare a property of its base. */
void ServiceClass::addListed(const Listed &listed)
{
    const QMetaObject &meta = *entry.meta;
    const auto parts = [](const char *list) { return QByteArray(list).simplified().split(' '); };
    for (const QByteArray &name : parts(listed.fields))
        if (const int index = meta.indexOfProperty(name); index >= 0)
            fields.push_back(fieldOf(meta.property(index)));
    for (const QByteArray &signature : parts(listed.signalList))
        if (const int index = meta.indexOfSignal(signature); index >= 0)
            signalList.push_back(signalOf(meta, index));
    for (const QByteArray &signature : parts(listed.operations))
        if (const int index = meta.indexOfMethod(signature); index >= 0)
            operations.push_back(operationOf(meta.method(index), {}));
}

void ServiceClass::addDeclared(const QMetaObject &from, const QMetaObject &upTo)
{
    const int info = from.indexOfClassInfo("ClassOperations");
    const QByteArrayList classOperations =
        info < 0 ? QByteArrayList() : QByteArray(from.classInfo(info).value()).simplified().split(' ');
    for (int i = upTo.methodCount(); i < from.methodCount(); ++i) {
        const QMetaMethod method = from.method(i);
        if (method.methodType() == QMetaMethod::Method && method.access() == QMetaMethod::Public)
            operations.push_back(operationOf(method, classOperations));
        if (entry.offersSignals && method.methodType() == QMetaMethod::Signal)
            signalList.push_back(signalOf(from, i));
    }
    for (int i = upTo.propertyCount(); i < from.propertyCount(); ++i)
        fields.push_back(fieldOf(from.property(i)));
}

} // namespace script
