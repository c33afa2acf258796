#include <QCoreApplication>

#include "datacommand/DataCommand.h"
#include "datacommand/TerminalDoors.h"

int main(int argc, char **argv)
{
    // The output must not depend on the locale, and without a locale, as in a cron job, Qt would print a warning.
    qputenv("LC_ALL", "C.UTF-8");
    const QCoreApplication application(argc, argv);
    TerminalDoors doors;
    Doors::install(&doors);
    return RunDataCommand({argv, argv + argc});
}
