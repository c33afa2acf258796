// Tests of the conversion calculator's formulas: what 120 of each unit is.
#include <gtest/gtest.h>

#include "logic/reference/Conversions.h"

namespace {

struct Expected
{
    const char *key;
    double result; ///< of 120, to six digits
};

// The forty of the list in their order, the three that it does not show, and one that does not exist.
constexpr Expected expected[] = {
    {"Gallons (US gal)>Litres (L)", 454.2},
    {"Litres (L)>Gallons (US gal)", 31.68},
    {"Gallons (US gal)>Cubic Centimeters (cc)", 454200},
    {"Cubic Centimeters (cc)>Gallons (US gal)", 0.0317041},
    {"Gallons (US gal)>Millilitres (mL)", 454200},
    {"Litres (L)>Millilitres (mL)", 120000},
    {"Litres (L)>Cubic Centimeters (cc)", 120000},
    {"Litres (L) Water>Pounds(lb)", 270},
    {"Cubic Centimeters (cc)>Millilitres (mL)", 120},
    {"Millilitres (mL)>Cubic Centimeters (cc)", 120},
    {"Drops>Millilitres (mL)", 6},
    {"Millilitres (mL)>Drops", 2400},
    {"Teaspoon (tsp)>Millilitres (mL)", 600},
    {"Millilitres (mL)>Teaspoon (tsp)", 24},
    {"Tablespoon (tbsp)>Millilitres (mL)", 1800},
    {"Millilitres (mL)>Tablespoon (tbsp)", 8},
    {"Ounce (fl. oz)>Millilitres (mL)", 3600},
    {"Millilitres (mL)>Ounce(fl.oz)", 4},
    {"Degrees Centigrade>Degrees Fahrenheit", 248},
    {"Degrees Fahrenheit>Degrees Centigrade>", 48.8889},
    {"Gallons Per Minute Flow (gpm)>Litres Per Second Flow(L/s)", 7.572},
    {"Litres Per Second Flow(L/s)>Gallons Per Minute Flow (gpm)", 1901.74},
    {"Inches (in)>Millimeters (mm)", 3048},
    {"Millimeters (mm)>Inches (in)", 4.72441},
    {"Inches (in)>Centimeters (cm)", 304.8},
    {"Centimeters (cm)>Inches (in)", 47.2441},
    {"Pounds (lb)>Kilograms (kg)", 54.4308},
    {"Kilograms (kg)>Pounds (lb)", 264.556},
    {"Cubic Feet (ft^3)>Gallons (US gal)", 897.666},
    {"Gallons (US gal)>Cubic Feet (ft^3)", 16.0416},
    {"Cubic Feet (ft^3)>Litres (L)", 3398.04},
    {"Litres (L)>Cubic Feet (ft^3)", 4.23774},
    {"Grams (g)>Ounces (oz)", 4.2324},
    {"Ounces (oz)>Grams (g)", 3402.32},
    {"Gallons (US gal)>Gallons (Imperial)", 99.96},
    {"Gallons (Imperial)>Gallons (US gal)", 144.058},
    {"Ounce (fl. oz)>Gallons (US gal)", 0.9375},
    {"Gallons (US gal)>Ounce (fl. oz)", 15360},
    {"Gallons (US gal) Water>Pounds(lb)", 1000.44},
    {"Pounds(lb)>Gallons (US gal) Water", 14.3937},
    {"Millilitres (mL)>Gallons (US gal)", 0.0317041},
    {"Millilitres (mL)>Litres (L)", 0.12},
    {"Cubic Centimeters (cc)>Litres (L)", 0.12},
    {"Ounce (fl. oz)>Litres (L)", 0},
};

TEST(Conversions, GiveTheExpectedResultInTheOrderOfTheList)
{
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const auto &[key, result] = expected[i];
        if (i < conversions.size()) {
            EXPECT_STREQ(conversions[i].key, key);
        }
        EXPECT_NEAR(Convert_Formula(key, 120), result, 3e-6 * result) << key;
    }
}

} // namespace
