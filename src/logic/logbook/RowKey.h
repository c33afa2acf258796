// The key of a row in a log's list: the entry's identity as text, date (8 characters), " - ", time (11), and, where a
// name belongs to the identity, " plus " and the name. The entry paths take it apart by position.
#pragma once

#include <QDate>
#include <QString>
#include <QTime>

/// What a row shows as its own text: date and time.
QString MakeRowText(const QDate &date, const QTime &time, const QString &datePicture, const QString &timePicture);
QString MakeRowKey(const QString &rowText, const QString &name);

/// Characters 1 to 8 and 12 to 22.
QString DateOfKey(const QString &key);
QString TimeOfKey(const QString &key);
