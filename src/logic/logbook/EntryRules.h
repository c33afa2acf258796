// What the entry windows of tanks and logs accept, and the messages for everything else. The windows call these
// functions for each box, and the import for each value of a file, so that both accept the same. Lengths are in UTF-16
// units, as in a box. Keepers know the limits: exactly 50 characters and 32,000 animals are accepted, although the
// messages say "less than".
#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "logic/common/Measurements.h"

class Database;

/// The message for a value that is refused; nothing if the value is accepted.
using Complaint = std::optional<QString>;

struct TextLimit
{
    qsizetype longest;
    const char *ifLonger;
};

struct NumberLimit
{
    double most;
    const char *ifMore;
    const char *ifNoNumber;
};

inline constexpr TextLimit tankNameLimit{50, "The tank name must be less than 50 characters."};
inline constexpr TextLimit tankDescriptionLimit{50, "The long description must be less than 50 characters."};
inline constexpr TextLimit animalLimit{50, "Your animal description must be less than 50 characters."};
inline constexpr TextLimit placeLimit{50, "Your place of purchase must be less than 50 characters."};
inline constexpr TextLimit statusLimit{30, "Your status description must be less than 30 characters."};
inline constexpr TextLimit taskLimit{50, "Your task description must be less than 50 characters."};
inline constexpr TextLimit descriptionLimit{50, "Your description must be 50 characters or less."};
inline constexpr TextLimit unitLimit{10, "Your \"unit of measure\" entry must be 10 characters or less."};

inline constexpr NumberLimit tankSizeLimit{9999, "The tank size must be less than 10,000 gallons.",
                                           "Tanksize entries must be a number."};
inline constexpr NumberLimit animalsLimit{
    32000, "Your quantity must be less than 32,000. (Besides, what size tank do you hold 32,000 fish in?)",
    "Quantity entries must be a number."};
inline constexpr NumberLimit quantityLimit{9999, "Your quantity must be less than 10,000.",
                                           "Quantity entries must be a number."};

inline constexpr double beyondPrices = 1e12; ///< of any currency; up to here a hundredth is exact

inline constexpr char noTankSize[] = "The tank size must be a number less than 10,000 gallons.";
inline constexpr char noTankName[] = "You must enter a name for your tank.";
inline constexpr char noAnimal[] =
    "You must enter an animal name or pick one from the list to add a livestock entry to the log.";
inline constexpr char noTask[] = "You must enter a task for your entry";

// The initial values of a new entry.
inline constexpr int startTankSize = 55; ///< gallons
inline constexpr int startAnimals = 1;
inline constexpr int startQuantity = 0;
inline const QString startNote = QStringLiteral(" ");

Complaint TooLong(const TextLimit &limit, const QString &text);
/// Compares the number at the start of the text with the limit.
Complaint TooMuch(const NumberLimit &limit, const QString &text);
Complaint NoNumber(const NumberLimit &limit, const QString &text);

/// The message for a tank's name that is empty or contains a quotation mark.
Complaint BadTankName(const QString &text);
/// The messages, up to two, for a measurement that is not a number or too large. `names` are those of the user's own
/// measurements.
QStringList MeasurementComplaints(const MeasurementRow &measurement, const UserFieldNames &names, const QString &text);
/// The message for a price that is not a number, or too large to be stored exactly to the hundredth. `name` is the
/// caption of its box.
Complaint BadPrice(const QString &name, const QString &text);

/// The tankid of a new tank: a date and time as text that no other tank has. The search starts at `moment`, which is
/// then set to the one that was found.
QString NewTankId(Database &database, QDateTime &moment);
