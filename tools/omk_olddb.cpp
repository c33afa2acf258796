// omk_olddb FILE 1.0|1.1 [ROWS]: writes a database of an older version with made-up entries, by default 5000 in each
// log, for trying out the upgrade.
#include <cstdio>

#include <QCoreApplication>

#include "OldDatabase.h"
#include "platform/core/RuntimeFailure.h"

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    bool good = arguments.size() == 3 || arguments.size() == 4;
    const QString version = good ? arguments[2] : QString();
    const int rows = arguments.size() == 4 ? arguments[3].toInt(&good) : 5000;
    if (!good || rows < 0 || (version != u"1.0" && version != u"1.1")) {
        std::fputs("Usage: omk_olddb FILE 1.0|1.1 [ROWS]\n"
                   "Writes an Ostrelmark database of an older version. A file that is there is left as it is.\n",
                   stderr);
        return 2;
    }
    try {
        WriteOldDatabase(arguments[1], version, rows);
    } catch (const RuntimeFailure &failure) {
        std::fprintf(stderr, "omk_olddb: %s\n", failure.what());
        return 1;
    }
    return 0;
}
