// bench_pdf FOLDER ENTRIES: writes the water log of a tank with that many entries to a PDF in the folder. Reports the
// time, scaled to 10,000 entries, and the largest amount of memory used.
#include <fstream>
#include <string>

#include "logic/logbook/LogReports.h"
#include "OwnProcess.h"
#include "platform/core/Printer.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/DesktopDoors.h"
#include "platform/desktop/PaintedPages.h"
#include "SampleData.h"
#include "store/Database.h"
#include "store/NewDatabase.h"

namespace {

constexpr double reported = 10'000;

long mostKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes)
            return kilobytes;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    Application application(argc, argv);
    DesktopDoors doors;
    Doors::install(&doors);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const int entries = QString::fromLatin1(argv[2]).toInt();
    const QString file = folder + u"/pdf-" + QString::number(nowNanoseconds());
    CreateDatabase(file + u".mdb");
    const auto database = Database::OpenDatabase(file + u".mdb");
    const QString tank = AddSampleTank(*database, QStringLiteral("Reef"), {}, 180, QStringLiteral("3"), {});
    AddSampleWaterTests(*database, tank, entries, QDate(2010, 1, 1), 60, true);
    std::ofstream("/proc/self/clear_refs") << 5; // resets the peak memory that the system reports
    const std::int64_t start = nowNanoseconds();
    const Report report = MakeLogReport(WaterTab, *database, QStringLiteral("MM/DD/YY"), tank);
    if (!report.open())
        return 1;
    const auto pages = PagesInPdf(file + u".pdf");
    Printer page(*pages, report.documentName);
    report.print(page);
    reportMeasured(millisecondsSince(start) * reported / entries, mostKilobytes());
    return 0;
}
