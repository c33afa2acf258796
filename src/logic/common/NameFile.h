// Reads a name file for the livestock window and the names window. Each line is a record: the common name in characters
// 1 to 49, and the Latin name from 50 on. Lines that start with "!" or are shorter than 51 characters are skipped. The
// file may have the line ends of any system, a byte order mark, UTF-8 or Latin-1 letters, and a last line without an
// end.
#pragma once

#include <functional>

#include <QString>

// For the messages of the two windows. Both look for the freshwater file first, so if it is missing, they do not show
// the saltwater names either.
inline const QString nameFileLookedFor = QStringLiteral("namesfw.txt");
inline const QString namesNotFoundTitle = QStringLiteral("Names File Not Found!");
inline const QString makersAddress = QStringLiteral("http://www.velmoor.example");

struct NameRecord
{
    QString common;    ///< with the last word first, which is the name of the family: "Tang - Yellow "
    QStringView latin; ///< valid only during the call that gets the record
};

/// Puts the last word of a name first: the last word, " - ", and the rest with its blank. A single word is unchanged.
QString TurnAbout(QStringView name);

/// Calls `take` for each record and returns how many there are. Calls `progress` for the first record and whenever the
/// text changes: "Loading." gets another dot for every 20 names and starts again after 2000. Throws FileNotFound or
/// PermissionDenied if the file cannot be read.
int ReadNameFile(const QString &fileName, const std::function<void(NameRecord)> &take,
                 const std::function<void(const QString &)> &progress);
