// Tests of the upgrade of databases of versions 1.0 and 1.1. It keeps every row; and at whatever moment a full disk, a
// kill or a power cut interrupts it, the file is whole and the upgrade can be run again.
#include "store/Upgrade.h"

#include <cstdio>

#include "FaultVfs.h"
#include "OldDatabase.h"
#include "store/Backup.h"
#include "store/Version.h"
#include "StoreFixture.h"

const char *const layout = "SELECT group_concat(m.name || ' ' || c.name || ' ' || c.type) FROM sqlite_master m, "
                           "pragma_table_info(m.name) c WHERE m.type = 'table'";

struct UpgradeTest : StoreTest
{
    UpgradeTest() { db->Close(); }

    void writeOld(const QString &version, int rows)
    {
        for (const QString &name : QDir(folder.path()).entryList(QDir::Files))
            QFile::remove(path(name));
        WriteOldDatabase(path(), version, rows);
        oldBytes = contentOf(folder.path())["OM.MDB"];
        open();
        oldRows.clear();
        for (const QString &table : db->TableDefs()) {
            QStringList columns;
            for (const FieldDef &field : db->Fields(table))
                if (field.Name != "db_version")
                    columns << "quote(" + field.Name + ')';
            // All rows as one text, made by the engine.
            oldRows[table].ask = "SELECT group_concat(" + columns.join(" || '|' || ") + ") FROM " + table;
            oldRows[table].text = asked(oldRows[table].ask);
            ASSERT_NE(oldRows[table].text, "error") << table.toStdString();
        }
        oldVersion = ReadDatabaseVersion(*db);
        db->Close();
        oldLayout = asked(layout);
    }
    /// Does what the upgrade window does, without the window: makes the copy and runs the steps. Returns the positions
    /// of the progress bar.
    QString upgrade()
    {
        open();
        QString bars;
        const QString version = ReadDatabaseVersion(*db);
        if (!UpgradeSteps(version).empty())
            KeepOldDatabase(path(), version == "0.0 " ? "1.0" : version.trimmed());
        for (const UpgradeStep &step : UpgradeSteps(version)) {
            db->Close();
            db = Database::OpenDatabase(path(), Database::Access::Exclusive);
            step.run(*db, [&bars](int bar) { bars += QString::number(bar) + ' '; });
        }
        db->Close();
        return bars;
    }
    /// Upgrades with a planned fault. Returns false if the upgrade was finished before the fault could happen.
    bool strike(const FaultPlan &plan)
    {
        if (plan.death != Death::None)
            return signalThatEnds([&] {
                       faults.plan(plan);
                       upgrade();
                   }) != 0;
        faults.plan(plan);
        const int number = numberOf([this] { upgrade(); });
        const bool struck = faults.hasStruck();
        faults.plan({});
        db->Close();
        EXPECT_TRUE(number == 0 ? asked("PRAGMA user_version") == "20" : struck) << "at place " << plan.after;
        return struck;
    }
    /// Expects that the file is undamaged, that every old row is unchanged, and that nothing of the new layout is there
    /// while the file has the old version.
    void expectWhole()
    {
        open();
        const QString version = ReadDatabaseVersion(*db);
        db->Close();
        EXPECT_TRUE(QStringList({oldVersion, "1.1 ", "2.0 "}).contains(version)) << version.toStdString();
        for (const auto &[table, rows] : oldRows) {
            const QString now = asked(rows.ask);
            const bool mayGrow = table == "ANIMALLIST"; // the upgrade adds words at its end
            EXPECT_TRUE(mayGrow ? now.startsWith(rows.text) : now == rows.text) << table.toStdString();
        }
        EXPECT_EQ(asked("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(asked(layout) == oldLayout, version == oldVersion);
    }
    void expectUpgraded()
    {
        expectWhole();
        EXPECT_EQ(upgrade(), "") << "it is done once";
        EXPECT_EQ(asked("SELECT count(*) FROM ANIMALLIST WHERE AnimalType IN ('1', 'M')"),
                  oldVersion == "0.0 " || !oldRows["ANIMALLIST"].text.isEmpty() ? "67" : "0");
        EXPECT_EQ(asked("SELECT count(*) FROM MAINTSCHED WHERE SchedRtype IS NOT 0"), "0");
        EXPECT_EQ(asked("PRAGMA user_version"), "20");
        EXPECT_EQ(contentOf(folder.path())[oldVersion == "0.0 " ? "OM-version-1.0.MDB" : "OM-version-1.1.MDB"],
                  oldBytes);
    }

    struct Rows
    {
        QString ask, text;
    };
    FaultVfs faults;
    QByteArray oldBytes;
    std::map<QString, Rows> oldRows; ///< for each table
    QString oldVersion, oldLayout;
};

TEST_F(UpgradeTest, KeepsEveryRowInTheNewLayout)
{
    CreateDatabase(path("new.MDB"));
    const QString newLayout = OtherProgram(path("new.MDB")).run(layout);
    const QString bars11 = "10 20 30 40 50 60 70 80 90 100 ", bars20 = "20 30 40 50 60 70 80 ";
    for (const int rows : {3000, 0})
        for (const bool first : {true, false}) {
            writeOld(first ? "1.0" : "1.1", rows);
            EXPECT_EQ(upgrade(), first ? bars11 + bars20 : bars20);
            expectUpgraded();
            EXPECT_EQ(asked(layout), newLayout);
            EXPECT_EQ(asked("SELECT DISTINCT TankWaterType FROM TANKLST"), rows == 0 ? "" : first ? "2" : "3");
        }
}

TEST_F(UpgradeTest, RemindersGetAnEndDateFromTheirYears)
{
    writeOld("1.1", 0);
    asked("INSERT INTO MAINTSCHED (SchedStartDate, schedyears) VALUES ('1999-12-31', 2), ('1996-02-29', 1), "
          "('2005-06-01', 40), ('2005-06-01', NULL), ('9998-01-01', 5)");
    upgrade();
    EXPECT_EQ(asked("SELECT group_concat(ifnull(SchedEndDate, 'none'), ' ') FROM MAINTSCHED"),
              "2001-12-31 1997-02-28 2045-06-01 none none");
}

TEST_F(UpgradeTest, AnInterruptedUpgradeCanBeRunAgain)
{
    const struct
    {
        const char *name;
        FaultPlan plan;
        int rows = 40, stride = 1; ///< how many places apart the faults are
    } rounds[] = {{"disk full, for ever", {.code = SQLITE_FULL, .forEver = true}},
                  {"disk broken, once", {.code = SQLITE_IOERR_WRITE}},
                  {"power cut", {.death = Death::PowerCut}},
                  {"killed", {.death = Death::Killed}, 3000, 37}};
    for (auto [name, plan, rows, stride] : rounds) {
        SCOPED_TRACE(name);
        writeOld("1.0", rows); // this version needs both steps of the upgrade
        for (bool struck = true; struck && !HasFailure(); plan.after += stride) {
            ASSERT_LT(plan.after, 1000);
            writeFile(path(), oldBytes);
            struck = strike(plan);
            expectWhole();
            EXPECT_EQ(numberOf([this] { upgrade(); }), 0) << "at place " << plan.after;
            expectUpgraded();
        }
        EXPECT_GT(plan.after, 15);
        std::printf("| upgrade from 1.0, %d entries in each log, %s | %d |\n", rows, name, plan.after / stride - 1);
    }
}
