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
    EXPECT_EQ(NormalizeDateText("31/04/98", "DDMMYY"), "04/31/98");
    EXPECT_EQ(NormalizeDateText("1_/__/__", "MMDDYY"), "1_/__/__");
    EXPECT_EQ(NormalizeDateText("", "MMDDYY"), "//");
    EXPECT_EQ(NormalizeDateText("02/18/97", "mmddyy"), "");
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
    const std::pair<const char *, const char *> dates[] = {{"02/29/00", "2000-02-29"}, {"2/9/2004", "2004-02-09"},
                                                           {" 1/2/03 ", "2003-01-02"}, {"1-2-03", "2003-01-02"},
                                                           {"1.2.0103", "0103-01-02"}, {"12/31/9999", "9999-12-31"}};
    for (const auto &[text, date] : dates)
        EXPECT_EQ(iso(ReadDate(text)), QString(date)) << text;
    for (const char *none :
         {"02/29/1900", "1/2/12345", "1/2/0099", "04/31/98", "13/01/98", "00/10/98", "10/00/98", "1_/__/2003", "",
          "1/2", "1/2/03/4", "1/2/03 x", "001/2/03", "-1/2/03", "\xd9\xa1/\xd9\xa2/03"})
        EXPECT_FALSE(ReadDate(QString::fromUtf8(none))) << none;
}

TEST(Dates, TheWindowOfTypedYearsSlidesOnlyWhenItMust)
{
    ScriptedDoors doors;
    const struct
    {
        int now;
        const char *text, *date;
    } cases[] = {{2026, "1/1/29", "2029-01-01"},   {2026, "1/1/30", "1930-01-01"}, {2026, "1/1/00", "2000-01-01"},
                 {2027, "1/1/30", "1930-01-01"},   {2028, "1/1/30", "2030-01-01"}, {2028, "1/1/31", "1931-01-01"},
                 {2035, "1/1/1930", "1930-01-01"}, {2099, "1/1/01", "2101-01-01"}, {2099, "1/1/02", "2002-01-01"}};
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
    const std::pair<const char *, const char *> cases[] = {{"dddd mm/dd/yyyy", "Sunday 02/09/2003"},
                                                           {"yyyymmdd", "20030209"},
                                                           {"m/d", "2/9"},
                                                           {"mmmm", "February"},
                                                           {"ddd Mmm d", "Sun Feb 9"},
                                                           {"MMYY", "0203"},
                                                           {"(dd)", "(09)"},
                                                           {"", ""}};
    for (const auto &[picture, shown] : cases)
        EXPECT_EQ(Format(QDate(2003, 2, 9), picture), shown);
    EXPECT_EQ(Format(QDate(), "mm/dd/yy"), "");
}

TEST(Dates, TimesAreReadAndShown)
{
    const std::pair<const char *, const char *> cases[] = {{"12:00:00 am", "12:00:00 AM"},
                                                           {"12:00:01 PM", "12:00:01 PM"},
                                                           {"01:02:03 Pm", "01:02:03 PM"},
                                                           {"13:05:00", "01:05:00 PM"},
                                                           {"0:00:00", "12:00:00 AM"}};
    for (const auto &[text, upper] : cases) {
        const auto time = ReadTime(text);
        ASSERT_TRUE(time) << text;
        EXPECT_EQ(Format(*time, "hh:mm:ss AM/PM"), upper);
        EXPECT_EQ(Format(*time, "hh:mm:ss am/pm"), QString(upper).toLower());
        EXPECT_EQ(ReadTime(Format(*time, "hh:mm:ss")), time);
    }
    for (const char *text : {"", "13:00:00 pm", "00:00:00 am", "12:60:00 am", "12:00:60 am", "24:00:00", "12:00 am",
                             "1_:00:00 am", "12:00:00 xm", "012:00:00"})
        EXPECT_FALSE(ReadTime(text)) << text;
}

TEST(Dates, TheTimeBoxWantsItsMarkerInOneCase)
{
    for (const char *text : {"01:02:03 am", "12:59:59 PM"})
        EXPECT_TRUE(IsBoxTime(text)) << text;
    for (const char *text : {"01:02:03 Am", "00:02:03 am", "13:02:03 pm", "01:60:03 am", "01:02:03", "1:02:03 am"})
        EXPECT_FALSE(IsBoxTime(text)) << text;
}

TEST(Dates, MonthsAndYearsFallBackToTheLastDay)
{
    EXPECT_EQ(AddMonths(QDate(2003, 10, 31), 4), QDate(2004, 2, 29));
    EXPECT_EQ(AddYears(QDate(2004, 2, 29), 1), QDate(2005, 2, 28));
}

} // namespace
