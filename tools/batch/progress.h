#pragma once

#include "jobs/report.h"
#include "tools/batch/command_line.h"

#include <QElapsedTimer>

/** Writes a text to standard error, with the bytes of names that are no UTF-8. */
void say(const QString &text);

/** Says on standard error how far the batch has come. */
class Progress
{
public:
    explicit Progress(const CommandLine &line);

    /** How many lines there will be; a "+" is added while there may be more. */
    void expect(int lines, bool mayBeMore);
    void take(const jobs::ReportLine &line);
    void finish(const jobs::Summary &summary, bool isPlan);

private:
    void show();
    void clear();

    QElapsedTimer m_timer;
    int m_lines = 0;
    bool m_mayBeMore = false;
    int m_done = 0;
    int m_failed = 0;
    bool m_isQuiet;
    bool m_isShown = false;
    bool m_isDirty = false;
};
