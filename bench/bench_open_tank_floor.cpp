// bench_open_tank_floor DATABASE SELECT TANKID: the floor of opening a tank. Reads the rows with the logbook's own
// statement and keeps each as a struct of numbers and texts. Uses no Qt.
#include <array>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "OwnProcess.h"

namespace {

struct Test
{
    std::string tankname, logdate, logtime;
    std::array<double, 13> measurements;
    std::string comment;
};

std::string text(sqlite3_stmt *statement, int column)
{
    const unsigned char *bytes = sqlite3_column_text(statement, column);
    return bytes ? std::string(reinterpret_cast<const char *>(bytes), size_t(sqlite3_column_bytes(statement, column)))
                 : std::string();
}

Test readTest(sqlite3_stmt *statement)
{
    Test test{text(statement, 0), text(statement, 1), text(statement, 2), {}, text(statement, 16)};
    for (int i = 0; i < 13; ++i)
        test.measurements[size_t(i)] = sqlite3_column_double(statement, i + 3);
    return test;
}

} // namespace

int main(int argc, char **argv)
{
    sqlite3 *database = nullptr;
    if (argc != 4 || sqlite3_open(argv[1], &database) != SQLITE_OK ||
        sqlite3_exec(database, "PRAGMA schema_version", nullptr, nullptr, nullptr) != SQLITE_OK)
        return 2;
    const long before = residentKilobytes();
    const std::int64_t start = nowNanoseconds();
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(database, argv[2], -1, &statement, nullptr) != SQLITE_OK)
        return 1;
    sqlite3_bind_text(statement, 1, argv[3], -1, SQLITE_STATIC);
    std::vector<Test> tests;
    while (sqlite3_step(statement) == SQLITE_ROW)
        tests.push_back(readTest(statement));
    sqlite3_finalize(statement);
    const double milliseconds = millisecondsSince(start);
    if (tests.empty())
        return 1;
    reportMeasured(milliseconds, residentKilobytes() - before);
    return 0;
}
