// Tests of the conversion calculator's formulas.
#include <gtest/gtest.h>

#include "logic/reference/Conversions.h"

TEST(Conversions, GiveTheExpectedResultsInTheOrderOfTheList)
{
    // What 120 of the first unit is, to six digits.
    constexpr std::array<double, conversions.size()> expected = {
        454.2,   31.68,   454200, 0.0317041, 454200, 120000,  120000,  270,     120,     120,
        6,       2400,    600,    24,        1800,   8,       3600,    4,       248,     48.8889,
        7.572,   1901.74, 3048,   4.72441,   304.8,  47.2441, 54.4308, 264.556, 897.666, 16.0416,
        3398.04, 4.23774, 4.2324, 3402.32,   99.96,  144.058, 0.9375,  15360,   1000.44, 14.3937};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(Convert_Formula(conversions[i].key, 120), expected[i], 3e-6 * expected[i]) << conversions[i].key;
    for (const auto &[key, result] : {std::pair("Millilitres (mL)>Gallons (US gal)", 0.0317041),
                                      {"Millilitres (mL)>Litres (L)", 0.12},
                                      {"Cubic Centimeters (cc)>Litres (L)", 0.12},
                                      {"Ounce (fl. oz)>Litres (L)", 0}})
        EXPECT_NEAR(Convert_Formula(key, 120), result, 3e-6 * result) << key << ", which the list does not show";
}
