// omk_newdb FILE: writes an empty database, as the program does at its first start. An existing file is not changed.
#include <cstdio>

#include <QCoreApplication>

#include "platform/core/RuntimeFailure.h"
#include "store/NewDatabase.h"

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || arguments[1].startsWith(u'-') || arguments[1].isEmpty()) {
        std::fputs(
            "Usage: omk_newdb FILE\nWrites an empty Ostrelmark database. A file that is there is left as it is.\n",
            stderr);
        return 2;
    }
    try {
        CreateDatabase(arguments[1]);
    } catch (const RuntimeFailure &failure) {
        std::fprintf(stderr, "omk_newdb: %s\n", failure.what());
        return 1;
    }
    return 0;
}
