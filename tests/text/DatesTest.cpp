// Tests of how dates and times are read.
#include "text/Dates.h"

#include <gtest/gtest.h>

#include "support/ScriptedDoors.h"

namespace {

struct Dates : testing::Test
{
    ScriptedDoors doors;
};

/// The date as ISO text, or "none".
QString iso(const std::optional<QDate> &date) { return date ? date->toString(Qt::ISODate) : QStringLiteral("none"); }

TEST_F(Dates, AreReadAsMonthDayYear)
{
    const struct
    {
        const char *text, *date;
        int now = 2026;
    } cases[] = {{"02/29/00", "2000-02-29"},     {"2/9/2004", "2004-02-09"},     {"1/2/03", "2003-01-02"},
                 {"1-2-03", "2003-01-02"},       {"1.2.0103", "0103-01-02"},     {"12/31/9999", "9999-12-31"},
                 {"1/1/29", "2029-01-01"},       {"1/1/30", "1930-01-01"},       {"1/1/30", "1930-01-01", 2027},
                 {"1/1/30", "2030-01-01", 2028}, {"1/1/31", "1931-01-01", 2028}, {"1/1/1930", "1930-01-01", 2035},
                 {"1/1/01", "2101-01-01", 2099}, {"1/1/02", "2002-01-01", 2099}};
    for (const auto &[text, date, now] : cases) {
        doors.clock.setDate(QDate(now, 6, 1));
        EXPECT_EQ(iso(ReadDate(text)), QString(date)) << text << " in " << now;
    }
    for (const char *none :
         {"02/29/1900", "1/2/12345", "1/2/0099", "04/31/98", "13/01/98", "00/10/98", "10/00/98", "1_/__/2003", "",
          "1/2", "1/2/03/4", "1/2/03 x", "001/2/03", "-1/2/03", "03/14/2 ", " 1/02/03", "\xd9\xa1/\xd9\xa2/03"})
        EXPECT_FALSE(ReadDate(QString::fromUtf8(none))) << none;
}

TEST_F(Dates, TypedOnesMayBeInTheKeepersOrder)
{
    const std::tuple<const char *, DateOrder, const char *> cases[] = {
        {"03/04/05", DateOrder::DDMMYY, "2005-03-04"}, {"18/02/97", DateOrder::DDMMYY, "1997-02-18"},
        {"97/02/18", DateOrder::YYMMDD, "1997-02-18"}, {"2003-02-28", DateOrder::YYMMDD, "2003-02-28"},
        {"03/02/18", DateOrder::YYMMDD, "2018-03-02"}, {"18/02/97", DateOrder::MMDDYY, "none"},
        {"31/04/98", DateOrder::DDMMYY, "none"},       {"__/__/__", DateOrder::DDMMYY, "none"},
    };
    for (const auto &[text, order, date] : cases)
        EXPECT_EQ(iso(ReadTypedDate(text, order)), QString(date)) << text << ' ' << WordOf(order).toStdString();
}

TEST_F(Dates, TimesAreReadBackAsShown)
{
    const std::tuple<const char *, const char *, bool> cases[] = {
        {"12:00:00 am", "12:00:00 AM", true},  {"12:00:01 PM", "12:00:01 PM", true},
        {"01:02:03 Pm", "01:02:03 PM", false}, {"13:05:00", "01:05:00 PM", false},
        {"1:02:03 am", "01:02:03 AM", false},  {"0:00:00", "12:00:00 AM", false},
    };
    for (const auto &[text, upper, inBox] : cases) {
        const auto time = ReadTime(text);
        ASSERT_TRUE(time) << text;
        EXPECT_EQ(Format(*time, "hh:mm:ss AM/PM"), upper);
        EXPECT_EQ(Format(*time, "hh:mm:ss am/pm"), QString(upper).toLower());
        EXPECT_EQ(ReadTime(Format(*time, "hh:mm:ss")), time);
        EXPECT_EQ(IsBoxTime(text), inBox) << text;
    }
    for (const char *text : {"", "13:00:00 pm", "00:00:00 am", "12:60:00 am", "12:00:60 am", "24:00:00", "12:00 am",
                             "1_:00:00 am", "12:00:00 xm", "012:00:00"})
        EXPECT_FALSE(ReadTime(text) || IsBoxTime(text)) << text;
}

} // namespace
