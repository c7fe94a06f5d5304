// walk FOLDER: collects the pictures below a folder as the "sortDir" action does, without a panel, and prints their number.

#include "files/items/input_collection.h"

#include <QFile>

#include <cstdio>

int main(int count, char **arguments)
{
    if (count != 2) {
        std::fputs("usage: bench-walk FOLDER\n", stderr);
        return 2;
    }
    const auto rule = files::inputRule(files::ActionFamily::Standard, QStringLiteral("sortDir"));
    std::printf("%lld\n", qlonglong(files::filesBelow(QFile::decodeName(arguments[1]), *rule).size()));
    return 0;
}
