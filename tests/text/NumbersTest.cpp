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
    const struct
    {
        const char *text;
        bool numeric;
        double value;
    } cases[] = {
        {"12", true, 12},
        {"8.4", true, 8.4},
        {" 7 ", true, 7},
        {"+3", true, 3},
        {"-2.5", true, -2.5},
        {".5", true, 0.5},
        {"5.", true, 5},
        {"-.5", true, -0.5},
        {"1,000", true, 1000},
        {"1,234,567.8", true, 1234567.8},
        {"1e3", true, 1000},
        {"1.5E-1", true, 0.15},
        {"1e+2", true, 100},
        {"0.000", true, 0},
        {"007", true, 7},
        {"1e-400", true, 0},
        {"1e400", true, largest},
        {"-1e400", true, -largest},
        {"1e99999999999999999999", true, largest},
        {"10e9223372036854775807", true, largest},
        {".01e-9223372036854775808", true, 0},
        {"0e99999999999999999999", true, 0},
        {"", false, 0},
        {" ", false, 0},
        {"abc", false, 0},
        {"12ab", false, 12},
        {"1,000x", false, 1},
        {"1.2.3", false, 1.2},
        {".", false, 0},
        {"-", false, 0},
        {"1e", false, 1},
        {"1e+", false, 1},
        {"1d3", false, 1},
        {"1,", false, 1},
        {",5", false, 0},
        {"1,,2", false, 1},
        {"1.5,0", false, 1.5},
        {"1 2", false, 1},
        {"- 3", false, 0},
        {"--3", false, 0},
        {"0x10", false, 0},
        {"inf", false, 0},
        {"nan", false, 0},
        {"3 e2", false, 3},
        {"\xd9\xa1", false, 0},
    };
    for (const auto &row : cases) {
        const QString text = QString::fromUtf8(row.text);
        EXPECT_EQ(IsNumeric(text), row.numeric) << row.text;
        EXPECT_EQ(Val(text), row.value) << row.text;
        const bool beyond = std::abs(row.value) == largest;
        EXPECT_EQ(ReadNumber(text), row.numeric && !beyond ? std::optional(row.value) : std::nullopt) << row.text;
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
    } cases[] = {
        {1234.5, "##0.000", "1234.500"},
        {0, "#0.00", "0.00"},
        {8.4, "##0.000", "8.400"},
        {2.675, "0.00", "2.68"},
        {-2.675, "0.00", "-2.68"},
        {1.005, "#0.00", "1.01"},
        {0.1 + 0.2, "0.00", "0.30"},
        {1.0055 - 0.0005, "0.00", "1.01"},
        {0.5, "###0", "1"},
        {1.5, "###0", "2"},
        {2.5, "###0", "3"},
        {0.49999, "###0", "0"},
        {-0.5, "###0", "-1"},
        {-0.001, "0.00", "0.00"},
        {-0.0, "0.00", "0.00"},
        {9.9996, "#0.000", "10.000"},
        {999.5, "###0", "1000"},
        {0.0004, "0.000", "0.000"},
        {0.0005, "0.000", "0.001"},
        {12345, "#0", "12345"},
        {12.5, "#.##", "12.5"},
        {7, "000", "007"},
        {0.25, "$#0.00!", "$0.25!"},
        {1e15, "#0", "1000000000000000"},
        {999, "###,###,###,###,##0.0000", "999.0000"},
        {1000, "###,###,###,###,##0.0000", "1,000.0000"},
        {-1234567.89125, "###,###,###,###,##0.0000", "-1,234,567.8913"},
        {5e-324, "0.0", "0.0"},
    };
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
    const struct
    {
        double value;
        const char *text;
    } cases[] = {
        {8.4, "8.4"},
        {80, "80"},
        {84 / 10.0, "8.4"},
        {1023 / 1000.0, "1.023"},
        {0.1 + 0.2, "0.3"},
        {0, "0"},
        {-0.0, "0"},
        {-2.5, "-2.5"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {0.0001, "0.0001"},
        {0.00001234, "1.234E-05"},
        {1.0 / 3, "0.333333333333333"},
        {2e300, "2E+300"},
    };
    for (const auto &row : cases)
        EXPECT_EQ(PlainText(row.value), row.text);
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
