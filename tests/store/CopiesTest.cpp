// The copies that make themselves before the first change of a day.
#include "store/Copies.h"

#include "StoreFixture.h"

struct CopiesTest : StoreTest
{
    CopiesTest()
    {
        addingWater(1, 8).Update();
        keep();
    }
    void keep()
    {
        db->KeepDailyCopies([this](const QString &words) { told << words; });
    }
    QStringList copies() { return QDir(path("copies")).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QString testsIn(const QString &copy)
    {
        return OtherProgram(path("copies/" + copy)).run("SELECT count(*) FROM WATERLOG");
    }
    void onDay(int day) { doors.clock.setDate(QDate(2026, 3, day)); }

    QStringList told;
};

TEST_F(CopiesTest, TheFirstChangeOfADayIsPrecededByACopyWhateverChangesTheFile)
{
    EXPECT_TRUE(copies().isEmpty());
    EXPECT_EQ(count("WATERLOG"), 1);
    EXPECT_TRUE(copies().isEmpty()) << "reading is no change";
    const std::function<void()> changes[] = {
        [this] { addingWater(2, 7).Update(); },
        [this] { db->Execute("INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES ('T', '2003-02-01', '9')"); },
        [this] {
            Database::Transaction whole(*db);
            addingWater(3, 7).Update();
            whole.commit();
        },
        [this] { db->OpenForUpdate("WATERLOG").Delete(); },
    };
    int day = 14;
    for (const auto &change : changes) {
        onDay(++day);
        const QString before = asked("SELECT count(*) FROM WATERLOG"), copy = QString("OM-2026-03-%1.MDB").arg(day);
        change();
        EXPECT_EQ(testsIn(copy), before) << day;
        EXPECT_NE(asked("SELECT count(*) FROM WATERLOG"), before);
        EXPECT_EQ(OtherProgram(path("copies/" + copy)).run("PRAGMA integrity_check"), "ok");
        db->Execute("DELETE FROM MAINTLOG");
        EXPECT_EQ(testsIn(copy), before) << "one a day";
    }
    EXPECT_EQ(copies().size(), day - 14);
    EXPECT_EQ(told, QStringList());
}

TEST_F(CopiesTest, TheSameDayInAnotherRunAndAfterABackupNeedsNoSecondCopy)
{
    addingWater(2, 7).Update();
    db->LetGo();
    addingWater(3, 7).Update(); // opens it again
    open();
    keep();
    addingWater(4, 7).Update();
    EXPECT_EQ(copies(), QStringList("OM-2026-03-14.MDB"));
    EXPECT_EQ(testsIn("OM-2026-03-14.MDB"), "1");
    db->LetGo();
    onDay(15);
    addingWater(5, 7).Update();
    EXPECT_EQ(testsIn("OM-2026-03-15.MDB"), "4") << "copies go on after the file was closed for a backup";
}

TEST_F(CopiesTest, TheLastDaysAreKept)
{
    QDir().mkpath(path("copies"));
    for (const char *other : {"OM-2026-03-01.MDB.bak", "OM-best.MDB", "XX-2026-03-01.MDB"})
        writeFile(path("copies/") + other, "a keeper's own");
    writeFile(path("copies/OM-2026-03-10.MDB.new-99999999"), "left by a kill");
    const struct
    {
        const char *setting;
        int kept;
    } rows[] = {{"", 10}, {"3", 3}, {"many", 10}, {"-1", 0}, {"0", 0}};
    int day = 0;
    for (const auto &row : rows) {
        doors.settings().setValue("Keep_Copies", row.setting);
        const auto former = copies().size() - 3;
        for (int i = 0; i < 12; ++i) {
            doors.clock.setDate(QDate(2026, 4, 1).addDays(++day));
            db->Execute("UPDATE WATERLOG SET ph = ?", {day});
        }
        EXPECT_EQ(copies().size(), 3 + (row.kept > 0 ? row.kept : former)) << row.setting;
    }
}

TEST_F(CopiesTest, ACopyThatCannotBeMadeIsToldOnceADayAndWorkGoesOn)
{
    writeFile(path("copies"), "in the way");
    addingWater(2, 7).Update();
    addingWater(3, 7).Update();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith("No copy of the logbook was made today: ")) << told[0].toStdString();
    EXPECT_FALSE(told[0].contains('\n'));
    EXPECT_EQ(count("WATERLOG"), 3);
    QFile::remove(path("copies"));
    onDay(15);
    addingWater(4, 7).Update();
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(testsIn("OM-2026-03-15.MDB"), "3");
}

TEST_F(CopiesTest, AnEmptyDatabaseAndAClockThatWasWrongAreSeenTo)
{
    db->Execute("DELETE FROM WATERLOG");
    EXPECT_EQ(copies(), QStringList("OM-2026-03-14.MDB"));
    onDay(15);
    addingWater(2, 7).Update();
    EXPECT_EQ(copies(), QStringList("OM-2026-03-14.MDB")) << "there was nothing to copy";
    for (int year = 2090; year < 2102; ++year) {
        doors.clock.setDate(QDate(year, 1, 1));
        db->Execute("UPDATE WATERLOG SET ph = ?", {double(year)});
    }
    EXPECT_EQ(copies().size(), 10);
    onDay(16);
    db->Execute("UPDATE WATERLOG SET ph = 7");
    EXPECT_EQ(copies().size(), 10);
    EXPECT_EQ(copies().front(), "OM-2026-03-16.MDB") << "the copy of the day is never the one to go";
}

TEST_F(CopiesTest, AFullDiskLeavesNoPartOfACopy)
{
    const qint64 size = QFileInfo(path()).size();
    int day = 14;
    for (qint64 room = 0; room < size; room += size / 7 + 1) {
        onDay(++day);
        told.clear();
        {
            const SmallDisk disk(rlim_t(room), false);
            numberOf([this] { db->Execute("UPDATE WATERLOG SET ph = 7"); });
        }
        EXPECT_EQ(told.size(), 1);
        EXPECT_TRUE(copies().isEmpty()) << room;
    }
    onDay(++day);
    db->Execute("UPDATE WATERLOG SET ph = 6");
    EXPECT_EQ(copies().size(), 1);
}
