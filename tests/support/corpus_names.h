#pragma once

#include "corpus.h"

#include <QFile>
#include <QList>
#include <QStringList>

/** A file name in the forms that another implementation of Unicode gives it. */
struct CorpusName
{
    QString name;
    QString composed;
    QString decomposed;
    QString lower;
    QString upper;
};

/** The text represented by the escapes of the corpus: \\ \t \n \r. */
inline QString unescaped(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        const QChar c = text[++i];
        result += c == u't' ? u'\t' : c == u'n' ? u'\n' : c == u'r' ? u'\r' : c;
    }
    return result;
}

/** Those of the tests themselves, and those of the corpus if it exists. */
inline QList<CorpusName> corpusNames()
{
    QList<CorpusName> names;
    for (const QString &table :
         {QStringLiteral(QUORLIN_TEST_DATA "/names/names-expect.tsv"), corpusPath("names/names-expect.tsv")}) {
        QFile file(table);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines.mid(1)) {
            QStringList columns = line.split(u'\t');
            for (QString &column : columns)
                column = unescaped(column);
            names.append({columns.value(0), columns.value(1), columns.value(2), columns.value(4), columns.value(5)});
        }
    }
    return names;
}

/** The names that one folder can hold, each once. */
inline QStringList oddNames()
{
    QStringList names;
    for (const CorpusName &each : corpusNames())
        if (!each.name.contains(u'/') && QFile::encodeName(each.name).size() <= 255)
            names << each.name;
    names.removeDuplicates();
    return names;
}
