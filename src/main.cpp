#include <QDir>

#include "platform/Application.h"
#include "platform/DesktopDoors.h"
#include "platform/Guarded.h"
#include "shell/Forms.h"
#include "shell/frm_OMKMDIMain.h"

int main(int argc, char **argv)
{
    Application application(argc, argv);
    DesktopDoors doors;
    Doors::install(&doors);
    Globals globals;
    Forms forms(globals);
    setEndHook([&globals] {
        if (globals.gDatabase)
            globals.gDatabase->Close();
    });
    try {
        Form<frm_OMKMDIMain>().MDIForm_Load();
    } catch (const RuntimeFailure &failure) {
        endWithFailure(failure);
    }
    return isEnding() ? 1 : Application::exec();
}
