// Fuzzes the import with any options and any bytes: either nothing is stored and a fault is reported, or all rows are
// stored. Then everything is exported, and importing these files again must find that all their rows already exist.
#include <QDir>

#include "data/CsvReader.h"
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
        CreateDatabase(scratchPath(QStringLiteral("OM.MDB")));
        auto *globals = new Globals;
        globals->gDatabase = Database::OpenDatabase(scratchPath(QStringLiteral("OM.MDB")));
        return globals;
    }();
    Database::Transaction whole(*g->gDatabase);
    for (const QString &table : tables)
        g->gDatabase->Execute(u"DELETE FROM " + table);
    g->gDatabase->Execute(QStringLiteral("INSERT INTO TANKLST (tankname, tankid, tanksize) VALUES ('T', 'id', 1)"));
    whole.commit();
    ReadOptions(*g);
    return *g;
}

qint64 rowsIn(Database &database)
{
    qint64 rows = 0;
    for (const QString &table : tables)
        rows += database.OpenRecordset(u"SELECT * FROM " + table).RecordCount();
    return rows;
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
    options.tank = flags & 8 ? QStringLiteral("T") : QString();
    input.line();
    options.map = ReadMap(input.line()).value_or(options.map);
    return options;
}

ImportResult importChecked(Globals &g, const QString &path, const ImportOptions &options)
{
    qint64 told = 0, line = 1;
    const ImportResult result = Import(g, path, options, [&](const ImportFault &fault) {
        ++told;
        FUZZ_REQUIRE(fault.line >= line, FaultText(fault));
        FUZZ_REQUIRE(!fault.reason.isEmpty() && !FaultText(fault).contains(u'\n'), FaultText(fault));
        line = fault.line;
    });
    FUZZ_REQUIRE(told == result.faults, QString::number(told));
    return result;
}

} // namespace

void fuzz(Input &input, ScriptedDoors &)
{
    Globals &g = emptied();
    const ImportOptions options = optionsFrom(input);
    static const QString path = scratchPath(QStringLiteral("in.csv"));
    writeFile(path, input.rest());

    const ImportResult first = importChecked(g, path, options);
    const bool isStored = first.faults == 0 && !options.isDryRun;
    FUZZ_REQUIRE(rowsIn(*g.gDatabase) == 1 + (isStored ? first.added : 0), first.entry);
    if (!isStored)
        return;
    const ImportResult second = importChecked(g, path, options);
    FUZZ_REQUIRE(second.added == 0 && second.replaced == 0 && second.faults == 0, second.entry);
    FUZZ_REQUIRE(second.passedOver == first.added + first.replaced + first.passedOver, second.entry);

    static const QString folder = scratchPath(QStringLiteral("out"));
    const ExportResult out = Export(g, {.folder = folder, .replaces = true});
    FUZZ_REQUIRE(out.refusal.isEmpty() && out.lost == 0, out.refusal);
    for (const ExportedFile &file : out.files) {
        const ImportResult back = importChecked(g, file.path, {});
        FUZZ_REQUIRE(back.faults == 0 && back.passedOver == file.rows && back.added == 0, file.path);
    }
}
