// Reminders through their windows: added, listed, scheduled, printed, changed and deleted by hand, with what the tool
// bar shows meanwhile. Today is Saturday, 14 March 2026.
#include "Desk.h"
#include "support/TestFiles.h"
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
        list = &Form<frm_Maintsched>();
    }
    frm_Schedule &openSchedule()
    {
        hand::press(Qt::Key_S, Qt::ControlModifier);
        return Form<frm_Schedule>();
    }
    void insert(const QString &task, const QString &rest)
    {
        execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                "SchedRSubtype, SchedDetailText) VALUES (?, " +
                    rest + ')',
                {task});
    }
    void inEditor(QPushButton *button, const Compose &action)
    {
        keeper.inNext<frm_SchedNewAddEdit>(action);
        mouse::click(button);
    }
    QString upcoming() const { return lines(*main->cbo_Reminders->model()); }
    QString row()
    {
        return keeper.stored("SchedTask || '|' || SchedStartDate || '|' || SchedEndDate || '|' || SchedInterval || '|' "
                             "|| SchedRtype || SchedRSubtype || '|' || SchedDetailText || '|' || SchedEnglishDesc "
                             "AS x FROM MAINTSCHED");
    }

    frm_Maintsched *list = nullptr;
};

TEST_F(Reminders, OfEachPatternAreStoredShownOnTheToolbarAndUnchangedByASecondSaveInAnotherOrder)
{
    const std::tuple<const char *, const char *, Compose> patterns[] = {
        {"200|10|0101000|Every 200 week(s) on Mon, Wed.", "Mon 16.03.26",
         [](frm_SchedNewAddEdit &w) {
             click(*w.opt_Weekly);
             hand::type(*w.txt_WeeklyWeeks, "200");
             click(*w.chk_WeeklyDay[1]);
             click(*w.chk_WeeklyDay[3]);
         }},
        {"1|21|46|The Last Saturday of every 1 month(s).", "Sat 28.03.26",
         [](frm_SchedNewAddEdit &w) {
             click(*w.opt_Monthly);
             EXPECT_TRUE(w.txt_MonthlyDay->isEnabled() && !w.cbo_MonthlyXth->isEnabled());
             click(*w.Opt_MonthlyXWeekdayofEveryMonth);
             w.cbo_MonthlyXth->setCurrentText("Last"); // today's weekday is already selected
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
        EXPECT_EQ(row().section('|', 0, 4), expected.section('|', 0, 4));
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
        click(*w.opt_Weekly);
        click(*w.chk_WeeklyDay[0]);
        mouse::click(w.cmd_OK);
        EXPECT_TRUE(keeper.told().startsWith("1|/0/That identical task already exists."));
        hand::type(*w.txt_TaskDescription, "Feet");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(hand::column(*list->lstv_MaintSched, 0), "Feed Feet");
    EXPECT_EQ(keeper.stored("group_concat(SchedTask || SchedDetailText) AS x FROM MAINTSCHED"), "Feed,Feet1000000");
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
    keeper.doors.clock = keeper.doors.clock.addYears(2);
    startWith("MMDDYY", "/");
    EXPECT_EQ(upcoming(), "") << "all dates are past, but the table is not empty";
}

TEST_F(Reminders, WithoutDatesAreNamedOnceLeftOutAndDeletedOnDemand)
{
    insert("January", "'2026-01-01', '2027-12-31', 5, 3, 0, '0'");
    insert("Endless", "'2026-01-01', NULL, 1, 0, 0, ''");
    insert("Stuck", "'2026-01-01', '2027-12-31', 0, 0, 0, ''");
    insert("Odd", "'2026-01-01', '2027-12-31', 5, 3, 0, 'x'");
    insert("Feed", "'2026-03-15', '2026-03-16', 2, 0, 0, ''");
    startWith("MMDDYY", "/"); // the program starts
    openList();
    EXPECT_EQ(upcoming(), "Sun 03/15/26 Feed");
    const QString told = keeper.told();
    for (const char *line :
         {"Reminders without dates/55/", "January (no list can show a yearly reminder of that date; make",
          "Odd (its month cannot be read)", "Endless (it has no end date)", "Stuck (its interval is not above 0)"})
        EXPECT_TRUE(told.contains(line)) << told.toStdString();
    auto &schedule = openSchedule();
    for (const auto &[answer, left] :
         {std::pair(MsgBoxAnswer::Skip, "January Endless Stuck Odd Feed"), {MsgBoxAnswer::Delete, "Feed"}}) {
        keeper.doors.answers = {answer};
        mouse::click(schedule.cmd_Generate);
        EXPECT_EQ(hand::column(*schedule.lstv_Reminders, 1), "Feed");
        EXPECT_EQ(keeper.told().count("Reminders without dates/55/"), 1);
        EXPECT_EQ(hand::column(*list->lstv_MaintSched, 0), left);
    }
    EXPECT_EQ(keeper.count("MAINTSCHED"), 1);
}

TEST_F(Reminders, StayTheirDaysWhenAnotherDateOrderIsChosen)
{
    startWith("YYMMDD", "/");
    insert("Old", "'2026-01-01', '2027-12-31', 1, 4, 0, '27/05/12'"); // in the form of earlier versions
    auto &schedule = openSchedule();
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        mouse::click(w.opt_Dateform_ddmmyy);
        mouse::click(w.cmdOK);
    });
    hand::choose(*main, *main->mnu_View, "mnu_ViewOptions");
    EXPECT_TRUE(isInFront(*main));
    EXPECT_EQ(keeper.stored("SchedDetailText AS x FROM MAINTSCHED"), "05/12/2027");
    mouse::click(schedule.cmd_Generate);
    EXPECT_EQ(hand::column(*schedule.lstv_Reminders, 0), "Wednesday 12/05/27");
}

TEST_F(Reminders, AreScheduledWithinARangeThatIsChecked)
{
    insert("Feed", "'2026-01-01', '2029-12-31', 1, 0, 0, ''");
    insert("Dose", "'2026-03-02', '2026-03-03', 1, 1, 0, '1000000'"); // the next week is beyond its end
    auto &schedule = openSchedule();
    const ListView &dates = *schedule.lstv_Reminders;
    click(*schedule.opt_DateRange);
    const QString start = "0|Oops!/64/The start date must be ", end = "0|Oops!/64/The end date ";
    const std::tuple<const char *, const char *, QString, const char *> rows[] = {
        {"", "", start + "a valid date", ""},
        {"030826", "023026", end + "must be a valid date", ""},
        {"030826", "010130", end + "cannot be more than 30 years in the future or past the year 2029", ""},
        {"030826", "030726", start + "prior to, or equal to, the end date", ""},
        {"030826", "030826", "0", "Feed Dose"},
        {"123129", "123129", "0", "Feed"},
        {"123125", "123125", "0|/0/No reminder has a date within this range.", ""},
    };
    for (const auto &[from, to, told, listed] : rows) {
        hand::type(*schedule.txt_startdate, from);
        hand::type(*schedule.txt_enddate, to);
        mouse::click(schedule.cmd_Generate);
        EXPECT_TRUE(keeper.told().startsWith(told)) << from << to;
        EXPECT_EQ(hand::column(dates, 1), listed) << from << to;
    }
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
    auto &schedule = openSchedule();
    mouse::click(schedule.cmd_Generate);
    const QString sheet = keeper.folder.filePath("dates.csv");
    keeper.doors.printers = {PrintDialogAnswer{2}, std::nullopt, PrintDialogAnswer{1, 0, 0, {{}, sheet}}};
    for (int time = 0; time < 3; ++time) // on paper, cancelled, and in a file
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
    const QByteArray csv = contentOf(keeper.folder.path())["dates.csv"];
    EXPECT_TRUE(csv.startsWith("date,reminder\r\n2026-03-14,\"Feed\"\r\n2026-03-15,")) << csv.toStdString();
    EXPECT_EQ(csv.count("\r\n"), 1 + 150);
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
