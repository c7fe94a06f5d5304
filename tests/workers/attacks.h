#pragma once

#include <QLatin1String>

#include <array>

/** What tests/workers/trial_worker.cpp tries where the name of a picture says so. */
struct Attack
{
    QLatin1String name;
    bool isEnded; ///< a process that tries it is killed, rather than refused
};

inline const std::array<Attack, 26> attacks = {{
    {QLatin1String("localsocket"), false}, {QLatin1String("read"), false},
    {QLatin1String("write"), false},       {QLatin1String("create"), false},
    {QLatin1String("createempty"), false}, {QLatin1String("truncate"), false},
    {QLatin1String("remove"), false},      {QLatin1String("rename"), false},
    {QLatin1String("link"), false},        {QLatin1String("chmod"), false},
    {QLatin1String("chown"), false},       {QLatin1String("utimes"), false},
    {QLatin1String("setxattr"), false},    {QLatin1String("inputtruncate"), false},
    {QLatin1String("inputchmod"), false},  {QLatin1String("inputchown"), false},
    {QLatin1String("inpututimes"), false}, {QLatin1String("inputsetxattr"), false},
    {QLatin1String("inputreopen"), false}, {QLatin1String("inputmap"), false},
    {QLatin1String("signal"), false},      {QLatin1String("threadsignal"), false},
    {QLatin1String("fork"), false},        {QLatin1String("socket"), true},
    {QLatin1String("ptrace"), true},       {QLatin1String("program"), true},
}};
