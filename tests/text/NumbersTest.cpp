#include "text/Numbers.h"

#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "support/ScriptedDoors.h"

namespace {

constexpr double largest = std::numeric_limits<double>::max();

TEST(Numbers, WholeTextsAndTheirStarts)
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
        EXPECT_FALSE(IsNumeric(text)) << start;
        EXPECT_EQ(Val(text), value) << start;
        EXPECT_EQ(ReadNumber(text), std::nullopt) << start;
    }
    for (const char *beyond : {"1e400", "1e99999999999999999999", "10e9223372036854775807"}) {
        EXPECT_TRUE(IsNumeric(beyond));
        EXPECT_EQ(Val(beyond), largest);
        EXPECT_EQ(Val('-' + QString(beyond)), -largest);
        EXPECT_EQ(ReadNumber(beyond), std::nullopt);
    }
    EXPECT_EQ(Val(QString(400, u'9')), largest);
    EXPECT_EQ(Val("0." + QString(400, u'0') + "1"), 0);
}

TEST(Numbers, Pictures)
{
    const struct
    {
        double value;
        const char *picture, *shown;
    } cases[] = {{8.4, "##0.000", "8.400"},
                 {-2.675, "0.00", "-2.68"},
                 {1.005, "#0.00", "1.01"},
                 {0.1 + 0.2, "0.00", "0.30"},
                 {1.0055 - 0.0005, "0.00", "1.01"},
                 {0.5, "###0", "1"},
                 {0.49999, "###0", "0"},
                 {-0.001, "0.00", "0.00"},
                 {-0.0, "0.00", "0.00"},
                 {9.9996, "#0.000", "10.000"},
                 {12345, "#0", "12345"},
                 {12.5, "#.##", "12.5"},
                 {7, "000", "007"},
                 {0.25, "$#0.00!", "$0.25!"},
                 {999, "#,##0.0", "999.0"},
                 {-1234567.89125, "###,###,###,###,##0.0000", "-1,234,567.8913"},
                 {5e-324, "0.0", "0.0"}};
    for (const auto &row : cases)
        EXPECT_EQ(Format(row.value, row.picture), row.shown) << row.value << ' ' << row.picture;
}

TEST(Numbers, NoValueIsCutOrFails)
{
    EXPECT_EQ(Format(1e300, "0.00"), '1' + QString(300, u'0') + ".00");
    EXPECT_EQ(Format(-1e21, "#,##0"), "-1,000,000,000,000,000,000,000");
    EXPECT_EQ(Format(std::nan(""), "0.00"), "nan");
    EXPECT_EQ(Format(-HUGE_VAL, "0.00"), "-inf");
    EXPECT_EQ(Format(largest, "").size(), 309);
}

TEST(Numbers, PlainTexts)
{
    const std::pair<double, const char *> cases[] = {{1023 / 1000.0, "1.023"},
                                                     {0.1 + 0.2, "0.3"},
                                                     {-0.0, "0"},
                                                     {1e14, "100000000000000"},
                                                     {1e15, "1E+15"},
                                                     {0.0001, "0.0001"},
                                                     {0.00001234, "1.234E-05"},
                                                     {1.0 / 3, "0.333333333333333"}};
    for (const auto &[value, text] : cases)
        EXPECT_EQ(PlainText(value), text);
}

TEST(Numbers, PlainTextsReadBack)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const double places = std::pow(10, int(random() % 8));
        const double value = std::round(double(random() % 2'000'000'000) - 1e9) / places;
        const QString text = PlainText(value);
        ASSERT_EQ(ReadNumber(text), std::optional(value)) << text.toStdString();
        const double shown = ReadNumber(Format(value, "#,##0.0000")).value_or(-1);
        ASSERT_NEAR(shown, value, 0.00005001) << text.toStdString();
    }
}

} // namespace
