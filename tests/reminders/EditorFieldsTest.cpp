// Tests of the reminder editor without its window: the sentence, the stored form, the order of refusals, the complaints
// of the preview, and a rule that is opened and stored again.
#include <gtest/gtest.h>

#include "logic/reminders/RuleFields.h"
#include "support/ScriptedDoors.h"
#include "text/Dates.h"

namespace {

using Fields = EditorFields;

const DateConventions american{DateOrder::MMDDYY, "MM/DD/YY"};

/// Fields of a rule that can be stored.
Fields goodFields(Pattern pattern, bool secondVariant = false)
{
    Fields f;
    f.txt_TaskDescription = "Feed";
    f.txt_StartDate.text = "03/14/26";
    f.txt_endDate.text = "03/14/28";
    f.pattern = pattern;
    f.opt_DailyEveryWeekday = f.Opt_MonthlyXWeekdayofEveryMonth = f.opt_YearlyThe = secondVariant;
    f.chk_WeeklyDay = {false, true, false, true};
    f.txt_OnceDate.text = "07/04/26";
    return f;
}

/// The name of the control at fault, or an empty text.
QString refused(const Fields &fields) { return EditFault(fields, american).value_or(EditorComplaint{}).control; }

struct EditorFieldsTest : testing::Test
{
    ScriptedDoors doors;
};

TEST_F(EditorFieldsTest, FaultsAreReportedInTheirOrder)
{
    Fields f = goodFields(Pattern::Daily);
    f.txt_DailyDays = "0";
    const std::tuple<QString *, const char *, const char *> steps[] = {
        {&f.txt_endDate.text, "03/15/26", "txt_DailyDays"},
        {&f.txt_endDate.text, "03/14/26", "txt_endDate"},
        {&f.txt_endDate.text, "__/__/__", "txt_endDate"},
        {&f.txt_StartDate.text, "02/29/27", "txt_StartDate"},
        {&f.txt_TaskDescription, "", "txt_TaskDescription"}};
    for (const auto &[box, text, control] : steps) {
        *box = text;
        EXPECT_EQ(refused(f), control) << text;
    }
}

TEST_F(EditorFieldsTest, InvalidNumbersAndChoicesAreRefused)
{
    const struct
    {
        Pattern pattern;
        bool second;
        void (*change)(Fields &);
        const char *fault;      ///< the control; empty if the value passes
        bool previewed = false; ///< nevertheless
    } cases[] = {
        {Pattern::Daily, false, [](Fields &f) { f.txt_DailyDays = "65537"; }, "txt_DailyDays"},
        {Pattern::Daily, false, [](Fields &f) { f.txt_DailyDays = "1,000"; }, ""},
        {Pattern::Daily, true, [](Fields &f) { f.txt_DailyDays = "0"; }, ""},
        {Pattern::Weekly, false, [](Fields &f) { f.txt_WeeklyWeeks = "0"; }, "txt_WeeklyWeeks"},
        {Pattern::Monthly, false, [](Fields &f) { f.txt_MonthlyDay = "0"; }, "txt_MonthlyDay"},
        {Pattern::Monthly, false, [](Fields &f) { f.txt_MonthlyDay = "29"; }, "txt_MonthlyDay", true},
        {Pattern::Monthly, false, [](Fields &f) { f.txt_MonthlyNumofMonths = "0"; }, "txt_MonthlyNumofMonths"},
        {Pattern::Monthly, true, [](Fields &f) { f.txt_MonthlyNumofMonths2 = "0.4"; }, "txt_MonthlyNumofMonths2"},
        {Pattern::Monthly, true, [](Fields &f) { f.cbo_MonthlyXth = -1; }, "cbo_MonthlyXth"},
        {Pattern::Monthly, true, [](Fields &f) { f.cbo_MonthlyWeekday = -1; }, "cbo_MonthlyWeekday"},
        {Pattern::Yearly, false, [](Fields &f) { f.txt_YearlyDay = "30"; }, ""},
        {Pattern::Yearly, false, [](Fields &f) { f.txt_YearlyDay = "31"; }, "txt_YearlyDay", true},
        {Pattern::Yearly, false, [](Fields &f) { f.txt_YearlyDay = "5x"; }, "txt_YearlyDay", true},
        {Pattern::Yearly, true, [](Fields &f) { f.txt_YearlyDay = "32"; }, ""},
        {Pattern::Yearly, true, [](Fields &f) { f.cbo_YearlyXth = -1; }, "cbo_YearlyXth"},
        {Pattern::Yearly, true, [](Fields &f) { f.cbo_YearlyWeekday = -1; }, "cbo_YearlyWeekday"},
        {Pattern::Yearly, true, [](Fields &f) { f.cbo_YearlyMonth2 = -1; }, "cbo_YearlyMonth2"},
    };
    for (int row = 0; const auto &[pattern, second, change, fault, previewed] : cases) {
        SCOPED_TRACE(++row);
        Fields fields = goodFields(pattern, second);
        change(fields);
        EXPECT_EQ(refused(fields), fault);
        const RulePreview preview = MakePreview(fields, american);
        EXPECT_EQ(preview.complaint.value_or(EditorComplaint{}).control, previewed ? "" : fault);
        EXPECT_EQ(preview.dates.empty(), preview.complaint.has_value());
    }
    Fields february = goodFields(Pattern::Yearly);
    february.cbo_YearlyMonth = 1;
    february.txt_YearlyDay = "29";
    EXPECT_EQ(refused(february), "txt_YearlyDay");
}

TEST_F(EditorFieldsTest, ShowsAnUpgradedRuleAndAsksForWhatAStrangeDetailDoesNotTell)
{
    const QDate start(1997, 3, 1), end(2047, 3, 1); // with two digits, its year would mean 1947
    Fields fields = goodFields(Pattern::Once);
    RecurrenceRule rule{"Old", start, end, 3, 0, 0, {}, {}};
    ShowRecurrence(rule, american, fields);
    EXPECT_EQ(fields.txt_DailyDays + fields.txt_EnglishDesc, "3Every 3 days.");
    EXPECT_EQ(fields.txt_OnceDate.text, "07/04/26") << "the other patterns keep what they have";
    StoreRecurrence(fields, american, rule);
    EXPECT_EQ(rule.EndDate, end);
    const std::tuple<int, int, const char *, const char *> details[] = {
        {2, 0, " 7", ""},
        {2, 1, "51", ""},
        {2, 1, "0", "cbo_MonthlyWeekday"},
        {3, 0, "12", "cbo_YearlyMonth"},
        {3, 1, "00", "cbo_YearlyMonth2"},
        {3, 1, "0812", "cbo_YearlyWeekday"},
        {4, 0, "one day", "txt_OnceDate"},
    };
    for (const auto &[type, subtype, detail, asked] : details) {
        ShowRecurrence({"Odd", start, end, 1, qint16(type), qint16(subtype), detail, {}}, american, fields);
        EXPECT_EQ(refused(fields), asked) << detail;
        EXPECT_TRUE(fields.cbo_MonthlyXth <= lastOrdinal && !fields.txt_MonthlyDay.contains(' '));
    }
}

TEST_F(EditorFieldsTest, AOnceDateIsStoredAsTypedWhereThatIsTheDateMonthFirstElseSoThatItStaysItsDay)
{
    const DateConventions german{DateOrder::DDMMYY, "DD.MM.YY"}, iso{DateOrder::YYMMDD, "YY-MM-DD"};
    const std::tuple<DateConventions, DateBox, QString> rows[] = {
        {american, {"07/04/26", {}}, "07/04/26"},
        {german, {"04.07.26", {}}, "04.07.26"}, // the 7th of April in every order
        {german, {"20.03.26", {}}, "03/20/2026"},
        {iso, {"27-05-12", {}}, "05/12/2027"},
        {iso, {"05-12-27", {}}, "05-12-27"},
        {german, PutDate(QDate(2026, 7, 4), german), "07/04/2026"}, // chosen in the calendar
        {american, PutDate(QDate(2030, 11, 16), american), "11/16/2030"},
    };
    for (const auto &[dates, box, detail] : rows) {
        Fields fields = goodFields(Pattern::Once);
        fields.txt_OnceDate = box;
        RecurrenceRule rule;
        StoreRecurrence(fields, dates, rule);
        EXPECT_EQ(rule.RecurrenceDetail, detail) << box.text.toStdString();
        for (const DateOrder order : {DateOrder::MMDDYY, DateOrder::DDMMYY, DateOrder::YYMMDD})
            EXPECT_EQ(ReadOnceDetail(detail, order), ReadOnceDate(box, dates)) << WordOf(order).toStdString();
    }
}

} // namespace
