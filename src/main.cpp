#include <cstdio>
#include <optional>

#include "logic/shell/CommandLine.h"
#include "logic/shell/KeepersFolder.h"
#include "platform/controls/Guarded.h"
#include "platform/core/Files.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/DesktopDoors.h"
#include "platform/desktop/DisplayWatch.h"
#include "upgrade/OpenOldFile.h"
#include "windows/shell/Forms.h"
#include "windows/shell/frm_OMKMDIMain.h"

int main(int argc, char **argv)
{
    const CommandLine line = ReadCommandLine({argv + 1, argv + argc});
    if (line.status) {
        std::fputs(qPrintable(line.text), *line.status == 0 ? stdout : stderr);
        return *line.status;
    }
    std::optional<DisplayWatch> atTheDisplay(std::in_place);
    Application application(argc, argv);
    atTheDisplay.reset();
    DesktopDoors doors;
    Doors::install(&doors);
    KeepersFolder folder; // destroyed last, so that the database is closed before another program can lock the folder
    Globals globals;
    Forms forms(globals);
    setEndHook([&globals] {
        if (globals.gDatabase)
            globals.gDatabase->Close();
    });
    try {
        if (!folder.open(KeepersFolder::choose(line.folder), DataFolder()) || !OpenOldFile(QStringLiteral("OM.MDB")))
            return 1;
        folder.onSecondStart([] { Form<frm_OMKMDIMain>().ComeToFront(); });
        Form<frm_OMKMDIMain>().MDIForm_Load();
    } catch (const RuntimeFailure &failure) {
        endWithFailure(WithAdviceForTheStart(failure));
    }
    return isEnding() ? 1 : Application::exec();
}
