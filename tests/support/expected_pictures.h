#pragma once

#include "corpus.h"

#include <QFile>
#include <QList>
#include <QSize>
#include <QString>

/** The facts of the shared test pictures, one row a file. */
namespace expected {

struct Row
{
    QString path; ///< absolute
    QString name; ///< relative to the shared pictures
    QString format;
    QSize stored;
    QSize upright;
    QString colourModel;
    bool hasAlpha = false;
    double dpi = 0; ///< 0 where none is stated
    int images = 0;
    QString profile;
    bool isDecodable = false;
    bool isComplete = false; ///< decodable without tolerance
};

inline QSize sizeFrom(const QString &text)
{
    const QStringList sides = text.split(u'x');
    return sides.size() == 2 ? QSize(int(sides[0].toDouble()), int(sides[1].toDouble())) : QSize();
}

inline QList<Row> rows(const QString &folder = {})
{
    QFile file(corpusPath("EXPECT.tsv"));
    QList<Row> result;
    if (!file.open(QIODevice::ReadOnly))
        return result;
    file.readLine();
    while (!file.atEnd()) {
        const QStringList cell = QString::fromUtf8(file.readLine()).trimmed().split(u'\t');
        if (cell.size() < 16 || !cell[0].startsWith(folder))
            continue;
        Row row;
        row.name = cell[0];
        row.path = corpusPath(cell[0]);
        row.format = cell[2];
        row.stored = sizeFrom(cell[4]);
        row.upright = sizeFrom(cell[6]);
        row.colourModel = cell[8];
        row.hasAlpha = cell[9] == QLatin1String("yes");
        row.dpi = cell[10].toDouble();
        row.images = cell[12].toInt();
        row.profile = cell[14] == QLatin1String("-") ? QString() : cell[14];
        row.isDecodable = cell[15] == QLatin1String("yes");
        result << row;
    }
    return result;
}

} // namespace expected
