#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "common/frm_Caltool.h"
#include "Hands.h"
#include "Keeper.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/MaskedBox.h"
#include "platform/UpDown.h"

/// The logbook stands open on the tank "Reef", whose id is "r1"; the tank "Same" has its name for its id.
class Water : public ::testing::Test
{
protected:
    using Action = std::function<void(frm_WaterAddEdit &)>;

    Water()
    {
        keeper.g().gDatabase->Execute("UPDATE CONFIG SET user_fieldname1 = 'Iron', user_fieldname2 = 'Silicate & co'");
        keeper.addTank("Reef", "r1");
        keeper.addTank("Same", "Same");
        start("MMDDYY", "/");
    }
    void start(const char *order, const char *delimiter, const QString &tank = "Reef")
    {
        keeper.restart();
        SaveSetting("Date_Order", order);
        SaveSetting("Date_Delim", delimiter);
        logbook = &hand::openLogbook(keeper.startProgram());
        hand::clickTank(*logbook, tank);
    }
    void add(const Action &action)
    {
        keeper.inNext<frm_WaterAddEdit>(action);
        hand::click<QToolButton>(*logbook, "addentries");
    }
    void clickRowAnd(int row, const QString &button)
    {
        hand::clickRow(*logbook->lstv_WaterLog, row);
        hand::click<QToolButton>(*logbook, button);
    }
    void change(int row, const Action &action)
    {
        keeper.inNext<frm_WaterAddEdit>(action);
        clickRowAnd(row, "changeentries");
    }
    /// A row at half past nine, and the list with it.
    void addRow(const QString &tankId, const QDate &date, const QString &more = "ph = 8")
    {
        keeper.g().gDatabase->Execute("INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES (?, ?, '09:30:00')",
                                      {tankId, date});
        keeper.g().gDatabase->Execute("UPDATE WATERLOG SET " + more + " WHERE rowid = last_insert_rowid()");
        hand::clickTank(*logbook, keeper.g().gTankName);
    }
    void sql(const QString &statement) { keeper.g().gDatabase->Execute(statement); }
    int rows(const QString &where) { return keeper.count("WATERLOG WHERE " + where); }
    QString dates()
    {
        return keeper.stored("SELECT group_concat(d) AS d FROM (SELECT logdate || '' AS d FROM WATERLOG ORDER BY d)",
                             "d");
    }

    Keeper keeper;
    frm_Waterlog *logbook;
};

namespace {

const char *const waterBoxes[] = {"txt_ammonia", "txt_nitrite", "txt_nitrate", "txt_ph",      "txt_sg",
                                  "txt_temp",    "txt_oxygen",  "txt_dkh",     "txt_calcium", "txt_copper",
                                  "txt_orp",     "txt_user1",   "txt_user2"};
const QString oops = "1|Oops!/48/";
const QString badDate = oops + "You must enter a valid date to add a water quality log entry to the log.";
const QString badTime =
    oops + "You must enter a valid time in \"HH:MM:SS am\" format to add a water quality entry to the log.";

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
    EXPECT_EQ(keeper.told(), "0");
    mouse::click(w.txt_Comment);
    QCoreApplication::processEvents();
    const QString told = keeper.told();
    EXPECT_EQ(boxOf(w, box).hasFocus(), told != u"0");
    EXPECT_EQ(boxOf(w, box).Text().trimmed(), typed.trimmed());
    return told;
}

} // namespace

TEST_F(Water, ANewTestStartsWithTheDefaultsOfTheKeepersWaterType)
{
    for (const auto &[type, shown] :
         {std::pair("SALT", "0 0 0 8.40 1.023 78 0 0 0 0 0 0 0"), {"FRESH", "0 0 0 7.80 0 78 0 0 0 0 0 0 0"}}) {
        keeper.g().gDefaultWaterType = type;
        add([&, shown = shown](frm_WaterAddEdit &w) {
            EXPECT_EQ(shownIn(w), shown);
            EXPECT_EQ(w.windowTitle() + moment(w) + w.txt_Comment->toPlainText(),
                      "Add a log entry for Reef Tank03/14/26 09:26:53 am ");
            EXPECT_EQ(control<QLabel>(w, "Label15").text() + control<QLabel>(w, "Label16").text(), "IronSilicate & co");
            mouse::click(w.cmd_Exit);
        });
    }
    EXPECT_EQ(rows("1"), 0);
}

TEST_F(Water, UpDownsKnowTheirOwnPositionOnly)
{
    const struct
    {
        const char *upDown, *arrow, *box, *text;
    } steps[] = {
        {"ud_Ph", "up", "txt_ph", "8.500"},         {"ud_Ph", "down", "txt_ph", "8.400"},
        {"ud_temp", "up", "txt_temp", "78.1"},      {"ud_temp", "down", "txt_temp", "78"},
        {"Ud_SG", "up", "txt_sg", "1.024"},         {"ud_Ammonia", "up", "txt_ammonia", "0.1"},
        {"ud_Calcium", "down", "txt_calcium", "7"}, // at its lower bound the box keeps its own text
        {"ud_Calcium", "up", "txt_calcium", "0.1"},
    };
    add([&](frm_WaterAddEdit &w) {
        hand::type(boxOf(w, "txt_calcium"), "7");
        for (const auto &step : steps) {
            hand::step(w, step.upDown, step.arrow);
            EXPECT_EQ(boxOf(w, step.box).Text(), step.text) << step.upDown << step.arrow;
        }
        hand::type(boxOf(w, "txt_calcium"), "7.1234"); // stepped, and then typed over
        mouse::click(&boxOf(w, "txt_orp"));
        EXPECT_EQ(boxOf(w, "txt_calcium").FormattedText(), "7.123");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("calcium = 7.1234 AND sg = 1.024 AND ph = 8.4 AND Ammonia = 0.1"), 1);
}

TEST_F(Water, ArrowsCannotCarryAValueBeyondItsLimitIntoTheStore)
{
    add([&](frm_WaterAddEdit &w) {
        control<UpDown>(w, "Ud_Nitrite").setValue(9990);
        hand::step(w, "Ud_Nitrite", "up"); // 999.1, and the box was never entered
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), "1|Oops!/48/Nitrite entries must be less than 1000.");
        EXPECT_TRUE(boxOf(w, "txt_nitrite").hasFocus());
        EXPECT_EQ(rows("1"), 0);
        hand::step(w, "Ud_Nitrite", "down");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("nitrite = 999"), 1);
}

TEST_F(Water, EachMeasurementHasItsLimitAndItsWordsAndTakesNumbersOnly)
{
    const struct
    {
        const char *box, *name;
        const char *tooLarge = "be less than 1000.", *good = "999", *bad = "999.001";
    } table[] = {
        {"txt_ammonia", "Ammonia"},
        {"txt_nitrite", "Nitrite"},
        {"txt_nitrate", "Nitrate"},
        {"txt_ph", "Ph", "be less than 99.", "99", "99.001"},
        {"txt_sg", "Specific Gravity", "be less than 10.", "9.999", "10"},
        {"txt_temp", "Temperature", "be less than 999."},
        {"txt_oxygen", "Oxygen"},
        {"txt_dkh", "dkh"},
        {"txt_calcium", "Calcium"},
        {"txt_copper", "Copper", "less than 1000."},
        {"txt_orp", "Orp"},
        {"txt_user1", "Iron"},
        {"txt_user2", "Silicate & co"},
    };
    const QString noNumber = "|Oops!/48/Orp entries must be a number.";
    const QString tooLarge = "|Oops!/48/Orp entries must be less than 1000.";
    const std::pair<const char *, QString> texts[] = {
        {"| |12ab|1.2.3", '1' + noNumber},
        {"1e5|1,000|998,9", '1' + tooLarge},
        {"1000x", '2' + noNumber + tooLarge}, // one bad text, both boxes
        {"-1| 12.5 |1e2", "0"},
    };
    add([&](frm_WaterAddEdit &w) {
        for (const auto &row : table) {
            EXPECT_EQ(saidOn(keeper, w, row.box, "abc"), oops + row.name + " entries must be a number.");
            EXPECT_EQ(saidOn(keeper, w, row.box, row.bad), oops + row.name + " entries must " + row.tooLarge);
            EXPECT_EQ(saidOn(keeper, w, row.box, row.good), "0") << row.box;
        }
        for (const auto &[all, told] : texts)
            for (const QString &typed : QString(all).split(u'|'))
                EXPECT_EQ(saidOn(keeper, w, "txt_orp", typed), told) << typed.toStdString();
        mouse::click(w.cmd_Exit);
    });
}

TEST_F(Water, DateAndTimeAreJudgedInTheUsersOrder)
{
    const struct
    {
        const char *order, *delimiter, *box, *bad, *good;
    } table[] = {
        {"DDMMYY", ".", "txt_date", "29.02.26|01.13.26|12.31.26|00.01.26", "28.02.26|29.02.24|31.12.29"},
        {"YYMMDD", "-", "txt_date", "26-02-29|26-13-01|26-00-01", "26-02-28|24-02-29|29-12-31"},
        {"MMDDYY", "/", "txt_date", "02/29/26|13/01/26|31/12/26", "02/28/26|02/29/24|12/31/29"},
        {"MMDDYY", "/", "txt_time", "12:00:60 PM|00:30:00 AM|13:00:00 PM|12:60:00 pm|12:30:00 Pm|12:30:00 xm",
         "12:30:00 pm|01:00:00 AM|12:59:59 PM|01:00:00 am"},
    };
    for (const auto &row : table) {
        start(row.order, row.delimiter);
        add([&](frm_WaterAddEdit &w) {
            for (const QString &typed : QString(row.bad).split(u'|'))
                EXPECT_EQ(saidOn(keeper, w, row.box, typed), row.box == QLatin1String("txt_date") ? badDate : badTime);
            for (const QString &typed : QString(row.good).split(u'|'))
                EXPECT_EQ(saidOn(keeper, w, row.box, typed), "0") << typed.toStdString();
            mouse::click(w.cmd_Exit);
        });
    }
    add([&](frm_WaterAddEdit &w) { // what is not complete, and a key that the mask refuses
        hand::type(*w.txt_time, "09:3x");
        EXPECT_EQ(keeper.told(), badTime);
        EXPECT_EQ(w.txt_time->Text(), "09:3 :     ");
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), badTime);
        hand::type(*w.txt_time, "09:30:00 am");
        hand::type(*w.txt_date, "03/x");
        EXPECT_EQ(keeper.told(), oops + "You must enter a valad date to add a water quality entry to the log.");
        EXPECT_TRUE(w.txt_date->hasFocus());
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), badDate);
        mouse::click(w.cmd_Exit);
    });
}

TEST_F(Water, ABadValueNeverReachesTheStore)
{
    const struct
    {
        const char *name;
        Action go;
        bool asks;
    } ways[] = {
        {"OK by mouse", [](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); }, true},
        {"Enter", [](frm_WaterAddEdit &) { hand::press(Qt::Key_Return); }, true},
        {"Alt+O",
         [this](frm_WaterAddEdit &) {
             hand::press(Qt::Key_O, Qt::AltModifier); // a button answers its mnemonic after a while
             EXPECT_TRUE(QTest::qWaitFor([this] { return !keeper.doors.boxes.empty(); }));
         },
         true},
        {"another window and back, then OK",
         [this](frm_WaterAddEdit &w) {
             QWidget other;
             other.show();
             other.activateWindow();
             EXPECT_TRUE(isInFront(other));
             w.activateWindow();
             EXPECT_TRUE(isInFront(w));
             EXPECT_EQ(keeper.told(), "0");
             mouse::click(w.cmd_OK);
         },
         true},
        {"Esc", [](frm_WaterAddEdit &) { hand::press(Qt::Key_Escape); }, false},
        {"title bar", [](frm_WaterAddEdit &w) { w.close(); }, false},
        {"Cancel", [](frm_WaterAddEdit &w) { mouse::click(w.cmd_Exit); }, false},
    };
    for (const auto &way : ways)
        for (const auto &[box, typed] : {std::pair("txt_ph", "abc"), {"txt_date", "02/30/26"}, {"txt_time", "13"}}) {
            SCOPED_TRACE(std::string(way.name) + ", " + box);
            add([&, box = box, typed = typed](frm_WaterAddEdit &w) {
                hand::type(boxOf(w, box), typed);
                way.go(w);
                EXPECT_EQ(keeper.told().startsWith(oops), way.asks);
                EXPECT_EQ(w.isVisible(), way.asks);
                if (way.asks) {
                    EXPECT_TRUE(boxOf(w, box).hasFocus());
                    hand::press(Qt::Key_Escape);
                }
            });
            EXPECT_EQ(rows("1"), 0);
        }
}

TEST_F(Water, ValuesLandInTheirColumnsAndDatesOnTheirDayInAllThreeOrders)
{
    const struct
    {
        const char *order, *delimiter;
        std::vector<const char *> typed; // with days up to the 12th, and the first and last day of two digits
    } orders[] = {
        {"MMDDYY", "/", {"04/05/26", "04/25/26", "02/29/24", "01/01/30", "12/31/29"}},
        {"DDMMYY", ".", {"05.04.26", "25.04.26", "29.02.24", "01.01.30", "31.12.29"}},
        {"YYMMDD", "-", {"26-04-05", "26-04-25", "24-02-29", "30-01-01", "29-12-31"}},
    };
    for (const auto &row : orders) {
        start(row.order, row.delimiter);
        for (const char *typed : row.typed)
            add([&](frm_WaterAddEdit &w) {
                hand::type(*w.txt_date, typed);
                keeper.inNext<frm_Caltool>([](frm_Caltool &) { hand::press(Qt::Key_Return); }); // the day it opens on
                mouse::click(w.cmd_Caldate);
                EXPECT_EQ(w.txt_date->FormattedText(), typed);
                hand::type(*w.txt_time, "09:05:07 pm");
                for (int i = 0; i < 13 && typed == row.typed.front(); ++i)
                    hand::type(boxOf(w, waterBoxes[i]), QString::number(i < 5 ? i + 1.5 : i + 10.5));
                hand::type(*w.txt_Comment, "keeper's \"own\"\nwords");
                mouse::click(w.cmd_OK);
            });
        const QString stored = "1930-01-01,2024-02-29,2026-04-05,2026-04-25,2029-12-31";
        EXPECT_EQ(dates(), stored);
        EXPECT_EQ(rows("tankname = 'r1' AND logtime = '21:05:07' AND "
                       "Comment = 'keeper''s \"own\"' || char(10) || 'words'"),
                  5);
        EXPECT_EQ(rows("logdate = '2026-04-05' AND Ammonia = 1.5 AND nitrite = 2.5 AND nitrate = 3.5 AND ph = 4.5 AND "
                       "sg = 5.5 AND temp = 15.5 AND oxygen = 16.5 AND dkh = 17.5 AND calcium = 18.5 AND copper = 19.5 "
                       "AND orp = 20.5 AND custom1 = 21.5 AND custom2 = 22.5"),
                  1);
        for (int i = 1; i <= 5; ++i) // each is opened on its own day again
            change(i, [&](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
        EXPECT_EQ(dates(), stored);
        EXPECT_EQ(keeper.told(), "0");
        sql("DELETE FROM WATERLOG");
    }
}

TEST_F(Water, CalendarGivesTodayToAnEmptyBoxAndTheChosenDayToAnyOther)
{
    start("DDMMYY", "-");
    add([&](frm_WaterAddEdit &w) {
        hand::type(*w.txt_date, "");
        keeper.inNext<frm_Caltool>([](frm_Caltool &) { hand::press(Qt::Key_Escape); });
        mouse::click(w.cmd_Caldate);
        EXPECT_EQ(w.txt_date->FormattedText(), "14-03-26");
        hand::type(*w.txt_date, "09-05-26");
        keeper.inNext<frm_Caltool>([](frm_Caltool &calendar) {
            EXPECT_EQ(calendar.lblReturnDate->text(), "05/09/2026");
            hand::press(Qt::Key_Down);
            hand::press(Qt::Key_Return);
        });
        mouse::click(w.cmd_Caldate);
        EXPECT_EQ(w.txt_date->FormattedText(), "16-05-26");
        mouse::click(w.cmd_OK); // the row that was begun is still the one
    });
    EXPECT_EQ(dates() + keeper.told(), "2026-05-160");
}

TEST_F(Water, ASecondTestAtTheSameSecondIsRefusedInPlainWords)
{
    addRow("r1", {2026, 3, 14});
    addRow("Same", {2026, 3, 15});
    const auto store = [this](const char *date, const char *better) {
        return [=, this](frm_WaterAddEdit &w) {
            hand::type(*w.txt_date, date);
            hand::type(*w.txt_time, "09:30:00 am");
            hand::type(boxOf(w, "txt_calcium"), "415");
            hand::press(Qt::Key_Return);
            if (!better)
                return;
            EXPECT_EQ(keeper.told(), oops + "This tank already has a water test at that date and time.");
            EXPECT_EQ(moment(w) + boxOf(w, "txt_calcium").Text(), QString(date) + " 09:30:00 am415");
            hand::type(*w.txt_time, better);
            mouse::click(w.cmd_OK);
        };
    };
    add(store("03/14/26", "09:30:01 am"));
    add(store("03/15/26", nullptr)); // another tank's second
    change(3, store("03/14/26", "09:30:02 am"));
    change(3, [](frm_WaterAddEdit &) { hand::press(Qt::Key_Return); }); // a row is no duplicate of itself
    EXPECT_EQ(hand::column(*logbook->lstv_WaterLog, 0),
              "03/14/26 - 09:30:00 am 03/14/26 - 09:30:01 am 03/14/26 - 09:30:02 am");
    EXPECT_EQ(rows("calcium = 415"), 2);
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
        EXPECT_EQ(w.windowTitle() + moment(w) + w.txt_Comment->toPlainText(),
                  "Change Log Entry for Reef Tank04/05/26 09:30:00 amold");
        hand::step(w, "ud_Ph", "up"); // it stands where the row does
        EXPECT_EQ(boxOf(w, "txt_ph").Text(), "8.300");
        hand::type(*w.txt_date, "04/07/26");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("tankname = 'r1' AND logdate = '2026-04-07' AND ph = 8.3 AND sg = 1.023 AND Comment = 'old'"), 1);
    EXPECT_EQ(rows("(ph = 7 AND logdate = '2026-04-06') OR (ph = 6 AND tankname = 'Same')"), 2);
    EXPECT_EQ(hand::column(*logbook->lstv_WaterLog, 1), "7.00 8.30");
    EXPECT_EQ(rows("1"), 3);
}

TEST_F(Water, AFailureOfTheEngineKeepsTheWindowAndWhatWasTyped)
{
    addRow("r1", {2026, 4, 5});
    const auto failOnce = [this](frm_WaterAddEdit &w) {
        for (const char *operation : {"INSERT", "UPDATE"})
            sql(QString("CREATE TRIGGER wet_%1 BEFORE %1 ON WATERLOG BEGIN SELECT RAISE(ABORT, 'wet'); END")
                    .arg(operation));
        hand::type(boxOf(w, "txt_calcium"), "415");
        const int before = rows("calcium = 415");
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), "0|failure 3421");
        EXPECT_TRUE(w.isVisible() && boxOf(w, "txt_calcium").Text() == u"415");
        EXPECT_EQ(rows("calcium = 415"), before);
        sql("DROP TRIGGER wet_INSERT");
        sql("DROP TRIGGER wet_UPDATE");
        mouse::click(w.cmd_OK);
    };
    add(failOnce);
    change(2, failOnce);
    EXPECT_EQ(rows("calcium = 415"), 2);
    EXPECT_EQ(rows("1"), 2);
}

TEST_F(Water, DeletingFindsARowOnlyWhereTheTankIsCalledAsItsId)
{
    const auto question = [](const char *tank) {
        return QString(
                   "1|Are you sure.../33/Are you sure you want to delete the  04/05/26, 09:30:00 am entry for the %1 "
                   "tank?   (Remember, you CANNOT \"undo\" a delete!)")
            .arg(tank);
    };
    addRow("r1", {2026, 4, 5});
    addRow("Same", {2026, 4, 5});
    clickRowAnd(1, "deleteentries");
    EXPECT_EQ(keeper.told(), question("Reef") + "|/0/yo... no match on da key!");
    EXPECT_EQ(rows("1"), 2);
    EXPECT_EQ(logbook->lstv_WaterLog->SelectedItem(), 0);
    hand::click<QToolButton>(*logbook, "deleteentries");
    EXPECT_EQ(keeper.told(), "0|Note!/64/You must first select a log entry to delete");

    hand::clickTank(*logbook, "Same");
    sql("UPDATE WATERLOG SET ph = 5");
    keeper.doors.answers = {MsgBoxAnswer::Cancel};
    clickRowAnd(1, "deleteentries");
    EXPECT_EQ(keeper.told(), question("Same"));
    EXPECT_EQ(hand::column(*logbook->lstv_WaterLog, 1), "8.00") << "Cancel reloads nothing";
    clickRowAnd(1, "deleteentries");
    EXPECT_EQ(keeper.told(), question("Same"));
    EXPECT_EQ(logbook->lstv_WaterLog->Count(), 0);
    EXPECT_EQ(rows("1"), 1);
}

TEST_F(Water, DeletingReadsTheRowsDateMonthFirst)
{
    start("DDMMYY", "/", "Same");
    for (const QDate &date : {QDate(2026, 4, 5), QDate(2026, 4, 15), QDate(2026, 5, 4), QDate(2026, 6, 7)})
        addRow("Same", date);
    clickRowAnd(1, "deleteentries"); // 05/04/26: the fifth of April is shown, the fourth of May goes
    EXPECT_TRUE(keeper.told().contains("delete the  05/04/26, 09:30:00 am entry"));
    EXPECT_EQ(dates(), "2026-04-05,2026-04-15,2026-06-07");
    clickRowAnd(2, "deleteentries"); // 15/04/26 can be read in the user's order only
    EXPECT_TRUE(keeper.told().contains("delete the  04/15/26, 09:30:00 am entry"));
    EXPECT_EQ(dates(), "2026-04-05,2026-06-07");
    clickRowAnd(2, "deleteentries"); // 07/06/26: there is no entry on the sixth of July
    EXPECT_EQ(keeper.told(), "0|failure 3021");
    EXPECT_EQ(dates(), "2026-04-05,2026-06-07");
}
