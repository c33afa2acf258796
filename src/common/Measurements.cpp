#include "common/Measurements.h"

// Wordings and limits are settled as they are: copper lacks its "be", and a pH of 99 and a temperature of 999 pass.
constexpr auto less1000 = "must be less than 1000.";
const std::array<Measurement, 13> measurements = {{
    {"Ammonia", "Ammonia", "", "txt_ammonia", "ud_Ammonia", "Ammonia measurement in PPM", 10, "0.000", "###0.000", 999,
     "Ammonia", less1000, 0},
    {"nitrite", "Nitrite", "", "txt_nitrite", "Ud_Nitrite", "Nitrite measurement in PPM", 10, "0.000", "###0.000", 999,
     "Nitrite", less1000, 0},
    {"nitrate", "Nitrate", "", "txt_nitrate", "ud_Nitrate", "Nitrate measurement in PPM", 10, "##0.000", "###0.000",
     999, "Nitrate", less1000, 0},
    {"ph", "ph", "", "txt_ph", "ud_Ph", "ph value", 10, "##0.000", "#0.000", 99, "Ph", "must be less than 99.", 0},
    {"sg", "S.G.", "", "txt_sg", "Ud_SG", "Specific Gravity Measurement", 1000, "##0.000", "##0.000", 9.999,
     "Specific Gravity", "must be less than 10.", 0},
    {"temp", "Temp.", "", "txt_temp", "ud_temp", "Temperature in degrees Farenheit", 10, "##0.000", "##0.000", 999,
     "Temperature", "must be less than 999.", 0},
    {"oxygen", "Oxygen", "", "txt_oxygen", "ud_oxygen", "Oxygen measurement in PPM", 10, "##0.000", "##0.000", 999,
     "Oxygen", less1000, 0},
    {"dkh", "dkh", "", "txt_dkh", "ud_dkh", "dKH measurement in PPM", 10, "##0.000", "##0.000", 999, "dkh", less1000,
     0},
    {"calcium", "Calcium", "", "txt_calcium", "ud_Calcium", "Calcium Measurement in PPM", 10, "##0.000", "##0.000", 999,
     "Calcium", less1000, 0},
    {"copper", "Copper", "", "txt_copper", "ud_copper", "Copper Measurement in PPM", 10, "##0.000", "##0.000", 999,
     "Copper", "must less than 1000.", 0},
    {"orp", "Redox", "", "txt_orp", "ud_Redox", "Redox Value", 10, "##0.000", "##0.000", 999, "Orp", less1000, 0},
    {"custom1", "User1", "Label15", "txt_user1", "ud_user1", "User Value 1 Measurement", 10, "##0.000", "##0.000", 999,
     nullptr, less1000, 1},
    {"custom2", "User2", "Label16", "txt_user2", "ud_User2", "User Value 2 Measurement", 10, "##0.000", "##0.000", 999,
     nullptr, less1000, 2},
}};

const Measurement &MeasurementOf(const QString &column)
{
    for (const Measurement &row : measurements)
        if (column.compare(QLatin1String(row.column), Qt::CaseInsensitive) == 0)
            return row;
    qFatal("no measurement \"%s\"", qPrintable(column));
}
