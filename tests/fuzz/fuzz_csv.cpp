// Fuzzes the import with any options and any bytes: either nothing is stored and a fault is reported, or all rows are
// stored. Then everything is exported, and importing these files again must find that all their rows already exist.
#include "data/Export.h"
#include "data/Import.h"
#include "Fuzzing.h"
#include "logic/shell/Globals.h"
#include "logic/shell/Options.h"
#include "store/NewDatabase.h"

namespace {

const QStringList tables = {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED"};

/// A database with one tank, as it is before each run.
Globals &emptied()
{
    static Globals *const g = [] {
        CreateDatabase(scratchPath("OM.MDB"));
        auto *globals = new Globals;
        globals->gDatabase = Database::OpenDatabase(scratchPath("OM.MDB"));
        return globals;
    }();
    Database::Transaction whole(*g->gDatabase);
    for (const QString &table : tables)
        g->gDatabase->Execute("DELETE FROM " + table);
    g->gDatabase->Execute("INSERT INTO TANKLST (tankname, tankid, tanksize) VALUES ('T', 'id', 1)");
    whole.commit();
    ReadOptions(*g);
    return *g;
}

ImportOptions optionsFrom(Input &input)
{
    const std::optional<DateOrder> orders[] = {{}, DateOrder::MMDDYY, DateOrder::DDMMYY, DateOrder::YYMMDD};
    ImportOptions options;
    options.delimiter = ",;\t|"[input.choice(4)];
    options.dateOrder = orders[input.choice(4)];
    const int flags = input.choice(16);
    options.decimalComma = flags & 1;
    options.replaces = flags & 2;
    options.isDryRun = flags & 4;
    options.tank = flags & 8 ? "T" : "";
    input.line();
    options.map = ReadMap(input.line()).value_or(options.map);
    return options;
}

/// Faults must be reported one by one, each as one line, in the order of the lines.
ImportResult importChecked(Globals &g, const QString &path, const ImportOptions &options)
{
    qint64 told = 0, line = 1;
    const ImportResult result = Import(g, path, options, [&](const ImportFault &fault) {
        ++told;
        FUZZ_REQUIRE(fault.line >= line && !fault.reason.isEmpty(), FaultText(fault));
        FUZZ_REQUIRE(!FaultText(fault).contains('\n'), FaultText(fault));
        line = fault.line;
    });
    FUZZ_REQUIRE(told == result.faults, QString::number(told));
    return result;
}

} // namespace

void fuzz(Input &input)
{
    Globals &g = emptied();
    const ImportOptions options = optionsFrom(input);
    const QString path = scratchPath("in.csv"), folder = scratchPath("out");
    writeFile(path, input.rest());

    const ImportResult first = importChecked(g, path, options);
    const bool isStored = first.faults == 0 && !options.isDryRun;
    qint64 rows = 0;
    for (const QString &table : tables)
        rows += g.gDatabase->OpenRecordset("SELECT * FROM " + table).RecordCount();
    FUZZ_REQUIRE(rows == 1 + (isStored ? first.added : 0), first.entry);
    if (!isStored)
        return;
    const ImportResult second = importChecked(g, path, options);
    const qint64 all = first.added + first.replaced + first.passedOver;
    FUZZ_REQUIRE(second.passedOver == all && second.added + second.replaced + second.faults == 0, second.entry);

    const ExportResult out = Export(g, {.folder = folder, .replaces = true});
    FUZZ_REQUIRE(out.refusal.isEmpty() && out.lost == 0, out.refusal);
    for (const ExportedFile &file : out.files) {
        const ImportResult back = importChecked(g, file.path, {});
        FUZZ_REQUIRE(back.faults == 0 && back.passedOver == file.rows && back.added == 0, file.path);
    }
}
