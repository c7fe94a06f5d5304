#pragma once

#include "corpus.h"

#include <QFile>
#include <QList>
#include <QStringList>

/** A file name of the shared corpus in the forms that another implementation of Unicode gives it. */
struct CorpusName
{
    QString name;
    QString composed;
    QString decomposed;
    QString lower;
    QString upper;
};

/** The text behind the escapes of the corpus: \\ \t \n \r. */
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

/** Empty where the corpus is not there. */
inline QList<CorpusName> corpusNames()
{
    QFile file(corpusPath("names/names-expect.tsv"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<CorpusName> names;
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.mid(1)) {
        QStringList columns = line.split(u'\t');
        for (QString &column : columns)
            column = unescaped(column);
        names.append({columns.value(0), columns.value(1), columns.value(2), columns.value(4), columns.value(5)});
    }
    return names;
}
