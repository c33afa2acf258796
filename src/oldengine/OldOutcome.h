// What the program that reads a file of the old engine tells the start, a line each: how far it is, and as its last
// line how it ended. The lines are JSON, so that words of any kind go through.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/RuntimeFailure.h"

struct OldProgress
{
    QString table;
    int percent = 0; ///< of all rows of the file
};

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
