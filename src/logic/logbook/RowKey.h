// The key of a row in a log's list, which identifies the entry: date (8 characters), " - ", time (11), and, if a name
// is part of the identity, " plus " and the name. The logbook takes date and time out of it by position.
#pragma once

#include <QDate>
#include <QString>
#include <QTime>

/// The text in the first column of a row: date and time.
QString MakeRowText(const QDate &date, const QTime &time, const QString &datePicture, const QString &timePicture);
QString MakeRowKey(const QString &rowText, const QString &name);

/// Characters 1 to 8 and 12 to 22.
QString DateOfKey(const QString &key);
QString TimeOfKey(const QString &key);
