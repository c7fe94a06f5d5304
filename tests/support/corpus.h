#pragma once

#include <QFileInfo>
#include <QStringList>

#include <initializer_list>

/**
 * Where the collection of real pictures is: the folder that QUORLIN_TEST_CORPUS names when the test runs, else the one
 * that the build was told of. It is an addition to the pictures of the tests themselves, and may be missing.
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

/** The pictures that the tests bring along; README.md in that folder says which there are. */
inline QString ownPicturesFolder()
{
    return QFileInfo(QStringLiteral(QUORLIN_TEST_DATA)).path() + QStringLiteral("/pictures");
}

/** "own/formats/rgb.jpg" is a picture that the tests bring along, every other name one of the corpus. */
inline QString picturePath(const QString &name)
{
    return name.startsWith(QLatin1String("own/")) ? ownPicturesFolder() + name.mid(3) : corpusPath(name);
}

inline QString picturePath(const char *name)
{
    return picturePath(QString::fromUtf8(name));
}

/** Of these names those that can be read here: the tests' own always, the others beside the corpus. */
inline QStringList picturesThere(std::initializer_list<const char *> names)
{
    QStringList there;
    for (const char *name : names)
        if (const QString each = QString::fromUtf8(name); each.startsWith(QLatin1String("own/")) || corpusIsThere())
            there << each;
    return there;
}

/** Leaves a test function that reads the collection of real pictures if that is missing. */
#define SKIP_WITHOUT_CORPUS()                                                                                          \
    do {                                                                                                               \
        if (!corpusIsThere())                                                                                          \
            QSKIP("needs the corpus of real pictures");                                                                \
    } while (false)
