#pragma once

#include <QString>
#include <QStringList>

/** Recipes over many pictures: which they are, how results are named, what comes of them. Needs no window. */
namespace jobs {

/** One picture of a batch. */
struct Input
{
    QString path;    ///< absolute
    QString root;    ///< the folder that was named and that it was found in; empty for a picture that was named itself
    QString problem; ///< a sentence where nothing is there that could be read
};

/** Where the path of an input lies below its root, or its own name. */
QString placeBelowRoot(const Input &input);

/**
 * The pictures of files and folders in the order in which they are named; a folder gives all below it as
 * files::collectFiles() has it. A picture that is named twice, under whatever path, counts where it comes first.
 */
QList<Input> inputsFrom(const QStringList &named);

/** The extensions of files that are taken from folders: every picture that can be opened but drawings and pages. */
QStringList pictureExtensions();

} // namespace jobs
