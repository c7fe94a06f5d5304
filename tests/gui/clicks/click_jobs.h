#pragma once

#include <QList>
#include <QString>

/**
 * Everyday jobs done by a person in the shortest way that the manual describes, with the clicks and keys that they
 * take.
 */
namespace clicks {

/** Which program is worked: the ways to a comment differ. */
enum class Program {
    Earlier, ///< before a comment was written and the next picture shown by one chord
    Present,
};

struct Job
{
    QString name;
    int count = 0;   ///< clicks and chords from the folder dropped to the summary shown
    QString problem; ///< why it was not done; empty if it was
};

/**
 * Does all jobs, each in a program that was just installed, and looks at the files that came of them. Takes as long as the program needs.
 *
 * @return web copies of a folder tree, rename by date and counter, square crops of a mixed list, captions for 30 pictures
 */
QList<Job> doAll(Program program);

} // namespace clicks
