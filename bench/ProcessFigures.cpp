#include "Figure.h"

#include <stdexcept>

#include <QCoreApplication>
#include <QProcess>

#include "logic/logbook/LogKinds.h"
#include "OwnProcess.h"

namespace {

/// Runs a program that reports its figures in one line.
Sample run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
    const bool finished = process.waitForFinished();
    const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
    if (!finished || process.exitCode() != 0 || words.size() != 2)
        throw std::runtime_error(program.toStdString() + ": " + process.readAllStandardError().toStdString());
    return {words[0].toDouble(), words[1].toDouble() / 1024};
}

Sample runFromStart(const QString &program, const QString &what)
{
    return run(program, {what, QString::number(nowNanoseconds())});
}

std::function<Sample()> printPdf(const QString &folder, int entries, const QStringList &how = {})
{
    return [=] { return run(QStringLiteral("bench_pdf"), QStringList{folder, QString::number(entries)} + how); };
}

} // namespace

Figure openTankFigure(const QString &folder, const QString &tankId)
{
    const QString database = folder + u"/OM.MDB";
    const LogKind &water = KindOf(WaterTab);
    const QString select =
        QStringLiteral("SELECT * FROM %1 WHERE %2 = ? ORDER BY %3")
            .arg(QLatin1String(water.table), QLatin1String(water.tankColumn), QLatin1String(water.list.ascending));
    return {.name = QStringLiteral("Opening a tank with 100,000 tests, ms"),
            .target = 2,
            .ours = [=] { return run(QStringLiteral("bench_open_tank"), {folder}); },
            .floor =
                [=] {
                    return run(QStringLiteral("bench_open_tank_floor"), {database, select, tankId});
                },
            .extraName = QStringLiteral("  memory added, MB"),
            .extraTarget = 1.7};
}

Figure startFigure(const QString &folder)
{
    return {.name = QStringLiteral("Start to first paint, ms"),
            .target = 1.5,
            .ours = [=] { return runFromStart(QStringLiteral("bench_start"), folder); },
            .floor = [=] { return runFromStart(QStringLiteral("bench_start_floor"), folder + u"/OM.MDB"); },
            .repetitions = 25,
            .extraName = QStringLiteral("  resident memory, MB"),
            .extraTarget = 1.6};
}

Figure pdfFigure(const QString &folder)
{
    return {.name = QStringLiteral("A PDF of 10,000 entries, of 1,000, ms"),
            .target = 1.2,
            .ours = printPdf(folder, 10000),
            .floor = printPdf(folder, 1000),
            .repetitions = 5,
            .extraName = QStringLiteral("  most memory, MB"),
            .extraTarget = 1.1};
}

Figure barePdfFigure(const QString &folder)
{
    return {.name = QStringLiteral("A PDF of 10,000 entries, bare drawing, ms"),
            .target = 1.5,
            .ours = printPdf(folder, 10000),
            .floor = printPdf(folder, 10000, {QStringLiteral("bare")}),
            .repetitions = 5};
}
