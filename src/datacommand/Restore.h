// The verb restore: lists the copies in the keeper's folder, or puts one of them in the place of the database.
#pragma once

#include <QString>

class KeepersData;
struct FileContent;

/// "1 tank, 20,041 entries, 3 reminders".
QString ContentInWords(const FileContent &content);

/// Prints the daily copies and the other databases of the folder, newest first.
int ListCopies(KeepersData &data);

/// Puts a copy in the place of the database, which is kept beside it under another name. `copy` is a file, a name from
/// the list, or the date of a daily copy. Throws RuntimeFailure; then nothing has changed.
int RestoreCopy(KeepersData &data, const QString &copy);
