// What the editor asks: sentence, stored form, refusals in their order, the preview's complaints, and a rule that is
// opened and stored again.
#include <gtest/gtest.h>

#include "reminders/RuleFields.h"
#include "support/ScriptedDoors.h"
#include "text/Dates.h"

namespace {

const DateConventions american{"MMDDYY", "MM/DD/YY"};
const DateConventions german{"DDMMYY", "DD.MM.YY"};
const DateConventions japanese{"YYMMDD", "YY-MM-DD"};

/// A rule that may be stored, with a choice in each of its boxes.
EditorFields goodFields(Pattern pattern, bool secondVariant = false)
{
    EditorFields f;
    f.txt_TaskDescription = "Feed";
    f.txt_StartDate.text = "03/14/26";
    f.txt_endDate.text = "03/14/28";
    f.pattern = pattern;
    f.opt_DailyEveryWeekday = f.Opt_MonthlyXWeekdayofEveryMonth = f.opt_YearlyThe = secondVariant;
    f.txt_DailyDays = "3";
    f.txt_WeeklyWeeks = "2";
    f.chk_WeeklyDay = {false, true, false, true};
    f.txt_MonthlyDay = "15";
    f.txt_MonthlyNumofMonths2 = "2";
    f.cbo_MonthlyXth = 3;
    f.cbo_MonthlyWeekday = 1;
    f.cbo_YearlyMonth = 2;
    f.txt_YearlyDay = "5";
    f.cbo_YearlyXth = 4;
    f.cbo_YearlyWeekday = 6;
    f.cbo_YearlyMonth2 = 11;
    f.txt_OnceDate.text = "07/04/26";
    f.txt_EnglishDesc = EnglishSentence(f);
    return f;
}

using Change = void (*)(EditorFields &);

} // namespace

TEST(EditorFields, SentenceAndStoredForm)
{
    const ScriptedDoors doors;
    const struct
    {
        Pattern pattern;
        bool second;
        const char *sentence;
        int subtype, interval; // 7: what an earlier pattern left
        const char *detail;
    } cases[] = {
        {Pattern::Daily, false, "Every 3 days.", 0, 3, "left"},
        {Pattern::Daily, true, "Every Weekday (Mon, Tue, Wed, Thu, Fri).", 1, 3, "left"},
        {Pattern::Weekly, false, "Every 2 week(s) on Mon, Wed.", 7, 2, "0101000"},
        {Pattern::Monthly, false, "Day 15 of every 1 months.", 0, 1, "15"},
        {Pattern::Monthly, true, "The Forth Monday of every 2 month(s).", 1, 2, "31"},
        {Pattern::Yearly, false, "Every year on March 5.", 0, 5, "2"},
        {Pattern::Yearly, true, "The Last Saturday of every December.", 1, 7, "4611"},
        {Pattern::Once, false, "Only once on 07/04/26.", 7, 7, "07/04/26"},
    };
    for (const auto &row : cases) {
        const EditorFields fields = goodFields(row.pattern, row.second);
        EXPECT_EQ(fields.txt_EnglishDesc, row.sentence);
        RecurrenceRule rule;
        rule.RecurrenceInterval = rule.RecurrenceSubtype = 7;
        rule.RecurrenceDetail = "left";
        StoreRecurrence(fields, american, rule);
        EXPECT_EQ(rule, (RecurrenceRule{"Feed", QDate(2026, 3, 14), QDate(2028, 3, 14), qint16(row.interval),
                                        qint16(row.pattern), qint16(row.subtype), row.detail, row.sentence}))
            << row.sentence << ' ' << rule.RecurrenceDetail.toStdString();
    }
    EditorFields noDay = goodFields(Pattern::Weekly);
    noDay.chk_WeeklyDay = {};
    noDay.txt_WeeklyWeeks = "1";
    EXPECT_EQ(EnglishSentence(noDay), "Every 1 week(s) on .");
    EditorFields typing = goodFields(Pattern::Monthly);
    typing.txt_MonthlyDay = " 7%1";
    EXPECT_EQ(EnglishSentence(typing), "Day  7%1 of every 1 months.");
    EditorFields march = goodFields(Pattern::Yearly, true);
    march.cbo_YearlyXth = 1, march.cbo_YearlyWeekday = 2, march.cbo_YearlyMonth2 = 2;
    RecurrenceRule rule;
    StoreRecurrence(march, american, rule);
    EXPECT_EQ(rule.RecurrenceDetail, "1202");
}

TEST(EditorFields, RefusalsAndTheirLimits)
{
    const ScriptedDoors doors;
    const char *const day = "When choosing the same day of the every month, the day must be between 1 and 28.";
    const char *const months = "The number of months must be greater than 0.";
    const char *const yearly = "Please enter a valid combination of Month and Day (Sorry No February 29ths here).";
    const char *const later = "Your End Date must be greater than your Start date for recurring reminders.";
    const char *const days = "Enter the number of days apart you wish to schedule this reminder.";
    const char *const once = "Please enter a valid date, or choose one with the calendar.";
    const struct
    {
        Pattern pattern;
        bool second;
        Change change;
        const char *message; // empty: it passes
        const char *control;
    } cases[] = {
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_TaskDescription = "", f.txt_StartDate.text = ""; },
         "You must enter a description for this reminder.", "txt_TaskDescription"},
        {Pattern::Once, false, [](EditorFields &f) { f.txt_StartDate.text = "02/29/27", f.txt_endDate.text = ""; },
         "Please enter a valid date from which to begin your reminders.", "txt_StartDate"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_endDate.text = "__/__/__", f.txt_DailyDays = "0"; },
         "Please enter a valid date to end your recurring reminders.", "txt_endDate"},
        {Pattern::Once, false, [](EditorFields &f) { f.txt_endDate.text = f.txt_StartDate.text; }, later,
         "txt_endDate"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_endDate.text = "03/15/26"; }, "", ""},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_DailyDays = "abc"; }, days, "txt_DailyDays"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_DailyDays = "-3"; }, days, "txt_DailyDays"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_DailyDays = "0.4"; }, days, "txt_DailyDays"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_DailyDays = "40000"; }, days, "txt_DailyDays"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_DailyDays = "1,000"; }, "", ""},
        {Pattern::Daily, true, [](EditorFields &f) { f.txt_DailyDays = "0"; }, "", ""},
        {Pattern::Weekly, false, [](EditorFields &f) { f.txt_WeeklyWeeks = "0", f.chk_WeeklyDay = {}; },
         "The number of weeks must be greater than 0.", "txt_WeeklyWeeks"},
        {Pattern::Weekly, false, [](EditorFields &f) { f.chk_WeeklyDay = {}; },
         "Check the days of the week on which you wish to schedule this reminder.", "chk_WeeklyDay_0"},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyDay = "0"; }, day, "txt_MonthlyDay"},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyDay = "29"; }, day, "txt_MonthlyDay"},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyDay = "28", f.txt_MonthlyNumofMonths2 = "0"; }, "",
         ""},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyNumofMonths = ""; }, months,
         "txt_MonthlyNumofMonths"},
        {Pattern::Monthly, true, [](EditorFields &f) { f.cbo_MonthlyXth = -1; }, "Choose a frequency from the list.",
         "cbo_MonthlyXth"},
        {Pattern::Monthly, true, [](EditorFields &f) { f.cbo_MonthlyWeekday = -1; }, "Choose a weekday from the list.",
         "cbo_MonthlyWeekday"},
        {Pattern::Monthly, true, [](EditorFields &f) { f.txt_MonthlyNumofMonths2 = "0"; }, months,
         "txt_MonthlyNumofMonths2"},
        {Pattern::Monthly, true, [](EditorFields &f) { f.txt_MonthlyDay = "31", f.txt_MonthlyNumofMonths = "0"; }, "",
         ""},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = -1; }, "Choose a month.", "cbo_YearlyMonth"},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = 0, f.txt_YearlyDay = "31"; }, yearly,
         "txt_YearlyDay"},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = 0, f.txt_YearlyDay = "30"; }, "", ""},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = 1, f.txt_YearlyDay = "29"; }, yearly,
         "txt_YearlyDay"},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = 1, f.txt_YearlyDay = "28"; }, "", ""},
        {Pattern::Yearly, false, [](EditorFields &f) { f.txt_YearlyDay = "5x"; }, yearly, "txt_YearlyDay"},
        {Pattern::Yearly, true, [](EditorFields &f) { f.cbo_YearlyXth = -1; }, "Choose a frequency from the list.",
         "cbo_YearlyXth"},
        {Pattern::Yearly, true, [](EditorFields &f) { f.cbo_YearlyWeekday = -1; }, "Choose a weekday from the list.",
         "cbo_YearlyWeekday"},
        {Pattern::Yearly, true, [](EditorFields &f) { f.cbo_YearlyMonth2 = -1; }, "Choose a Month from the list.",
         "cbo_YearlyMonth2"},
        {Pattern::Yearly, true, [](EditorFields &f) { f.txt_YearlyDay = "31"; }, "", ""},
        {Pattern::Once, false, [](EditorFields &f) { f.txt_OnceDate.text = "31/12/26"; }, once, "txt_OnceDate"},
        {Pattern::Once, false, [](EditorFields &f) { f.txt_DailyDays = f.txt_WeeklyWeeks = "0"; }, "", ""},
    };
    for (const auto &row : cases) {
        EditorFields fields = goodFields(row.pattern, row.second);
        EXPECT_FALSE(EditFault(fields, american));
        row.change(fields);
        const auto fault = EditFault(fields, american).value_or(EditorComplaint{});
        EXPECT_EQ(fault.text, row.message);
        EXPECT_EQ(fault.control, row.control) << row.message;
        EXPECT_EQ(fault.title, *row.message ? "Oops" : "");
    }
}

TEST(EditorFields, PreviewNeedsNoTaskAndTellsWhatKeepsItFromDates)
{
    const ScriptedDoors doors;
    const struct
    {
        Pattern pattern;
        bool second;
        Change change;
        const char *control; // empty: there are dates
        const char *first;
    } cases[] = {
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_TaskDescription = ""; }, "", "2026-03-14"},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_StartDate.text = ""; }, "txt_StartDate", ""},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_endDate.text = ""; }, "txt_endDate", ""},
        {Pattern::Daily, false, [](EditorFields &f) { f.txt_DailyDays = "0"; }, "txt_DailyDays", ""},
        {Pattern::Daily, true, [](EditorFields &f) { f.txt_DailyDays = "0"; }, "", "2026-03-16"},
        {Pattern::Weekly, false, [](EditorFields &f) { f.txt_WeeklyWeeks = "0"; }, "txt_WeeklyWeeks", ""},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyDay = "29"; }, "", "2026-03-29"},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyDay = "32"; }, "txt_MonthlyDay", ""},
        {Pattern::Monthly, false, [](EditorFields &f) { f.txt_MonthlyNumofMonths = "0"; }, "txt_MonthlyNumofMonths",
         ""},
        {Pattern::Monthly, true, [](EditorFields &f) { f.cbo_MonthlyXth = -1; }, "cbo_MonthlyXth", ""},
        {Pattern::Monthly, true, [](EditorFields &f) { f.cbo_MonthlyWeekday = -1; }, "cbo_MonthlyWeekday", ""},
        {Pattern::Monthly, true, [](EditorFields &f) { f.txt_MonthlyNumofMonths2 = "0"; }, "txt_MonthlyNumofMonths2",
         ""},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = 0; }, "", "2027-01-05"},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = -1; }, "cbo_YearlyMonth", ""},
        {Pattern::Yearly, false, [](EditorFields &f) { f.txt_YearlyDay = "32"; }, "txt_YearlyDay", ""},
        {Pattern::Yearly, false, [](EditorFields &f) { f.cbo_YearlyMonth = 1, f.txt_YearlyDay = "30"; },
         "txt_YearlyDay", ""},
        {Pattern::Yearly, true, [](EditorFields &f) { f.cbo_YearlyXth = -1; }, "cbo_YearlyXth", ""},
        {Pattern::Yearly, true, [](EditorFields &f) { f.cbo_YearlyWeekday = -1; }, "cbo_YearlyWeekday", ""},
        {Pattern::Yearly, true, [](EditorFields &f) { f.cbo_YearlyMonth2 = -1; }, "cbo_YearlyMonth2", ""},
        {Pattern::Once, false, [](EditorFields &f) { f.txt_StartDate.text = ""; }, "", "2026-07-04"},
        {Pattern::Once, false, [](EditorFields &f) { f.txt_OnceDate.text = "31/12/26"; }, "txt_OnceDate", ""},
    };
    for (const auto &row : cases) {
        EditorFields fields = goodFields(row.pattern, row.second);
        row.change(fields);
        const RulePreview preview = MakePreview(fields, american);
        const auto complaint = preview.complaint.value_or(EditorComplaint{});
        EXPECT_EQ(complaint.control, row.control);
        EXPECT_EQ(complaint.text.isEmpty(), *row.control == 0) << row.control;
        EXPECT_EQ(preview.dates.empty() ? "" : preview.dates[0].toString(Qt::ISODate), row.first) << row.control;
    }
    EditorFields bad = goodFields(Pattern::Once);
    bad.txt_OnceDate.text = "";
    EXPECT_EQ(MakePreview(bad, american).complaint->text, "Enter a valid date to schedule your reminder");
    EXPECT_EQ(MakePreview(bad, american).complaint->title, "Ooops!");
}

TEST(EditorFields, OpenedAndStoredAgainARuleIsTheSameInEveryOrder)
{
    const ScriptedDoors doors;
    for (const DateConventions &dates : {american, german, japanese}) {
        for (int pattern = 0; pattern <= 4; ++pattern)
            for (const bool second : {false, true}) {
                RecurrenceRule rule;
                StoreRecurrence(goodFields(Pattern(pattern), second), american, rule);
                rule.EndDate = QDate(2047, 2, 3); // two digits would mean 1947
                rule.EnglishDescription = "A sentence that stands.";
                EditorFields fields;
                ShowRecurrence(rule, dates, fields);
                EXPECT_EQ(fields.txt_EnglishDesc, rule.EnglishDescription);
                EXPECT_FALSE(EditFault(fields, dates)) << pattern;
                RecurrenceRule again = rule;
                StoreRecurrence(fields, dates, again);
                if (rule.is(Pattern::Once)) { // the text follows the order, the date does not
                    EXPECT_EQ(ReadOnceDetail(again.RecurrenceDetail, dates.order), QDate(2026, 7, 4));
                    again.RecurrenceDetail = rule.RecurrenceDetail;
                }
                EXPECT_EQ(again, rule) << pattern << ' ' << again.RecurrenceDetail.toStdString();
            }
        for (QDate day(2027, 1, 1); day.year() < 2041; day = day.addDays(day.year() < 2028 ? 1 : 97)) {
            EditorFields fields = goodFields(Pattern::Once);
            fields.txt_OnceDate = PutDate(day, dates); // as the calendar does
            RecurrenceRule rule;
            StoreRecurrence(fields, dates, rule);
            ASSERT_EQ(ReadOnceDetail(rule.RecurrenceDetail, dates.order), day) << rule.RecurrenceDetail.toStdString();
            EditorFields shown;
            ShowRecurrence(rule, dates, shown);
            EXPECT_EQ(shown.txt_OnceDate.text, Format(day, dates.picture));
            StoreRecurrence(shown, dates, rule);
            ASSERT_EQ(ReadOnceDetail(rule.RecurrenceDetail, dates.order), day) << rule.RecurrenceDetail.toStdString();
        }
    }
}

TEST(EditorFields, ShowsAnUpgradedRuleAndRefusesStrangeDetails)
{
    const ScriptedDoors doors;
    RecurrenceRule old{"Old", QDate(1997, 3, 1), QDate(1999, 3, 1), 3, 0, 0, {}, {}};
    EditorFields fields = goodFields(Pattern::Once);
    ShowRecurrence(old, american, fields);
    EXPECT_EQ(fields.txt_DailyDays, "3");
    EXPECT_EQ(fields.txt_EnglishDesc, "Every 3 days.");
    EXPECT_EQ(fields.txt_OnceDate.text, "07/04/26") << "the other patterns keep what they have";

    RecurrenceRule seventh{"Blank", old.StartDate, old.EndDate, 1, 2, 0, " 7", {}};
    ShowRecurrence(seventh, american, fields);
    EXPECT_EQ(fields.txt_MonthlyDay, "7");

    RecurrenceRule once{"Once", old.StartDate, old.EndDate, 1, 4, 0, "one day", {}};
    ShowRecurrence(once, american, fields);
    EXPECT_EQ(EditFault(fields, american)->control, "txt_OnceDate");

    for (const auto &[type, subtype, detail] : {std::tuple{2, 1, "51"}, {2, 1, "0"}, {3, 0, "12"}, {3, 1, "00"}}) {
        const RecurrenceRule strange{"Strange",    old.StartDate,   old.EndDate, 1,
                                     qint16(type), qint16(subtype), detail,      {}};
        EXPECT_THROW(ShowRecurrence(strange, american, fields), RuntimeFailure) << detail;
    }
}
