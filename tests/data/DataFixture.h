// What the tests of export and import share: process-wide values with a new database, and the rows of a
// table as texts that can be compared across databases.
#pragma once

#include "data/Export.h"
#include "data/Import.h"
#include "logic/shell/Globals.h"
#include "logic/shell/Options.h"
#include "store/StoreFixture.h"

/// A value with its type, so that nothing that differs is equal.
inline QString exactly(const Value &value)
{
    if (value.isNull())
        return "Null";
    if (const auto *number = std::get_if<double>(&value.variant()))
        return "number " + QString::number(*number, 'g', 17);
    if (const auto *date = std::get_if<QDate>(&value.variant()))
        return "date " + date->toString(Qt::ISODate);
    return QString("%1 \"%2\"").arg(value.variant().index()).arg(value.text());
}

/// The rows of a table, sorted. A tank's identity differs from one database to the next, so that its name stands for
/// it.
inline QStringList rowsOf(Database &database, const QString &table)
{
    std::map<QString, QString> names;
    for (Recordset tank = database.OpenRecordset("SELECT * FROM TANKLST"); !tank.EOF_(); tank.MoveNext())
        names[tank["tankid"].text()] = tank["tankname"].text();
    QStringList all;
    const auto rows = database.OpenRecordset("SELECT * FROM " + table).rows();
    for (qsizetype row = 0; row < rows->count(); ++row) {
        QStringList cells;
        for (int column = 0; column < rows->columns(); ++column) {
            const bool isId = rows->names()[column] == (table == "MAINTLOG" ? "mainttankname" : "tankname");
            if (isId && table != "TANKLST")
                cells << "tank " + names[rows->text(row, column)];
            else if (rows->names()[column] != "tankid")
                cells << exactly(rows->value(row, column));
        }
        all << cells.join(" | ");
    }
    all.sort();
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
    /// Imports a file with that content; the faults, a line each, are in `faults`.
    ImportResult import(const QByteArray &content, const ImportOptions &options = {})
    {
        writeFile(path("in.csv"), content);
        faults.clear();
        return Import(g, path("in.csv"), options, [this](const ImportFault &fault) { faults << FaultText(fault); });
    }
    /// The counts of a result: added, replaced, passed over, faults.
    static QString counts(const ImportResult &r)
    {
        return QString("%1 %2 %3 %4").arg(r.added).arg(r.replaced).arg(r.passedOver).arg(r.faults);
    }

    Globals g;
    QStringList faults;
};
