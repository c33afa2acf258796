#include <QPlainTextEdit>

#include "common/frm_Caltool.h"
#include "Desk.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/UpDown.h"

class Water : public Desk<frm_WaterAddEdit>
{
protected:
    Water() : Desk(WaterTab) {}
    /// A row at half past nine, and the list with it.
    void addRow(const QString &tankId, const QDate &date, const QString &more = "ph = 8")
    {
        keeper.g().gDatabase->Execute("INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES (?, ?, '09:30:00')",
                                      {tankId, date});
        execute("UPDATE WATERLOG SET " + more + " WHERE rowid = last_insert_rowid()");
        hand::clickTank(*logbook, keeper.g().gTankName);
    }
    int rows(const QString &where = "1") { return keeper.count("WATERLOG WHERE " + where); }
    QString dates() { return stored("group_concat(d) AS x FROM (SELECT logdate || '' AS d FROM WATERLOG ORDER BY d)"); }
};

namespace {

const char *const waterBoxes[] = {"txt_ammonia", "txt_nitrite", "txt_nitrate", "txt_ph",      "txt_sg",
                                  "txt_temp",    "txt_oxygen",  "txt_dkh",     "txt_calcium", "txt_copper",
                                  "txt_orp",     "txt_user1",   "txt_user2"};
const QString oops = "1|Oops!/48/";

MaskedBox &boxOf(frm_WaterAddEdit &w, const QString &name) { return control<MaskedBox>(w, name); }

QString moment(const frm_WaterAddEdit &w) { return w.txt_date->FormattedText() + ' ' + w.txt_time->FormattedText(); }

QString shownIn(frm_WaterAddEdit &w)
{
    QStringList texts;
    for (const char *name : waterBoxes)
        texts << boxOf(w, name).FormattedText();
    return texts.join(u' ');
}

/// What was told after a text was written into a box and another box was clicked. The focus is back where it was told.
QString saidOn(Keeper &keeper, frm_WaterAddEdit &w, const QString &box, const QString &typed)
{
    hand::type(boxOf(w, box), typed);
    mouse::click(w.txt_Comment);
    QCoreApplication::processEvents();
    const QString told = keeper.told();
    EXPECT_EQ(boxOf(w, box).hasFocus(), told != u"0");
    return told;
}

} // namespace

TEST_F(Water, ArrowsCarryNoValueBeyondItsLimitIntoTheStore)
{
    add([&](frm_WaterAddEdit &w) {
        hand::step(w, "Ud_SG", "up");
        control<UpDown>(w, "Ud_Nitrite").setValue(9990);
        hand::step(w, "Ud_Nitrite", "up"); // 999.1, and the box was never entered
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), oops + "Nitrite entries must be less than 1000.");
        EXPECT_EQ(rows(), 0);
        hand::step(w, "Ud_Nitrite", "down");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("nitrite = 999 AND sg = 1.024"), 1);
}

TEST_F(Water, EachMeasurementHasItsLimitAndItsWordsAndTakesNumbersOnly)
{
    const struct
    {
        const char *box, *good, *bad, *tooLarge;
    } table[] = {{"txt_ammonia", "999", "999.001", "Ammonia entries must be less than 1000."},
                 {"txt_ph", "99", "99.001", "Ph entries must be less than 99."},
                 {"txt_sg", "9.999", "10", "Specific Gravity entries must be less than 10."},
                 {"txt_temp", "999", "999.001", "Temperature entries must be less than 999."},
                 {"txt_copper", "999", "999.001", "Copper entries must less than 1000."},
                 {"txt_user2", "999", "999.001", "Silicate & co entries must be less than 1000."}};
    execute("UPDATE CONFIG SET user_fieldname2 = 'Silicate & co'");
    startWith("MMDDYY", "/");
    add([&](frm_WaterAddEdit &w) {
        for (const auto &row : table) {
            EXPECT_EQ(saidOn(keeper, w, row.box, row.bad), oops + row.tooLarge);
            EXPECT_EQ(saidOn(keeper, w, row.box, row.good), "0") << row.box;
        }
        for (const char *typed : {"", "12ab", "1.2.3"})
            EXPECT_EQ(saidOn(keeper, w, "txt_orp", typed), oops + "Orp entries must be a number.") << typed;
        EXPECT_EQ(saidOn(keeper, w, "txt_orp", "1000x").count("Orp entries must be"), 2); // one bad text, both boxes
        EXPECT_EQ(saidOn(keeper, w, "txt_orp", "-1"), "0");
        mouse::click(w.cmd_Exit);
    });
}

TEST_F(Water, ABadDateOrTimeIsToldAndNeverStored)
{
    const QString badDate = oops + "You must enter a valid date to add a water quality log entry to the log.";
    const QString badTime =
        oops + "You must enter a valid time in \"HH:MM:SS am\" format to add a water quality entry to the log.";
    const std::tuple<const char *, const char *, QString> rows[] = {{"txt_date", "02/29/26", badDate},
                                                                    {"txt_date", "02/29/24", "0"},
                                                                    {"txt_time", "13", badTime},
                                                                    {"txt_time", "12:30:00 pm", "0"}};
    add([&](frm_WaterAddEdit &w) {
        for (const auto &[box, typed, told] : rows)
            EXPECT_EQ(saidOn(keeper, w, box, typed), told) << typed;
        hand::type(*w.txt_date, "03/x"); // a key that the mask refuses
        EXPECT_EQ(keeper.told(), oops + "You must enter a valad date to add a water quality entry to the log.");
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), badDate);
        EXPECT_TRUE(w.txt_date->hasFocus() && w.isVisible());
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(keeper.count("WATERLOG"), 0);
}

TEST_F(Water, ValuesLandInTheirColumnsAndTheDayOfTheCalendarIsTheUsers)
{
    startWith("DDMMYY", "-");
    add([&](frm_WaterAddEdit &w) {
        hand::type(*w.txt_date, "");
        keeper.inNext<frm_Caltool>([](frm_Caltool &) { hand::press(Qt::Key_Escape); });
        mouse::click(w.cmd_Caldate);
        EXPECT_EQ(w.txt_date->FormattedText(), "14-03-26") << "an empty box gets today";
        hand::type(*w.txt_date, "09-05-26");
        keeper.inNext<frm_Caltool>([](frm_Caltool &calendar) {
            EXPECT_EQ(calendar.lblReturnDate->text(), "05/09/2026");
            hand::press(Qt::Key_Down);
            hand::press(Qt::Key_Return);
        });
        mouse::click(w.cmd_Caldate);
        hand::type(*w.txt_time, "09:05:07 pm");
        for (int i = 0; i < 13; ++i)
            hand::type(boxOf(w, waterBoxes[i]), QString::number(i < 5 ? i + 1.5 : i + 10.5));
        hand::type(*w.txt_Comment, "keeper's \"own\"\nwords");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("tankname = 'r1' AND logdate = '2026-05-16' AND logtime = '21:05:07' AND Ammonia = 1.5 AND "
                   "nitrite = 2.5 AND nitrate = 3.5 AND ph = 4.5 AND sg = 5.5 AND temp = 15.5 AND oxygen = 16.5 AND "
                   "dkh = 17.5 AND calcium = 18.5 AND copper = 19.5 AND orp = 20.5 AND custom1 = 21.5 AND "
                   "custom2 = 22.5 AND Comment = 'keeper''s \"own\"' || char(10) || 'words'"),
              1);
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Water, ASecondTestAtTheSameSecondIsRefusedInPlainWords)
{
    addRow("r1", {2026, 3, 14});
    addRow("Same", {2026, 3, 15}); // another tank's second
    const auto storeAt = [this](const char *better) {
        return [=, this](frm_WaterAddEdit &w) {
            hand::type(*w.txt_date, "03/14/26");
            hand::type(*w.txt_time, "09:30:00 am");
            hand::type(boxOf(w, "txt_calcium"), "415");
            hand::press(Qt::Key_Return);
            EXPECT_EQ(keeper.told(), oops + "This tank already has a water test at that date and time.");
            EXPECT_EQ(moment(w) + boxOf(w, "txt_calcium").Text(), "03/14/26 09:30:00 am415");
            hand::type(*w.txt_date, "03/15/26");
            hand::type(*w.txt_time, better);
            mouse::click(w.cmd_OK);
        };
    };
    add(storeAt("09:30:00 am"));
    change(2, storeAt("09:30:02 am"));
    change(2, [](frm_WaterAddEdit &) { hand::press(Qt::Key_Return); }); // a row is no duplicate of itself
    EXPECT_EQ(column(0), "03/14/26 - 09:30:00 am 03/15/26 - 09:30:02 am");
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Water, ChangingShowsEachValueInItsPictureAndRewritesThatRowAlone)
{
    addRow("r1", {2026, 4, 5},
           "Ammonia = 0.1234, nitrite = 12, nitrate = 999, ph = 8.2, orp = 1000.5, temp = 78, "
           "oxygen = NULL, calcium = 415.0005, copper = 0, sg = 1.0234, dkh = -1, custom1 = 5, "
           "custom2 = 7, Comment = 'old'");
    addRow("r1", {2026, 4, 6}, "ph = 7, Comment = NULL");
    addRow("Same", {2026, 4, 5}, "ph = 6");
    change(1, [&](frm_WaterAddEdit &w) {
        EXPECT_EQ(shownIn(w),
                  "0.123 12.000 999.000 8.200 1.023 78.000 0.000 -1.000 415.001 0.000 1000.500 5.000 7.000");
        EXPECT_EQ(moment(w) + w.txt_Comment->toPlainText(), "04/05/26 09:30:00 amold");
        hand::step(w, "ud_Ph", "up"); // it stands where the row does
        hand::type(*w.txt_date, "04/07/26");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("tankname = 'r1' AND logdate = '2026-04-07' AND ph = 8.3 AND sg = 1.023 AND Comment = 'old'"), 1);
    EXPECT_EQ(rows("(ph = 7 AND logdate = '2026-04-06') OR (ph = 6 AND tankname = 'Same')"), 2);
    EXPECT_EQ(column(1), "7.00 8.30");
    EXPECT_EQ(rows(), 3);
}

TEST_F(Water, DeletingFindsARowOnlyWhereTheTankIsCalledAsItsId)
{
    addRow("r1", {2026, 4, 5});
    addRow("Same", {2026, 4, 5});
    const QString entry = "04/05/26, 09:30:00 am entry for the ";
    EXPECT_EQ(remove(1, entry + "Reef", MsgBoxAnswer::OK), "|0 : yo... no match on da key!");
    EXPECT_EQ(rows(), 2);
    expectNote("deleteentries", "You must first select a log entry to delete");

    hand::clickTank(*logbook, "Same");
    for (const MsgBoxAnswer answer : {MsgBoxAnswer::Cancel, MsgBoxAnswer::OK}) {
        EXPECT_EQ(list().Count(), 1);
        EXPECT_EQ(remove(1, entry + "Same", answer), "");
    }
    EXPECT_EQ(list().Count(), 0);
    EXPECT_EQ(rows("tankname = 'r1'"), 1);
}

TEST_F(Water, DeletingReadsTheRowsDateMonthFirst)
{
    startWith("DDMMYY", "/", "Same");
    for (const QDate &date : {QDate(2026, 4, 5), QDate(2026, 4, 15), QDate(2026, 5, 4), QDate(2026, 6, 7)})
        addRow("Same", date);
    const QString entry = ", 09:30:00 am entry for the Same";
    EXPECT_EQ(remove(1, "05/04/26" + entry, MsgBoxAnswer::OK),
              ""); // shown is the fifth of April, the fourth of May goes
    EXPECT_EQ(dates(), "2026-04-05,2026-04-15,2026-06-07");
    EXPECT_EQ(remove(2, "04/15/26" + entry, MsgBoxAnswer::OK), ""); // 15/04/26 can be read in the user's order only
    hand::clickRow(list(), 2);                                      // 07/06/26: none is of the sixth of July
    push("deleteentries");
    EXPECT_EQ(keeper.told(), "0|failure 3021");
    EXPECT_EQ(dates(), "2026-04-05,2026-06-07");
}
