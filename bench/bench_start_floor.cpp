// bench_start_floor DATABASE NANOSECONDS: the floor of the start. Shows a main window with one menu, an empty MDI area
// and a line in the status bar, and opens the database through SQLite's own interface.
#include <cstdlib>

#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>
#include <sqlite3.h>

#include "FirstPaint.h"

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    FirstPaint<QApplication> application(argc, argv, std::atoll(argv[2]));
    sqlite3 *database = nullptr;
    if (sqlite3_open(argv[1], &database) != SQLITE_OK ||
        sqlite3_exec(database, "PRAGMA schema_version", nullptr, nullptr, nullptr) != SQLITE_OK)
        return 1;
    QMainWindow window;
    window.setCentralWidget(new QMdiArea);
    window.resize(1100, 740);
    window.menuBar()->addMenu(QStringLiteral("File"));
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    application.watch(&window);
    window.show();
    return QApplication::exec();
}
