#include "logic/logbook/EntryRules.h"

#include <cmath>

#include "store/Database.h"
#include "text/Numbers.h"

namespace {

const QString tankOfId = QStringLiteral("SELECT tankid FROM tanklst WHERE tankid = ?");

} // namespace

Complaint TooLong(const TextLimit &limit, const QString &text)
{
    return text.size() > limit.longest ? Complaint(QLatin1String(limit.ifLonger)) : std::nullopt;
}

Complaint TooMuch(const NumberLimit &limit, const QString &text)
{
    return Val(text) > limit.most ? Complaint(QLatin1String(limit.ifMore)) : std::nullopt;
}

Complaint NoNumber(const NumberLimit &limit, const QString &text)
{
    return IsStorable(text) ? std::nullopt : Complaint(QLatin1String(limit.ifNoNumber));
}

Complaint BadTankName(const QString &text)
{
    if (text.isEmpty())
        return QLatin1String(noTankName);
    if (text.contains(u'"'))
        return QStringLiteral("The tank name cannot contain a quote(\") character.");
    return std::nullopt;
}

QStringList MeasurementComplaints(const MeasurementRow &measurement, const UserFieldNames &names, const QString &text)
{
    QStringList complaints;
    const auto add = [&](const char *words) {
        complaints << NameOf(measurement, measurement.entry.name, names) + u" entries " + QLatin1String(words);
    };
    if (!IsStorable(text))
        add("must be a number.");
    if (Val(text) > measurement.entry.limit)
        add(measurement.entry.tooLarge);
    return complaints;
}

Complaint BadPrice(const QString &name, const QString &text)
{
    const std::optional<double> price = ReadNumber(text);
    if (!price)
        return name + u" must be a number.";
    if (std::abs(*price) >= beyondPrices)
        return name + u" must have at most 12 digits before the decimal point.";
    return std::nullopt;
}

QString NewTankId(Database &database, QDateTime &moment)
{
    for (;; moment = moment.addSecs(1)) {
        const QString id = moment.toString(QStringLiteral("MM/dd/yyyy hh:mm:ss"));
        if (database.OpenRecordset(tankOfId, {id}).isEmpty())
            return id;
    }
}
