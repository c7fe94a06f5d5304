#pragma once

#include <QByteArray>
#include <QHash>
#include <QMetaType>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace script {

/** How a value of one C++ type is written in scripts. */
enum class Kind {
    Nothing,     ///< no value; null in scripts
    Text,        ///< QString
    Whole,       ///< int
    Unsigned,    ///< uint
    Number,      ///< double
    Single,      ///< float
    Truth,       ///< bool
    Flag,        ///< platform::Flag: a boolean or a number
    Sender,      ///< platform::Sender: whatever the script has
    Any,         ///< QVariant: text, number or null
    Property,    ///< platform::PropertyValue: what a property list can hold, or null
    Dictionary,  ///< QVariantMap
    List,        ///< QVariantList
    TextList,    ///< QStringList
    SharedList,  ///< QJSValue: the script's own array, which the operation may empty
    SharedTexts, ///< platform::SharedTexts: always the same array, which a service may empty
    Data,        ///< QByteArray
    Date,        ///< QDateTime
    Location,    ///< QUrl
    Size,        ///< QSizeF
    Point,       ///< QPointF
    Rectangle,   ///< QRectF
    Opaque,      ///< a bitmap handle and the like: passed on, never inspected
    Picture,     ///< platform::Picture
    Object,      ///< a pointer to a QObject: a control, or a service
    ObjectList,  ///< QObjectList: controls or services, none of them null
    Function,    ///< script::Function: a function of the script, or none
    Generator,   ///< script::Generator: what a generator function returned
    Unreachable, ///< scripts have no form for this type
};

Kind kindOf(QMetaType type);

struct Parameter
{
    QByteArray name;
    QMetaType type;
    Kind kind = Kind::Unreachable;
};

struct Operation
{
    QByteArray name;
    int methodIndex = -1;
    bool isClassLevel = false;
    std::vector<Parameter> parameters;
    QMetaType resultType;
    Kind resultKind = Kind::Nothing;
};

struct Field
{
    QByteArray name;
    int propertyIndex = -1;
    bool isWritable = false;
    QMetaType type;
    Kind kind = Kind::Unreachable;
};

/** A signal of an object, to which functions can be connected. */
struct Signal
{
    QByteArray name;
    int methodIndex = -1; ///< of the signal as emitted, which may carry more than scripts receive
    std::vector<Parameter> parameters;
};

/**
 * Which members of a toolkit class scripts have: names of properties, signatures of signals and slots as in the
 * meta-object, separated by spaces. A signal with a default argument can be listed without it.
 */
struct Listed
{
    const char *fields = "";
    const char *signalList = "";
    const char *operations = "";
};

/**
 * One class as the application offers it to scripts.
 *
 * Its operations are the public Q_INVOKABLE methods and its fields the Q_PROPERTYs, both in the order of declaration
 * with those of base classes first. Operations that are called on the class itself are listed, separated by spaces, in
 * Q_CLASSINFO("ClassOperations", "..."); they run on one hidden object of the class.
 */
struct ServiceEntry
{
    QByteArray name;
    const QMetaObject *meta = nullptr;
    /** Makes a new object without a parent. */
    std::function<QObject *()> make;
    /** The module that exports it. */
    QByteArray module = "quorlin";
    /** new takes a dictionary of fields. */
    bool takesFields = false;
    /** It represents a window, a view or a control: outlets without a class accept it. */
    bool isControl = false;
    /** Scripts can make one with new; otherwise only operations return them. */
    bool isMadeByScripts = true;
    /** The module exports one object, under the name of the entry, instead of the class. */
    bool isOneObject = false;
    /** That object; it must outlive the engine. */
    QObject *object = nullptr;
    /** Its signals are fields to which scripts connect functions. */
    bool offersSignals = false;
    /** Whether a text that it returns may be null; otherwise null becomes empty. */
    bool answersNullTexts = true;
    /** A number that is NaN or infinite is a TypeError. */
    bool takesFiniteNumbersOnly = false;
    /** Scripts always get the same facade, as long as the object lives. */
    bool hasOneFacade = false;
    /** The entry whose members it has too; then its own are only those that its class declares. */
    std::shared_ptr<const ServiceEntry> base = {};
    /** Used instead of what the class declares. */
    std::optional<Listed> listed = {};
};

/** The entry of a class with a default constructor, under its own name without namespaces. */
template<typename T> ServiceEntry serviceEntry(const char *module = "quorlin", bool takesFields = false)
{
    const QByteArray name = T::staticMetaObject.className();
    return {name.mid(name.lastIndexOf(':') + 1), &T::staticMetaObject, [] { return new T; }, module, takesFields};
}

/**
 * The entry of a class that scripts do not create but whose signals they receive, with texts that are never null: it
 * belongs to windows and jobs, and the contract of the services does not list it.
 */
template<typename T> ServiceEntry givenEntry(const char *module)
{
    const QByteArray name = T::staticMetaObject.className();
    ServiceEntry entry;
    entry.name = name.mid(name.lastIndexOf(':') + 1);
    entry.meta = &T::staticMetaObject;
    entry.module = module;
    entry.isMadeByScripts = false;
    entry.offersSignals = true;
    entry.answersNullTexts = false;
    entry.takesFiniteNumbersOnly = true;
    return entry;
}

/** The same for the one object @p name of a module. */
template<typename T> ServiceEntry oneObject(const char *module, const char *name)
{
    ServiceEntry entry = givenEntry<T>(module);
    entry.name = name;
    entry.isOneObject = true;
    return entry;
}

/** The contents of the meta-object of an entry, looked up once. */
struct ServiceClass
{
    explicit ServiceClass(ServiceEntry description);

    ServiceEntry entry;
    std::vector<Operation> operations;
    std::vector<Field> fields;
    std::vector<Signal> signalList; ///< empty if none are offered
    /** so many of them, the first ones, belong to the base */
    struct
    {
        size_t operations = 0;
        size_t fields = 0;
        size_t signalList = 0;
    } inherited;
    /** The object that class-level operations run on; made at the first call. */
    std::unique_ptr<QObject> hidden;

private:
    void addMembers(const ServiceEntry &described);
    void addListed(const Listed &listed);
    void addDeclared(const QMetaObject &from, const QMetaObject &upTo);
};

} // namespace script
