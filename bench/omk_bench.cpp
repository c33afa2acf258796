// omk_bench: measures what the program promises, each figure beside its floor, and prints one table. Needs no display;
// the files of a run are in a folder beside the program, which is removed at the end. Accepts Google Benchmark's own
// options.
#include <cstdio>
#include <exception>

#include <QFileInfo>
#include <QTemporaryDir>

#include "Desk.h"
#include "platform/desktop/Application.h"
#include "SampleData.h"
#include "store/Database.h"
#include "store/NewDatabase.h"
#include "Table.h"

namespace {

constexpr int tests = 100'000;
constexpr int minutesApart = 60;

/// A new database with one tank and its tests; returns the tank's id.
QString makeDatabase(const QString &file)
{
    CreateDatabase(file);
    const auto database = Database::OpenDatabase(file);
    const QString tank =
        AddSampleTank(*database, QStringLiteral("Reef"), QStringLiteral("Mixed reef"), 180, QStringLiteral("3"), {});
    AddSampleWaterTests(*database, tank, tests, QDate(2010, 1, 1), minutesApart, true);
    return tank;
}

bool measureIn(const QString &folder, int argc, char **argv)
{
    const QString file = folder + u"/OM.MDB";
    const QString tank = makeDatabase(file);
    Desk desk(folder);
    desk.openFirstTank();
    std::vector<Figure> figures{openTankFigure(folder, tank),
                                sortFigure(desk),
                                scrollFigure(desk),
                                saveFigure(file, tank),
                                startFigure(folder),
                                namesFigure(),
                                namesWindowFigure(),
                                namesAgainFigure(),
                                chooseAnimalFigure(),
                                dropAnimalFigure(),
                                pdfFigure(folder),
                                barePdfFigure(folder),
                                oldFileFigure(folder),
                                exportFigure(file, folder),
                                importFigure(file, folder),
                                barChartFigure(),
                                lineChartFigure(),
                                openGraphFigure(file, tank)};
    for (const Figure &figure : reminderFigures(desk, folder))
        figures.push_back(figure);
    return measureAndPrint(figures, argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtWarningMsg || !text.startsWith(u"This plugin does not support"))
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    // The folder is beside the program, because a folder for temporary files may be in memory, where saving costs
    // nothing.
    const QTemporaryDir folder(QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath() + u"/omk_bench-XXXXXX");
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8()); // the keeper's own settings are left alone
    qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    Application application(argc, argv);
    try {
        return folder.isValid() && measureIn(folder.path(), argc, argv) ? 0 : 1;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "omk_bench: %s\n", error.what());
        return 1;
    }
}
