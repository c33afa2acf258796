// Fuzzes a database file with damaged bytes and pages. It is either opened, read and written, or refused with a failure
// that has a text; a refusal leaves the file as it was. The input is a list of damages.
#include <QFileInfo>

#include "Fuzzing.h"
#include "logic/reminders/RecurrenceRule.h"
#include "OldDatabase.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Database.h"
#include "store/schema.h"
#include "store/Upgrade.h"
#include "store/Version.h"

namespace {

constexpr qsizetype pageSize = 4096;

/// Makes a file with pages of each kind: leaves, inner pages, and overflow pages of a long text.
QByteArray makeWholeFile()
{
    const QString path = scratchPath(QStringLiteral("WHOLE.MDB"));
    WriteOldDatabase(path, QStringLiteral("1.1"), 120);
    const auto database = Database::OpenDatabase(path);
    for (const UpgradeStep &step : UpgradeSteps(ReadDatabaseVersion(*database)))
        step.run(*database, [](int) {});
    database->Execute(QStringLiteral("UPDATE TANKLST SET tanknotes = ?"), {QString(3 * pageSize, u'n')});
    database->Close();
    return readFile(path);
}

/// Eight bytes of the input describe one damage: its kind, its place and the new bytes.
void damage(QByteArray &file, Input &input)
{
    const int kind = input.choice(5);
    const qsizetype place = input.number(3), at = place % file.size(), page = place % (file.size() / pageSize);
    const std::uint32_t with = input.number(4);
    char *bytes = file.data();
    switch (kind) {
    case 0: bytes[at] = char(with); break;
    case 1:
        for (qsizetype i = 0; i < 4 && at + i < file.size(); ++i)
            bytes[at + i] = char(with >> (24 - 8 * i));
        break;
    case 2: bytes[page * pageSize + with % 128] = char(with >> 8); break; // in the page's header or first pointers
    case 3: std::copy_n(bytes + with % (file.size() / pageSize) * pageSize, pageSize, bytes + page * pageSize); break;
    case 4: file.truncate(std::max<qsizetype>(at, pageSize)); break;
    }
}

/// Does work that may fail with a RuntimeFailure only. Returns true if it succeeded.
template <class Work> bool attempt(Work work)
{
    try {
        work();
        return true;
    } catch (const RuntimeFailure &failure) {
        FUZZ_REQUIRE(!failure.description().isEmpty(), QStringLiteral("a failure without words"));
        return false;
    }
}

void readTable(Database &database, const QString &table)
{
    const QString sql = u"SELECT * FROM " + table;
    const Recordset set = database.OpenRecordset(sql);
    const auto rows = set.rows();
    for (qsizetype row = 0; row < rows->count(); ++row)
        for (int c = 0; c < rows->columns(); ++c) {
            const Value value = rows->value(row, c);
            FUZZ_REQUIRE(value.isNull() == rows->isNull(row, c) && rows->text(row, c) == value.text(), value.text());
            const QDate date = rows->date(row, c);
            FUZZ_REQUIRE(!date.isValid() || (date.year() >= 1 && date.year() <= 9999), value.text());
            rows->number(row, c);
            rows->time(row, c);
        }
    qsizetype count = 0;
    for (RowStream stream = database.OpenForwardOnly(sql); !stream.EOF_(); stream.MoveNext())
        ++count;
    FUZZ_REQUIRE(count == set.RecordCount(), table);
}

/// Adds, changes and deletes a row. A refused row must stay under edit, and a deleted row must no longer be counted.
void writeWater(Database &database)
{
    Recordset set = database.OpenForUpdate(QStringLiteral("waterlog"));
    set.AddNew();
    set[QStringLiteral("logdate")].setValue(QDate(2004, 2, 29));
    const bool added = attempt([&set] { set.Update(); });
    FUZZ_REQUIRE(added || set[QStringLiteral("logdate")].value() == Value(QDate(2004, 2, 29)),
                 QStringLiteral("after adding"));
    const qsizetype before = set.RecordCount();
    set.MoveFirst();
    set.Edit();
    set[QStringLiteral("Comment")].setValue(QString(5000, u'c'));
    const bool changed = attempt([&set] { set.Update(); });
    FUZZ_REQUIRE(changed || set[QStringLiteral("Comment")].text().startsWith(u'c'), QStringLiteral("after changing"));
    const bool deleted = attempt([&set] { set.Delete(); });
    FUZZ_REQUIRE(set.RecordCount() == before - deleted, QStringLiteral("after deleting"));
}

void use(Database &database)
{
    for (const schema::Table &table : schema::tables())
        attempt([&] { readTable(database, QLatin1String(table.name)); });
    attempt([&] { ReadDatabaseVersion(database); });
    attempt([&] { ReadRules(*database.OpenRecordset(QStringLiteral("SELECT * FROM maintsched")).rows()); });
    attempt([&] { writeWater(database); });
    attempt([&] {
        Database::Transaction transaction(database);
        for (const char *table : {"WATERLOG", "LIVESTOCK"})
            database.Execute(QStringLiteral("DELETE FROM %1 WHERE rowid % 2 = 1").arg(QLatin1String(table)));
        transaction.commit();
    });
}

} // namespace

void fuzz(Input &input, ScriptedDoors &)
{
    static const QByteArray whole = makeWholeFile();
    static const QString path = scratchPath(QStringLiteral("OM.MDB"));
    QByteArray file = whole;
    while (!input.isEmpty())
        damage(file, input);
    writeFile(path, file);

    std::unique_ptr<Database> database;
    if (attempt([&] { database = Database::OpenDatabase(path); })) {
        use(*database);
        database->Close();
    } else {
        FUZZ_REQUIRE(file != whole && readFile(path) == file, QStringLiteral("a refused file was changed"));
    }
    for (const char *suffix : {"-journal", "-wal", "-shm"})
        FUZZ_REQUIRE(!QFileInfo::exists(path + QLatin1String(suffix)), QLatin1String(suffix));
}
