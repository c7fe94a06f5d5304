#include "app/script/registry.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

namespace {

using Declarations = QMap<QString, QStringList>; // "module class" to its lines, in order

QString opaqueWord(QMetaType type)
{
    const QString name = QString::fromLatin1(type.name());
    return name.mid(name.lastIndexOf(u':') + 1) + QStringLiteral(" | null");
}

QString objectWord(QMetaType type)
{
    const QString name = QString::fromLatin1(type.metaObject()->className());
    return type.metaObject() == &QObject::staticMetaObject ? QStringLiteral("Control | null")
                                                           : name + QStringLiteral(" | null");
}

/** The word that services.d.ts has for a type. */
QString wordOf(script::Kind kind, QMetaType type)
{
    using script::Kind;
    static const QMap<Kind, QString> words = {
        {Kind::Nothing, QStringLiteral("null")},
        {Kind::Text, QStringLiteral("text")},
        {Kind::Whole, QStringLiteral("whole")},
        {Kind::Unsigned, QStringLiteral("unsigned")},
        {Kind::Number, QStringLiteral("double")},
        {Kind::Single, QStringLiteral("single")},
        {Kind::Truth, QStringLiteral("boolean")},
        {Kind::Flag, QStringLiteral("flag")},
        {Kind::Sender, QStringLiteral("sender")},
        {Kind::Any, QStringLiteral("anything")},
        {Kind::Property, QStringLiteral("property")},
        {Kind::Dictionary, QStringLiteral("dictionary")},
        {Kind::List, QStringLiteral("list")},
        {Kind::TextList, QStringLiteral("texts")},
        {Kind::SharedList, QStringLiteral("sharedList")},
        {Kind::SharedTexts, QStringLiteral("sharedTexts")},
        {Kind::Data, QStringLiteral("data")},
        {Kind::Date, QStringLiteral("date")},
        {Kind::Location, QStringLiteral("location")},
        {Kind::Size, QStringLiteral("size")},
        {Kind::Point, QStringLiteral("point")},
        {Kind::Rectangle, QStringLiteral("rectangle")},
        {Kind::Picture, QStringLiteral("Picture | null")},
    };
    if (kind == Kind::Opaque)
        return opaqueWord(type);
    if (kind == Kind::Object)
        return objectWord(type);
    return words.value(kind, QStringLiteral("UNREACHABLE ") + QString::fromLatin1(type.name()));
}

QString lineOf(const script::Operation &operation)
{
    QStringList parameters;
    for (const script::Parameter &parameter : operation.parameters)
        parameters.append(QString::fromLatin1(parameter.name) + QStringLiteral(": ") +
                          wordOf(parameter.kind, parameter.type));
    return (operation.isClassLevel ? QStringLiteral("static ") : QString()) + QString::fromLatin1(operation.name) +
           u'(' + parameters.join(QStringLiteral(", ")) + QStringLiteral("): ") +
           wordOf(operation.resultKind, operation.resultType) + u';';
}

QString lineOf(const script::Field &field)
{
    return (field.isWritable ? QString() : QStringLiteral("readonly ")) + QString::fromLatin1(field.name) +
           QStringLiteral(": ") + wordOf(field.kind, field.type) + u';';
}

Declarations registered()
{
    Declarations all;
    for (const script::ServiceEntry &entry : script::registeredServices()) {
        const script::ServiceClass service(entry);
        QStringList lines = {
            !entry.isMadeByScripts ? QStringLiteral("private constructor();")
            : entry.takesFields
                ? QStringLiteral("constructor(fields?: fieldsOf<%1>);").arg(QString::fromLatin1(entry.name))
                : QStringLiteral("constructor();")};
        for (const script::Field &field : service.fields)
            lines.append(lineOf(field));
        for (const script::Operation &operation : service.operations)
            lines.append(lineOf(operation));
        all.insert(QString::fromLatin1(entry.module + ' ' + entry.name), lines);
    }
    return all;
}

/** The classes of the contract file. A declaration ends with a semicolon and may run over several lines. */
Declarations declared(QString text)
{
    Declarations all;
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    static const QRegularExpression module(QStringLiteral("declare module \"([^\"]+)\" \\{(.*?)\\n\\}"),
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression body(QStringLiteral("export class (\\w+) \\{(.*?)\\n    \\}"),
                                         QRegularExpression::DotMatchesEverythingOption);
    for (auto modules = module.globalMatch(text); modules.hasNext();) {
        const auto oneModule = modules.next();
        for (auto bodies = body.globalMatch(oneModule.captured(2)); bodies.hasNext();) {
            const auto oneBody = bodies.next();
            QStringList lines;
            for (const QString &line : oneBody.captured(2).split(u';'))
                if (!line.trimmed().isEmpty())
                    lines.append(line.simplified().replace(QStringLiteral("( "), QStringLiteral("(")) + u';');
            all.insert(oneModule.captured(1) + u' ' + oneBody.captured(1), lines);
        }
    }
    return all;
}

QString contractText()
{
    QFile file(QStringLiteral(QUORLIN_CONTRACT));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/** interface/services.d.ts against the meta-objects: the same classes, names, order, parameters and types. */
class TestSeamContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaresExactlyTheRegisteredClasses();
    void declaresEachClassAsItIs_data();
    void declaresEachClassAsItIs();
    void readsDeclarationsAsTheyStand();
    void reachesEveryType();
};

void TestSeamContract::declaresExactlyTheRegisteredClasses()
{
    QCOMPARE(declared(contractText()).keys(), registered().keys());
}

void TestSeamContract::declaresEachClassAsItIs_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : registered().keys())
        QTest::newRow(qPrintable(name)) << name;
}

void TestSeamContract::declaresEachClassAsItIs()
{
    QFETCH(QString, name);
    const QStringList there = declared(contractText()).value(name);
    const QStringList meant = registered().value(name);
    for (const QString &line : meant)
        if (!there.contains(line))
            qWarning("not declared: %s", qPrintable(line));
    for (const QString &line : there)
        if (!meant.contains(line))
            qWarning("declared and not there: %s", qPrintable(line));
    QCOMPARE(there, meant);
}

void TestSeamContract::readsDeclarationsAsTheyStand()
{
    const Declarations read = declared(QStringLiteral(
        "/** a; {b} */\ndeclare module \"m\" {\n    /** c */\n    export class A {\n        /** d; */\n        x: "
        "whole;\n"
        "        f(\n          a: text,\n          b: whole): null;\n    }\n    export class B {\n        y: text;\n   "
        " }\n}\n"));
    const Declarations expected = {
        {QStringLiteral("m A"), {QStringLiteral("x: whole;"), QStringLiteral("f(a: text, b: whole): null;")}},
        {QStringLiteral("m B"), {QStringLiteral("y: text;")}}};
    QCOMPARE(read, expected);
}

void TestSeamContract::reachesEveryType()
{
    const Declarations all = registered();
    for (auto entry = all.begin(); entry != all.end(); ++entry)
        for (const QString &line : entry.value())
            QVERIFY2(!line.contains(QStringLiteral("UNREACHABLE")), qPrintable(entry.key() + u' ' + line));
}

QUORLIN_TEST(TestSeamContract)
#include "tst_seam_contract.moc"
