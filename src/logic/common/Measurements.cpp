#include "logic/common/Measurements.h"

#include <algorithm>

namespace {

using enum Measurement;

constexpr auto less1000 = "must be less than 1000.";
constexpr auto threePlaces = "##0.000";
constexpr StartValue zero{0, "0"};

} // namespace

// Some wordings and limits look wrong, but keepers know them: the message for copper lacks "be", a pH of 99 and a
// temperature of 999 are accepted, and the column Custom2 of the list shows the values of custom1.
// clang-format off
constexpr std::array<MeasurementRow, measurementCount> measurements = {{
    {Ammonia, "Ammonia", 0,
     {"Ammonia", "", "txt_ammonia", "ud_Ammonia", "Ammonia measurement in PPM", 10, "0.000", "###0.000", nullptr,
      999, "Ammonia", less1000, zero, zero},
     {"Ammonia", "Nh3 - Ammonia", "###0.000", 110, Ammonia}, {"Ammonia", 2}, {"Nh3", "Nh3", "chk_ammonia", true, "ppm"}},
    {Nitrite, "nitrite", 0,
     {"Nitrite", "", "txt_nitrite", "Ud_Nitrite", "Nitrite measurement in PPM", 10, "0.000", "###0.000", nullptr,
      999, "Nitrite", less1000, zero, zero},
     {"Nitrite", "No2 - Nitrite", "###0.000", 95, Nitrite}, {"Nitrite", 1}, {"No2", "No2", "chk_nitrite", true, "ppm"}},
    {Nitrate, "nitrate", 0,
     {"Nitrate", "", "txt_nitrate", "ud_Nitrate", "Nitrate measurement in PPM", 10, threePlaces, "###0.000", nullptr,
      999, "Nitrate", less1000, zero, zero},
     {"Nitrate", "No3 - Nitrate", "###0.000", 100, Nitrate}, {"Nitrate", 1}, {"No3", "No3", "chk_nitrate", true, "ppm"}},
    {Ph, "ph", 0,
     {"ph", "", "txt_ph", "ud_Ph", "ph value", 10, threePlaces, "#0.000", threePlaces,
      99, "Ph", "must be less than 99.", {84, "8.40"}, {78, "7.80"}},
     {"Ph", "ph", "0.00", 60, Ph}, {"ph", 1}, {"ph", "ph", "chk_ph", false}},
    {SpecificGravity, "sg", 0,
     {"S.G.", "", "txt_sg", "Ud_SG", "Specific Gravity Measurement", 1000, threePlaces, threePlaces, nullptr,
      9.999, "Specific Gravity", "must be less than 10.", {1023, "1.023"}, zero},
     {"sg", "S.G. - Specific Gravity", "###0.000", 150, SpecificGravity}, {"s.g.", 1},
     {"S.G.", "S.G.", "chk_sg", false}},
    {Temperature, "temp", 0,
     {"Temp.", "", "txt_temp", "ud_temp", "Temperature in degrees Farenheit", 10, threePlaces, threePlaces, nullptr,
      999, "Temperature", "must be less than 999.", {780, "78"}, {780, "78"}},
     {"Temperature", "Temperature", "##0.00", 90, Temperature}, {"Temp", 1},
     {"temp", "Temp", "chk_temp", false, "degrees"}},
    {Oxygen, "oxygen", 0,
     {"Oxygen", "", "txt_oxygen", "ud_oxygen", "Oxygen measurement in PPM", 10, threePlaces, threePlaces, nullptr,
      999, "Oxygen", less1000, zero, zero},
     {"o2", "o2 - Oxygen", threePlaces, 90, Oxygen}, {"o2", 1}, {"o2", "o2", "chk_o2", false, "ppm"}},
    {CarbonateHardness, "dkh", 0,
     {"dkh", "", "txt_dkh", "ud_dkh", "dKH measurement in PPM", 10, threePlaces, threePlaces, nullptr,
      999, "dkh", less1000, zero, zero},
     {"dkh", "dKh", threePlaces, 70, CarbonateHardness}, {"dkh", 1}, {"dkh", "dkh", "chk_dkh", false, "ppm"}},
    {Calcium, "calcium", 0,
     {"Calcium", "", "txt_calcium", "ud_Calcium", "Calcium Measurement in PPM", 10, threePlaces, threePlaces, nullptr,
      999, "Calcium", less1000, zero, zero},
     {"Calcium", "Calcium", "###0.000", 75, Calcium}, {"Calcium", 1},
     {"calcium", "Calcium", "chk_calcium", false, "ppm"}},
    {Copper, "copper", 0,
     {"Copper", "", "txt_copper", "ud_copper", "Copper Measurement in PPM", 10, threePlaces, threePlaces, nullptr,
      999, "Copper", "must less than 1000.", zero, zero},
     {"Copper", "Cu - Copper", threePlaces, 90, Copper}, {"Copper", 1}, {"cu", "Copper", "chk_Copper", false, "ppm"}},
    {Redox, "orp", 0,
     {"Redox", "", "txt_orp", "ud_Redox", "Redox Value", 10, threePlaces, threePlaces, nullptr,
      999, "Orp", less1000, zero, zero},
     {"Orp", "Orp ", threePlaces, 75, Redox}, {"Redox", 1}, {"Redox", "Orp", "chk_orp", false}},
    {User1, "custom1", 1,
     {"User1", "Label15", "txt_user1", "ud_user1", "User Value 1 Measurement", 10, threePlaces, threePlaces, nullptr,
      999, nullptr, less1000, zero, zero},
     {"Custom1", "Custom1", nullptr, 75, User1}, {"Custom1", 1}, {nullptr, nullptr, "chk_User1", false}},
    {User2, "custom2", 2,
     {"User2", "Label16", "txt_user2", "ud_User2", "User Value 2 Measurement", 10, threePlaces, threePlaces, nullptr,
      999, nullptr, less1000, zero, zero},
     {"Custom2", "Custom2", nullptr, 75, User1}, {"Custom2", 1}, {nullptr, nullptr, "chk_user2", false}},
}};
// clang-format on

constexpr MeasurementOrder listOrder = {Ph,     Ammonia,           Nitrite, Nitrate, SpecificGravity, Temperature,
                                        Oxygen, CarbonateHardness, Calcium, Copper,  Redox,           User1,
                                        User2};

namespace {

constexpr bool rowsStandAtTheirPlaces()
{
    for (std::size_t i = 0; i < measurementCount; ++i)
        if (std::size_t(measurements[i].id) != i)
            return false;
    return true;
}
static_assert(rowsStandAtTheirPlaces(), "a measurement's row is found by its number");

constexpr bool isPermutation(MeasurementOrder order)
{
    std::ranges::sort(order);
    for (std::size_t i = 0; i < measurementCount; ++i)
        if (std::size_t(order[i]) != i)
            return false;
    return true;
}
static_assert(isPermutation(listOrder), "each measurement stands once in the list");

} // namespace

QString NameOf(const MeasurementRow &row, const char *fixed, const UserFieldNames &names)
{
    switch (row.userField) {
    case 1: return names.first;
    case 2: return names.second;
    default: return QString::fromLatin1(fixed);
    }
}

QString GraphChecksAtFirst()
{
    QString checks;
    for (const Measurement measurement : listOrder)
        checks += RowOf(measurement).graph.atFirst ? u'1' : u'0';
    return checks;
}
