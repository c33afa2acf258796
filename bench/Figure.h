// A figure: something that the program does, and a floor that does the least that any program would have to do for it.
// Each side measures itself once a call; omk_bench calls both in turn, many times, and compares the medians. What a
// figure stands on (windows, rows, files) lives as long as its functions.
#pragma once

#include <functional>
#include <vector>

#include <QString>

class Desk;

struct Sample
{
    double milliseconds = 0;
    double extra = 0; ///< the figure's second row, in its unit
};

struct Figure
{
    QString name;
    double target; ///< how many times the floor's time ours may take
    std::function<Sample()> ours;
    std::function<Sample()> floor;
    int repetitions = 15;
    QString extraName = {}; ///< with its unit; empty where there is no second row
    double extraTarget = 0;
};

/// Of programs in processes of their own, which lie beside omk_bench.
Figure openTankFigure(const QString &folder, const QString &tankId);
Figure startFigure(const QString &folder);
/// On a desk where a tank is open.
Figure sortFigure(Desk &desk);
Figure scrollFigure(Desk &desk);
/// On two copies of the database.
Figure saveFigure(const QString &databaseFile, const QString &tankId);
/// In the livestock window, and in the names window. The first writes the name files, which the others read, into the
/// current directory.
Figure namesFigure();
Figure namesWindowFigure();
Figure namesAgainFigure();
/// On a thousand reminders of all patterns, each begun in 1990.
std::vector<Figure> reminderFigures(Desk &desk, const QString &folder);
/// An animal chosen and its three lists shown; one dropped into a plan of 49 rows. In the desk's main window.
Figure chooseAnimalFigure();
Figure dropAnimalFigure();
/// The time for 10,000 entries as it is, and as ten times that of 1,000: linear where they agree.
Figure pdfFigure(const QString &folder);
/// A page of 20 tests with 13 measurements as a picture of 1000 x 700, beside QCustomPlot alone.
Figure barChartFigure();
Figure lineChartFigure();
/// On a desk where the tank is in hand, from the menu to the painted window, beside two statements of bare SQL.
Figure openGraphFigure(const QString &databaseFile, const QString &tankId);
