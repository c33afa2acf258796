// Import and export of 100,000 water tests as CSV, beside the shell of SQLite with the same rows and the same indexes.
#include "Figure.h"

#include <memory>
#include <stdexcept>

#include <QDir>
#include <QProcess>

#include "data/Export.h"
#include "data/Import.h"
#include "logic/shell/Globals.h"
#include "logic/shell/Options.h"
#include "OwnProcess.h"
#include "store/NewDatabase.h"

namespace {

/// The time of the shell of SQLite, from its start to its end.
Sample runShell(const QStringList &arguments, const QString &output)
{
    QProcess shell;
    shell.setStandardOutputFile(output);
    const auto begin = nowNanoseconds();
    shell.start(QStringLiteral("sqlite3"), arguments);
    if (!shell.waitForFinished(-1) || shell.exitCode() != 0)
        throw std::runtime_error("sqlite3 failed: " + shell.readAllStandardError().toStdString());
    return {millisecondsSince(begin)};
}

std::shared_ptr<Globals> opened(const QString &file)
{
    auto g = std::make_shared<Globals>();
    g->gDatabase = Database::OpenDatabase(file);
    ReadOptions(*g);
    return g;
}

/// Copies the tanks of a database into a new one without entries.
void makeEmpty(const QString &file, const QString &tanks)
{
    QFile::remove(file);
    CreateDatabase(file);
    const auto g = opened(file);
    const auto result = Import(
        *g, tanks, {}, [](const ImportFault &fault) { throw std::runtime_error(FaultText(fault).toStdString()); });
    if (result.added == 0)
        throw std::runtime_error("no tank");
}

} // namespace

Figure exportFigure(const QString &databaseFile, const QString &folder)
{
    const auto g = opened(databaseFile);
    return {.name = QStringLiteral("100,000 tests exported as CSV, ms"),
            .target = 3,
            .ours =
                [=] {
                    const auto begin = nowNanoseconds();
                    ExportLog(*g, WaterTab, {}, folder + u"/water.csv");
                    return Sample{millisecondsSince(begin)};
                },
            .floor =
                [=] {
                    return runShell({QStringLiteral("-csv"), QStringLiteral("-header"), databaseFile,
                                     QStringLiteral("SELECT * FROM WATERLOG")},
                                    folder + u"/shell.csv");
                },
            .repetitions = 7};
}

Figure importFigure(const QString &databaseFile, const QString &folder)
{
    const QString files = folder + u"/csv", empty = folder + u"/import.MDB", water = files + u"/water.csv";
    Export(*opened(databaseFile), {.folder = files, .replaces = true});
    const auto fresh = [=] { makeEmpty(empty, files + u"/tanks.csv"); };
    return {.name = QStringLiteral("100,000 tests imported from CSV, ms"),
            .target = 3,
            .ours =
                [=] {
                    fresh();
                    const auto g = opened(empty);
                    const auto begin = nowNanoseconds();
                    const ImportResult result = Import(*g, water, {}, [](const ImportFault &) {});
                    const double time = millisecondsSince(begin);
                    if (result.faults > 0)
                        throw std::runtime_error("the import has faults");
                    return Sample{time};
                },
            .floor =
                [=] {
                    fresh();
                    return runShell({empty, QStringLiteral(".import --csv --skip 1 %1 WATERLOG").arg(water)},
                                    QProcess::nullDevice());
                },
            .repetitions = 7};
}
