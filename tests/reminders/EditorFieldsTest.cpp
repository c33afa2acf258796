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

} // namespace

TEST(EditorFields, WhatIsNoNumberYetStandsInTheSentenceAndPlacesMakeTheDetail)
{
    const ScriptedDoors doors;
    EditorFields typing = goodFields(Pattern::Monthly);
    typing.txt_MonthlyDay = " 7%1";
    EXPECT_EQ(EnglishSentence(typing), "Day  7%1 of every 1 months.");
    RecurrenceRule rule;
    rule.RecurrenceInterval = 7; // left by an earlier pattern, and not this one's
    StoreRecurrence(goodFields(Pattern::Yearly, true), american, rule);
    EXPECT_EQ(rule.RecurrenceDetail, "4611");
    EXPECT_EQ(rule.RecurrenceInterval, 7);
}

TEST(EditorFields, RefusalsComeInTheirOrder)
{
    const ScriptedDoors doors;
    EditorFields f = goodFields(Pattern::Daily);
    const auto expectRefused = [&f](const char *message, const char *control) {
        const auto fault = EditFault(f, american).value_or(EditorComplaint{});
        EXPECT_EQ(fault.text, message);
        EXPECT_EQ(fault.control, control) << message;
    };
    f.txt_endDate.text = "03/15/26";
    expectRefused("", "");
    f.txt_DailyDays = "0";
    f.txt_endDate.text = f.txt_StartDate.text;
    expectRefused("Your End Date must be greater than your Start date for recurring reminders.", "txt_endDate");
    f.txt_endDate.text = "__/__/__";
    expectRefused("Please enter a valid date to end your recurring reminders.", "txt_endDate");
    f.txt_StartDate.text = "02/29/27";
    expectRefused("Please enter a valid date from which to begin your reminders.", "txt_StartDate");
    f.txt_TaskDescription = "";
    expectRefused("You must enter a description for this reminder.", "txt_TaskDescription");
    f = goodFields(Pattern::Once);
    f.txt_OnceDate.text = "31/12/26";
    expectRefused("Please enter a valid date, or choose one with the calendar.", "txt_OnceDate");
}

TEST(EditorFields, NumbersAreRefusedAndLessStrictlyPreviewed)
{
    const ScriptedDoors doors;
    const char *const day = "When choosing the same day of the every month, the day must be between 1 and 28.";
    const char *const months = "The number of months must be greater than 0.";
    const char *const weeks = "The number of weeks must be greater than 0.";
    const char *const days = "Enter the number of days apart you wish to schedule this reminder.";
    const char *const yearly = "Please enter a valid combination of Month and Day (Sorry No February 29ths here).";
    using Fields = EditorFields;
    const struct
    {
        Pattern pattern;
        bool second;
        QString Fields::*box;
        const char *name, *text, *message; // empty: it passes
        bool previewed;
    } cases[] = {
        {Pattern::Daily, false, &Fields::txt_DailyDays, "txt_DailyDays", "0.4", days, false},
        {Pattern::Daily, false, &Fields::txt_DailyDays, "txt_DailyDays", "40000", days, false},
        {Pattern::Daily, false, &Fields::txt_DailyDays, "txt_DailyDays", "1,000", "", true},
        {Pattern::Daily, true, &Fields::txt_DailyDays, "", "0", "", true},
        {Pattern::Weekly, false, &Fields::txt_WeeklyWeeks, "txt_WeeklyWeeks", "0", weeks, false},
        {Pattern::Monthly, false, &Fields::txt_MonthlyDay, "txt_MonthlyDay", "0", day, false},
        {Pattern::Monthly, false, &Fields::txt_MonthlyDay, "txt_MonthlyDay", "29", day, true},
        {Pattern::Monthly, false, &Fields::txt_MonthlyNumofMonths, "txt_MonthlyNumofMonths", "0", months, false},
        {Pattern::Monthly, true, &Fields::txt_MonthlyNumofMonths2, "txt_MonthlyNumofMonths2", "0", months, false},
        {Pattern::Monthly, true, &Fields::txt_MonthlyDay, "", "31", "", true},
        {Pattern::Yearly, false, &Fields::txt_YearlyDay, "txt_YearlyDay", "32", yearly, false},
        {Pattern::Yearly, false, &Fields::txt_YearlyDay, "txt_YearlyDay", "5x", yearly, true},
        {Pattern::Yearly, true, &Fields::txt_YearlyDay, "", "31", "", true},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(std::string(row.name) + ' ' + row.text);
        EditorFields fields = goodFields(row.pattern, row.second);
        fields.*row.box = row.text;
        const auto fault = EditFault(fields, american).value_or(EditorComplaint{});
        EXPECT_EQ(fault.text, row.message);
        EXPECT_EQ(fault.control, *row.message ? row.name : "");
        const RulePreview preview = MakePreview(fields, american);
        EXPECT_EQ(preview.dates.empty(), !row.previewed);
        EXPECT_EQ(preview.complaint.value_or(EditorComplaint{}).control, row.previewed ? "" : row.name);
    }
    EditorFields last = goodFields(Pattern::Yearly);
    for (const auto &[month, lastDay] : {std::pair{0, 30}, {1, 28}})
        for (const int over : {0, 1}) {
            last.cbo_YearlyMonth = month;
            last.txt_YearlyDay = QString::number(lastDay + over);
            EXPECT_EQ(EditFault(last, american).value_or(EditorComplaint{}).text, over ? yearly : "") << month;
        }
}

TEST(EditorFields, EachChoiceIsWanted)
{
    const ScriptedDoors doors;
    using Fields = EditorFields;
    for (const auto &[box, name] : {std::pair{&Fields::cbo_MonthlyXth, "cbo_MonthlyXth"},
                                    {&Fields::cbo_MonthlyWeekday, "cbo_MonthlyWeekday"},
                                    {&Fields::cbo_YearlyMonth, "cbo_YearlyMonth"},
                                    {&Fields::cbo_YearlyXth, "cbo_YearlyXth"},
                                    {&Fields::cbo_YearlyWeekday, "cbo_YearlyWeekday"},
                                    {&Fields::cbo_YearlyMonth2, "cbo_YearlyMonth2"}}) {
        const bool monthly = QString(name).startsWith("cbo_Monthly");
        Fields fields = goodFields(monthly ? Pattern::Monthly : Pattern::Yearly, box != &Fields::cbo_YearlyMonth);
        EXPECT_FALSE(EditFault(fields, american) || MakePreview(fields, american).complaint) << name;
        fields.*box = -1;
        EXPECT_EQ(EditFault(fields, american).value_or(EditorComplaint{}).control, name);
        EXPECT_EQ(MakePreview(fields, american).complaint.value_or(EditorComplaint{}).control, name);
    }
}

TEST(EditorFields, AOnceDateIsTheSameDayInEveryOrderAndCentury)
{
    const ScriptedDoors doors;
    for (const DateConventions &dates : {american, german, japanese})
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

TEST(EditorFields, ShowsAnUpgradedRuleAndRefusesStrangeDetails)
{
    const ScriptedDoors doors;
    const QDate start(1997, 3, 1), end(2047, 3, 1); // two digits would mean 1947
    RecurrenceRule old{"Old", start, end, 3, 0, 0, {}, {}};
    EditorFields fields = goodFields(Pattern::Once);
    ShowRecurrence(old, american, fields);
    EXPECT_EQ(fields.txt_DailyDays, "3");
    EXPECT_EQ(fields.txt_EnglishDesc, "Every 3 days.");
    EXPECT_EQ(fields.txt_OnceDate.text, "07/04/26") << "the other patterns keep what they have";
    StoreRecurrence(fields, american, old);
    EXPECT_EQ(old.EndDate, end);
    ShowRecurrence({"Blank", start, end, 1, 2, 0, " 7", {}}, american, fields);
    EXPECT_EQ(fields.txt_MonthlyDay, "7");
    ShowRecurrence({"Once", start, end, 1, 4, 0, "one day", {}}, american, fields);
    EXPECT_EQ(EditFault(fields, american)->control, "txt_OnceDate");
    for (const auto &[type, subtype, detail] : {std::tuple{2, 1, "51"}, {2, 1, "0"}, {3, 0, "12"}, {3, 1, "00"}})
        EXPECT_THROW(
            ShowRecurrence({"Strange", start, end, 1, qint16(type), qint16(subtype), detail, {}}, american, fields),
            RuntimeFailure)
            << detail;
}
