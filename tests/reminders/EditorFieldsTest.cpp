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
    f.txt_EnglishDesc = EnglishSentence(f);
    return f;
}

/// The name of the control at fault, or an empty text.
QString refused(const Fields &fields) { return EditFault(fields, american).value_or(EditorComplaint{}).control; }
QString complainedOf(const Fields &fields)
{
    return MakePreview(fields, american).complaint.value_or(EditorComplaint{}).control;
}

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
    f = goodFields(Pattern::Once);
    f.txt_OnceDate.text = "31/12/26";
    EXPECT_EQ(refused(f), "txt_OnceDate");
}

TEST_F(EditorFieldsTest, InvalidNumbersAndChoicesAreRefused)
{
    const struct
    {
        Pattern pattern;
        bool second;
        QString Fields::*box;
        const char *name, *text; ///< no name if the value passes
        bool previewed = false;
    } cases[] = {
        {Pattern::Daily, false, &Fields::txt_DailyDays, "txt_DailyDays", "0.4"},
        {Pattern::Daily, false, &Fields::txt_DailyDays, "txt_DailyDays", "65537"},
        {Pattern::Daily, false, &Fields::txt_DailyDays, "", "1,000", true},
        {Pattern::Daily, true, &Fields::txt_DailyDays, "", "0", true},
        {Pattern::Weekly, false, &Fields::txt_WeeklyWeeks, "txt_WeeklyWeeks", "0"},
        {Pattern::Monthly, false, &Fields::txt_MonthlyDay, "txt_MonthlyDay", "0"},
        {Pattern::Monthly, false, &Fields::txt_MonthlyDay, "txt_MonthlyDay", "29", true},
        {Pattern::Monthly, false, &Fields::txt_MonthlyNumofMonths, "txt_MonthlyNumofMonths", "0"},
        {Pattern::Monthly, true, &Fields::txt_MonthlyNumofMonths2, "txt_MonthlyNumofMonths2", "0"},
        {Pattern::Yearly, false, &Fields::txt_YearlyDay, "txt_YearlyDay", "32"},
        {Pattern::Yearly, false, &Fields::txt_YearlyDay, "txt_YearlyDay", "5x", true},
        {Pattern::Yearly, true, &Fields::txt_YearlyDay, "", "31", true}, // not checked
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(std::string(row.name) + ' ' + row.text);
        Fields fields = goodFields(row.pattern, row.second);
        fields.*row.box = row.text;
        EXPECT_EQ(refused(fields), row.name);
        EXPECT_EQ(MakePreview(fields, american).dates.empty(), !row.previewed);
        EXPECT_EQ(complainedOf(fields), row.previewed ? "" : row.name);
    }
    for (const auto &[box, name] : {std::pair{&Fields::cbo_MonthlyXth, "cbo_MonthlyXth"},
                                    {&Fields::cbo_MonthlyWeekday, "cbo_MonthlyWeekday"},
                                    {&Fields::cbo_YearlyXth, "cbo_YearlyXth"},
                                    {&Fields::cbo_YearlyWeekday, "cbo_YearlyWeekday"},
                                    {&Fields::cbo_YearlyMonth2, "cbo_YearlyMonth2"}}) {
        Fields chosen = goodFields(QString(name).contains("Yearly") ? Pattern::Yearly : Pattern::Monthly, true);
        chosen.*box = -1;
        EXPECT_EQ(refused(chosen) + ' ' + complainedOf(chosen), QString("%1 %1").arg(name));
    }
    Fields last = goodFields(Pattern::Yearly);
    for (const auto &[month, day, good] :
         {std::tuple{0, "30", true}, {0, "31", false}, {1, "28", true}, {1, "29", false}}) {
        last.cbo_YearlyMonth = month;
        last.txt_YearlyDay = day;
        EXPECT_EQ(refused(last), good ? "" : "txt_YearlyDay") << month;
    }
}

TEST_F(EditorFieldsTest, ShowsAnUpgradedRuleAndAsksForWhatAStrangeDetailDoesNotTell)
{
    const QDate start(1997, 3, 1), end(2047, 3, 1); // with two digits, its year would mean 1947
    RecurrenceRule old{"Old", start, end, 3, 0, 0, {}, {}};
    Fields fields = goodFields(Pattern::Once);
    ShowRecurrence(old, american, fields);
    EXPECT_EQ(fields.txt_DailyDays + fields.txt_EnglishDesc, "3Every 3 days.");
    EXPECT_EQ(fields.txt_OnceDate.text, "07/04/26") << "the other patterns keep what they have";
    StoreRecurrence(fields, american, old);
    EXPECT_EQ(old.EndDate, end);
    ShowRecurrence({"Blank", start, end, 1, 2, 0, " 7", {}}, american, fields);
    EXPECT_EQ(fields.txt_MonthlyDay, "7");
    ShowRecurrence({"Once", start, end, 1, 4, 0, "one day", {}}, american, fields);
    EXPECT_EQ(refused(fields), "txt_OnceDate");
    ShowRecurrence({"Beyond", start, end, 1, 2, 1, "51", {}}, american, fields);
    EXPECT_EQ(fields.cbo_MonthlyXth, lastOrdinal) << "as the walk takes it";
    for (const auto &[type, subtype, detail, asked] : {std::tuple{2, 1, "0", "cbo_MonthlyWeekday"},
                                                       {2, 1, "x1", "cbo_MonthlyXth"},
                                                       {3, 0, "12", "cbo_YearlyMonth"},
                                                       {3, 0, "", "cbo_YearlyMonth"},
                                                       {3, 1, "00", "cbo_YearlyMonth2"},
                                                       {3, 1, "0812", "cbo_YearlyWeekday"}}) {
        const RecurrenceRule strange{
            "Strange", QDate(2026, 3, 1), QDate(2027, 3, 1), 1, qint16(type), qint16(subtype), detail, {}};
        Fields shown = goodFields(Pattern::Daily);
        ShowRecurrence(strange, american, shown);
        EXPECT_EQ(refused(shown), asked) << detail;
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
        {american, PutDate(QDate(2026, 7, 4), american), "07/04/26"},
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
            EXPECT_EQ(ReadOnceDetail(rule.RecurrenceDetail, order), ReadOnceDate(box, dates))
                << WordOf(order).toStdString();
    }
}

} // namespace
