#pragma once

#include <QFileInfo>
#include <QString>

/**
 * Where the collection of real pictures is: the folder that QUORLIN_TEST_CORPUS names when the test runs, else the one
 * that the build was told of. It is an addition to the pictures of the tests themselves, and may not be there.
 */
inline QString corpusFolder()
{
    const QString named = qEnvironmentVariable("QUORLIN_TEST_CORPUS");
    return named.isEmpty() ? QStringLiteral(QUORLIN_TEST_CORPUS) : named;
}

inline bool corpusIsThere()
{
    return QFileInfo::exists(corpusFolder() + QStringLiteral("/EXPECT.tsv"));
}

inline QString corpusPath(const QString &name)
{
    return corpusFolder() + u'/' + name;
}

inline QString corpusPath(const char *name)
{
    return corpusPath(QString::fromUtf8(name));
}

/** Leaves a test function that reads the collection of real pictures where that is not there. */
#define SKIP_WITHOUT_CORPUS()                                                                                          \
    do {                                                                                                               \
        if (!corpusIsThere())                                                                                          \
            QSKIP("needs the corpus of real pictures");                                                                \
    } while (false)
