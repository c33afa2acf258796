#include "logic/logbook/RowKey.h"

#include "text/Dates.h"

QString MakeRowText(const QDate &date, const QTime &time, const QString &datePicture, const QString &timePicture)
{
    return Format(date, datePicture) + u" - " + Format(time, timePicture);
}

QString MakeRowKey(const QString &rowText, const QString &name) { return rowText + u" plus " + name; }

QString DateOfKey(const QString &key) { return key.left(8); }

QString TimeOfKey(const QString &key) { return key.mid(11, 11); }
