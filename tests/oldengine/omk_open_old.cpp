// omk_open_old FILE: the step of the start that opens a file of the old engine, alone, so that a test can kill it.
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
    std::_Exit(isOpen ? 0 : 1); // no search for leaks, which fails in a process that is watched by ptrace
}
