// Databases of versions 1.0 and 1.1 brought up: with every row, and at every moment that a full disk, a kill or a power
// cut can choose, whole and ready to be tried again.
#include "store/Upgrade.h"

#include <cstdio>

#include <QDir>
#include <sqlite3.h>

#include "Child.h"
#include "FaultVfs.h"
#include "OldDatabase.h"
#include "store/Backup.h"
#include "store/NewDatabase.h"
#include "store/Version.h"
#include "StoreFixture.h"

namespace {

const char *const layout = "SELECT group_concat(m.name || ' ' || c.name || ' ' || c.type) FROM sqlite_master m, "
                           "pragma_table_info(m.name) c WHERE m.type = 'table'";

class UpgradeTest : public StoreTest
{
protected:
    UpgradeTest() { db->Close(); }

    void writeOld(const QString &version, int rows)
    {
        for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
            QFile::remove(path(name));
        WriteOldDatabase(path(), version, rows);
        oldBytes = contentOf(folder.path())["OM.MDB"];
        db = Database::OpenDatabase(path());
        oldRows.clear();
        for (const QString &table : db->TableDefs())
            oldRows[table] = {namesOf(table).join(','), rowsOf(table, namesOf(table).join(','))};
        oldVersion = ReadDatabaseVersion(*db);
        db->Close();
        oldLayout = OtherProgram(path()).run(layout);
    }
    QStringList namesOf(const QString &table)
    {
        QStringList names;
        for (const FieldDef &field : db->Fields(table))
            if (field.Name != "db_version")
                names << field.Name;
        return names;
    }
    /// All rows as one text, made by the engine.
    QString rowsOf(const QString &table, const QString &columns)
    {
        const QString row = "quote(" + QString(columns).replace(",", ") || '|' || quote(") + ")";
        const QString text = OtherProgram(path()).run(qPrintable("SELECT group_concat(" + row + ") FROM " + table));
        EXPECT_NE(text, "error") << table.toStdString();
        return text;
    }
    /// All that the window does, without its windows: the copy, then step by step. The bar's moves come back.
    QString upgrade()
    {
        open();
        QStringList bars;
        const QString version = ReadDatabaseVersion(*db);
        if (!UpgradeSteps(version).empty())
            KeepOldDatabase(path(), version == "0.0 " ? "1.0" : version.trimmed());
        for (const UpgradeStep &step : UpgradeSteps(version)) {
            db->Close();
            db = Database::OpenDatabase(path(), Database::Access::Exclusive);
            step.run(*db, [&bars](int bar) { bars << QString::number(bar); });
        }
        db->Close();
        return bars.join(' ');
    }
    /// The file is whole, has every old row as it was, and nothing new while it is of the old version.
    void expectWhole()
    {
        open();
        const QString version = ReadDatabaseVersion(*db);
        EXPECT_TRUE(QStringList({oldVersion, "1.1 ", "2.0 "}).contains(version)) << version.toStdString();
        for (const auto &[table, rows] : oldRows) {
            const QString now = rowsOf(table, rows.first);
            const bool mayGrow = table == "ANIMALLIST"; // which gets new words at its end
            EXPECT_TRUE(mayGrow ? now.startsWith(rows.second) : now == rows.second) << table.toStdString();
        }
        db->Close();
        OtherProgram other(path());
        EXPECT_EQ(other.run("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(other.run(layout) == oldLayout, version == oldVersion);
    }
    void expectUpgraded()
    {
        expectWhole();
        EXPECT_EQ(upgrade(), "") << "it is done once";
        OtherProgram other(path());
        EXPECT_EQ(other.run("SELECT count(*) FROM ANIMALLIST WHERE AnimalType IN ('1', 'M')"),
                  oldVersion == "0.0 " || !oldRows["ANIMALLIST"].second.isEmpty() ? "67" : "0");
        EXPECT_EQ(other.run("SELECT count(*) FROM MAINTSCHED WHERE SchedRtype IS NOT 0"), "0");
        EXPECT_EQ(other.run("PRAGMA user_version"), "20");
        EXPECT_EQ(contentOf(folder.path())[oldVersion == "0.0 " ? "OM-version-1.0.MDB" : "OM-version-1.1.MDB"],
                  oldBytes);
    }

    QByteArray oldBytes;
    std::map<QString, std::pair<QString, QString>> oldRows; ///< columns and rows of each table
    QString oldVersion, oldLayout;
};

const QString bars11 = "10 20 30 40 50 60 70 80 90 100", bars20 = "20 30 40 50 60 70 80";

TEST_F(UpgradeTest, KeepsEveryRowAndEndsLikeANewDatabase)
{
    CreateDatabase(path("new.MDB"));
    const QString newLayout = OtherProgram(path("new.MDB")).run(layout);
    const struct
    {
        const char *version;
        int rows;
        QString bars, waterType;
    } rows[] = {{"1.0", 3000, bars11 + ' ' + bars20, "2"},
                {"1.1", 3000, bars20, "3"},
                {"1.0", 0, bars11 + ' ' + bars20, ""},
                {"1.1", 0, bars20, ""}};
    for (const auto &row : rows) {
        writeOld(row.version, row.rows);
        EXPECT_EQ(upgrade(), row.bars);
        expectUpgraded();
        OtherProgram other(path());
        EXPECT_EQ(other.run(layout), newLayout);
        EXPECT_EQ(other.run("SELECT DISTINCT TankWaterType FROM TANKLST"), row.waterType);
    }
}

TEST_F(UpgradeTest, RemindersEndSoManyYearsAfterTheirStart)
{
    writeOld("1.1", 0);
    OtherProgram(path()).run("INSERT INTO MAINTSCHED (SchedStartDate, schedyears) VALUES ('1999-12-31', 2), "
                             "('1996-02-29', 1), ('2005-06-01', 40), ('2005-06-01', NULL), ('9998-01-01', 5)");
    upgrade();
    EXPECT_EQ(
        OtherProgram(path()).run(
            "SELECT group_concat(ifnull(SchedEndDate, 'none'), ' ') FROM (SELECT * FROM MAINTSCHED ORDER BY rowid)"),
        "2001-12-31 1997-02-28 2045-06-01 none none");
}

TEST_F(UpgradeTest, AFullDiskLeavesTheVersionAndTheNextTryComesThrough)
{
    FaultVfs faults;
    for (const char *version : {"1.0", "1.1"})
        for (const auto &[code, forEver] : diskFaults) {
            writeOld(version, 40);
            int place = 0;
            for (bool struck = true; struck && place < 1000; ++place) {
                faults.plan({code, place, forEver});
                const int number = numberOf([this] { upgrade(); });
                struck = faults.hasStruck();
                faults.plan({});
                db->Close();
                EXPECT_EQ(number != 0, struck) << "at place " << place;
                expectWhole();
            }
            EXPECT_GT(place, 15);
            expectUpgraded();
            std::printf("| upgrade from %s, %s disk, %s | %d |\n", version, code == SQLITE_FULL ? "full" : "broken",
                        forEver ? "for ever" : "once", place - 1);
        }
}

TEST_F(UpgradeTest, AKillOrAPowerCutLeavesTheVersionAndTheNextTryComesThrough)
{
    FaultVfs faults;
    const struct
    {
        const char *name;
        Death death;
        int rows, stride; ///< every so many places
    } rounds[] = {{"power cut", Death::PowerCut, 40, 1}, {"killed", Death::Killed, 3000, 37}};
    for (const auto &round : rounds) {
        writeOld("1.0", round.rows); // whose two steps are all that there is
        int tries = 0;
        for (int signal = SIGKILL; signal != 0; ++tries) {
            ASSERT_LT(tries, 1000);
            writeFile(path(), oldBytes);
            signal = signalThatEnds([&] {
                faults.plan({.after = tries * round.stride, .death = round.death});
                upgrade();
            });
            expectWhole();
            EXPECT_EQ(numberOf([this] { upgrade(); }), 0) << "try " << tries;
            expectUpgraded();
        }
        EXPECT_GT(tries, 5);
        std::printf("| upgrade from 1.0, %d entries in each log, %s | %d |\n", round.rows, round.name, tries - 1);
    }
}

} // namespace
