// Reads a name file: one record a line, common name in characters 1 to 49, Latin name from 50 on; lines that are empty,
// begin with
// "!" or are shorter than 51 characters are no records. The livestock window and the names window both read here. Line
// ends of any system, a byte order mark, UTF-8 or Latin-1 letters, and a last line without an end are all read; no name
// is lost.
#pragma once

#include <functional>

#include <QString>

// Shared by the boxes of the two windows. Both look for the freshwater file before they open their own, so a missing
// one blocks the saltwater names too.
inline const QString nameFileLookedFor = QStringLiteral("namesfw.txt");
inline const QString namesNotFoundTitle = QStringLiteral("Names File Not Found!");
inline const QString makersAddress = QStringLiteral("http://www.velmoor.example");

struct NameRecord
{
    QString common;    ///< turned about, so that the family name leads: "Tang - Yellow "
    QStringView latin; ///< holds while the record is handed over
};

/// A name of two or more words, turned about at its last blank: last word, " - ", and what stood before it with its
/// blank.
QString TurnAbout(QStringView name);

/// Hands over each record, and the progress text at the first and whenever it has changed: "Loading." with a dot more
/// for each 20th name, anew at each 2000th. Returns the count. Throws RuntimeFailure (FileNotFound, PermissionDenied)
/// where the file cannot be read.
int ReadNameFile(const QString &fileName, const std::function<void(NameRecord)> &take,
                 const std::function<void(const QString &)> &progress);
