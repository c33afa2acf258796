// omk_first_change FILE: the first change of a day, which makes the copy of the day, to be killed by a test.
#include <cstdlib>

#include <QCoreApplication>

#include "store/Database.h"
#include "support/ScriptedDoors.h"

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    ScriptedDoors doors;
    const auto database = Database::OpenDatabase(QString::fromLocal8Bit(argv[1]));
    bool isCopied = true;
    database->KeepDailyCopies([&isCopied](const QString &) { isCopied = false; });
    database->Execute(QStringLiteral("UPDATE TANKLST SET tankname = 'New'"));
    std::_Exit(isCopied ? 0 : 1); // the search for leaks does not work in a process that is watched
}
