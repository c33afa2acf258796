// bench_start FOLDER NANOSECONDS: starts the program as main() does, on the database in that folder, up to the first
// paint of the main window.
#include <cstdlib>

#include <QDir>

#include "FirstPaint.h"
#include "platform/controls/Guarded.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/DesktopDoors.h"
#include "windows/shell/Forms.h"
#include "windows/shell/frm_OMKMDIMain.h"

int main(int argc, char **argv)
{
    if (argc != 3 || !QDir::setCurrent(QString::fromLocal8Bit(argv[1])))
        return 2;
    FirstPaint<Application> application(argc, argv, std::atoll(argv[2]));
    DesktopDoors doors;
    Doors::install(&doors);
    Globals globals;
    globals.splashMilliseconds = 0;
    Forms forms(globals);
    try {
        auto &main = Form<frm_OMKMDIMain>();
        application.watch(&main);
        main.MDIForm_Load();
    } catch (const RuntimeFailure &failure) {
        endWithFailure(failure);
    }
    return Application::exec();
}
