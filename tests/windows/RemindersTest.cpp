// Reminders through their windows: added, listed, scheduled, printed, changed and deleted by hand, with what the tool
// bar shows meanwhile. Today is Saturday, 14 March 2026.
#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/common/frm_Caltool.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_SchedNewAddEdit.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/shell/frm_OMKOptions.h"

class Reminders : public Desk
{
protected:
    using Compose = std::function<void(frm_SchedNewAddEdit &)>;

    void openList()
    {
        hand::press(Qt::Key_E, Qt::ControlModifier);
        list = Forms::current().loaded<frm_Maintsched>();
        ASSERT_TRUE(list);
    }
    void insert(const QString &task, const QString &rest)
    {
        execute("INSERT INTO MAINTSCHED (SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, SchedRSubtype, "
                "SchedDetailText, SchedTask) VALUES (" +
                    rest + ", ?)",
                {task});
    }
    void inEditor(QPushButton *button, const Compose &action)
    {
        keeper.inNext<frm_SchedNewAddEdit>(action);
        mouse::click(button);
    }
    QString upcoming() const { return lines(*main->cbo_Reminders->model()); }
    /// All columns that the program writes for the reminder, in one line.
    QString row()
    {
        return keeper.stored(
            "SchedTask || '|' || SchedStartDate || '|' || SchedEndDate || '|' || SchedInterval || '|' || "
            "SchedRtype || '|' || SchedRSubtype || '|' || coalesce(SchedDetailText, '') || '|' || "
            "SchedEnglishDesc AS x FROM MAINTSCHED");
    }

    frm_Maintsched *list = nullptr;
};

TEST_F(Reminders, OfEachPatternAreStoredShownOnTheToolbarAndUnchangedByASecondSaveInAnotherOrder)
{
    const std::tuple<const char *, const char *, Compose> patterns[] = {
        {"200|1|0|0101000|Every 200 week(s) on Mon, Wed.", "Mon 16.03.26",
         [](frm_SchedNewAddEdit &w) {
             click(*w.opt_Weekly);
             hand::type(*w.txt_WeeklyWeeks, "200");
             click(*w.chk_WeeklyDay[1]);
             click(*w.chk_WeeklyDay[3]);
         }},
        {"1|2|1|46|The Last Saturday of every 1 month(s).", "Sat 28.03.26",
         [](frm_SchedNewAddEdit &w) {
             mouse::click(w.opt_Weekly);
             hand::press(Qt::Key_Down); // from here on only by keys
             EXPECT_TRUE(w.txt_MonthlyDay->isEnabled() && !w.cbo_MonthlyXth->isEnabled());
             hand::press(Qt::Key_Tab);
             hand::press(Qt::Key_Down);
             w.cbo_MonthlyXth->setFocus();
             hand::press(Qt::Key_End); // "Last"; today's weekday is already selected
         }},
        {"1|4|0|03/20/2026|Only once on 20.03.26.", "Fri 20.03.26",
         [](frm_SchedNewAddEdit &w) {
             click(*w.opt_Once);
             hand::type(*w.txt_OnceDate, "200326");
         }},
    };
    for (const auto &[pattern, next, compose] : patterns) {
        startWith("DDMMYY", ".");
        openList();
        EXPECT_EQ(upcoming(), "(No Reminders Available)");
        inEditor(list->cmd_AddTask, [&, compose = compose](frm_SchedNewAddEdit &w) {
            hand::type(*w.txt_TaskDescription, "Feed \"Nemo\"");
            compose(w);
            mouse::click(w.cmd_OK);
        });
        const QString expected = QString("Feed \"Nemo\"|2026-03-14|2028-03-14|") + pattern;
        EXPECT_EQ(row(), expected);
        EXPECT_EQ(upcoming().section('|', 0, 0), QString(next) + " Feed \"Nemo\"");
        startWith("MMDDYY", "/");
        openList();
        hand::clickRow(*list->lstv_MaintSched, 1);
        inEditor(list->cmd_update_task, [](frm_SchedNewAddEdit &w) { mouse::click(w.cmd_OK); });
        EXPECT_EQ(row().section('|', 0, 5), expected.section('|', 0, 5));
        EXPECT_TRUE(upcoming().endsWith(" Feed \"Nemo\"")) << "and it still has dates";
        execute("DELETE FROM MAINTSCHED");
    }
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(Reminders, ThatCannotBeStoredLeaveTheEditorWithAllThatWasSet)
{
    insert("Feed", "'2026-01-01', '2027-12-31', 1, 0, 0, ''");
    openList();
    inEditor(list->cmd_AddTask, [this](frm_SchedNewAddEdit &w) {
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), "0|Oops/64/You must enter a description for this reminder.");
        EXPECT_TRUE(w.txt_TaskDescription->hasFocus());
        hand::write("Feed");
        keeper.inNext<frm_Caltool>([](frm_Caltool &calendar) {
            EXPECT_EQ(calendar.lblReturnDate->text(), "03/14/2028") << "each date has a calendar of its own";
            hand::press(Qt::Key_Escape);
        });
        mouse::click(w.cmd_CalEndDate);
        click(*w.opt_Weekly);
        click(*w.chk_WeeklyDay[0]);
        mouse::click(w.cmd_OK);
        EXPECT_TRUE(keeper.told().startsWith("1|/0/That identical task already exists."));
        EXPECT_TRUE(w.EditCancelled && w.chk_WeeklyDay[0]->isChecked());
        hand::type(*w.txt_TaskDescription, "Feet");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.stored("SchedDetailText AS x FROM MAINTSCHED WHERE SchedTask = 'Feet'"), "1000000");
    inEditor(list->cmd_AddTask, [](frm_SchedNewAddEdit &w) {
        hand::type(*w.txt_TaskDescription, "Nothing");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(hand::column(*list->lstv_MaintSched, 0), "Feed Feet");
    EXPECT_EQ(keeper.count("MAINTSCHED"), 2);
}

TEST_F(Reminders, AreDeletedAfterAQuestionAndTheToolbarFollows)
{
    insert("Feed", "'2026-01-01', '2027-12-31', 700, 0, 0, ''");
    insert("It's \"late\"", "'2026-03-20', '2026-03-21', 9, 0, 0, ''");
    openList();
    EXPECT_EQ(upcoming(), "Fri 03/20/26 It's \"late\"|Thu 12/02/27 Feed");
    hand::clickRow(*list->lstv_MaintSched, 2);
    keeper.doors.answers = {MsgBoxAnswer::Cancel, MsgBoxAnswer::OK};
    for (const QString left : {"Feed It's \"late\"", "Feed"}) {
        hand::press(Qt::Key_Delete);
        EXPECT_TRUE(keeper.told().startsWith("1|Are you sure.../33/Are you sure you want to delete this entry?\nIt's"));
        EXPECT_EQ(hand::column(*list->lstv_MaintSched, 0), left);
    }
    EXPECT_EQ(upcoming(), "Thu 12/02/27 Feed");
    hand::clickRow(*list->lstv_MaintSched, 1);
    keeper.doors.answers = {MsgBoxAnswer::OK};
    mouse::click(list->cmd_DeleteTask);
    EXPECT_FALSE(list->cmd_DeleteTask->isEnabled() || list->cmd_update_task->isEnabled()) << "nothing is left";
    insert("Feed", "'2026-01-01', '2027-12-31', 700, 0, 0, ''");
    keeper.told();
    keeper.doors.clock = keeper.doors.clock.addYears(2); // all dates are past, but the table is not empty
    startWith("MMDDYY", "/");
    EXPECT_EQ(upcoming(), "");
}

TEST_F(Reminders, WithoutDatesAreNamedOnceLeftOutAndDeletedOnDemand)
{
    insert("January", "'2026-01-01', '2027-12-31', 5, 3, 0, '0'");
    insert("Endless", "'2026-01-01', NULL, 1, 0, 0, ''");
    insert("Stuck", "'2026-01-01', '2027-12-31', 0, 0, 0, ''");
    insert("Spring", "'2026-01-01', '2027-12-31', 30, 3, 0, '2'");
    insert("Odd", "'2026-01-01', '2027-12-31', 5, 3, 0, 'x'");
    insert("Feed", "'2026-03-15', '2026-03-16', 2, 0, 0, ''");
    startWith("MMDDYY", "/"); // the program starts
    EXPECT_EQ(upcoming(), "Sun 03/15/26 Feed");
    const QString told = keeper.told();
    for (const char *line :
         {"Reminders without dates/55/", "January (no list can show a yearly reminder of that date; make",
          "Spring (no list can show a yearly reminder of that date; make", "Odd (its month cannot be read)",
          "Endless (it has no end date)", "Stuck (its interval is not above 0)"})
        EXPECT_TRUE(told.contains(line)) << told.toStdString();
    hand::press(Qt::Key_S, Qt::ControlModifier);
    auto &schedule = Form<frm_Schedule>();
    mouse::click(schedule.cmd_Generate);
    EXPECT_EQ(hand::column(*schedule.lstv_Reminders, 1), "Feed");
    EXPECT_EQ(keeper.told().count("Reminders without dates/55/"), 1);
    EXPECT_EQ(keeper.count("MAINTSCHED"), 6);
    keeper.doors.answers = {MsgBoxAnswer::Delete};
    mouse::click(schedule.cmd_Generate);
    EXPECT_EQ(keeper.count("MAINTSCHED"), 1);
}

TEST_F(Reminders, StayTheirDaysWhenAnotherDateOrderIsChosen)
{
    startWith("YYMMDD", "/");
    insert("Old", "'2026-01-01', '2027-12-31', 1, 4, 0, '27/05/12'"); // in the form of earlier versions
    insert("Feed", "'2027-02-01', '2027-12-31', 1, 0, 0, ''");
    hand::press(Qt::Key_S, Qt::ControlModifier);
    auto &schedule = Form<frm_Schedule>();
    click(*schedule.opt_DateRange);
    const auto choose = [this](QRadioButton *frm_OMKOptions::*order) {
        keeper.inNext<frm_OMKOptions>([order](frm_OMKOptions &w) {
            mouse::click(w.*order);
            mouse::click(w.cmdOK);
        });
        hand::choose(*main, *main->mnu_View, "mnu_ViewOptions");
        EXPECT_TRUE(isInFront(*main));
    };
    const auto range = [&]() -> QString {
        mouse::click(schedule.cmd_Generate);
        const ListView &dates = *schedule.lstv_Reminders;
        return dates.Text(1) + ' ' + dates.Text(dates.Count());
    };
    choose(&frm_OMKOptions::opt_Dateform_MMDDYY); // the boxes are empty and so follow the options
    hand::type(*schedule.txt_startdate, "020327");
    hand::type(*schedule.txt_enddate, "051227");
    const QString days = "Wednesday %1 Wednesday %2";
    EXPECT_EQ(range(), days.arg("02/03/27", "05/12/27"));
    choose(&frm_OMKOptions::opt_Dateform_ddmmyy);
    EXPECT_EQ(schedule.txt_startdate->Text(), "02/03/27");
    EXPECT_EQ(range(), days.arg("03/02/27", "12/05/27")) << "what is filled in stays as it was meant";
    EXPECT_EQ(hand::column(*schedule.lstv_Reminders, 1).count("Old"), 1);
    EXPECT_EQ(keeper.stored("SchedDetailText AS x FROM MAINTSCHED WHERE SchedTask = 'Old'"), "05/12/2027");
}

TEST_F(Reminders, AreScheduledWithinARangeThatIsChecked)
{
    insert("Feed", "'2026-01-01', '2029-12-31', 1, 0, 0, ''");
    insert("Dose", "'2026-03-02', '2026-03-03', 1, 1, 0, '1000000'"); // the next week is beyond its end
    hand::press(Qt::Key_S, Qt::ControlModifier);
    auto &schedule = Form<frm_Schedule>();
    const ListView &dates = *schedule.lstv_Reminders;
    click(*schedule.opt_DateRange);
    const auto generate = [&](const char *from, const char *to) {
        hand::type(*schedule.txt_startdate, from);
        hand::type(*schedule.txt_enddate, to);
        mouse::click(schedule.cmd_Generate);
    };
    const std::tuple<const char *, const char *, const char *> bad[] = {
        {"", "", "start date must be a valid date"},
        {"030826", "023026", "end date must be a valid date"},
        {"030826", "010130", "end date cannot be more than 30 years in the future or past the year 2029"},
        {"030826", "030726", "start date must be prior to, or equal to, the end date"},
    };
    for (const auto &[from, to, told] : bad) {
        generate(from, to);
        EXPECT_TRUE(keeper.told().startsWith(QString("0|Oops!/64/The ") + told)) << from << to;
    }
    generate("030826", "030826");
    EXPECT_EQ(hand::column(dates, 0) + ": " + hand::column(dates, 1), "Sunday 03/08/26 Sunday 03/08/26: Feed Dose");
    generate("123129", "123129");
    EXPECT_EQ(hand::column(dates, 1), "Feed");
    generate("123125", "123125");
    EXPECT_EQ(keeper.told(), "0|/0/No reminder has a date within this range.");
    click(*schedule.opt_2years);
    mouse::click(schedule.cmd_Generate);
    EXPECT_EQ(dates.Text(1) + ' ' + dates.Text(dates.Count()), "Saturday 03/14/26 Tuesday 03/14/28"); // two years
    execute("DELETE FROM MAINTSCHED");
    mouse::click(schedule.cmd_Generate);
    EXPECT_EQ(keeper.told(), "0|/0/No Reminder details found for maintenance schedule.");
}

TEST_F(Reminders, OnPaperAreNinetyNineOnTheFirstPageAndThenFifty)
{
    insert("Feed", "'2026-03-14', '2026-08-10', 1, 0, 0, ''"); // 150 days
    hand::press(Qt::Key_S, Qt::ControlModifier);
    auto &schedule = Form<frm_Schedule>();
    mouse::click(schedule.cmd_Generate);
    const QString sheet = keeper.folder.filePath("dates.csv");
    keeper.doors.printers = {PrintDialogAnswer{2}, std::nullopt, PrintDialogAnswer{1, 0, 0, {{}, sheet}}};
    hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
    mouse::click(schedule.cmd_Print); // cancelled
    mouse::click(schedule.cmd_Print); // without a printer, in a file
    EXPECT_TRUE(keeper.doors.printDialogs.back().offersSpreadsheet);
    const QByteArray csv = contentOf(keeper.folder.path())["dates.csv"];
    EXPECT_TRUE(csv.startsWith("date,reminder\r\n2026-03-14,\"Feed\"\r\n2026-03-15,")) << csv.toStdString();
    EXPECT_EQ(csv.count("\r\n"), 1 + 150);
    EXPECT_EQ(keeper.doors.printDialogs.at(0).title, "Print Maintenance Schedule");
    ASSERT_EQ(keeper.doors.documents.size(), 2u);
    for (const PrintedDocument &document : keeper.doors.documents) {
        QStringList firstOfPage;
        for (const PrintedPage &page : document.pages)
            if (page.find("Ostrelmark for Windows - Generated Maintenance Schedule"))
                firstOfPage << page.texts.at(2).text;
        // Days 1, 100 and 150: the first 99 go on the first of the test's pages.
        EXPECT_EQ(firstOfPage, QStringList({"Saturday 03/14/26", "Sunday 06/21/26", "Monday 08/10/26"}));
    }
}

TEST_F(Reminders, TheNameThatAScreenReaderHearsIsTheSentence)
{
    openList();
    inEditor(list->cmd_AddTask, [](frm_SchedNewAddEdit &w) {
        const QAccessibleInterface *sentence = QAccessible::queryAccessibleInterface(w.txt_EnglishDesc);
        const QString before = sentence->text(QAccessible::Name);
        EXPECT_EQ(before, w.txt_EnglishDesc->text());
        click(*w.opt_Weekly);
        EXPECT_NE(sentence->text(QAccessible::Name), before);
        EXPECT_EQ(sentence->text(QAccessible::Name), w.txt_EnglishDesc->text());
        EXPECT_TRUE(w.txt_EnglishDesc->accessibleName().isEmpty()) << "with one, the label tells no change of its text";
        hand::press(Qt::Key_Escape);
    });
}
