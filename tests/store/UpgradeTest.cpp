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
        for (const auto &[name, bytes] : contentOf(folder.path()))
            QFile::remove(path(name));
        WriteOldDatabase(path(), version, rows);
        oldBytes = contentOf(folder.path())["OM.MDB"];
        oldVersion = asked("PRAGMA user_version");
        oldLayout = asked(layout);
        oldRows.clear();
        open();
        for (const QString &table : db->TableDefs()) {
            QStringList columns;
            for (const FieldDef &field : db->Fields(table))
                if (field.Name != "db_version")
                    columns << "quote(" + field.Name + ')';
            const QString ask = "SELECT group_concat(" + columns.join(" || '|' || ") + ") FROM " + table;
            oldRows[ask] = asked(ask);
            ASSERT_NE(oldRows[ask], "error") << ask.toStdString();
        }
        db->Close();
    }
    /// Does what the upgrade window does, without the window: makes the copy and runs the steps. Returns the positions
    /// of the progress bar.
    QString upgrade()
    {
        open();
        QString bars;
        const auto steps = UpgradeSteps(ReadDatabaseVersion(*db));
        if (!steps.empty())
            KeepOldDatabase(path(), steps.size() == 2 ? "1.0" : "1.1");
        for (const UpgradeStep &step : steps) {
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
        const auto struck = [&] {
            faults.plan(plan);
            upgrade();
        };
        if (plan.death != Death::None)
            return signalThatEnds(struck) != 0;
        const int number = numberOf(struck);
        const bool hasStruck = faults.hasStruck();
        faults.plan({});
        db->Close();
        EXPECT_TRUE(number == 0 ? asked("PRAGMA user_version") == "20" : hasStruck) << "at place " << plan.after;
        return hasStruck;
    }
    /// Expects that the file is undamaged, that every old row is unchanged, and that nothing of a new layout is there
    /// before its version is.
    void expectWhole()
    {
        const QString version = asked("PRAGMA user_version");
        EXPECT_TRUE(QStringList({oldVersion, "11", "20"}).contains(version)) << version.toStdString();
        EXPECT_EQ(asked(layout) == oldLayout, version == oldVersion);
        for (const auto &[ask, text] : oldRows) {
            const bool mayGrow = ask.endsWith("ANIMALLIST"); // the upgrade adds words at its end
            EXPECT_EQ(mayGrow ? asked(ask).left(text.size()) : asked(ask), text);
        }
        EXPECT_EQ(asked("PRAGMA integrity_check"), "ok");
    }
    void expectUpgraded()
    {
        expectWhole();
        EXPECT_EQ(upgrade(), "") << "it is done once";
        EXPECT_EQ(asked("SELECT count(*) FROM MAINTSCHED WHERE SchedRtype IS NOT 0"), "0");
        EXPECT_EQ(asked("PRAGMA user_version"), "20");
        EXPECT_EQ(contentOf(folder.path())[oldVersion == "10" ? "OM-version-1.0.MDB" : "OM-version-1.1.MDB"], oldBytes);
    }

    FaultVfs faults;
    QByteArray oldBytes;
    QString oldVersion, oldLayout;
    std::map<QString, QString> oldRows; ///< for each table, a question for all rows as one text, and its answer
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
            EXPECT_EQ(asked("SELECT count(*) FROM ANIMALLIST WHERE AnimalType IN ('1', 'M')"),
                      first || rows > 0 ? "67" : "0");
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
