#pragma once

#include "image/recipe/recipe.h"

#include <QHash>
#include <QString>

namespace jobs {

/** Everything that the results of a recipe's output depend on, but for the picture. */
struct MadeWith
{
    QString
        digest; ///< SHA-256 of operations, settings, and of the pictures, patterns, fonts and profiles they name; hexadecimal
    bool showsNumber = false; ///< the number of the picture is written into it
    bool showsPath = false;   ///< its name or folder is

    /** The same with what is written of one picture into its result. @param number  how many inputs come before it */
    QString of(const QString &source, int number) const;
};

/**
 * For each output of a recipe. Destinations, names and the handling of existing files are left out: they do not change
 * a result.
 *
 * @param json  the text of @p recipe; reads the files that it names
 */
QList<MadeWith> madeWith(const QByteArray &json, const image::Recipe &recipe);

/** Size, modification time and identity of a picture, in one word that can be stored; empty if there is no file. */
QString sourceState(const QString &path);

/**
 * What this user's data folder records about results: how each was made, from which picture, and its state then.
 * Without a data folder, or if it cannot be written to, nothing is known. Several processes may record results at a
 * time. Main thread only.
 */
class ResultRecords
{
public:
    static ResultRecords &ofProcess();

    /** @param folder  where the records are kept, one file for each folder of results; made when it is needed. Empty: nothing is kept */
    explicit ResultRecords(const QString &folder) : m_folder(folder) {}

    /**
     * The path of an existing result that is up to date, which is @p wanted or a numbered form of it ("a (2).jpg");
     * empty if there is none. A result is up to date if it was made with the same recipe from an unchanged picture, and
     * has not been changed since.
     *
     * @param made  see MadeWith::of()
     */
    QString upToDate(const QString &wanted, const QString &source, const QString &made);

    /** Notes a result that has taken its place. @param state  sourceState() of its picture before it was made; empty: nothing is noted */
    void note(const QString &result, const QString &state, const QString &made);

private:
    struct Record
    {
        QString made;
        QString source; ///< see sourceState()
        QString result; ///< size and modification time
    };
    struct Known
    {
        QString file; ///< size and modification time of the file of records when it was read
        qint64 bytes = 0;
        QHash<QString, Record> records; ///< by the names of results
    };

    QString fileFor(const QString &folder) const;
    static Known readFrom(const QString &file);
    Known &knownOf(const QString &folder);
    void tidy(const QString &folder, Known &known);

    QString m_folder;
    QHash<QString, Known> m_known; ///< by the folders of results
};

} // namespace jobs
