// What the program that reads a file of the old engine tells the start, a line each: how far it is, and as its last
// line how it ended. The lines are JSON, so that words of any kind go through.
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
    int percent = 0; ///< of all rows of the file
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
    QStringList changed; ///< sentences: what is not quite as it was in the file, and what was left out
    QStringList unread;  ///< sentences: what the file has and could not be read
};

using OldLine = std::variant<OldProgress, OldOutcome, RuntimeFailure>;

/// With the line's end.
QByteArray WriteOldLine(const OldLine &line);
/// Nothing where it is no such line.
std::optional<OldLine> ReadOldLine(const QByteArray &line);
