// What the program that reads a file of the old engine reports to the start. Each line says how far it is, and the last
// line says how it ended. The lines are JSON, so that they can contain any text.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/core/RuntimeFailure.h"

struct OldProgress
{
    QString table;
    int percent = 0; ///< how many of all rows in the file have been read
};

/// What a keeper calls the rows of a table.
struct OldRowWords
{
    const char *table, *one, *several;
};

/// The tables with a keeper's rows, in the order in which they are listed for the keeper.
inline constexpr OldRowWords oldRowWords[] = {
    {"TANKLST", "tank", "tanks"},
    {"WATERLOG", "water test", "water tests"},
    {"LIVESTOCK", "livestock entry", "livestock entries"},
    {"MAINTLOG", "maintenance entry", "maintenance entries"},
    {"MAINTSCHED", "reminder", "reminders"},
};

/// The words for that many rows of a table; the table's name if it is not one of those.
QString WordsForRows(const QString &table, qint64 rows);

/// How many rows of a table came over.
struct OldCount
{
    QString table;
    qint64 rows = 0;
};

/// The draft is complete.
struct OldOutcome
{
    std::vector<OldCount> counts;
    QStringList changed; ///< sentences about what is different from the old file, and what was left out
    QStringList unread;  ///< phrases for what is in the file but could not be read
};

using OldLine = std::variant<OldProgress, OldOutcome, RuntimeFailure>;

/// The line ends with a line feed.
QByteArray WriteOldLine(const OldLine &line);
/// Returns nothing for any other line.
std::optional<OldLine> ReadOldLine(const QByteArray &line);
