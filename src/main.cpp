#include <cstdio>

#include "oldengine/OpenOldFile.h"
#include "platform/Application.h"
#include "platform/DesktopDoors.h"
#include "platform/Files.h"
#include "platform/Guarded.h"
#include "shell/CommandLine.h"
#include "shell/Forms.h"
#include "shell/frm_OMKMDIMain.h"
#include "shell/KeepersFolder.h"

int main(int argc, char **argv)
{
    const CommandLine line = ReadCommandLine({argv + 1, argv + argc});
    if (line.status) {
        std::fputs(qPrintable(line.text), *line.status == 0 ? stdout : stderr);
        return *line.status;
    }
    if (!HasDisplay(line)) {
        std::fputs("ostrelmark: there is no display to show windows on. Start it in a desktop session.\n", stderr);
        return 1;
    }
    Application application(argc, argv);
    DesktopDoors doors;
    Doors::install(&doors);
    KeepersFolder folder; // the last to go: the database is closed before another program comes in
    Globals globals;
    Forms forms(globals);
    setEndHook([&globals] {
        if (globals.gDatabase)
            globals.gDatabase->Close();
    });
    try {
        if (!folder.open(KeepersFolder::choose(line.folder), DataFolder()) || !OpenOldFile(QStringLiteral("OM.MDB")))
            return 1;
        Form<frm_OMKMDIMain>().MDIForm_Load();
    } catch (const RuntimeFailure &failure) {
        endWithFailure(failure);
    }
    return isEnding() ? 1 : Application::exec();
}
