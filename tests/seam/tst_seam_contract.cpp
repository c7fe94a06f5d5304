#include "app/modules/file_modules.h"
#include "app/script/registry.h"
#include "app/window/script_modules.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace {

using Declarations = QMap<QString, QStringList>; // "module class", or "module object", to its lines, in order

std::vector<script::ServiceEntry> allServices()
{
    std::vector<script::ServiceEntry> all = script::registeredServices();
    for (const auto &more : {script::fileServices(), window::windowServices()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

/** The first line of what has all that another class has. */
QString extends(const QString &name)
{
    return QStringLiteral("extends ") + name + u';';
}

QString opaqueWord(QMetaType type)
{
    const QString name = QString::fromLatin1(type.name());
    return name.mid(name.lastIndexOf(u':') + 1) + QStringLiteral(" | null");
}

QString objectWord(QMetaType type)
{
    if (type.metaObject() == &QObject::staticMetaObject)
        return QStringLiteral("Control | null");
    for (const script::ServiceEntry &entry : allServices())
        if (entry.meta == type.metaObject())
            return QString::fromLatin1(entry.name) + QStringLiteral(" | null");
    return QStringLiteral("UNREGISTERED ") + QString::fromLatin1(type.name());
}

/** The word that the contract has for a type. */
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
        {Kind::Function, QStringLiteral("Function | null")},
        {Kind::Generator, QStringLiteral("Iterator<any>")},
        {Kind::ObjectList, QStringLiteral("objects")},
    };
    if (kind == Kind::Opaque)
        return opaqueWord(type);
    if (kind == Kind::Object)
        return objectWord(type);
    return words.value(kind, QStringLiteral("UNREACHABLE ") + QString::fromLatin1(type.name()));
}

/** The word for a type that is answered: a text is one where the service answers no null for it. */
QString answerOf(const script::ServiceEntry &entry, script::Kind kind, QMetaType type)
{
    return kind == script::Kind::Text && !entry.answersNullTexts ? QStringLiteral("string") : wordOf(kind, type);
}

QString listOf(const std::vector<script::Parameter> &parameters)
{
    QStringList list;
    for (const script::Parameter &parameter : parameters)
        list.append(QString::fromLatin1(parameter.name) + QStringLiteral(": ") +
                    wordOf(parameter.kind, parameter.type));
    return u'(' + list.join(QStringLiteral(", ")) + u')';
}

QString lineOf(const script::ServiceEntry &entry, const script::Operation &operation)
{
    return (operation.isClassLevel ? QStringLiteral("static ") : QString()) + QString::fromLatin1(operation.name) +
           listOf(operation.parameters) + QStringLiteral(": ") +
           answerOf(entry, operation.resultKind, operation.resultType) + u';';
}

QString lineOf(const script::ServiceEntry &entry, const script::Field &field)
{
    return (field.isWritable ? QString() : QStringLiteral("readonly ")) + QString::fromLatin1(field.name) +
           QStringLiteral(": ") + answerOf(entry, field.kind, field.type) + u';';
}

QString lineOf(const script::Signal &signal)
{
    return QStringLiteral("readonly %1: Signal<%2 => any>;")
        .arg(QString::fromLatin1(signal.name), listOf(signal.parameters));
}

QString keyOf(const script::ServiceEntry &entry)
{
    return QString::fromLatin1(entry.module + ' ' + entry.name);
}

QString constructorOf(const script::ServiceEntry &entry)
{
    if (!entry.isMadeByScripts)
        return QStringLiteral("private constructor();");
    return entry.takesFields
               ? QStringLiteral("constructor(fields?: fieldsOf<%1>);").arg(QString::fromLatin1(entry.name))
               : QStringLiteral("constructor();");
}

QStringList linesOf(const script::ServiceEntry &entry)
{
    const script::ServiceClass service(entry);
    QStringList lines;
    if (entry.base)
        lines.append(extends(QString::fromLatin1(entry.base->name)));
    if (!entry.isOneObject && !entry.hasOneFacade)
        lines.append(constructorOf(entry));
    for (size_t i = service.inherited.fields; i < service.fields.size(); ++i)
        lines.append(lineOf(entry, service.fields[i]));
    for (size_t i = service.inherited.signalList; i < service.signalList.size(); ++i)
        lines.append(lineOf(service.signalList[i]));
    for (size_t i = service.inherited.operations; i < service.operations.size(); ++i)
        lines.append(lineOf(entry, service.operations[i]));
    return lines;
}

Declarations registered()
{
    Declarations all;
    for (const script::ServiceEntry &entry : allServices())
        all.insert(keyOf(entry), linesOf(entry));
    return all;
}

/** The parts of a text between separators that are not in brackets. */
QStringList partsOf(const QString &text, QChar separator)
{
    QStringList parts = {QString()};
    int depth = 0;
    for (const QChar c : text) {
        if (QStringLiteral("({[").contains(c))
            ++depth;
        if (QStringLiteral(")}]").contains(c))
            --depth;
        if (c == separator && depth == 0)
            parts.append(QString());
        else
            parts.last().append(c);
    }
    return parts;
}

/** What a module exports, classes and objects. A declaration ends with a semicolon and may run over several lines. */
Declarations declared(QString text)
{
    Declarations all;
    text.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    static const QRegularExpression module(QStringLiteral("declare module \"([^\"]+)\" \\{(.*?)\\n\\}"),
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression body(
        QStringLiteral("export (?:class|interface|const) (\\w+):?(?: extends (\\w+))? \\{(.*?)\\n    \\}"),
        QRegularExpression::DotMatchesEverythingOption);
    for (auto modules = module.globalMatch(text); modules.hasNext();) {
        const auto oneModule = modules.next();
        for (auto bodies = body.globalMatch(oneModule.captured(2)); bodies.hasNext();) {
            const auto oneBody = bodies.next();
            QStringList lines;
            if (!oneBody.captured(2).isEmpty())
                lines.append(extends(oneBody.captured(2)));
            for (const QString &line : partsOf(oneBody.captured(3), u';'))
                if (!line.trimmed().isEmpty())
                    lines.append(line.simplified().replace(QStringLiteral("( "), QStringLiteral("(")) + u';');
            all.insert(oneModule.captured(1) + u' ' + oneBody.captured(1), lines);
        }
    }
    return all;
}

bool isClass(const QString &name)
{
    static const QStringList names = [] {
        QStringList all = {QStringLiteral("Control")};
        for (const script::ServiceEntry &entry : allServices())
            all.append(QString::fromLatin1(entry.name));
        return all;
    }();
    return names.contains(name);
}

/**
 * The word for the type that a declaration spells out: an interface or a shape is a dictionary, words in quotation marks are text, a
 * shape or null is anything. What is a word already stays.
 */
QString wordOfSpelled(const QString &type)
{
    static const QStringList words = {QStringLiteral("text"),   QStringLiteral("string"),  QStringLiteral("whole"),
                                      QStringLiteral("double"), QStringLiteral("boolean"), QStringLiteral("anything"),
                                      QStringLiteral("list"),   QStringLiteral("texts"),   QStringLiteral("null")};
    QStringList union_ = partsOf(type, u'|');
    for (QString &each : union_)
        each = each.trimmed();
    union_.removeAll(QString());
    const bool isNullable = union_.size() > 1 && union_.removeAll(QStringLiteral("null")) > 0;
    const QString first = union_.first();
    if (first == QStringLiteral("AnyControl"))
        return QStringLiteral("Control | null");
    const QString orNull = isNullable ? QStringLiteral(" | null") : QString();
    if (isClass(first) || first == QStringLiteral("Function") || first.startsWith(QStringLiteral("Iterator<")))
        return first + orNull;
    if (isNullable)
        return QStringLiteral("anything");
    if (first.endsWith(QStringLiteral("[]")))
        return first == QStringLiteral("string[]") ? QStringLiteral("texts")
               : isClass(first.chopped(2))         ? QStringLiteral("objects")
                                                   : QStringLiteral("list");
    if (first.startsWith(u'"'))
        return QStringLiteral("string");
    return words.contains(first) ? first : QStringLiteral("dictionary");
}

/** A declaration with words for the types that it spells out. */
QString inWords(const QString &line)
{
    static const QRegularExpression field(QStringLiteral("^((?:readonly )?\\w+): (.*);$"));
    if (line.startsWith(QStringLiteral("extends ")) || line.contains(QStringLiteral("constructor(")) ||
        line.contains(QStringLiteral(": Signal<")))
        return line;
    if (const auto match = field.match(line); match.hasMatch())
        return match.captured(1) + QStringLiteral(": ") + wordOfSpelled(match.captured(2)) + u';';
    const qsizetype open = line.indexOf(u'(');
    int depth = 0;
    qsizetype close = open;
    for (; close < line.size(); ++close) {
        depth += line.at(close) == u'(' ? 1 : line.at(close) == u')' ? -1 : 0;
        if (depth == 0)
            break;
    }
    QStringList parameters;
    for (const QString &parameter : partsOf(line.mid(open + 1, close - open - 1), u','))
        if (const qsizetype colon = parameter.indexOf(u':'); colon > 0)
            parameters.append(parameter.left(colon).trimmed() + QStringLiteral(": ") +
                              wordOfSpelled(parameter.mid(colon + 1)));
    return line.left(open) + u'(' + parameters.join(QStringLiteral(", ")) + QStringLiteral("): ") +
           wordOfSpelled(line.mid(close + 2).chopped(1)) + u';';
}

/** The modules whose types are spelled out. */
bool isSpelledOut(const QString &key)
{
    return !key.startsWith(QStringLiteral("quorlin ")) && !key.startsWith(QStringLiteral("quorlin/controls "));
}

QString contractText()
{
    QFile file(QStringLiteral(QUORLIN_CONTRACT));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/** interface/quorlin.d.ts against the meta-objects: the same modules, classes, objects, names, order, parameters and types. */
class TestSeamContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaresExactlyWhatModulesExport();
    void declaresEachServiceAsItIs_data();
    void declaresEachServiceAsItIs();
    void declaresTheObjectsWithoutAClass_data();
    void declaresTheObjectsWithoutAClass();
    void readsDeclarationsAsTheyStand();
    void readsTypesThatAreSpelledOut_data();
    void readsTypesThatAreSpelledOut();
    void reachesEveryType();
};

// Two modules are made by hand, since their objects keep functions and lists of the script's own.
const QStringList &madeByHand()
{
    static const QStringList keys = {QStringLiteral("quorlin/defaults defaults"),
                                     QStringLiteral("quorlin/panels panels")};
    return keys;
}

void TestSeamContract::declaresExactlyWhatModulesExport()
{
    QStringList exported = registered().keys() + madeByHand();
    exported.sort();
    QCOMPARE(declared(contractText()).keys(), exported);
}

void TestSeamContract::declaresEachServiceAsItIs_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : registered().keys())
        QTest::newRow(qPrintable(name)) << name;
}

void TestSeamContract::declaresEachServiceAsItIs()
{
    QFETCH(QString, name);
    QStringList there = declared(contractText()).value(name);
    if (isSpelledOut(name))
        std::transform(there.cbegin(), there.cend(), there.begin(), inWords);
    const QStringList meant = registered().value(name);
    for (const QString &line : meant)
        if (!there.contains(line))
            qWarning("not declared: %s", qPrintable(line));
    for (const QString &line : there)
        if (!meant.contains(line))
            qWarning("declared and not there: %s", qPrintable(line));
    QCOMPARE(there, meant);
}

void TestSeamContract::declaresTheObjectsWithoutAClass_data()
{
    QTest::addColumn<QString>("key");
    for (const QString &key : madeByHand())
        QTest::newRow(qPrintable(key)) << key;
}

/** Names, and how many arguments each operation takes at most. */
void TestSeamContract::declaresTheObjectsWithoutAClass()
{
    QFETCH(QString, key);
    QStringList names;
    QStringList counts;
    const QStringList lines = declared(contractText()).value(key);
    for (const QString &line : lines) {
        const QString name = line.section(QRegularExpression(QStringLiteral("\\W")), 0, 0);
        const QString list = line.section(u'(', 1).section(QStringLiteral("): "), 0, -2);
        const qsizetype count = list.trimmed().isEmpty() ? 0 : partsOf(list, u',').size();
        const bool isField = name == QStringLiteral("readonly");
        names.append(isField ? line.section(QRegularExpression(QStringLiteral("\\W")), 1, 1) : name);
        if (!isField)
            counts.append(QStringLiteral("%1 %2").arg(name).arg(count));
    }
    ScriptRun run;
    const QString object = key.section(u' ', 1);
    QVERIFY2(
        run.run(QStringLiteral("report(Object.getOwnPropertyNames(%1).join()); const takes = (name, count) => {"
                               " try { %1[name](...Array(count).fill('a')); return true; } catch (e) {"
                               " return e.message.indexOf('takes') < 0; } };"
                               "report(Object.getOwnPropertyNames(%1).filter(n => typeof %1[n] === 'function').map("
                               "n => n + ' ' + [4, 3, 2, 1, 0].find(c => takes(n, c))).join());")
                    .arg(object)),
        qPrintable(run.error));
    QCOMPARE(run.reports, (QStringList{u'"' + names.join(u',') + u'"', u'"' + counts.join(u',') + u'"'}));
}

void TestSeamContract::readsDeclarationsAsTheyStand()
{
    QCOMPARE(
        declared(QStringLiteral("declare module \"m\" {\n    export const o: {\n        f(a: { b: text; c: text }): "
                                "list;\n        readonly x: text;\n    };\n}\n")),
        (Declarations{{QStringLiteral("m o"),
                       {QStringLiteral("f(a: { b: text; c: text }): list;"), QStringLiteral("readonly x: text;")}}}));
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

void TestSeamContract::readsTypesThatAreSpelledOut_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("words");
    const std::pair<const char *, const char *> rows[] = {
        {"f(): null;", "f(): null;"},
        {"f(a: text, b: Wish[]): Planned[];", "f(a: text, b: list): list;"},
        {"f(a: { b: (c: text) => any; d: text }): string[];", "f(a: dictionary): texts;"},
        {"f(a: \"x\" | \"y\"): | { a: text } | { b: text };", "f(a: string): dictionary;"},
        {"f(a: Form[]): { a: text } | null;", "f(a: objects): anything;"},
        {"f(a: Form | null): (Planned | null)[];", "f(a: Form | null): list;"},
        {"readonly x: { [key: text]: any };", "readonly x: dictionary;"},
        {"x: whole;", "x: whole;"},
        {"readonly x: Signal<(a: text) => any>;", "readonly x: Signal<(a: text) => any>;"},
        {"f(a: Function | null, b: Iterator<any>): string;", "f(a: Function | null, b: Iterator<any>): string;"},
    };
    for (const auto &[line, words] : rows)
        QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(words);
}

void TestSeamContract::readsTypesThatAreSpelledOut()
{
    QFETCH(QString, line);
    QTEST(inWords(line), "words");
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
