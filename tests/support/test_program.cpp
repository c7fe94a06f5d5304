#include "tests/support/test_program.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>

namespace {

/** Sorted by name; made when the first test asks for it, since the order in which files are initialised is nobody's promise. */
std::map<std::string, tests::Main> &known()
{
    static std::map<std::string, tests::Main> tests;
    return tests;
}

/** The last part of a path, without an ending. */
std::string stem(const std::string &path)
{
    const std::string name = path.substr(path.rfind('/') + 1);
    return name.substr(0, name.find('.'));
}

} // namespace

bool tests::remember(const char *file, Main main)
{
    if (!known().emplace(stem(file), main).second) {
        std::fprintf(stderr, "%s: one file holds one test\n", file);
        std::abort();
    }
    return true;
}

int main(int argc, char **argv)
{
    const auto test = known().find(stem(argc > 0 ? argv[0] : ""));
    if (test != known().end())
        return test->second(argc, argv);
    std::fprintf(stderr, "This program holds several tests and does the one under whose name it is called:\n");
    for (const auto &[name, run] : known())
        std::fprintf(stderr, "  %s\n", name.c_str());
    return 2;
}
