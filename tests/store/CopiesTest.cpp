// The copies that make themselves before the first change of a day.
#include "store/Copies.h"

#include "StoreFixture.h"

struct CopiesTest : StoreTest
{
    CopiesTest()
    {
        addWater(1);
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
    const std::function<void()> changes[] = {
        [this] { addWater(2); },
        [this] { db->OpenForUpdate("WATERLOG").Delete(); },
        [this] {
            Database::Transaction whole(*db);
            addWater(3);
            whole.commit();
        },
        [this] {
            db->LetGo(); // for a backup; the next use opens the file again
            addWater(4);
        },
    };
    int day = 14;
    for (const auto &change : changes) {
        onDay(++day);
        const QString before = QString::number(count("WATERLOG")), copy = QString("OM-2026-03-%1.MDB").arg(day);
        EXPECT_EQ(copies().size(), day - 15) << "reading is no change";
        change();
        EXPECT_EQ(testsIn(copy), before) << day;
        db->Execute("DELETE FROM MAINTLOG");
        open(); // another run
        keep();
        db->Execute("DELETE FROM MAINTLOG");
        EXPECT_EQ(testsIn(copy), before) << "one a day";
    }
    EXPECT_EQ(copies().size(), day - 14);
    EXPECT_EQ(told, QStringList());
}

TEST_F(CopiesTest, TheLastDaysAreKeptAndEveryFileOfTheKeepers)
{
    QDir().mkpath(path("copies"));
    for (const char *other : {"OM-2026-03-01.MDB.bak", "OM-best.MDB", "XX-2026-03-01.MDB"})
        writeFile(path("copies/") + other, "a keeper's own");
    writeFile(path("copies/OM-2026-03-10.MDB.new-99999999"), "left by a kill");
    int day = 0;
    for (const auto &[setting, kept] : {std::pair("", 10), {"3", 3}, {"-1", 0}, {"0", 0}, {"many", 10}}) {
        doors.settings().setValue("Keep_Copies", setting);
        const auto former = copies().size() - 3;
        for (int i = 0; i < 12; ++i) {
            doors.clock.setDate(QDate(2026, 4, 1).addDays(++day));
            db->Execute("UPDATE WATERLOG SET ph = ?", {day});
        }
        EXPECT_EQ(copies().size(), 3 + (kept > 0 ? kept : former)) << setting;
    }
    onDay(16); // the clock was wrong before
    db->Execute("DELETE FROM WATERLOG");
    EXPECT_EQ(copies().size(), 3 + 10);
    EXPECT_TRUE(copies().contains("OM-2026-03-16.MDB")) << "the copy of the day is never the one to go";
    onDay(17);
    addWater(2);
    EXPECT_FALSE(copies().contains("OM-2026-03-17.MDB")) << "there was nothing to copy";
}

TEST_F(CopiesTest, ACopyThatCannotBeMadeIsToldOnceADayAndWorkGoesOn)
{
    writeFile(path("copies"), "in the way");
    addWater(2);
    addWater(3);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].startsWith("No copy of the logbook was made today: ")) << told[0].toStdString();
    EXPECT_EQ(count("WATERLOG"), 3);
    QFile::remove(path("copies"));
    const qint64 size = QFileInfo(path()).size();
    int day = 14;
    for (qint64 room = 0; room < size; room += size / 7 + 1) {
        onDay(++day);
        const SmallDisk disk(rlim_t(room), false);
        numberOf([this] { db->Execute("UPDATE WATERLOG SET ph = 7"); });
        EXPECT_EQ(told.size(), day - 13);
        EXPECT_TRUE(copies().isEmpty()) << "a part of a copy, of " << room;
    }
    onDay(++day);
    addWater(4);
    EXPECT_EQ(told.size(), day - 14);
    EXPECT_EQ(testsIn(QString("OM-2026-03-%1.MDB").arg(day)), "3");
}
