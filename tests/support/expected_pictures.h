#pragma once

#include "corpus.h"

#include <QFile>
#include <QList>
#include <QSize>
#include <QString>

/** The facts of the pictures that tests read, one row a file, as other programs state them. */
namespace expected {

struct Row
{
    QString path; ///< absolute
    QString name; ///< relative to their folder
    QString format;
    QSize stored;
    QSize upright;
    int depth = 0; ///< bits of a channel or of an index; 0 for drawings
    QString colourModel;
    bool hasAlpha = false;
    double dpi = 0; ///< 0 if none is stated
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

inline Row rowFrom(const QStringList &cell)
{
    Row row;
    row.name = cell[0];
    row.format = cell[2];
    row.stored = sizeFrom(cell[4]);
    row.upright = sizeFrom(cell[6]);
    row.depth = cell[7].toInt();
    row.colourModel = cell[8];
    row.hasAlpha = cell[9] == QLatin1String("yes");
    row.dpi = cell[10].toDouble();
    row.images = cell[12].toInt();
    row.profile = cell[14] == QLatin1String("-") ? QString() : cell[14];
    row.isDecodable = cell[15] == QLatin1String("yes");
    return row;
}

/**
 * The rows of one table; the folder of the picture is prefixed to its name, and @p mark to the name that is reported.
 */
inline QList<Row> tableOf(const QString &pictures, const QString &mark)
{
    QFile file(pictures + QStringLiteral("/EXPECT.tsv"));
    QList<Row> result;
    if (!file.open(QIODevice::ReadOnly))
        return result;
    file.readLine();
    while (!file.atEnd()) {
        const QStringList cell = QString::fromUtf8(file.readLine()).trimmed().split(u'\t');
        if (cell.size() < 16)
            continue;
        result << rowFrom(cell);
        result.last().path = pictures + u'/' + cell[0];
        result.last().name.prepend(mark);
    }
    return result;
}

/**
 * The corpus, if it exists, and the pictures of the tests themselves, which always exist and whose names begin with
 * "own/". @p folder selects those of one folder of either, or one picture.
 */
inline QList<Row> rows(const QString &folder = {})
{
    const QString own = QStringLiteral("own/");
    QList<Row> result;
    for (const Row &row : tableOf(corpusFolder(), QString()) + tableOf(ownPicturesFolder(), own))
        if (row.name.startsWith(folder) || (row.name.startsWith(own) && row.name.mid(own.size()).startsWith(folder)))
            result << row;
    return result;
}

} // namespace expected
