#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/** What the command quorlin-batch was asked for. */
struct CommandLine
{
    enum class Progress { Auto, Always, Never };

    QString recipe;     ///< path of its file
    QString preset;     ///< in its place, the name of a preset
    QStringList inputs; ///< as they were named
    QString from;       ///< a file with further ones; "-" is standard input
    bool isFromSeparatedByNul = false;
    QString to;
    bool keepsTree = false;
    int jobs = 0; ///< 0: as many as fit
    bool isDryRun = false;
    bool watches = false;
    QString report;
    QString plan;
    QString resume;
    int shard = 1;
    int shards = 1;
    int timeout = 300; ///< seconds
    int memory = 2048; ///< megabytes
    Progress progress = Progress::Auto;
    bool isQuiet = false;
    bool asksForPresets = false;
    bool asksForHelp = false;
    bool asksForVersion = false;

    QString problem; ///< a sentence if it is invalid
};

/** Reads the arguments after the program's name. */
CommandLine readCommandLine(const QStringList &arguments);

/** What --help says, on one screen. */
QString helpText();
