// bench_open_tank FOLDER: opens the first tank of the database in that folder, from the click in the tree to the
// painted list.
#include "Desk.h"
#include "OwnProcess.h"
#include "platform/controls/ListView.h"
#include "platform/desktop/Application.h"

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    Application application(argc, argv);
    Desk desk(QString::fromLocal8Bit(argv[1]));
    const long before = residentKilobytes();
    const std::int64_t start = nowNanoseconds();
    desk.openFirstTank();
    const double milliseconds = millisecondsSince(start);
    const long after = residentKilobytes();
    if (desk.waterList().Count() == 0)
        return 1;
    reportMeasured(milliseconds, after - before);
    return 0;
}
