#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

/**
 * A language that nobody speaks: English in brackets, with accents, and 40 % longer. What is outside brackets is not
 * translated.
 */
namespace pseudo {

constexpr double longer = 1.4;

/** The letter with a sign above it. */
inline QChar accented(QChar letter)
{
    static const QString plain = QStringLiteral("aceinosuyzACEINOSUYZ");
    static const QString signs = QString::fromUtf8("äçéîñöšüÿžÄÇÉÎÑÖŠÜŸŽ");
    const qsizetype at = plain.indexOf(letter);
    return at < 0 ? letter : signs.at(at);
}

/** A word lengthened by the letters due; its last vowel is repeated. */
inline QString stretched(const QString &word, double &owed)
{
    QString out;
    qsizetype last = -1;
    for (const QChar each : word) {
        out += accented(each);
        if (QStringLiteral("aeou").contains(each))
            last = out.size() - 1;
    }
    owed += (longer - 1) * double(word.size());
    if (owed < 1)
        return out;
    const int more = int(owed);
    owed -= more;
    return out.insert(last < 0 ? out.size() : last, QString(more, last < 0 ? QChar(u'n') : out.at(last)));
}

/** The text in that language; places for values, tokens, tags and mnemonics stay what they are. A text without a letter does too. */
inline QString text(const QString &english)
{
    static const QRegularExpression word(QStringLiteral("%L?[0-9n@]|\\{[^}]*\\}|<[^>]*>|&[A-Za-z]|[A-Za-z]+"));
    QString out;
    // The brackets count as letters too.
    double owed = -1;
    qsizetype from = 0;
    bool any = false;
    for (auto found = word.globalMatch(english); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString part = match.captured();
        out += QStringView(english).mid(from, match.capturedStart() - from);
        from = match.capturedEnd();
        any = any || part.at(0).isLetter();
        out += part.at(0).isLetter() ? stretched(part, owed) : part;
    }
    out += QStringView(english).mid(from);
    return any ? u'[' + out + u']' : english;
}

inline QJsonObject readObject(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

inline bool writeObject(const QString &path, const QJsonObject &object)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0;
}

inline bool copyTree(const QString &from, const QString &to)
{
    for (QDirIterator each(from, QDir::Files, QDirIterator::Subdirectories); each.hasNext();) {
        const QString path = each.next();
        const QString target = to + path.mid(from.size());
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(path, target))
            return false;
    }
    return true;
}

/** Runs a program of the toolkit for translators. */
inline bool runTool(const QString &name, const QStringList &arguments)
{
    return QProcess::execute(QLibraryInfo::path(QLibraryInfo::BinariesPath) + u'/' + name, arguments) == 0;
}

/** Writes the translations of the messages of a .ts file; contexts, texts and disambiguations stay. */
inline void translateMessages(QXmlStreamReader &from, QXmlStreamWriter &to)
{
    QString source;
    bool hasCount = false;
    while (!from.atEnd()) {
        from.readNext();
        if (from.isEndElement() && (from.name() == u"context" || from.name() == u"message"))
            to.writeEndElement();
        if (!from.isStartElement())
            continue;
        const QString name = from.name().toString();
        if (name == u"context" || name == u"message") {
            to.writeStartElement(name);
            hasCount = from.attributes().value(QStringLiteral("numerus")) == u"yes";
            if (hasCount)
                to.writeAttribute(QStringLiteral("numerus"), QStringLiteral("yes"));
        } else if (name == u"name" || name == u"source" || name == u"comment") {
            const QString content = from.readElementText();
            source = name == u"source" ? content : source;
            to.writeTextElement(name, content);
        } else if (name == u"translation") {
            from.skipCurrentElement();
            to.writeStartElement(name);
            for (int form = 0; hasCount && form < 2; ++form)
                to.writeTextElement(QStringLiteral("numerusform"), text(source));
            if (!hasCount)
                to.writeCharacters(text(source));
            to.writeEndElement();
        }
    }
}

/** The .ts file @p source in that language, with two forms for counts as English has. */
inline bool translateTable(const QString &source, const QString &target)
{
    QFile from(source);
    QFile to(target);
    if (!from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly))
        return false;
    QXmlStreamReader reader(&from);
    QXmlStreamWriter writer(&to);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("TS"));
    writer.writeAttribute(QStringLiteral("version"), QStringLiteral("2.1"));
    writer.writeAttribute(QStringLiteral("language"), QStringLiteral("en"));
    translateMessages(reader, writer);
    writer.writeEndDocument();
    return !reader.hasError() && !writer.hasError();
}

/** All texts of the program, and those of the toolkit that its German translation has, compiled into @p target. */
inline bool compileTexts(const QString &texts, const QString &target)
{
    const QTemporaryDir work;
    const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_de.qm");
    const QString words = work.filePath(QStringLiteral("words.ts"));
    const QString made = work.filePath(QStringLiteral("made.ts"));
    const QString madeWords = work.filePath(QStringLiteral("made-words.ts"));
    return runTool(QStringLiteral("lconvert"), {toolkit, QStringLiteral("-o"), words}) && translateTable(texts, made) &&
           translateTable(words, madeWords) &&
           runTool(QStringLiteral("lrelease"),
                   {QStringLiteral("-silent"), made, madeWords, QStringLiteral("-qm"), target});
}

/**
 * Copies the interface folder to @p to, with one more language in it.
 *
 * @param texts     the .ts file that the build collects all texts in
 * @param language  the code of the new language
 */
inline bool addLanguage(const QString &interface, const QString &texts, const QString &language, const QString &to)
{
    const QString folder = to + QStringLiteral("/texts/") + language;
    if (!copyTree(interface, to) || !QDir().mkpath(folder))
        return false;
    QJsonObject services = readObject(interface + QStringLiteral("/texts/en/Localizable.json"));
    for (auto entry = services.begin(); entry != services.end(); ++entry)
        entry.value() = text(entry.value().toString());
    return compileTexts(texts, to + QStringLiteral("/texts/quorlin_%1.qm").arg(language)) &&
           writeObject(folder + QStringLiteral("/Localizable.json"), services);
}

} // namespace pseudo
