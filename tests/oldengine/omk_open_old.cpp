// omk_open_old FILE: the start's step on a file of the old engine, alone, to be killed by a test.
#include <cstdlib>

#include "platform/desktop/Application.h"
#include "support/ScriptedDoors.h"
#include "upgrade/OpenOldFile.h"

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    ScriptedDoors doors;
    const bool isOpen = OpenOldFile(QString::fromLocal8Bit(argv[1]));
    std::_Exit(isOpen ? 0 : 1); // the search for leaks does not work in a process that is watched
}
