// What the tests of export and import share: process-wide values with a new database, and the rows of a
// table as texts that can be compared across databases.
#pragma once

#include "data/Export.h"
#include "data/Import.h"
#include "logic/shell/Globals.h"
#include "logic/shell/Options.h"
#include "store/StoreFixture.h"

/// The rows of a table, sorted. Each value is written as in SQL, so that nothing that differs is equal. A tank's
/// identity differs from one database to the next, so that its name stands for it.
inline QStringList rowsOf(Database &database, const QString &table)
{
    QStringList columns, all;
    for (const FieldDef &field : database.Fields(table))
        if (table != "TANKLST" && field.Name.endsWith("tankname"))
            columns << "quote((SELECT k.tankname FROM TANKLST k WHERE k.tankid = t." + field.Name + "))";
        else if (field.Name != "tankid")
            columns << "quote(" + field.Name + ")";
    const Recordset found =
        database.OpenRecordset("SELECT " + columns.join(" || ' ' || ") + " AS line FROM " + table + " t ORDER BY 1");
    for (qsizetype row = 0; row < found.rows()->count(); ++row)
        all << found.rows()->text(row, 0);
    return all;
}

inline const QStringList dataTables = {"TANKLST", "WATERLOG", "LIVESTOCK", "MAINTLOG", "MAINTSCHED"};

struct DataTest : StoreTest
{
    DataTest()
    {
        g.gDatabase = std::move(db);
        ReadOptions(g);
    }
    void run(const QString &sql, const Parameters &parameters = {}) { g.gDatabase->Execute(sql, parameters); }
    void addTank(const QString &name)
    {
        run("INSERT INTO TANKLST (tankname, tankid, tanksize, TankWaterType) VALUES (?, ?, 55, '1')",
            {name, QString("id of " + name)});
    }
    /// Imports a file with that content; the faults, a line each, are in `faults`. Returns the counts: added, replaced,
    /// passed over, faults.
    QString import(const QByteArray &content, const ImportOptions &options = {})
    {
        writeFile(path("in.csv"), content);
        faults.clear();
        return counts(
            Import(g, path("in.csv"), options, [this](const ImportFault &fault) { faults << FaultText(fault); }));
    }
    static QString counts(const ImportResult &r)
    {
        return QString("%1 %2 %3 %4").arg(r.added).arg(r.replaced).arg(r.passedOver).arg(r.faults);
    }

    Globals g;
    QStringList faults;
};
