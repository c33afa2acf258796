#include "data/Cells.h"

#include <cmath>
#include <limits>

#include "data/Import.h"
#include "store/Iso.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

using Read = std::variant<Value, Refusal>;

Read refuse(const QString &reason) { return Refusal{reason}; }

Read textRead(const DataColumn &column, const QString &text)
{
    if (column.kind == CellKind::Line && (text.contains(u'\n') || text.contains(u'\r')))
        return refuse(QStringLiteral("This text must be on one line."));
    if (column.complaint)
        if (const Complaint complaint = column.complaint(text))
            return refuse(*complaint);
    return Value(text);
}

Read tankRead(const QString &name, const QHash<QString, QString> &tankIds)
{
    const auto found = tankIds.find(name);
    if (found == tankIds.end())
        return refuse(QStringLiteral("There is no tank of this name."));
    return Value(*found);
}

/// Refuses separated thousands: if the comma were a decimal sign, 1,250 would be read as another number.
Read numberRead(const DataColumn &column, QString text, const ImportOptions &options)
{
    const QChar decimalSign = options.decimalComma ? u',' : u'.', other = options.decimalComma ? u'.' : u',';
    if (text.contains(other))
        return refuse(QStringLiteral("The decimal sign is \"%1\" here, and thousands are not separated.%2")
                          .arg(decimalSign)
                          .arg(options.decimalComma ? QString() : QStringLiteral(" (See --decimal-comma.)")));
    text.replace(u',', u'.');
    if (column.complaint)
        if (const Complaint complaint = column.complaint(text))
            return refuse(*complaint);
    const auto number = ReadNumber(text);
    if (!number)
        return refuse(QStringLiteral("This is not a number."));
    if (column.kind == CellKind::Number)
        return Value(*number);
    if (*number != std::floor(*number) || std::abs(*number) > std::numeric_limits<qint16>::max())
        return refuse(QStringLiteral("This is not a whole number of at most 32767."));
    return Value(int(*number));
}

/// The boxes of the entry windows show only two digits of a year, so the year of an entry must be one of a hundred.
Read dateRead(const DataColumn &column, const QString &text, const CellContext &context)
{
    const auto date = ReadFileDate(text, context.options);
    if (!date)
        return refuse(
            context.options.dateOrder
                ? QStringLiteral("This is not a date in the order that was chosen.")
                : QStringLiteral("This is not a date such as 2026-11-24. (For another order see --date-order.)"));
    const int firstYear = context.lastYear - 99;
    if (column.kind == CellKind::EntryDate && (date->year() < firstYear || date->year() > context.lastYear))
        return refuse(QStringLiteral("The year must be between %1 and %2.").arg(firstYear).arg(context.lastYear));
    return Value(*date);
}

Read timeRead(const QString &text)
{
    auto time = ReadTime(text);
    if (!time)
        time = ReadTime(text + u":00"); // a spreadsheet may leave out the seconds
    if (!time)
        return refuse(QStringLiteral("This is not a time such as 13:05:00 or 01:05:00 pm."));
    return Value(*time);
}

Read wordRead(const DataColumn &column, const QString &text)
{
    const Value stored = OfWord(column.kind, text);
    if (stored.isNull())
        return refuse(QStringLiteral("This must be one of %1.").arg(Words(column.kind).join(u", ")));
    return stored;
}

} // namespace

bool IsText(CellKind kind)
{
    return kind == CellKind::TankName || kind == CellKind::Tank || kind == CellKind::Line || kind == CellKind::Notes ||
           kind == CellKind::Detail;
}

std::variant<QString, Refusal> DecodedText(const CsvCell &cell)
{
    const QUtf8StringView utf8(cell.bytes.data(), qsizetype(cell.bytes.size()));
    if (!utf8.isValidUtf8())
        return Refusal{QStringLiteral("The letters are not encoded in UTF-8. Save the file with that encoding.")};
    if (cell.bytes.find('\0') != std::string_view::npos)
        return Refusal{QStringLiteral("There is a zero byte, as no text has it. Is this a CSV file in UTF-8?")};
    return utf8.toString();
}

std::optional<QDate> ReadFileDate(const QString &text, const ImportOptions &options)
{
    if (const auto date = readIsoDate(text.toStdString()))
        return date;
    return options.dateOrder ? ReadDateInOrder(text, *options.dateOrder) : std::nullopt;
}

Read ReadCell(const DataColumn &column, const CsvCell &cell, const QString &text, const CellContext &context)
{
    const QString trimmed = text.trimmed();
    if (cell.isNull || (trimmed.isEmpty() && !IsText(column.kind)) || (text.isEmpty() && !column.ifEmpty.isEmpty()))
        return column.ifEmpty.isEmpty() ? Read(Value()) : refuse(column.ifEmpty);
    switch (column.kind) {
    case CellKind::Tank: return tankRead(text, context.tankIds);
    case CellKind::TankName:
    case CellKind::Line:
    case CellKind::Notes:
    case CellKind::Detail: return textRead(column, text);
    case CellKind::Number:
    case CellKind::Whole: return numberRead(column, trimmed, context.options);
    case CellKind::Date:
    case CellKind::EntryDate: return dateRead(column, trimmed, context);
    case CellKind::Time: return timeRead(trimmed);
    case CellKind::WaterType:
    case CellKind::Pattern: return wordRead(column, trimmed);
    }
    return refuse(QString());
}
