// The measurements of a water test, one row each. A row has everything that a measurement needs in the entry window,
// the logbook's list, the printed log, the graph and the options, so a new measurement is one row here and one column
// of WATERLOG (store/schema.cpp). Wordings and pictures differ from place to place on purpose; they are fields.
#pragma once

#include <array>

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

/// The value of a new test: the position of the up-down, and the text of the box.
struct StartValue
{
    int position;
    const char *text;
};

/// The box of a measurement in the entry window, with its up-down.
struct MeasurementEntry
{
    const char *label;     ///< caption; the user's own name replaces it when the window opens
    const char *labelName; ///< object name of the label; empty if no window needs it
    const char *box;       ///< object names of the box and of its up-down
    const char *upDown;
    const char *toolTip;
    int positionsPerUnit;      ///< positions of the up-down in one unit of the measurement
    const char *boxPicture;    ///< applied when the focus leaves the box
    const char *rowPicture;    ///< applied when a stored value is loaded
    const char *upDownPicture; ///< applied when the up-down moves; null shows the plain number
    double limit;              ///< the greatest value that is accepted
    const char *name;          ///< in the messages; null if it is the user's name
    const char *tooLarge;      ///< follows the name in the message for a value beyond the limit
    StartValue salt, fresh;    ///< by the keeper's default water type
};

/// The column of the logbook's list.
struct MeasurementInList
{
    const char *key;
    const char *heading;
    const char *picture; ///< null shows the plain number
    int width;           ///< initial width in pixels
    Measurement shown;   ///< the measurement whose value the column shows
};

/// The column of the printed log.
struct MeasurementInReport
{
    const char *head;
    int span; ///< width; most columns have 1
};

/// The series of the graph, and the check box that includes it.
struct MeasurementInGraph
{
    const char *label;        ///< null if it is the user's name
    const char *checkCaption; ///< likewise
    const char *check;        ///< object name
    bool atFirst;             ///< drawn by default
    const char *unit = "";    ///< for the axis: the one that the tool tip of the entry window names; may be empty
};

struct MeasurementRow
{
    Measurement id;
    const char *column; ///< of WATERLOG
    int userField;      ///< 1 or 2 for the measurements that the user names, otherwise 0
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

/// The user's names for the measurements User1 and User2.
struct UserFieldNames
{
    QString first, second;
};

/// The user's name for User1 and User2; `fixed` for all others.
QString NameOf(const MeasurementRow &row, const char *fixed, const UserFieldNames &names);

/// One character per measurement, in listOrder: "1" if the graph draws it by default.
QString GraphChecksAtFirst();
