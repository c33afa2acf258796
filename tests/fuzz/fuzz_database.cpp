// Fuzzes a database file with damaged bytes and pages. It is either opened, read and written, or refused with a failure
// that has a text; a refusal leaves the file as it was. The input is a list of damages.
#include "Fuzzing.h"
#include "logic/reminders/RecurrenceRule.h"
#include "OldDatabase.h"
#include "store/Database.h"
#include "store/schema.h"
#include "store/Upgrade.h"
#include "store/Version.h"

namespace {

constexpr qsizetype pageSize = 4096;

/// Makes a file with pages of each kind: leaves, inner pages, and overflow pages of a long text.
QByteArray makeWholeFile()
{
    WriteOldDatabase(scratchPath("OM.MDB"), "1.1", 120);
    const auto database = Database::OpenDatabase(scratchPath("OM.MDB"));
    for (const UpgradeStep &step : UpgradeSteps(ReadDatabaseVersion(*database)))
        step.run(*database, [](int) {});
    database->Execute("UPDATE TANKLST SET tanknotes = ?", {QString(3 * pageSize, u'n')});
    database->Close();
    return contentOf(scratchPath(""))["OM.MDB"];
}

/// Eight bytes of the input describe one damage: its kind, its place and the new byte or page.
void damage(QByteArray &file, Input &input)
{
    const int kind = input.choice(4);
    const qsizetype place = input.number(3), at = place % file.size(), page = place % (file.size() / pageSize);
    const std::uint32_t with = input.number(4);
    char *bytes = file.data();
    switch (kind) {
    case 0: bytes[at] = char(with); break;
    case 1: bytes[page * pageSize + with % 128] = char(with >> 8); break; // in the page's header or first pointers
    case 2: std::copy_n(bytes + with % (file.size() / pageSize) * pageSize, pageSize, bytes + page * pageSize); break;
    case 3: file.truncate(std::max<qsizetype>(at, pageSize)); break;
    }
}

/// Does work that may fail with a RuntimeFailure only. Returns true if it succeeded.
template <class Work> bool attempt(Work work)
{
    try {
        work();
        return true;
    } catch (const RuntimeFailure &failure) {
        FUZZ_REQUIRE(!failure.description().isEmpty(), "a failure without words");
        return false;
    }
}

void readTable(Database &database, const QString &table)
{
    const auto rows = database.OpenRecordset("SELECT * FROM " + table).rows();
    for (qsizetype row = 0; row < rows->count(); ++row)
        for (int c = 0; c < rows->columns(); ++c) {
            const QDate date = rows->date(row, c);
            FUZZ_REQUIRE(!date.isValid() || (date.year() >= 1 && date.year() <= 9999), rows->text(row, c));
            FUZZ_REQUIRE(rows->value(row, c).isNull() == rows->isNull(row, c), rows->text(row, c));
            rows->number(row, c);
            rows->time(row, c);
        }
    qsizetype count = 0;
    for (RowStream stream = database.OpenForwardOnly("SELECT * FROM " + table); !stream.EOF_(); stream.MoveNext())
        ++count;
    FUZZ_REQUIRE(count == rows->count(), table);
}

/// Changes and deletes a row. A deleted row must no longer be counted.
void writeWater(Database &database)
{
    Recordset set = database.OpenForUpdate("waterlog");
    const qsizetype before = set.RecordCount();
    set.Edit();
    set["Comment"].setValue(QString(5000, u'c'));
    attempt([&set] { set.Update(); });
    const bool deleted = attempt([&set] { set.Delete(); });
    FUZZ_REQUIRE(set.RecordCount() == before - deleted, "after deleting");
}

void use(Database &database)
{
    for (const schema::Table &table : schema::tables())
        attempt([&] { readTable(database, table.name); });
    attempt([&] { ReadRules(*database.OpenRecordset("SELECT * FROM maintsched").rows()); });
    attempt([&] { writeWater(database); });
    attempt([&] { database.Execute("DELETE FROM LIVESTOCK WHERE rowid % 2 = 1"); });
}

} // namespace

void fuzz(Input &input)
{
    static const QByteArray whole = makeWholeFile();
    QByteArray file = whole;
    while (!input.isEmpty())
        damage(file, input);
    writeFile(scratchPath("OM.MDB"), file);

    std::unique_ptr<Database> database;
    const bool isOpen = attempt([&] { database = Database::OpenDatabase(scratchPath("OM.MDB")); });
    if (isOpen) {
        use(*database);
        database->Close();
    }
    const auto left = contentOf(scratchPath(""));
    FUZZ_REQUIRE(isOpen || (file != whole && left.at("OM.MDB") == file), "a refused file was changed");
    FUZZ_REQUIRE(left.size() == 1, "a journal was left");
}
