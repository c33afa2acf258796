#include "text/Dates.h"

#include <gtest/gtest.h>

#include "support/ScriptedDoors.h"

namespace {

const char *const orders[] = {"MMDDYY", "DDMMYY", "YYMMDD"};
const char *const delimiters[] = {"/", "-", "."};

/// The date as ISO text, "none" where there is none.
QString iso(const std::optional<QDate> &date) { return date ? date->toString(Qt::ISODate) : QStringLiteral("none"); }

TEST(Dates, NormalizerReadsByPosition)
{
    const struct
    {
        const char *text, *order, *normalized;
    } cases[] = {
        {"02/18/97", "MMDDYY", "02/18/97"}, {"18.02.97", "DDMMYY", "02/18/97"}, {"97-02-18", "YYMMDD", "02/18/97"},
        {"31/04/98", "DDMMYY", "04/31/98"}, {"1_/__/__", "MMDDYY", "1_/__/__"}, {"", "MMDDYY", "//"},
        {"02/18/97", "mmddyy", ""},
    };
    for (const auto &row : cases)
        EXPECT_EQ(NormalizeDateText(row.text, row.order), QString(row.normalized)) << row.text << ' ' << row.order;
}

TEST(Dates, ShownAndReadBackIsTheSameDayInEveryOrder)
{
    const ScriptedDoors doors;
    for (const char *order : orders)
        for (const char *delimiter : delimiters) {
            const QString picture = MakeDatePicture(order, delimiter);
            for (QDate day(1999, 12, 25); day < QDate(2001, 3, 5); day = day.addDays(1)) {
                const QString shown = Format(day, picture);
                ASSERT_EQ(shown.size(), 8);
                ASSERT_EQ(ReadDate(NormalizeDateText(shown, order)), day) << shown.toStdString() << ' ' << order;
            }
        }
    EXPECT_EQ(Format(QDate(1997, 2, 18), MakeDatePicture("DDMMYY", ".")), "18.02.97");
}

TEST(Dates, WhatIsADate)
{
    const ScriptedDoors doors;
    const struct
    {
        const char *text, *date;
    } cases[] = {
        {"02/29/00", "2000-02-29"},
        {"02/29/99", "none"},
        {"02/29/1900", "none"},
        {"2/9/2004", "2004-02-09"},
        {" 1/2/03 ", "2003-01-02"},
        {"1-2-03", "2003-01-02"},
        {"1.2.0103", "0103-01-02"},
        {"1/2/103", "0103-01-02"},
        {"1/2/0099", "none"},
        {"04/31/98", "none"},
        {"13/01/98", "none"},
        {"00/10/98", "none"},
        {"10/00/98", "none"},
        {"12/31/9999", "9999-12-31"},
        {"1_/__/2003", "none"},
        {" 1/ 2/03", "none"},
        {"__/__/__", "none"},
        {"  /  /  ", "none"},
        {"", "none"},
        {"1/2", "none"},
        {"1/2/03/4", "none"},
        {"1/2/03 x", "none"},
        {"001/2/03", "none"},
        {"1/2/12345", "none"},
        {"-1/2/03", "none"},
        {"1//2", "none"},
        {"\xd9\xa1/\xd9\xa2/03", "none"},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(iso(ReadDate(QString::fromUtf8(row.text))), QString(row.date)) << row.text;
        EXPECT_EQ(IsDate(QString::fromUtf8(row.text)), QString(row.date) != "none") << row.text;
    }
}

TEST(Dates, TheWindowOfTypedYearsSlidesOnlyWhenItMust)
{
    ScriptedDoors doors;
    const struct
    {
        int now;
        const char *text, *date;
    } cases[] = {
        {2026, "1/1/29", "2029-01-01"},   {2026, "1/1/30", "1930-01-01"}, {2026, "1/1/00", "2000-01-01"},
        {2026, "1/1/99", "1999-01-01"},   {2027, "1/1/30", "1930-01-01"}, {2028, "1/1/30", "2030-01-01"},
        {2028, "1/1/31", "1931-01-01"},   {2035, "1/1/37", "2037-01-01"}, {2035, "1/1/38", "1938-01-01"},
        {2035, "1/1/1930", "1930-01-01"}, {2099, "1/1/01", "2101-01-01"}, {2099, "1/1/02", "2002-01-01"},
        {1995, "1/1/29", "2029-01-01"},
    };
    for (const auto &row : cases) {
        doors.clock.setDate(QDate(row.now, 6, 1));
        EXPECT_EQ(iso(ReadDate(row.text)), QString(row.date)) << row.text << " in " << row.now;
    }
}

TEST(Dates, TypedDatesAreMonthFirstAndElseInTheUsersOrder)
{
    const ScriptedDoors doors;
    const struct
    {
        const char *text, *order, *date;
    } cases[] = {
        {"03/04/05", "DDMMYY", "2005-03-04"}, {"18/02/97", "DDMMYY", "1997-02-18"},
        {"97/02/18", "YYMMDD", "1997-02-18"}, {"2003-02-28", "YYMMDD", "2003-02-28"},
        {"03/02/18", "YYMMDD", "2018-03-02"}, {"18/02/97", "MMDDYY", "none"},
        {"31/04/98", "DDMMYY", "none"},       {"__/__/__", "DDMMYY", "none"},
    };
    for (const auto &row : cases)
        EXPECT_EQ(iso(ReadTypedDate(row.text, row.order)), QString(row.date)) << row.text << ' ' << row.order;
}

TEST(Dates, Pictures)
{
    const QDate day(2003, 2, 9); // a Sunday
    const struct
    {
        const char *picture, *shown;
    } cases[] = {
        {"mm/dd/yy", "02/09/03"},
        {"MM/DD/YYYY", "02/09/2003"},
        {"dddd mm/dd/yyyy", "Sunday 02/09/2003"},
        {"ddd mm/dd/yyyy", "Sun 02/09/2003"},
        {"yyyymmdd", "20030209"},
        {"m/d", "2/9"},
        {"mmmm", "February"},
        {"Mmm d", "Feb 9"},
        {"dddd ", "Sunday "},
        {"MMYY", "0203"},
        {"YYYY", "2003"},
        {"", ""},
        {"(dd)", "(09)"},
    };
    for (const auto &row : cases)
        EXPECT_EQ(Format(day, row.picture), row.shown);
    EXPECT_EQ(Format(QDate(), "mm/dd/yy"), "");
    EXPECT_EQ(Format(QDate(1930, 12, 31), "mm/dd/yy"), "12/31/30");
}

TEST(Dates, TimesAreReadAndShown)
{
    const struct
    {
        const char *text, *lower, *upper;
    } cases[] = {
        {"12:00:00 am", "12:00:00 am", "12:00:00 AM"}, {"12:00:01 PM", "12:00:01 pm", "12:00:01 PM"},
        {"01:02:03 Pm", "01:02:03 pm", "01:02:03 PM"}, {"11:59:59 pm", "11:59:59 pm", "11:59:59 PM"},
        {"13:05:00", "01:05:00 pm", "01:05:00 PM"},    {"0:00:00", "12:00:00 am", "12:00:00 AM"},
    };
    for (const auto &row : cases) {
        const auto time = ReadTime(row.text);
        ASSERT_TRUE(time) << row.text;
        EXPECT_EQ(Format(*time, "hh:mm:ss am/pm"), row.lower);
        EXPECT_EQ(Format(*time, "hh:mm:ss AM/PM"), row.upper);
        EXPECT_EQ(ReadTime(Format(*time, "hh:mm:ss")), time);
    }
    for (const char *text : {"", "13:00:00 pm", "00:00:00 am", "12:60:00 am", "12:00:60 am", "24:00:00", "12:00 am",
                             "1_:00:00 am", "12: 0:00 am", "am", "12:00:00 xm", "012:00:00"})
        EXPECT_FALSE(ReadTime(text)) << text;
}

TEST(Dates, TheTimeBoxWantsItsMarkerInOneCase)
{
    for (const char *text : {"01:02:03 am", "12:59:59 PM", "09:00:00 AM", "10:00:00 pm"})
        EXPECT_TRUE(IsBoxTime(text)) << text;
    for (const char *text : {"01:02:03 Am", "01:02:03 pM", "00:02:03 am", "13:02:03 pm", "01:60:03 am", "01:02:60 am",
                             "01:02:03 __", "01:02:03", "", "1:02:03 am", "01:02:0_ am"})
        EXPECT_FALSE(IsBoxTime(text)) << text;
}

TEST(Dates, MonthsAndYearsFallBackToTheLastDay)
{
    EXPECT_EQ(AddMonths(QDate(2003, 1, 31), 1), QDate(2003, 2, 28));
    EXPECT_EQ(AddMonths(QDate(2003, 10, 31), 4), QDate(2004, 2, 29));
    EXPECT_EQ(AddYears(QDate(2004, 2, 29), 1), QDate(2005, 2, 28));
    EXPECT_EQ(AddYears(QDate(2004, 2, 29), 4), QDate(2008, 2, 29));
}

} // namespace
