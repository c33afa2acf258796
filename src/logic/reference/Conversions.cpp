#include "logic/reference/Conversions.h"

#include <algorithm>

// "Ounce(fl.oz)" and "Pounds(lb)" mean the same units as "Ounce (fl. oz)" and "Pounds (lb)". The key from Fahrenheit
// ends with a ">" that appears in the second column. clang-format off
const std::array<Conversion, 40> conversions = {{
    {"Gallons (US gal)>Litres (L)", [](double x) { return x * 3.785; }},
    {"Litres (L)>Gallons (US gal)", [](double x) { return x * 0.264; }},
    {"Gallons (US gal)>Cubic Centimeters (cc)", [](double x) { return x * 3785; }},
    {"Cubic Centimeters (cc)>Gallons (US gal)", [](double x) { return x / 3785; }},
    {"Gallons (US gal)>Millilitres (mL)", [](double x) { return x * 3785; }},
    {"Litres (L)>Millilitres (mL)", [](double x) { return x * 1000; }},
    {"Litres (L)>Cubic Centimeters (cc)", [](double x) { return x * 1000; }},
    {"Litres (L) Water>Pounds(lb)", [](double x) { return x * 2.25; }},
    {"Cubic Centimeters (cc)>Millilitres (mL)", [](double x) { return x; }},
    {"Millilitres (mL)>Cubic Centimeters (cc)", [](double x) { return x; }},
    {"Drops>Millilitres (mL)", [](double x) { return x / 20; }},
    {"Millilitres (mL)>Drops", [](double x) { return x * 20; }},
    {"Teaspoon (tsp)>Millilitres (mL)", [](double x) { return x * 5; }},
    {"Millilitres (mL)>Teaspoon (tsp)", [](double x) { return x / 5; }},
    {"Tablespoon (tbsp)>Millilitres (mL)", [](double x) { return x * 15; }},
    {"Millilitres (mL)>Tablespoon (tbsp)", [](double x) { return x / 15; }},
    {"Ounce (fl. oz)>Millilitres (mL)", [](double x) { return x * 30; }},
    {"Millilitres (mL)>Ounce(fl.oz)", [](double x) { return x / 30; }},
    {"Degrees Centigrade>Degrees Fahrenheit", [](double x) { return x * 1.8 + 32; }},
    {"Degrees Fahrenheit>Degrees Centigrade>", [](double x) { return (x - 32) / 1.8; }},
    {"Gallons Per Minute Flow (gpm)>Litres Per Second Flow(L/s)", [](double x) { return x * 0.0631; }},
    {"Litres Per Second Flow(L/s)>Gallons Per Minute Flow (gpm)", [](double x) { return x / 0.0631; }},
    {"Inches (in)>Millimeters (mm)", [](double x) { return x * 25.4; }},
    {"Millimeters (mm)>Inches (in)", [](double x) { return x / 25.4; }},
    {"Inches (in)>Centimeters (cm)", [](double x) { return x * 2.54; }},
    {"Centimeters (cm)>Inches (in)", [](double x) { return x / 2.54; }},
    {"Pounds (lb)>Kilograms (kg)", [](double x) { return x * 0.45359; }},
    {"Kilograms (kg)>Pounds (lb)", [](double x) { return x / 0.45359; }},
    {"Cubic Feet (ft^3)>Gallons (US gal)", [](double x) { return x * 7.48055; }},
    {"Gallons (US gal)>Cubic Feet (ft^3)", [](double x) { return x / 7.48055; }},
    {"Cubic Feet (ft^3)>Litres (L)", [](double x) { return x * 28.317; }},
    {"Litres (L)>Cubic Feet (ft^3)", [](double x) { return x / 28.317; }},
    {"Grams (g)>Ounces (oz)", [](double x) { return x * 0.03527; }},
    {"Ounces (oz)>Grams (g)", [](double x) { return x / 0.03527; }},
    {"Gallons (US gal)>Gallons (Imperial)", [](double x) { return x * 0.833; }},
    {"Gallons (Imperial)>Gallons (US gal)", [](double x) { return x / 0.833; }},
    {"Ounce (fl. oz)>Gallons (US gal)", [](double x) { return x / 128; }},
    {"Gallons (US gal)>Ounce (fl. oz)", [](double x) { return x * 128; }},
    {"Gallons (US gal) Water>Pounds(lb)", [](double x) { return x * 8.337; }},
    {"Pounds(lb)>Gallons (US gal) Water", [](double x) { return x / 8.337; }},
}};
// clang-format on

namespace {

/// The calculator knows this conversion but does not list it.
constexpr Conversion unlisted[] = {
    {"Millilitres (mL)>Gallons (US gal)", [](double x) { return x / 3785; }},
    {"Millilitres (mL)>Litres (L)", [](double x) { return x / 1000; }},
    {"Cubic Centimeters (cc)>Litres (L)", [](double x) { return x / 1000; }},
};

} // namespace

double Convert_Formula(const QString &key, double value)
{
    const auto isAsked = [&key](const Conversion &row) { return key == QLatin1String(row.key); };
    if (const auto row = std::ranges::find_if(conversions, isAsked); row != conversions.end())
        return row->formula(value);
    const auto row = std::ranges::find_if(unlisted, isAsked);
    return row == std::end(unlisted) ? 0 : row->formula(value);
}

QString UnitFrom(const QString &key) { return key.section(u'>', 0, 0); }

QString UnitTo(const QString &key) { return key.section(u'>', 1); }
