#include "text/Numbers.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/ScriptedDoors.h"

TEST(Numbers, ValReadsTheNumberAtTheStartOfAText)
{
    const std::pair<const char *, double> whole[] = {
        {" 7 ", 7},       {"+3", 3},     {"-.5", -0.5}, {"5.", 5},    {"1,234,567.8", 1234567.8},
        {"1.5E-1", 0.15}, {"1e+2", 100}, {"007", 7},    {"1e-400", 0}};
    for (const auto &[text, value] : whole) {
        EXPECT_TRUE(IsNumeric(text)) << text;
        EXPECT_EQ(Val(text), value) << text;
        EXPECT_EQ(ReadNumber(text), std::optional(value)) << text;
    }
    const std::pair<const char *, double> starts[] = {
        {"", 0},    {"abc", 0}, {"12ab", 12}, {"1,000x", 1}, {"1.2.3", 1.2}, {".", 0},
        {"-", 0},   {"1e+", 1}, {"1,", 1},    {",5", 0},     {"1,,2", 1},    {"1.5,0", 1.5},
        {"1 2", 1}, {"- 3", 0}, {"0x10", 0},  {"nan", 0},    {"\xd9\xa1", 0}};
    for (const auto &[start, value] : starts) {
        const QString text = QString::fromUtf8(start);
        EXPECT_FALSE(IsNumeric(text) || ReadNumber(text)) << start;
        EXPECT_EQ(Val(text), value) << start;
    }
    for (const char *beyond : {"1e400", "1e99999999999999999999", "10e9223372036854775807"}) {
        EXPECT_TRUE(IsNumeric(beyond) && !ReadNumber(beyond));
        EXPECT_EQ(Val('-' + QString(beyond)), -std::numeric_limits<double>::max());
    }
}

TEST(Numbers, FormatRoundsAndCutsNothingOff)
{
    const struct
    {
        double value;
        const char *picture, *shown;
    } cases[] = {
        {8.4, "##0.000", "8.400"}, {-2.675, "0.00", "-2.68"},   {1.005, "#0.00", "1.01"}, {0.1 + 0.2, "0.00", "0.30"},
        {0.49999, "###0", "0"},    {-0.001, "0.00", "0.00"},    {12345, "#0", "12345"},   {9.9996, "#0.000", "10.000"},
        {12.5, "#.##", "12.5"},    {0.25, "$#0.00!", "$0.25!"}, {7, "000", "007"},        {999, "#,##0.0", "999.0"},
        {-HUGE_VAL, "0", "-inf"},  {std::nan(""), "0", "nan"},
    };
    for (const auto &[value, picture, shown] : cases)
        EXPECT_EQ(Format(value, picture), shown) << value << ' ' << picture;
    EXPECT_EQ(Format(-1234567.89125, "###,###,###,###,##0.0000"), "-1,234,567.8913");
    EXPECT_EQ(Format(-1e21, "#,##0"), "-1,000,000,000,000,000,000,000");
    EXPECT_EQ(Format(1e300, "0.00"), '1' + QString(300, u'0') + ".00");
}

TEST(Numbers, PlainTextShowsFifteenDigits)
{
    const std::pair<double, const char *> cases[] = {
        {-0.0, "0"}, {1e14, "100000000000000"}, {1e15, "1E+15"}, {0.0001, "0.0001"}, {0.00001234, "1.234E-05"}};
    for (const auto &[value, text] : cases)
        EXPECT_EQ(PlainText(value), text);
    EXPECT_EQ(PlainText(0.1 + 0.2), "0.3");
    EXPECT_EQ(PlainText(1.0 / 3), "0.333333333333333");
}
