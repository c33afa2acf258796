#include "datacommand/Spreadsheets.h"

#include "datacommand/DataCommand.h"
#include "datacommand/KeepersData.h"
#include "datacommand/TerminalDoors.h"

int ExportData(KeepersData &data, const ExportOptions &options)
{
    const ExportResult result = Export(data.open(), options);
    if (!result.refusal.isEmpty()) {
        Complain(OnOneLine(result.refusal));
        return DataFault;
    }
    for (const ExportedFile &file : result.files)
        Say(OnOneLine(file.path) + u": " + Counted(file.rows, "row", "rows"));
    if (result.lost == 0)
        return DataDone;
    Complain(Counted(result.lost, "entry", "entries") +
             u" of tanks that are gone could not be exported. \"ostrelmark-data check\" tells more.");
    return DataFault;
}

int ImportData(KeepersData &data, const QString &fileName, const ImportOptions &options)
{
    if (!options.isDryRun)
        data.lock();
    const ImportResult result =
        Import(data.open(), fileName, options, [](const ImportFault &fault) { Complain(FaultText(fault)); });
    if (result.faults > 0) {
        Complain(Counted(result.faults, "fault", "faults") + u". Nothing was stored.");
        return DataFault;
    }
    Say(QStringLiteral("%1: %2 added, %3 replaced, %4 there already")
            .arg(result.entry)
            .arg(result.added)
            .arg(result.replaced)
            .arg(result.passedOver));
    if (options.isDryRun)
        Say(QStringLiteral("This was a dry run. Nothing was stored."));
    return DataDone;
}
