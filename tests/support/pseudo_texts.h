#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

/** A language that nobody speaks: English in brackets, with accents, and 40 % longer. What stands outside of brackets is not translated. */
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

/** A word with as many letters more as are owed; the last vowel stands several times. */
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

/**
 * Copies the interface folder to @p to, with one more language in it.
 *
 * @param texts     the file that the build collects all texts in: {context: {text: places}}
 * @param language  the code of the new language
 */
inline bool addLanguage(const QString &interface, const QString &texts, const QString &language, const QString &to)
{
    const QString folder = to + QStringLiteral("/texts/") + language;
    if (!copyTree(interface, to) || !QDir().mkpath(folder))
        return false;
    QJsonObject contexts = readObject(texts);
    for (auto context = contexts.begin(); context != contexts.end(); ++context) {
        QJsonObject translated;
        for (const QString &each : context.value().toObject().keys())
            translated.insert(each, text(each));
        context.value() = translated;
    }
    QJsonObject services = readObject(interface + QStringLiteral("/texts/en/Localizable.json"));
    for (auto entry = services.begin(); entry != services.end(); ++entry)
        entry.value() = text(entry.value().toString());
    return !contexts.isEmpty() && writeObject(folder + QStringLiteral("/Interface.json"), contexts) &&
           writeObject(folder + QStringLiteral("/Localizable.json"), services);
}

} // namespace pseudo
