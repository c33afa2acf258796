// The measurements of a water test, one row each. A row says everything that one measurement needs in the entry window,
// the logbook's list, the printed log, the graph and the options, so that a new measurement is one row here and one
// column of WATERLOG (store/schema.cpp). Wordings and pictures that differ from place to place are fields, not slips.
#pragma once

#include <array>
#include <string_view>

#include <QString>

enum class Measurement {
    Ammonia,
    Nitrite,
    Nitrate,
    Ph,
    SpecificGravity,
    Temperature,
    Oxygen,
    CarbonateHardness,
    Calcium,
    Copper,
    Redox,
    User1,
    User2
};

/// What a new test starts with. The up-down stands at `position`, whatever the text says.
struct StartValue
{
    int position;
    const char *text;
};

/// The box of a measurement in the entry window, with its up-down.
struct MeasurementEntry
{
    const char *label;     ///< caption; empty where it is the user's name for the measurement
    const char *labelName; ///< object name of the label; empty where no window asks for it
    const char *box;       ///< object names of the box and of its up-down
    const char *upDown;
    const char *toolTip;
    int positionsPerUnit;      ///< positions of the up-down in one unit of the measurement
    const char *boxPicture;    ///< applied when the focus leaves the box
    const char *rowPicture;    ///< applied when a stored value is loaded
    const char *upDownPicture; ///< applied when the up-down moves; null for the plain number
    double limit;              ///< the greatest value that is accepted
    const char *name;          ///< in the messages; null where it is the user's name
    const char *tooLarge;      ///< follows the name in the message for a value beyond the limit
    StartValue salt, fresh;    ///< by the keeper's default water type
};

/// The column of the logbook's list.
struct MeasurementInList
{
    const char *key;
    const char *heading;
    const char *picture; ///< null for the plain number
    int width;           ///< pixels at first
    Measurement shown;   ///< whose value stands in this column
};

/// The column of the printed log.
struct MeasurementInReport
{
    const char *head;
    int span; ///< width, where a plain column has 1
};

/// The series of the graph, and the check box that includes it.
struct MeasurementInGraph
{
    const char *label; ///< null where it is the user's name, as the next
    const char *checkCaption;
    const char *check; ///< object name
    bool atFirst;      ///< drawn until the keeper chooses
};

struct MeasurementRow
{
    Measurement id;
    const char *column; ///< of WATERLOG
    int userField;      ///< 1 or 2 for the measurements that the user names, else 0
    MeasurementEntry entry;
    MeasurementInList list;
    MeasurementInReport report;
    MeasurementInGraph graph;
};

inline constexpr std::size_t measurementCount = std::size_t(Measurement::User2) + 1;

using MeasurementOrder = std::array<Measurement, measurementCount>;

/// In the order of the entry window and of the printed log.
extern const std::array<MeasurementRow, measurementCount> measurements;
/// The order of the logbook's list, of the graph and of its check boxes.
extern const MeasurementOrder listOrder;

inline const MeasurementRow &RowOf(Measurement measurement) { return measurements[std::size_t(measurement)]; }

/// The user's names for the measurements that are his to name.
struct UserFieldNames
{
    QString first, second;
};

/// `fixed`, or the user's name where the measurement is the user's.
QString NameOf(const MeasurementRow &row, const char *fixed, const UserFieldNames &names);

/// One character a measurement, in listOrder: "1" where it is drawn until the keeper chooses.
QString GraphChecksAtFirst();
