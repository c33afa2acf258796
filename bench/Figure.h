// A figure compares something that the program does with a floor: the least that any program would have to do for it.
// Each call measures one side once; omk_bench calls both sides in turn, many times, and compares the medians. What a
// figure needs (windows, rows, files) lives as long as its functions.
#pragma once

#include <functional>
#include <vector>

#include <QString>

class Desk;

struct Sample
{
    double milliseconds = 0;
    double extra = 0; ///< the value of the figure's second row, in that row's unit
};

struct Figure
{
    QString name;
    double target; ///< the largest allowed ratio of our time to the floor's
    std::function<Sample()> ours;
    std::function<Sample()> floor;
    int repetitions = 15;
    QString extraName = {}; ///< with its unit; empty if there is no second row
    double extraTarget = 0;
};

/// These run programs that are beside omk_bench, each in a process of its own.
Figure openTankFigure(const QString &folder, const QString &tankId);
Figure startFigure(const QString &folder);
/// These need a desk where a tank is open.
Figure sortFigure(Desk &desk);
Figure scrollFigure(Desk &desk);
/// Saves into two copies of the database.
Figure saveFigure(const QString &databaseFile, const QString &tankId);
/// In the livestock window and in the names window. namesFigure() writes the name files, which the others read, into
/// the current directory.
Figure namesFigure();
Figure namesWindowFigure();
Figure namesAgainFigure();
/// On a thousand reminders of all patterns, each starting in 1990.
std::vector<Figure> reminderFigures(Desk &desk, const QString &folder);
/// Choosing an animal until its three lists are shown, and dropping one into a plan of 49 rows; both in the desk's main
/// window.
Figure chooseAnimalFigure();
Figure dropAnimalFigure();
/// The time for 10,000 entries beside ten times the time for 1,000; they are equal if the time grows linearly.
Figure pdfFigure(const QString &folder);
/// The same entries beside a QPainter that draws the same texts at the same places on a QPdfWriter.
Figure barePdfFigure(const QString &folder);
/// A page of 20 tests with 13 measurements, drawn as a picture of 1000 x 700, beside QCustomPlot alone.
Figure barChartFigure();
Figure lineChartFigure();
/// A file of the old engine read into a new database, beside mdb-export of its water tests alone.
Figure oldFileFigure(const QString &folder);
/// Exporting the tests of the database to a CSV file in the folder, and importing them into an empty database, beside
/// the shell of SQLite.
Figure exportFigure(const QString &databaseFile, const QString &folder);
Figure importFigure(const QString &databaseFile, const QString &folder);
/// Opening the graph of the desk's tank, from the menu to the painted window, beside two plain SQL statements.
Figure openGraphFigure(const QString &databaseFile, const QString &tankId);
